#include "workbench/view/storeys.h"

#include <cmath>

#include "store/record/grid_plane.h"
#include "store/record/spec.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

constexpr double kRounding = 1000;    // heights are told to a millimetre
constexpr double kMostRounded = 1e9;  // above it a double has no millimetres to spare

double Rounded(double height) {
  if (std::abs(height) > kMostRounded) return height;
  return static_cast<double>(std::llround(height * kRounding)) / kRounding;
}

}  // namespace

std::vector<Level> LevelsOf(CZelData const& model) {
  std::vector<Level> levels;
  for (int storey = 1; storey <= model.NumStorey(); ++storey) {
    auto const axis = model.GridPlaneGridAxis(model.GridPlaneStorey(storey));
    auto const z = axis.ZAxis();
    if (std::hypot(z.x, z.y) > model.Spec().GenTol(TolType::Vertical)) continue;
    auto const& name = model.Storey(storey).Name();
    auto const text = name.IsEmpty() ? CZelData::StoreyName(storey) : name;
    levels.push_back({text.ToUtf8(), axis.Origin().z});
  }
  return levels;
}

std::string HeightText(Level const& level) { return NumberText(Rounded(level.height)); }

}  // namespace Tarvex::Workbench
