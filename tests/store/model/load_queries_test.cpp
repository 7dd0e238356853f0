#include "store/model/load_queries.h"

#include <gtest/gtest.h>

#include <cmath>

#include "store/model/zel_data.h"
#include "store/record/face_loads.h"
#include "store/record/member.h"
#include "store/record/node_load.h"
#include "store/record/spec.h"
#include "tests/support/builders.h"

namespace Tarvex::LoadQueriesTest {
namespace {

bool IsOn(CZelData const& model, int element, double r, double s) {
  Data::CFaceLoad load;
  load.SetPosition({r, s});
  return model.ValidatePointLoadPosition(load, element);
}

TEST(ValidatePointLoadPosition, TakesTheSquareOfAQuadrilateral) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  for (double const r : {-1.0, -0.3, 0.0, 1.0}) {
    EXPECT_TRUE(IsOn(model, 1, r, 1));
    EXPECT_TRUE(IsOn(model, 1, r, -1));
    EXPECT_FALSE(IsOn(model, 1, r, 1.003));
    EXPECT_FALSE(IsOn(model, 1, r, -1.003));
    EXPECT_FALSE(IsOn(model, 1, 1.003, r));
    EXPECT_FALSE(IsOn(model, 1, -1.003, r));
  }
  EXPECT_TRUE(IsOn(model, 1, 1 + 1e-9, -1 - 1e-9));  // rounding
  EXPECT_FALSE(IsOn(model, 1, std::nan(""), 0));
  EXPECT_FALSE(IsOn(model, 1, 0, std::nan("")));
}

TEST(ValidatePointLoadPosition, TakesTheTriangleOfATriangle) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetElem(2, Testing::Element(ElementType::Tri3, {1, 2, 3}));
  for (auto const& [r, s] : {std::pair{0.0, 0.0}, {1.0, 0.0}, {0.0, 1.0}, {0.5, 0.5}, {0.2, 0.3}})
    EXPECT_TRUE(IsOn(model, 2, r, s)) << r << " " << s;
  for (auto const& [r, s] :
       {std::pair{-0.002, 0.5}, {0.5, -0.002}, {0.502, 0.5}, {1.0, 1.0}, {-1.0, -1.0}})
    EXPECT_FALSE(IsOn(model, 2, r, s)) << r << " " << s;
}

TEST(ValidatePointLoadPosition, LetsAPointLieOverAnEdgeByTheToleranceOfTheModelInItsUnits) {
  CZelData model;
  for (auto const& [x, y] : {std::pair{0.0, 0.0}, {8.0, 0.0}, {8.0, 4.0}, {0.0, 4.0}})
    Testing::NodeAt(model, x, y, 0);
  model.SetElem(1, Testing::Element(ElementType::Quad4, {1, 2, 3, 4}));
  model.SetElem(2, Testing::Element(ElementType::Tri3, {1, 2, 4}));
  model.SetElem(3, Testing::Element(ElementType::Quad4, {1, 2, 3, 77}));
  // 0.001 m. In r it is 0.001 / 4 of the rectangle and 0.001 / 8 of the triangle.
  EXPECT_TRUE(IsOn(model, 1, 1.00024, 0));
  EXPECT_FALSE(IsOn(model, 1, 1.00026, 0));
  EXPECT_TRUE(IsOn(model, 1, 0, -1.00049));  // 0.00098
  EXPECT_FALSE(IsOn(model, 1, 0, -1.00051));
  EXPECT_TRUE(IsOn(model, 2, -0.000124, 0.5));
  EXPECT_FALSE(IsOn(model, 2, -0.000126, 0.5));
  EXPECT_FALSE(IsOn(model, 3, 1.00024, 0));  // a node is not there
  auto spec = model.Spec();
  spec.SetGenTol(TolType::PointInElement, 0.1);
  model.SetSpec(spec);
  EXPECT_TRUE(IsOn(model, 1, 1.024, 0));
  EXPECT_FALSE(IsOn(model, 1, 1.026, 0));
}

TEST(ValidatePointLoadPosition, IsFalseForWhatIsNoPlate) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetElem(2, Testing::Element(ElementType::Beam, {1, 2}));
  model.SetLoadPanel(3, Testing::Panel({1, 2, 3}));
  EXPECT_FALSE(IsOn(model, 2, 0, 0));
  EXPECT_FALSE(IsOn(model, 3, 0, 0));
  EXPECT_FALSE(IsOn(model, 9, 0, 0));
}

std::vector<int> Loaded(CZelData const& model, Data::CLoadBase const& load, bool panels) {
  std::vector<int> numbers;
  for (int const n : model.GetLoadedElements(load, panels)) numbers.push_back(n);
  return numbers;
}

TEST(GetLoadedElements, AreTheExistingOnesOfTheListAndPanelsWhenAskedFor) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  model.SetLoadPanel(5, Testing::Panel({1, 2, 3}));
  Data::CFaceLoad load;
  load.SetLoadedEntities({SelElement, L"2 to 9"});
  EXPECT_EQ(Loaded(model, load, false), std::vector{2});
  EXPECT_EQ(Loaded(model, load, true), (std::vector{2, 5}));
}

TEST(GetLoadedElements, OfMembersAreTheirChildren) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  model.SetLoadPanel(5, Testing::Panel({1, 2, 3}));
  Data::CMember member(MembType::Slab, 1, 0);
  member.AddChildElement(2, 0);
  member.AddChildElement(5, 0);
  member.AddChildElement(1, 1);
  member.AddChildElement(77, 1);  // is not there
  model.SetMember(3, member);
  Data::CFaceLoad load;
  load.SetLoadedEntities({SelMember, L"all"});
  EXPECT_EQ(Loaded(model, load, false), (std::vector{1, 2}));
  EXPECT_EQ(Loaded(model, load, true), (std::vector{1, 2, 5}));
  Data::CNodeLoad onNodes;
  onNodes.SetLoadedEntities({SelNode, L"1"});
  EXPECT_TRUE(Loaded(model, onNodes, true).empty());
}

}  // namespace
}  // namespace Tarvex::LoadQueriesTest
