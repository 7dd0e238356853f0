// Loads on many plates at once, held to the walk of all loads for each plate.
#include <algorithm>

#include "store/model/list_expansion.h"
#include "tests/support/random_model.h"
#include "tests/topology/load_walk.h"
#include "tests/topology/plate_support.h"
#include "topology/load_table.h"

namespace Tarvex::PlateWalkTest {
namespace {

using namespace Testing;
using Data::CEdgeLoad;
using Data::CFaceLoad;
using Data::CFaceThermalLoad;

bool Adds(CFaceLoad const& load) { return load.TypeOf() == CFaceLoad::Load2D::Uniform; }
bool Adds(CEdgeLoad const&) { return false; }
bool Adds(CFaceThermalLoad const& load) {
  return load.TypeOf() != CFaceThermalLoad::ThermalType::PerCorner;
}

/// The walk of one table.
template <class Table>
struct Walk {
  CZelData& model;
  bool all = true;

  bool IsOn(int n, int element) const {
    auto const& list = Table::Read(model, n).LoadedEntities();
    return Util::IsItemIncluded(list, {SelElement, element}, model, -1, false);
  }
  bool IsPlain(int n) const { return Table::Read(model, n).LoadedEntities().IsPlain(); }

  /// Maps one load as if it was the only one, and takes over what it gives to some of the pieces.
  void MapAlone(int n, int parent, std::vector<int> const& subs, std::vector<int> const& wanted) {
    CZelData alone(model);
    alone.DeleteFaceLoad(1, alone.HighestFaceLoad());
    alone.DeleteEdgeLoad(1, alone.HighestEdgeLoad());
    alone.DeleteFaceThermalLoad(1, alone.HighestFaceThermalLoad());
    auto const load = Table::Read(model, n);
    Table::AppendOn(alone, parent, load);
    ASSERT_TRUE(CDataMgr(alone).Map2DLoading({{parent, subs}}));
    for (int made = 1; made <= Table::Highest(alone); ++made)
      for (int const piece : Table::Read(alone, made).LoadedEntities().Word()) {
        if (std::find(wanted.begin(), wanted.end(), piece) == wanted.end()) continue;
        if (Adds(load))
          AddToLoad<Table>(model, n, piece);
        else
          Table::AppendOn(model, piece, Table::Read(alone, made));
      }
  }
  void MapAll(int parent, std::vector<int> const& subs, std::vector<int> const& wanted) {
    int const highest = Table::Highest(model);
    for (int n = 1; n <= highest; ++n) {
      if (!IsOn(n, parent)) continue;
      if (IsPlain(n) && model.ElemExist(parent))
        MapAlone(n, parent, subs, wanted);
      else
        all = false;
    }
  }
  void TakeOff(int parent) {
    for (int n = Table::Highest(model); n >= 1; --n)
      if (IsOn(n, parent) && IsPlain(n)) TakeOffLoad<Table>(model, n, parent);
  }
  /// @param pairs whether each piece has a walk of its own. Plates that are on no list at first are
  /// passed over then.
  bool Run(NumberLists const& pieces, bool pairs) {
    std::vector<int> loaded;
    for (int n = 1; n <= Table::Highest(model); ++n)
      for (int const number : Util::Item(Table::Read(model, n).LoadedEntities(), model))
        loaded.push_back(number);
    for (auto const& [parent, subs] : pieces) {
      if (pairs && std::find(loaded.begin(), loaded.end(), parent) == loaded.end()) continue;
      if (!pairs) MapAll(parent, subs, subs);
      for (int const sub : subs)
        if (pairs) MapAll(parent, subs, {sub});
      TakeOff(parent);
    }
    return all;
  }
};

/// Adds four quadrilaterals that fill one.
std::vector<int> CutInFour(CZelData& model, int parent) {
  auto const corners = model.Elem(parent).Topology();
  std::vector<int> const nodes(corners.begin(), corners.end());
  auto const middle = [&](std::vector<std::size_t> const& places) {
    Vec3<double> sum;
    for (auto const place : places) sum += model.NodeCoor(nodes[place]);
    sum = sum / static_cast<double>(places.size());
    return NodeAt(model, sum.x, sum.y, sum.z);
  };
  int const centre = middle({0, 1, 2, 3});
  std::vector<int> sides;
  for (std::size_t i = 0; i < 4; ++i) sides.push_back(middle({i, (i + 1) % 4}));
  std::vector<int> pieces;
  for (std::size_t i = 0; i < 4; ++i) {
    pieces.push_back(model.HighestElem() + 1);
    model.SetElem(pieces.back(),
                  Element(ElementType::Quad4, {nodes[i], sides[i], centre, sides[(i + 3) % 4]}));
  }
  return pieces;
}

constexpr int kPlates = 9;
constexpr int kNoElement = 5000;

/// Some of nine plates and of their pieces are cut, and a number without an element is said to be.
NumberLists CutSome(CZelData& model, Random& random) {
  NumberLists pieces;
  for (int n = 1; n <= kPlates; ++n)
    if (random.Percent(60)) pieces[n] = CutInFour(model, n);
  for (int n = kPlates + 1; n <= std::min(model.HighestElem(), 2 * kPlates); ++n)
    if (random.Percent(30)) pieces[n] = CutInFour(model, n);
  if (random.Percent(30)) pieces[kNoElement] = {1};
  return pieces;
}

Data::CEntList AnyList(Random& random) {
  if (random.Percent(10))
    return Elements(random.Of<wchar_t const*>(
        {L"2 to 4", L"none", L"20 to 30", L"7 to 9 not 8", L"4990 to 5000"}));
  std::vector<int> numbers;
  for (int i = random.Of<int>({1, 1, 2, 5, 30}); i > 0; --i)
    numbers.push_back(random.Percent(8) ? random.Int(4998, 5002) : random.Int(1, 12));
  return {random.Percent(5) ? SelMember : SelElement, numbers};
}

template <class Load>
Load AnyLoad(Random& random, int mostType, int values) {
  Load load;
  if constexpr (!std::is_same_v<Load, CEdgeLoad>)
    load.SetType(static_cast<decltype(load.TypeOf())>(random.Int(1, mostType)));
  load.SetLoadedEntities(AnyList(random));
  for (int i = 0; i < values; ++i) load.SetValue(i, random.Int(1, 9));
  return load;
}

void AddLoads(CZelData& model, Random& random) {
  for (int i = random.Int(1, 12); i > 0; --i) {
    auto face = AnyLoad<CFaceLoad>(random, 3, 4);
    face.SetPosition({random.Real(-0.9, 0.9), random.Real(-0.9, 0.9)});
    model.SetFaceLoad(model.HighestFaceLoad() + 1, face);
    auto edge = AnyLoad<CEdgeLoad>(random, 0, 2);
    edge.SetEdge(random.Int(1, 4));
    model.SetEdgeLoad(model.HighestEdgeLoad() + 1, edge);
    auto thermal = AnyLoad<CFaceThermalLoad>(random, 2, 8);
    if (random.Percent(40)) thermal.SetType(CFaceThermalLoad::ThermalType::PerCorner);
    model.SetFaceThermalLoad(model.HighestFaceThermalLoad() + 1, thermal);
  }
}

TEST(Map2DLoading, LeavesWhatAWalkOfAllLoadsForEachPlateLeaves) {
  int unmapped = 0;
  int mapped = 0;
  for (std::uint32_t seed = 1; seed <= 150; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(seed);
    CZelData model;
    Grid(model, 3, 3);
    auto const pieces = CutSome(model, random);
    AddLoads(model, random);
    CZelData walked(model);
    CZelData const before(model);
    bool const faces = Walk<FaceLoads>{walked}.Run(pieces, false);
    bool const edges = Walk<EdgeLoads>{walked}.Run(pieces, true);
    bool const temperatures = Walk<FaceThermalLoads>{walked}.Run(pieces, true);
    ASSERT_EQ(CDataMgr(model).Map2DLoading(pieces), faces && edges && temperatures);
    ASSERT_TRUE(IsUnchanged(model, walked));
    if (!faces) ++unmapped;
    if (!(model == before)) ++mapped;
  }
  EXPECT_GT(unmapped, 10);
  EXPECT_LT(unmapped, 140);
  EXPECT_GT(mapped, 140);
}

}  // namespace
}  // namespace Tarvex::PlateWalkTest
