#include "workbench/view/projection.h"

#include <array>

namespace Tarvex::Workbench {
namespace {

constexpr double kCos30 = 0.8660254037844386;
constexpr double kThird = 0.5773502691896258;  // 1/sqrt(3), a component of the space diagonal

constexpr std::array kViews{
    ViewRow{View::Iso,
            "iso",
            "isometric view from +x, -y and above",
            {kCos30, kCos30, 0},
            {-0.5, 0.5, 1},
            {-kThird, kThird, -kThird}},
    ViewRow{View::Plan, "plan", "plan, seen from above", {1, 0, 0}, {0, 1, 0}, {0, 0, -1}},
    ViewRow{View::X, "x", "elevation seen from +x", {0, 1, 0}, {0, 0, 1}, {-1, 0, 0}},
    ViewRow{View::Y, "y", "elevation seen from -y", {1, 0, 0}, {0, 0, 1}, {0, 1, 0}}};

}  // namespace

ViewRow const& ViewOf(View view) { return kViews.at(static_cast<std::size_t>(view)); }

View ViewNamed(std::string_view word) {
  for (auto const& row : kViews)
    if (row.word == word) return row.view;
  return View::Iso;
}

SeenPoint Project(View view, Vec3<double> const& point) {
  auto const& row = ViewOf(view);
  return {Dot(row.right, point), Dot(row.up, point), Dot(row.away, point)};
}

}  // namespace Tarvex::Workbench
