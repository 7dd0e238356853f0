// The factors that a combination with alternatives offers of the cases that it is made of.
#pragma once

#include <map>
#include <set>
#include <vector>

#include "store/model/zel_data.h"
#include "store/select/case_expression.h"

namespace Tarvex::Workbench {

/// The factors of one case over all alternatives of a combination.
struct OfferedFactors {
  std::set<double> values;   ///< 0 too, where an alternative is without the case
  bool isNonLinear = false;  ///< whether it is in an absolute value or a root of squares
};

/// Works out what combinations offer of some combinations that count as cases. What was worked out
/// for one combination serves for those that name it; the alternatives are never listed.
class FactorOffers {
 public:
  /// @param cases numbers of the combinations that count as cases
  FactorOffers(CZelData const& model, std::set<int> const& cases);

  /// By number of the case; cases that are in no alternative are left out. Combinations that reach
  /// themselves, do not exist or can't be read offer nothing.
  std::map<int, OfferedFactors> Of(int combination);

 private:
  /// What a part of a description offers.
  struct Offer {
    std::map<int, OfferedFactors> cases;
    bool hasAlternative = true;
  };
  class Alternatives;

  Offer const& OfCombination(int combination);
  Offer OfDescription(Data::CaseExpression const& tree);
  Offer OfPart(Data::CasePart const& part, std::vector<Offer> const& parts);
  Offer OfRange(Data::CasePart const& part);
  static Offer Scaled(Offer const& offer, std::vector<double> const& factors);
  static Offer Summed(Offer const& a, Offer const& b);
  static Offer NonLinear(std::vector<Offer const*> const& offers);

  CZelData const& m_model;
  std::set<int> m_cases;
  std::map<int, Offer> m_known;  // but for those of ranges, of which there may be very many
};

}  // namespace Tarvex::Workbench
