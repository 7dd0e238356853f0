// Workloads of the merge of coincident nodes: the whole job, from the search set to the last
// reference. The size is the number of nodes before it. Elements have nodes of their own, so that
// every inner joint stands there several times.
//
//   MergePlate          a level plate of quadrilaterals
//   MergeJitteredPlate  its copies up to 0.7 of the tolerance apart
//   MergeUprightPlate   a plate in a plane x = 0
//   MergeFarNode        the level plate, and one node a kilometre away
//   MergeFrame          the beams and columns of a building
//   MergeShuffledFrame  the same with its numbers in no order
//   FindInFrame         the search of the frame alone, which changes nothing
//
// Memory, bytes a node before the merge, each the most that a job takes at a time beyond the model:
//
//   search B   the search alone: set, sorted list, cells (at most 64, found pairs with them)
//   pairs B    the pairs that it found
//   merge B    the whole job: search and pairs, the snapshot and the pages that it rewrites
//   model B    the model itself, for comparison: all its tables
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "bench/memory_count.h"
#include "bench/plate.h"
#include "store/record/element.h"
#include "store/record/node.h"
#include "tarvex/coincidence.h"

namespace Tarvex::Bench {
namespace {

constexpr double kTolerance = 0.001;

void NodeCounts(benchmark::internal::Benchmark* workload) {
  workload->RangeMultiplier(10)->Range(10000, 1000000)->Unit(benchmark::kMillisecond);
}

/// A model under way: elements that each bring their own nodes.
class Parts {
 public:
  explicit Parts(CZelData& model) : m_model(model) { m_model.rebuildHold = true; }
  ~Parts() { m_model.rebuildHold = false; }
  Parts(Parts const&) = delete;
  Parts& operator=(Parts const&) = delete;

  /// Shuffles the numbers that nodes get, up to a highest.
  void Shuffle(int highest) {
    for (int n = 1; n <= highest; ++n) m_numbers.push_back(n);
    std::shuffle(m_numbers.begin(), m_numbers.end(), m_random);
  }
  void SetJitter(double jitter) { m_jitter = jitter; }

  void Add(ElementType type, std::vector<Vec3<double>> const& points) {
    std::uniform_real_distribution<double> jitter(-m_jitter, m_jitter);
    std::vector<int> nodes;
    for (auto const& p : points) {
      int const n = m_numbers.empty() ? ++m_nodes : m_numbers[static_cast<std::size_t>(m_nodes++)];
      auto const at = m_jitter == 0 ? p : p + Vec3<double>{jitter(m_random), jitter(m_random), 0};
      m_model.CreateNode(n, at, 0, Vbool6());
      nodes.push_back(n);
    }
    Data::CElement element(1, type, 1);
    element.SetTopo(nodes);
    m_model.SetElem(++m_elements, element);
  }
  int NumNodes() const { return m_nodes; }

 private:
  CZelData& m_model;
  std::mt19937 m_random{1};
  std::vector<int> m_numbers;
  double m_jitter = 0;
  int m_nodes = 0;
  int m_elements = 0;
};

/// Nodes of a job before and after it.
struct Count {
  long long before;
  long long after;
};

/// side by side squares of 0.5 m in the plane of two vectors: 4 nodes each, (side + 1)^2 left.
Count MakeLoosePlate(CZelData& model, long nodes, Vec3<double> const& u, Vec3<double> const& v,
                     double jitter) {
  int const side = SideOf(nodes / 4);
  Parts parts(model);
  parts.SetJitter(jitter);
  for (int j = 0; j < side; ++j)
    for (int i = 0; i < side; ++i) {
      auto const corner = u * (0.5 * i) + v * (0.5 * j);
      parts.Add(ElementType::Quad4,
                {corner, corner + u * 0.5, corner + (u + v) * 0.5, corner + v * 0.5});
    }
  return {4LL * side * side, (side + 1LL) * (side + 1LL)};
}

/// A building of b by b bays of 6 m and b storeys of 3 m: b (b + 1) (3 b + 1) lines of 2 nodes, and
/// (b + 1)^3 nodes left.
Count MakeLooseFrame(CZelData& model, long nodes, bool shuffled) {
  auto const b = static_cast<int>(std::lround(std::cbrt(static_cast<double>(nodes) / 6)));
  int const count = 2 * b * (b + 1) * (3 * b + 1);
  Parts parts(model);
  if (shuffled) parts.Shuffle(count);
  auto const at = [](int i, int j, int k) { return Vec3<double>{6.0 * i, 6.0 * j, 3.0 * k}; };
  for (int k = 1; k <= b; ++k)
    for (int j = 0; j <= b; ++j)
      for (int i = 0; i <= b; ++i) {
        parts.Add(ElementType::Beam, {at(i, j, k - 1), at(i, j, k)});
        if (i < b) parts.Add(ElementType::Beam, {at(i, j, k), at(i + 1, j, k)});
        if (j < b) parts.Add(ElementType::Beam, {at(i, j, k), at(i, j + 1, k)});
      }
  Require(parts.NumNodes(), count, "nodes of the frame");
  return {count, (b + 1LL) * (b + 1LL) * (b + 1LL)};
}

/// The most that a job takes beyond the model. A merge changes the model.
long long MemoryOf(CZelData& model, Util::CSet const& all, CReduceCoinc::Option option,
                   std::vector<std::pair<int, int>>& pairs) {
  MemoryCount const count;
  CReduceCoinc tool(model, kTolerance, 0);
  tool.SetOption(option);
  tool.SetSearchSet(all, CReduceCoinc::kWholeSearch);
  tool.Do(all, pairs);
  return count.Most();
}

void TellMemory(benchmark::State& state, CZelData const& loose, Util::CSet const& all,
                CReduceCoinc::Option option, double nodes) {
  std::vector<std::pair<int, int>> pairs;
  CZelData model(loose);
  auto const search = MemoryOf(model, all, CReduceCoinc::OptionFind, pairs);
  state.counters["search B"] = static_cast<double>(search) / nodes;
  if (option == CReduceCoinc::OptionFind) return;
  state.counters["merge B"] = static_cast<double>(MemoryOf(model, all, option, pairs)) / nodes;
  state.counters["pairs B"] = static_cast<double>(pairs.size() * sizeof(pairs[0])) / nodes;
}

/// What a workload makes, and the memory that it takes, bytes.
template <class Make>
std::pair<Count, long long> Counted(CZelData& model, long size, Make const& make) {
  MemoryCount const memory;
  auto const count = make(model, size);
  return {count, memory.Held()};
}

template <class Make>
void Run(benchmark::State& state, CReduceCoinc::Option option, Make&& make) {
  CZelData loose;
  auto const [count, taken] = Counted(loose, state.range(0), make);
  Util::CSet all(SelNode);
  for (int n = 1; n <= loose.HighestNode(); ++n) all.AddTo(n);
  for (auto _ : state) {
    state.PauseTiming();
    CZelData model(loose);
    std::vector<std::pair<int, int>> pairs;
    state.ResumeTiming();
    CReduceCoinc tool(model, kTolerance, 0);
    tool.SetOption(option);
    tool.SetSearchSet(all, CReduceCoinc::kWholeSearch);
    benchmark::DoNotOptimize(tool.Do(all, pairs));
    state.PauseTiming();
    if (option != CReduceCoinc::OptionFind) {
      Require(static_cast<long long>(pairs.size()), count.before - count.after, "merges");
      Require(model.NumEnt(SelNode), count.after, "nodes after");
    }
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * count.before);
  auto const nodes = static_cast<double>(count.before);
  state.counters["model B"] = static_cast<double>(taken) / nodes;
  TellMemory(state, loose, all, option, nodes);
}

constexpr Vec3<double> kX{1, 0, 0};
constexpr Vec3<double> kY{0, 1, 0};
constexpr Vec3<double> kZ{0, 0, 1};
constexpr auto kMerge = CReduceCoinc::OptionMergeMax;

void MergePlate(benchmark::State& state) {
  Run(state, kMerge, [](CZelData& m, long n) { return MakeLoosePlate(m, n, kX, kY, 0); });
}
void MergeJitteredPlate(benchmark::State& state) {
  // Copies differ by less than half the tolerance in x and in y.
  Run(state, kMerge,
      [](CZelData& m, long n) { return MakeLoosePlate(m, n, kX, kY, kTolerance / 4); });
}
void MergeUprightPlate(benchmark::State& state) {
  Run(state, kMerge, [](CZelData& m, long n) { return MakeLoosePlate(m, n, kY, kZ, 0); });
}
void MergeFarNode(benchmark::State& state) {
  Run(state, kMerge, [](CZelData& m, long n) {
    auto const count = MakeLoosePlate(m, n, kX, kY, 0);
    m.CreateNode(m.HighestNode() + 1, {1000, 1000, 1000}, 0, Vbool6());
    return Count{count.before + 1, count.after + 1};
  });
}
void MergeFrame(benchmark::State& state) {
  Run(state, kMerge, [](CZelData& m, long n) { return MakeLooseFrame(m, n, false); });
}
void MergeShuffledFrame(benchmark::State& state) {
  Run(state, kMerge, [](CZelData& m, long n) { return MakeLooseFrame(m, n, true); });
}
void FindInFrame(benchmark::State& state) {
  Run(state, CReduceCoinc::OptionFind,
      [](CZelData& m, long n) { return MakeLooseFrame(m, n, false); });
}

BENCHMARK(MergePlate)->Apply(NodeCounts);
BENCHMARK(MergeJitteredPlate)->Apply(NodeCounts);
BENCHMARK(MergeUprightPlate)->Apply(NodeCounts);
BENCHMARK(MergeFarNode)->Apply(NodeCounts);
BENCHMARK(MergeFrame)->Apply(NodeCounts);
BENCHMARK(MergeShuffledFrame)->Apply(NodeCounts);
BENCHMARK(FindInFrame)->Apply(NodeCounts);

}  // namespace
}  // namespace Tarvex::Bench
