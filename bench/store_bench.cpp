// Workloads of the store: Create, Memory, Copy, StoreAfterCopy, DifferenceOfOne, Attachments.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>

#include "bench/plate.h"
#include "store/record/node.h"

namespace Tarvex::Bench {
namespace {

using Model = std::unique_ptr<CZelData>;

Model Plate(benchmark::State const& state) {
  auto model = std::make_unique<CZelData>();
  MakePlate(*model, SideOf(state.range(0)));
  return model;
}

void Create(benchmark::State& state) {
  int const side = SideOf(state.range(0));
  for (auto _ : state) {
    auto model = std::make_unique<CZelData>();
    MakePlate(*model, side);
    Require(model->HighestElem(), 1LL * side * side, "elements");
    state.PauseTiming();
    model.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * 2 * side * side);
}

/// Memory of nodes and elements, with attachments built.
void Memory(benchmark::State& state) {
  double held = 0;
  for (auto _ : state) {
    malloc_trim(0);  // what earlier workloads freed would hide what this one takes
    double const before = Resident();
    auto const model = Plate(state);
    model->InitNodalUseElem();
    held = std::max(held, Resident() - before);
  }
  state.counters["MiB"] = held;
}

void Copy(benchmark::State& state) {
  auto const model = Plate(state);
  for (auto _ : state) benchmark::DoNotOptimize(model->Snapshot());
}

void StoreAfterCopy(benchmark::State& state) {
  auto const model = Plate(state);
  auto const element = model->Elem(1);
  for (auto _ : state) {
    auto const snapshot = model->Snapshot();
    model->SetElem(1, element);
    benchmark::DoNotOptimize(snapshot);
  }
}

void DifferenceOfOne(benchmark::State& state) {
  auto const model = Plate(state);
  auto const before = model->Snapshot();
  model->SetElemGroup(model->HighestElem() / 2, 2);
  for (auto _ : state) {
    int changed = 0;
    PagedTable<Data::CElement>::Difference(
        before->Elem(), model->Elem(),
        [&](int, auto const* a, auto const* b) { changed += *a == *b ? 0 : 1; });
    Require(changed, 1, "changed elements");
  }
}

void Attachments(benchmark::State& state) {
  auto const model = Plate(state);
  int const side = SideOf(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    CZelData copy(*model);
    state.ResumeTiming();
    copy.InitNodalUseElem();
    Require(copy.Node(side + 3).NumEntAttached(SelElement), 4, "elements at an inner node");
  }
  state.SetItemsProcessed(state.iterations() * side * side);
}

BENCHMARK(Create)->Apply(Sizes);
BENCHMARK(Memory)->Apply(Sizes)->Iterations(1);
BENCHMARK(Copy)->Apply(Sizes);
BENCHMARK(StoreAfterCopy)->Apply(Sizes);
BENCHMARK(DifferenceOfOne)->Apply(Sizes);
BENCHMARK(Attachments)->Apply(Sizes);

}  // namespace
}  // namespace Tarvex::Bench
