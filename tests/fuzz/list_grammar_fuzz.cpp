// Any text as a selection list of each kind: it is refused with a place inside it, or kept in a
// form that prints and reads back alike, that is expanded by two ways alike, and that stays a list
// whatever is added to it, taken out or put in its place.
#include <algorithm>
#include <cstdint>

#include "store/select/list_evaluation.h"
#include "store/select/list_grammar.h"
#include "store/select/list_rewrite.h"
#include "tests/fuzz/require.h"

namespace Tarvex::Data {
namespace {

constexpr int kHighestHere = 40;

/// A few letters can stand for a hundred thousand words ("PB1 to 100000"), which every check below
/// goes through many times: longer lists than this are only read and printed, for one kind.
constexpr std::size_t kLongest = 4000;

/// Numbers up to a few; a word selects every third of them, a name the last ones.
class Resolver : public ListResolver {
 public:
  int Highest() override { return kHighestHere; }
  int Limit() override { return kHighestHere; }
  Intervals All() override { return {{1, kHighestHere}}; }
  Intervals Word(int token, int number) override {
    Intervals numbers;
    for (int n = 1 + (number - token) % 3; n <= kHighestHere; n += 3) numbers.Append({n, n});
    return numbers;
  }
  Intervals Named(CString const& name) override { return {{name.GetLength(), kHighestHere}}; }
};

void RequireKept(ListTokens const& tokens, SelType kind) {
  auto again = tokens;
  Testing::Require(NormalizeList(again) && again == tokens, "a list is in the form it is kept in");
  Testing::Require(ReadList(WriteListTokens(tokens), kind) == tokens,
                   "a list reads back as it was printed");
}

void CheckExpansion(ListTokens const& tokens, SelType kind) {
  Resolver resolver;
  auto const numbers = ExpandList(tokens, kind, resolver);
  auto const order = ListOrder(tokens, kind, numbers, resolver);
  auto sorted = order;
  std::sort(sorted.begin(), sorted.end());
  Intervals runs;
  for (int const number : sorted) runs.Append({number, number});
  Testing::Require(runs == numbers, "the order of a list has the numbers of its expansion");
  Testing::Require(std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end(),
                   "the order of a list has each number once");
  if (!NeedsNoModel(tokens, kind) || kind == SelCase) return;
  for (int number = 0; number <= kHighestHere; ++number)
    Testing::Require(ListNames(tokens, kind, number, kHighestHere) == numbers.Contains(number),
                     "a list names what it is expanded to");
}

void CheckChanges(ListTokens const& tokens, SelType kind) {
  if (kind == SelCase) return;
  auto changed = tokens;
  AppendToList(changed, 7);
  RequireKept(changed, kind);
  Testing::Require(ListNames(changed, kind, 7, kHighestHere), "a list names what was added");
  changed = tokens;
  RemoveFromList(changed, kind, 7, kHighestHere);
  RequireKept(changed, kind);
  Resolver resolver;
  Testing::Require(!ExpandList(changed, kind, resolver).Contains(7),
                   "a list does not select what was taken out");
  changed = tokens;
  ReplaceInList(changed, kind, {{7, {}}, {8, {9, 70}}, {3, {3}}}, kHighestHere);
  RequireKept(changed, kind);
}

void Check(CString const& text, SelType kind) {
  ListFault fault{-1, {}};
  auto const tokens = ReadList(text, kind, &fault);
  if (!tokens) {
    Testing::Require(fault.position >= 0 && fault.position < text.GetLength(),
                     "a fault is inside the text");
    return Testing::Require(!fault.reason.IsEmpty(), "a fault has a reason");
  }
  bool const isLong = tokens->words.size() > kLongest;
  if (!isLong || kind == SelElement) RequireKept(*tokens, kind);
  if (isLong) return;
  CheckExpansion(*tokens, kind);
  CheckChanges(*tokens, kind);
}

}  // namespace
}  // namespace Tarvex::Data

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  auto const text = Tarvex::CString::FromUtf8({reinterpret_cast<char const*>(data), size});
  for (auto const kind : {Tarvex::SelElement, Tarvex::SelNode, Tarvex::SelCase})
    Tarvex::Data::Check(text, kind);
  return 0;
}
