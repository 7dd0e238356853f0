#include "store/numeric/point_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <random>

namespace Tarvex::Util::PointIndexTest {
namespace {

using Points = std::map<int, Vec3<double>>;

double DistanceOf(Vec3<double> const& a, Vec3<double> const& b) {
  return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

/// The plain form: every point is looked at.
std::vector<int> PlainAround(Points const& points, Vec3<double> const& p, double distance) {
  std::vector<int> found;
  for (auto const& [n, q] : points)
    if (DistanceOf(p, q) <= distance) found.push_back(n);
  return found;
}

int PlainNearest(Points const& points, Vec3<double> const& p, double distance) {
  int nearest = 0;
  double least = distance;
  for (auto const& [n, q] : points)
    if (double const d = DistanceOf(p, q); d < least || (d == least && nearest == 0)) {
      nearest = n;
      least = d;
    }
  return nearest;
}

void ExpectSame(PointIndex const& index, Points const& points, Vec3<double> const& p,
                double distance) {
  EXPECT_EQ(index.Around(p, distance), PlainAround(points, p, distance));
  EXPECT_EQ(index.Nearest(p, distance), PlainNearest(points, p, distance));
}

TEST(PointIndex, IsEmptyAtFirst) {
  PointIndex const index;
  EXPECT_EQ(index.Size(), 0u);
  EXPECT_EQ(index.Nearest({0, 0, 0}, 1e9), 0);
  EXPECT_TRUE(index.Around({0, 0, 0}, 1e9).empty());
}

TEST(PointIndex, CountsAPointExactlyAtTheDistance) {
  PointIndex index;
  index.Insert(7, {3, 4, 0});  // 5 from the origin
  EXPECT_EQ(index.Around({0, 0, 0}, 5), (std::vector{7}));
  EXPECT_EQ(index.Nearest({0, 0, 0}, 5), 7);
  EXPECT_TRUE(index.Around({0, 0, 0}, std::nextafter(5, 0)).empty());
}

TEST(PointIndex, AsksForEqualCoordinatesAtDistanceZero) {
  PointIndex index;
  index.Insert(1, {0.1, 0, 0});
  index.Insert(2, {0.1 + 1e-15, 0, 0});
  index.Insert(3, {0.0, 0, 0});
  EXPECT_EQ(index.Around({0.1, 0, 0}, 0), (std::vector{1}));
  EXPECT_EQ(index.Around({-0.0, 0, -0.0}, 0), (std::vector{3}));
}

TEST(PointIndex, TakesTheLowestOfEquallyNearNumbers) {
  PointIndex index;
  index.Insert(9, {1, 0, 0});
  index.Insert(4, {-1, 0, 0});
  index.Insert(6, {0, 1, 0});
  EXPECT_EQ(index.Nearest({0, 0, 0}, 1), 4);
}

TEST(PointIndex, ForgetsWhatIsErased) {
  PointIndex index;
  index.Insert(1, {1, 2, 3});
  index.Insert(2, {1, 2, 3});
  index.Erase(1, {1, 2, 3});
  EXPECT_EQ(index.Around({1, 2, 3}, 0), (std::vector{2}));
  index.Erase(5, {1, 2, 3});  // not there
  index.Erase(2, {9, 9, 9});  // elsewhere
  EXPECT_EQ(index.Size(), 1u);
}

TEST(PointIndex, KeepsPointsThatAreNotFiniteAway) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  double const inf = std::numeric_limits<double>::infinity();
  PointIndex index;
  index.Insert(1, {nan, 0, 0});
  index.Insert(2, {0, inf, 0});
  index.Insert(3, {0, 0, 0});
  EXPECT_EQ(index.Around({0, 0, 0}, inf), (std::vector{3}));
  EXPECT_EQ(index.Nearest({nan, 0, 0}, 1), 0);
  EXPECT_EQ(index.Nearest({0, 0, 0}, nan), 0);
  index.Erase(1, {nan, 0, 0});
  EXPECT_EQ(index.Size(), 1u);
}

TEST(PointIndex, HoldsHugeCoordinates) {
  PointIndex index;
  index.Insert(1, {1e300, -1e300, 0});
  index.Insert(2, {0, 0, 0});
  EXPECT_EQ(index.Around({1e300, -1e300, 0}, 0), (std::vector{1}));
  EXPECT_EQ(index.Around({0, 0, 0}, 1e308), (std::vector{1, 2}));
}

/// Layouts that a fixed cell size would be slow or wrong on.
Points Layout(int kind, std::mt19937& random) {
  std::uniform_real_distribution<double> unit(-1, 1);
  Points points;
  int n = 0;
  auto const add = [&](double x, double y, double z) { points[++n] = {x, y, z}; };
  switch (kind) {
    case 0:  // a plate in a plane
      for (int i = 0; i < 20; ++i)
        for (int j = 0; j < 20; ++j) add(0.5 * i, 0.5 * j, 3);
      break;
    case 1:  // a building with one point a kilometre away, in millimetres
      for (int i = 0; i < 7; ++i)
        for (int j = 0; j < 7; ++j)
          for (int k = 0; k < 7; ++k) add(6000 * i, 5000 * j, 3000 * k);
      add(1e6, 1e6, 1e6);
      break;
    case 2:  // copies moved a little
      for (int i = 0; i < 60; ++i)
        for (int c = 0; c < 6; ++c) add(i + 1e-6 * unit(random), 1e-6 * unit(random), 0);
      break;
    case 3:  // all at one point
      for (int i = 0; i < 300; ++i) add(1, 2, 3);
      break;
    default:  // anywhere, over many magnitudes
      for (int i = 0; i < 400; ++i)
        add(std::pow(10.0, 6 * unit(random)), unit(random), 100 * unit(random));
  }
  return points;
}

TEST(PointIndexProperty, AgreesWithThePlainSearchOnEveryLayoutAndDistance) {
  for (int kind = 0; kind < 5; ++kind) {
    std::mt19937 random(static_cast<unsigned>(kind));
    auto const points = Layout(kind, random);
    std::vector<PointIndex::Entry> entries;
    PointIndex grown;
    for (auto const& [n, p] : points) {
      entries.push_back({n, p});
      grown.Insert(n, p);
    }
    PointIndex const built(entries);
    EXPECT_EQ(built.Size(), points.size());
    for (int i = 0; i < 60; ++i) {
      auto const n = std::uniform_int_distribution<int>(1, int(points.size()))(random);
      for (double const distance : {0.0, 1e-6, 1e-3, 0.5, 10.0, 7000.0, 1e7}) {
        ExpectSame(built, points, points.at(n), distance);
        ExpectSame(grown, points, points.at(n) + Vec3<double>{distance / 2, 0, 0}, distance);
      }
    }
  }
}

TEST(PointIndexProperty, FollowsRandomInsertionsAndErasures) {
  std::mt19937 random(5);
  std::uniform_int_distribution<int> coordinate(0, 6);
  Points points;
  PointIndex index;
  for (int step = 1; step <= 4000; ++step) {
    Vec3<double> const p{coordinate(random) * 0.5, coordinate(random) * 0.5, 1.0};
    int const n = std::uniform_int_distribution<int>(1, 500)(random);
    if (auto const found = points.find(n); found != points.end()) {
      index.Erase(n, found->second);
      points.erase(found);
    } else {
      index.Insert(n, p);
      points[n] = p;
    }
    if (step % 20 == 0) ExpectSame(index, points, p, 0.5);
    EXPECT_EQ(index.Size(), points.size());
  }
}

}  // namespace
}  // namespace Tarvex::Util::PointIndexTest
