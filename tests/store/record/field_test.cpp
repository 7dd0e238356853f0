#include "store/record/field.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tarvex::FieldTest {
namespace {

struct Inner {
  double size = 0;
  static constexpr auto Fields() { return MakeRows(Plain<Inner>("size", &Inner::size)); }
};

struct Base {
  int number = 0;
};

struct Outer : Base {
  Inner inner;
  std::vector<int> nodes;
  int unlisted = 0;
  static constexpr auto Fields() {
    return MakeRows(Required<Outer>("number", &Base::number), Plain<Outer>("inner", &Outer::inner),
                    Reference<Outer, CModule::Node>("nodes", &Outer::nodes, true));
  }
};

TEST(Same, TellsDoublesApartToTheBit) {
  EXPECT_TRUE(Same(0.1, 0.1));
  EXPECT_FALSE(Same(0.0, -0.0));
  EXPECT_FALSE(Same(1.0, std::nextafter(1.0, 2)));
  double const nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(Same(nan, nan));
}

TEST(Same, TellsVectorsAndArraysOfDoublesApartToTheBit) {
  EXPECT_TRUE(Same(Vec2<double>{1, 2}, Vec2<double>{1, 2}));
  EXPECT_FALSE(Same(Vec2<double>{0, 2}, Vec2<double>{-0.0, 2}));
  EXPECT_FALSE(Same(Vec2<double>{1, 0}, Vec2<double>{1, -0.0}));
  EXPECT_TRUE(Same(Vec3<double>{1, 2, 3}, Vec3<double>{1, 2, 3}));
  EXPECT_FALSE(Same(Vec3<double>{0, 2, 3}, Vec3<double>{-0.0, 2, 3}));
  EXPECT_FALSE(Same(Vec3<double>{1, 0, 3}, Vec3<double>{1, -0.0, 3}));
  EXPECT_FALSE(Same(Vec3<double>{1, 2, 0}, Vec3<double>{1, 2, -0.0}));
  EXPECT_TRUE(Same(std::array{1.0, 2.0}, std::array{1.0, 2.0}));
  EXPECT_FALSE(Same(std::array{1.0, 0.0}, std::array{1.0, -0.0}));
}

TEST(Same, ComparesTheItemsOfAListToTheBit) {
  using Points = std::vector<Vec2<double>>;
  EXPECT_TRUE(Same(Points{{0, 1}}, Points{{0, 1}}));
  EXPECT_FALSE(Same(Points{{0, 1}}, Points{{-0.0, 1}}));
  EXPECT_FALSE(Same(Points{{0, 1}}, Points{{0, 1}, {2, 3}}));
  EXPECT_FALSE(Same(std::vector{0.0}, std::vector{-0.0}));
  EXPECT_TRUE(Same(std::vector{1, 2}, std::vector{1, 2}));
  EXPECT_FALSE(Same(std::vector{1, 2}, std::vector{2, 1}));
}

TEST(Same, ComparesTheDescribedFieldsOfARecordAndNoOther) {
  Outer const a;
  Outer b;
  EXPECT_TRUE(Same(a, b));
  b.unlisted = 5;
  EXPECT_TRUE(Same(a, b));
  b.inner.size = -0.0;
  EXPECT_FALSE(Same(a, b));
  b = a;
  b.nodes = {1};
  EXPECT_FALSE(Same(a, b));
  b = a;
  b.number = 1;
  EXPECT_FALSE(Same(a, b));
}

TEST(Fields, SayWhatIsRequiredAndWhatPointsWhere) {
  auto const& number = GetRow<0>(kFieldsOf<Outer>);
  auto const& inner = GetRow<1>(kFieldsOf<Outer>);
  auto const& nodes = GetRow<2>(kFieldsOf<Outer>);
  EXPECT_EQ(number.name, "number");
  EXPECT_TRUE(number.required);
  EXPECT_EQ(number.target, nullptr);
  EXPECT_FALSE(inner.required);
  EXPECT_TRUE(nodes.required);
  ASSERT_NE(nodes.target, nullptr);
  EXPECT_EQ(nodes.target(Outer()), CModule::Node);
}

TEST(Fields, AreVisitedInTheirOrder) {
  std::string names;
  ForEachField<Outer>([&](auto const& field) { names += std::string(field.name) + " "; });
  EXPECT_EQ(names, "number inner nodes ");
}

}  // namespace
}  // namespace Tarvex::FieldTest
