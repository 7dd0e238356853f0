#include "workbench/report/offered_factors.h"

#include "store/record/cases.h"

namespace Tarvex::Workbench {
namespace {

using Kind = Data::CasePart::Kind;

/// A product without the sign of a negative zero.
double Times(double a, double b) { return a * b + 0.0; }

}  // namespace

/// Gathers what alternatives offer, one by one.
class FactorOffers::Alternatives {
 public:
  void Add(Offer const& offer) {
    if (!offer.hasAlternative) return;
    ++m_count;
    for (auto const& [n, offered] : offer.cases) {
      auto& target = m_either.cases[n];
      target.values.insert(offered.values.begin(), offered.values.end());
      target.isNonLinear = target.isNonLinear || offered.isNonLinear;
      ++m_holders[n];
    }
  }
  Offer Take() {
    m_either.hasAlternative = m_count > 0;
    for (auto const& [n, count] : m_holders)
      if (count < m_count) m_either.cases[n].values.insert(0);
    return std::move(m_either);
  }

 private:
  Offer m_either;
  std::map<int, int> m_holders;  // alternatives that have the case
  int m_count = 0;
};

FactorOffers::FactorOffers(CZelData const& model, std::set<int> const& cases)
    : m_model(model), m_cases(cases) {}

std::map<int, OfferedFactors> FactorOffers::Of(int combination) {
  auto const& offer = OfCombination(combination);
  return offer.hasAlternative ? offer.cases : std::map<int, OfferedFactors>();
}

FactorOffers::Offer const& FactorOffers::OfCombination(int combination) {
  auto const [known, isNew] = m_known.try_emplace(combination);
  auto& offer = known->second;  // stays where it is while others are added
  if (!isNew) return offer;
  if (m_cases.contains(combination)) {
    offer.cases[combination].values = {1};
    return offer;
  }
  offer.hasAlternative = false;  // as long as it is open: for one that reaches itself
  if (!m_model.CombinationCaseExist(combination)) return offer;
  auto const tree = Data::ReadCases(m_model.CombinationCase(combination).Description().Text());
  if (tree) offer = OfDescription(*tree);
  return offer;
}

FactorOffers::Offer FactorOffers::OfDescription(Data::CaseExpression const& tree) {
  std::vector<Offer> parts;  // each behind those that it is made of
  for (auto const& part : tree.parts) parts.push_back(OfPart(part, parts));
  return std::move(parts[static_cast<std::size_t>(tree.whole)]);
}

FactorOffers::Offer FactorOffers::OfPart(Data::CasePart const& part,
                                         std::vector<Offer> const& parts) {
  std::vector<Offer const*> inner;
  for (int const i : part.parts) inner.push_back(&parts[static_cast<std::size_t>(i)]);
  switch (part.kind) {
    case Kind::Nothing:
      return {};
    case Kind::Case:
      return part.first.type == CaseOp::Combination ? OfCombination(part.first.num) : Offer();
    case Kind::Range:
      return OfRange(part);
    case Kind::Either: {
      Alternatives alternatives;
      for (auto const* offer : inner) alternatives.Add(*offer);
      return alternatives.Take();
    }
    case Kind::NonLinear:
      return NonLinear(inner);
    case Kind::Scaled:
      return Scaled(*inner.front(), part.factors);
    case Kind::Sum:
      break;
  }
  Offer sum;
  for (auto const* offer : inner) sum = Summed(sum, *offer);
  return sum;
}

FactorOffers::Offer FactorOffers::OfRange(Data::CasePart const& part) {
  Alternatives alternatives;
  if (part.first.type != CaseOp::Combination) return alternatives.Take();
  for (int n = part.first.num; n <= part.last; ++n) {
    if (!m_model.CombinationCaseExist(n)) continue;
    bool const isNew = !m_known.contains(n);
    alternatives.Add(OfCombination(n));
    if (isNew) m_known.erase(n);
  }
  return alternatives.Take();
}

FactorOffers::Offer FactorOffers::Scaled(Offer const& offer, std::vector<double> const& factors) {
  Offer scaled{{}, offer.hasAlternative};
  for (auto const& [n, offered] : offer.cases) {
    auto& target = scaled.cases[n];
    target.isNonLinear = offered.isNonLinear;
    for (double const factor : factors)
      for (double const value : offered.values) target.values.insert(Times(factor, value));
  }
  return scaled;
}

FactorOffers::Offer FactorOffers::Summed(Offer const& a, Offer const& b) {
  if (!a.hasAlternative || !b.hasAlternative) return {{}, false};
  Offer sum = a;
  for (auto const& [n, offered] : b.cases) {
    auto const [found, isNew] = sum.cases.try_emplace(n, offered);
    if (isNew) continue;
    std::set<double> sums;
    for (double const x : found->second.values)
      for (double const y : offered.values) sums.insert(x + y);
    found->second.values = std::move(sums);
    found->second.isNonLinear = found->second.isNonLinear || offered.isNonLinear;
  }
  return sum;
}

FactorOffers::Offer FactorOffers::NonLinear(std::vector<Offer const*> const& offers) {
  Offer result;
  for (auto const* offer : offers) {
    result.hasAlternative = result.hasAlternative && offer->hasAlternative;
    for (auto const& entry : offer->cases) {
      result.cases[entry.first].values = {0};
      result.cases[entry.first].isNonLinear = true;
    }
  }
  return result;
}

}  // namespace Tarvex::Workbench
