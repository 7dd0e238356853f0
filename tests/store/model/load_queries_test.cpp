#include "store/model/load_queries.h"

#include <gtest/gtest.h>

#include <cmath>

#include "store/model/zel_data.h"
#include "store/record/face_loads.h"
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
    EXPECT_FALSE(IsOn(model, 1, r, 1.001));
    EXPECT_FALSE(IsOn(model, 1, r, -1.001));
    EXPECT_FALSE(IsOn(model, 1, 1.001, r));
    EXPECT_FALSE(IsOn(model, 1, -1.001, r));
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
       {std::pair{-0.001, 0.5}, {0.5, -0.001}, {0.501, 0.5}, {1.0, 1.0}, {-1.0, -1.0}})
    EXPECT_FALSE(IsOn(model, 2, r, s)) << r << " " << s;
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

}  // namespace
}  // namespace Tarvex::LoadQueriesTest
