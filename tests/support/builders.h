// Small models in few words.
#pragma once

#include "store/model/zel_data.h"

namespace Tarvex::Testing {

/// A plate of 4-noded quadrilaterals in the plane z = 0: columns by rows squares of unit size.
/// Nodes and elements are numbered from 1 along x, then y; normals point upward.
inline void Grid(CZelData& model, int columns, int rows) {
  for (int j = 0; j <= rows; ++j)
    for (int i = 0; i <= columns; ++i)
      model.CreateNode(model.HighestNode() + 1, {double(i), double(j), 0}, 0, Vbool6());
  for (int j = 0; j < rows; ++j)
    for (int i = 0; i < columns; ++i) {
      int const a = j * (columns + 1) + i + 1;
      int const n = model.HighestElem() + 1;
      Data::CElement element(1, ElementType::Quad4, 1);
      element.SetTopo(std::vector{a, a + 1, a + columns + 2, a + columns + 1});
      model.SetElem(n, element);
    }
}

}  // namespace Tarvex::Testing
