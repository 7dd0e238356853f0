// The orientation tools, as an application links them.
#include <gtest/gtest.h>

#include <utility>

#include "store/model/zel_data.h"
#include "tarvex/tarvex.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::OrientationLinkTest {
namespace {

using Testing::AreLinked;

/// Reaches what applications may use by deriving.
class FlipSteps : public CFlipElem2D {
 public:
  static bool HasLinkedSteps() {
    using Numbers = std::vector<int>;
    return AreLinked(&FlipSteps::FlipElem,
                     Testing::Member<bool(int, Numbers&, Numbers&)>(&FlipSteps::AttachedElem),
                     Testing::Member<bool(Numbers&, Numbers&, Numbers&)>(&FlipSteps::AttachedElem));
  }
};

class OwnAlignTool : public AlignTool {
 public:
  explicit OwnAlignTool(CZelData& model) : AlignTool(model) {}
  static bool HasLinkedSteps() { return AreLinked(&OwnAlignTool::HasAxis); }
  bool FindsItsAxis() const { return HasAxis(); }
};

template <class Tool>
class OrientationLink : public ::testing::Test {};
using Tools = ::testing::Types<CAlignElem1D, CAlignElem2DEdges, CAlignElem2DZ, CFlipElem2D>;
TYPED_TEST_SUITE(OrientationLink, Tools);

TYPED_TEST(OrientationLink, ToolIsMadeCopiedMovedConfiguredRunAndDestroyed) {
  CZelData model;
  Testing::BeamAt(model, {1, 0, 0}, {0, 0, 0});                        // 1 runs along -x
  Testing::QuadAt(model, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}, {0, 0, 0});  // 2 faces down
  Testing::QuadAt(model, {0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {1, 1, 0});  // 3 starts along -y
  CZelData const before(model);
  EXPECT_TRUE(AreLinked(&TypeParam::SetSet, &TypeParam::Do));
  TypeParam tool(model);
  Util::CSet set(SelElement);
  for (int const n : {1, 2, 3}) set.AddTo(n);
  tool.SetSet(set);
  TypeParam copy(tool);
  TypeParam moved(std::move(copy));
  EXPECT_TRUE(moved.Do());
  EXPECT_FALSE(model == before);
}

TEST(OrientationLink, SettersOfAxisAndAngleTakeEffect) {
  EXPECT_TRUE(AreLinked(&CAlignElem1D::SetAxis, &CFlipElem2D::SetFacetAngle));
  CZelData model;
  Testing::BeamAt(model, {1, 0, 0}, {0, 0, 0});
  CAlignElem1D tool(model);
  Util::CSet set(SelElement);
  set.AddTo(1);
  tool.SetSet(set);
  tool.SetAxis(7);
  EXPECT_FALSE(tool.Do());
  tool.SetAxis(0);
  EXPECT_TRUE(tool.Do());
  CFlipElem2D flip(model);
  flip.SetFacetAngle(30);
  EXPECT_TRUE(flip.Do());
}

TEST(OrientationLink, ProtectedMembersServeDerivedTools) {
  EXPECT_TRUE(FlipSteps::HasLinkedSteps());
  EXPECT_TRUE(OwnAlignTool::HasLinkedSteps());
  CZelData model;
  OwnAlignTool tool(model);
  OwnAlignTool copy(tool);
  OwnAlignTool moved(std::move(copy));
  moved.SetAxis(3);
  EXPECT_TRUE(tool.FindsItsAxis());
  EXPECT_FALSE(moved.FindsItsAxis());
}

TEST(OrientationLink, FreeFunctionsTurnEntities) {
  EXPECT_TRUE(AreLinked(&FlipEntity, &FlipElement, &FlipLoadPanel, &SpinElement));
  CZelData model;
  Testing::Grid(model, 1, 1);
  Testing::PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
  EXPECT_TRUE(FlipEntity(model, {SelElement, 1}));
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_TRUE(FlipLoadPanel(model, 2));
  EXPECT_TRUE(SpinElement(model, 1, 1));
  EXPECT_EQ(model.Elem(1).Topo(0), 2);
}

}  // namespace
}  // namespace Tarvex::OrientationLinkTest
