// New elements in the place of old ones: the table of lists, row by row.
#include "tests/topology/element_lists.h"

namespace Tarvex::ReplaceElemRefTest {
namespace {

using namespace Testing;

/// Element 7 becomes 8 and 9.
NumberLists const kSeven{{7, {8, 9}}};

bool Replace(CZelData& model, NumberLists const& numbers, bool mapped) {
  return CDataMgr(model).ReplaceElemRef(numbers, mapped);
}

/// A row of the table, by hand.
struct Row {
  ListTable table;
  bool needsFlag;
  bool elementsOnly;
  bool stays;
  bool takesMembers;  ///< whether the field can hold a list of members
};

std::vector<Row> AllRows() {
  using Z = CZelData;
  return {
      {SavedListRow(), false, true, false, true},
      {SurfaceRow(), false, false, true, false},
      {StageRow(), false, false, true, false},
      {AssemblyRow(), false, false, true, true},
      {TiedRow(false), false, false, false, true},
      {TiedRow(true), false, false, false, false},
      {LoadRow<Data::CBeamLoad>("BeamLoad", &Z::BeamLoad, &Z::HighestBeamLoad, &Z::SetBeamLoad),
       true, true, false, true},
      {LoadRow<Data::CAxialLoad>("AxialLoad", &Z::AxialLoad, &Z::HighestAxialLoad,
                                 &Z::SetAxialLoad),
       false, true, false, true},
      {LoadRow<Data::CBeamDist>("BeamDist", &Z::BeamDist, &Z::HighestBeamDist, &Z::SetBeamDist),
       true, false, false, true},
      {LoadRow<Data::CBeamThermalLoad>("BeamThermalLoad", &Z::BeamThermalLoad,
                                       &Z::HighestBeamThermalLoad, &Z::SetBeamThermalLoad),
       false, true, false, true},
      {LoadRow<Data::CEdgeLoad>("EdgeLoad", &Z::EdgeLoad, &Z::HighestEdgeLoad, &Z::SetEdgeLoad),
       true, false, false, true},
      {LoadRow<Data::CFaceLoad>("FaceLoad", &Z::FaceLoad, &Z::HighestFaceLoad, &Z::SetFaceLoad),
       true, true, false, true},
      {LoadRow<Data::CInPlaneLoad>("InPlaneLoad", &Z::InPlaneLoad, &Z::HighestInPlaneLoad,
                                   &Z::SetInPlaneLoad),
       false, true, false, true},
      {LoadRow<Data::CFaceThermalLoad>("FaceThermalLoad", &Z::FaceThermalLoad,
                                       &Z::HighestFaceThermalLoad, &Z::SetFaceThermalLoad),
       true, true, false, true},
      {LoadRow<Data::CGravityLoad>("GravityLoad", &Z::GravityLoad, &Z::HighestGravityLoad,
                                   &Z::SetGravityLoad),
       false, true, false, true},
  };
}

TEST(ReplaceElemRef, PutsAllNewElementsIntoEachList) {
  for (auto const& row : AllRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(9);
    row.table.add(model, Elements(L"6 7"));
    row.table.add(model, Elements(L"1 2"));
    EXPECT_TRUE(Replace(model, kSeven, true));
    EXPECT_EQ(TextOf(row.table.list(model, 1)), L"6 8 9");
    EXPECT_EQ(TextOf(row.table.list(model, 2)), L"1 2");
  }
}

TEST(ReplaceElemRef, LeavesTheLoadsWithAMappingOfTheirOwnWithoutTheFlag) {
  for (auto const& row : AllRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(9);
    row.table.add(model, Elements(L"6 7"));
    EXPECT_EQ(Replace(model, kSeven, false), !row.needsFlag);
    EXPECT_EQ(TextOf(row.table.list(model, 1)), row.needsFlag ? L"6 7" : L"6 8 9");
  }
}

TEST(ReplaceElemRef, PassesListsOfMembersOverWhereElementsAloneAreMeant) {
  for (auto const& row : AllRows()) {
    if (!row.takesMembers) continue;
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(9);
    row.table.add(model, Members(L"6 7"));
    EXPECT_EQ(Replace(model, kSeven, true), !row.elementsOnly);
    EXPECT_EQ(TextOf(row.table.list(model, 1)), row.elementsOnly ? L"6 7" : L"6 8 9");
  }
}

TEST(ReplaceElemRef, KeepsSurfacesStagesAndAssembliesWithAnEmptyListAndNothingElse) {
  for (auto const& row : AllRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(9);
    row.table.add(model, Elements(L"7"));
    EXPECT_TRUE(Replace(model, {{7, {}}}, true));
    ASSERT_EQ(row.table.highest(model), row.stays ? 1 : 0);
    if (row.stays) {
      EXPECT_TRUE(row.table.list(model, 1).IsEmpty());
    }
  }
}

TEST(ReplaceElemRef, RemovesFromTheHighestDownSoThatNoRecordIsPassedOver) {
  for (auto const& row : AllRows()) {
    if (row.stays || row.table.name == "List") continue;
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(9);
    for (auto const* text : {L"7", L"7", L"1", L"7"}) row.table.add(model, Elements(text));
    EXPECT_TRUE(Replace(model, {{7, {}}}, true));
    ASSERT_EQ(row.table.highest(model), 1);
    EXPECT_EQ(TextOf(row.table.list(model, 1)), L"1");
  }
}

TEST(ReplaceElemRef, RewritesListsOfNodesOnTheConstrainedSideOfATiedInterface) {
  auto model = ModelWithBeams(9);
  TiedRow(false).add(model, Nodes(L"7"));
  EXPECT_TRUE(Replace(model, kSeven, true));
  EXPECT_EQ(TextOf(model.TiedInterface(1).ConstrainedEntities()), L"8 9");
}

TEST(ReplaceElemRef, SkipsTheSecondReadOfAnInterfaceThatWasTheLastAndHasGone) {
  auto model = ModelWithBeams(9);
  Data::CTiedInterface tied;
  tied.SetConstrainedEntities(Elements(L"7"));
  tied.SetPrimaryElements(Elements(L"7"));
  model.SetTiedInterface(1, tied);
  EXPECT_TRUE(Replace(model, {{7, {}}}, true));
  EXPECT_EQ(model.HighestTiedInterface(), 0);
}

TEST(ReplaceElemRef, ReadsTheNextInterfaceUnderTheNumberOfOneThatHasGone) {
  auto model = ModelWithBeams(9);
  TiedRow(false).add(model, Elements(L"7"));  // 1: goes by its constrained side
  TiedRow(true).add(model, Elements(L"5"));   // 2: its primary side 5 becomes 6, then 2
  EXPECT_TRUE(Replace(model, {{5, {6}}, {6, {2}}, {7, {}}}, true));
  ASSERT_EQ(model.HighestTiedInterface(), 1);
  EXPECT_EQ(TextOf(model.TiedInterface(1).PrimaryElements()), L"2");
}

TEST(ReplaceElemRef, LeavesLoadsOnSolidsAndElementsThemselvesAlone) {
  auto model = ModelWithBeams(9);
  Data::CBodyFaceLoad face;
  face.SetLoadedEntities(Elements(L"7"));
  model.SetBodyFaceLoad(1, face);
  Data::CBodyThermalLoad thermal;
  thermal.SetLoadedEntities(Elements(L"7"));
  model.SetBodyThermalLoad(1, thermal);
  EXPECT_FALSE(Replace(model, kSeven, true));
  EXPECT_EQ(TextOf(model.BodyFaceLoad(1).LoadedEntities()), L"7");
  EXPECT_EQ(TextOf(model.BodyThermalLoad(1).LoadedEntities()), L"7");
}

TEST(ReplaceElemRef, LeavesTheModelAloneForAnEmptyMapAndIsAStepAllTheSame) {
  auto model = ModelWithBeams(9);
  model.SetList(1, Elements(L"7"));
  CZelData const before(model);
  EXPECT_FALSE(Replace(model, {}, true));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_EQ(model.NumUndo(), 1);
}

TEST(ReplaceElemRef, IsOneStepThatCanBeUndone) {
  auto model = ModelWithBeams(9);
  for (auto const& row : AllRows()) row.table.add(model, Elements(L"6 7"));
  CZelData const before(model);
  EXPECT_TRUE(Replace(model, kSeven, true));
  EXPECT_TRUE(model.Undo());
  EXPECT_TRUE(IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex::ReplaceElemRefTest
