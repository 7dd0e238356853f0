// Bricks refined at a corner.
#include <array>

#include "members/refined_element.h"
#include "tarvex/refinement.h"

namespace Tarvex::ZelUtil {
namespace {

constexpr int kFace = 4;  // corners of the near face, and of the far one

/// Topology positions of a brick counted from a corner: a0 to a3 round its face from it on, then
/// b0 to b3 round the other face in the same order.
std::array<int, 2 * kFace> PlacesFrom(int corner) {
  int const near = corner < kFace ? 0 : kFace;
  std::array<int, 2 * kFace> places{};
  for (int k = 0; k < kFace; ++k) {
    int const round = (corner + k) % kFace;
    places[static_cast<std::size_t>(k)] = near + round;
    places[static_cast<std::size_t>(kFace + k)] = kFace - near + round;
  }
  return places;
}

}  // namespace

bool RefineBrickAtCorner(CZelData& model, int element, int corner, double ratio, double tolerance,
                         CString const& sid) {
  RefinedElement const brick(model, element, SpaceType::Solid, 8, sid);
  auto const places = PlacesFrom(corner);
  // Indices into the places.
  constexpr std::size_t a0 = 0, a1 = 1, a2 = 2, a3 = 3, b0 = 4, b1 = 5, b2 = 6, b3 = 7;
  auto const old = [&](std::size_t index) { return brick.Old().Topo(places[index]); };
  auto const middleOf = [&](std::initializer_list<std::size_t> indices) {
    Vec3<double> sum;
    for (auto const index : indices) sum += brick.At(places[index]);
    return brick.NodeAt(sum / static_cast<double>(indices.size()), tolerance);
  };
  int const e1 = middleOf({a0, a1});
  int const fN = middleOf({a0, a1, a2, a3});
  int const e3 = middleOf({a0, a3});
  int const eZ = middleOf({a0, b0});
  int const f1 = middleOf({a0, a1, b0, b1});
  int const m = brick.NodeAt(ratio * brick.At(corner), tolerance);
  int const f3 = middleOf({a0, a3, b0, b3});

  auto const add = [&](std::array<int, 2 * kFace> const& nodes) {
    int const n = model.HighestElem() + 1;
    auto piece = brick.Old();
    piece.Lock(false);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      piece.SetTopo(places[i], nodes[i]);
      piece.SetConnect(places[i], CElemConnect());
    }
    model.SetElem(n, piece, SidMode::Drop);
    if (sid != CString(L"")) model.SetElemSid(n, sid);
  };
  add({old(a0), e1, fN, e3, eZ, f1, m, f3});
  add({e1, old(a1), old(a2), fN, f1, old(b1), old(b2), m});
  add({e3, fN, old(a2), old(a3), f3, m, old(b2), old(b3)});
  add({eZ, f1, m, f3, old(b0), old(b1), old(b2), old(b3)});
  return true;
}

}  // namespace Tarvex::ZelUtil
