// Response spectra: how a structure of one period answers an earthquake.
#pragma once

#include <vector>

#include "store/record/entity.h"

namespace Tarvex::Data {

/// A spectrum, of a design code or by its points.
class CResSpectrum : public NamedEntity {
 public:
  /// Numbers of design codes that are treated in a way of their own.
  enum CodeNumber : int { kByPoints = 0, kChina = 11, kChinaLocal = 15 };

  CResSpectrum() = default;
  CResSpectrum(CString const& name, int codeType, double factor)
      : NamedEntity(0, name), m_codeType(codeType), m_factor(factor) {}

  /// Number of the design code, 0 for a spectrum by its points.
  int CodeType() const { return m_codeType; }
  void SetCodeType(int codeType) { m_codeType = codeType; }
  /// What its ordinates are multiplied by.
  double Factor() const { return m_factor; }
  void SetFactor(double factor) { m_factor = factor; }
  /// Part of critical damping that it holds for.
  double DampingRatio() const { return m_dampingRatio; }
  void SetDampingRatio(double ratio) { m_dampingRatio = ratio; }
  /// Period and acceleration, in model units.
  std::vector<Vec2<double>> const& Points() const { return m_points; }
  void SetPoints(std::vector<Vec2<double>> points) { m_points = std::move(points); }

  friend bool operator==(CResSpectrum const& a, CResSpectrum const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CResSpectrum;
    return JoinRows(
        NamedFields<R>(),
        MakeRows(Plain<R>("codeType", &R::m_codeType), Plain<R>("factor", &R::m_factor),
                 Plain<R>("dampingRatio", &R::m_dampingRatio), Plain<R>("points", &R::m_points)));
  }

 private:
  int m_codeType = kByPoints;
  double m_factor = 1;
  double m_dampingRatio = 0.05;
  std::vector<Vec2<double>> m_points;
};

}  // namespace Tarvex::Data
