#include "store/record/block.h"

#include <algorithm>
#include <stdexcept>

namespace Tarvex::Data {
namespace {

constexpr char const* kNegativeCount = "count of a replica below 0";

bool CountsAreGood(std::vector<ReplicaStep> const& steps) {
  return std::none_of(steps.begin(), steps.end(), [](auto const& step) { return step.count < 0; });
}

}  // namespace

void CReplica::SetSteps(std::vector<ReplicaStep> steps) {
  if (!CountsAreGood(steps)) throw std::invalid_argument(kNegativeCount);
  m_steps = std::move(steps);
}

std::vector<Vec3<double>> CReplica::ExpandedOffsets() const {
  std::vector<Vec3<double>> places{{}};
  for (auto const& step : m_steps) {
    auto const before = places.size();
    for (int i = 1; i <= step.count; ++i)
      for (std::size_t k = 0; k < before; ++k)
        places.push_back(places[k] + step.offset * static_cast<double>(i));
  }
  std::erase(places, Vec3<double>());
  return places;
}

CString CReplica::Fault() const {
  return CountsAreGood(m_steps) ? CString() : CString::FromUtf8(kNegativeCount);
}

}  // namespace Tarvex::Data
