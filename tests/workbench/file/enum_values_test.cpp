#include "workbench/file/enum_values.h"

#include <gtest/gtest.h>

#include <vector>

#include "store/record/axis.h"
#include "store/record/offset.h"

namespace Tarvex::Workbench::EnumValuesTest {
namespace {

enum class Gaps { Two = 2, Seven = 7, Last = 63 };
enum Plain : int { kFirst = 0, kThird = 2 };

template <class E>
std::vector<int> ValuesOf() {
  auto const values = EnumValues<E>::Get();
  return {values.begin(), values.end()};
}

TEST(EnumValues, AreTheEnumeratorsInAscendingOrder) {
  EXPECT_EQ(ValuesOf<Gaps>(), (std::vector{2, 7, 63}));
  EXPECT_EQ(ValuesOf<Plain>(), (std::vector{0, 2}));
  EXPECT_EQ(ValuesOf<AxisType>(), (std::vector{1, 2, 3}));
  EXPECT_EQ(ValuesOf<AutoOffset>(), (std::vector{0, 1}));
}

TEST(EnumValues, OfElementTypesAreAllNumbersThatElementsMayHave) {
  auto const values = ValuesOf<ElementType>();
  ASSERT_EQ(values.size(), 26u);
  EXPECT_EQ(values.front(), 1);
  EXPECT_EQ(values.back(), 26);
}

}  // namespace
}  // namespace Tarvex::Workbench::EnumValuesTest
