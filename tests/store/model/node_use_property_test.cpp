// Attachments of nodes against a plain recomputation, under random operations.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::NodeUsePropertyTest {
namespace {

using Testing::AttachmentsFollowTopology;
using Testing::Random;

/// What is attached to each node of a model, by number.
using Lists = std::map<int, std::vector<int>>;

Lists ListsOf(CZelData const& model) {
  Lists lists;
  for (auto const& [n, node] : model.Node()) {
    auto const& attached = node.AttachedEnt(SelElement);
    lists[static_cast<int>(n)].assign(attached.begin(), attached.end());
  }
  return lists;
}

/// How many numbers random changes draw from, and whether nodes are stored raw too. A raw store
/// leads to a full rebuild, which would hide what the changes before it did wrong.
struct Range {
  int entities = 20;
  int nodes = 30;
  bool raw = true;
};

/// A random change of topology or nodes of a model.
class Changes {
 public:
  explicit Changes(Random& random, Range const& range = {}) : m_random(random), m_range(range) {}

  void Apply(CZelData& model) {
    int const n = m_random.Int(1, m_range.entities);
    switch (m_random.Int(m_range.raw ? 0 : 1, 11)) {
      case 0:
        return model._SetNode(AnyNode(), Data::CNode());
      case 1:
        return model.SetLoadPanel(n, Testing::Panel(AnyNodes()));
      case 2:
        return SetTopo(model, n);
      case 3:
        if (model.ElemExist(n)) model.SetElemType(n, AnyType());
        return;
      case 4:
        return model.BlankElem(n, m_random.Int(0, 2));
      case 5:
        return model.BlankVariantElement(n, m_random.Int(0, 2));
      case 6:
        return model.BlankNode(AnyNode(), m_random.Int(0, 3));
      case 7:
        return model.SetElem(n, Testing::Element(AnyType(), AnyNodes()));
      case 8:
        return CopyNode(model);
      case 9:
        return model.CreateElem(n, AnyType(), 1, 1);
      default:
        return model.SetNode(AnyNode(), Data::CNode());
    }
  }

 private:
  int AnyNode() { return m_random.Int(1, m_range.nodes); }
  ElementType AnyType() { return static_cast<ElementType>(m_random.Int(1, 26)); }
  std::vector<int> AnyNodes() {
    std::vector<int> nodes(static_cast<std::size_t>(m_random.Int(0, 8)));
    for (int& node : nodes) node = m_random.Int(0, m_range.nodes);
    return nodes;
  }
  void SetTopo(CZelData& model, int n) {
    auto const view = model.VariantElement(n);
    if (!view || view->Topology().empty()) return;
    int const last = static_cast<int>(view->Topology().size()) - 1;
    model.SetElemTopo(n, m_random.Int(0, last), AnyNode());
  }
  void CopyNode(CZelData& model) {
    int const source = AnyNode();
    if (model.NodeExist(source)) model.SetNode(AnyNode(), model.Node(source));
  }

  Random& m_random;
  Range m_range;
};

TEST(AttachmentsProperty, FollowEveryOperation) {
  for (Range const& range : {Range{}, Range{20, 30, false}, Range{3, 12, false}}) {
    Random random(1);
    Changes changes(random, range);
    CZelData model;
    for (int i = 0; i < 2000; ++i) {
      changes.Apply(model);
      ASSERT_TRUE(AttachmentsFollowTopology(model))
          << "operation " << i << " on " << range.entities << " entities";
    }
  }
}

TEST(AttachmentsProperty, FollowInCopiesEachItsOwnModel) {
  Random random(2);
  Changes changes(random);
  std::vector<CZelData> models(4);
  std::vector<std::pair<std::shared_ptr<CZelData const>, Lists>> kept;
  for (int i = 0; i < 3000; ++i) {
    auto& model = models[static_cast<std::size_t>(random.Int(0, 3))];
    changes.Apply(model);
    if (random.Percent(5)) models[static_cast<std::size_t>(random.Int(0, 3))] = model;
    if (random.Percent(2)) kept.emplace_back(model.Snapshot(), ListsOf(model));
    for (auto const& each : models) ASSERT_TRUE(AttachmentsFollowTopology(each)) << i;
  }
  EXPECT_GT(kept.size(), 20u);
  for (auto const& [snapshot, lists] : kept) {
    EXPECT_TRUE(AttachmentsFollowTopology(*snapshot));
    EXPECT_EQ(ListsOf(*snapshot), lists);
  }
}

TEST(AttachmentsProperty, LagInHoldsOnlyAndOnlyUntilTheyAreAskedFor) {
  Random random(3);
  Changes changes(random);
  CZelData model;
  int held = 0;
  for (int i = 0; i < 2000; ++i) {
    auto const before = ListsOf(model);  // also takes up a rebuild that was asked for
    changes.Apply(model);
    if (model.rebuildHold) {
      ++held;
      // No node that stays has lost or got anything.
      auto const after = ListsOf(model);
      for (auto const& [n, list] : after)
        ASSERT_EQ(list, before.contains(n) ? before.at(n) : list) << i << " node " << n;
      ASSERT_TRUE(AttachmentsFollowTopology(CZelData(model)));
    } else {
      ASSERT_TRUE(AttachmentsFollowTopology(model)) << i;
    }
    if (random.Percent(10)) {
      model.FlagRebuild();
      ASSERT_TRUE(AttachmentsFollowTopology(model)) << i;
    }
    if (random.Percent(10)) {
      model.InitNodalUseElem();
      ASSERT_TRUE(AttachmentsFollowTopology(model)) << i;
    }
    if (random.Percent(10)) model.rebuildHold = !model.rebuildHold;
  }
  EXPECT_GT(held, 200);
}

TEST(AttachmentsProperty, FollowInRandomModels) {
  Testing::ForEachRandomModel(50, [](CZelData& model, Random& random) {
    EXPECT_TRUE(AttachmentsFollowTopology(model));
    model.rebuildHold = true;
    model.BlankNode(random.Int(1, model.HighestNode()), 5);
    model.BlankVariantElement(random.Int(1, model.HighestElem()), 5);
    model.rebuildHold = false;
    EXPECT_TRUE(AttachmentsFollowTopology(model));
    Changes changes(random);
    for (int i = 0; i < 20; ++i) changes.Apply(model);
    EXPECT_TRUE(AttachmentsFollowTopology(model));
  });
}

}  // namespace
}  // namespace Tarvex::NodeUsePropertyTest
