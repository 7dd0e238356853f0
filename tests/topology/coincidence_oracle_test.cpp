// The searches against plain forms of the same rules that look at all pairs.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <tuple>

#include "store/geometry/line.h"
#include "tests/topology/coincidence_support.h"

namespace Tarvex::CoincidenceOracleTest {
namespace {

using Testing::AllOf;
using Testing::Pairs;
using Testing::Points;
using Testing::Random;
using Testing::SearchOver;
using Testing::SetOf;

// Nodes.

/// The search for coincident nodes over all pairs of a cloud.
class PlainSearch {
 public:
  PlainSearch(CZelData const& model, Vec3<double> const& vector, double tolerance)
      : m_model(model), m_tolerance(tolerance), m_alive(AllOf(model, SelNode)) {
    m_order.SetSet(m_alive, model, true);
    m_order.SetOrderVector(vector);
    m_order.CreateList(model);
    m_order.Sort();
  }

  /// The nearest; of equally near ones the first above it in the list, else the first below.
  int Nearest(int node) const {
    int const place = m_order.GetIndexFromRef(node);
    struct Candidate {
      double distance;
      bool below;
      int steps;
      int node;
    };
    std::vector<Candidate> found;
    for (int i = 0; i < m_order.NumItems(); ++i) {
      int const other = m_order.Ref(i);
      if (i == place || !m_alive.IsItemIncluded(other)) continue;
      double const along = std::abs(m_order.PointItem(i) - m_order.PointItem(place));
      double const distance = Length(m_model.NodeCoor(other) - m_model.NodeCoor(node));
      if (along <= m_tolerance && distance < m_tolerance)
        found.push_back({distance, i < place, std::abs(i - place), other});
    }
    auto const first = std::ranges::min_element(found, [](auto const& a, auto const& b) {
      return std::tie(a.distance, a.below, a.steps) < std::tie(b.distance, b.below, b.steps);
    });
    return first == found.end() ? 0 : first->node;
  }

  Pairs Merge() {
    Pairs pairs;
    for (int n = m_model.HighestNode(); n > 0; --n) {
      if (!m_alive.IsItemIncluded(n)) continue;
      int const other = Nearest(n);
      if (other == 0) continue;
      pairs.emplace_back(std::max(n, other), std::min(n, other));
      m_alive.RemoveFrom(std::max(n, other));
    }
    return pairs;
  }

 private:
  CZelData const& m_model;
  double m_tolerance;
  Util::CSet m_alive;
  COrderSet m_order;
};

struct Cloud {
  std::string name;
  std::function<Vec3<double>(Random&)> point;
  double tolerance;
};

Vec3<double> PointIn(Random& random, double size) {
  return {random.Real(-size, size), random.Real(-size, size), random.Real(-size, size)};
}

Vec3<double> GridPoint(Random& random, int cells) {
  return {1.0 * random.Int(0, cells), 1.0 * random.Int(0, cells), 1.0 * random.Int(0, cells)};
}

std::vector<Cloud> Clouds() {
  return {
      {"loose", [](Random& r) { return PointIn(r, 5); }, 0.5},
      {"loose, with a wide tolerance", [](Random& r) { return PointIn(r, 5); }, 3},
      {"loose, all within the tolerance", [](Random& r) { return PointIn(r, 1); }, 9},
      {"clustered", [](Random& r) { return GridPoint(r, 3) * 9.0 + PointIn(r, 0.1); }, 0.15},
      {"on a grid", [](Random& r) { return GridPoint(r, 4); }, 0.001},
      {"on a grid of equal distances", [](Random& r) { return GridPoint(r, 4); }, 1.5},
      {"on a jittered grid", [](Random& r) { return GridPoint(r, 4) + PointIn(r, 1e-4); }, 0.001},
      {"in a row of links",
       [](Random& r) {
         return Vec3<double>{0.05 * r.Int(0, 400), 0, 0};
       },
       0.0501},
      {"in one plane",
       [](Random& r) {
         return Vec3<double>{7, 1.0 * r.Int(0, 9), r.Real(0, 9)};
       },
       0.3},
      {"far from the origin",
       [](Random& r) {
         return Vec3<double>{1e6, 1e6, 1e6} + PointIn(r, 2);
       },
       0.2},
      {"with one far away",
       [](Random& r) {
         return r.Percent(1) ? Vec3<double>{1e9, 0, 0} : GridPoint(r, 5);
       },
       0.01},
      {"with nothing to find", [](Random& r) { return PointIn(r, 5); }, 0},
  };
}

CZelData ModelOf(Cloud const& cloud, int count, Random& random) {
  CZelData model;
  for (int const n : random.Numbers(count)) model.CreateNode(n, cloud.point(random), 0, Vbool6());
  return model;
}

/// Direction of a search; the zero vector asks the search for its own.
CReduceCoinc SearchBy(CZelData& model, Vec3<double> const& vector, double tolerance) {
  CReduceCoinc tool(model, tolerance, 0);
  tool.SetOrderVector(vector);
  bool const own = vector == Vec3<double>{};
  tool.SetSearchSet(AllOf(model, SelNode), own ? 7 : 5);
  return tool;
}

Vec3<double> VectorOf(CZelData const& model, Vec3<double> const& vector) {
  if (!(vector == Vec3<double>{})) return vector;
  COrderSet order;
  order.SetSet(AllOf(model, SelNode), model, true);
  order.CalcOrderVector(model);
  return order.OrderVector();
}

/// Calls check(model, vector, tolerance) for every cloud and direction.
template <class Check>
void ForEachCloud(int count, Check&& check) {
  std::uint32_t seed = 20;
  for (auto const& cloud : Clouds())
    for (auto const& vector : Points{{0, 0, 0}, {1, 0, 0}, {0, 0, 3}, {1, 1, 1}}) {
      SCOPED_TRACE(cloud.name + ", seed " + std::to_string(++seed));
      Random random(seed);
      auto model = ModelOf(cloud, count, random);
      check(model, vector, cloud.tolerance);
    }
}

TEST(CoincidenceOracle, MergesArePairedAsOverAllPairs) {
  std::size_t merges = 0;
  ForEachCloud(250, [&](CZelData& model, Vec3<double> const& vector, double tolerance) {
    auto const expected = PlainSearch(model, VectorOf(model, vector), tolerance).Merge();
    auto tool = SearchBy(model, vector, tolerance);
    Pairs pairs;
    tool.Do(AllOf(model, SelNode), pairs);
    EXPECT_EQ(pairs, expected);
    merges += pairs.size();
  });
  EXPECT_GT(merges, 3000U);
}

TEST(CoincidenceOracle, EachNodeFindsTheOneThatItFindsOverAllPairs) {
  int found = 0;
  ForEachCloud(200, [&](CZelData& model, Vec3<double> const& vector, double tolerance) {
    PlainSearch const plain(model, VectorOf(model, vector), tolerance);
    auto const tool = SearchBy(model, vector, tolerance);
    Pairs expected;
    for (int const n : AllOf(model, SelNode)) {
      int const other = tool.FindCoinc(n, false);
      EXPECT_EQ(other, plain.Nearest(n)) << n;
      if (other == 0) continue;
      expected.emplace_back(n, other);
      ++found;
    }
    EXPECT_EQ(tool.FindAllCoinc(AllOf(model, SelNode)), expected);
  });
  EXPECT_GT(found, 3000);
}

TEST(CoincidenceOracle, MergesDoNotDependOnHowTheNodesCameIntoTheModel) {
  ForEachCloud(150, [&](CZelData& model, Vec3<double> const& vector, double tolerance) {
    CZelData other;
    for (int n = model.HighestNode(); n > 0; --n)
      if (model.NodeExist(n)) other.CreateNode(n, model.NodeCoor(n), 0, Vbool6());
    Pairs pairs;
    Pairs others;
    SearchBy(model, vector, tolerance).Do(AllOf(model, SelNode), pairs);
    SearchBy(other, vector, tolerance).Do(AllOf(other, SelNode), others);
    EXPECT_EQ(pairs, others);
    EXPECT_TRUE(Testing::IsUnchanged(model, other));
  });
}

/// What a merge of the items pairs, by a question for each of them.
Pairs MergesAskedOneByOne(CReduceCoinc& tool, Util::CSet const& items) {
  Pairs pairs;
  for (int n = items.HighestItem(); n > 0; --n) {
    int const other = items.IsItemIncluded(n) ? tool.FindCoinc(n, false) : 0;
    if (other == 0) continue;
    pairs.emplace_back(std::max(n, other), std::min(n, other));
    tool.RemoveFromSearchSet(std::max(n, other));
  }
  return pairs;
}

/// A part of a set, of about a share in percent.
Util::CSet PartOf(Util::CSet const& set, int percent, Random& random) {
  Util::CSet part(set.TypeOf());
  for (int const n : set)
    if (random.Percent(percent)) part.AddTo(n);
  return part;
}

/// Calls check(model, tool, items) for searches over some nodes and items of which some are outside
/// of the search set, and the other way round; the list sorted or not.
template <class Check>
void ForEachPartialSearch(Check&& check) {
  for (std::uint32_t seed = 1; seed < 60; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    auto model = ModelOf(Clouds()[seed % 2 == 0 ? 0 : 3], 150, random);
    auto const all = AllOf(model, SelNode);
    CReduceCoinc tool(model, 0.9, 0);
    tool.SetOrderVector({1, 0, 0});
    int const steps = CReduceCoinc::kTakeSet | (seed % 5 == 0 ? 0 : CReduceCoinc::kSortList);
    tool.SetSearchSet(PartOf(all, random.Of<int>({50, 90, 100}), random), steps);
    // What leaves the set stays in the list, and can be asked for.
    for (int const n : PartOf(all, random.Of<int>({0, 20}), random)) tool.RemoveFromSearchSet(n);
    check(model, tool, PartOf(all, random.Of<int>({50, 90, 100}), random));
  }
}

TEST(CoincidenceOracle, MergesOfSomeNodesAreThoseOfTheSearchNodeByNode) {
  std::size_t merges = 0;
  ForEachPartialSearch([&](CZelData&, CReduceCoinc& tool, Util::CSet const& items) {
    auto asked = tool;
    auto const expected = MergesAskedOneByOne(asked, items);
    Pairs pairs;
    tool.Do(items, pairs);
    EXPECT_EQ(pairs, expected);
    merges += pairs.size();
  });
  EXPECT_GT(merges, 1500U);
}

TEST(CoincidenceOracle, AnswersForSomeNodesAreThoseOfTheSearchNodeByNode) {
  std::size_t answers = 0;
  ForEachPartialSearch([&](CZelData&, CReduceCoinc& tool, Util::CSet const& items) {
    Pairs expected;
    for (int const n : items)
      if (int const other = tool.FindCoinc(n, false); other != 0) expected.emplace_back(n, other);
    EXPECT_EQ(tool.FindAllCoinc(items), expected);
    answers += expected.size();
  });
  EXPECT_GT(answers, 1500U);
}

TEST(CoincidenceOracle, JointsAreThoseOfTheSearchNodeByNode) {
  int joints = 0;
  ForEachPartialSearch([&](CZelData& model, CReduceCoinc& tool, Util::CSet const& items) {
    CZelData before(model);
    tool.SetOption(CReduceCoinc::OptionJoint);
    Pairs none;
    tool.Do(items, none);
    // The tool asks the model that it was made on: the joints go there one by one.
    Pairs made;
    for (int n = 1; n <= model.HighestJoint(); ++n)
      made.emplace_back(model.Joint(n).PrimaryNode(), model.Joint(n).ConstrainedNode());
    model = before;
    Pairs expected;
    for (int n = items.HighestItem(); n > 0; --n) {
      int const other = items.IsItemIncluded(n) ? tool.FindCoinc(n, false) : 0;
      if (other == 0 || model.NodeIsInConstraint(n, 0) || model.NodeIsInConstraint(other, 0))
        continue;
      Testing::JoinIn(model, other, n, L"0");
      expected.emplace_back(other, n);
    }
    EXPECT_EQ(made, expected);
    joints += static_cast<int>(made.size());
  });
  EXPECT_GT(joints, 800);
}

TEST(CoincidenceOracle, MergesWithTiesAreThoseOfTheSearchNodeByNode) {
  // Ties leave out candidates; the single question walks the joints themselves.
  for (std::uint32_t seed = 1; seed < 30; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    auto model = ModelOf(Clouds()[seed % 2 == 0 ? 4 : 3], 150, random);
    std::vector<int> nodes;
    for (int const n : AllOf(model, SelNode)) nodes.push_back(n);
    for (int i = 0; i < 150; ++i)
      Testing::JoinIn(model, random.Of(nodes), random.Of(nodes), random.Percent(70) ? L"0" : L"1");
    CZelData plain(model);
    auto asked = SearchBy(plain, {1, 0, 0}, 0.15);
    for (auto const& [n, other] : asked.FindAllCoinc(AllOf(model, SelNode)))
      EXPECT_EQ(asked.FindCoinc(n, false), other);
    auto const expected = MergesAskedOneByOne(asked, AllOf(model, SelNode));
    Pairs pairs;
    SearchBy(model, {1, 0, 0}, 0.15).Do(AllOf(model, SelNode), pairs);
    EXPECT_EQ(pairs, expected);
    EXPECT_GT(pairs.size(), 10U);
  }
}

TEST(CoincidenceOracle, NodesThatMovedBehindTheListingAreFoundAsByThePlainSweep) {
  // Projections are those of the listing, positions those of now.
  for (std::uint32_t seed = 1; seed < 20; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    auto model = ModelOf(Clouds()[seed % 3 == 0 ? 1 : 0], 150, random);
    auto tool = SearchBy(model, {0, 0, 0}, 0.8);
    auto asked = tool;
    for (int const n : AllOf(model, SelNode))
      if (random.Percent(40)) model.SetNodeCoor(n, model.NodeCoor(n) + PointIn(random, 0.6));
    auto const expected = MergesAskedOneByOne(asked, AllOf(model, SelNode));
    Pairs pairs;
    tool.Do(AllOf(model, SelNode), pairs);
    EXPECT_EQ(pairs, expected);
    EXPECT_GT(pairs.size(), 10U);
  }
}

// Elements and members.

/// Lines and plates along and across one another, some of them on the same nodes, some far longer
/// than the others.
CZelData Heap(Random& random) {
  CZelData model;
  auto const point = [&] {
    return Vec3<double>{1.0 * random.Int(0, 6), 1.0 * random.Int(0, 6), 1.0 * random.Int(0, 1)};
  };
  for (int i = 0; i < 40; ++i) {
    auto p = point();
    auto q = point();
    if (random.Percent(5)) p.x = -700, q.x = 70;
    if (random.Percent(60)) {
      Testing::BeamAt(model, p, random.Percent(3) ? p : q);
    } else {
      Testing::QuadAt(model, p, {q.x, p.y, p.z}, {q.x, q.y, q.z}, {p.x, q.y, q.z});
    }
    if (random.Percent(20)) {
      auto copy = model.Elem(model.HighestElem());
      std::vector<int> nodes(copy.Topology().begin(), copy.Topology().end());
      std::ranges::reverse(nodes);
      copy.SetTopology(nodes);
      model.SetElem(model.HighestElem() + 1, copy);
    }
  }
  return model;
}

/// The list of a search over a set, and the steps that give a tool the same.
COrderSet OrderOf(CZelData const& model, Util::CSet const& set, bool sorted) {
  COrderSet order;
  order.SetSet(set, model, true);
  order.CalcOrderVector(model);
  order.CreateList(model);
  if (sorted) order.Sort();
  return order;
}

int StepsOf(bool sorted) {
  return CReduceCoinc::kTakeSet | CReduceCoinc::kFindOrder | (sorted ? CReduceCoinc::kSortList : 0);
}

/// The first that an item overlaps, in the order of the sweep. Asked of a set of one item alone,
/// the search compares with that item whatever its place.
int PlainOverlapping(CZelData& model, COrderSet const& order, int item, double tolerance) {
  int const place = order.GetIndexFromRef(item);
  std::vector<int> sweep;
  for (int i = place + 1; i < order.NumItems(); ++i) sweep.push_back(order.Ref(i));
  for (int i = place - 1; i >= 0; --i) sweep.push_back(order.Ref(i));
  for (int const other : sweep)
    if (SearchOver(model, SetOf(order.TypeOf(), {other}), tolerance).FindCoinc(item, true) != 0)
      return other;
  return 0;
}

TEST(OverlapOracle, TheFirstOfTheSweepIsFoundAsByLookingAtAllOfThem) {
  std::set<int> answers;
  int found = 0;
  for (std::uint32_t seed = 1; seed < 25; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    auto model = Heap(random);
    double const tolerance = seed % 2 == 0 ? 0.01 : 0.6;
    auto const all = AllOf(model, SelElement);
    auto const order = OrderOf(model, all, seed % 3 != 0);
    CReduceCoinc tool(model, tolerance, 0);
    tool.SetSearchSet(all, StepsOf(seed % 3 != 0));
    for (int const n : all) {
      int const other = tool.FindCoinc(n, true);
      EXPECT_EQ(other, PlainOverlapping(model, order, n, tolerance)) << n;
      if (other != 0) ++found;
      answers.insert(other);
    }
  }
  EXPECT_GT(found, 300);
  EXPECT_GT(answers.size(), 20U);
}

/// The first of the list that a line crosses, by the rules alone.
int PlainCrossing(CZelData const& model, COrderSet const& order, int item) {
  auto const end = [&](int n, int place) { return model.NodeCoor(model.Elem(n).Topo(place)); };
  auto const isInside = [](double r, double length) {
    return 0.001 < r * length && r * length < length - 0.001;
  };
  double const length = Length(end(item, 1) - end(item, 0));
  if (length < 1e-10) return 0;
  for (int i = 0; i < order.NumItems(); ++i) {
    int const n = order.Ref(i);
    if (n == item) continue;
    bool shared = false;
    for (int const a : {0, 1})
      for (int const b : {0, 1})
        if (model.Elem(item).Topo(a) == model.Elem(n).Topo(b)) shared = true;
    double const other = Length(end(n, 1) - end(n, 0));
    if (shared || other < 1e-10) continue;
    auto const at = DistanceBetweenLines(end(item, 0), end(item, 1), end(n, 0), end(n, 1));
    if (!std::isnan(at.ra) && at.distance <= 0.001 && isInside(at.ra, length) &&
        isInside(at.rb, other))
      return n;
  }
  return 0;
}

TEST(CrossOracle, TheFirstOfTheListIsFoundAsByLookingAtAllOfThem) {
  int found = 0;
  for (std::uint32_t seed = 100; seed < 140; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    auto model = Heap(random);
    auto const all = AllOf(model, SelElement);
    auto const order = OrderOf(model, all, seed % 3 != 0);
    CReduceCoinc tool(model, 0.01, 0);
    tool.SetSearchSet(all, StepsOf(seed % 3 != 0));
    for (int const n : all) {
      int const other = tool.FindCross(n);
      EXPECT_EQ(other, PlainCrossing(model, order, n)) << n;
      if (other != 0) ++found;
    }
  }
  EXPECT_GT(found, 300);
}

TEST(ClosestItemOracle, TheSweepFindsTheNearestOfAll) {
  for (std::uint32_t seed = 200; seed < 215; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    auto model = Heap(random);
    auto const all = AllOf(model, SelElement);
    auto const tool = SearchOver(model, all, 0.01);
    for (int i = 0; i < 40; ++i) {
      auto const point = PointIn(random, 12);
      int const exclude = random.Int(0, model.HighestElem());
      auto const distance = [&](int n) { return Length(model.EntCentre({SelElement, n}) - point); };
      int const found = tool.ClosestItem(point, exclude);
      ASSERT_TRUE(all.IsItemIncluded(found));
      ASSERT_NE(found, exclude);
      for (int const n : all) {
        if (n == exclude) continue;
        ASSERT_GE(distance(n), distance(found));
      }
    }
  }
}

}  // namespace
}  // namespace Tarvex::CoincidenceOracleTest
