#include "store/record/prop_2d.h"

#include <charconv>
#include <cmath>

namespace Tarvex::Data {

bool CProp2D::SetFromDesc(CString const& description) {
  auto const text = description.ToUtf8();
  auto const first = text.find_first_not_of(' ');
  if (first == std::string::npos) return false;
  auto const* const end = text.data() + text.find_last_not_of(' ') + 1;
  double value = 0;
  auto const read = std::from_chars(text.data() + first, end, value);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) return false;
  m_thickness = value;
  return true;
}

}  // namespace Tarvex::Data
