// Rules for single numbers.
#pragma once

#include "store/export.h"

namespace Tarvex {

/// The angle of a cosine, radians: 0 from 1 on and pi from -1 down. Throws std::runtime_error
/// "ArcCos: function value out of range" where it is beyond those by more than 1e-6.
TARVEX_STORE_EXPORT double ArcCos(double cosine);

/// Whether two numbers count as equal in checks: the same, or closer than a ten-thousandth of
/// their mean size or 1e-6.
TARVEX_STORE_EXPORT bool IsAboutEqual(double a, double b);

}  // namespace Tarvex
