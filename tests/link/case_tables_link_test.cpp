// Load cases, stages, tasks and cases, as an application links them.
#include <gtest/gtest.h>

#include "store/model/analysis_case_table.h"
#include "store/model/case_resolution.h"
#include "store/model/zel_data.h"
#include "store/record/case_refs.h"
#include "store/record/load_case_title.h"
#include "store/record/node.h"
#include "store/record/stages.h"
#include "store/record/task_slot.h"
#include "store/select/reached.h"
#include "store/text/number_text.h"
#include "tests/link/linked.h"

namespace Tarvex::CaseTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = CaseTables;
template <class R>
using Whole = tarvex_unordered_map<unsigned int, R>;

TEST(CaseTablesLink, LoadCases) {
  using R = Data::CLoadCaseTitle;
  EXPECT_TRUE(AreLinked(&T::LoadCaseTitleExist, Member<R const&(int) const>(&T::LoadCaseTitle),
                        Member<Whole<R> const&() const>(&T::LoadCaseTitle),
                        &T::HighestLoadCaseTitle, &T::SetLoadCaseTitle, &T::BlankLoadCaseTitle,
                        &T::LoadCaseExist, &T::HighestLoadCase, &T::LoadCaseTypes));
  CZelData model;
  model.SetLoadCaseTitle(3, R(L"a", CaseType::Wind));
  EXPECT_TRUE(model.LoadCaseExist(3));
}

TEST(CaseTablesLink, Stages) {
  EXPECT_TRUE(AreLinked(
      &T::AnalStageExist, Member<Data::CAnalStage const&(int) const>(&T::AnalStage),
      Member<Whole<Data::CAnalStage> const&() const>(&T::AnalStage), &T::HighestAnalStage,
      &T::SetAnalStage, &T::SetAnalStageSid, &T::BlankAnalStage, &T::AnalStagePropExist,
      Member<Data::CAnalStageProp const&(int) const>(&T::AnalStageProp),
      Member<Whole<Data::CAnalStageProp> const&() const>(&T::AnalStageProp),
      &T::HighestAnalStageProp, &T::SetAnalStageProp, &T::BlankAnalStageProp, &T::AnalStageMatExist,
      Member<Data::CAnalStageMat const&(int) const>(&T::AnalStageMat),
      Member<Whole<Data::CAnalStageMat> const&() const>(&T::AnalStageMat), &T::HighestAnalStageMat,
      &T::SetAnalStageMat, &T::BlankAnalStageMat));
  EXPECT_TRUE(AreLinked(&StageQueries::ElemIsActive, &StageQueries::IsLoadPanelActive,
                        &StageQueries::NodeIsActive, &StageQueries::NodeTotalRestraint, &NamesStage,
                        &CZelData::StructType, &CZelData::GlobalRestraint,
                        &Data::CSpec::GlobalRestraint, &CZelData::RaftSpec, &CZelData::SetRaftSpec,
                        &LoadQueries::ValidatePointLoadPosition, &LoadQueries::GetLoadedElements,
                        &Data::CNode::TotalNodalRestraint));
}

TEST(CaseTablesLink, Tasks) {
  EXPECT_TRUE(AreLinked(
      &T::AnalysisTaskExist, Member<Zel::CAnalysisTask const&(int) const>(&T::AnalysisTask),
      Member<Whole<Zel::TaskSlot> const&() const>(&T::AnalysisTask), &T::HighestAnalysisTask,
      &T::SetAnalysisTask, &T::BlankAnalysisTask, &T::AnalysisTaskSlot, &T::SetAnalysisTaskSlot,
      &T::DesignTaskExist, Member<CDesignTask const&(int) const>(&T::DesignTask),
      Member<Whole<CDesignTask> const&() const>(&T::DesignTask), &T::HighestDesignTask,
      &T::SetDesignTask, &T::BlankDesignTask, &T::StoreDesignTask));
  EXPECT_TRUE(AreLinked(&CZssTask::PDeltaCase, &CZdSpecTask::SetRelDisp, &CEnvelopeTask::SetDesc,
                        &Zel::CAnalysisTask::IsStatic, &Zel::CAnalysisTask::IsPDelta,
                        &Zel::CAnalysisTask::IsEigenDynamic,
                        &Zel::CAnalysisTask::IsResponseSpectrum));
  // A task of a library's class crosses the border both ways.
  CZelData model;
  model.SetAnalysisTask(1, CFormRelaxTask(L"a"));
  EXPECT_NE(dynamic_cast<CFormRelaxTask const*>(&model.AnalysisTask(1)), nullptr);
}

TEST(CaseTablesLink, Cases) {
  EXPECT_TRUE(AreLinked(
      &T::AnalysisCaseExist, Member<Zel::CAnalysisCase const&(int) const>(&T::AnalysisCase),
      Member<AnalysisCaseTable() const>(&T::AnalysisCase), &T::HighestAnalysisCase,
      &T::SetAnalysisCase, &T::SetAnalysisCaseData, &T::BlankAnalysisCase, &T::AnalysisCaseStage,
      &T::AnalysisCases, &T::CombinationCaseExist,
      Member<Data::CCombinationCase const&(int) const>(&T::CombinationCase),
      Member<Whole<Data::CCombinationCase> const&() const>(&T::CombinationCase),
      &T::HighestCombinationCase, &T::SetCombinationCase, &T::BlankCombinationCase,
      &T::CaseDescriptionExist,
      Member<Data::CCaseDescription const&(int) const>(&T::CaseDescription),
      Member<Whole<Data::CCaseDescription> const&() const>(&T::CaseDescription),
      &T::HighestCaseDescription, &T::SetCaseDescription, &T::BlankCaseDescription,
      &Data::CasesIn));
  CZelData model;
  model.SetAnalysisCase(2, Zel::CAnalysisCase(L"a", L"L1", 0));
  EXPECT_EQ(model.AnalysisCase().size(), 1u);
}

TEST(CaseTablesLink, Descriptions) {
  using Data::CCaseDesc;
  using Data::CCombCaseDesc;
  EXPECT_TRUE(
      AreLinked(&Data::CaseText::SetDescription, &CCaseDesc::CaseFactor, &CCaseDesc::LoadCases,
                &CCombCaseDesc::SetDescription, &CCombCaseDesc::NumPermutation,
                &CCombCaseDesc::CaseFactor, &Data::ReadCases, &Data::CountCases, &Data::CaseFactors,
                &Data::FactorOfCase, &Data::CombinationsThatReachThemselves, &FollowReferences));
  CCombCaseDesc description(L"C1");
  CCombCaseDesc const copy(description);
  description = copy;
  EXPECT_EQ(description.NumPermutation(CZelData()), 1);
}

TEST(NumberTextLink, Functions) {
  EXPECT_TRUE(AreLinked(&StringTo, Testing::Function<CString(int)>(&StringFrom),
                        Testing::Function<CString(double)>(&StringFrom), &MakeNumString,
                        &Util::ReplaceHash));
}

}  // namespace
}  // namespace Tarvex::CaseTablesLinkTest
