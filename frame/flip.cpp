// Reversing and spinning one element or load panel.
#include <algorithm>

#include "frame/flip_rows.h"
#include "frame/negated.h"
#include "store/model/zel_data.h"
#include "tarvex/orientation.h"

namespace Tarvex {
namespace {

using Data::CElement;

/// Exchanges two topology positions of an element together with all that belongs to them. Every
/// call negates the Z offset of a 2D element.
void SwapElementTopo(CElement& element, bool vertical, int a, int b) {
  auto const node = element.Topo(a);
  element.SetTopo(a, element.Topo(b));
  element.SetTopo(b, node);
  auto const connect = element.Connect(a);
  element.SetConnect(a, element.Connect(b));
  element.SetConnect(b, connect);
  double const start = element.LongPosition(true);
  element.SetLongPosition(true, element.LongPosition(false));
  element.SetLongPosition(false, start);

  auto offset = element.Offset();
  double const x1 = offset.X1();
  offset.SetX1(offset.X2());
  offset.SetX2(x1);
  // A vertical line keeps its local y when it is turned, a level one its z; see ElemDC.
  if (element.Is1D() && !vertical)
    offset.SetY(Negated(offset.Y()));
  else if (!element.Is3D())
    offset.SetZ(Negated(offset.Z()));
  element.SetOffset(offset);
}

/// The topology turned so that position `steps` comes first.
Data::TopoVector Rotated(Data::TopoVector nodes, int steps) {
  if (nodes.empty()) return nodes;
  auto const by = static_cast<std::ptrdiff_t>(static_cast<std::size_t>(steps) % nodes.size());
  std::rotate(nodes.begin(), nodes.begin() + by, nodes.end());
  return nodes;
}

void StoreTopology(CZelData& model, int n, Data::TopoVector const& nodes) {
  Data::LoadPanel copy(model.LoadPanel(n));
  copy.SetTopology(nodes);
  model.SetLoadPanel(n, copy);
}

/// True when the topology has a place for every exchange of a spin: the corners alone, or the
/// corners with a mid-side node each.
bool HasPlacesToSpin(CElement const& element) {
  int const edges = element.NumEdge();
  int const nodes = element.NumTopo();
  return nodes == edges || nodes >= 2 * edges;
}

/// Turns a 2D element by one position.
void SpinOnce(CElement& element) {
  int const edges = element.NumEdge();
  bool const quadratic = element.NumTopo() > edges;
  for (int i = 0; i <= edges - 2; ++i) {
    SwapElementTopo(element, false, i, (i + 1) % edges);
    if (quadratic) SwapElementTopo(element, false, i + edges, (i + 1) % edges + edges);
  }
}

}  // namespace

bool FlipElement(CZelData& model, int n) {
  if (!model.ElemExist(n)) return false;
  CElement copy(model.Elem(n));
  auto const* row = FindFlip(copy);
  if (row == nullptr || copy.NumTopo() < copy.Shape().nodes) return false;
  bool const vertical = model.ElemIsVertical(n, EntAt::Nodes);
  for (auto const& [a, b] : row->Swaps()) SwapElementTopo(copy, vertical, a, b);
  model.SetElem(n, copy);
  if (row->negateOffsetZ) {
    auto offset = copy.Offset();
    offset.SetZ(Negated(offset.Z()));
    model.SetElemOffset(n, offset);
  }
  return true;
}

bool FlipLoadPanel(CZelData& model, int n) {
  if (!model.LoadPanelExist(n)) return false;
  auto nodes = model.LoadPanel(n).Topology();
  std::reverse(nodes.begin(), nodes.end());
  if (nodes.size() >= 2) std::rotate(nodes.begin(), nodes.end() - 2, nodes.end());
  StoreTopology(model, n, nodes);
  return true;
}

bool FlipEntity(CZelData& model, SEntRef ref) {
  if (ref.type == SelMember) return FlipMember(model, ref.num);
  if (ref.type != SelElement) return false;
  return model.LoadPanelExist(ref.num) ? FlipLoadPanel(model, ref.num)
                                       : FlipElement(model, ref.num);
}

bool SpinElement(CZelData& model, int n, int steps) {
  if (steps < 1) return false;
  if (model.LoadPanelExist(n)) {
    StoreTopology(model, n, Rotated(model.LoadPanel(n).Topology(), steps));
    return true;
  }
  if (!model.ElemExist(n) || !model.Elem(n).Is2D()) return false;
  CElement copy(model.Elem(n));
  if (!HasPlacesToSpin(copy)) return false;
  // Positions come back after as many steps as there are edges, signs after two steps at most.
  for (int i = steps % (2 * copy.NumEdge()); i > 0; --i) SpinOnce(copy);
  model.SetElem(n, copy);
  return true;
}

}  // namespace Tarvex
