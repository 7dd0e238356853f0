// What one run of the renumbering works on.
#pragma once

#include <map>

#include "renumber/list_mapper.h"
#include "renumber/schemes.h"
#include "store/model/zel_data.h"

namespace Tarvex {

/// One run: the live model, the model before it and the schemes.
struct RenumberRun {
  using Id = CModule::ModuleId;

  bool Has(Id module) const { return schemes.Has(module); }
  int Map(Id module, int number) const { return schemes.Map(module, number); }
  /// The new number of one that the scheme of its table holds; any other stays.
  int MapFound(Id module, int number) const {
    auto const* const scheme = schemes.Find(module);
    return scheme != nullptr ? scheme->MapFound(number) : number;
  }

  CZelData& model;
  CZelData const& before;
  Schemes const& schemes;
  bool refOnly;
  bool properties;  ///< whether properties are renumbered
};

}  // namespace Tarvex
