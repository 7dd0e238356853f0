// Bricks cut into pieces.
#pragma once

#include "tests/topology/plate_support.h"

namespace Tarvex::Testing {

/// A box of columns by rows by layers cells of 1 by 1 by 1 with its corner at the origin: the
/// parent on its corners, and the pieces cell by cell along x, y and z from kFirstPiece. All are
/// numbered alike: near face below, round from the corner next to the origin.
inline CZelData CutBrick(int columns, int rows, int layers) {
  CZelData model;
  for (int k = 0; k <= layers; ++k)
    for (int j = 0; j <= rows; ++j)
      for (int i = 0; i <= columns; ++i) NodeAt(model, i, j, k);
  auto const at = [&](int i, int j, int k) { return (k * (rows + 1) + j) * (columns + 1) + i + 1; };
  auto const brick = [&](int i, int j, int k, int dx, int dy, int dz) {
    return Element(ElementType::Brick8, {at(i, j, k), at(i + dx, j, k), at(i + dx, j + dy, k),
                                         at(i, j + dy, k), at(i, j, k + dz), at(i + dx, j, k + dz),
                                         at(i + dx, j + dy, k + dz), at(i, j + dy, k + dz)});
  };
  model.SetElem(kParent, brick(0, 0, 0, columns, rows, layers));
  int n = kFirstPiece;
  for (int k = 0; k < layers; ++k)
    for (int j = 0; j < rows; ++j)
      for (int i = 0; i < columns; ++i) model.SetElem(n++, brick(i, j, k, 1, 1, 1));
  return model;
}

/// The face of a brick numbered as CutBrick does whose nodes all pass a test; -1 for none.
template <class Test>
int FaceWhere(CZelData const& model, int brick, Test&& test) {
  for (int face = 0; face < 6; ++face) {
    bool all = true;
    for (int const node : model.Elem(brick).FaceTopo(face)) all = all && test(model.NodeCoor(node));
    if (all) return face;
  }
  return -1;
}

}  // namespace Tarvex::Testing
