// One table of a model, as tests of the wiring write it out by hand.
#pragma once

#include <string>

#include "store/model/zel_data.h"

namespace Tarvex::RegistryTest {

template <class R>
using WholeTable = tarvex_unordered_map<unsigned int, R>;

/// One table: its operations by name, and two records that differ.
template <class R>
struct Row {
  std::string stem;
  int module;
  R a;
  R b;
  bool (*exist)(CZelData const&, int);
  R const& (*get)(CZelData const&, int);
  WholeTable<R> const& (*all)(CZelData const&);
  int (*highest)(CZelData const&);
  void (*set)(CZelData&, int, R const&, SidMode);
  void (*blank)(CZelData&, int, int);
};

template <class R>
R WithSid(R record) {
  record.SetSid(L"id");
  return record;
}

}  // namespace Tarvex::RegistryTest
