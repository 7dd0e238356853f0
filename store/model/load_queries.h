// What loads act on.
//
// Queries do not throw: asked about something that does not exist they answer false.
#pragma once

#include "store/export.h"
#include "store/select/set.h"

namespace Tarvex {

class CZelData;
namespace Data {
class CFaceLoad;
class CLoadBase;
}  // namespace Data

/// Queries of a model about its loads.
class TARVEX_STORE_EXPORT LoadQueries {
 public:
  /// Whether the position of a point load lies on a plate, or over its edge by no more than the
  /// tolerance with which pieces of a plate are searched for it (TolType::PointInElement).
  bool ValidatePointLoadPosition(Data::CFaceLoad const& load, int element) const;
  /// The existing elements that a load acts on; of a load on members their child elements, of a
  /// load on nodes none. @param panels whether load panels count too
  Util::CSet GetLoadedElements(Data::CLoadBase const& load, bool panels) const;

 protected:
  explicit LoadQueries(CZelData const& model) : m_model(model) {}
  ~LoadQueries() = default;
  LoadQueries(LoadQueries const&) = delete;
  LoadQueries& operator=(LoadQueries const&) = delete;

 private:
  CZelData const& m_model;
};

}  // namespace Tarvex
