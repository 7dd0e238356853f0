// The action that an analysis case stands for.
#pragma once

#include <optional>
#include <vector>

#include "tarvex/combinations.h"

namespace Tarvex {

/// A title, and why it is a blank one.
struct FoundTitle {
  Data::CLoadCaseTitle title;
  std::optional<LeftOutReason> fault;
};

/// The title of an analysis case: of a response spectrum by its task and direction, else the one
/// that the titles of its load cases agree on; the name is that of the lowest load case. A blank
/// title for a case that does not exist.
FoundTitle TitleOfAnalysisCase(CZelData const& model, int n);

/// The analysis cases of tasks, in the order of the tasks, ascending within each; those of a task
/// that is given again come again. Walks the cases once.
std::vector<int> CasesOfTasks(CZelData const& model, std::vector<int> const& tasks);

/// Why an analysis case with this title gets no combination; nothing for one that does.
std::optional<LeftOutReason> WhyLeftOut(FoundTitle const& found);

}  // namespace Tarvex
