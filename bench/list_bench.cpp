// Selection lists of as many words as the size says: ListParse reads and prints a text, ListExpand
// expands it over a plate of as many elements, ListMap takes a number out of it.
#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include "bench/plate.h"
#include "store/model/list_expansion.h"
#include "store/record/ent_list.h"

namespace Tarvex::Bench {
namespace {

void WordCounts(benchmark::internal::Benchmark* workload) {
  workload->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
}

/// Every second number, with an operator at every tenth word: "1 3 5 7 9 or 11 13 ...".
std::wstring ListText(long words) {
  std::wstring text;
  int number = -1;
  for (long i = 0; i < words; ++i) {
    text += i % 10 == 9 ? L"or" : std::to_wstring(number += 2);
    text += L' ';
  }
  return text;
}

/// Numbers that stand in the text.
long long NumbersIn(long words) { return words - words / 10; }

void ListParse(benchmark::State& state) {
  CString const text(ListText(state.range(0)));
  for (auto _ : state) {
    Data::CEntList list(SelElement, L"");
    Require(list.SetString(text) ? list.NumWord() : 0, state.range(0), "words");
    benchmark::DoNotOptimize(list.String(true));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ListExpand(benchmark::State& state) {
  CZelData model;
  MakePlate(model, SideOf(2 * state.range(0)) + 1);
  Data::CEntList list(SelElement, CString(ListText(state.range(0))));
  for (auto _ : state) {
    list.FlagRebuild();
    Require(Util::NumItem(list, model, -1), NumbersIn(state.range(0)), "items");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ListMap(benchmark::State& state) {
  CZelData const model;
  Data::CEntList const whole(SelElement, CString(ListText(state.range(0))));
  for (auto _ : state) {
    auto list = whole;
    Require(Util::Replace(list, {{3, {}}, {5, {6, 8}}}, model) ? list.NumWord() : 0, state.range(0),
            "words");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(ListParse)->Apply(WordCounts);
BENCHMARK(ListExpand)->Apply(WordCounts);
BENCHMARK(ListMap)->Apply(WordCounts);

}  // namespace
}  // namespace Tarvex::Bench
