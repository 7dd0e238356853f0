#include "tests/support/builders.h"

#include <stdexcept>

#include "store/record/member.h"

namespace Tarvex::Testing {
namespace {

std::vector<int> NodesAt(CZelData& model, Points const& points) {
  std::vector<int> nodes;
  for (auto const& p : points) nodes.push_back(NodeAt(model, p.x, p.y, p.z));
  return nodes;
}

int Add(CZelData& model, Data::VariantElementValue const& entity) {
  int const n = model.HighestElem() + 1;
  model.SetVariantElement(n, entity);
  return n;
}

}  // namespace

Data::CElement Element(ElementType type, std::vector<int> const& nodes) {
  Data::CElement element(1, type, 0);
  element.SetTopo(nodes);
  return element;
}

Data::LoadPanel Panel(std::vector<int> const& nodes) {
  Data::LoadPanel panel;
  panel.SetTopology(nodes);
  return panel;
}

int NodeAt(CZelData& model, double x, double y, double z) {
  int const n = model.HighestNode() + 1;
  model.CreateNode(n, {x, y, z}, 0, Vbool6());
  return n;
}

int ElementAt(CZelData& model, ElementType type, Points const& points) {
  return Add(model, Element(type, NodesAt(model, points)));
}

int BeamAt(CZelData& model, Vec3<double> const& a, Vec3<double> const& b) {
  return ElementAt(model, ElementType::Beam, {a, b});
}

int QuadAt(CZelData& model, Vec3<double> const& a, Vec3<double> const& b, Vec3<double> const& c,
           Vec3<double> const& d) {
  return ElementAt(model, ElementType::Quad4, {a, b, c, d});
}

int PanelAt(CZelData& model, Points const& points) {
  return Add(model, Panel(NodesAt(model, points)));
}

int MemberAt(CZelData& model, MembType type, wchar_t const* topology) {
  Data::CMember member(type, 1, 0);
  if (!member.SetTopo(CString(topology))) throw std::invalid_argument("no topology");
  int const n = model.HighestMember() + 1;
  model.SetMember(n, member);
  return n;
}

void Grid(CZelData& model, int columns, int rows) {
  for (int j = 0; j <= rows; ++j)
    for (int i = 0; i <= columns; ++i) NodeAt(model, i, j, 0);
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i) {
      int const a = j * (columns + 1) + i + 1;
      Add(model, Element(ElementType::Quad4, {a, a + 1, a + columns + 2, a + columns + 1}));
    }
}

void Frame(CZelData& model, int bays, int storeys) {
  for (int k = 0; k <= storeys; ++k)
    for (int i = 0; i <= bays; ++i) NodeAt(model, 6.0 * i, 0, 3.0 * k);
  int const across = bays + 1;
  for (int n = 1; n <= across * storeys; ++n)
    Add(model, Element(ElementType::Beam, {n, n + across}));
  for (int k = 1; k <= storeys; ++k)
    for (int i = 1; i <= bays; ++i)
      Add(model, Element(ElementType::Beam, {k * across + i, k * across + i + 1}));
}

int Brick(CZelData& model, double x, double y, double z) {
  return ElementAt(
      model, ElementType::Brick8,
      {{0, 0, 0}, {x, 0, 0}, {x, y, 0}, {0, y, 0}, {0, 0, z}, {x, 0, z}, {x, y, z}, {0, y, z}});
}

}  // namespace Tarvex::Testing
