// Workloads of model files on a plate: Read, Write (texts in memory).
#include "bench/plate.h"
#include "workbench/file/model_reader.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Bench {
namespace {

void SetRate(benchmark::State& state, std::size_t bytes) {
  constexpr double kMega = 1e6;
  state.counters["MB/s"] = benchmark::Counter(static_cast<double>(bytes) / kMega,
                                              benchmark::Counter::kIsIterationInvariantRate);
}

void Write(benchmark::State& state) {
  CZelData plate;
  MakePlate(plate, SideOf(state.range(0)));
  std::size_t bytes = 0;
  for (auto _ : state) bytes = Workbench::WriteModelText(plate).size();
  SetRate(state, bytes);
}

void Read(benchmark::State& state) {
  int const side = SideOf(state.range(0));
  CZelData plate;
  MakePlate(plate, side);
  auto const text = Workbench::WriteModelText(plate);
  for (auto _ : state) {
    CZelData model;
    Workbench::ReadModelText(text, "plate", model);
    Require(model.NumEnt(SelNode), 1LL * (side + 1) * (side + 1), "nodes");
    Require(model.NumEnt(SelElement), 1LL * side * side, "elements");
  }
  SetRate(state, text.size());
}

BENCHMARK(Write)->Apply(Sizes);
BENCHMARK(Read)->Apply(Sizes);

}  // namespace
}  // namespace Tarvex::Bench
