// Meshes refined around a node.
#include <algorithm>
#include <array>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/node.h"
#include "store/text/cstring.h"
#include "tarvex/refinement.h"

namespace Tarvex::ZelUtil {
namespace {

/// What the refinement of one element needs to know.
struct CornerRefinement {
  CZelData& model;
  int element;
  int corner;
  double ratio;
  double tolerance;
  CString const& sid;
};

bool RefineQuad(CornerRefinement const& r) {
  return RefineQuadAtCorner(r.model, r.element, r.corner, r.ratio, r.tolerance, r.sid);
}
bool RefineTri(CornerRefinement const& r) {
  return RefineTriAtCorner(r.model, r.element, r.corner, r.tolerance, r.sid);
}
bool RefineBrick(CornerRefinement const& r) {
  return RefineBrickAtCorner(r.model, r.element, r.corner, r.ratio, r.tolerance, r.sid);
}

/// How elements of a type are refined; a type without a row is left alone.
struct RefinementRow {
  ElementType type;
  bool (*refine)(CornerRefinement const&);
};
constexpr std::array kRefinements{
    RefinementRow{ElementType::Quad4, &RefineQuad},
    RefinementRow{ElementType::Quad8, &RefineQuad},
    RefinementRow{ElementType::Tri3, &RefineTri},
    RefinementRow{ElementType::Tri6, &RefineTri},
    RefinementRow{ElementType::Brick8, &RefineBrick},
};

/// Whether all nodes of an element's shape are there.
bool HasItsNodes(CZelData const& model, Data::CElement const& element) {
  if (element.NumTopo() != element.Shape().nodes) return false;
  auto const& nodes = element.Topology();
  return std::all_of(nodes.begin(), nodes.end(), [&](int node) { return model.NodeExist(node); });
}

bool IsWanted(CZelData const& model, Data::CElement const& element, CString const& sid) {
  if (element.IsDummy() || !(element.Is2D() || element.Is3D())) return false;
  if (sid != CString(L"") && element.Sid() != sid) return false;
  return HasItsNodes(model, element);
}

/// Position of a node among the corners of an element, -1 when it is none.
int CornerOf(Data::CElement const& element, int node) {
  for (int i = 0; i < element.Shape().corners; ++i)
    if (element.Topo(i) == node) return i;
  return -1;
}

}  // namespace

bool RefineMeshAtNode(CZelData& model, int node, double ratio, double tolerance,
                      std::map<int, std::vector<int>>& replacements, CString const& sid) {
  auto const& attached = model.Node(node).AttachedEnt(SelElement);
  std::vector<int> const elements(attached.begin(), attached.end());
  int count = 0;
  for (int const n : elements) {
    if (!model.ElemExist(n) || !IsWanted(model, model.Elem(n), sid)) continue;
    auto const type = model.Elem(n).Type();
    int const corner = CornerOf(model.Elem(n), node);
    auto const row = std::find_if(kRefinements.begin(), kRefinements.end(),
                                  [&](RefinementRow const& each) { return each.type == type; });
    if (corner < 0 || row == kRefinements.end()) continue;
    int const before = model.HighestElem();
    if (row->refine({model, n, corner, ratio, tolerance, sid})) ++count;
    for (int made = before + 1; made <= model.HighestElem(); ++made)
      if (model.ElemExist(made)) replacements[n].push_back(made);
  }
  return count > 0;
}

}  // namespace Tarvex::ZelUtil
