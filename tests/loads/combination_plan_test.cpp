#include "tests/loads/combination_support.h"
#include "tests/support/matchers.h"

namespace Tarvex::CombinationPlanTest {
namespace {

using Testing::AddAction;
using Testing::AddResponse;
using Testing::AllTasks;
using Testing::kStaticTask;
using Testing::OpenEuro;

OpenEuro AllFamilies(CZelData& model) {
  return Testing::OnTasks(model, AllTasks(model), Testing::kAllFamilies);
}

using Counts = std::array<long long, 6>;

// Counts by hand; each is what the tests of the families list.

TEST(Plan, CountsTheCombinationsOfEachFamily) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  AddAction(model, CaseType::Prestress);
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Wind);
  AddAction(model, CaseType::Accidental);
  AddResponse(model, 1, 1);
  auto const plan = AllFamilies(model).Plan();
  // 1 permanent, 1 prestress, then 4 values, 2 ways, 1 envelope where one leads, or 2 values, 1
  // way, 1 envelope; 1 accidental; 2 seismic; 1 final.
  EXPECT_EQ(plan.families, (Counts{10, 11, 9, 10, 10, 7}));
  EXPECT_EQ(plan.actions.size(), 6u);
  EXPECT_EQ(plan.Total(), 6 + 57);
}

TEST(Plan, HasTheTitlesByTheNumberThatTheirCombinationsWillHave) {
  CZelData model;
  model.SetCombinationCase(9, Data::CCombinationCase(true));
  AddAction(model, CaseType::Wind, 2);
  AddAction(model, CaseType::SelfWeight, 5, 1);
  auto const plan = AllFamilies(model).Plan();
  ASSERT_EQ(plan.actions.size(), 2u);
  EXPECT_EQ(plan.actions.at(10).TypeOf(), CaseType::SelfWeight);
  EXPECT_EQ(plan.actions.at(10).PermanentMode(), 1);
  EXPECT_EQ(plan.actions.at(11).TypeOf(), CaseType::Wind);
  EXPECT_EQ(plan.actions.at(11).Source(), 2);
}

TEST(Plan, CountsNothingForFamiliesThatAreOffOrHaveNoCases) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  auto generator = AllFamilies(model);
  generator.SetSlsFrequent(false);
  EXPECT_EQ(generator.Plan().families, (Counts{2, 0, 0, 2, 0, 2}));
  EXPECT_EQ(OpenEuro().Plan().Total(), 0);
}

TEST(Plan, ChangesNeitherTheModelNorTheGenerator) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  AddAction(model, CaseType::Wind);
  CZelData const before(model);
  auto generator = AllFamilies(model);
  generator.SetUlsAccidental(false);
  generator.SetUlsSeismic(false);
  auto const plan = generator.Plan();
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
  EXPECT_EQ(generator.Plan().Total(), plan.Total());
  EXPECT_TRUE(generator.Combine());
  EXPECT_EQ(static_cast<long long>(model.CombinationCase().size()), plan.Total());
}

// What is left out.

/// The reason for which an analysis case with this title is left out, if it is.
std::optional<LeftOutReason> ReasonFor(Data::CLoadCaseTitle const& title) {
  CZelData model;
  int const n = AddAction(model, title);
  auto const plan = AllFamilies(model).Plan();
  if (plan.leftOut.empty()) return std::nullopt;
  EXPECT_EQ(plan.leftOut.size(), 1u);
  EXPECT_EQ(plan.leftOut.front().analysisCase, n);
  EXPECT_TRUE(plan.leftOut.front().title == title);
  return plan.leftOut.front().reason;
}

TEST(Plan, TellsWhyTitlesAreLeftOut) {
  using Testing::Title;
  EXPECT_EQ(ReasonFor(Title(CaseType::Wind)), std::nullopt);
  EXPECT_EQ(ReasonFor(Title(CaseType::Imposed, 1, 8)), std::nullopt);
  EXPECT_EQ(ReasonFor(Title(CaseType::Thermal)), LeftOutReason::NoBasicCombination);
  EXPECT_EQ(ReasonFor(Title(CaseType::VariableEquivalent)), LeftOutReason::NoBasicCombination);
  EXPECT_EQ(ReasonFor(Title(CaseType::Imposed, 1, 0)), LeftOutReason::NoCategory);
  EXPECT_EQ(ReasonFor(Title(CaseType::ImposedRoof, 1, 9)), LeftOutReason::NoCategory);
  EXPECT_EQ(ReasonFor(Title(CaseType::SeismicResponse, 1, 0)), LeftOutReason::NoDirection);
  EXPECT_EQ(ReasonFor(Title(CaseType::SeismicTorsion, 1, 3)), LeftOutReason::NoDirection);
  EXPECT_EQ(ReasonFor(Title(CaseType::SeismicStatic, 1, 1)), LeftOutReason::KindNotTaken);
  EXPECT_EQ(ReasonFor(Title(CaseType::Undefined)), LeftOutReason::KindNotTaken);
}

TEST(Plan, TellsWhyAnalysisCasesHaveNoTitle) {
  CZelData model;
  for (int n = 1; n <= 6; ++n) AddAction(model, CaseType::Wind, n);
  auto const describe = [&](int n, wchar_t const* text, int task) {
    model.SetAnalysisCase(n, Zel::CAnalysisCase(L"", text, task));
  };
  model.SetAnalysisTask(2, CZssTask(L"", AnalSoln::Modal));
  describe(2, L"L1 + L2", kStaticTask);
  describe(3, L"L1 + L77", kStaticTask);
  describe(4, L"none", kStaticTask);
  describe(5, L"M1", 2);
  describe(6, L"L6", 99);
  auto generator = AllFamilies(model);
  generator.SetTasks({99, kStaticTask, 2});
  auto const plan = generator.Plan();
  std::vector<std::pair<int, LeftOutReason>> found;
  for (auto const& leftOut : plan.leftOut) found.emplace_back(leftOut.analysisCase, leftOut.reason);
  EXPECT_EQ(found,
            (std::vector<std::pair<int, LeftOutReason>>{{6, LeftOutReason::NoTask},
                                                        {2, LeftOutReason::TitlesDiffer},
                                                        {3, LeftOutReason::UntitledLoadCase},
                                                        {4, LeftOutReason::NoLoadCase},
                                                        {5, LeftOutReason::SolutionNotTaken}}));
}

TEST(Plan, DoesNotTellOfCasesOfOtherTasks) {
  CZelData model;
  AddAction(model, CaseType::Thermal);
  auto generator = AllFamilies(model);
  generator.SetTasks({7});
  EXPECT_TRUE(generator.Plan().leftOut.empty());
}

// Great numbers.

constexpr int kManySources = 3000;

TEST(Plan, OfThousandsOfSourcesComesFromAClosedFormula) {
  CZelData model;
  for (auto const type : {CaseType::SelfWeight, CaseType::Soil, CaseType::Wind, CaseType::Snow})
    for (int source = 1; source <= kManySources; ++source) AddAction(model, type, source);
  auto generator = AllFamilies(model);
  generator.SetUlsAccidental(false);
  generator.SetUlsSeismic(false);
  long long const n = kManySources;
  // Permanent: 2n actions, n x n ways, an envelope.
  long long const permanent = 2 * n + n * n + 1;
  // One leads: two values of 2n actions, either of two groups leading in n x n ways, an envelope.
  long long const oneLeads = 4 * n + 2 * n * n + 1;
  // One factor: 2n actions, n x n ways, an envelope.
  long long const oneFactor = 2 * n + n * n + 1;
  EXPECT_EQ(generator.Plan().families,
            (Counts{permanent + oneLeads + 1, 0, 0, permanent + oneLeads + 1,
                    permanent + oneLeads + 1, permanent + oneFactor + 1}));
}

TEST(Plan, StopsCountingAtItsHighestNumber) {
  CZelData model;
  constexpr int kSources = 22500;
  for (auto const type : {CaseType::Imposed, CaseType::Wind, CaseType::Snow, CaseType::Rain})
    for (int source = 1; source <= kSources; ++source) AddAction(model, type, source, 1);
  auto generator = AllFamilies(model);
  auto const plan = generator.Plan();
  // Each of four groups leads in 22500^4 = 2.56e17 ways: 1.03e18 in all.
  EXPECT_EQ(plan.families[CombUlsPersistent], CombinationPlan::kMost);
  // 4 n actions, n^4 ways, an envelope and the final combination.
  long long const n = kSources;
  EXPECT_EQ(plan.families[CombSlsQuasiPermanent], 4 * n + n * n * n * n + 2);
  EXPECT_EQ(plan.Total(), CombinationPlan::kMost);
}

TEST(Combine, WritesThousandsOfSourcesOfOneKind) {
  CZelData model;
  for (int source = 1; source <= kManySources; ++source) AddAction(model, CaseType::Wind, source);
  AddAction(model, CaseType::Snow);
  OpenEuro generator;
  generator.SetData(&model);
  generator.SetTasks({kStaticTask});
  generator.SetUlsPersistent(true);
  EXPECT_TRUE(generator.Combine());
  // Basic 3001; two values each; wind leading and snow leading in 3000 ways each; envelope; final.
  int const expected = 3001 + 2 * 3001 + 2 * 3000 + 1 + 1;
  EXPECT_EQ(model.HighestCombinationCase(), expected);
  auto const description = model.CombinationCase(expected).Description();
  // Each way has 2 x 2 factors.
  EXPECT_EQ(description.NumPermutation(model), 4 * 6000);
}

}  // namespace
}  // namespace Tarvex::CombinationPlanTest
