#include "store/model/entity_tables.h"

#include <algorithm>

#include "store/geometry/axis_trans.h"
#include "store/model/model_core.h"
#include "store/model/node_holds.h"
#include "store/model/node_use.h"
#include "store/model/table_ops.h"
#include "store/select/checked_access.h"

namespace Tarvex {
namespace {

using Data::CElement;
using Data::CNode;
using Data::NodeHoldAccess;
using Data::NodeUseAccess;
using Data::TopoVector;

SEntRef ElementRef(int n) { return {SelElement, n}; }

/// Topology of the element or panel of a number, empty when there is neither.
TopoVector TopologyOf(ModelState const& state, int n) {
  if (auto const* element = state.elem.Find(n)) return element->Topology();
  if (auto const* panel = state.panel.Find(n)) return panel->Topology();
  return {};
}

/// Stores an element or panel: takes away the one of the other class under its number and follows
/// the topology.
template <class Record, class Other>
void StoreEntity(ModelCore& core, PagedTable<Record>& table, PagedTable<Other>& other, int n,
                 Record const& record, SidMode sid) {
  auto const before = TopologyOf(core.state, n);
  auto const& stored = TableOps::Store(table, n, record, sid);
  if (other.Exist(n)) other.Remove(n, 1);
  NodeUse::TopologyChanged(core, ElementRef(n), before, stored.Topology());
}

bool IsBulk(ModelCore const& core, CModule::ModuleId module) {
  auto const& modules = core.bulkModules;
  return std::find(modules.begin(), modules.end(), module) != modules.end();
}

/// Takes an element or panel that goes off the lists of its members. In a bulk change of elements
/// it comes back under another number, and the tool that opened it rewrites the lists.
void LeaveMembers(ModelCore& core, int n) {
  auto& members = core.state.member;
  if (members.empty() || IsBulk(core, CModule::Elem)) return;
  auto const owners = core.children.Of(members, n);
  for (auto const& owner : owners) members.Edit(owner.member).RemoveChildElement(n);
  if (!owners.empty()) core.children.Removed(n);
}

/// Removes records but for those that are locked.
template <class Record>
void BlankEntities(ModelCore& core, PagedTable<Record>& table, int first, int count) {
  TableOps::RemoveUnlocked(table, first, count, [&](int n, Record const& record) {
    NodeUse::TopologyChanged(core, ElementRef(n), record.Topology(), {});
    LeaveMembers(core, n);
  });
}

/// Changes an element in place where its topology stays.
template <class Change>
void ChangeElem(ModelCore& core, int n, Change&& change) {
  change(TableOps::Edit(core.state.elem, "Elem", n));
}

/// As ChangeElem, for what load panels have too.
template <class Change>
void ChangeEither(ModelCore& core, int n, Change&& change) {
  if (core.state.panel.Exist(n))
    change(core.state.panel.Edit(n));
  else
    change(TableOps::Edit(core.state.elem, "Elem", n));
}

/// Changes a node in place where its position stays.
template <class Change>
void ChangeNode(ModelCore& core, int n, Change&& change) {
  change(TableOps::Edit(core.state.node, "Node", n));
}

/// Factors from internal to user values of the three co-ordinates of an axis.
Vec3<double> UserFactors(Data::CUnit const& unit, AxisType type) {
  double const length = unit.Conversion(Data::CUnit::kLength);
  double const angle = unit.Conversion(Data::CUnit::kAngle);
  if (type == AxisType::Cylindrical) return {length, angle, length};
  if (type == AxisType::Spherical) return {length, angle, angle};
  return {length, length, length};
}

/// Stores a node under its old attachments; a record that is given brings none.
bool StoreNode(ModelCore& core, int n, CNode const& node, SidMode sid) {
  auto& table = core.state.node;
  auto const* old = table.Find(n);
  bool const isNew = old == nullptr;
  core.NodeMoved(n, old, nullptr);
  auto use = isNew ? nullptr : NodeUseAccess::Get(*old);
  auto hold = isNew ? nullptr : NodeHoldAccess::Get(*old);
  auto& stored = TableOps::Store(table, n, node, sid);
  NodeUseAccess::Set(stored, std::move(use));
  NodeHoldAccess::Set(stored, std::move(hold));
  NodeHoldAccess::SetRuledOut(stored, core.state.spec.GlobalRestraint());
  core.NodeMoved(n, nullptr, &stored);
  return isNew;
}

}  // namespace

// Nodes.

bool EntityTables::NodeExist(int n) const { return m_core.state.node.Exist(n); }

CNode const& EntityTables::Node(int n) const {
  NodeHolds::BeforeQuery(m_core);
  NodeUse::BeforeQuery(m_core);
  return TableOps::Get(m_core.state.node, "Node", n);
}

tarvex_unordered_map<unsigned int, CNode> const& EntityTables::Node() const {
  NodeHolds::BeforeQuery(m_core);
  NodeUse::BeforeQuery(m_core);
  return m_core.state.node;
}

tarvex_unordered_map<unsigned int, CNode> const& EntityTables::StoredNodes() const {
  return m_core.state.node;
}

int EntityTables::HighestNode() const { return m_core.state.node.Highest(); }

void EntityTables::SetNode(int n, CNode const& node, SidMode sid) {
  if (StoreNode(m_core, n, node, sid)) NodeUse::NodeAdded(m_core, n);
}

void EntityTables::_SetNode(int n, CNode const& node, SidMode sid) {
  if (StoreNode(m_core, n, node, sid)) NodeUse::MarkStale(m_core);
}

void EntityTables::BlankNode(int first, int count) {
  auto& table = m_core.state.node;
  TableOps::ForEachIn(table, first, count, [&](int n) {
    m_core.NodeMoved(n, table.Find(n), nullptr);
    NodeUse::NodeGoes(m_core, n);
  });
  table.Remove(first, count);
}

void EntityTables::CreateNode(int n, Vec3<double> const& position, int axis, Vbool6 restraint,
                              SidMode sid) {
  SetNode(n, CNode(position, axis, restraint), sid);
}

void EntityTables::SetNodeCoor(int n, Vec3<double> const& position) {
  auto& node = TableOps::Edit(m_core.state.node, "Node", n);
  m_core.NodeMoved(n, &node, nullptr);
  node.SetPosition(position);
  m_core.NodeMoved(n, nullptr, &node);
}

void EntityTables::SetNodeAxis(int n, int axis) {
  ChangeNode(m_core, n, [&](CNode& node) { node.SetAxis(axis); });
}

void EntityTables::SetNodeRestraint(int n, Vbool6 restraint) {
  ChangeNode(m_core, n, [&](CNode& node) { node.SetRestraint(restraint); });
}

void EntityTables::SetNodeSid(int n, CString const& sid) {
  ChangeNode(m_core, n, [&](CNode& node) { node.SetSid(sid); });
}

std::vector<int> EntityTables::NodesAroundPoint(Vec3<double> const& point, double radius) const {
  return m_core.Positions().Around(point, radius);
}

void EntityTables::NodesAroundPoint(Vec3<double> const& point, std::vector<int>& nodes,
                                    double radius) const {
  nodes = NodesAroundPoint(point, radius);
}

int EntityTables::NearestNode(Vec3<double> const& point, double distance) const {
  return m_core.Positions().Nearest(point, distance);
}

Vec3<double> const& EntityTables::NodeCoor(int n) const {
  return TableOps::Get(m_core.state.node, "Node", n).Position();
}

Vec3<double> EntityTables::NodeCoor(int n, Data::CUnit const& unit, Data::CAxis const& axis) const {
  auto const factor = UserFactors(unit, axis.Type());
  auto const user = Util::CAxisTrans(axis).Global2User(NodeCoor(n));
  return {user.x * factor.x, user.y * factor.y, user.z * factor.z};
}

void EntityTables::SetNodeCoor(int n, Data::CUnit const& unit, Data::CAxis const& axis,
                               Vec3<double> const& position) {
  auto const factor = UserFactors(unit, axis.Type());
  Vec3<double> const user{position.x / factor.x, position.y / factor.y, position.z / factor.z};
  SetNodeCoor(n, Util::CAxisTrans(axis).User2Global(user));
}

void EntityTables::InitNodalUseElem() {
  NodeUse::BuildNow(m_core);
  m_core.naming.ForgetOrientation();
}

// Elements.

bool EntityTables::ElemExist(int n) const { return m_core.state.elem.Exist(n); }

CElement const& EntityTables::Elem(int n) const {
  return TableOps::Get(m_core.state.elem, "Elem", n);
}

tarvex_unordered_map<unsigned int, CElement> const& EntityTables::Elem() const {
  return m_core.state.elem;
}

int EntityTables::HighestElem() const {
  return std::max(m_core.state.elem.Highest(), m_core.state.panel.Highest());
}

void EntityTables::SetElem(int n, CElement const& element, SidMode sid) {
  StoreEntity(m_core, m_core.state.elem, m_core.state.panel, n, element, sid);
}

void EntityTables::LockElem(int n, bool on) {
  ChangeElem(m_core, n, [&](CElement& element) { element.Lock(on); });
}

void EntityTables::BlankElem(int first, int count) {
  BlankEntities(m_core, m_core.state.elem, first, count);
}

void EntityTables::CreateElem(int n, ElementType type, int group, int property, SidMode sid) {
  SetElem(n, CElement(group, type, property), sid);
}

void EntityTables::SetElemTopo(int n, int place, int node) {
  auto const before = TopologyOf(m_core.state, n);
  TopoVector after;
  if (m_core.state.panel.Exist(n)) {
    after = before;
    if (place < 0) CheckedAt(after, place);
    if (place >= static_cast<int>(after.size())) after.resize(static_cast<std::size_t>(place) + 1);
    after[static_cast<std::size_t>(place)] = node;
    m_core.state.panel.Edit(n).SetTopology(after);
  } else {
    auto& element = TableOps::Edit(m_core.state.elem, "Elem", n);
    element.SetTopo(place, node);
    after = element.Topology();
  }
  NodeUse::TopologyChanged(m_core, ElementRef(n), before, after);
}

void EntityTables::SetElemType(int n, ElementType type) {
  auto const before = TopologyOf(m_core.state, n);
  auto& element = TableOps::Edit(m_core.state.elem, "Elem", n);
  element.SetType(type);
  NodeUse::TopologyChanged(m_core, ElementRef(n), before, element.Topology());
}

void EntityTables::SetElemProperty(int n, int property) {
  ChangeEither(m_core, n, [&](auto& entity) { entity.SetProperty(property); });
}

void EntityTables::SetElemGroup(int n, int group) {
  ChangeEither(m_core, n, [&](auto& entity) { entity.SetGroup(group); });
}

void EntityTables::SetElemDummy(int n, bool dummy) {
  ChangeEither(m_core, n, [&](auto& entity) { entity.SetIsDummy(dummy); });
}

void EntityTables::SetElemBeta(int n, double degrees) {
  ChangeElem(m_core, n, [&](CElement& element) { element.SetOrientationAngle(degrees); });
}

void EntityTables::SetElemOrientNode(int n, int node) {
  ChangeElem(m_core, n, [&](CElement& element) { element.SetOrientationNode(node); });
}

void EntityTables::SetElemConnect(int n, int place, CElemConnect const& connect) {
  ChangeElem(m_core, n, [&](CElement& element) { element.SetConnect(place, connect); });
}

void EntityTables::SetElemOffset(int n, Data::COffset const& offset) {
  ChangeElem(m_core, n, [&](CElement& element) { element.SetOffset(offset); });
}

void EntityTables::SetElemSid(int n, CString const& sid) {
  ChangeElem(m_core, n, [&](CElement& element) { element.SetSid(sid); });
}

// Load panels.

bool EntityTables::LoadPanelExist(int n) const { return m_core.state.panel.Exist(n); }

Data::LoadPanel const& EntityTables::LoadPanel(int n) const {
  return TableOps::Get(m_core.state.panel, "LoadPanel", n);
}

tarvex_unordered_map<unsigned int, Data::LoadPanel> const& EntityTables::LoadPanels() const {
  return m_core.state.panel;
}

int EntityTables::HighestLoadPanel() const { return m_core.state.panel.Highest(); }

void EntityTables::SetLoadPanel(int n, Data::LoadPanel const& panel, SidMode sid) {
  StoreEntity(m_core, m_core.state.panel, m_core.state.elem, n, panel, sid);
}

void EntityTables::BlankLoadPanel(int first, int count) {
  BlankEntities(m_core, m_core.state.panel, first, count);
}

// Elements and load panels together.

bool EntityTables::VariantElementExist(int n) const { return ElemExist(n) || LoadPanelExist(n); }

std::optional<Data::VariantElementConstRef> EntityTables::VariantElement(int n) const {
  if (auto const* element = m_core.state.elem.Find(n))
    return Data::VariantElementConstRef(*element);
  if (auto const* panel = m_core.state.panel.Find(n)) return Data::VariantElementConstRef(*panel);
  return std::nullopt;
}

void EntityTables::SetVariantElement(int n, Data::VariantElementValue const& value, SidMode sid) {
  if (value.IsLoadPanel())
    SetLoadPanel(n, *value.Panel(), sid);
  else
    SetElem(n, *value.Element(), sid);
}

void EntityTables::BlankVariantElement(int first, int count) {
  BlankElem(first, count);
  BlankLoadPanel(first, count);
}

}  // namespace Tarvex
