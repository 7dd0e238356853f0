// One run of the renumbering.
#include <stdexcept>

#include "frame/rebuild_hold.h"
#include "renumber/move_records.h"
#include "renumber/reference_rows.h"
#include "renumber/renumber_parts.h"
#include "store/record/case_refs.h"
#include "store/select/numbers.h"

namespace Tarvex {
namespace {

/// Refuses schemes that no table can take, before anything is changed.
void RequireNumbers(Schemes const& schemes) {
  schemes.ForEach([](CModule::ModuleId, NumberScheme const& scheme) {
    scheme.ForEach([](int old, int number) {
      if (number < 0 || number > kHighestNumber)
        throw std::out_of_range("record " + std::to_string(old) + " can't have the number " +
                                std::to_string(number));
    });
  });
}

std::map<SCaseRef, int> NewCases(Schemes const& schemes) {
  std::map<SCaseRef, int> cases;
  for (auto const op : {CaseOp::Load, CaseOp::Task, CaseOp::Analysis, CaseOp::Combination})
    if (auto const* const scheme = schemes.Find(CaseModule(op)))
      scheme->ForEach([&](int old, int number) {
        if (number != 0) cases[SCaseRef(op, old, 0)] = number;
      });
  return cases;
}

}  // namespace

bool CRenumber::Go(bool keepDescriptions) const {
  auto& model = Model();
  auto const schemes = m_parts->schemes.Settled();
  RequireNumbers(schemes);
  m_parts->before = model.Snapshot();
  RenumberRun const run{model, *m_parts->before, schemes, m_parts->refOnly,
                        schemes.HasProperties()};
  auto const cases = NewCases(schemes);
  RebuildHold const hold(model);
  if (!m_parts->refOnly) MoveRecords(run);
  MoveChildren(run);
  MoveMeshes(run);
  return RewriteReferences(run, [&] { AdjustCaseRefs(&model, cases, keepDescriptions); });
}

bool CRenumber::GoCases() const {
  auto& model = Model();
  auto const before = m_parts->before != nullptr ? m_parts->before : model.Snapshot();
  RenumberRun const run{model, *before, m_parts->schemes, m_parts->refOnly,
                        m_parts->schemes.HasProperties()};
  return MoveLoads(run);
}

}  // namespace Tarvex
