#include "store/select/list_evaluation.h"

#include <algorithm>
#include <limits>

#include "store/select/interval_builder.h"
#include "store/select/list_grammar.h"
#include "store/select/list_machine.h"
#include "store/select/list_scan.h"

namespace Tarvex::Data {
namespace {

using Part = ListElement::Part;
using Item = ListElement::Item;

/// Takes the parts of a list to a machine, which gets from itemOf what each item stands for.
template <class Set, class ItemOf>
Set Evaluate(ListTokens const& tokens, ItemOf&& itemOf) {
  ListMachine<Set> machine;
  ListScanner scanner(tokens);
  ListElement element;
  while (scanner.Next(element)) {
    switch (element.part) {
      case Part::Item:
        machine.Item(itemOf(element));
        break;
      case Part::And:
        machine.And();
        break;
      case Part::Or:
        machine.Or();
        break;
      case Part::Not:
        machine.Not();
        break;
      case Part::Open:
        machine.Open();
        break;
      case Part::Close:
        machine.Close();
    }
  }
  return machine.Finish();
}

/// A range with its ends known.
struct Range {
  int first;
  int last;
  int step;
};

Range RangeOf(ListElement const& element, int highest) {
  auto const end = [&](int token) { return token == kHighest ? highest : token; };
  return {end(element.first), end(element.last), std::max(element.step, 1)};
}

/// Calls visit(run) for the runs of a range up to a limit.
template <class Visit>
void ForEachRun(Range const& range, int limit, Visit&& visit) {
  int const last = std::min(range.last, limit);
  if (range.step == 1 && range.first <= last) visit(Interval{range.first, last});
  if (range.step == 1) return;
  for (long long number = range.first; number <= last; number += range.step)
    visit(Interval{static_cast<int>(number), static_cast<int>(number)});
}

/// The runs of the items of one list.
class Runs {
 public:
  Runs(ListTokens const& tokens, SelType kind, ListResolver& resolver)
      : m_tokens(tokens), m_kind(kind), m_resolver(resolver), m_limit(resolver.Limit()) {}

  /// Calls visit(run) for the runs of an item, ascending.
  template <class Visit>
  void ForEach(ListElement const& element, Visit&& visit) {
    auto const visitAll = [&](Intervals const& set) {
      for (auto const& run : set.Runs()) visit(run);
    };
    switch (element.item) {
      case Item::Nothing:
        return;
      case Item::All:
        return visitAll(m_resolver.All());
      case Item::Numbers:
        return ForEachRun(RangeOf(element, m_resolver.Highest()), m_limit, visit);
      case Item::Name:
        return visitAll(m_resolver.Named(m_tokens.strings[element.name]));
      case Item::Word:
        if (!IsOwnNumberWord(element.token, m_kind))
          return visitAll(m_resolver.Word(element.token, element.first));
        if (element.first <= m_limit) visit(Interval{element.first, element.first});
    }
  }

 private:
  ListTokens const& m_tokens;
  SelType m_kind;
  ListResolver& m_resolver;
  int m_limit;
};

/// Whether one number is in a set.
struct Truth {
  bool in = false;

  void Unite(Truth other) { in = in || other.in; }
  void Intersect(Truth other) { in = in && other.in; }
  void Subtract(Truth other) { in = in && !other.in; }
};

/// Calls visit(element) for the items that are not taken away by "not", however deep.
template <class Visit>
void ForEachNamingItem(ListTokens const& tokens, Visit&& visit) {
  ListScanner scanner(tokens);
  ListElement element;
  auto before = Part::Open;
  int takenAway = 0;  // depth inside the parenthesis that "not" takes
  while (scanner.Next(element)) {
    bool const behindNot = before == Part::Not;
    if (element.part == Part::Open && (takenAway > 0 || behindNot)) ++takenAway;
    if (element.part == Part::Close && takenAway > 0) --takenAway;
    if (element.part == Part::Item && takenAway == 0 && !behindNot) visit(element);
    before = element.part;
  }
}

/// Numbers that are given out one after another, each once, in whatever order.
class Remaining {
 public:
  explicit Remaining(Intervals const& numbers) {
    for (auto const& run : numbers.Runs())
      for (int number = run.first; number <= run.last; ++number) m_numbers.push_back(number);
    m_next.resize(m_numbers.size() + 1);
    for (std::size_t i = 0; i < m_next.size(); ++i) m_next[i] = i;
  }

  /// Appends to taken what remains in a run.
  void Take(Interval run, std::vector<int>& taken) {
    auto const begin = std::lower_bound(m_numbers.begin(), m_numbers.end(), run.first);
    auto at = Find(static_cast<std::size_t>(begin - m_numbers.begin()));
    for (; at < m_numbers.size() && m_numbers[at] <= run.last; at = Find(at)) {
      taken.push_back(m_numbers[at]);
      m_next[at] = at + 1;
    }
  }

 private:
  /// The first place from one on that remains; shortens the way there by half.
  std::size_t Find(std::size_t at) {
    while (m_next[at] != at) {
      m_next[at] = m_next[m_next[at]];
      at = m_next[at];
    }
    return at;
  }

  std::vector<int> m_numbers;
  std::vector<std::size_t> m_next;  // itself where a number remains, otherwise a later place
};

}  // namespace

ListResolver::~ListResolver() = default;

Intervals ExpandList(ListTokens const& tokens, SelType kind, ListResolver& resolver) {
  Runs runs(tokens, kind, resolver);
  return Evaluate<IntervalBuilder>(tokens,
                                   [&](ListElement const& element) {
                                     IntervalBuilder set;
                                     runs.ForEach(element, [&](Interval run) { set.Add(run); });
                                     return set;
                                   })
      .Take();
}

bool ListNames(ListTokens const& tokens, SelType kind, int number, int highest) {
  auto const names = [&](ListElement const& element) {
    bool const numbers = element.item == Item::Numbers;
    bool const own = element.item == Item::Word && IsOwnNumberWord(element.token, kind);
    if (!numbers && !own) return Truth{};
    auto const range = RangeOf(element, highest);
    bool const inside = number >= range.first && number <= range.last;
    return Truth{inside && (number - range.first) % range.step == 0};
  };
  return Evaluate<Truth>(tokens, names).in;
}

std::vector<int> ListOrder(ListTokens const& tokens, SelType kind, Intervals const& numbers,
                           ListResolver& resolver) {
  Runs runs(tokens, kind, resolver);
  Remaining remaining(numbers);
  std::vector<int> order;
  ForEachNamingItem(tokens, [&](ListElement const& element) {
    runs.ForEach(element, [&](Interval run) { remaining.Take(run, order); });
  });
  return order;
}

}  // namespace Tarvex::Data
