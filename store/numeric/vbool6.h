// Six flags, one a degree of freedom.
#pragma once

#include <cstdint>

#include "store/export.h"
#include "store/numeric/direction.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// Flags of the translations X, Y, Z and the rotations XX, YY, ZZ; none set at first.
class Vbool6 {
 public:
  constexpr Vbool6() = default;
  constexpr Vbool6(bool x, bool y, bool z, bool xx, bool yy, bool zz)
      : m_bits(static_cast<std::uint8_t>(x | y << 1 | z << 2 | xx << 3 | yy << 4 | zz << 5)) {}
  /// "free" sets none, "pin" the three translations, "fix" all six; any other text is
  /// std::invalid_argument.
  TARVEX_STORE_EXPORT explicit Vbool6(CString const& name);

  constexpr bool X() const { return Get(Direction::X); }
  constexpr bool Y() const { return Get(Direction::Y); }
  constexpr bool Z() const { return Get(Direction::Z); }
  constexpr bool XX() const { return Get(Direction::XX); }
  constexpr bool YY() const { return Get(Direction::YY); }
  constexpr bool ZZ() const { return Get(Direction::ZZ); }
  constexpr void X(bool on) { Set(Direction::X, on); }
  constexpr void Y(bool on) { Set(Direction::Y, on); }
  constexpr void Z(bool on) { Set(Direction::Z, on); }
  constexpr void XX(bool on) { Set(Direction::XX, on); }
  constexpr void YY(bool on) { Set(Direction::YY, on); }
  constexpr void ZZ(bool on) { Set(Direction::ZZ, on); }

  constexpr bool Get(Direction d) const { return (m_bits & Bit(d)) != 0; }
  constexpr void Set(Direction d, bool on) {
    m_bits = static_cast<std::uint8_t>(on ? m_bits | Bit(d) : m_bits & ~Bit(d));
  }
  constexpr void SetAll(bool on) { m_bits = on ? 0x3F : 0; }
  constexpr bool IsNone() const { return m_bits == 0; }

  friend constexpr Vbool6 operator&(Vbool6 a, Vbool6 b) { return Vbool6(a.m_bits & b.m_bits); }
  friend constexpr Vbool6 operator|(Vbool6 a, Vbool6 b) { return Vbool6(a.m_bits | b.m_bits); }
  friend constexpr bool operator==(Vbool6, Vbool6) = default;

 private:
  constexpr explicit Vbool6(int bits) : m_bits(static_cast<std::uint8_t>(bits)) {}
  static constexpr int Bit(Direction d) { return 1 << (static_cast<int>(d) - 1); }

  std::uint8_t m_bits = 0;
};

}  // namespace Tarvex
