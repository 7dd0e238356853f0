// Texts and colours of combinations.
#include <cmath>

#include "loads/formatted.h"
#include "tarvex/combinations.h"

namespace Tarvex {
namespace {

constexpr double kEqualFactors = 1e-6;

struct TypeText {
  CaseType type;
  wchar_t const* text;
};
constexpr std::array kTypeTexts{
    TypeText{CaseType::SelfWeight, L"Permanent : Self weight"},
    TypeText{CaseType::Soil, L"Permanent : Soil"},
    TypeText{CaseType::PermanentEquivalent, L"Permanent : Equivalent"},
    TypeText{CaseType::Prestress, L"Prestress"},
    TypeText{CaseType::Imposed, L"Variable : Imposed"},
    TypeText{CaseType::ImposedRoof, L"Variable : Imposed (roof)"},
    TypeText{CaseType::Wind, L"Variable : Wind"},
    TypeText{CaseType::Snow, L"Variable : Snow"},
    TypeText{CaseType::Rain, L"Variable : Rain"},
    TypeText{CaseType::Thermal, L"Variable : Thermal"},
    TypeText{CaseType::VariableEquivalent, L"Variable : Equivalent"},
    TypeText{CaseType::Accidental, L"Accidental"},
    TypeText{CaseType::SeismicStatic, L"Seismic : Equiv. static"},
    TypeText{CaseType::SeismicResponse, L"Seismic : RSA"},
    TypeText{CaseType::SeismicTorsion, L"Seismic : Acc. tors."},
};

// The misspelling of the last one is what recorded work has.
constexpr std::array<wchar_t const*, kNumCombTypes> kFamilyTexts{
    L"ULS Persistent",     L"ULS Accidental", L"ULS Seismic",
    L"SLS Characteristic", L"SLS Frequent",   L"SLS Quasi-Permament"};

constexpr unsigned long kNoShade = 0xffffff;
constexpr int kFinalType = -1;  // in the place of a type

using Shades = std::array<unsigned long, 3>;
struct TypeShades {
  int first;
  int last;
  Shades shades;
};
constexpr std::array kShades{
    TypeShades{11, 12, {0xffc0c0, 0xff9090, 0xff6060}},
    TypeShades{19, 19, {0xffc0c0, 0xff9090, 0xff6060}},
    TypeShades{21, 21, {0xffffc0, 0xffff70, 0xffff20}},
    TypeShades{31, 36, {0xc0ffff, 0x90ffff, 0x60ffff}},
    TypeShades{39, 39, {0xc0ffff, 0x90ffff, 0x60ffff}},
    TypeShades{41, 41, {0xc0e0ff, 0x90d0ff, 0x60b0ff}},
    TypeShades{52, 53, {0xb0b0ff, 0x9090ff, 0x6060ff}},
};
constexpr unsigned long kFinalShade = 0xa0ff60;

}  // namespace

CString CLoadCombinationGeneratorEuro::CombTypeDesc(CombType type) {
  auto const index = static_cast<std::size_t>(type);
  return index < kNumCombTypes ? CString(kFamilyTexts[index]) : CString();
}

CString CLoadCombinationGeneratorEuro::CaseTypeDesc(CaseType type) {
  for (auto const& row : kTypeTexts)
    if (row.type == type) return row.text;
  return L"undefined";
}

CString CLoadCombinationGeneratorEuro::CombDesc(double a, double b, int n) {
  if (std::abs(a - b) >= kEqualFactors) return Formatted(L"(%g or %g)C%i", a, b, n);
  if (std::abs(a - 1) < kEqualFactors) return Formatted(L"C%i", n);
  return Formatted(L"%gC%i", a, n);
}

unsigned long CLoadCombinationGeneratorEuro::Colour(CaseType type, int step) {
  int const number = static_cast<int>(type);
  if (number == kFinalType) return kFinalShade;
  if (step < 1 || step > 3) return kNoShade;
  for (auto const& row : kShades)
    if (number >= row.first && number <= row.last)
      return row.shades[static_cast<std::size_t>(step - 1)];
  return kNoShade;
}

}  // namespace Tarvex
