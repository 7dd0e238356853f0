// The guard around bulk changes of topology.
#include "frame/rebuild_hold.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

#include "tests/frame/orientation_support.h"

namespace Tarvex::RebuildHoldTest {
namespace {

TEST(RebuildHold, IsUpWithinItsScopeAndDownBehindIt) {
  CZelData model;
  EXPECT_FALSE(model.rebuildHold);
  {
    RebuildHold const hold(model);
    EXPECT_TRUE(model.rebuildHold);
    EXPECT_EQ(model.rebuildHoldDepth, 1);
  }
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model.rebuildHoldDepth, 0);
}

TEST(RebuildHold, EndsWithTheOutermostScope) {
  CZelData model;
  {
    RebuildHold const outer(model);
    {
      RebuildHold const inner(model);
      EXPECT_EQ(model.rebuildHoldDepth, 2);
    }
    EXPECT_TRUE(model.rebuildHold);
    EXPECT_EQ(model.rebuildHoldDepth, 1);
  }
  EXPECT_FALSE(model.rebuildHold);
}

TEST(RebuildHold, EndsWhenAnExceptionPasses) {
  CZelData model;
  try {
    RebuildHold const outer(model);
    RebuildHold const inner(model);
    throw std::runtime_error("passes");
  } catch (std::runtime_error const&) {
  }
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model.rebuildHoldDepth, 0);
}

TEST(RebuildHold, IsNoPartOfACopyOfTheModel) {
  CZelData model;
  RebuildHold const hold(model);
  CZelData const copy(model);
  EXPECT_FALSE(copy.rebuildHold);
  EXPECT_EQ(copy.rebuildHoldDepth, 0);
  static_assert(!std::is_copy_constructible_v<RebuildHold>);
}

TEST(RebuildHold, LetsTheFirstQuerySeeWhatChangedBeforeItAndNoLaterOneUntilItEnds) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  Testing::NodeAt(model, 5, 5, 0);  // node 5
  auto const uses = [&] { return model.Node(5).NumEntAttached(SelElement); };
  {
    RebuildHold const outer(model);
    EXPECT_EQ(uses(), 0);
    model.SetElemTopo(1, 0, 5);
    EXPECT_EQ(uses(), 0);
    {
      RebuildHold const inner(model);  // flags a rebuild once more
      EXPECT_EQ(uses(), 1);
      model.SetElemTopo(1, 0, 1);
      EXPECT_EQ(uses(), 1);
    }
    EXPECT_EQ(uses(), 1);
  }
  EXPECT_EQ(uses(), 0);
}

}  // namespace
}  // namespace Tarvex::RebuildHoldTest
