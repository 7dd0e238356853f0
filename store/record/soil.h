// Soil: layers one below the other, and the areas that they lie under.
#pragma once

#include <vector>

#include "store/record/entity.h"
#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// A layer of soil; stiffness varies from its top to its bottom.
class GeoStratum {
 public:
  GeoStratum() = default;
  GeoStratum(double topYoungsModulus, double bottomYoungsModulus, double poissonsRatio)
      : m_topYoungsModulus(topYoungsModulus),
        m_bottomYoungsModulus(bottomYoungsModulus),
        m_poissonsRatio(poissonsRatio) {}

  double GetTopYoungsModulus() const { return m_topYoungsModulus; }
  double GetBottomYoungsModulus() const { return m_bottomYoungsModulus; }
  double GetPoissonsRatio() const { return m_poissonsRatio; }

 protected:
  template <class Record>
  static constexpr auto StratumFields() {
    return MakeRows(Plain<Record>("topYoungsModulus", &GeoStratum::m_topYoungsModulus),
                    Plain<Record>("bottomYoungsModulus", &GeoStratum::m_bottomYoungsModulus),
                    Plain<Record>("poissonsRatio", &GeoStratum::m_poissonsRatio));
  }

 private:
  double m_topYoungsModulus = 0;
  double m_bottomYoungsModulus = 0;
  double m_poissonsRatio = 0;
};

/// A layer that ends at a level.
class GeoSedoStratum : public GeoStratum {
 public:
  GeoSedoStratum() = default;
  GeoSedoStratum(double level, GeoStratum const& stratum) : GeoStratum(stratum), m_level(level) {}

  /// Global z of its bottom.
  double GetLevel() const { return m_level; }

  friend bool operator==(GeoSedoStratum const& a, GeoSedoStratum const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return JoinRows(MakeRows(Plain<GeoSedoStratum>("level", &GeoSedoStratum::m_level)),
                    StratumFields<GeoSedoStratum>());
  }

 private:
  double m_level = 0;
};

/// The layers of a place, from the top down.
class GeoSoilProfile : public NamedEntity {
 public:
  GeoSoilProfile() = default;
  GeoSoilProfile(CString const& name, std::vector<GeoSedoStratum> strata)
      : NamedEntity(0, name), m_strata(std::move(strata)) {}

  int NumStrata() const { return static_cast<int>(m_strata.size()); }
  /// A layer, from 0. Throws std::out_of_range for one that there is not.
  GeoSedoStratum const& GetStratum(int index) const { return CheckedAt(m_strata, index); }
  std::vector<GeoSedoStratum> const& Strata() const { return m_strata; }
  void SetStrata(std::vector<GeoSedoStratum> strata) { m_strata = std::move(strata); }

  friend bool operator==(GeoSoilProfile const& a, GeoSoilProfile const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<GeoSoilProfile>(),
                    MakeRows(Plain<GeoSoilProfile>("strata", &GeoSoilProfile::m_strata)));
  }

 private:
  std::vector<GeoSedoStratum> m_strata;
};

/// Names a soil profile.
class GeoID {
 public:
  GeoID() = default;
  explicit GeoID(int ref) : m_ref(ref) {}

  /// Number of the profile, 0 for none.
  int GetRef() const { return m_ref; }

  friend bool operator==(GeoID const& a, GeoID const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Reference<GeoID, CModule::SoilProfile>("ref", &GeoID::m_ref));
  }

 private:
  int m_ref = 0;
};

/// A rectangle in plan with the profile of the soil below it.
class GeoSoilZone : public NamedEntity {
 public:
  GeoSoilZone() = default;
  GeoSoilZone(CString const& name, GeoID profile) : NamedEntity(0, name), m_profile(profile) {}

  CString const& GetName() const { return Name(); }
  GeoID GetProfile() const { return m_profile; }
  void SetProfile(GeoID profile) { m_profile = profile; }
  /// Limits in global co-ordinates.
  double GetXminZone() const { return m_xmin; }
  double GetXmaxZone() const { return m_xmax; }
  double GetYminZone() const { return m_ymin; }
  double GetYmaxZone() const { return m_ymax; }
  void SetX(double min, double max) {
    m_xmin = min;
    m_xmax = max;
  }
  void SetY(double min, double max) {
    m_ymin = min;
    m_ymax = max;
  }

  friend bool operator==(GeoSoilZone const& a, GeoSoilZone const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = GeoSoilZone;
    return JoinRows(NamedFields<R>(),
                    MakeRows(Plain<R>("profile", &R::m_profile), Plain<R>("xmin", &R::m_xmin),
                             Plain<R>("xmax", &R::m_xmax), Plain<R>("ymin", &R::m_ymin),
                             Plain<R>("ymax", &R::m_ymax)));
  }

 private:
  GeoID m_profile;
  double m_xmin = 0;
  double m_xmax = 0;
  double m_ymin = 0;
  double m_ymax = 0;
};

}  // namespace Tarvex::Data
