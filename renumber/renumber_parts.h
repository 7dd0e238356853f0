// What a CRenumber is made of.
#pragma once

#include <memory>

#include "renumber/schemes.h"
#include "tarvex/renumber.h"

namespace Tarvex {

struct CRenumber::Parts {
  Schemes schemes;
  bool refOnly = false;
  CZelData* model = nullptr;
  std::shared_ptr<CZelData const> before;  // null until a run
};

}  // namespace Tarvex
