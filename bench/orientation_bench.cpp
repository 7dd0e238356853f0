// Workloads of the orientation tools on a plate in which every second element faces down:
// AlignNormals, AgreeNormals, AlignEdges.
#include <benchmark/benchmark.h>

#include "bench/plate.h"
#include "tarvex/orientation.h"

namespace Tarvex::Bench {
namespace {

Util::CSet All(CZelData const& model) {
  Util::CSet set(SelElement);
  for (int n = 1; n <= model.HighestElem(); ++n) set.AddTo(n);
  return set;
}

long long CountDown(CZelData const& model) {
  long long count = 0;
  for (int n = 1; n <= model.HighestElem(); ++n) count += model.Normal(n).z < 0 ? 1 : 0;
  return count;
}

template <class Tool>
void Run(benchmark::State& state) {
  CZelData plate;
  int const side = SideOf(state.range(0));
  MakePlate(plate, side);
  Require(CountDown(plate), 1LL * side * side / 2, "elements that face down before");
  auto const set = All(plate);
  for (auto _ : state) {
    state.PauseTiming();
    CZelData model(plate);
    state.ResumeTiming();
    Tool tool(model);
    tool.SetSet(set);
    benchmark::DoNotOptimize(tool.Do());
    state.PauseTiming();
    if constexpr (!std::is_same_v<Tool, CAlignElem2DEdges>)
      Require(CountDown(model), 0, "elements that face down after");
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * side * side);
}

void AlignNormals(benchmark::State& state) { Run<CAlignElem2DZ>(state); }
void AgreeNormals(benchmark::State& state) { Run<CFlipElem2D>(state); }
void AlignEdges(benchmark::State& state) { Run<CAlignElem2DEdges>(state); }

BENCHMARK(AlignNormals)->Apply(Sizes);
BENCHMARK(AgreeNormals)->Apply(Sizes);
BENCHMARK(AlignEdges)->Apply(Sizes);

}  // namespace
}  // namespace Tarvex::Bench
