// Partial factors and the factors psi.
#include "loads/source_slots.h"
#include "store/model/zel_data.h"
#include "store/record/spec.h"
#include "tarvex/combinations.h"

namespace Tarvex {
namespace {

using PsiFactors = std::array<double, 3>;

constexpr std::size_t kNumCategories = 8;
// EN 1990, Table A1.1, categories A to H.
constexpr std::array<PsiFactors, kNumCategories> kImposedPsi{{{0.7, 0.5, 0.3},
                                                              {0.7, 0.5, 0.3},
                                                              {0.7, 0.7, 0.6},
                                                              {0.7, 0.7, 0.6},
                                                              {1.0, 0.9, 0.8},
                                                              {0.7, 0.7, 0.6},
                                                              {0.7, 0.5, 0.3},
                                                              {0.0, 0.0, 0.0}}};
constexpr PsiFactors kWindPsi{0.6, 0.2, 0.0};
constexpr PsiFactors kSevereSnowPsi{0.7, 0.5, 0.2};
constexpr PsiFactors kSnowPsi{0.5, 0.2, 0.0};
constexpr PsiFactors kThermalPsi{0.6, 0.5, 0.0};
constexpr PsiFactors kNoPsi{0.0, 0.0, 0.0};

constexpr int kRoofCategory = 8;
constexpr double kRoofPsi0InUk = 0.7;
constexpr double kWindPsi0InUk = 0.5;

constexpr std::array kSevereSnowCountries{80, 106, 169, 214};
constexpr double kSevereSnowElevation = 1000.0;  // model length units, which are metres

PsiFactors PsiOf(Data::CLoadCaseTitle const& title, bool isSnowSevere) {
  auto const type = title.TypeOf();
  if (IsImposed(type)) {
    auto const row = static_cast<std::size_t>(title.Category()) - 1;
    return row < kNumCategories ? kImposedPsi[row] : kNoPsi;
  }
  if (type == CaseType::Wind) return kWindPsi;
  if (type == CaseType::Snow) return isSnowSevere ? kSevereSnowPsi : kSnowPsi;
  return type == CaseType::Thermal ? kThermalPsi : kNoPsi;
}

/// A factor of the persistent family, by side; 1 in the other families.
double Partial(CombType type, bool isUnfavourable, double unfavourable, double favourable) {
  if (type != CombUlsPersistent) return 1.0;
  return isUnfavourable ? unfavourable : favourable;
}

}  // namespace

double CLoadCombinationGeneratorEuro::GammaG(CombType type, bool isUnfavourable) const {
  return Partial(type, isUnfavourable, 1.35, 1.0);
}

double CLoadCombinationGeneratorEuro::GammaP(CombType type, bool isUnfavourable) const {
  return Partial(type, isUnfavourable, 1.3, 1.0);
}

double CLoadCombinationGeneratorEuro::GammaQ(CombType type, bool isUnfavourable) const {
  return Partial(type, isUnfavourable, 1.5, 0.0);
}

double CLoadCombinationGeneratorEuro::GammaA() const { return 1.0; }
double CLoadCombinationGeneratorEuro::GammaI() const { return 1.0; }

double CLoadCombinationGeneratorEuro::Psi(int index, Data::CLoadCaseTitle const& title) const {
  switch (index) {
    case 0:
      return Psi0(title);
    case 1:
      return Psi1(title);
    case 2:
      return Psi2(title);
    default:
      return 1.0;
  }
}

double CLoadCombinationGeneratorEuro::Psi0(Data::CLoadCaseTitle const& title) const {
  return PsiOf(title, IsSnowSevere())[0];
}

double CLoadCombinationGeneratorEuro::Psi1(Data::CLoadCaseTitle const& title) const {
  return PsiOf(title, IsSnowSevere())[1];
}

double CLoadCombinationGeneratorEuro::Psi2(Data::CLoadCaseTitle const& title) const {
  return PsiOf(title, IsSnowSevere())[2];
}

bool CLoadCombinationGeneratorEuro::IsSnowSevere() const {
  if (m_model == nullptr) return false;
  auto const& spec = m_model->Spec();
  for (int const country : kSevereSnowCountries)
    if (spec.Country().GetCode() == country) return true;
  return spec.ZElevation() > kSevereSnowElevation;
}

void CLoadCombinationGeneratorEuro::SetPsiType(CombType type, int out[2]) const {
  constexpr int kNoReduction = -1;
  struct Indices {
    int leading;
    int accompanying;
  };
  std::array<Indices, kNumCombTypes> const indices{
      {{kNoReduction, 0}, {m_psiAccidental, 2}, {2, 2}, {kNoReduction, 0}, {1, 2}, {2, 2}}};
  auto const row = static_cast<std::size_t>(type);
  auto const found = row < kNumCombTypes ? indices[row] : Indices{kNoReduction, kNoReduction};
  out[0] = found.leading;
  out[1] = found.accompanying;
}

double CLoadCombinationGeneratorEuroUK::GammaP(CombType type, bool isUnfavourable) const {
  return Partial(type, isUnfavourable, 1.1, 0.9);
}

double CLoadCombinationGeneratorEuroUK::Psi0(Data::CLoadCaseTitle const& title) const {
  if (IsImposed(title.TypeOf()) && title.Category() == kRoofCategory) return kRoofPsi0InUk;
  if (title.TypeOf() == CaseType::Wind) return kWindPsi0InUk;
  return CLoadCombinationGeneratorEuro::Psi0(title);
}

}  // namespace Tarvex
