// References of grids, nodes, elements, panels and members.
#include <array>
#include <mutex>

#include "frame/bulk_operations.h"
#include "renumber/reference_rewriter.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/member.h"
#include "store/record/node.h"

namespace Tarvex {
namespace {

using Data::CElement;
using Data::CMember;

/// The tables in which element types find their properties when they are renumbered. A spring
/// element goes by the 2D properties.
struct TypeTable {
  int type;
  CModule::ModuleId module;
};
constexpr std::array kTypeTables{
    TypeTable{1, CModule::Section},    TypeTable{2, CModule::Section},
    TypeTable{20, CModule::Section},   TypeTable{21, CModule::Section},
    TypeTable{23, CModule::Section},   TypeTable{3, CModule::Prop2D},
    TypeTable{5, CModule::Prop2D},     TypeTable{6, CModule::Prop2D},
    TypeTable{7, CModule::Prop2D},     TypeTable{8, CModule::Prop2D},
    TypeTable{9, CModule::LinkProp},   TypeTable{10, CModule::CableProp},
    TypeTable{12, CModule::Prop3D},    TypeTable{14, CModule::Prop3D},
    TypeTable{16, CModule::Prop3D},    TypeTable{26, CModule::Prop3D},
    TypeTable{19, CModule::SpacerProp}};

/// By type: the table, CModule::None for a type that has none.
constexpr auto kTableOfType = [] {
  std::array<CModule::ModuleId, kHighestElementType + 1> tables{};
  tables.fill(CModule::None);
  for (auto const& row : kTypeTables) tables[static_cast<std::size_t>(row.type)] = row.module;
  return tables;
}();

CModule::ModuleId TableOfType(ElementType type) {
  auto const at = static_cast<std::size_t>(type);
  return at < kTableOfType.size() ? kTableOfType[at] : CModule::None;
}

/// New nodes of elements and panels.
class TopologyMapper {
 public:
  explicit TopologyMapper(RenumberRun const& run)
      : m_scheme(run.refOnly ? nullptr : run.schemes.Find(CModule::Node)) {}

  bool Works() const { return m_scheme != nullptr; }
  /// A node that the scheme lacks stays.
  int Node(int node) const { return m_scheme->MapFound(node); }
  /// @return whether any changed.
  bool Nodes(Data::TopoVector& nodes) const {
    bool changed = false;
    for (int& node : nodes)
      if (int const mapped = Node(node); mapped != node) {
        node = mapped;
        changed = true;
      }
    return changed;
  }

 private:
  NumberScheme const* m_scheme;
};

template <class Entity>
bool MapParent(RenumberRun const& run, Entity& entity) {
  auto parent = entity.ParentMember();
  int const member = run.MapFound(CModule::Member, parent.member);
  if (member == parent.member) return false;
  parent.member = member;
  entity.SetParentMember(parent);
  return true;
}

template <class Entity>
bool MapTopology(TopologyMapper const& nodes, Entity& entity) {
  if (!nodes.Works()) return false;
  auto topology = entity.Topology();
  if (!nodes.Nodes(topology)) return false;
  entity.SetTopology(topology);
  return true;
}

bool MapOrientationNode(TopologyMapper const& nodes, CElement& element) {
  if (!nodes.Works() || element.OrientationNode() == 0) return false;
  int const node = nodes.Node(element.OrientationNode());
  if (node == element.OrientationNode()) return false;
  element.SetOrientationNode(node);
  return true;
}

template <class Entity>
bool MapProperty(RenumberRun const& run, CModule::ModuleId module, Entity& entity) {
  int const property = run.Map(module, entity.Property());
  if (property == entity.Property()) return false;
  entity.SetProperty(property);
  return true;
}

/// The topology of a member with new nodes; a node that comes to stand behind itself is dropped.
/// Words and the nodes around them stay apart.
Data::CTopoList MapTopology(TopologyMapper const& nodes, Data::CTopoList const& old) {
  Data::CTopoList topology(0);
  for (int const item : old) {
    int const mapped = Data::CTopoList::IsWord(item) ? item : nodes.Node(item);
    int const count = topology.NumItem();
    bool const repeats = !Data::CTopoList::IsWord(mapped) && count > 0 &&
                         topology.Items()[static_cast<std::size_t>(count) - 1] == mapped;
    if (!repeats) topology.AddItem(mapped);
  }
  return topology;
}

}  // namespace

bool ReferenceRewriter::GridPlanes() {
  Each(RewrittenTable<Data::CGridPlane>{&CZelData::GridPlane, &CZelData::SetGridPlane},
       [&](auto& plane) { MapAxis(plane); });
  return true;
}

bool ReferenceRewriter::GridSurfaces() {
  Each(RewrittenTable<Data::CGridSurface>{&CZelData::GridSurface, &CZelData::SetGridSurface},
       [&](auto& surface) { surface.SetElements(List(surface.Elements())); });
  return true;
}

bool ReferenceRewriter::Nodes() {
  auto& model = m_run.model;
  auto const& nodes = model.StoredNodes();
  for (int n = nodes.Next(0); n != 0; n = nodes.Next(n)) {
    int const axis = nodes.Find(n)->Axis();
    if (int const mapped = Map(CModule::Axis, axis); mapped != axis) model.SetNodeAxis(n, mapped);
  }
  return true;
}

bool ReferenceRewriter::Elements() {
  auto& model = m_run.model;
  std::mutex mutex;
  BulkOperations const bulk(model, mutex, {CModule::Elem});
  TopologyMapper const nodes(m_run);
  auto const& elements = model.Elem();
  for (int n = elements.Next(0); n != 0; n = elements.Next(n)) {
    CElement copy = *elements.Find(n);
    bool changed = MapParent(m_run, copy);
    changed = MapTopology(nodes, copy) || changed;
    changed = MapOrientationNode(nodes, copy) || changed;
    if (m_run.properties) {
      auto const table = TableOfType(copy.Type());
      if (table == CModule::None) return false;
      changed = MapProperty(m_run, table, copy) || changed;
    }
    if (changed) model.SetElem(n, copy, SidMode::Keep);
  }
  return true;
}

bool ReferenceRewriter::LoadPanels() {
  auto& model = m_run.model;
  TopologyMapper const nodes(m_run);
  auto const& panels = model.LoadPanels();
  for (int n = panels.Next(0); n != 0; n = panels.Next(n)) {
    Data::LoadPanel copy = *panels.Find(n);
    bool changed = MapParent(m_run, copy);
    changed = MapTopology(nodes, copy) || changed;
    changed = MapProperty(m_run, CModule::Prop2D, copy) || changed;
    if (changed) model.SetLoadPanel(n, copy, SidMode::Keep);
  }
  return true;
}

bool ReferenceRewriter::Members() {
  TopologyMapper const nodes(m_run);
  Each(RewrittenTable<CMember>{&CZelData::Member, &CZelData::SetMember}, [&](CMember& member) {
    if (nodes.Works()) {
      member.SetTopo(MapTopology(nodes, member.Topo()));
      member.SetOrientationNode(nodes.Node(member.OrientationNode()));
    }
    member.SetProperty(Map(CModule::Section, member.Property()));
  });
  return true;
}

}  // namespace Tarvex
