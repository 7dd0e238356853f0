#include "store/model/load_queries.h"

#include <cmath>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/face_loads.h"

namespace Tarvex {
namespace {

/// Natural co-ordinates that were worked out from a point may miss the edge by this much.
constexpr double kRounding = 1e-6;

}  // namespace

bool LoadQueries::ValidatePointLoadPosition(Data::CFaceLoad const& load, int element) const {
  if (!m_model.ElemExist(element)) return false;
  auto const& plate = m_model.Elem(element);
  if (!plate.Is2D()) return false;
  auto const& at = load.Position();
  if (plate.IsQuad()) return std::abs(at.x) <= 1 + kRounding && std::abs(at.y) <= 1 + kRounding;
  return at.x >= -kRounding && at.y >= -kRounding && at.x + at.y <= 1 + kRounding;
}

}  // namespace Tarvex
