// What kind of structure a model is.
#pragma once

namespace Tarvex {

/// The space that a structure lives in, which tells the directions that nothing moves in.
enum class StrType : int {
  Space = 0,
  PlaneXZ = 1,
  GridXY = 2,
  PlaneStress = 3,
  PlaneStrain = 4,
  AxiSymmetric = 5,
};

}  // namespace Tarvex
