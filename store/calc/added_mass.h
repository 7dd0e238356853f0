// Mass that loads stand for.
#pragma once

#include "store/numeric/direction.h"
#include "store/record/case_desc.h"

namespace Tarvex {

/// Loads of a case that count as mass: force in a direction divided by gravity, scaled.
struct AddedMass {
  bool isUsed = false;
  Data::CCaseDesc loads;
  Direction direction = Direction::Z;
  double scale = 1;
};

}  // namespace Tarvex
