// The conversion to quadratic against its plain form: step by step on the stored records, with maps
// of maps, lists of rigid constraints read and stored again at each side.
#include <gtest/gtest.h>

#include <unordered_map>

#include "frame/rebuild_hold.h"
#include "store/model/list_expansion.h"
#include "tarvex/coincidence.h"
#include "tests/members/plate_support.h"
#include "tests/support/random_model.h"

namespace Tarvex::ToQuadraticOracleTest {
namespace {

using namespace Testing;

class PlainRun {
 public:
  explicit PlainRun(CZelData& model) : m_model(model) {}

  void Do(Util::CSet const& set) {
    RebuildHold const hold(m_model);
    m_highestRigid = m_model.HighestRigid();
    m_search.Invert(1, m_model.HighestNode());
    int const before = m_model.HighestNode();
    for (int const n : set) {
      if (!m_model.ElemExist(n)) continue;
      auto const type = m_model.Elem(n).Type();
      if (type != ElementType::Tri3 && type != ElementType::Quad4) continue;
      Raise(n, type == ElementType::Tri3 ? 3 : 4);
    }
    CReduceCoinc reduce(m_model, 1e-05, 0);
    if (reduce.SetSearchSet(m_search, 7)) reduce.Do(before + 1, m_model.HighestNode() - before);
  }

 private:
  void Raise(int n, int corners) {
    m_model.SetElemType(n, corners == 3 ? ElementType::Tri6 : ElementType::Quad8);
    for (int i = 0; i < corners; ++i) {
      int const a = m_model.Elem(n).Topo(i);
      int const b = m_model.Elem(n).Topo((i + 1) % corners);
      m_search.RemoveFrom(a);
      int& middle = m_middles[std::min(a, b)][std::max(a, b)];
      if (middle == 0) {
        middle = m_model.HighestNode() + 1;
        m_model.SetNode(
            middle, Data::CNode((m_model.NodeCoor(a) + m_model.NodeCoor(b)) * 0.5, 0, Vbool6()));
      }
      m_model.SetElemTopo(n, corners + i, middle);
      if (m_model.Node(a).Axis() == m_model.Node(b).Axis()) Follow(a, b, middle);
    }
    if (!m_model.Elem(n).IsConnect()) return;
    for (int i = 0; i < corners; ++i) {
      auto const& element = m_model.Elem(n);
      auto const flags =
          element.Connect(i).Release() & element.Connect((i + 1) % corners).Release();
      m_model.SetElemConnect(n, corners + i, CElemConnect(flags));
    }
  }

  void Follow(int a, int b, int middle) {
    m_model.SetNodeAxis(middle, m_model.Node(a).Axis());
    m_model.SetNodeRestraint(middle, m_model.Node(a).Restraint() & m_model.Node(b).Restraint());
    for (int rigid = 1; rigid <= m_highestRigid; ++rigid) {
      if (!Holds(rigid, a) || !Holds(rigid, b)) continue;
      auto nodes = Util::MakeSet(m_model.Rigid(rigid).ConstrainedNodes(), m_model);
      nodes.AddTo(middle);
      Data::CEntList list(SelNode, CString(L""));
      list.AssignFromSet(nodes);
      m_model.SetRigidConstrainedNodes(rigid, list);
    }
  }

  bool Holds(int rigid, int node) const {
    auto const& record = m_model.Rigid(rigid);
    return record.PrimaryNode() == node ||
           Util::IsItemIncluded(record.ConstrainedNodes(), {SelNode, node}, m_model, -1, false);
  }

  CZelData& m_model;
  Util::CSet m_search{SelNode};
  std::unordered_map<int, std::unordered_map<int, int>> m_middles;
  int m_highestRigid = 0;
};

TEST(CMod2DToQuadratic, IsItsPlainFormOnRandomModels) {
  int changed = 0;
  int followed = 0;
  ForEachRandomModel(120, [&](CZelData before, Random& random) {
    // More constraints, with lists of every form, on nodes that the elements have.
    for (auto const* list : {L"all", L"1 to 20", L"all not (3 to 9)", L"2 4 6 8 10 12 14 16",
                             L"X 3", L"1 to * step 2", L"1 to 40 and Z 5"})
      AddRigid(before, random.Int(1, before.HighestNode()), list);
    for (int k = 0; k < 10; ++k)  // few axes, so that both rules are met
      if (int const n = random.Int(1, before.HighestNode()); before.NodeExist(n))
        before.SetNodeAxis(n, 0);
    Util::CSet set(SelElement);
    for (int n = 1; n <= before.HighestElem() + 2; ++n)
      if (random.Percent(70)) set.AddTo(n);
    CZelData fast(before);
    CZelData plain(before);
    Convert<CMod2DToQuadratic>(fast, set);
    PlainRun(plain).Do(set);
    ASSERT_TRUE(IsUnchanged(fast, plain));
    if (!(fast == before)) ++changed;
    if (!(fast.Rigid() == before.Rigid())) ++followed;
  });
  EXPECT_GT(changed, 60);
  EXPECT_GT(followed, 40);
}

}  // namespace
}  // namespace Tarvex::ToQuadraticOracleTest
