// Random models for property tests, and the random numbers they are made of.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Testing {

/// Random numbers that are the same on every platform for the same seed.
class Random {
 public:
  explicit Random(std::uint32_t seed) : m_engine(seed) {}

  /// A whole number from first to last.
  int Int(int first, int last) {
    auto const count = static_cast<long long>(last) - first + 1;
    return static_cast<int>(first + static_cast<long long>(m_engine()) % count);
  }
  /// A number from first up to, and without, last.
  double Real(double first, double last) {
    return first + (last - first) * (static_cast<double>(m_engine()) / 4294967296.0);
  }
  /// True in that many of a hundred draws.
  bool Percent(int share) { return Int(1, 100) <= share; }
  template <class T>
  T const& Of(std::vector<T> const& choices) {
    return choices[static_cast<std::size_t>(Int(0, static_cast<int>(choices.size()) - 1))];
  }
  template <class T>
  void Shuffle(std::vector<T>& items) {
    for (int i = static_cast<int>(items.size()) - 1; i > 0; --i)
      std::swap(items[static_cast<std::size_t>(i)], items[static_cast<std::size_t>(Int(0, i))]);
  }
  /// That many distinct numbers from 1 to twice as many, in no order.
  std::vector<int> Numbers(int count);
  Vbool6 Flags() {
    return {Percent(50), Percent(50), Percent(50), Percent(50), Percent(50), Percent(50)};
  }

 private:
  std::mt19937 m_engine;
};

/// A model that has something in every table and, over many seeds, in every field of a record.
///
/// Numbers: nodes, elements with load panels, axes and lists each have half of a range, in no
/// order, so that there are holes; some panels stand between the elements and one to three above
/// them all.
///
/// Geometry: one to three patches of up to 4 by 4 cells on shared nodes. A patch lies in a level,
/// vertical or skew plane; in one of three its nodes are moved off the plane by up to 0.05. A cell
/// (about 1 by 1) is a quadrilateral, two triangles or a panel, alike in the whole patch or mixed;
/// one patch of three is quadratic, with mid-side nodes that neighbours share. Each cell starts at
/// a random corner and runs either way about. Beside the patches: three to twelve lines between
/// existing nodes, one in four of them upright; one of each solid; up to three elements of the
/// types without a shape, with one to nine nodes, repeats among them. One quadrilateral in fifty
/// has two corners on the same node.
///
/// Members: see random_members.h.
///
/// Lists: two to five saved lists of the kinds without one to cases, of up to eight items with
/// ranges, operators, gaps, words and names. They refer to each other, to themselves and to lists
/// that are none.
///
/// Grids, alignments, blocks, assemblies and views: one to four of each; see AddRandomGrids.
///
/// Materials, properties, soil and spectra: one to three of each; see random_properties.h.
///
/// Loads and constraints: one to four a table; see AddRandomLoads.
///
/// Fields: about three in ten records have a given field changed. Texts hold characters of one to
/// four UTF-8 bytes. All nodes that anything names exist, and so do the axes of nodes.
CZelData RandomModel(std::uint32_t seed);

/// Calls visit(model, random) for that many random models. The seeds follow from the name of the
/// running test; a failure inside tells the seed.
template <class Visit>
void ForEachRandomModel(int count, Visit&& visit) {
  auto const* test = ::testing::UnitTest::GetInstance()->current_test_info();
  std::uint32_t seed = 2166136261;  // the FNV-1a hash of the test's name
  for (char const c : std::string(test->test_suite_name()) + "." + test->name())
    seed = (seed ^ static_cast<unsigned char>(c)) * 16777619;
  for (int i = 0; i < count; ++i, ++seed) {
    SCOPED_TRACE("RandomModel(" + std::to_string(seed) + "u)");
    Random random(seed);
    CZelData model = RandomModel(seed);
    visit(model, random);
    if (::testing::Test::HasFatalFailure()) return;
  }
}

}  // namespace Tarvex::Testing
