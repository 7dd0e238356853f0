#include "store/model/result_tables.h"

#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {
namespace {

constexpr auto kAllKinds = static_cast<CaseOp>(127);

bool IsOneOf(CaseOp kind, CaseOp kinds) {
  return (static_cast<int>(kind) & static_cast<int>(kinds)) != 0;
}

Data::EndResult const* FindEnd(ModelState const& state, int element, SCaseRef const& ref, int end) {
  auto const* record = state.elemResult.Find(element);
  return record == nullptr ? nullptr : record->Find(ref, end);
}

/// Changes the result of an end, which is made where there is none.
template <class Change>
void ChangeEnd(ResultTables& tables, int element, SCaseRef const& ref, int end, Change&& change) {
  auto record = tables.ElemResultExist(element) ? tables.ElemResult(element) : Data::CElemResult();
  change(record.At(ref, end));
  tables.SetElemResult(element, record);
}

/// The number of a case's results, 0 where there are none. There are few cases with results.
int FindCase(ModelState const& state, SCaseRef const& ref) {
  for (auto const& [n, record] : state.caseResult)
    if (record.Of() == ref) return static_cast<int>(n);
  return 0;
}

template <class Read>
double ReadCase(ModelState const& state, SCaseRef const& ref, Read&& read) {
  auto const* record = state.caseResult.Find(FindCase(state, ref));
  return record == nullptr ? 0 : read(*record);
}

template <class Change>
void ChangeCase(ResultTables& tables, ModelState const& state, SCaseRef const& ref,
                Change&& change) {
  int const found = FindCase(state, ref);
  auto record = found == 0 ? Data::CCaseResult(ref) : tables.CaseResult(found);
  change(record);
  tables.SetCaseResult(found == 0 ? tables.HighestCaseResult() + 1 : found, record);
}

}  // namespace

// The operations of a table: its stem, its record and its place in the state.
#define TARVEX_DEFINE_TABLE(Stem, Record, table)                                      \
  bool ResultTables::Stem##Exist(int n) const { return m_core.state.table.Exist(n); } \
  Record const& ResultTables::Stem(int n) const {                                     \
    return TableOps::Get(m_core.state.table, #Stem, n);                               \
  }                                                                                   \
  tarvex_unordered_map<unsigned int, Record> const& ResultTables::Stem() const {      \
    return m_core.state.table;                                                        \
  }                                                                                   \
  int ResultTables::Highest##Stem() const { return m_core.state.table.Highest(); }    \
  void ResultTables::Set##Stem(int n, Record const& record, SidMode sid) {            \
    TableOps::Store(m_core.state.table, n, record, sid);                              \
  }                                                                                   \
  void ResultTables::Blank##Stem(int first, int count) { m_core.state.table.Remove(first, count); }

TARVEX_DEFINE_TABLE(ElemResult, Data::CElemResult, elemResult)
TARVEX_DEFINE_TABLE(CaseResult, Data::CCaseResult, caseResult)

#undef TARVEX_DEFINE_TABLE

bool ResultTables::AnyResults() const {
  return !m_core.state.elemResult.empty() || !m_core.state.caseResult.empty();
}

bool ResultTables::AnalysisTaskHasResults(int, CaseOp kinds) const {
  if (kinds == kAllKinds) return AnyResults();
  for (auto const& [n, record] : CaseResult())
    if (IsOneOf(record.Of().CaseType(), kinds)) return true;
  for (auto const& [n, record] : ElemResult())
    for (auto const& end : record.Ends())
      if (IsOneOf(end.of.CaseType(), kinds)) return true;
  return false;
}

void ResultTables::RemoveResults() {
  m_core.state.elemResult.Remove(1, kHighestNumber);
  m_core.state.caseResult.Remove(1, kHighestNumber);
}

Vec3<double> ResultTables::Force(int element, SCaseRef const& ref, int end) const {
  auto const* result = FindEnd(m_core.state, element, ref, end);
  return result == nullptr ? Vec3<double>{} : result->force;
}

Vec3<double> ResultTables::Moment(int element, SCaseRef const& ref, int end) const {
  auto const* result = FindEnd(m_core.state, element, ref, end);
  return result == nullptr ? Vec3<double>{} : result->moment;
}

void ResultTables::SetForce(int element, SCaseRef const& ref, int end, Vec3<double> const& force) {
  ChangeEnd(*this, element, ref, end, [&](Data::EndResult& result) { result.force = force; });
}

void ResultTables::SetMoment(int element, SCaseRef const& ref, int end,
                             Vec3<double> const& moment) {
  ChangeEnd(*this, element, ref, end, [&](Data::EndResult& result) { result.moment = moment; });
}

double ResultTables::Mass(SCaseRef const& ref, int mode) const {
  return ReadCase(m_core.state, ref, [&](auto const& record) { return record.Mass(mode); });
}

double ResultTables::Period(SCaseRef const& ref, ResponseType mode) const {
  return ReadCase(m_core.state, ref,
                  [&](auto const& record) { return record.Period(static_cast<int>(mode)); });
}

double ResultTables::TotalBaseShear(SCaseRef const& ref, ResponseType mode) const {
  return ReadCase(m_core.state, ref,
                  [&](auto const& record) { return record.BaseShear(static_cast<int>(mode)); });
}

void ResultTables::SetMass(SCaseRef const& ref, int mode, double mass) {
  ChangeCase(*this, m_core.state, ref, [&](auto& record) { record.SetMass(mode, mass); });
}

void ResultTables::SetPeriod(SCaseRef const& ref, ResponseType mode, double period) {
  ChangeCase(*this, m_core.state, ref,
             [&](auto& record) { record.SetPeriod(static_cast<int>(mode), period); });
}

void ResultTables::SetTotalBaseShear(SCaseRef const& ref, ResponseType mode, double shear) {
  ChangeCase(*this, m_core.state, ref,
             [&](auto& record) { record.SetBaseShear(static_cast<int>(mode), shear); });
}

}  // namespace Tarvex
