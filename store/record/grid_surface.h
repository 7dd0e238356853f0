// Grid surfaces: what takes the loads that are given on a grid.
#pragma once

#include "store/record/held_list.h"
#include "store/record/panel.h"

namespace Tarvex {

/// Which elements of a grid surface take its loads.
enum class GridElementType : int {
  Lines = 1,   ///< 1D elements, by the panels between them
  Plates = 2,  ///< 2D elements, each what lies on it
};

namespace Data {

/// A named set of elements in a grid plane; at first all elements. The panels between them are
/// derived and no part of equality or files: they are those of the last search, and go when a field
/// that they follow from is set. A copy takes them along, and can be searched by itself.
class TARVEX_STORE_EXPORT CGridSurface : public NamedEntity {
 public:
  CGridSurface() = default;
  CGridSurface(CString const& name, int plane, CEntList const& elements, GridElementType type)
      : NamedEntity(0, name), m_plane(plane), m_elementType(type) {
    m_elements.Put(elements);
  }

  /// Number of the grid plane.
  int Plane() const { return m_plane; }
  void SetPlane(int plane) {
    m_plane = plane;
    m_panels.Clear();
  }
  Storage<CEntList> const& Elements() const { return m_elements; }
  /// Throws std::invalid_argument for a list of another kind than elements that names something.
  void SetElements(CEntList const& elements) {
    m_elements.Put(elements);
    m_panels.Clear();
  }
  GridElementType ElementType() const { return m_elementType; }
  void SetElementType(GridElementType type) {
    m_elementType = type;
    m_panels.Clear();
  }

  /// Whether the panels have been searched for.
  bool IsIndexed() const { return m_panels.Get() != nullptr; }
  /// Number of panels, 0 before the search.
  int _NumPanel() const;
  /// A panel, from 0; good until the next search or change. Throws std::out_of_range for one that
  /// there is not.
  CPanel const& Panel(int index) const;

  friend bool operator==(CGridSurface const& a, CGridSurface const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CGridSurface>(),
        MakeRows(Reference<CGridSurface, CModule::GridPlane>("plane", &CGridSurface::m_plane),
                 Plain<CGridSurface>("elements", &CGridSurface::m_elements),
                 Plain<CGridSurface>("elementType", &CGridSurface::m_elementType)));
  }

 private:
  friend struct PanelAccess;

  int m_plane = 0;
  ListOf<SelElement> m_elements{CEntList::All()};
  GridElementType m_elementType = GridElementType::Lines;
  mutable KeptValue<std::vector<CPanel>> m_panels;
};

/// The way of the panel search to what surfaces keep of it.
struct PanelAccess {
  static void Set(CGridSurface const& surface, std::vector<CPanel> panels) {
    surface.m_panels.Set(std::move(panels));
  }
};

}  // namespace Data
}  // namespace Tarvex
