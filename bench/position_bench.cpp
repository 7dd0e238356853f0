// Nodes by their position: AroundPoint and NodeAt find, NodeAtMakes makes as many again, HeldAround
// asks straight after each store of a node in a rebuild hold.
#include <benchmark/benchmark.h>

#include "bench/plate.h"
#include "store/model/get_node_at.h"
#include "store/record/node.h"
#include "store/text/cstring.h"

namespace Tarvex::Bench {
namespace {

/// Centre of a plate of squares of 0.5 m.
Vec3<double> MiddleOf(int side) { return {0.5 * (side / 2), 0.5 * (side / 2), 0}; }

void AroundPoint(benchmark::State& state) {
  CZelData model;
  int const side = SideOf(state.range(0));
  MakePlate(model, side);
  std::vector<int> found;
  for (auto _ : state) {
    // 0.75 m reaches the eight neighbours, at 0.5 and 0.71 m.
    model.NodesAroundPoint(MiddleOf(side), found, 0.75);
    Require(static_cast<long long>(found.size()), 9, "nodes around a point");
  }
  state.SetItemsProcessed(state.iterations());
}

void NodeAt(benchmark::State& state) {
  CZelData model;
  int const side = SideOf(state.range(0));
  MakePlate(model, side);
  int const middle = (side / 2) * (side + 1) + side / 2 + 1;
  for (auto _ : state)
    Require(ZelUtil::GetNodeAt(model, MiddleOf(side), 0.001, CString()), middle, "the node there");
  state.SetItemsProcessed(state.iterations());
}

void NodeAtMakes(benchmark::State& state) {
  CZelData plate;
  int const side = SideOf(state.range(0));
  MakePlate(plate, side);
  int const nodes = plate.HighestNode();
  for (auto _ : state) {
    state.PauseTiming();
    CZelData model(plate);
    state.ResumeTiming();
    for (int n = 1; n <= nodes; ++n) {
      auto point = plate.NodeCoor(n);
      point.z = 3;
      ZelUtil::GetNodeAt(model, point, 0.001, CString());
    }
    Require(model.HighestNode(), 2LL * nodes, "nodes");
  }
  state.SetItemsProcessed(state.iterations() * nodes);
}

void HeldAround(benchmark::State& state) {
  CZelData model;
  int const side = SideOf(state.range(0));
  MakePlate(model, side);
  model.rebuildHold = true;
  std::vector<int> found;
  int const last = model.HighestNode();
  for (auto _ : state) {
    model.SetNodeCoor(last, MiddleOf(side));
    model.NodesAroundPoint(MiddleOf(side), found, 0);
    Require(static_cast<long long>(found.size()), 2, "nodes at a point");
    model.SetNodeCoor(last, {-1, -1, 0});
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK(AroundPoint)->Apply(Sizes);
BENCHMARK(NodeAt)->Apply(Sizes);
BENCHMARK(NodeAtMakes)->Apply(Sizes);
BENCHMARK(HeldAround)->Apply(Sizes);

}  // namespace
}  // namespace Tarvex::Bench
