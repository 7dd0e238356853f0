// Nodes by position.
#pragma once

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex {

class CString;
class CZelData;

namespace ZelUtil {

/// The node nearest to a point within a tolerance (inclusive; the lowest of equally near ones), or
/// a new one there under the next number when there is none.
/// @param point global, model length units. @param tolerance model length units; 0 asks for equal
/// co-ordinates. @param name becomes name and identifier of a new node; empty gives neither.
TARVEX_STORE_EXPORT int GetNodeAt(CZelData& model, Vec3<double> const& point, double tolerance,
                                  CString const& name);

}  // namespace ZelUtil
}  // namespace Tarvex
