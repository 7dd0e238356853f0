// The geometry of section components.
#pragma once

#include "store/export.h"
#include "store/geometry/area_moments.h"
#include "store/record/field.h"
#include "store/record/section_shape.h"

namespace Tarvex::Data {

/// Limits of a section in its plane, model length units; left is towards +y.
struct CSecBox {
  double left = 0;
  double right = 0;
  double top = 0;
  double bottom = 0;

  double Width() const { return left - right; }
  double Height() const { return top - bottom; }
  friend bool operator==(CSecBox const&, CSecBox const&) = default;
};

/// The shape of a component from its description (store/record/section_shape.h). One that was built
/// from a text that can't be read keeps the text and has no shape.
class TARVEX_STORE_EXPORT CSecGeom {
 public:
  using Prop = SectionProp;

  CSecGeom() = default;
  explicit CSecGeom(CString const& description);

  CString const& Text() const { return m_text; }
  /// Takes another text. @return false, and the shape as it was, for one that can't be read; fault
  /// then tells why.
  bool SetDescription(CString const& description, SectionFault* fault = nullptr);
  bool IsReadable() const { return m_readable; }
  /// The text. @param normal in model length units and with the shortest numbers, so that equal
  /// shapes have equal texts; a text that can't be read stays as it is.
  CString Description(bool normal) const;

  /// The kind of the shape.
  SectionShape Type() const { return m_section.shape; }
  /// A dimension, model length units; 0 for one that the shape has not. @param position along the
  /// element, from 0 at end 1 to 1 at end 2
  double Dimension(double position, Prop prop) const;

  /// Area and moments about the middle of the box around the shape, x being the section's y and y
  /// its z. Roundings of roots and corners count.
  Util::AreaMoments Moments(double position) const;
  /// Box around the shape turned by an angle (radians) about that point, from there.
  CSecBox Box(double position, double angle) const;

  friend bool operator==(CSecGeom const& a, CSecGeom const& b) { return a.m_text == b.m_text; }

 private:
  SectionDimensions At(double position) const;

  CString m_text;
  SectionText m_section;
  bool m_readable = true;
};

}  // namespace Tarvex::Data
