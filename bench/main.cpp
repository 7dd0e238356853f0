// Entry of the benchmarks.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <limits>

/// Memory that was freed stays with the process, so that a workload behind its warm-up measures the
/// program and not how long the system takes to hand out pages for the first time.
int main(int argc, char** argv) {
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
  mallopt(M_MMAP_MAX, 0);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
