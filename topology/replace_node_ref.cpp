// New nodes in the place of old ones.
#include "store/model/undo_step.h"
#include "store/record/constraint_eqn.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "tarvex/data_mgr.h"
#include "topology/list_fields.h"

namespace Tarvex {
namespace {

using NodeLists = CDataMgr::NumberLists;

/// The node that takes the place of another where one alone has room; null for none.
int const* LastOf(NodeLists const& nodes, int node) {
  auto const found = nodes.find(node);
  return found == nodes.end() || found->second.empty() ? nullptr : &found->second.back();
}

bool ReplaceInElement(CZelData& model, int n, NodeLists const& nodes) {
  bool changed = false;
  auto const store = [&](auto&& change) {
    auto element = model.Elem(n);
    change(element);
    model.SetElem(n, element);
    changed = true;
  };
  for (int i = 0; i < model.Elem(n).NumTopo(); ++i)
    if (auto const* node = LastOf(nodes, model.Elem(n).Topo(i)))
      store([&](Data::CElement& element) { element.SetTopo(i, *node); });
  if (auto const* node = LastOf(nodes, model.Elem(n).OrientationNode()))
    store([&](Data::CElement& element) { element.SetOrientationNode(*node); });
  return changed;
}

bool ReplaceInElements(CZelData& model, NodeLists const& nodes) {
  bool changed = false;
  for (int n = model.HighestElem(); n >= 1; --n)
    if (model.ElemExist(n) && ReplaceInElement(model, n, nodes)) changed = true;
  return changed;
}

/// Replaces in the topology of members. From the first one whose topology changes, each later one
/// is stored again.
bool ReplaceInMembers(CZelData& model, NodeLists const& nodes) {
  bool changed = false;
  bool replaced = false;
  for (int n = 1; n <= model.HighestMember(); ++n) {
    if (!model.MemberExist(n)) continue;
    auto topology = model.Member(n).Topo();
    for (auto const& [old, now] : nodes)
      if (!now.empty() && topology.ReplaceItem(old, now.back())) replaced = true;
    auto const* orientation = LastOf(nodes, model.Member(n).OrientationNode());
    if (!replaced && orientation == nullptr) continue;
    auto member = model.Member(n);
    member.SetTopo(topology);
    if (orientation != nullptr) member.SetOrientationNode(*orientation);
    model.SetMember(n, member);
    changed = true;
  }
  return changed;
}

bool ReplaceInJoints(CZelData& model, NodeLists const& nodes) {
  bool changed = false;
  for (int n = model.HighestJoint(); n >= 1; --n) {
    if (!model.JointExist(n)) continue;
    if (auto const* node = LastOf(nodes, model.Joint(n).ConstrainedNode())) {
      model.SetJointConstrainedNode(n, *node);
      changed = true;
    }
    if (auto const* node = LastOf(nodes, model.Joint(n).PrimaryNode())) {
      model.SetJointPrimaryNode(n, *node);
      changed = true;
    }
  }
  return changed;
}

/// A primary node is looked at only where the constrained nodes have changed and are not all gone.
bool ReplaceInRigids(CZelData& model, NodeLists const& nodes) {
  return WalkDown(model, ListFields::kRigidNodes, [&](int n) {
    auto list = Data::CEntList(model.Rigid(n).ConstrainedNodes());
    if (!Util::Replace(list, nodes, model)) return false;
    if (list.IsEmpty()) {
      model.DeleteRigid(n, 1);
      return true;
    }
    model.SetRigidConstrainedNodes(n, list);
    if (auto const* node = LastOf(nodes, model.Rigid(n).PrimaryNode())) {
      auto rigid = model.Rigid(n);
      rigid.SetPrimaryNode(*node);
      model.SetRigid(n, rigid);
    }
    return true;
  });
}

bool ReplaceInEquation(Data::CConstraintEqn& equation, NodeLists const& nodes) {
  bool changed = false;
  if (auto const* node = LastOf(nodes, equation.ConstrainedNode())) {
    equation.SetConstrainedNode(*node);
    changed = true;
  }
  for (int i = 0; i < equation.NumTerm(); ++i)
    if (auto const* node = LastOf(nodes, equation.PrimaryNode(i))) {
      equation.SetRhsTerm(i, *node, equation.Dir(i), equation.Factor(i));
      changed = true;
    }
  return changed;
}

bool ReplaceInEquations(CZelData& model, NodeLists const& nodes) {
  bool changed = false;
  for (int n = model.HighestConstraintEqn(); n >= 1; --n) {
    if (!model.ConstraintEqnExist(n)) continue;
    auto equation = model.ConstraintEqn(n);
    if (!ReplaceInEquation(equation, nodes)) continue;
    model.SetConstraintEqn(n, equation);
    changed = true;
  }
  return changed;
}

bool ReplaceInLists(CZelData& model, ListField const& field, NodeLists const& nodes) {
  return WalkDown(model, field, [&](int n) { return ReplaceInField(model, field, n, nodes); });
}

bool ReplaceInSavedLists(CZelData& model, NodeLists const& nodes) {
  return WalkDown(model, ListFields::kSavedLists, [&](int n) {
    return model.List(n).TypeOf() == SelNode &&
           ReplaceInField(model, ListFields::kSavedLists, n, nodes);
  });
}

}  // namespace

bool CDataMgr::ReplaceNodeRef(NumberLists const& numbers, bool entities) const {
  using namespace ListFields;
  CUndoStep step(m_model, false);
  bool changed = false;
  auto const note = [&](bool any) { changed = any || changed; };
  if (entities) {
    note(ReplaceInElements(m_model, numbers));
    note(ReplaceInMembers(m_model, numbers));
  }
  note(ReplaceInSavedLists(m_model, numbers));
  note(ReplaceInLists(m_model, kGenRest, numbers));
  note(ReplaceInJoints(m_model, numbers));
  note(ReplaceInRigids(m_model, numbers));
  note(ReplaceInEquations(m_model, numbers));
  for (auto const& field : {kNodeLoad, kAppliedDisplacement, kSettlement, kGravityNodes})
    note(ReplaceInLists(m_model, field, numbers));
  step.Accept();
  return changed;
}

}  // namespace Tarvex
