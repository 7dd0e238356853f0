// Copies of nodes beside the nodes.
#include "store/model/undo_step.h"
#include "store/record/constraint_eqn.h"
#include "store/record/joint.h"
#include "tarvex/data_mgr.h"
#include "topology/list_copy.h"
#include "topology/list_fields.h"

namespace Tarvex {
namespace {

using Copies = CDataMgr::NumberMap;

int const* CopyOf(Copies const& copies, int node) {
  auto const found = copies.find(node);
  return found == copies.end() ? nullptr : &found->second;
}

bool CopyInLists(CZelData& model, ListField const& field, Copies const& copies) {
  return WalkDown(model, field, [&](int n) {
    Data::CEntList list(field.read(model, n));
    if (!AddCopies(list, SelNode, copies, model)) return false;
    field.write(model, n, list);
    return true;
  });
}

bool CopyInNodeLoads(CZelData& model, Copies const& copies) {
  auto const& field = ListFields::kNodeLoad;
  return WalkDown(model, field, [&](int n) {
    Data::CEntList list(field.read(model, n));
    if (list.TypeOf() != SelNode || !AddCopiesOfSelected(list, copies, model)) return false;
    field.write(model, n, list);
    return true;
  });
}

bool CopyJoints(CZelData& model, Copies const& copies) {
  bool made = false;
  for (int n = model.HighestJoint(); n >= 1; --n) {
    if (!model.JointExist(n)) continue;
    auto joint = model.Joint(n);
    auto const* constrained = CopyOf(copies, joint.ConstrainedNode());
    auto const* primary = CopyOf(copies, joint.PrimaryNode());
    if (constrained == nullptr || primary == nullptr) continue;
    joint.SetConstrainedNode(*constrained);
    joint.SetPrimaryNode(*primary);
    model.SetJoint(model.HighestJoint() + 1, joint);
    made = true;
  }
  return made;
}

/// The copy of a rigid constraint needs two nodes: where the primary node has no copy, the last one
/// that was copied is primary, and stays among the constrained ones.
bool CopyRigid(CZelData& model, int n, Copies const& copies) {
  auto rigid = model.Rigid(n);
  Data::CEntList nodes(SelNode, L"");
  int last = 0;
  ForEachNewCopy(Util::Item(rigid.ConstrainedNodes(), model, -1, false), copies, [&](int copy) {
    nodes.AddTo(copy);
    last = copy;
  });
  auto const* primary = CopyOf(copies, rigid.PrimaryNode());
  int const count = Util::NumItem(nodes, model, -1, false) + (primary != nullptr ? 1 : 0);
  if (count <= 1) return false;
  rigid.SetConstrainedNodes(nodes);
  rigid.SetPrimaryNode(primary != nullptr ? *primary : last);
  model.SetRigid(model.HighestRigid() + 1, rigid);
  return true;
}

bool CopyEquation(CZelData& model, int n, Copies const& copies) {
  auto equation = model.ConstraintEqn(n);
  bool found = false;
  if (auto const* node = CopyOf(copies, equation.ConstrainedNode())) {
    equation.SetConstrainedNode(*node);
    found = true;
  }
  for (int i = 0; i < equation.NumTerm(); ++i)
    if (auto const* node = CopyOf(copies, equation.PrimaryNode(i))) {
      equation.SetRhsTerm(i, *node, equation.Dir(i), equation.Factor(i));
      found = true;
    }
  if (found) model.SetConstraintEqn(model.HighestConstraintEqn() + 1, equation);
  return found;
}

bool CopyConstraints(CZelData& model, Copies const& copies) {
  bool made = CopyJoints(model, copies);
  for (int n = model.HighestRigid(); n >= 1; --n)
    if (model.RigidExist(n) && CopyRigid(model, n, copies)) made = true;
  for (int n = model.HighestConstraintEqn(); n >= 1; --n)
    if (model.ConstraintEqnExist(n) && CopyEquation(model, n, copies)) made = true;
  return made;
}

}  // namespace

bool CDataMgr::CopyNodeRef(NumberMap const& copies, bool lists, bool restraints, bool constraints,
                           bool loads) const {
  using namespace ListFields;
  CUndoStep step(m_model, false);
  bool changed = false;
  auto const note = [&](bool any) { changed = any || changed; };
  if (lists) note(CopyInLists(m_model, kSavedLists, copies));
  if (restraints) note(CopyInLists(m_model, kGenRest, copies));
  if (constraints) note(CopyConstraints(m_model, copies));
  if (loads) {
    note(CopyInNodeLoads(m_model, copies));
    note(CopyInLists(m_model, kAppliedDisplacement, copies));
    note(CopyInLists(m_model, kSettlement, copies));
  }
  note(CopyInLists(m_model, kGravityNodes, copies));
  step.Accept();
  return changed;
}

}  // namespace Tarvex
