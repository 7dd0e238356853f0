// What a list text selects, worked out in the plainest way: the measure for the store's own lists.
//
// It reads the text itself, goes down into parentheses by recursion and holds sets of single
// numbers. It knows texts that are lists; what is none is a failure of the test.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "store/select/list_evaluation.h"
#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// What a plain list is expanded on.
struct PlainModel {
  SelType kind = SelElement;
  std::set<int> existing;
  /// What a word with its number selects, "PB" or "#" and the like, and a quoted name.
  std::function<std::set<int>(std::wstring const& word, int number)> word =
      [](std::wstring const&, int) { return std::set<int>(); };
  std::function<std::set<int>(std::wstring const& name)> named = [](std::wstring const&) {
    return std::set<int>();
  };

  int Highest() const { return existing.empty() ? 0 : *existing.rbegin(); }
};

/// The existing numbers that a text selects.
std::set<int> PlainExpansion(std::wstring const& text, PlainModel const& model);

/// The runs of a set, one a number.
Intervals RunsOf(std::set<int> const& numbers);
/// The numbers of runs.
std::set<int> NumbersOf(Intervals const& runs);

/// Answers the store's questions by a plain model.
class PlainResolver : public Data::ListResolver {
 public:
  explicit PlainResolver(PlainModel const& model) : m_model(model) {}

  int Highest() override { return m_model.Highest(); }
  int Limit() override { return m_model.Highest(); }
  Intervals All() override { return RunsOf(m_model.existing); }
  Intervals Word(int token, int number) override;
  Intervals Named(CString const& name) override { return RunsOf(m_model.named(name.Str())); }

 private:
  PlainModel const& m_model;
};

/// What random lists are made of.
struct ListForm {
  int highest = 40;                 ///< of the numbers
  std::vector<std::wstring> words;  ///< words that take a number
  std::vector<std::wstring> names;
  bool ranges = true;
  bool operators = true;  ///< "and", "or", "not" and parentheses
  bool gaps = true;       ///< operators without operand and words without number
};

/// A random list of up to so many items, with blanks where they may stand.
std::wstring RandomListText(Random& random, ListForm const& form, int items);

}  // namespace Tarvex::Testing
