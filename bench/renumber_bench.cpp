// Workloads of renumbering on a plate: Compact closes a hole before all nodes and elements,
// CompactLists does so with 10^4 lists, Shuffle gives all numbers another order. Merge makes half
// as many merges as there are records: upwards, downwards and in no order.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "bench/plate.h"
#include "store/record/node.h"
#include "tarvex/renumber.h"

namespace Tarvex::Bench {
namespace {

constexpr int kLists = 10000;

/// A plate of which the first node and corner element are gone, so that every number moves.
CZelData HoledPlate(int side) {
  CZelData plate;
  MakePlate(plate, side);
  plate.BlankElem(1, 1);
  plate.BlankNode(1, 1);
  return plate;
}

void AddLists(CZelData& model) {
  for (int i = 1; i <= kLists; ++i) {
    Data::CEntList list(L"", SelNode, L"");
    list.SetString(std::to_wstring(i) + L" to " + std::to_wstring(i + 500) + L" 7 X3");
    model.SetList(i, list);
  }
}

/// Runs a renumbering of nodes and elements that is made for each copy of a plate.
template <class Prepare>
void Run(benchmark::State& state, CZelData const& plate, long long nodes, long long elements,
         Prepare&& prepare) {
  for (auto _ : state) {
    state.PauseTiming();
    CZelData model(plate);
    state.ResumeTiming();
    CRenumber renumber(&model);
    prepare(renumber);
    benchmark::DoNotOptimize(renumber.Go(false));
    state.PauseTiming();
    Require(model.HighestNode(), nodes, "highest node");
    Require(model.HighestElem(), elements, "highest element");
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * (nodes + elements));
}

void CompactBoth(CRenumber& renumber) {
  renumber.Index(CModule::Node);
  renumber.Index(CModule::Elem);
}

void Compact(benchmark::State& state) {
  int const side = SideOf(state.range(0));
  auto const plate = HoledPlate(side);
  Run(state, plate, 1LL * (side + 1) * (side + 1) - 1, 1LL * side * side - 1, &CompactBoth);
}

void CompactLists(benchmark::State& state) {
  int const side = SideOf(state.range(0));
  auto plate = HoledPlate(side);
  AddLists(plate);
  Run(state, plate, 1LL * (side + 1) * (side + 1) - 1, 1LL * side * side - 1, &CompactBoth);
}

std::map<int, int> Shuffled(int count) {
  std::vector<int> numbers(static_cast<std::size_t>(count));
  for (int n = 1; n <= count; ++n) numbers[static_cast<std::size_t>(n) - 1] = n;
  std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
  std::map<int, int> scheme;
  for (int n = 1; n <= count; ++n) scheme[n] = numbers[static_cast<std::size_t>(n) - 1];
  return scheme;
}

void Shuffle(benchmark::State& state) {
  int const side = SideOf(state.range(0));
  CZelData plate;
  MakePlate(plate, side);
  auto const nodes = Shuffled((side + 1) * (side + 1));
  auto const elements = Shuffled(side * side);
  Run(state, plate, 1LL * (side + 1) * (side + 1), 1LL * side * side, [&](CRenumber& renumber) {
    renumber.Index(CModule::Node, nodes);
    renumber.Index(CModule::Elem, elements);
  });
}

/// Merges, each of a number into its neighbour: upwards, downwards, or in no order.
void Merge(benchmark::State& state) {
  auto const count = static_cast<int>(state.range(0));
  std::map<int, int> identity;
  for (int n = 1; n <= count; ++n) identity.emplace_hint(identity.end(), n, n);
  std::vector<int> order(static_cast<std::size_t>(count / 2));
  for (int i = 0; i < count / 2; ++i) order[static_cast<std::size_t>(i)] = i + 1;
  if (state.range(1) == 1) std::reverse(order.begin(), order.end());
  if (state.range(1) == 2) std::shuffle(order.begin(), order.end(), std::mt19937(1));
  for (auto _ : state) {
    state.PauseTiming();
    CRenumber renumber;
    renumber.Index(CModule::Node, identity);
    state.ResumeTiming();
    for (int const n : order) renumber.IndexItem(CModule::Node, n, n + 1);
    state.PauseTiming();
    // Upwards every number ends on the last one; the last that was merged does so in any order.
    Require(renumber.MapItem(CModule::Node, count / 2), count / 2 + 1, "the last merged number");
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * count / 2);
}

BENCHMARK(Compact)->Apply(Sizes);
BENCHMARK(CompactLists)->Apply(Sizes);
BENCHMARK(Shuffle)->Apply(Sizes);
BENCHMARK(Merge)
    ->Unit(benchmark::kMillisecond)
    ->ArgsProduct({{1000, 10000, 100000, 1000000}, {0, 1, 2}});

}  // namespace
}  // namespace Tarvex::Bench
