// Lines of members, parted where elements meet them.
#pragma once

#include "workbench/view/scene.h"

namespace Tarvex::Workbench {

/// Parts the straight lines of members at the nodes of elements that lie on them. So each part is
/// as near to the viewer as the elements about it, and not as the middle of a long line.
void SplitAtNodes(Scene& scene);

}  // namespace Tarvex::Workbench
