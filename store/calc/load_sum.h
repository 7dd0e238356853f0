// How single loads go into totals. Internal to the store.
#pragma once

#include <optional>
#include <string_view>

#include "store/calc/load_totals.h"
#include "store/model/zel_data.h"
#include "store/numeric/direction.h"
#include "store/record/axis.h"

namespace Tarvex::Calc {

/// The direction of a load in an axis, which may turn from place to place.
class LoadDirection {
 public:
  /// @return empty for an axis that does not exist. @param axis 0 for the global one
  static std::optional<LoadDirection> Of(CZelData const& model, int axis, Direction direction) {
    if (axis != 0 && !model.AxisExist(axis)) return std::nullopt;
    return LoadDirection(model.Axis(axis), direction);
  }

  bool IsMoment() const { return m_direction >= Direction::XX; }
  /// Whether it is the same everywhere.
  bool IsEven() const { return m_axis.Type() == AxisType::Cartesian; }
  /// The unit vector at a point.
  Vec3<double> At(Vec3<double> const& point) const {
    constexpr int kTurns = static_cast<int>(Direction::XX) - static_cast<int>(Direction::X);
    int const axis = static_cast<int>(m_direction) - (IsMoment() ? kTurns : 0);
    return m_axis.DirCos(point).AxisVec(static_cast<Direction>(axis));
  }

 private:
  LoadDirection(Data::CAxis axis, Direction direction)
      : m_axis(std::move(axis)), m_direction(direction) {}

  Data::CAxis m_axis;
  Direction m_direction;
};

/// One load on its way into the totals.
class LoadSum {
 public:
  LoadSum(LoadTotals& totals, std::string_view table, int number, int loadCase)
      : m_totals(totals), m_total(totals.byCase[loadCase]), m_table(table), m_number(number) {}

  /// Adds a force, or a moment, of an amount at a point.
  void Add(LoadDirection const& direction, Vec3<double> const& point, double amount) {
    auto const action = direction.At(point) * amount;
    if (direction.IsMoment())
      m_total.moment += action;
    else
      AddForce(point, action);
  }
  void AddForce(Vec3<double> const& point, Vec3<double> const& force) {
    m_total += {force, Cross(point, force)};
  }
  /// Notes once that a part of the load is left out.
  void LeaveOut(std::string_view why) {
    auto& uncounted = m_totals.uncounted;
    bool const noted = !uncounted.empty() && uncounted.back().table == m_table &&
                       uncounted.back().number == m_number;
    if (!noted) uncounted.push_back({m_table, m_number, why});
  }

 private:
  LoadTotals& m_totals;
  LoadTotal& m_total;
  std::string_view m_table;
  int m_number;
};

/// Calls visit(sum, load, direction) for the loads of a table with a direction that have a case.
template <class Load, class Visit>
void ForEachDirectedLoad(CZelData const& model, LoadTotals& totals, std::string_view table,
                         std::vector<Load> const& loads, Visit&& visit) {
  for (std::size_t i = 0; i < loads.size(); ++i) {
    auto const& load = loads[i];
    if (load.LoadCase() == 0) continue;
    LoadSum sum(totals, table, static_cast<int>(i) + 1, load.LoadCase());
    if (auto const direction = LoadDirection::Of(model, load.Axis(), load.GetDirection()))
      visit(sum, load, *direction);
    else
      sum.LeaveOut("its axis does not exist");
  }
}

void SumLineLoads(CZelData const& model, LoadTotals& totals);
void SumSurfaceLoads(CZelData const& model, LoadTotals& totals);
void SumGridLoads(CZelData const& model, LoadTotals& totals);

}  // namespace Tarvex::Calc
