// The combination generators, as an application links them.
#include <gtest/gtest.h>

#include <cstring>
#include <utility>
#include <vector>

#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "store/record/tasks.h"
#include "tarvex/tarvex.h"
#include "tests/link/linked.h"

namespace Tarvex::CombinationsLinkTest {
namespace {

using Testing::AreLinked;

/// Reaches what applications may use by deriving.
template <class Base>
class OwnGenerator : public Base {
 public:
  static bool HasLinkedFactors() {
    using Own = OwnGenerator;
    return AreLinked(&Own::GammaG, &Own::GammaP, &Own::GammaQ, &Own::GammaA, &Own::GammaI,
                     &Own::Psi, &Own::Psi0, &Own::Psi1, &Own::Psi2, &Own::SetPsiType,
                     &Own::IsSnowSevere);
  }
  static bool HasLinkedSteps() {
    using Own = OwnGenerator;
    return AreLinked(&Own::CombTypeDesc, &Own::CaseTypeDesc, &Own::CombDesc, &Own::Colour,
                     &Own::MapTasks, &Own::MapCases, &Own::AnalysisCase, &Own::CaseDefn,
                     &Own::NumSource, &Own::TrimMap, &Own::ClearCombinations, &Own::AddComb,
                     &Own::FinalCombination, &Own::BasicComb) &&
           AreLinked(&Own::CombineUlsPersistent, &Own::CombineUlsAccidental,
                     &Own::CombineUlsSeismic, &Own::CombineSlsCharacter, &Own::CombineSlsFrequent,
                     &Own::CombineSlsQuasiPerm, &Own::PersistentComb, &Own::PrestressComb,
                     &Own::VariableCombA, &Own::VariableCombB, &Own::AccidentalComb,
                     &Own::SeismicComb, &Own::SortVariable, &Own::AllVariable);
  }
};

template <class Generator>
class CombinationsLink : public ::testing::Test {};
using Generators = ::testing::Types<CLoadCombinationGeneratorEuro, CLoadCombinationGeneratorEuroUK>;
TYPED_TEST_SUITE(CombinationsLink, Generators);

CZelData WindOnly() {
  CZelData model;
  model.SetLoadCaseTitle(1, Data::CLoadCaseTitle(L"", CaseType::Wind));
  model.SetAnalysisTask(1, CZssTask(L"", AnalSoln::Static));
  model.SetAnalysisCase(1, Zel::CAnalysisCase(L"", L"L1", 1));
  return model;
}

TYPED_TEST(CombinationsLink, GeneratorIsMadeCopiedMovedAssignedConfiguredRunAndDestroyed) {
  EXPECT_TRUE(AreLinked(
      &TypeParam::SetData, &TypeParam::SetTasks, &TypeParam::SetUlsPersistent,
      &TypeParam::SetUlsAccidental, &TypeParam::SetUlsSeismic, &TypeParam::SetSlsCharacteristic,
      &TypeParam::SetSlsFrequent, &TypeParam::SetSlsQuasiPerm, &TypeParam::SetPsiAccidental,
      &TypeParam::SetSeismic, &TypeParam::Combine, &TypeParam::Report, &TypeParam::Plan));
  auto model = WindOnly();
  TypeParam generator;
  generator.SetData(&model);
  generator.SetTasks({1});
  generator.SetSlsCharacteristic(true);
  generator.SetPsiAccidental(2);
  generator.SetSeismic(Data::RespComb::ThirtyPercent);
  TypeParam copy(generator);
  TypeParam moved(std::move(copy));
  TypeParam assigned;
  assigned = moved;
  TypeParam target;
  target = std::move(assigned);
  EXPECT_EQ(target.Plan().Total(), 4);  // basic, leading, accompanying, final
  EXPECT_TRUE(target.Combine());
  EXPECT_EQ(target.Report(), L"");
  EXPECT_EQ(model.HighestCombinationCase(), 4);
}

TYPED_TEST(CombinationsLink, ProtectedMembersServeDerivedGenerators) {
  EXPECT_TRUE(OwnGenerator<TypeParam>::HasLinkedFactors());
  EXPECT_TRUE(OwnGenerator<TypeParam>::HasLinkedSteps());
}

#if defined(__GXX_ABI_VERSION)
/// Place of a virtual member behind the first one, by the pointer to it.
template <class Pointer>
std::ptrdiff_t PlaceOf(Pointer pointer) {
  std::ptrdiff_t words[2];
  static_assert(sizeof(pointer) == sizeof(words));
  std::memcpy(words, &pointer, sizeof(words));
  return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

template <class Base>
class Places : public Base {
 public:
  static std::vector<std::ptrdiff_t> OfFactors() {
    using Own = Places;
    return {PlaceOf(&Own::GammaG), PlaceOf(&Own::GammaP), PlaceOf(&Own::GammaQ),
            PlaceOf(&Own::GammaA), PlaceOf(&Own::GammaI), PlaceOf(&Own::Psi),
            PlaceOf(&Own::Psi0),   PlaceOf(&Own::Psi1),   PlaceOf(&Own::Psi2)};
  }
};

TYPED_TEST(CombinationsLink, FactorsStandInOrderBehindTheTwoEntriesOfTheDestructor) {
  EXPECT_EQ(Places<TypeParam>::OfFactors(),
            (std::vector<std::ptrdiff_t>{2, 3, 4, 5, 6, 7, 8, 9, 10}));
}
#endif

/// A national annex of its own.
class OwnAnnex : public CLoadCombinationGeneratorEuro {
 protected:
  double GammaQ(CombType, bool isUnfavourable) const override { return isUnfavourable ? 2 : 0.5; }
  double Psi0(Data::CLoadCaseTitle const&) const override { return 0.25; }
};

TEST(CombinationsLink, FactorsOfADerivedGeneratorAreTaken) {
  auto model = WindOnly();
  OwnAnnex generator;
  generator.SetData(&model);
  generator.SetTasks({1});
  generator.SetUlsPersistent(true);
  EXPECT_TRUE(generator.Combine());
  EXPECT_EQ(model.CombinationCase(2).Description().Text(), L"(2 or 0.5)C1");
  EXPECT_EQ(model.CombinationCase(3).Description().Text(), L"(0.5 or 0.125)C1");
}

}  // namespace
}  // namespace Tarvex::CombinationsLinkTest
