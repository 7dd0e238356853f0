// The cases that descriptions name, and where they stand.
#pragma once

#include <vector>

#include "store/export.h"
#include "store/select/module_id.h"
#include "store/select/reference.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// The table of a kind of cases, CModule::None for a kind that has none.
constexpr CModule::ModuleId CaseModule(CaseOp kind) {
  switch (kind) {
    case CaseOp::Load:
      return CModule::LoadCaseTitle;
    case CaseOp::Analysis:
      return CModule::AnalysisCase;
    case CaseOp::Combination:
      return CModule::CombinationCase;
    case CaseOp::Task:
      return CModule::AnalysisTask;
    default:
      return CModule::None;
  }
}

namespace Data {

/// The cases of a description in the order of the text: each letter L, A, C or T with the digits
/// behind it, where no other letter stands before it. Numbers above 100000000 are none.
TARVEX_STORE_EXPORT std::vector<SCaseRef> CasesIn(CString const& description);

}  // namespace Data
}  // namespace Tarvex
