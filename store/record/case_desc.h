// Descriptions of cases: which cases come together, and by which factors. docs/descriptions.md has
// the language.
#pragma once

#include "store/record/field.h"
#include "store/record/kept_value.h"
#include "store/select/case_expression.h"
#include "store/select/intervals.h"

namespace Tarvex {

class CZelData;

namespace Data {

struct CaseAlternative;
struct CaseResolution;

/// A kept value that a copy does not take along.
template <class T>
class OwnKeptValue : public KeptValue<T> {
 public:
  OwnKeptValue() = default;
  OwnKeptValue(OwnKeptValue const&) noexcept : KeptValue<T>() {}
  OwnKeptValue& operator=(OwnKeptValue const&) noexcept {
    this->Clear();
    return *this;
  }
  ~OwnKeptValue() = default;
};

/// A description as text. One that was built from a text that can't be read keeps the text, names
/// no case and has no factors.
class TARVEX_STORE_EXPORT CaseText {
 public:
  CString const& Text() const { return m_text; }
  /// Takes another text. @return false, and the description as it was, for one that can't be read;
  /// fault then tells why.
  bool SetDescription(CString const& text, CaseFault* fault = nullptr);
  /// Whether the text can be read.
  bool IsReadable() const { return ReadCases(m_text).has_value(); }

 protected:
  CaseText() = default;
  explicit CaseText(CString const& text) : m_text(text) {}

 private:
  CString m_text;
};

/// A description of load cases ("1.2L1 + 1.5L2").
class TARVEX_STORE_EXPORT CCaseDesc : public CaseText {
 public:
  enum class Part : int {
    Main = 0,
    PDelta = 1,  ///< what the suffix " : P(...)" names
  };

  CCaseDesc() = default;
  explicit CCaseDesc(CString const& text) : CaseText(text) {}

  /// The factor of a load case, 0 for one that is not named. Of alternatives the first ones count.
  double CaseFactor(Part part, int loadCase) const;
  /// The load cases that are named outside the suffix.
  Intervals LoadCases() const;

  friend bool operator==(CCaseDesc const& a, CCaseDesc const& b) { return a.Text() == b.Text(); }
};

/// A description of analysis cases and combinations ("(1.35 or 1)A1 + C4").
class TARVEX_STORE_EXPORT CCombCaseDesc : public CaseText {
 public:
  CCombCaseDesc() = default;
  explicit CCombCaseDesc(CString const& text) : CaseText(text) {}

  /// The number of linear combinations that the description stands for in a model, where
  /// combinations are followed down to analysis cases; at most 2147483647. A description that names
  /// no case, can't be read or reaches itself has none. The object remembers what it found, until
  /// it is copied or changed.
  int NumPermutation(CZelData const& model) const;
  /// The factor of a case in one of those combinations. @param permutation from 1. Where
  /// NumPermutation was not asked the text alone counts: a combination is then a case by itself.
  /// The object remembers the factors of the last alternative that was asked for.
  double CaseFactor(int permutation, SCaseRef const& ref) const;

  bool SetDescription(CString const& text, CaseFault* fault = nullptr);

  friend bool operator==(CCombCaseDesc const& a, CCombCaseDesc const& b) {
    return a.Text() == b.Text();
  }

 private:
  mutable OwnKeptValue<CaseResolution> m_resolution;
  mutable OwnKeptValue<CaseAlternative> m_alternative;
};

}  // namespace Data
}  // namespace Tarvex
