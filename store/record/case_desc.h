// Descriptions of cases: which cases come together, and by which factors.
#pragma once

#include "store/record/field.h"
#include "store/text/cstring.h"

namespace Tarvex::Data {

/// A text that names load cases ("1.2L1 + 1.5L2").
class CCaseDesc {
 public:
  CCaseDesc() = default;
  explicit CCaseDesc(CString const& text) : m_text(text) {}

  CString const& Text() const { return m_text; }
  void SetDescription(CString const& text) { m_text = text; }

  friend bool operator==(CCaseDesc const&, CCaseDesc const&) = default;

 private:
  CString m_text;
};

/// A text that names analysis cases and combinations ("(1.35 or 1)A1 + C4").
class CCombCaseDesc {
 public:
  CCombCaseDesc() = default;
  explicit CCombCaseDesc(CString const& text) : m_text(text) {}

  CString const& Text() const { return m_text; }
  void SetDescription(CString const& text) { m_text = text; }

  friend bool operator==(CCombCaseDesc const&, CCombCaseDesc const&) = default;

 private:
  CString m_text;
};

}  // namespace Tarvex::Data
