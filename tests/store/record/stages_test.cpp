#include "store/record/stages.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::StagesTest {
namespace {

TEST(AnalStage, HoldsAListOfElementsAlone) {
  CAnalStage stage(L"a", CEntList(SelElement, L"1 to 3"));
  EXPECT_EQ(stage.Name(), L"a");
  EXPECT_EQ(stage.StageElem().TypeOf(), SelElement);
  EXPECT_EQ(stage.StageElem().String(false), L"1 to 3");
  stage.SetStageElem(CEntList(SelElement, L"5"));
  EXPECT_EQ(stage.StageElem().String(false), L"5");
  EXPECT_THROW(stage.SetStageElem(CEntList(SelMember, L"5")), std::invalid_argument);
  EXPECT_EQ(stage.StageElem().String(false), L"5");
  stage.SetStageElem(CEntList());
  EXPECT_TRUE(stage.StageElem().IsEmpty());
}

TEST(AnalStageProp, GivesBackWhatIsSet) {
  CAnalStageProp record(1, PropertyType::Cable, 2, 3);
  EXPECT_EQ(record.Stage(), 1);
  EXPECT_EQ(record.PropType(), PropertyType::Cable);
  EXPECT_EQ(record.ElemProp(), 2);
  EXPECT_EQ(record.PropRec(), 3);
  record.SetStage(4);
  record.SetPropType(PropertyType::Mass);
  record.SetElemProp(5);
  record.SetPropRec(6);
  EXPECT_EQ(record, CAnalStageProp(4, PropertyType::Mass, 5, 6));
  CAnalStageProp const none;
  EXPECT_EQ(none, CAnalStageProp(0, PropertyType::Section, 0, 0));
}

TEST(AnalStageMat, GivesBackWhatIsSet) {
  CAnalStageMat record(1, 2, 3);
  EXPECT_EQ(record.Stage(), 1);
  EXPECT_EQ(record.ElemOriginalMat(), 2);
  EXPECT_EQ(record.ElemStageMat(), 3);
  record.SetStage(4);
  record.SetElemOriginalMat(5);
  record.SetElemStageMat(6);
  EXPECT_EQ(record, CAnalStageMat(4, 5, 6));
}

TEST(PropertyType, HasItsNumbersAndTables) {
  struct Row {
    PropertyType type;
    int number;
    int module;
  };
  for (auto const& [type, number, module] :
       {Row{PropertyType::Section, 0, 50}, Row{PropertyType::Spring, 1, 52},
        Row{PropertyType::Mass, 2, 53}, Row{PropertyType::Plate, 3, 54},
        Row{PropertyType::Link, 4, 56}, Row{PropertyType::Cable, 5, 58},
        Row{PropertyType::None, 6, -1}, Row{PropertyType::Solid, 7, 55},
        Row{PropertyType::Damper, 8, 57}}) {
    EXPECT_EQ(static_cast<int>(type), number);
    EXPECT_EQ(static_cast<int>(PropertyModule(type)), module);
  }
}

TEST(Stages, CompareEveryField) {
  Testing::ExpectStoredFields<CAnalStage>(
      {{"name", [](auto& s) { s.SetName(L"a"); }},
       {"sid", [](auto& s) { s.SetSid(L"a"); }},
       {"colour", [](auto& s) { s.SetColour(1); }},
       {"stageElem", [](auto& s) { s.SetStageElem(CEntList(SelElement, L"1")); }}});
  Testing::ExpectStoredFields<CAnalStageProp>(
      {{"sid", [](auto& s) { s.SetSid(L"a"); }},
       {"stage", [](auto& s) { s.SetStage(1); }},
       {"propType", [](auto& s) { s.SetPropType(PropertyType::Solid); }},
       {"elemProp", [](auto& s) { s.SetElemProp(1); }},
       {"propRec", [](auto& s) { s.SetPropRec(1); }}});
  Testing::ExpectStoredFields<CAnalStageMat>(
      {{"sid", [](auto& s) { s.SetSid(L"a"); }},
       {"stage", [](auto& s) { s.SetStage(1); }},
       {"elemOriginalMat", [](auto& s) { s.SetElemOriginalMat(1); }},
       {"elemStageMat", [](auto& s) { s.SetElemStageMat(1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::StagesTest
