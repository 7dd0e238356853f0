// A description with all combinations that it reaches in a model. Internal to the store.
#pragma once

#include <array>
#include <cstdint>
#include <set>

#include "store/record/kept_value.h"
#include "store/select/case_permutations.h"

namespace Tarvex {

class CZelData;

namespace Data {

/// The combinations of a model as far as some descriptions reach, and the numbers that are in use.
class CombinationsOfModel : public CaseMeaning {
 public:
  /// @param from the description that is followed
  CombinationsOfModel(CZelData const& model, CaseExpression const& from);

  /// A combination that does not exist is one alternative without cases; one that can't be read or
  /// that reaches itself has no alternative.
  CountedCases const* Description(SCaseRef const& ref) const override;
  int Next(SCaseRef const& ref) const override;
  /// The combinations that the description reaches and that reach themselves.
  std::set<int> const& Endless() const { return m_endless; }
  /// Whether a combination with this description reaches itself.
  bool IsEndless(CString const& description) const;

 private:
  std::vector<int> ReferredBy(CaseExpression const& tree) const;
  void AddReached(CZelData const& model, CaseExpression const& from);

  std::vector<int> m_analysis;      // numbers in use, ascending
  std::vector<int> m_combinations;  // the same
  std::map<int, CountedCases> m_reached;
  std::set<int> m_endless;
  std::vector<CString> m_endlessTexts;
};

/// Numbers of the combinations of a model that reach themselves, ascending.
TARVEX_STORE_EXPORT std::vector<int> CombinationsThatReachThemselves(CZelData const& model);

/// The factors of one alternative of a description.
struct CaseAlternative {
  int permutation;  ///< from 1
  std::map<SCaseRef, double> factors;
};

/// What a description found in a model.
struct CaseResolution {
  CaseResolution(CZelData const& model, CString const& text);

  /// Whether it is of the model as it now is.
  bool IsOf(CZelData const& model) const;

  void const* model;
  std::array<std::uint64_t, 2> revisions;
  CombinationsOfModel meaning;
  CountedCases cases;
};

}  // namespace Data
}  // namespace Tarvex
