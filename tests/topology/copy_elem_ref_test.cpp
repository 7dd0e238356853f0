// Copies of elements beside the elements: which table gains what, under which flag.
#include "store/model/list_expansion.h"
#include "tests/support/plain_list.h"
#include "tests/topology/element_lists.h"

namespace Tarvex::CopyElemRefTest {
namespace {

using namespace Testing;

/// Elements 4 and 5 have the copies 14 and 15.
NumberMap const kCopies{{4, 14}, {5, 15}};

/// The three flags.
struct Flags {
  bool lists = false;
  bool tied = false;
  bool loads = false;
};
constexpr Flags kAllFlags{true, true, true};

bool Copy(CZelData& model, Flags flags, NumberMap const& copies = kCopies) {
  return CDataMgr(model).CopyElemRef(copies, flags.lists, flags.tied, flags.loads);
}

/// A table, and whether it goes by what its lists select before anything is added; by hand.
struct Row {
  ListTable table;
  bool bySelected;
  bool takesMembers;
};

std::vector<Row> LoadRows() {
  using Z = CZelData;
  return {
      {SurfaceRow(), false, false},
      {StageRow(), false, false},
      {LoadRow<Data::CBeamLoad>("BeamLoad", &Z::BeamLoad, &Z::HighestBeamLoad, &Z::SetBeamLoad),
       true, true},
      {LoadRow<Data::CAxialLoad>("AxialLoad", &Z::AxialLoad, &Z::HighestAxialLoad,
                                 &Z::SetAxialLoad),
       false, true},
      {LoadRow<Data::CBeamDist>("BeamDist", &Z::BeamDist, &Z::HighestBeamDist, &Z::SetBeamDist),
       true, true},
      {LoadRow<Data::CBeamThermalLoad>("BeamThermalLoad", &Z::BeamThermalLoad,
                                       &Z::HighestBeamThermalLoad, &Z::SetBeamThermalLoad),
       false, true},
      {LoadRow<Data::CEdgeLoad>("EdgeLoad", &Z::EdgeLoad, &Z::HighestEdgeLoad, &Z::SetEdgeLoad),
       false, true},
      {LoadRow<Data::CFaceLoad>("FaceLoad", &Z::FaceLoad, &Z::HighestFaceLoad, &Z::SetFaceLoad),
       true, true},
      {LoadRow<Data::CInPlaneLoad>("InPlaneLoad", &Z::InPlaneLoad, &Z::HighestInPlaneLoad,
                                   &Z::SetInPlaneLoad),
       true, true},
      {LoadRow<Data::CFaceThermalLoad>("FaceThermalLoad", &Z::FaceThermalLoad,
                                       &Z::HighestFaceThermalLoad, &Z::SetFaceThermalLoad),
       false, true},
      {LoadRow<Data::CGravityLoad>("GravityLoad", &Z::GravityLoad, &Z::HighestGravityLoad,
                                   &Z::SetGravityLoad),
       true, true},
  };
}

TEST(CopyElemRef, AddsTheCopiesToSurfacesStagesAndLoads) {
  for (auto const& row : LoadRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(20);
    row.table.add(model, Elements(L"3 4 5"));
    row.table.add(model, Elements(L"1 2"));
    EXPECT_FALSE(Copy(model, {true, true, false}));
    EXPECT_TRUE(Copy(model, {.loads = true}));
    EXPECT_EQ(TextOf(row.table.list(model, 1)), L"3 4 5 14 15");
    EXPECT_EQ(TextOf(row.table.list(model, 2)), L"1 2");
  }
}

TEST(CopyElemRef, FollowsAChainButWhereItGoesByWhatWasSelectedBefore) {
  for (auto const& row : LoadRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(20);
    row.table.add(model, Elements(L"4"));
    EXPECT_TRUE(Copy(model, kAllFlags, {{4, 5}, {5, 6}}));
    EXPECT_EQ(TextOf(row.table.list(model, 1)), row.bySelected ? L"4 5" : L"4 5 6");
  }
}

TEST(CopyElemRef, PassesLoadsOnMembersOver) {
  for (auto const& row : LoadRows()) {
    if (!row.takesMembers) continue;
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(20);
    for (int i = 0; i < 6; ++i) Testing::MemberAt(model, MembType::Beam, L"1 2");
    row.table.add(model, Members(L"4 5"));
    EXPECT_FALSE(Copy(model, kAllFlags));
  }
}

TEST(CopyElemRef, LeavesAListThatHoldsTheCopiesAndSaysThatNothingChanged) {
  for (auto const& row : LoadRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithBeams(20);
    row.table.add(model, Elements(L"4 5 14 15"));
    EXPECT_FALSE(Copy(model, kAllFlags));
  }
}

TEST(CopyElemRef, AddsToSavedListsOfElementsUnderTheirFlag) {
  auto model = ModelWithBeams(20);
  model.SetList(1, Elements(L"4"));
  model.SetList(2, Nodes(L"4"));
  EXPECT_FALSE(Copy(model, {false, true, true}));
  EXPECT_TRUE(Copy(model, {.lists = true}));
  EXPECT_EQ(TextOf(model.List(1)), L"4 14");
  EXPECT_EQ(TextOf(model.List(2)), L"4");
}

TEST(CopyElemRef, LeavesAssembliesAlone) {
  auto model = ModelWithBeams(20);
  AssemblyRow().add(model, Elements(L"4 5"));
  EXPECT_FALSE(Copy(model, kAllFlags));
}

Data::CTiedInterface Tied(wchar_t const* primary, Data::CEntList const& constrained) {
  Data::CTiedInterface tied;
  tied.SetPrimaryElements(Elements(primary));
  tied.SetConstrainedEntities(constrained);
  tied.SetStage(List(SelNone, L"2"));
  return tied;
}

TEST(CopyElemRef, MakesATiedInterfaceOfTheCopiesOfBothSides) {
  auto model = ModelWithBeams(20);
  model.SetTiedInterface(1, Tied(L"3 4", Elements(L"5 6")));
  EXPECT_FALSE(Copy(model, {true, false, true}));
  EXPECT_TRUE(Copy(model, {.tied = true}));
  ASSERT_EQ(model.HighestTiedInterface(), 2);
  EXPECT_TRUE(model.TiedInterface(1) == Tied(L"3 4", Elements(L"5 6")));
  EXPECT_TRUE(model.TiedInterface(2) == Tied(L"14", Elements(L"15")));
}

TEST(CopyElemRef, KeepsTheListOfASideWithoutACopy) {
  auto model = ModelWithBeams(20);
  model.SetTiedInterface(1, Tied(L"3 4", Elements(L"6 7")));
  model.SetTiedInterface(2, Tied(L"3", Elements(L"5")));
  model.SetTiedInterface(3, Tied(L"3", Nodes(L"5")));
  EXPECT_TRUE(Copy(model, kAllFlags));
  ASSERT_EQ(model.HighestTiedInterface(), 5);
  EXPECT_TRUE(model.TiedInterface(4) == Tied(L"3", Elements(L"15")));    // of 2
  EXPECT_TRUE(model.TiedInterface(5) == Tied(L"14", Elements(L"6 7")));  // of 1
}

TEST(CopyElemRef, DoesNotTakeACopyThatTheSideHolds) {
  auto model = ModelWithBeams(20);
  model.SetTiedInterface(1, Tied(L"4 14", Elements(L"6")));
  EXPECT_FALSE(Copy(model, kAllFlags));
}

TEST(CopyElemRef, LeavesTheModelAloneForAnEmptyMapSaysSoAndIsAStepAllTheSame) {
  auto model = ModelWithBeams(20);
  model.SetList(1, Elements(L"4 5"));
  CZelData const before(model);
  EXPECT_FALSE(Copy(model, kAllFlags, {}));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_EQ(model.NumUndo(), 1);
}

TEST(CopyElemRef, IsOneStepThatCanBeUndone) {
  auto model = ModelWithBeams(20);
  for (auto const& row : LoadRows()) row.table.add(model, Elements(L"4 5"));
  model.SetTiedInterface(1, Tied(L"4", Elements(L"5")));
  CZelData const before(model);
  EXPECT_TRUE(Copy(model, kAllFlags));
  EXPECT_TRUE(model.Undo());
  EXPECT_TRUE(IsUnchanged(model, before));
}

/// The plain form: the list is asked anew for each pair.
bool PlainAddCopies(Data::CEntList& list, NumberMap const& copies, CZelData const& model) {
  bool grown = false;
  auto const includes = [&](int n) {
    return Util::IsItemIncluded(list, {SelElement, n}, model, -1, false);
  };
  for (auto const& [number, copy] : copies)
    if (includes(number) && !includes(copy)) {
      list.AddTo(copy);
      grown = true;
    }
  return grown;
}

TEST(CopyElemRef, AddsWhatThePlainFormAdds) {
  int grown = 0;
  Testing::ForEachRandomModel(100, [&](CZelData model, Random& random) {
    Testing::ListForm form;
    form.words = {L"G", L"PB", L"#"};
    form.names = {L"roof"};
    NumberMap copies;
    for (int i = random.Int(1, 30); i > 0; --i) {
      int const old = random.Int(1, 60);
      copies[old] = random.Int(1, 60);
    }
    for (int n = 5; n >= 1; --n)
      model.SetList(n, {SelElement, CString(RandomListText(random, form, random.Int(0, 20)))});
    auto plain = model;
    for (int n = plain.HighestList(); n >= 1; --n) {
      if (!plain.ListExist(n) || plain.List(n).TypeOf() != SelElement) continue;
      auto list = plain.List(n);
      if (!PlainAddCopies(list, copies, plain)) continue;
      plain.SetList(n, list);
      ++grown;
    }
    Copy(model, {.lists = true}, copies);
    ASSERT_TRUE(IsUnchanged(model, plain));
  });
  EXPECT_GT(grown, 50);
}

}  // namespace
}  // namespace Tarvex::CopyElemRefTest
