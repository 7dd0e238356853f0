// Agreement of normals against a plain form of the same: vectors of numbers, searched linearly.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::FlipElem2dOracleTest {
namespace {

using Testing::NormalAt;
using Testing::Random;

bool Has(std::vector<int> const& numbers, int n) {
  return std::find(numbers.begin(), numbers.end(), n) != numbers.end();
}

/// The plain form. It counts what a run met.
class PlainFlip : public CFlipElem2D {
 public:
  PlainFlip(CZelData& model, Util::CSet const& set, double angle)
      : CFlipElem2D(model), m_patch(model), m_numbers(set), m_angle(angle) {
    SetSet(set);
  }

  void Run() {
    double const c = std::cos(m_angle * 3.141592653589793 / 180.0);
    std::vector<int> processed;
    for (int const n : m_numbers) {
      if (!m_patch.ElemExist(n) || !m_patch.Elem(n).Is2D() || Has(processed, n)) continue;
      processed.push_back(n);
      ++seeds;
      if (NormalAt(m_patch, n).z < 0.0) FlipElem(n);
      auto const z0 = NormalAt(m_patch, n);
      std::vector<int> wave{n};
      std::vector<int> next;
      AttachedElem(wave, processed, next);
      while (!next.empty()) {
        for (int const e : next) Settle(e, z0, c, processed);
        wave = next;
        next.clear();
        AttachedElem(wave, processed, next);
      }
    }
  }

  int seeds = 0;
  int turnedBySeed = 0;
  int turnedByVote = 0;
  int drawnVotes = 0;

 private:
  void Settle(int e, Vec3<double> const& z0, double c, std::vector<int>& processed) {
    if (Has(processed, e)) return;
    processed.push_back(e);
    if (Dot(NormalAt(m_patch, e), z0) < 0.0) {
      FlipElem(e);
      ++turnedBySeed;
    }
    auto const z = NormalAt(m_patch, e);
    std::vector<int> neighbours;
    AttachedElem(e, processed, neighbours);
    int opposed = 0;
    int agreeing = 0;
    for (int const neighbour : neighbours) {
      double const product = Dot(z, NormalAt(m_patch, neighbour));
      if (product < -c)
        ++opposed;
      else if (product > c)
        ++agreeing;
    }
    if (opposed == agreeing && opposed > 0) ++drawnVotes;
    if (opposed <= agreeing) return;
    FlipElem(e);
    ++turnedByVote;
  }

  CZelData& m_patch;
  Util::CSet m_numbers;
  double m_angle;
};

/// Builds a random patch: a grid of cells over a profile that folds, the cells 4- and 8-noded
/// quadrilaterals, pairs of 3- and 6-noded triangles, load panels and holes, in shuffled numbers;
/// fins across it; elements turned and spun at random; some nodes missing.
class PatchMaker {
 public:
  explicit PatchMaker(unsigned seed) : m_random(seed) {}

  /// @param missing share of the nodes that are missing, per cent.
  CZelData Make(int missing = 1) {
    PlaceNodes();
    for (int i = 0; i < m_columns; ++i)
      for (int j = 0; j < m_rows; ++j) MakeCell(i, j);
    for (int fins = m_random.Int(0, 11); fins > 0; --fins) MakeFin();
    Number();
    for (int n = 1; n <= m_model.HighestElem(); ++n) {
      if (m_random.Percent(40)) FlipEntity(m_model, {SelElement, n});
      if (m_random.Percent(30)) SpinElement(m_model, n, m_random.Int(0, 3));
    }
    for (int n = 1; n <= m_model.HighestNode(); ++n)
      if (m_random.Percent(missing)) m_model.BlankNode(n, 1);
    return m_model;
  }

 private:
  void PlaceNodes() {
    std::vector<double> const folds{0, 0, 0, 10, 30, -30, 60, -60, 80, -80, 100, 170};
    double x = 0;
    double z = 0;
    double slope = m_random.Percent(30) ? 90 : 0;
    for (int i = 0; i <= m_columns; ++i) {
      for (int j = 0; j <= m_rows; ++j)
        Node({x + 0.01 * m_random.Int(0, 8), j + 0.1 * m_random.Int(0, 2), z});
      slope += m_random.Of(folds);
      x += std::cos(slope * kPi / 180);
      z -= std::sin(slope * kPi / 180);
    }
    m_corners = m_model.HighestNode();
  }

  int Node(Vec3<double> const& p) { return Testing::NodeAt(m_model, p.x, p.y, p.z); }

  /// The node in the middle of a side, one for both cells that have the side.
  int MidSide(int a, int b) {
    auto& node = m_midSides[{std::min(a, b), std::max(a, b)}];
    if (node == 0) node = Node((m_model.NodeCoor(a) + m_model.NodeCoor(b)) * 0.5);
    return node;
  }
  std::vector<int> WithMidSides(std::vector<int> ring) {
    auto const count = ring.size();
    for (std::size_t i = 0; i < count; ++i) ring.push_back(MidSide(ring[i], ring[(i + 1) % count]));
    return ring;
  }

  void Keep(Data::VariantElementValue const& entity) { m_entities.push_back(entity); }

  void MakeCell(int i, int j) {
    int const a = i * (m_rows + 1) + j + 1;
    int const b = a + m_rows + 1;
    std::vector<int> const quad{a, b, b + 1, a + 1};
    std::vector<int> const lower{a, b, b + 1};
    std::vector<int> const upper{a, b + 1, a + 1};
    int const kind = m_random.Int(0, 11);
    if (kind < 4) {
      Keep(Testing::Element(ElementType::Quad4, quad));
    } else if (kind < 6) {
      Keep(Testing::Element(ElementType::Quad8, WithMidSides(quad)));
    } else if (kind < 8) {
      for (auto const& ring : {lower, upper}) Keep(Testing::Element(ElementType::Tri3, ring));
    } else if (kind < 10) {
      for (auto const& ring : {lower, upper})
        Keep(Testing::Element(ElementType::Tri6, WithMidSides(ring)));
    } else if (kind == 10) {
      Keep(Testing::Panel(quad));
    }
  }

  /// A triangle on any three nodes.
  void MakeFin() {
    std::vector<int> ring;
    while (ring.size() < 3)
      if (int const n = m_random.Int(1, m_corners); !Has(ring, n)) ring.push_back(n);
    Keep(Testing::Element(ElementType::Tri3, ring));
  }

  void Number() {
    m_random.Shuffle(m_entities);
    int n = 0;
    for (auto const& entity : m_entities)
      m_model.SetVariantElement(n += m_random.Int(1, 3), entity);
  }

  Random m_random;
  CZelData m_model;
  int m_columns = m_random.Int(1, 9);
  int m_rows = m_random.Int(1, 6);
  int m_corners = 0;
  std::map<std::pair<int, int>, int> m_midSides;
  std::vector<Data::VariantElementValue> m_entities;
};

/// All of a patch, most of it, or less than half.
Util::CSet SelectionOf(CZelData const& model, unsigned seed) {
  Random random(seed + 5000);
  int const percent = random.Of(std::vector{100, 90, 45, 20});
  Util::CSet set(SelElement);
  for (int n = 1; n <= model.HighestElem() + 3; ++n)
    if (random.Percent(percent)) set.AddTo(n);
  return set;
}

double AngleFor(unsigned seed) {
  static std::vector<double> const kAngles{15, 35, 65, 85, 90, 120, 5, 0, 180};
  return kAngles[seed % kAngles.size()];
}

TEST(CFlipElem2DOracle, GivesTheSameModelAsThePlainFormOnRandomPatches) {
  int seeds = 0;
  int bySeed = 0;
  int byVote = 0;
  int drawn = 0;
  for (unsigned seed = 0; seed < 600; ++seed) {
    SCOPED_TRACE(seed);
    auto model = PatchMaker(seed).Make();
    auto plain = model;
    auto const set = SelectionOf(model, seed);
    CFlipElem2D tool(model);
    tool.SetSet(set);
    tool.SetFacetAngle(AngleFor(seed));
    EXPECT_TRUE(tool.Do());
    PlainFlip oracle(plain, set, AngleFor(seed));
    oracle.Run();
    ASSERT_TRUE(Testing::IsUnchanged(model, plain));
    seeds += oracle.seeds;
    bySeed += oracle.turnedBySeed;
    byVote += oracle.turnedByVote;
    drawn += oracle.drawnVotes;
  }
  // The patches are worth something: more than one to a model, and every branch taken often.
  EXPECT_GT(seeds, 700);
  EXPECT_GT(bySeed, 2000);
  EXPECT_GT(byVote, 1000);
  EXPECT_GT(drawn, 50);
}

TEST(CFlipElem2DOracle, ComesToRestInOneRunWhereEveryElementHasANormalOfItsOwn) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    double const angle = AngleFor(seed);
    if (angle > 90) continue;
    SCOPED_TRACE(seed);
    auto model = PatchMaker(seed).Make(0);
    CFlipElem2D tool(model);
    tool.SetSet(SelectionOf(model, seed));
    tool.SetFacetAngle(angle);
    EXPECT_TRUE(tool.Do());
    CZelData const once(model);
    EXPECT_TRUE(tool.Do());
    ASSERT_TRUE(Testing::IsUnchanged(model, once));
  }
}

// The forms of AttachedElem against a search through all elements.

class Steps : public CFlipElem2D {
 public:
  using CFlipElem2D::AttachedElem;
  using CFlipElem2D::CFlipElem2D;
};

/// The elements of a set that have a corner of an element among their nodes, corner by corner.
std::vector<int> Neighbours(CZelData const& model, Util::CSet const& set, int element) {
  std::vector<int> found;
  auto const ring = Testing::Ring(model, element);
  auto const corners = ring.size() < 5 ? ring.size() : ring.size() / 2;
  for (std::size_t i = 0; i < corners; ++i)
    for (int n = 1; n <= model.HighestElem(); ++n) {
      bool const plate = model.ElemExist(n) && model.Elem(n).Is2D();
      if (n == element || !plate || !set.IsItemIncluded(n) || !model.NodeExist(ring[i])) continue;
      if (Has(Testing::Ring(model, n), ring[i])) found.push_back(n);
    }
  return found;
}

void AddEach(std::vector<int>& out, std::vector<int> const& numbers, auto&& wanted) {
  for (int const n : numbers)
    if (wanted(n) && !Has(out, n)) out.push_back(n);
}

TEST(CFlipElem2DOracle, AttachedElemIsASearchThroughAllElements) {
  for (unsigned seed = 0; seed < 100; ++seed) {
    SCOPED_TRACE(seed);
    auto model = PatchMaker(seed).Make();
    auto const set = SelectionOf(model, seed);
    Steps steps(model);
    steps.SetSet(set);
    Random random(seed);
    std::vector<int> processed;
    std::vector<int> wave;
    for (auto const& [n, element] : model.Elem()) {
      if (random.Percent(50)) processed.push_back(static_cast<int>(n));
      if (random.Percent(20)) wave.push_back(static_cast<int>(n));
    }
    std::vector<int> expectedOfWave;
    for (int const e : wave) {
      auto const neighbours = Neighbours(model, set, e);
      std::vector<int> expected;
      AddEach(expected, neighbours, [&](int n) { return Has(processed, n); });
      AddEach(expectedOfWave, neighbours,
              [&](int n) { return !Has(processed, n) && !Has(wave, n); });
      std::vector<int> out;
      EXPECT_EQ(steps.AttachedElem(e, processed, out), !expected.empty());
      ASSERT_EQ(out, expected);
    }
    std::vector<int> out;
    EXPECT_EQ(steps.AttachedElem(wave, processed, out), !expectedOfWave.empty());
    ASSERT_EQ(out, expectedOfWave);
  }
}

}  // namespace
}  // namespace Tarvex::FlipElem2dOracleTest
