// What the four orientation tools have in common: settings, copies, reuse.
#include <gtest/gtest.h>

#include <type_traits>

#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::AlignToolTest {
namespace {

using Testing::AnySelection;
using Testing::IsUnchanged;
using Testing::Numbers;
using Testing::Random;
using Testing::RandomModel;

/// Gives a tool a selection and a setting of its own other than the default.
template <class Tool>
void Configure(Tool& tool, CZelData const& model, Util::CSet const& set) {
  tool.SetSet(set);
  if constexpr (std::is_same_v<Tool, CFlipElem2D>)
    tool.SetFacetAngle(80);
  else
    tool.SetAxis(Testing::FirstAxis(model));
}

/// Gives a tool settings that make it do nothing.
template <class Tool>
void Clear(Tool& tool) {
  tool.SetSet(Util::CSet(SelElement));
  if constexpr (std::is_same_v<Tool, CFlipElem2D>)
    tool.SetFacetAngle(0);
  else
    tool.SetAxis(0);
}

template <class Tool>
class OrientationTool : public ::testing::Test {};
using Tools = ::testing::Types<CAlignElem1D, CAlignElem2DEdges, CAlignElem2DZ, CFlipElem2D>;
TYPED_TEST_SUITE(OrientationTool, Tools);

TYPED_TEST(OrientationTool, IsCopyableAndMovableAndKeepsItsModel) {
  static_assert(std::is_constructible_v<TypeParam, CZelData&>);
  static_assert(!std::is_convertible_v<CZelData&, TypeParam>);
  static_assert(std::is_copy_constructible_v<TypeParam>);
  static_assert(std::is_nothrow_move_constructible_v<TypeParam>);
  static_assert(!std::is_copy_assignable_v<TypeParam>);
  CZelData first;
  CZelData second;
  Testing::QuadAt(first, {0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0});
  second = first;
  CZelData const before(second);
  TypeParam tool(first);
  tool.SetSet(Numbers({1}));
  TypeParam(tool).Do();
  EXPECT_TRUE(IsUnchanged(second, before));
}

TYPED_TEST(OrientationTool, HasAnUntypedEmptySetAtFirst) {
  auto model = RandomModel(3);
  CZelData const before(model);
  bool const ran = TypeParam(model).Do();
  EXPECT_EQ(ran, (std::is_same_v<TypeParam, CFlipElem2D>));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TYPED_TEST(OrientationTool, DoesNothingWithAnEmptySet) {
  auto model = RandomModel(4);
  CZelData const before(model);
  TypeParam tool(model);
  tool.SetSet(Util::CSet(SelElement));
  EXPECT_EQ(tool.Do(), (std::is_same_v<TypeParam, CFlipElem2D>));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TYPED_TEST(OrientationTool, DoesAsACopyWhatTheOriginalDoes) {
  int changed = 0;
  Testing::ForEachRandomModel(20, [&](CZelData model, Random& random) {
    CZelData const before(model);
    TypeParam original(model);
    Configure(original, model, AnySelection(model, random));
    TypeParam copy(original);
    TypeParam source(original);
    TypeParam const moved(std::move(source));
    bool const result = original.Do();
    CZelData const after(model);
    changed += model == before ? 0 : 1;
    for (auto tool : {copy, moved}) {
      model = before;
      EXPECT_EQ(tool.Do(), result);
      EXPECT_TRUE(IsUnchanged(model, after));
    }
  });
  EXPECT_GT(changed, 10);
}

TYPED_TEST(OrientationTool, HasSettingsApartFromThoseOfItsCopy) {
  int changed = 0;
  Testing::ForEachRandomModel(10, [&](CZelData model, Random& random) {
    CZelData const before(model);
    TypeParam original(model);
    Configure(original, model, AnySelection(model, random));
    TypeParam copy(original);
    Clear(original);
    original.Do();
    ASSERT_TRUE(IsUnchanged(model, before));
    copy.Do();
    changed += model == before ? 0 : 1;
  });
  EXPECT_GT(changed, 5);
}

TYPED_TEST(OrientationTool, KeepsACopyOfTheSetThatItIsGiven) {
  int changed = 0;
  Testing::ForEachRandomModel(10, [&](CZelData model, Random& random) {
    CZelData const before(model);
    auto set = AnySelection(model, random);
    TypeParam tool(model);
    Configure(tool, model, set);
    set = Util::CSet(SelNode);
    tool.Do();
    changed += model == before ? 0 : 1;
  });
  EXPECT_GT(changed, 5);
}

TYPED_TEST(OrientationTool, CanBeUsedAgainAndKeepsNothingOfARun) {
  Testing::ForEachRandomModel(10, [](CZelData model, Random& random) {
    CZelData const before(model);
    TypeParam tool(model);
    Configure(tool, model, AnySelection(model, random));
    bool const first = tool.Do();
    CZelData const after(model);
    model = before;
    EXPECT_EQ(tool.Do(), first);
    EXPECT_TRUE(IsUnchanged(model, after));
  });
}

TEST(AlignTool, HasTheGlobalAxisAtFirst) {
  CZelData model;
  Testing::BeamAt(model, {1, 0, 0}, {0, 0, 0});
  Testing::QuadAt(model, {0, 1, 0}, {1, 1, 0}, {1, 0, 0},
                  {0, 0, 0});  // down, and its first edge +x
  auto const run = [&](auto tool, int n) {
    tool.SetSet(Numbers({n}));
    return tool.Do();
  };
  EXPECT_TRUE(run(CAlignElem1D(model), 1));
  EXPECT_FALSE(run(CAlignElem2DEdges(model), 2));
  EXPECT_TRUE(run(CAlignElem2DZ(model), 2));
  EXPECT_TRUE(run(CAlignElem2DEdges(model), 2));  // its first edge is -x now
  EXPECT_GT(Testing::NormalAt(model, 2).z, 0);
}

TEST(AlignTool, TakesTheAxisThatIsInTheModelWhenItRuns) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  CAlignElem1D tool(model);
  tool.SetSet(Numbers({1}));
  tool.SetAxis(1);
  EXPECT_FALSE(tool.Do());
  EXPECT_EQ(Testing::AxisAlong(model, {-1, 0, 0}, {0, 1, 0}), 1);
  EXPECT_TRUE(tool.Do());
  model.BlankAxis(1, 1);
  EXPECT_FALSE(tool.Do());
}

}  // namespace
}  // namespace Tarvex::AlignToolTest
