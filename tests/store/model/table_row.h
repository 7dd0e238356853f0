// One table of a model, as tests of the wiring write it out by hand.
#pragma once

#include <string>

#include "store/model/zel_data.h"
#include "store/record/task_slot.h"

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
R WithSid(R record, wchar_t const* sid = L"id") {
  record.SetSid(sid);
  return record;
}
inline Zel::TaskSlot WithSid(Zel::TaskSlot const& slot, wchar_t const* sid = L"id") {
  auto task = slot.Get().Clone();
  task->SetSid(sid);
  return Zel::TaskSlot(*task);
}

// A row of a table whose operations all bear its stem.
// clang-format off
#define TARVEX_ROW_OF(Stem, module, Record, a, b)                                           \
  Row<Record> {                                                                             \
    std::string(#Stem), module, WithSid(Record a), Record b,                                \
        [](CZelData const& m, int n) { return m.Stem##Exist(n); },                          \
        [](CZelData const& m, int n) -> Record const& { return m.Stem(n); },                \
        [](CZelData const& m) -> WholeTable<Record> const& { return m.Stem(); },            \
        [](CZelData const& m) { return m.Highest##Stem(); },                                \
        [](CZelData& m, int n, Record const& r, SidMode s) { m.Set##Stem(n, r, s); },       \
        [](CZelData& m, int first, int count) { m.Blank##Stem(first, count); }              \
  }
// clang-format on

}  // namespace Tarvex::RegistryTest
