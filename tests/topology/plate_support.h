// Plates cut into pieces, and loads on them.
#pragma once

#include <cmath>
#include <limits>

#include "tests/topology/topology_support.h"

namespace Tarvex::Testing {

/// The parent, and the first number of its pieces.
inline constexpr int kParent = 70;
inline constexpr int kFirstPiece = 80;

/// A rectangle of columns by rows cells of 1 by 1 with its corner at the origin: its nodes, from 1
/// along x and then y, the parent on its corners, and the pieces cell by cell from kFirstPiece.
inline CZelData CutPlate(int columns, int rows, double width = 1, double height = 1) {
  CZelData model;
  for (int j = 0; j <= rows; ++j)
    for (int i = 0; i <= columns; ++i) NodeAt(model, width * i, height * j, 0);
  auto const at = [&](int i, int j) { return j * (columns + 1) + i + 1; };
  model.SetElem(kParent, Element(ElementType::Quad4,
                                 {at(0, 0), at(columns, 0), at(columns, rows), at(0, rows)}));
  int n = kFirstPiece;
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i)
      model.SetElem(n++, Element(ElementType::Quad4,
                                 {at(i, j), at(i + 1, j), at(i + 1, j + 1), at(i, j + 1)}));
  return model;
}

/// The parent and its pieces in ascending number.
inline NumberLists PiecesOf(CZelData const& model) {
  NumberLists pieces;
  for (int n = kFirstPiece; n <= model.HighestElem(); ++n) pieces[kParent].push_back(n);
  return pieces;
}

/// A load on the parent with values.
template <class Load>
Load OnParent(typename std::type_identity_t<decltype(Load().TypeOf())> type,
              std::vector<double> const& values, wchar_t const* list = L"70") {
  Load load;
  load.SetType(type);
  load.SetLoadCase(4);
  load.SetLoadedEntities(Elements(list));
  for (std::size_t i = 0; i < values.size(); ++i) load.SetValue(static_cast<int>(i), values[i]);
  return load;
}

/// List and values of a load.
struct SeenValues {
  std::wstring list;
  std::vector<double> values;
};
inline bool operator==(SeenValues const& a, SeenValues const& b) {
  if (a.list != b.list || a.values.size() != b.values.size()) return false;
  for (std::size_t i = 0; i < a.values.size(); ++i)
    if (!(std::abs(a.values[i] - b.values[i]) < 1e-12)) return false;
  return true;
}
inline void PrintTo(SeenValues const& seen, std::ostream* out) {
  *out << CString(seen.list).ToUtf8() << ":";
  for (double const value : seen.values) *out << " " << value;
}
using AllValues = std::vector<SeenValues>;

/// Lists and first values of all loads of a table.
template <class Load>
AllValues ValuesOf(std::vector<Load> const& loads, int count) {
  AllValues all;
  for (auto const& load : loads) {
    EXPECT_EQ(load.LoadCase(), 4);
    SeenValues seen{TextOf(load.LoadedEntities()), {}};
    for (int i = 0; i < count; ++i) seen.values.push_back(load.Value(i));
    all.push_back(seen);
  }
  return all;
}

}  // namespace Tarvex::Testing
