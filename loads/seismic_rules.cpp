// Combinations of seismic actions.
#include "loads/formatted.h"
#include "loads/seismic_sources.h"
#include "loads/source_slots.h"
#include "tarvex/combinations.h"

namespace Tarvex {
namespace {

constexpr std::array<wchar_t, 3> kDirectionLetters{L'x', L'y', L'z'};
constexpr int kOrLength = 3;  // " or"

}  // namespace

SeismicActions::SeismicActions(std::map<int, Data::CLoadCaseTitle> const& titles) {
  for (auto const& [number, title] : titles) {
    auto const type = title.TypeOf();
    if (type == CaseType::SeismicResponse || type == CaseType::SeismicTorsion)
      m_numbers.try_emplace({type, title.GetDirection(), title.Source()}, number);
  }
}

int SeismicActions::Find(CaseType type, int direction, int source) const {
  auto const found = m_numbers.find({type, direction, source});
  return found == m_numbers.end() ? 0 : found->second;
}

using EuroGenerator = CLoadCombinationGeneratorEuro;

void EuroGenerator::SeismicComb() {
  int const start = m_highest;
  SeismicActions const actions(m_titles);
  auto const torsionText = CaseTypeDesc(CaseType::SeismicTorsion);
  for (int const source : m_seismicSources) {
    std::array<int, 3> directions{};
    for (std::size_t i = 0; i < 2; ++i) {
      int const torsion = actions.Find(CaseType::SeismicTorsion, static_cast<int>(i) + 1, source);
      if (torsion == 0 || !m_sources[kTorsionXSlot + i].contains(source)) continue;
      AddComb(Formatted(L"| %s %i%c |", torsionText, source, kDirectionLetters[i]),
              Formatted(L"C%iabs", torsion), CaseType::SeismicTorsion, 1);
      directions[i] = m_highest;
    }
    for (std::size_t i = 0; i < 3; ++i) {
      int const response = actions.Find(CaseType::SeismicResponse, static_cast<int>(i) + 1, source);
      if (response == 0) continue;
      if (directions[i] != 0) {
        AddComb(Formatted(L"Seismic %i%c", source, kDirectionLetters[i]),
                Formatted(L"C%i + C%i", response, directions[i]), CaseType::SeismicTorsion, 2);
        directions[i] = m_highest;
      } else {
        directions[i] = response;
      }
    }
    if (directions == std::array<int, 3>{}) return;  // nothing of what was written counts
    if (m_seismicRule == Data::RespComb::SquareRoot)
      WriteBySquares(directions);
    else
      WriteByThirtyPercent(directions);
  }
  SetRange(kSeismic, start);
}

void EuroGenerator::WriteBySquares(std::array<int, 3> const& directions) {
  CString squares = L"SRSS(";
  for (int const number : directions)
    if (number > 0) squares += Formatted(L"C%i,", number);
  AddComb(L"Seismic SRSS", squares.TrimRight(L",") + L")", CaseType::SeismicStatic, 2);
  AddComb(L"Seismic SRSS +/-", Formatted(L"(1 or -1)C%i", m_highest), CaseType::SeismicStatic, 3);
}

void EuroGenerator::WriteByThirtyPercent(std::array<int, 3> const& directions) {
  CString signs;
  for (std::size_t leading = 0; leading < 3; ++leading) {
    if (directions[leading] <= 0) continue;
    auto text = Formatted(L"C%i", directions[leading]);
    for (std::size_t other = 0; other < 3; ++other)
      if (other != leading && directions[other] > 0)
        text += Formatted(L"+ 0.3C%i", directions[other]);
    AddComb(Formatted(L"Seismic %c 30%%", kDirectionLetters[leading]), text,
            CaseType::SeismicStatic, 2);
    signs += Formatted(L"(1 or -1)C%i or", m_highest);
  }
  AddComb(L"Seismic 30%", signs.Left(signs.GetLength() - kOrLength), CaseType::SeismicStatic, 3);
}

}  // namespace Tarvex
