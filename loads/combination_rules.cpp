// Basic combinations, the groups that stand for themselves, and the families.
#include "loads/formatted.h"
#include "loads/picks.h"
#include "loads/source_slots.h"
#include "store/model/zel_data.h"
#include "tarvex/combinations.h"

namespace Tarvex {
namespace {

constexpr int kUpperFactorOnly = 1;
constexpr int kLowerFactorOnly = 2;

constexpr int kPermanentTens = 1;
constexpr int kPrestressTens = 2;
constexpr int kAccidentalTens = 4;

/// Place of a permanent action among the groups that are combined with one another.
std::optional<std::size_t> PermanentGroupOf(CaseType type) {
  constexpr std::array kTypes{CaseType::SelfWeight, CaseType::Soil, CaseType::PermanentEquivalent};
  for (std::size_t group = 0; group < kTypes.size(); ++group)
    if (kTypes[group] == type) return group;
  return std::nullopt;
}

CString NameOfBasic(SourceSlot const& slot, CString const& typeText, int source) {
  if (slot.letter == 0) return Formatted(L"%s %i", typeText, source);
  return Formatted(L"%s %i%c", typeText, source, slot.letter);
}

}  // namespace

using EuroGenerator = CLoadCombinationGeneratorEuro;

/// Calls visit(slot, source, text) for each source that gets a basic combination.
template <class Visit>
void EuroGenerator::ForEachSource(Visit&& visit) const {
  for (std::size_t slot = 0; slot < kNumSourceMaps; ++slot)
    if (kSourceSlots[slot].hasBasic)
      for (auto const& [source, text] : m_sources[slot]) visit(kSourceSlots[slot], source, text);
}

void EuroGenerator::BasicComb() {
  ForEachSource([&](SourceSlot const& slot, int source, CString const& text) {
    AddComb(NameOfBasic(slot, CaseTypeDesc(slot.type), source), text, CaseType::Undefined, 1);
    m_titles[m_highest] = CaseDefn(text);
  });
}

void EuroGenerator::PlanActions() {
  ForEachSource(
      [&](SourceSlot const&, int, CString const& text) { m_titles[++m_highest] = CaseDefn(text); });
  NumSource(CaseType::SeismicStatic, true);  // gathers the sources
}

/// Writes each action of one tens of types with factorsOf(title). @return what was written
template <class FactorsOf>
std::vector<EuroGenerator::WrittenAction> EuroGenerator::WriteActions(int tens,
                                                                      FactorsOf&& factorsOf) {
  std::vector<WrittenAction> written;
  for (auto const& [number, title] : m_titles) {
    auto const type = title.TypeOf();
    if (static_cast<int>(type) / 10 != tens) continue;
    auto const [a, b] = factorsOf(title);
    AddComb(Formatted(L"%s %i", CaseTypeDesc(type), title.Source()), CombDesc(a, b, number), type,
            1);
    written.emplace_back(type, m_highest);
  }
  return written;
}

/// Writes the combination of which any one of those from a number on is taken.
void EuroGenerator::WriteEnvelope(wchar_t const* name, int first, CaseType type) {
  AddComb(name, Formatted(L"C%i to C%i", first, m_highest), type, 3);
}

EuroGenerator::Factors EuroGenerator::PermanentFactors(CombType type,
                                                       Data::CLoadCaseTitle const& title) const {
  Factors factors{GammaG(type, true), GammaG(type, false)};
  if (title.PermanentMode() == kUpperFactorOnly) factors.second = 0.0;
  if (title.PermanentMode() == kLowerFactorOnly) factors.first = 0.0;
  return factors;
}

void EuroGenerator::PersistentComb(CombType type) {
  int const start = m_highest;
  auto const written = WriteActions(kPermanentTens, [&](Data::CLoadCaseTitle const& title) {
    return PermanentFactors(type, title);
  });
  std::vector<std::vector<int>> groups(3);
  std::size_t total = 0;
  for (auto const& [actionType, number] : written)
    if (auto const group = PermanentGroupOf(actionType)) {
      groups[*group].push_back(number);
      ++total;
    }
  if (total == 0) return;
  if (total > 1) {
    int const first = m_highest + 1;
    int place = 0;
    std::erase_if(groups, [](auto const& group) { return group.empty(); });
    ForEachPick(groups, [&](std::vector<int const*> const& pick) {
      CString text;
      for (auto const* number : pick) text += Formatted(L"C%i + ", *number);
      AddComb(Formatted(L"Persistent %i", ++place), text, CaseType::SelfWeight, 2);
    });
    WriteEnvelope(L"Persistent", first, CaseType::SelfWeight);
  }
  SetRange(kPersistent, start);
}

/// Actions of which one at a time is taken.
template <class FactorsOf>
void EuroGenerator::WriteSingly(Group group, int tens, CaseType type, FactorsOf&& factorsOf) {
  int const start = m_highest;
  auto const written = WriteActions(tens, factorsOf);
  if (written.size() > 1) {
    auto const name = CaseTypeDesc(type);
    int const first = m_highest + 1;
    int place = 0;
    for (auto const& action : written)
      AddComb(Formatted(L"%s %i", name, ++place), Formatted(L"C%i + ", action.second), type, 2);
    WriteEnvelope(name.c_str(), first, type);
  }
  SetRange(group, start);
}

void EuroGenerator::PrestressComb(CombType type) {
  // With the factors of permanent actions, whatever GammaP says.
  WriteSingly(kPrestress, kPrestressTens, CaseType::Prestress,
              [&](Data::CLoadCaseTitle const& title) { return PermanentFactors(type, title); });
}

void EuroGenerator::AccidentalComb() {
  WriteSingly(kAccidental, kAccidentalTens, CaseType::Accidental, [&](Data::CLoadCaseTitle const&) {
    return Factors{GammaA(), GammaA()};
  });
}

bool EuroGenerator::CombineUlsPersistent() {
  ClearCombinations();
  PersistentComb(CombUlsPersistent);
  PrestressComb(CombUlsPersistent);
  VariableCombB(CombUlsPersistent);
  FinalCombination(CombUlsPersistent);
  return true;
}

bool EuroGenerator::CombineUlsAccidental() {
  ClearCombinations();
  if (NumSource(CaseType::Accidental, true) == 0) return false;
  PersistentComb(CombUlsAccidental);
  PrestressComb(CombUlsAccidental);
  VariableCombB(CombUlsAccidental);
  AccidentalComb();
  FinalCombination(CombUlsAccidental);
  return true;
}

bool EuroGenerator::CombineUlsSeismic() {
  ClearCombinations();
  if (NumSource(CaseType::SeismicStatic, true) == 0) {
    m_report += CombTypeDesc(CombUlsSeismic) + L": no seismic cases\n";
    return false;
  }
  PersistentComb(CombUlsSeismic);
  PrestressComb(CombUlsSeismic);
  VariableCombA(CombUlsSeismic);
  SeismicComb();
  FinalCombination(CombUlsSeismic);
  return true;
}

bool EuroGenerator::CombineSlsCharacter() {
  ClearCombinations();
  PersistentComb(CombSlsCharacteristic);
  PrestressComb(CombSlsCharacteristic);
  VariableCombB(CombSlsCharacteristic);
  FinalCombination(CombSlsCharacteristic);
  return true;
}

// The next two take the factors of the persistent family; only their last combination bears their
// own name.

bool EuroGenerator::CombineSlsFrequent() {
  ClearCombinations();
  PersistentComb(CombUlsPersistent);
  PrestressComb(CombUlsPersistent);
  VariableCombB(CombUlsPersistent);
  FinalCombination(CombSlsFrequent);
  return true;
}

bool EuroGenerator::CombineSlsQuasiPerm() {
  ClearCombinations();
  PersistentComb(CombUlsPersistent);
  PrestressComb(CombUlsPersistent);
  VariableCombA(CombUlsPersistent);
  FinalCombination(CombSlsQuasiPermanent);
  return true;
}

}  // namespace Tarvex
