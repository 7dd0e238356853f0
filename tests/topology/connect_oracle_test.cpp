// Connecting with the search for near lines against the plain form, which tries all pairs. It takes
// each step as the tool does, so it holds the search to account and not the rules of a meeting:
// those have their tests in connect_1d_el_test.cpp.
#include <algorithm>
#include <cmath>

#include "store/geometry/axis_trans.h"
#include "store/geometry/line.h"
#include "store/geometry/rounding.h"
#include "store/model/get_node_at.h"
#include "tarvex/split_connect.h"
#include "tests/support/random_model.h"
#include "tests/topology/topology_support.h"

namespace Tarvex::ConnectOracleTest {
namespace {

using namespace Testing;

/// All pairs, for elements without offsets, loads and references.
class PlainConnect {
 public:
  PlainConnect(CZelData& model, Util::CSet const& set, double connection, double end)
      : m_model(model), m_set(set), m_connection(connection), m_end(end) {}

  bool Do() {
    m_highest = m_set.HighestItem();
    for (int i = m_set.LowestItem(); i >= 1 && i <= m_highest; ++i) {
      if (!m_set.IsItemIncluded(i) || !m_model.ElemExist(i)) continue;
      if (!m_model.Elem(i).Is1D() && !m_model.Elem(i).Is2D()) continue;
      bool const plate = m_model.Elem(i).Is2D();
      for (int s = 0; s < (plate ? m_model.Elem(i).NumTopo() : 1); ++s)
        if (!Side(i, plate, s)) break;
    }
    return m_changed;
  }

 private:
  int Topo(int e, int i) const {
    auto const type = m_model.Elem(e).Type();
    if (type == ElementType::Quad4) return m_model.Elem(e).Topo(i % 4);
    if (type == ElementType::Quad8) return m_model.Elem(e).Topo(i % 8 / 2 + i % 8 % 2 * 4);
    if (type == ElementType::Tri3) return m_model.Elem(e).Topo(i % 3);
    if (type == ElementType::Tri6) return m_model.Elem(e).Topo(i % 6 / 2 + i % 6 % 2 * 3);
    return m_model.Elem(e).Topo(i);
  }

  bool Side(int i, bool plate, int s) {
    int const a = Topo(i, s);
    int const b = Topo(i, s + 1);
    for (int j = m_set.LowestItem(); j <= m_highest; ++j) {
      if (j == i || !m_set.IsItemIncluded(j) || !m_model.ElemExist(j) || !m_model.Elem(j).Is1D())
        continue;
      int const p = Topo(j, 0);
      int const q = Topo(j, 1);
      if (!plate && (p == a || p == b || q == a || q == b)) continue;
      Data::CLine3 const l1(m_model.NodeCoor(a), m_model.NodeCoor(b));
      Data::CLine3 const l2(m_model.NodeCoor(p), m_model.NodeCoor(q));
      if (l1.Length() < m_end || l2.Length() < m_end) continue;
      if (plate)
        Corner(a, j, l2, p, q);
      else if (Cross(i, j, l1, l2, {a, b, p, q}))
        return false;
    }
    return true;
  }

  void Corner(int a, int j, Data::CLine3 const& l2, int p, int q) {
    if (a == p || a == q) return;
    Util::CAxisTrans along;
    along.Assign(m_model.EntDC({SelElement, j}), l2.Start());
    auto const at = along.Global2User(m_model.NodeCoor(a));
    double const length = l2.Length();
    if (!(0 < at.x && at.x < length && std::hypot(at.y, at.z) < m_connection)) return;
    if (at.x < m_end || at.x > length - m_end) return;
    Split(a, j, length, at.x);
    m_changed = true;
  }

  bool Cross(int i, int j, Data::CLine3 const& l1, Data::CLine3 const& l2,
             std::array<int, 4> const& nodes) {
    double r1 = 0;
    double r2 = 0;
    double d = 0;
    if (!l1.Intersect(l2, r1, r2, d) || !(d < m_connection)) return false;
    double const n1 = l1.Length();
    double const n2 = l2.Length();
    double const p1 = r1 * n1;
    double const p2 = r2 * n2;
    if (!(-m_end < p1 && p1 < n1 + m_end && -m_end < p2 && p2 < n2 + m_end)) return false;
    int node = 0;
    if (std::abs(p1) < m_end || std::abs(p1 - n1) < m_end) {
      node = std::abs(p1) < m_end ? nodes[0] : nodes[1];
      m_model.SetNodeCoor(node, l1.Point(r1));
    } else if (std::abs(p2) < m_end || std::abs(p2 - n2) < m_end) {
      node = std::abs(p2) < m_end ? nodes[2] : nodes[3];
      m_model.SetNodeCoor(node, l2.Point(r2));
    } else {
      node = ZelUtil::GetNodeAt(m_model, Round(l1.Point(r1), 15), 0, L"");
    }
    m_changed = true;
    if (node != nodes[2] && node != nodes[3]) Split(node, j, n2, p2);
    if (node == nodes[0] || node == nodes[1]) return false;
    return Split(node, i, n1, p1);
  }

  bool Split(int node, int e, double length, double position) {
    if (std::abs(position) < m_end || std::abs(position - length) < m_end) {
      m_model.SetElemTopo(e, std::abs(position) < m_end ? 0 : 1, node);
      return false;
    }
    int const h = m_model.HighestElem();
    for (int end = 0; end < 2; ++end) {
      auto piece = m_model.Elem(e);
      piece.SetTopo(end, node);
      piece.SetConnect(end, CElemConnect());
      m_model.SetElem(h + 1 + end, piece);
      m_set.AddTo(h + 1 + end);
    }
    m_model.BlankElem(e, 1);
    m_set.RemoveFrom(e);
    m_highest = h + 2;
    return true;
  }

  CZelData& m_model;
  Util::CSet m_set;
  double m_connection;
  double m_end;
  int m_highest = 0;
  bool m_changed = false;
};

/// Runs both on a model and compares. @return how many elements there are afterwards.
int Compare(CZelData const& model, Util::CSet const& set, double connection, double end) {
  CZelData plain(model);
  CZelData fast(model);
  bool const expected = PlainConnect(plain, set, connection, end).Do();
  CConnect1dEl tool(fast);
  tool.SetSet(set);
  tool.SetTol(connection, end);
  EXPECT_EQ(tool.Do(), expected);
  EXPECT_TRUE(IsUnchanged(fast, plain));
  return fast.NumEnt(SelElement);
}

TEST(ConnectOracle, RandomLinesInAPlaneWithPlatesAmongThem) {
  int made = 0;
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(seed);
    CZelData model;
    Util::CSet set(SelElement);
    // Whole places, so that ends fall on lines and lines on each other.
    auto const place = [&]() -> Vec3<double> {
      double const x = random.Int(0, 12);
      double const y = random.Int(0, 12);
      return {x, y, random.Percent(80) ? 0.0 : random.Real(-0.02, 0.02)};
    };
    for (int i = random.Int(5, 25); i > 0; --i) {
      auto const a = place();
      int n = 0;
      if (random.Percent(20))
        n = QuadAt(model, a, a + Vec3<double>{2, 0, 0}, a + Vec3<double>{2, 2, 0},
                   a + Vec3<double>{0, 2, 0});
      else
        n = BeamAt(model, a, place());
      if (random.Percent(90)) set.AddTo(n);
    }
    int const before = model.NumEnt(SelElement);
    double const end = random.Of<double>({0, 0.05, 0.3});
    made += Compare(model, set, random.Of<double>({0.001, 0.03}), end) - before;
    if (::testing::Test::HasFailure()) return;
  }
  EXPECT_GT(made, 1000);
}

TEST(ConnectOracle, AnEndThatIsMovedFromLineToLine) {
  // The end of the stem goes from 0 to 0.25, 0.5 and 0.79: further than it was looked for at first.
  CZelData model;
  Util::CSet set(SelElement);
  for (double const x : {0.25, 0.5, 0.79}) set.AddTo(BeamAt(model, {x, -5, 0}, {x, 5, 0}));
  set.AddTo(BeamAt(model, {-5, 0, 0}, {0, 0, 0}));
  EXPECT_EQ(Compare(model, set, 0.001, 0.3), 3 * 2 + 1);
}

TEST(ConnectOracle, AGridOfManyLinesWhereTheSearchIsBuiltAnewOnTheWay) {
  CZelData model;
  Util::CSet set(SelElement);
  for (int i = 0; i < 25; ++i) {
    set.AddTo(BeamAt(model, {-1, 1.0 * i, 0}, {25, 1.0 * i, 0}));
    set.AddTo(BeamAt(model, {1.0 * i, -1, 0}, {1.0 * i, 25, 0}));
  }
  // Each of 50 lines is cut at 25 crossings.
  EXPECT_EQ(Compare(model, set, 0.001, 0.01), 50 * 26);
}

}  // namespace
}  // namespace Tarvex::ConnectOracleTest
