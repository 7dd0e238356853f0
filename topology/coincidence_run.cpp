#include "topology/coincidence_run.h"

#include "store/record/joint.h"
#include "store/record/node.h"

namespace Tarvex {

CReduceCoinc::Run::Run(CZelData& model, COrderSet const& order, double tolerance, int stage)
    : m_model(model), m_order(order), m_tolerance(tolerance), m_stage(stage) {}

JointTies& CReduceCoinc::Run::Ties() {
  if (!m_ties) m_ties.emplace(m_model, m_stage);
  return *m_ties;
}

NodeSweep const& CReduceCoinc::Run::Sweep() {
  if (!m_sweep) m_sweep.emplace(m_order, m_model, m_tolerance);
  return *m_sweep;
}

void CReduceCoinc::Run::FindAll(NodeSweep::Among among) {
  m_nearest = Sweep().NearestOfEach(among, Ties());
}

int CReduceCoinc::Run::Nearest(int node, int place) {
  bool const known = !m_nearest.empty() && m_order.IsItemIncluded(node);
  return known ? m_nearest[static_cast<std::size_t>(place)]
               : Sweep().Nearest(place, NodeSweep::Among::All, Ties());
}

bool CReduceCoinc::Run::AreBare(int a, int b) {
  if (!m_bare) {
    m_bare.emplace(SelNode);
    for (auto const& [number, node] : m_model.StoredNodes())
      if (node.Restraint().IsNone() && node.SpringProperty() == 0 && node.MassProperty() == 0 &&
          node.DamperProperty() == 0 && node.MeshSize() == 0)
        m_bare->AddTo(static_cast<int>(number));
  }
  return m_bare->IsItemIncluded(a) && m_bare->IsItemIncluded(b);
}

void CReduceCoinc::Run::TookOver(int node) {
  if (m_bare) m_bare->RemoveFrom(node);
}

bool CReduceCoinc::Run::IsConstrained(int node) {
  if (!m_before) m_before.emplace(m_model);
  return m_joined.contains(node) || m_before->NodeIsInConstraint(node, m_stage);
}

void CReduceCoinc::Run::AddJoint(int primary, int constrained) {
  Vbool6 all;
  all.SetAll(true);
  Data::CEntList stages(SelNone, CString());
  stages.AddTo(m_stage);
  m_model.SetJoint(m_model.HighestJoint() + 1,
                   Data::CJoint(CString(), all, primary, constrained, stages));
  Ties().Add(primary, constrained);
  m_joined.insert({primary, constrained});
}

}  // namespace Tarvex
