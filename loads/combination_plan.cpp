// What a run would write, without writing it.
#include "loads/case_titles.h"
#include "loads/saturating.h"
#include "loads/seismic_sources.h"
#include "loads/source_slots.h"
#include "loads/variable_groups.h"
#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "tarvex/combinations.h"

namespace Tarvex {
namespace {

using ActionTitles = std::map<int, Data::CLoadCaseTitle>;

constexpr int kEnvelopes = 1;
constexpr int kFinals = 1;

/// The titles of one tens of types by type.
std::map<CaseType, long long> CountTypes(ActionTitles const& titles, int tens) {
  std::map<CaseType, long long> counts;
  for (auto const& entry : titles)
    if (static_cast<int>(entry.second.TypeOf()) / 10 == tens) ++counts[entry.second.TypeOf()];
  return counts;
}

long long CountPermanent(ActionTitles const& titles) {
  long long actions = 0;
  long long ways = 1;
  for (auto const& entry : CountTypes(titles, 1)) {
    actions += entry.second;
    ways = CappedCountProduct(ways, entry.second);
  }
  return actions < 2 ? actions : CappedCountSum(actions + kEnvelopes, ways);
}

/// Prestress and accidental actions, one of which is taken at a time.
long long CountSingly(ActionTitles const& titles, int tens) {
  long long actions = 0;
  for (auto const& entry : CountTypes(titles, tens)) actions += entry.second;
  return actions < 2 ? actions : 2 * actions + kEnvelopes;
}

std::vector<VariableEntries> GroupsOf(ActionTitles const& titles, bool roofApart) {
  std::vector<VariableEntries> groups(kNumVariableGroups + (roofApart ? 1 : 0));
  for (auto const& [number, title] : titles)
    if (auto const group = VariableGroupOf(title.TypeOf(), roofApart))
      groups[*group][number] = {title.Source(), 0};
  return groups;
}

long long CountOneFactor(ActionTitles const& titles) {
  auto const groups = GroupsOf(titles, false);
  auto const actions = static_cast<long long>(CountEntries(groups));
  return actions < 2 ? actions : CappedCountSum(actions + kEnvelopes, CountVariableWays(groups));
}

long long CountOneLeads(ActionTitles const& titles) {
  auto groups = GroupsOf(titles, true);
  for (auto& group : groups) PairSources(group);
  auto const total = CountEntries(groups);
  auto const written = 2 * static_cast<long long>(total + groups[kRoofGroup].size());
  return total < 2 ? written : CappedCountSum(written + kEnvelopes, CountLeadingWays(groups));
}

long long CountSeismic(ActionTitles const& titles, std::set<int> const& sources, bool bySquares) {
  SeismicActions const actions(titles);
  long long count = 0;
  for (int const source : sources) {
    long long directions = 0;
    for (int direction = 1; direction <= 3; ++direction) {
      bool const twists = actions.Find(CaseType::SeismicTorsion, direction, source) != 0;
      bool const responds = actions.Find(CaseType::SeismicResponse, direction, source) != 0;
      if (twists) ++count;
      if (twists && responds) ++count;
      if (twists || responds) ++directions;
    }
    count += bySquares ? 2 : directions + kEnvelopes;
  }
  return count;
}

}  // namespace

long long CombinationPlan::Total() const {
  auto total = static_cast<long long>(actions.size());
  for (long long const family : families) total = CappedCountSum(total, family);
  return total;
}

CombinationPlan CLoadCombinationGeneratorEuro::Plan() const {
  CombinationPlan plan;
  if (m_model == nullptr) return plan;
  auto run(*this);
  run.MapTasks();
  run.PlanActions();
  for (int const n : CasesOfTasks(*m_model, m_tasks)) {
    auto const found = TitleOfAnalysisCase(*m_model, n);
    if (auto const reason = WhyLeftOut(found)) plan.leftOut.push_back({n, *reason, found.title});
  }
  if (!run.m_titles.empty())
    for (std::size_t type = 0; type < kNumCombTypes; ++type)
      if (m_families[type]) plan.families[type] = run.PlannedFamily(static_cast<CombType>(type));
  plan.actions = std::move(run.m_titles);
  return plan;
}

long long CLoadCombinationGeneratorEuro::PlannedFamily(CombType type) const {
  auto count = CappedCountSum(CountPermanent(m_titles), CountSingly(m_titles, 2));
  bool const oneLeads = type != CombUlsSeismic && type != CombSlsQuasiPermanent;
  count = CappedCountSum(count, oneLeads ? CountOneLeads(m_titles) : CountOneFactor(m_titles));
  if (type == CombUlsAccidental) {
    auto const accidental = CountSingly(m_titles, 4);
    if (accidental == 0) return 0;
    count = CappedCountSum(count, accidental);
  }
  if (type == CombUlsSeismic) {
    bool const bySquares = m_seismicRule == Data::RespComb::SquareRoot;
    auto const seismic = CountSeismic(m_titles, m_seismicSources, bySquares);
    if (seismic == 0) return 0;
    count = CappedCountSum(count, seismic);
  }
  return CappedCountSum(count, kFinals);
}

}  // namespace Tarvex
