// The wiring of the tables is held by registry_test.cpp; here is what is particular to one.
#include "store/model/property_tables.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/prop_2d.h"
#include "store/record/section.h"
#include "store/record/spring_prop.h"
#include "tests/support/matchers.h"

namespace Tarvex::PropertyTablesTest {
namespace {

using Testing::OutOfRangeText;

TEST(SetSpringPropSid, ReplacesTheIdentifierAlone) {
  CZelData model;
  Data::CSpringProp spring;
  spring.SetName(L"pile");
  spring.SetSid(L"old");
  spring.SetMatrix(4);
  model.SetSpringProp(3, spring);
  model.SetSpringPropSid(3, L"new");
  spring.SetSid(L"new");
  EXPECT_EQ(model.SpringProp(3), spring);
  EXPECT_EQ(OutOfRangeText([&] { model.SetSpringPropSid(4, L"x"); }),
            "SpringProp 4 does not exist");
  EXPECT_EQ(model.SpringProp().size(), 1u);
}

TEST(PropertyTables, NameTableAndNumberOfWhatIsMissing) {
  CZelData const model;
  EXPECT_EQ(OutOfRangeText([&] { model.Section(0); }), "Section 0 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.Prop2D(4); }), "Prop2D 4 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.MatAnal(-1); }), "MatAnal -1 does not exist");
}

TEST(PropertyTables, LeaveAMaterialThatIsBlankedNamedByItsProperties) {
  CZelData model;
  model.SetSection(1, Data::CSection(L"", {Data::CSecComp(L"", 5, MatDesign())}));
  model.SetProp2D(2, Data::CProp2D(L"", 5, MatDesign(), 0, Data::PropertyType2d::Shell,
                                   Data::Surface2d::Middle, 1, {}));
  CZelData const before(model);
  model.BlankMatAnal(5, 1);
  model.BlankSection(1, 0);
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

TEST(PropertyTables, GoBackWithTheModel) {
  CZelData model;
  auto const empty = model.Snapshot();
  model.SetProp2D(2, Data::CProp2D());
  EXPECT_FALSE(model == *empty);
  EXPECT_FALSE(empty->Prop2DExist(2));
  model = *empty;
  EXPECT_FALSE(model.Prop2DExist(2));
}

}  // namespace
}  // namespace Tarvex::PropertyTablesTest
