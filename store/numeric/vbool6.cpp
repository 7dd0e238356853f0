#include "store/numeric/vbool6.h"

#include <stdexcept>

namespace Tarvex {

Vbool6::Vbool6(CString const& name) {
  if (name == L"free") return;
  if (name == L"pin") {
    *this = Vbool6(true, true, true, false, false, false);
  } else if (name == L"fix") {
    SetAll(true);
  } else {
    throw std::invalid_argument("unknown restraint: " + name.ToUtf8());
  }
}

}  // namespace Tarvex
