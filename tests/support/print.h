// How failures of tests print the store's values.
#pragma once

#include <ostream>

#include "store/numeric/vec.h"
#include "store/text/cstring.h"

namespace Tarvex {

inline void PrintTo(CString const& text, std::ostream* out) { *out << '"' << text.ToUtf8() << '"'; }

inline void PrintTo(Vec3<double> const& v, std::ostream* out) {
  auto const digits = out->precision(17);
  *out << '(' << v.x << ", " << v.y << ", " << v.z << ')';
  out->precision(digits);
}

}  // namespace Tarvex
