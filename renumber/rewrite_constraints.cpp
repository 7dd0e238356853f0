// References of constraints, interactions and influences. What loses the node or the list that it
// can't be without goes.
#include "renumber/reference_rewriter.h"
#include "store/model/list_expansion.h"
#include "store/record/constraint_eqn.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"

namespace Tarvex {
namespace {

using Data::CConstraintEqn;
using Data::CGenRest;
using Data::CJoint;
using Data::CRigid;
using Data::CTiedInterface;

/// Whether a rigid constraint stays; one without a primary node takes its first constrained one.
bool KeepsRigid(CRigid& rigid, CZelData const& model) {
  bool const primary = rigid.PrimaryNode() > 0;
  auto const& nodes = rigid.ConstrainedNodes();
  if (rigid.PrimaryNode() == 0 && Util::NumItem(nodes, model) < 2) return false;
  if (primary && nodes.IsEmpty()) return false;
  if (rigid.PrimaryNode() == 0) rigid.SetPrimaryNode(nodes.Item(0));
  return true;
}

}  // namespace

bool ReferenceRewriter::Restraints() {
  EachOrRemove(
      RewrittenList<CGenRest>{&CZelData::GenRest, &CZelData::SetGenRest, &CZelData::DeleteGenRest},
      [&](CGenRest& restraint) {
        MapStages(restraint);
        restraint.SetNodes(List(restraint.Nodes()));
        return !restraint.Nodes().IsEmpty();
      });
  return true;
}

bool ReferenceRewriter::Rigids() {
  EachOrRemove(RewrittenList<CRigid>{&CZelData::Rigid, &CZelData::SetRigid, &CZelData::DeleteRigid},
               [&](CRigid& rigid) {
                 rigid.SetParentMember(Map(CModule::Member, rigid.ParentMember()));
                 MapStages(rigid);
                 rigid.SetPrimaryNode(Map(CModule::Node, rigid.PrimaryNode()));
                 rigid.SetConstrainedNodes(List(rigid.ConstrainedNodes()));
                 return KeepsRigid(rigid, m_run.model);
               });
  return true;
}

bool ReferenceRewriter::Joints() {
  EachOrRemove(RewrittenList<CJoint>{&CZelData::Joint, &CZelData::SetJoint, &CZelData::DeleteJoint},
               [&](CJoint& joint) {
                 MapStages(joint);
                 joint.SetPrimaryNode(Map(CModule::Node, joint.PrimaryNode()));
                 joint.SetConstrainedNode(Map(CModule::Node, joint.ConstrainedNode()));
                 return joint.ConstrainedNode() != 0 && joint.PrimaryNode() != 0;
               });
  return true;
}

bool ReferenceRewriter::Equations() {
  EachOrRemove(RewrittenList<CConstraintEqn>{&CZelData::ConstraintEqn, &CZelData::SetConstraintEqn,
                                             &CZelData::DeleteConstraintEqn},
               [&](CConstraintEqn& equation) {
                 MapStages(equation);
                 equation.SetConstrainedNode(Map(CModule::Node, equation.ConstrainedNode()));
                 for (int i = 0; i < equation.NumTerm(); ++i)
                   equation.SetRhsTerm(i,
                                       Util::CDofValue(Map(CModule::Node, equation.PrimaryNode(i)),
                                                       equation.Dir(i), equation.Factor(i)));
                 return equation.ConstrainedNode() != 0;
               });
  return true;
}

bool ReferenceRewriter::TiedInterfaces() {
  EachOrRemove(RewrittenList<CTiedInterface>{&CZelData::TiedInterface, &CZelData::SetTiedInterface,
                                             &CZelData::DeleteTiedInterface},
               [&](CTiedInterface& tied) {
                 MapStages(tied);
                 tied.SetConstrainedEntities(List(tied.ConstrainedEntities()));
                 tied.SetPrimaryElements(List(tied.PrimaryElements()));
                 return !tied.ConstrainedEntities().IsEmpty() && !tied.PrimaryElements().IsEmpty();
               });
  return true;
}

bool ReferenceRewriter::Interactions() {
  auto const keeps = [&](auto& record) {
    record.SetNodes(List(record.Nodes()));
    return !record.Nodes().IsEmpty();
  };
  EachOrRemove(RewrittenList<Data::CRaftInteraction>{&CZelData::RaftInteraction,
                                                     &CZelData::SetRaftInteraction,
                                                     &CZelData::DeleteRaftInteraction},
               keeps);
  EachOrRemove(RewrittenList<Data::CPileInteraction>{&CZelData::PileInteraction,
                                                     &CZelData::SetPileInteraction,
                                                     &CZelData::DeletePileInteraction},
               keeps);
  return true;
}

bool ReferenceRewriter::InfluenceNodes() {
  EachOrRemove(
      RewrittenList<Data::CInfluenceNode>{&CZelData::InfluenceNode, &CZelData::SetInfluenceNode,
                                          &CZelData::DeleteInfluenceNode},
      [&](auto& influence) {
        influence.SetNode(Map(CModule::Node, influence.Node()));
        return influence.Node() != 0;
      });
  return true;
}

bool ReferenceRewriter::InfluenceBeams() {
  EachOrRemove(
      RewrittenList<Data::CInfluenceBeam>{&CZelData::InfluenceBeam, &CZelData::SetInfluenceBeam,
                                          &CZelData::DeleteInfluenceBeam},
      [&](auto& influence) {
        influence.SetElem(Map(CModule::Elem, influence.Elem()));
        return influence.Elem() != 0;
      });
  return true;
}

}  // namespace Tarvex
