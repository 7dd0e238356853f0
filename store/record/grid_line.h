// Grid lines, which the drawing of a model is set out by.
#pragma once

#include "store/record/entity.h"

namespace Tarvex::Data {

/// A labelled line in the global xy plane. Its label is its name.
class CGridLine : public NamedEntity {
 public:
  CGridLine() = default;
  /// @param start plan of the first point. @param length along the line, model length units.
  /// @param angle of the line at its start from global x towards y, degrees. @param arc angle that
  /// the line turns through on its way, to the left where it is positive, degrees; 0 for a straight
  /// line.
  CGridLine(CString const& label, Vec2<double> const& start, double length, double angle,
            double arc)
      : NamedEntity(0, label), m_start(start), m_length(length), m_angle(angle), m_arc(arc) {}

  CString const& Label() const { return Name(); }
  Vec2<double> const& Start() const { return m_start; }
  double Length() const { return m_length; }
  double Angle() const { return m_angle; }
  double Arc() const { return m_arc; }

  friend bool operator==(CGridLine const& a, CGridLine const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CGridLine>(),
                    MakeRows(Plain<CGridLine>("start", &CGridLine::m_start),
                             Plain<CGridLine>("length", &CGridLine::m_length),
                             Plain<CGridLine>("angle", &CGridLine::m_angle),
                             Plain<CGridLine>("arc", &CGridLine::m_arc)));
  }

 private:
  Vec2<double> m_start;
  double m_length = 0;
  double m_angle = 0;
  double m_arc = 0;
};

}  // namespace Tarvex::Data
