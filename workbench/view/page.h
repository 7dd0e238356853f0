// Marks on the page: what a scene looks like from one side, in the order of painting.
#pragma once

#include <cstdint>
#include <vector>

#include "workbench/view/projection.h"
#include "workbench/view/scene.h"

namespace Tarvex::Workbench {

/// A point of the page, in tenths of its unit, from the upper left corner.
struct PagePoint {
  int x = 0;
  int y = 0;
  friend bool operator==(PagePoint const&, PagePoint const&) = default;
};

/// A part of the page, in tenths of its unit.
struct PageBox {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// How a mark looks.
enum class Look {
  Solid,
  PlateFront,
  PlateBack,
  PlateEdge,  ///< a plate seen edge on
  PanelFront,
  PanelBack,
  PanelEdge,
  MemberOutline,
  MemberBody,
  Member,
  Line,
  LineToward,  ///< a line that comes straight at the viewer
  LineAway,
  Support,
  Fixed,
  Number,        ///< in the middle of an area
  NumberBeside,  ///< beside a line or a node
};

struct Mark {
  Look look = Look::Line;
  std::int64_t depth = 0;  ///< for painting: what has a lower one covers what has a higher one
  std::vector<PagePoint> points;
  int number = 0;  ///< of a number
};

/// Maps space to a box of the page: the given points just fit into it, in the middle, without
/// distortion. Points may be huge, tiny, all at one place, or none. The box takes the height that
/// the points need, between a least one and its own.
class PageFit {
 public:
  PageFit(View view, std::vector<Vec3<double>> const& points, PageBox const& most, int leastHeight);

  PageBox const& Box() const { return m_box; }
  PagePoint Place(Vec3<double> const& point) const;
  /// Depth in millionths of the size of what is shown.
  std::int64_t Depth(Vec3<double> const& point) const;

 private:
  SeenPoint See(Vec3<double> const& point) const;

  View m_view;
  Vec3<double> m_halfCentre;
  double m_halfSize = 1;
  double m_scale = 0;
  double m_right = 0;  // middle of what is seen
  double m_up = 0;
  PageBox m_box;
};

/// The marks of a scene, those that are far away first. At the same depth the later kind covers
/// the earlier one; lines, spots and numbers are never behind a face whose nodes they share. Faces
/// of solids that are seen from behind are left out.
std::vector<Mark> MakeMarks(Scene const& scene, PageFit const& fit);

}  // namespace Tarvex::Workbench
