#include "store/record/section_geometry.h"

#include <boost/container/static_vector.hpp>
#include <cmath>

namespace Tarvex::Data {
namespace {

using Prop = SectionProp;
using Point = Vec2<double>;
using Outline = std::initializer_list<Point>;
using Util::AreaMoments;

/// A rounding at a right-angled corner: what lies at the corner on the side of the signs.
struct Fillet {
  Point corner;
  double signY;
  double signZ;
  double radius;
  double factor;  ///< 1 for what a root adds, -1 for what rounding takes away
};

/// What the box around a shape touches: a corner, or the centre of a rounding there.
struct HullDisc {
  Point centre;
  double radius;
};

/// A shape as outlines with roundings, or as discs.
class Figure {
 public:
  Figure(SectionShape shape, SectionDimensions const& dimensions) : m_dimensions(dimensions) {
    switch (shape) {
      case SectionShape::Rectangle:
        AddBar(Get(Prop::Width), Get(Prop::Width));
        break;
      case SectionShape::Trapezoid:
        AddBar(Get(Prop::Width), Get(Prop::SecondWidth));
        break;
      case SectionShape::Circle:
      case SectionShape::Tube:
        AddRound(shape == SectionShape::Tube);
        break;
      case SectionShape::Box:
        AddBox(Get(Prop::WebThickness), Get(Prop::TopFlangeThickness));
        break;
      case SectionShape::UnequalBox:
        AddBox(Get(Prop::SecondWebThickness), Get(Prop::BottomFlangeThickness));
        break;
      case SectionShape::I:
        AddI(Get(Prop::Width), Get(Prop::WebThickness), Get(Prop::TopFlangeThickness));
        break;
      case SectionShape::UnequalI:
        AddI(Get(Prop::SecondWidth), Get(Prop::WebThickness), Get(Prop::BottomFlangeThickness));
        break;
      case SectionShape::TaperedI:
        AddI(Get(Prop::Width), Get(Prop::SecondWebThickness), Get(Prop::BottomFlangeThickness));
        break;
      case SectionShape::Channel:
        AddChannel();
        break;
      case SectionShape::Tee:
        AddTee(Get(Prop::WebThickness));
        break;
      case SectionShape::TaperedTee:
        AddTee(Get(Prop::SecondWebThickness));
        break;
      case SectionShape::None:
        break;
    }
  }

  AreaMoments const& Moments() const { return m_moments; }
  auto const& Hull() const { return m_hull; }

 private:
  double Get(Prop prop) const { return m_dimensions[static_cast<std::size_t>(prop)]; }
  double Top() const { return Get(Prop::Depth) / 2; }
  double Left() const { return Get(Prop::Width) / 2; }

  void AddOutline(Outline const& outline) {
    auto const moments = Util::MomentsOfPolygon({outline.begin(), outline.size()});
    m_moments += moments.area < 0 ? moments * -1 : moments;
  }
  void AddHole(Outline const& outline) {
    auto const moments = Util::MomentsOfPolygon({outline.begin(), outline.size()});
    m_moments += moments.area < 0 ? moments : moments * -1;
  }
  void AddFillet(Fillet const& fillet) {
    if (fillet.radius == 0) return;
    auto const own =
        Util::Mirrored(Util::MomentsOfFillet(fillet.radius), fillet.signY, fillet.signZ);
    m_moments += Util::Placed(own, 0, fillet.corner) * fillet.factor;
  }
  /// The corners of a symmetric shape's box that are its own, at half widths above and below.
  void AddHull(double above, double below) {
    m_hull = {
        {{above, Top()}, 0}, {{-above, Top()}, 0}, {{-below, -Top()}, 0}, {{below, -Top()}, 0}};
  }

  /// The corners of a flange towards the web, which stick out when the other end is narrow.
  void AddInnerCorners(double y, double z) {
    m_hull.push_back({{y, z}, 0});
    m_hull.push_back({{-y, z}, 0});
  }

  void AddBar(double above, double below) {
    double const z = Top();
    AddOutline({{above / 2, z}, {-above / 2, z}, {-below / 2, -z}, {below / 2, -z}});
    AddHull(above / 2, below / 2);
  }

  void AddRound(bool hollow) {
    double const radius = Top();
    m_moments += Util::MomentsOfDisc(radius);
    if (hollow) m_moments += Util::MomentsOfDisc(radius - Get(Prop::WebThickness)) * -1;
    m_hull = {{{0, 0}, radius}};
  }

  void AddBox(double rightWeb, double bottomFlange) {
    double const y = Left();
    double const z = Top();
    AddOutline({{y, z}, {-y, z}, {-y, -z}, {y, -z}});
    double const left = y - Get(Prop::WebThickness);
    double const right = -y + rightWeb;
    double const top = z - Get(Prop::TopFlangeThickness);
    double const bottom = -z + bottomFlange;
    AddHole({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
    double const outer = Get(Prop::Radius);
    double const inner = Get(Prop::InnerRadius);
    for (double const signY : {-1.0, 1.0})
      for (double const signZ : {-1.0, 1.0}) {
        AddFillet({{signY * y, signZ * z}, -signY, -signZ, outer, -1});
        Point const inside{signY > 0 ? left : right, signZ > 0 ? top : bottom};
        AddFillet({inside, -signY, -signZ, inner, 1});
        m_hull.push_back({{signY * (y - outer), signZ * (z - outer)}, outer});
      }
  }

  /// @param below the width of the lower flange
  void AddI(double below, double lowerWeb, double bottomFlange) {
    double const y = Left();
    double const z = Top();
    double const web = Get(Prop::WebThickness) / 2;
    double const top = z - Get(Prop::TopFlangeThickness);
    double const bottom = -z + bottomFlange;
    AddOutline({{y, z},
                {-y, z},
                {-y, top},
                {-web, top},
                {-lowerWeb / 2, bottom},
                {-below / 2, bottom},
                {-below / 2, -z},
                {below / 2, -z},
                {below / 2, bottom},
                {lowerWeb / 2, bottom},
                {web, top},
                {y, top}});
    for (double const sign : {-1.0, 1.0}) {
      AddFillet({{sign * web, top}, sign, -1, Get(Prop::Radius), 1});
      AddFillet({{sign * web, bottom}, sign, 1, Get(Prop::Radius), 1});
    }
    AddHull(y, below / 2);
    AddInnerCorners(y, top);
    AddInnerCorners(below / 2, bottom);
  }

  void AddChannel() {
    double const y = Left();
    double const z = Top();
    double const face = -y + Get(Prop::WebThickness);
    double const flange = z - Get(Prop::TopFlangeThickness);
    AddOutline({{y, z},
                {-y, z},
                {-y, -z},
                {y, -z},
                {y, -flange},
                {face, -flange},
                {face, flange},
                {y, flange}});
    AddFillet({{face, flange}, 1, -1, Get(Prop::Radius), 1});
    AddFillet({{face, -flange}, 1, 1, Get(Prop::Radius), 1});
    AddHull(y, y);
  }

  void AddTee(double foot) {
    double const y = Left();
    double const z = Top();
    double const web = Get(Prop::WebThickness) / 2;
    double const flange = z - Get(Prop::TopFlangeThickness);
    AddOutline({{y, z},
                {-y, z},
                {-y, flange},
                {-web, flange},
                {-foot / 2, -z},
                {foot / 2, -z},
                {web, flange},
                {y, flange}});
    for (double const sign : {-1.0, 1.0})
      AddFillet({{sign * web, flange}, sign, -1, Get(Prop::Radius), 1});
    AddHull(y, foot / 2);
    AddInnerCorners(y, flange);
  }

  SectionDimensions const& m_dimensions;
  AreaMoments m_moments;
  boost::container::static_vector<HullDisc, 8> m_hull;
};

}  // namespace

CSecGeom::CSecGeom(CString const& description) : m_text(description) {
  auto const section = ReadSection(description);
  m_readable = section.has_value();
  if (section) m_section = *section;
}

bool CSecGeom::SetDescription(CString const& description, SectionFault* fault) {
  auto const section = ReadSection(description, fault);
  if (!section) return false;
  m_text = description;
  m_section = *section;
  m_readable = true;
  return true;
}

CString CSecGeom::Description(bool normal) const {
  return normal && m_readable ? WriteSection(m_section) : m_text;
}

SectionDimensions CSecGeom::At(double position) const {
  if (m_section.end == m_section.start) return m_section.start;
  SectionDimensions between{};
  for (std::size_t i = 0; i < between.size(); ++i)
    between[i] = m_section.start[i] * (1 - position) + m_section.end[i] * position;
  return between;
}

double CSecGeom::Dimension(double position, Prop prop) const {
  auto const i = static_cast<std::size_t>(prop);
  return i < kSectionProps ? At(position)[i] : 0;
}

Util::AreaMoments CSecGeom::Moments(double position) const {
  return Figure(m_section.shape, At(position)).Moments();
}

CSecBox CSecGeom::Box(double position, double angle) const {
  auto const dimensions = At(position);
  Figure const figure(m_section.shape, dimensions);
  double const c = std::cos(angle);
  double const s = std::sin(angle);
  CSecBox box;
  bool first = true;
  for (auto const& [centre, radius] : figure.Hull()) {
    Point const at =
        angle == 0 ? centre : Point{c * centre.x - s * centre.y, s * centre.x + c * centre.y};
    CSecBox const own{at.x + radius, at.x - radius, at.y + radius, at.y - radius};
    box = first ? own
                : CSecBox{std::max(box.left, own.left), std::min(box.right, own.right),
                          std::max(box.top, own.top), std::min(box.bottom, own.bottom)};
    first = false;
  }
  return box;
}

}  // namespace Tarvex::Data
