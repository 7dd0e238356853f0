// The generator as an object, what it reads, and how it writes one combination.
#include "loads/case_titles.h"
#include "loads/formatted.h"
#include "loads/source_slots.h"
#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "store/select/numbers.h"
#include "tarvex/combinations.h"

namespace Tarvex {
namespace {

constexpr auto kFinalCaseType = static_cast<CaseType>(-1);

/// The number of distinct keys of some maps.
template <class Maps>
int CountSources(Maps const& maps, std::size_t first, std::size_t end) {
  std::set<int> sources;
  for (auto slot = first; slot < end; ++slot)
    for (auto const& entry : maps[slot]) sources.insert(entry.first);
  return static_cast<int>(sources.size());
}

}  // namespace

using EuroGenerator = CLoadCombinationGeneratorEuro;

EuroGenerator::CLoadCombinationGeneratorEuro() { static_assert(kNumSourceMaps == kNumSourceSlots); }
EuroGenerator::CLoadCombinationGeneratorEuro(EuroGenerator const&) = default;
EuroGenerator::CLoadCombinationGeneratorEuro(EuroGenerator&&) noexcept = default;
EuroGenerator& EuroGenerator::operator=(EuroGenerator const&) = default;
EuroGenerator& EuroGenerator::operator=(EuroGenerator&&) noexcept = default;
EuroGenerator::~CLoadCombinationGeneratorEuro() = default;

using EuroUkGenerator = CLoadCombinationGeneratorEuroUK;

EuroUkGenerator::CLoadCombinationGeneratorEuroUK() = default;
EuroUkGenerator::CLoadCombinationGeneratorEuroUK(EuroUkGenerator const&) = default;
EuroUkGenerator::CLoadCombinationGeneratorEuroUK(EuroUkGenerator&&) noexcept = default;
EuroUkGenerator& EuroUkGenerator::operator=(EuroUkGenerator const&) = default;
EuroUkGenerator& EuroUkGenerator::operator=(EuroUkGenerator&&) noexcept = default;
EuroUkGenerator::~CLoadCombinationGeneratorEuroUK() = default;

bool EuroGenerator::Combine() {
  m_report = CString();
  if (m_model == nullptr) return false;
  MapTasks();
  BasicComb();
  if (m_titles.empty()) return false;
  bool done = true;
  if (m_families[CombUlsPersistent]) CombineUlsPersistent();
  if (m_families[CombUlsAccidental]) done = CombineUlsAccidental();
  if (m_families[CombUlsSeismic]) done = CombineUlsSeismic() && done;
  if (m_families[CombSlsCharacteristic]) done = CombineSlsCharacter() && done;
  if (m_families[CombSlsFrequent]) done = CombineSlsFrequent() && done;
  if (m_families[CombSlsQuasiPermanent]) done = CombineSlsQuasiPerm() && done;
  return done;
}

void EuroGenerator::MapTasks() {
  ClearCombinations();
  for (int const n : CasesOfTasks(*m_model, m_tasks)) MapCase(n);
  for (std::size_t slot = 0; slot < kNumSourceMaps; ++slot)
    if (kSourceSlots[slot].isTrimmed) TrimMap(m_sources[slot]);
  m_highest = m_model->HighestCombinationCase();
}

void EuroGenerator::MapCases(int task) {
  for (int const n : CasesOfTasks(*m_model, {task})) MapCase(n);
}

void EuroGenerator::MapCase(int n) {
  auto const title = AnalysisCase(n);
  if (auto const slot = SlotOf(title)) m_sources[*slot][title.Source()] += Formatted(L"A%i + ", n);
}

Data::CLoadCaseTitle EuroGenerator::AnalysisCase(int n) const {
  return TitleOfAnalysisCase(*m_model, n).title;
}

Data::CLoadCaseTitle EuroGenerator::CaseDefn(CString const& text) const {
  long long number = 0;
  for (int i = 1; i < text.GetLength(); ++i) {
    wchar_t const digit = text.c_str()[i];
    if (digit < L'0' || digit > L'9' || number > kHighestNumber) break;
    number = number * 10 + (digit - L'0');
  }
  return AnalysisCase(number > kHighestNumber ? 0 : static_cast<int>(number));
}

int EuroGenerator::NumSource(CaseType type, bool withRoof) {
  if (IsImposed(type))
    return CountSources(m_sources, kImposedASlot, kImposedHSlot + (withRoof ? 1 : 0));
  if (type == CaseType::SeismicStatic) {
    m_seismicSources.clear();
    for (auto slot = kResponseXSlot; slot <= kTorsionYSlot; ++slot)
      for (auto const& entry : m_sources[slot]) m_seismicSources.insert(entry.first);
    return static_cast<int>(m_seismicSources.size());
  }
  std::size_t count = 0;
  for (std::size_t slot = 0; slot < kNumSourceMaps; ++slot)
    if (kSourceSlots[slot].type == type) count += m_sources[slot].size();
  return static_cast<int>(count);
}

void EuroGenerator::TrimMap(std::map<int, CString>& texts) {
  for (auto& entry : texts) TrimSum(entry.second);
}

void EuroGenerator::ClearCombinations() { m_ranges = {}; }

void EuroGenerator::AddComb(CString const& name, CString description, CaseType type, int step) {
  TrimSum(description);
  Data::CCombinationCase record(true);
  record.SetName(name);
  record.SetColour(Colour(type, step));
  // A text that can't be read, which a second run makes, stays as it is.
  record.SetDescription(Data::CCombCaseDesc(description));
  m_model->SetCombinationCase(++m_highest, record);
}

void EuroGenerator::FinalCombination(CombType type) {
  CString description;
  for (auto const& [first, last] : m_ranges)
    if (last > 0) description += Formatted(L"C%i + ", last);
  AddComb(CombTypeDesc(type), description, kFinalCaseType, 1);
}

void EuroGenerator::SetRange(Group group, int start) {
  if (m_highest > start) m_ranges[group] = {start + 1, m_highest};
}

}  // namespace Tarvex
