// The rows of the tables of load cases, stages, tasks and cases in the list of all tables
// (store/model/registry.h).
#pragma once

#include "store/model/analysis_case_table.h"
#include "store/model/table_row.h"
#include "store/record/load_case_title.h"
#include "store/record/stages.h"
#include "store/record/task_slot.h"

namespace Tarvex::Registry {

inline constexpr auto kCaseTables = MakeRows(
    TableRow<Data::CLoadCaseTitle>{CModule::LoadCaseTitle, "LoadCaseTitle", TableShape::Sparse,
                                   RemovalForm::Blank, &CZelData::LoadCaseTitleExist,
                                   &CZelData::LoadCaseTitle, &CZelData::LoadCaseTitle,
                                   &CZelData::HighestLoadCaseTitle, &CZelData::SetLoadCaseTitle,
                                   &CZelData::BlankLoadCaseTitle},
    TableRow<Data::CAnalStage>{CModule::AnalStage, "AnalStage", TableShape::Sparse,
                               RemovalForm::Blank, &CZelData::AnalStageExist, &CZelData::AnalStage,
                               &CZelData::AnalStage, &CZelData::HighestAnalStage,
                               &CZelData::SetAnalStage, &CZelData::BlankAnalStage},
    TableRow<Data::CAnalStageProp>{CModule::None, "AnalStageProp", TableShape::Sparse,
                                   RemovalForm::Blank, &CZelData::AnalStagePropExist,
                                   &CZelData::AnalStageProp, &CZelData::AnalStageProp,
                                   &CZelData::HighestAnalStageProp, &CZelData::SetAnalStageProp,
                                   &CZelData::BlankAnalStageProp},
    TableRow<Data::CAnalStageMat>{
        CModule::None, "AnalStageMat", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::AnalStageMatExist, &CZelData::AnalStageMat, &CZelData::AnalStageMat,
        &CZelData::HighestAnalStageMat, &CZelData::SetAnalStageMat, &CZelData::BlankAnalStageMat},
    TableRow<Zel::TaskSlot>{CModule::AnalysisTask, "AnalysisTask", TableShape::Sparse,
                            RemovalForm::Blank, &CZelData::AnalysisTaskExist,
                            &CZelData::AnalysisTaskSlot, &CZelData::AnalysisTask,
                            &CZelData::HighestAnalysisTask, &CZelData::SetAnalysisTaskSlot,
                            &CZelData::BlankAnalysisTask},
    TableRow<Zel::CAnalysisCase>{
        CModule::AnalysisCase, "AnalysisCase", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::AnalysisCaseExist, &CZelData::AnalysisCase, &CZelData::AnalysisCases,
        &CZelData::HighestAnalysisCase, &CZelData::SetAnalysisCase, &CZelData::BlankAnalysisCase},
    TableRow<Data::CCombinationCase>{
        CModule::CombinationCase, "CombinationCase", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::CombinationCaseExist, &CZelData::CombinationCase, &CZelData::CombinationCase,
        &CZelData::HighestCombinationCase, &CZelData::SetCombinationCase,
        &CZelData::BlankCombinationCase},
    TableRow<Data::CCaseDescription>{
        CModule::None, "CaseDescription", TableShape::Sparse, RemovalForm::Blank,
        &CZelData::CaseDescriptionExist, &CZelData::CaseDescription, &CZelData::CaseDescription,
        &CZelData::HighestCaseDescription, &CZelData::SetCaseDescription,
        &CZelData::BlankCaseDescription},
    TableRow<CDesignTask>{CModule::DesignTask, "DesignTask", TableShape::Sparse, RemovalForm::Blank,
                          &CZelData::DesignTaskExist, &CZelData::DesignTask, &CZelData::DesignTask,
                          &CZelData::HighestDesignTask, &CZelData::StoreDesignTask,
                          &CZelData::BlankDesignTask});

}  // namespace Tarvex::Registry
