// Loads that depend on the shape of their elements: on an edge or face of them, or with values by
// corner or node.
#pragma once

#include <vector>

#include "store/model/zel_data.h"
#include "store/select/set.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Writes the numbers of the elements in the place of ranges and words in the lists of such loads
/// that name any of the elements, so that the loads can be mapped.
void WriteOutShapedLoads(CZelData& model, Util::CSet const& elements);

/// The loads on edges and by corner or point of plates that name any of the elements.
std::vector<Undone> FindShapedLoads(CZelData const& model, Util::CSet const& elements,
                                    char const* why);

}  // namespace Tarvex::Workbench
