// The model of the benchmarks: a plate of quadrilaterals.
#pragma once

#include <benchmark/benchmark.h>

#include <cmath>
#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "store/model/zel_data.h"
#include "store/numeric/vbool6.h"

namespace Tarvex::Bench {

/// The sizes that every workload runs with, and the unit of its times.
inline void Sizes(benchmark::internal::Benchmark* workload) {
  workload->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
}

/// Squares a side of a plate with about so many records a table.
inline int SideOf(long records) {
  return static_cast<int>(std::lround(std::sqrt(static_cast<double>(records))));
}

/// A plate of side by side squares of 0.5 m; every second element faces down.
inline void MakePlate(CZelData& model, int side) {
  model.rebuildHold = true;
  int node = 0;
  for (int j = 0; j <= side; ++j)
    for (int i = 0; i <= side; ++i) model.CreateNode(++node, {0.5 * i, 0.5 * j, 0}, 0, Vbool6());
  Data::CElement element(1, ElementType::Quad4, 1);
  int number = 0;
  for (int j = 0; j < side; ++j)
    for (int i = 0; i < side; ++i) {
      int const a = j * (side + 1) + i + 1;
      int corners[] = {a, a + 1, a + side + 2, a + side + 1};
      if (number % 2 == 1) std::swap(corners[0], corners[1]), std::swap(corners[2], corners[3]);
      element.SetTopo(corners);
      model.SetElem(++number, element);
    }
  model.rebuildHold = false;
}

/// Ends the benchmark when a count is not what the closed formula gives.
inline void Require(long long found, long long expected, char const* what) {
  if (found != expected)
    throw std::logic_error(std::string(what) + ": " + std::to_string(found) + " instead of " +
                           std::to_string(expected));
}

/// Memory that the process holds now, MiB.
inline double Resident() {
  std::ifstream file("/proc/self/statm");
  long total = 0;
  long resident = 0;
  file >> total >> resident;
  constexpr double kPagesPerMiB = 256;
  return static_cast<double>(resident) / kPagesPerMiB;
}

}  // namespace Tarvex::Bench
