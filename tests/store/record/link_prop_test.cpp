#include "store/record/link_prop.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::LinkPropTest {
namespace {

TEST(LinkProp, IsGivenByNameAndType) {
  CLinkProp prop(L"floor", CLinkProp::Type::Diaphragm);
  EXPECT_EQ(prop.Name(), L"floor");
  EXPECT_EQ(prop.TypeOf(), static_cast<CLinkProp::Type>(53));
  prop.SetType(static_cast<CLinkProp::Type>(17));
  EXPECT_EQ(prop.TypeOf(), static_cast<CLinkProp::Type>(17));
  EXPECT_EQ(CLinkProp().TypeOf(), static_cast<CLinkProp::Type>(4095));
}

TEST(LinkProp, IsCustomWhenItsTypeHasNoName) {
  EXPECT_FALSE(CLinkProp(L"", static_cast<CLinkProp::Type>(0)).IsCustom());
  EXPECT_FALSE(CLinkProp(L"", static_cast<CLinkProp::Type>(53)).IsCustom());
  EXPECT_FALSE(CLinkProp(L"", static_cast<CLinkProp::Type>(4095)).IsCustom());
  EXPECT_TRUE(CLinkProp(L"", static_cast<CLinkProp::Type>(54)).IsCustom());
}

TEST(LinkProp, ComparesEveryField) {
  using R = CLinkProp;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"type", [](R& r) { r.SetType(CLinkProp::Type::Diaphragm); }}});
}

}  // namespace
}  // namespace Tarvex::Data::LinkPropTest
