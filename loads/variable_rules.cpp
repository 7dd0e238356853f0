// Combinations of variable actions.
#include "loads/formatted.h"
#include "loads/picks.h"
#include "loads/variable_groups.h"
#include "tarvex/combinations.h"

namespace Tarvex {
namespace {

constexpr int kVariableTens = 3;

bool IsVariable(Data::CLoadCaseTitle const& title) {
  return static_cast<int>(title.TypeOf()) / 10 == kVariableTens;
}

void AddToGroup(std::vector<VariableEntries>& groups, Data::CLoadCaseTitle const& title, int n) {
  bool const roofApart = groups.size() > kRoofGroup;
  auto const group = VariableGroupOf(title.TypeOf(), roofApart);
  if (!group) return;
  bool const hasCategory = *group == 0 || *group == kRoofGroup;
  groups[*group][n] = {title.Source(), hasCategory ? title.Category() : 0};
}

/// Name of an action where its category is told too.
CString NameWithCategory(CString const& typeText, Data::CLoadCaseTitle const& title) {
  if (title.TypeOf() != CaseType::Imposed) return Formatted(L"%s %i", typeText, title.Source());
  int const category = title.Category();
  bool const isKnown = category >= 1 && category <= 8;
  wchar_t const letter = isKnown ? static_cast<wchar_t>(L'A' + category - 1) : L'~';
  return Formatted(L"%s %i%c", typeText, title.Source(), letter);
}

/// The two texts of an entry, and the group that it is in.
struct VariableEntry {
  std::size_t group;
  CString leading;
  CString accompanying;
};

std::vector<VariableEntry> EntriesOf(VariableEntries const& entries, std::size_t group) {
  VariableTexts const texts(entries);
  std::vector<VariableEntry> all;
  for (auto const& entry : entries)
    all.push_back({group, texts.Text(entry.first, true), texts.Text(entry.first, false)});
  return all;
}

/// All entries of the groups without that of roofs, empty groups left out.
std::vector<std::vector<VariableEntry>> EntriesOfGroups(
    std::vector<VariableEntries> const& groups) {
  std::vector<std::vector<VariableEntry>> entries;
  for (std::size_t group = 0; group < kNumVariableGroups; ++group)
    if (!groups[group].empty()) entries.push_back(EntriesOf(groups[group], group));
  return entries;
}

/// The text of a pick with one group leading; nothing unless that group and another one take part.
CString TextOfPick(std::vector<VariableEntry const*> const& pick, std::size_t leading) {
  CString text;
  bool leads = false;
  bool accompanies = false;
  for (auto const* entry : pick) {
    auto const& part = entry->group == leading ? entry->leading : entry->accompanying;
    if (!part.IsEmpty()) (entry->group == leading ? leads : accompanies) = true;
    text += part;
  }
  return leads && accompanies ? text : CString();
}

/// Each imposed action with each on a roof that has its source, both leading.
std::vector<CString> RoofPairs(VariableEntries const& imposed, VariableEntries const& roofs) {
  VariableTexts const imposedTexts(imposed);
  VariableTexts const roofTexts(roofs);
  std::map<int, std::vector<CString>> roofsOfSource;
  for (auto const& [n, roof] : roofs) roofsOfSource[roof.first].push_back(roofTexts.Text(n, true));
  std::vector<CString> pairs;
  for (auto const& [n, entry] : imposed)
    if (auto const found = roofsOfSource.find(entry.first); found != roofsOfSource.end())
      for (auto const& roof : found->second) pairs.push_back(imposedTexts.Text(n, true) + roof);
  return pairs;
}

}  // namespace

using EuroGenerator = CLoadCombinationGeneratorEuro;

void EuroGenerator::SortVariable(std::vector<VariableGroup>& groups) {
  for (auto& group : groups) PairSources(group);
}

CString EuroGenerator::AllVariable(VariableGroup const& group, int n, bool leading) {
  return VariableTexts(group).Text(n, leading);
}

void EuroGenerator::VariableCombA(CombType type) {
  int const start = m_highest;
  int psi[2];
  SetPsiType(type, psi);
  std::vector<VariableGroup> groups(kNumVariableGroups);
  for (auto const& [number, title] : m_titles) {
    if (!IsVariable(title)) continue;
    double const f = Psi(psi[0], title);
    AddComb(Formatted(L"%s %i", CaseTypeDesc(title.TypeOf()), title.Source()),
            CombDesc(f * GammaQ(type, true), f * GammaQ(type, false), number), title.TypeOf(), 1);
    AddToGroup(groups, title, m_highest);
  }
  SortVariable(groups);
  auto const total = CountEntries(groups);
  if (total == 0) return;
  if (total > 1) {
    int const first = m_highest + 1;
    int place = 0;
    auto entries = EntriesOfGroups(groups);
    // Companions go with their entry among imposed actions only; the others stand for themselves.
    for (auto& ofGroup : entries)
      if (auto const group = ofGroup.front().group; group != 0) {
        auto number = groups[group].begin();
        for (auto& entry : ofGroup) entry.leading = Formatted(L"C%i + ", (number++)->first);
      }
    ForEachPick(entries, [&](std::vector<VariableEntry const*> const& pick) {
      CString text;
      for (auto const* entry : pick) text += entry->leading;
      AddComb(Formatted(L"Variable %i", ++place), text, CaseType::Imposed, 2);
    });
    WriteEnvelope(L"Variable", first, CaseType::Imposed);
  }
  SetRange(kVariable, start);
}

void EuroGenerator::VariableCombB(CombType type) {
  int const start = m_highest;
  int psi[2];
  SetPsiType(type, psi);
  std::vector<VariableGroup> groups(kNumVariableGroups + 1);
  for (auto const& [number, title] : m_titles) {
    if (!IsVariable(title)) continue;
    auto const stem = NameWithCategory(CaseTypeDesc(title.TypeOf()), title);
    auto const add = [&, n = number, &t = title](int index, wchar_t const* role) {
      double const f = Psi(index, t);
      AddComb(stem + role, CombDesc(f * GammaQ(type, true), f * GammaQ(type, false), n), t.TypeOf(),
              1);
    };
    add(psi[0], L" (Leading)");
    AddToGroup(groups, title, m_highest);
    add(psi[1], L" (Accompanying)");
  }
  SortVariable(groups);
  auto const total = CountEntries(groups);
  if (total == 0) return;
  if (total > 1) WriteLeadingWays(groups);
  SetRange(kVariable, start);
}

/// Writes the ways in which one group leads and others accompany, and their envelope.
void EuroGenerator::WriteLeadingWays(std::vector<VariableGroup> const& groups) {
  int const first = m_highest + 1;
  int place = 0;
  auto const write = [&](CString const& text) {
    AddComb(Formatted(L"Variable %i", place), text, CaseType::Imposed, 2);
  };
  // An empty text of a pair has its place in the numbering; other empty ones have none.
  for (auto const& text : RoofPairs(groups[0], groups[kRoofGroup])) {
    ++place;
    if (!text.IsEmpty()) write(text);
  }
  auto const entries = EntriesOfGroups(groups);
  for (std::size_t leading = 0; leading < kNumVariableGroups; ++leading) {
    if (groups[leading].empty()) continue;
    ForEachPick(entries, [&](std::vector<VariableEntry const*> const& pick) {
      auto const text = TextOfPick(pick, leading);
      if (text.IsEmpty()) return;
      ++place;
      write(text);
    });
  }
  WriteEnvelope(L"Variable", first, CaseType::Imposed);
}

}  // namespace Tarvex
