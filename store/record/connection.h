// Releases between an element and its nodes.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "store/export.h"
#include "store/numeric/vbool6.h"
#include "store/record/field.h"

namespace Tarvex {

/// Connection of one topology position to its node: which directions are released, and the spring
/// stiffness that a released direction keeps (force or moment by length or radian).
class CElemConnect {
 public:
  CElemConnect() = default;
  explicit CElemConnect(Vbool6 release) : m_release(release) {}

  Vbool6 Release() const { return m_release; }
  void SetRelease(Vbool6 release) { m_release = release; }
  double Stiffness(Direction d) const { return m_stiffness[Place(d)]; }
  void SetStiffness(Direction d, double stiffness) { m_stiffness[Place(d)] = stiffness; }

  /// True when nothing is released and no stiffness is set; a stiffness of -0 is none.
  bool IsNone() const { return m_release.IsNone() && m_stiffness == std::array<double, 6>{}; }

  friend bool operator==(CElemConnect const& a, CElemConnect const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<CElemConnect>("release", &CElemConnect::m_release),
                    Plain<CElemConnect>("stiffness", &CElemConnect::m_stiffness));
  }

 private:
  static std::size_t Place(Direction d) { return static_cast<std::size_t>(d - Direction::X); }

  Vbool6 m_release;
  std::array<double, 6> m_stiffness{};
};

namespace Data {

/// The connections of an element by topology position. Most elements have none, and then it holds
/// nothing; copies share what they hold.
class TARVEX_STORE_EXPORT ConnectList {
 public:
  /// The connection of a position; one without release for a position that was never set.
  CElemConnect const& At(int place) const;
  /// Throws std::out_of_range for a position below 0.
  void Set(int place, CElemConnect const& connect);
  /// Replaces all connections, by position from 0.
  void Assign(std::vector<CElemConnect> places);
  /// Forgets the positions from count on.
  void Truncate(int count);
  /// One above the highest position that is not free of releases.
  int Size() const { return m_places == nullptr ? 0 : static_cast<int>(m_places->size()); }
  bool IsEmpty() const { return m_places == nullptr; }

  friend bool operator==(ConnectList const& a, ConnectList const& b) {
    return a.m_places == b.m_places ||
           (a.m_places != nullptr && b.m_places != nullptr && *a.m_places == *b.m_places);
  }

 private:
  std::shared_ptr<std::vector<CElemConnect> const> m_places;  // its last entry is never free
};

}  // namespace Data
}  // namespace Tarvex
