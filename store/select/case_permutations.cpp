#include "store/select/case_permutations.h"

#include <algorithm>

namespace Tarvex::Data {
namespace {

using Kind = CasePart::Kind;

int CappedProduct(int a, int b) {
  auto const product = static_cast<long long>(a) * b;
  return static_cast<int>(std::min<long long>(product, kMostPermutations));
}

int CappedSum(int a, int b) {
  auto const sum = static_cast<long long>(a) + b;
  return static_cast<int>(std::min<long long>(sum, kMostPermutations));
}

/// Calls visit(ref) for each case of a range until it gives false.
template <class Visit>
void ForEachOf(CasePart const& range, CaseMeaning const& meaning, Visit&& visit) {
  SCaseRef ref(range.first.type, range.first.num - 1);
  for (ref.num = meaning.Next(ref); ref.num != 0 && ref.num <= range.last;
       ref.num = meaning.Next(ref))
    if (!visit(ref)) return;
}

int CountRange(CasePart const& range, CaseMeaning const& meaning) {
  if (meaning.IsAsWritten()) return range.last - range.first.num + 1;
  int count = 0;
  ForEachOf(range, meaning, [&](SCaseRef const& ref) {
    count = CappedSum(count, meaning.Count(ref));
    return count < kMostPermutations;
  });
  return count;
}

int CountPart(CountedCases const& cases, CasePart const& part, CaseMeaning const& meaning) {
  auto const all = [&](int start, auto const& join) {
    int count = start;
    for (int const inner : part.parts)
      count = join(count, cases.counts[static_cast<std::size_t>(inner)]);
    return count;
  };
  switch (part.kind) {
    case Kind::Case:
      return meaning.Count(part.first);
    case Kind::Range:
      return CountRange(part, meaning);
    case Kind::Either:
      return all(0, CappedSum);
    case Kind::Scaled:
      return CappedProduct(static_cast<int>(part.factors.size()), all(1, CappedProduct));
    case Kind::Nothing:
    case Kind::Sum:
    case Kind::NonLinear:
      break;
  }
  return all(1, CappedProduct);
}

/// Works one alternative out, by a stack of its own.
class FactorWalk {
 public:
  explicit FactorWalk(CaseMeaning const& meaning) : m_meaning(meaning) {}

  std::map<SCaseRef, double> Of(CountedCases const& cases, int part, int index) {
    Push(cases, part, index, 1);
    while (!m_open.empty()) {
      auto const open = m_open.back();
      m_open.pop_back();
      Take(open);
    }
    return std::move(m_factors);
  }

 private:
  struct Open {
    CountedCases const* cases;
    int part;
    int index;
    double factor;
  };

  static int CountOf(CountedCases const& cases, int part) {
    return cases.counts[static_cast<std::size_t>(part)];
  }
  void Push(CountedCases const& cases, int part, int index, double factor) {
    if (index < CountOf(cases, part)) m_open.push_back({&cases, part, index, factor});
  }
  void TakeCase(SCaseRef const& ref, int index, double factor) {
    if (auto const* description = m_meaning.Description(ref))
      Push(*description, description->tree.whole, index, factor);
    else
      m_factors[ref] += factor;
  }

  void Take(Open const& open) {
    auto const& cases = *open.cases;
    auto const& part = cases.tree.parts[static_cast<std::size_t>(open.part)];
    int index = open.index;
    switch (part.kind) {
      case Kind::Nothing:
      case Kind::NonLinear:
        return;
      case Kind::Case:
        return TakeCase(part.first, index, open.factor);
      case Kind::Range:
        if (m_meaning.IsAsWritten())
          return TakeCase({part.first.type, part.first.num + index}, 0, open.factor);
        return ForEachOf(part, m_meaning, [&](SCaseRef const& ref) {
          int const count = m_meaning.Count(ref);
          if (index < count) TakeCase(ref, index, open.factor);
          index -= count;
          return index >= 0;
        });
      case Kind::Sum:
        for (auto inner = part.parts.rbegin(); inner != part.parts.rend(); ++inner) {
          int const count = CountOf(cases, *inner);
          Push(cases, *inner, index % count, open.factor);
          index /= count;
        }
        return;
      case Kind::Either:
        for (int const inner : part.parts) {
          int const count = CountOf(cases, inner);
          if (index < count) return Push(cases, inner, index, open.factor);
          index -= count;
        }
        return;
      case Kind::Scaled: {
        int const inner = part.parts.front();
        int const count = CountOf(cases, inner);
        auto const which = static_cast<std::size_t>(index / count);
        return Push(cases, inner, index % count, open.factor * part.factors[which]);
      }
    }
  }

  CaseMeaning const& m_meaning;
  std::vector<Open> m_open;
  std::map<SCaseRef, double> m_factors;
};

}  // namespace

CountedCases CountCases(CaseExpression tree, CaseMeaning const& meaning) {
  CountedCases cases{std::move(tree), {}};
  cases.counts.reserve(cases.tree.parts.size());
  for (auto const& part : cases.tree.parts) cases.counts.push_back(CountPart(cases, part, meaning));
  auto const whole = static_cast<std::size_t>(cases.tree.whole);
  bool const names = cases.tree.parts.size() > 1 || cases.tree.parts[whole].kind != Kind::Nothing;
  if (!names) cases.counts[whole] = 0;
  return cases;
}

std::map<SCaseRef, double> CaseFactors(CountedCases const& cases, int part, int index,
                                       CaseMeaning const& meaning) {
  if (index < 0) return {};
  return FactorWalk(meaning).Of(cases, part, index);
}

double FactorOfCase(CountedCases const& cases, int part, int index, CaseMeaning const& meaning,
                    SCaseRef const& ref) {
  auto const factors = CaseFactors(cases, part, index, meaning);
  auto const found = factors.find(SCaseRef(ref.type, ref.num));
  return found == factors.end() ? 0 : found->second;
}

}  // namespace Tarvex::Data
