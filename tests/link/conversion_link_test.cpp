// Conversion and refinement, as an application links them.
#include <gtest/gtest.h>

#include <map>
#include <type_traits>
#include <utility>

#include "store/model/zel_data.h"
#include "store/text/cstring.h"
#include "tarvex/tarvex.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::ConversionLinkTest {
namespace {

using Testing::AreLinked;

/// A plane square (1), a warped one (2) and a quadratic one (3).
CZelData Plates() {
  CZelData model;
  Testing::Grid(model, 1, 1);
  Testing::QuadAt(model, {0, 0, 1}, {1, 0, 0}, {1, 1, 1}, {0, 1, 0});
  Testing::ElementAt(model, ElementType::Quad8,
                     {{5, 0, 0},
                      {6, 0, 0},
                      {6, 1, 0},
                      {5, 1, 0},
                      {5.5, 0, 0},
                      {6, 0.5, 0},
                      {5.5, 1, 0},
                      {5, 0.5, 0}});
  return model;
}

template <class Tool>
class ConversionLink : public ::testing::Test {};
using Tools = ::testing::Types<CMod2DToLinear, CMod2DToQuadratic, CMod2DToTriangle, CWarpElem2D>;
TYPED_TEST_SUITE(ConversionLink, Tools);

TYPED_TEST(ConversionLink, ToolIsMadeCopiedMovedConfiguredRunAndDestroyed) {
  static_assert(!std::is_polymorphic_v<TypeParam>);
  auto model = Plates();
  CZelData const before(model);
  EXPECT_TRUE(AreLinked(&TypeParam::SetSet, &TypeParam::Do));
  TypeParam tool(model);
  Util::CSet set;
  for (int const n : {1, 2, 3}) set.AddTo(n);
  tool.SetSet(set);
  TypeParam copy(tool);
  TypeParam moved(std::move(copy));
  EXPECT_TRUE(moved.Do());
  EXPECT_FALSE(model == before);
}

TEST(ConversionLink, TolerancesAreSet) {
  auto model = Plates();
  CMod2DToLinear linear(model);
  linear.SetCoincidenceTol(0.1);
  EXPECT_TRUE(linear.Do());
  CMod2DToQuadratic quadratic(model);
  quadratic.SetCoincidenceTol(0.1);
  EXPECT_TRUE(quadratic.Do());
}

class OwnTool : public OrderTool {
 public:
  explicit OwnTool(CZelData& model) : OrderTool(model) {}
  double Tolerance() const { return m_coincidenceTol; }
};
class OwnCut : public ConversionTool {
 public:
  explicit OwnCut(CZelData& model) : ConversionTool(model) {}
  bool IsEmpty() const { return m_set.IsEmpty(); }
};

TEST(ConversionLink, BasesServeDerivedTools) {
  CZelData model;
  OwnTool tool(model);
  EXPECT_EQ(tool.Tolerance(), 0.01);
  tool.SetCoincidenceTol(0.5);
  OwnTool copy(tool);
  OwnTool moved(std::move(copy));
  EXPECT_EQ(moved.Tolerance(), 0.5);
  OwnCut cut(model);
  OwnCut other(cut);
  OwnCut third(std::move(other));
  EXPECT_TRUE(third.IsEmpty());
}

TEST(RefinementLink, FreeFunctionsRefine) {
  EXPECT_TRUE(AreLinked(&ZelUtil::RefineMeshAtNode, &ZelUtil::RefineQuadAtCorner,
                        &ZelUtil::RefineTriAtCorner, &ZelUtil::RefineBrickAtCorner));
  auto model = Plates();
  std::map<int, std::vector<int>> pieces;
  CString const none(L"");
  EXPECT_TRUE(ZelUtil::RefineMeshAtNode(model, 1, 0.2, 0.001, pieces, none));
  EXPECT_EQ(pieces.size(), 1u);
  EXPECT_TRUE(ZelUtil::RefineQuadAtCorner(model, 1, 0, 0.2, 0.001, none));
  int const triangle =
      Testing::ElementAt(model, ElementType::Tri3, {{0, 0, 9}, {1, 0, 9}, {0, 1, 9}});
  EXPECT_TRUE(ZelUtil::RefineTriAtCorner(model, triangle, 0, 0.001, none));
  int const brick = Testing::Brick(model, 1, 1, 1);
  EXPECT_TRUE(ZelUtil::RefineBrickAtCorner(model, brick, 0, 0.2, 0.001, none));
}

}  // namespace
}  // namespace Tarvex::ConversionLinkTest
