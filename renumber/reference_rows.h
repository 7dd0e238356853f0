// The second half of a renumbering: what names records names them by their new numbers.
#pragma once

#include <functional>

#include "renumber/renumber_run.h"

namespace Tarvex {

/// Rewrites every reference of the model. @param adjustCases rewrites what names cases, at its
/// turn.
/// @return false, and the rest undone, when properties are renumbered and an element has a type
/// without a table of properties.
bool RewriteReferences(RenumberRun const& run, std::function<void()> const& adjustCases);

}  // namespace Tarvex
