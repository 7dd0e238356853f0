// The rows of the tables of results in the list of all tables (store/model/registry.h).
#pragma once

#include "store/model/table_row.h"
#include "store/record/results.h"

namespace Tarvex::Registry {

inline constexpr auto kResultTables = MakeRows(
    TableRow<Data::CElemResult>{CModule::None, "ElemResult", TableShape::Sparse, RemovalForm::Blank,
                                &CZelData::ElemResultExist, &CZelData::ElemResult,
                                &CZelData::ElemResult, &CZelData::HighestElemResult,
                                &CZelData::SetElemResult, &CZelData::BlankElemResult},
    TableRow<Data::CCaseResult>{CModule::None, "CaseResult", TableShape::Sparse, RemovalForm::Blank,
                                &CZelData::CaseResultExist, &CZelData::CaseResult,
                                &CZelData::CaseResult, &CZelData::HighestCaseResult,
                                &CZelData::SetCaseResult, &CZelData::BlankCaseResult});

}  // namespace Tarvex::Registry
