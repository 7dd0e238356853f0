// Workloads of the conversion on a plate of quadrilaterals: ToQuadratic, ToLinear, ToTriangles,
// ToQuadraticShuffled on nodes in no order with others beside them, and ToTrianglesLoaded with a
// pressure by corner on each element and a uniform one on a list of them all.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "bench/plate.h"
#include "store/record/ent_list.h"
#include "store/record/face_loads.h"
#include "store/record/node.h"
#include "tarvex/conversion.h"

namespace Tarvex::Bench {
namespace {

Util::CSet AllOf(CZelData const& model) {
  Util::CSet set(SelElement);
  for (int n = 1; n <= model.HighestElem(); ++n) set.AddTo(n);
  return set;
}

template <class Tool>
void Convert(CZelData& model, Util::CSet const& set) {
  Tool tool(model);
  tool.SetSet(set);
  benchmark::DoNotOptimize(tool.Do());
}

/// The plate on nodes in a random order, with 1000 nodes a kilometre away that are on nothing:
/// new nodes are compared with them.
void MakeShuffledPlate(CZelData& model, int side) {
  std::vector<int> numbers(static_cast<std::size_t>((side + 1) * (side + 1)));
  std::iota(numbers.begin(), numbers.end(), 1);
  std::mt19937 engine(1);
  std::shuffle(numbers.begin(), numbers.end(), engine);
  CZelData plate;
  MakePlate(plate, side);
  model.rebuildHold = true;
  auto const at = [&](int n) { return numbers[static_cast<std::size_t>(n) - 1]; };
  for (auto const& [n, node] : plate.Node()) model.SetNode(at(static_cast<int>(n)), node);
  for (auto const& [n, element] : plate.Elem()) {
    auto moved = element;
    for (int i = 0; i < element.NumTopo(); ++i) moved.SetTopo(i, at(element.Topo(i)));
    model.SetElem(static_cast<int>(n), moved);
  }
  for (int i = 0; i < 1000; ++i)
    model.CreateNode(model.HighestNode() + 1, {1000.0, 0.1 * i, 0}, 0, Vbool6());
  model.rebuildHold = false;
}

/// Runs a conversion of a plate. @param check calls Require on what came out, given the side.
template <class Tool, class Make, class Check>
void Run(benchmark::State& state, Make&& make, Check&& check) {
  CZelData plate;
  int const side = SideOf(state.range(0));
  make(plate, side);
  auto const set = AllOf(plate);
  for (auto _ : state) {
    state.PauseTiming();
    CZelData model(plate);
    state.ResumeTiming();
    Convert<Tool>(model, set);
    state.PauseTiming();
    check(model, side);
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * side * side);
}

long long NumNodes(CZelData const& model) { return model.NumEnt(SelNode); }

void ToQuadratic(benchmark::State& state) {
  Run<CMod2DToQuadratic>(state, &MakePlate, [](CZelData const& model, int side) {
    Require(NumNodes(model), 1LL * (side + 1) * (side + 1) + 2LL * side * (side + 1), "nodes");
  });
}

void ToQuadraticShuffled(benchmark::State& state) {
  Run<CMod2DToQuadratic>(state, &MakeShuffledPlate, [](CZelData const& model, int side) {
    Require(NumNodes(model), 1LL * (side + 1) * (side + 1) + 2LL * side * (side + 1) + 1000,
            "nodes");
  });
}

void ToLinear(benchmark::State& state) {
  auto const make = [](CZelData& model, int side) {
    MakePlate(model, side);
    Convert<CMod2DToQuadratic>(model, AllOf(model));
  };
  Run<CMod2DToLinear>(state, make, [](CZelData const& model, int side) {
    Require(NumNodes(model), 1LL * (side + 1) * (side + 1), "nodes");
  });
}

void ToTriangles(benchmark::State& state) {
  Run<CMod2DToTriangle>(state, &MakePlate, [](CZelData const& model, int side) {
    Require(model.NumEnt(SelElement), 2LL * side * side, "elements");
    Require(model.HighestElem(), 3LL * side * side, "highest element");
  });
}

void MakeLoadedPlate(CZelData& model, int side) {
  MakePlate(model, side);
  std::vector<int> all;
  Data::CFaceLoad load;
  load.SetLoadCase(1);
  load.SetDirection(Direction::Z);
  for (int i = 0; i < 4; ++i) load.SetValue(i, -5);
  load.SetType(Data::CFaceLoad::Load2D::PerCorner);
  for (int n = 1; n <= model.HighestElem(); ++n) {
    load.SetLoadedEntities(Data::CEntList(SelElement, std::vector<int>{n}));
    model.SetFaceLoad(n, load);
    all.push_back(n);
  }
  load.SetType(Data::CFaceLoad::Load2D::Uniform);
  load.SetLoadedEntities(Data::CEntList(SelElement, all));
  model.SetFaceLoad(model.HighestFaceLoad() + 1, load);
}

void ToTrianglesLoaded(benchmark::State& state) {
  Run<CMod2DToTriangle>(state, &MakeLoadedPlate, [](CZelData const& model, int side) {
    Require(model.HighestFaceLoad(), 2LL * side * side + 1, "loads");
    Require(model.FaceLoad(1).LoadedEntities().NumWord(), 2LL * side * side, "loaded elements");
  });
}

BENCHMARK(ToQuadratic)->Apply(Sizes);
BENCHMARK(ToQuadraticShuffled)->Apply(Sizes);
BENCHMARK(ToLinear)->Apply(Sizes);
BENCHMARK(ToTriangles)->Apply(Sizes);
BENCHMARK(ToTrianglesLoaded)->Apply(Sizes);

}  // namespace
}  // namespace Tarvex::Bench
