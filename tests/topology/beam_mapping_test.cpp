// Loads of lines given to pieces: each type of load in each place.
//
// The parent is element 7, 10 long, from node 1 at the origin to node 2 along x.
#include <cmath>
#include <limits>

#include "tests/topology/private_access.h"
#include "tests/topology/topology_support.h"

namespace Tarvex::BeamMappingTest {
namespace {

using namespace Testing;
using LoadType = Data::CBeamLoad::LoadType;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kHuge = std::numeric_limits<double>::infinity();

/// Stores a beam under a number, on new nodes along x.
void BeamOn(CZelData& model, int n, double x0, double x1) {
  int const a = NodeAt(model, x0, 0, 0);
  int const b = NodeAt(model, x1, 0, 0);
  model.SetElem(n, Element(ElementType::Beam, {a, b}));
}

/// Element 7 and pieces of it from cut to cut, numbered from 8.
CZelData CutModel(std::vector<double> const& cuts) {
  CZelData model;
  BeamOn(model, 7, 0, 10);
  double from = 0;
  int n = 8;
  for (double const to : cuts) {
    BeamOn(model, n++, from, to);
    from = to;
  }
  return model;
}

Data::CBeamLoad Load(LoadType type, std::vector<double> const& values,
                     std::vector<double> const& positions = {}, wchar_t const* list = L"7") {
  Data::CBeamLoad load;
  load.SetType(type);
  load.SetLoadCase(2);
  load.SetAxis(0);
  load.SetDirection(Direction::Y);
  load.SetLoadedEntities(Elements(list));
  for (std::size_t i = 0; i < values.size(); ++i) load.SetValue(static_cast<int>(i), values[i]);
  for (std::size_t i = 0; i < positions.size(); ++i) load.SetPos(static_cast<int>(i), positions[i]);
  return load;
}

void Add(CZelData& model, Data::CBeamLoad const& load) {
  model.SetBeamLoad(model.HighestBeamLoad() + 1, load);
}

/// What a test says of one load: its list, type, values and positions.
struct Seen {
  std::wstring list;
  int type;
  double v0;
  double v1;
  double p0;
  double p1;
};
bool operator==(Seen const& a, Seen const& b) {
  auto const near = [](double x, double y) { return std::abs(x - y) < 1e-12; };
  return a.list == b.list && a.type == b.type && near(a.v0, b.v0) && near(a.v1, b.v1) &&
         near(a.p0, b.p0) && near(a.p1, b.p1);
}
void PrintTo(Seen const& seen, std::ostream* out) {
  *out << CString(seen.list).ToUtf8() << ": type " << seen.type << " values " << seen.v0 << " "
       << seen.v1 << " positions " << seen.p0 << " " << seen.p1;
}

std::vector<Seen> Loads(CZelData const& model) {
  std::vector<Seen> all;
  for (auto const& load : model.BeamLoad()) {
    EXPECT_EQ(load.LoadCase(), 2);
    EXPECT_EQ(load.GetDirection(), Direction::Y);
    all.push_back({TextOf(load.LoadedEntities()), static_cast<int>(load.TypeOf()), load.Value(0),
                   load.Value(1), load.Pos(0), load.Pos(1)});
  }
  return all;
}
using AllSeen = std::vector<Seen>;

bool Map(CZelData& model, NumberLists const& pieces, SelType kind = SelElement) {
  return CDataMgr(model).MapBeamLoading(kind, pieces);
}
NumberLists const kTwo{{7, {8, 9}}};
NumberLists const kThree{{7, {8, 9, 10}}};

// Uniform.

TEST(MapBeamLoading, LeavesOneRecordOfAUniformLoadOnTheListOfThePieces) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Uniform, {5}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8 9", 2, 5, 0, 0, 0}}));
}

TEST(MapBeamLoading, MapsAUniformLoadOfAPieceThatIsCutAgain) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Uniform, {5}));
  EXPECT_TRUE(Map(model, kTwo));
  BeamOn(model, 10, 0, 1);
  BeamOn(model, 11, 1, 4);
  EXPECT_TRUE(Map(model, {{8, {10, 11}}}));
  EXPECT_EQ(Loads(model), (AllSeen{{L"9 10 11", 2, 5, 0, 0, 0}}));
}

TEST(MapBeamLoading, TakesAPieceThatReachesOverAnEndByLessThanATenthOfAMillimetreAsWithin) {
  auto model = CutModel({});
  BeamOn(model, 8, -0.00009, 10.00009);
  Add(model, Load(LoadType::Uniform, {5}));
  EXPECT_TRUE(Map(model, {{7, {8}}}));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 2, 5, 0, 0, 0}}));
}

TEST(MapBeamLoading, MakesAPatchOfAUniformLoadOnAPieceThatReachesFurtherOverAnEnd) {
  auto model = CutModel({});
  BeamOn(model, 8, -2, 4);
  BeamOn(model, 9, 4, 13);
  BeamOn(model, 10, -1, 12);
  Add(model, Load(LoadType::Uniform, {5}));
  EXPECT_TRUE(Map(model, kThree));
  // From the start of 8 to the parent's it is 2, from the start of 9 to the parent's end 6.
  EXPECT_EQ(Loads(model),
            (AllSeen{{L"8", 4, 5, 5, 2, -1}, {L"9", 4, 5, 5, 0, 6}, {L"10", 4, 5, 5, 1, 11}}));
}

TEST(MapBeamLoading, MakesAPatchFromATenthOfAMillimetreOverAnEndOnHoweverLongTheParentIs) {
  for (double const length : {10.0, 1000.0}) {
    CZelData model;
    BeamOn(model, 7, 0, length);
    BeamOn(model, 8, -0.00011, length / 2);
    BeamOn(model, 9, length / 2, length + 0.00011);
    Add(model, Load(LoadType::Uniform, {5}));
    EXPECT_TRUE(Map(model, kTwo));
    // The load begins 0.00011 behind the start of 8 and ends half the parent behind that of 9.
    EXPECT_EQ(Loads(model),
              (AllSeen{{L"8", 4, 5, 5, 0.00011, -1}, {L"9", 4, 5, 5, 0, length / 2}}));
  }
}

// Point.

TEST(MapBeamLoading, GivesAPointLoadToThePieceUnderItAtItsPlaceThere) {
  auto model = CutModel({4, 7, 10});
  Add(model, Load(LoadType::Point, {5}, {6.5}));
  EXPECT_TRUE(Map(model, kThree));
  EXPECT_EQ(Loads(model), (AllSeen{{L"9", 1, 5, 0, 2.5, 0}}));
}

TEST(MapBeamLoading, ReadsANegativePositionAsAFractionOfTheParent) {
  auto model = CutModel({4, 7, 10});
  Add(model, Load(LoadType::Point, {5}, {-0.65}));
  Add(model, Load(LoadType::Point, {3}, {-1}));
  EXPECT_TRUE(Map(model, kThree));
  EXPECT_EQ(Loads(model), (AllSeen{{L"9", 1, 5, 0, 2.5, 0}, {L"10", 1, 3, 0, 3, 0}}));
}

TEST(MapBeamLoading, GivesAPointLoadAtASharedNodeToTheFirstPieceAlone) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Point, {5}, {4}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 1, 5, 0, 4, 0}}));
}

TEST(MapBeamLoading, GivesAPointLoadAtTheStartToThePieceThatStartsThere) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Point, {5}, {0}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 1, 5, 0, 0, 0}}));
}

// Linear.

TEST(MapBeamLoading, CutsALinearLoadAtEachPiece) {
  auto model = CutModel({4, 7, 10});
  Add(model, Load(LoadType::Linear, {10, 30}));
  EXPECT_TRUE(Map(model, kThree));
  // 10 + 2 x: 18 at 4, 24 at 7.
  EXPECT_EQ(Loads(model),
            (AllSeen{{L"8", 3, 10, 18, 0, 0}, {L"9", 3, 18, 24, 0, 0}, {L"10", 3, 24, 30, 0, 0}}));
}

TEST(MapBeamLoading, KeepsALinearLoadOnTheOthersOfItsList) {
  auto model = CutModel({4, 10});
  BeamOn(model, 3, 20, 30);
  Add(model, Load(LoadType::Linear, {10, 30}, {}, L"3 7"));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model),
            (AllSeen{{L"3", 3, 10, 30, 0, 0}, {L"8", 3, 10, 18, 0, 0}, {L"9", 3, 18, 30, 0, 0}}));
}

TEST(MapBeamLoading, MakesAPatchOfALinearLoadOnAPieceThatReachesOverAnEnd) {
  auto model = CutModel({});
  BeamOn(model, 8, 5, 12);
  Add(model, Load(LoadType::Linear, {10, 30}));
  EXPECT_TRUE(Map(model, {{7, {8}}}));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 4, 20, 30, 0, 5}}));
}

TEST(MapBeamLoading, MakesAPatchOfALinearLoadFromATenthOfAMillimetreOverAnEndOn) {
  auto model = CutModel({});
  BeamOn(model, 8, 5, 10.00011);
  Add(model, Load(LoadType::Linear, {10, 30}));
  EXPECT_TRUE(Map(model, {{7, {8}}}));
  // 10 + 2 * 5 = 20 at its start; the load ends 5 from there.
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 4, 20, 30, 0, 5}}));
}

// Patch.

TEST(MapBeamLoading, CutsAPatchOverFourPieces) {
  auto model = CutModel({2, 4, 7, 10});
  Add(model, Load(LoadType::Patch, {10, 30}, {1, 9}));
  EXPECT_TRUE(Map(model, {{7, {8, 9, 10, 11}}}));
  // 10 + 2.5 (x - 1): 12.5 at 2, 17.5 at 4, 25 at 7. It comes in at 1 from the start of the first
  // and ends at 9 - 7 = 2 on the last; the inner pieces are linear, with positions.
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 4, 10, 12.5, 1, -1},
                                   {L"9", 3, 12.5, 17.5, 0, -1},
                                   {L"10", 3, 17.5, 25, 0, -1},
                                   {L"11", 4, 25, 30, 0, 2}}));
}

TEST(MapBeamLoading, KeepsAPatchWithinOnePieceAndWritesNothingForTheOthers) {
  auto model = CutModel({2, 7, 10});
  Add(model, Load(LoadType::Patch, {10, 30}, {-0.25, -0.65}));
  EXPECT_TRUE(Map(model, kThree));
  EXPECT_EQ(Loads(model), (AllSeen{{L"9", 4, 10, 30, 0.5, 4.5}}));
}

TEST(MapBeamLoading, TakesAPatchThatFillsAPieceAsLinear) {
  auto model = CutModel({2, 7, 10});
  Add(model, Load(LoadType::Patch, {10, 30}, {2, 7}));
  EXPECT_TRUE(Map(model, kThree));
  EXPECT_EQ(Loads(model), (AllSeen{{L"9", 3, 10, 30, 0, -1}}));
}

TEST(MapBeamLoading, WritesAPatchWithoutLengthWhereOnePieceHoldsIt) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Patch, {10, 30}, {3, 3}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 4, 10, 30, 3, 3}}));
}

TEST(MapBeamLoading, DropsAPatchWithoutLengthBetweenTwoPiecesOrAtTheStart) {
  for (double const at : {4.0, 0.0}) {
    auto model = CutModel({4, 10});
    Add(model, Load(LoadType::Patch, {10, 30}, {at, at}));
    EXPECT_TRUE(Map(model, kTwo));
    EXPECT_EQ(model.HighestBeamLoad(), 0);
  }
}

// Tri-linear.

TEST(MapBeamLoading, CutsATrilinearLoadIntoItsStraightPartsOnEachPiece) {
  auto model = CutModel({5, 10});
  Add(model, Load(LoadType::Trilinear, {12, 20}, {3, 7}));
  EXPECT_TRUE(Map(model, kTwo));
  // Rise 0 to 12 over 3; then 12 + 2 (x - 3), 16 at 5; fall 20 to 0 over 3.
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 4, 0, 12, 0, 3},
                                   {L"8", 4, 12, 16, 3, -1},
                                   {L"9", 4, 16, 20, 0, 2},
                                   {L"9", 4, 20, 0, 2, 5}}));
}

TEST(MapBeamLoading, WritesUpToThreePartsOfATrilinearLoadOnOnePiece) {
  auto model = CutModel({1, 9, 10});
  Add(model, Load(LoadType::Trilinear, {12, 20}, {3, 7}));
  EXPECT_TRUE(Map(model, kThree));
  // 4 a unit up to 3, 20/3 a unit down from 7: 4 at 1, 20/3 at 9.
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 3, 0, 4, 0, -1},
                                   {L"9", 4, 4, 12, 0, 2},
                                   {L"9", 4, 12, 20, 2, 6},
                                   {L"9", 4, 20, 20.0 / 3, 6, -1},
                                   {L"10", 3, 20.0 / 3, 0, 0, -1}}));
}

// Pieces that run backwards.

TEST(MapBeamLoading, LosesAPointLoadOnAPieceThatRunsBackwardsWithoutAWord) {
  auto model = CutModel({});
  BeamOn(model, 8, 10, 0);
  Add(model, Load(LoadType::Point, {5}, {4}));
  EXPECT_TRUE(Map(model, {{7, {8}}}));
  EXPECT_EQ(model.HighestBeamLoad(), 0);
}

TEST(MapBeamLoading, GivesUniformAndLinearLoadsToPiecesThatRunBackwards) {
  auto model = CutModel({4});
  BeamOn(model, 9, 10, 4);
  Add(model, Load(LoadType::Uniform, {5}));
  Add(model, Load(LoadType::Linear, {10, 30}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model),
            (AllSeen{{L"8 9", 2, 5, 0, 0, 0}, {L"8", 3, 10, 18, 0, 0}, {L"9", 3, 30, 18, 0, 0}}));
}

TEST(MapBeamLoading, MirrorsAPatchOnAPieceThatRunsBackwards) {
  auto model = CutModel({4});
  BeamOn(model, 9, 10, 4);
  Add(model, Load(LoadType::Patch, {10, 30}, {1, 9}));
  EXPECT_TRUE(Map(model, kTwo));
  // On 9 it begins 10 - 9 = 1 from its start with 30 and goes on to 17.5 at its end.
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 4, 10, 17.5, 1, -1}, {L"9", 4, 30, 17.5, 1, -1}}));
}

// Lists.

TEST(MapBeamLoading, LeavesALoadOnARangeAndSaysSo) {
  CZelData model;
  for (int n = 1; n <= 3; ++n) BeamOn(model, n, 0, 10);
  BeamOn(model, 8, 0, 4);
  BeamOn(model, 9, 4, 10);
  Add(model, Load(LoadType::Uniform, {5}, {}, L"1 to 3"));
  CZelData const before(model);
  EXPECT_FALSE(Map(model, {{2, {8, 9}}}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MapBeamLoading, LeavesLoadsOnAllOnSavedListsAndByPropertyAndSaysSo) {
  for (auto const* list : {L"all", L"#1", L"PB1", L"7 not 9", L"7 or 3", L"(7)"}) {
    SCOPED_TRACE(CString(list).ToUtf8());
    auto model = CutModel({4, 10});
    model.SetElemProperty(7, 1);
    model.SetList(1, Elements(L"7"));
    Add(model, Load(LoadType::Point, {5}, {1}, list));
    CZelData const before(model);
    EXPECT_FALSE(Map(model, kTwo));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(MapBeamLoading, GoesOnBehindALoadThatCannotBeMapped) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Uniform, {5}, {}, L"all"));
  Add(model, Load(LoadType::Uniform, {6}));
  EXPECT_FALSE(Map(model, kTwo));
  EXPECT_EQ(Loads(model), (AllSeen{{L"all", 2, 5, 0, 0, 0}, {L"8 9", 2, 6, 0, 0, 0}}));
}

TEST(MapBeamLoading, PassesLoadsOnOtherElementsAndOnMembersOver) {
  auto model = CutModel({4, 10});
  BeamOn(model, 3, 0, 10);
  MemberAt(model, MembType::Beam, L"1 2");
  Add(model, Load(LoadType::Uniform, {5}, {}, L"3"));
  auto onMember = Load(LoadType::Point, {5}, {3});
  onMember.SetLoadedEntities(Members(L"1"));
  Add(model, onMember);
  CZelData const before(model);
  EXPECT_TRUE(Map(model, {{7, {8, 9}}, {1, {8, 9}}}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MapBeamLoading, RemovesALoadWhoseListNamesNothingThatExistsAnyMore) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Linear, {10, 30}, {}, L"7 99"));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 3, 10, 18, 0, 0}, {L"9", 3, 18, 30, 0, 0}}));
}

// Several parents in one map.

TEST(MapBeamLoading, MapsEachParentByItsOwnLoadsAlsoBehindALoadThatHasGone) {
  CZelData model;
  BeamOn(model, 5, 0, 10);
  BeamOn(model, 6, 0, 10);
  for (int const n : {8, 10}) {
    BeamOn(model, n, 0, 5);
    BeamOn(model, n + 1, 5, 10);
  }
  Add(model, Load(LoadType::Linear, {0, 10}, {}, L"5"));
  Add(model, Load(LoadType::Linear, {20, 40}, {}, L"6"));
  EXPECT_TRUE(Map(model, {{5, {8, 9}}, {6, {10, 11}}}));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 3, 0, 5, 0, 0},
                                   {L"9", 3, 5, 10, 0, 0},
                                   {L"10", 3, 20, 30, 0, 0},
                                   {L"11", 3, 30, 40, 0, 0}}));
}

TEST(MapBeamLoading, NeverVisitsTheLoadsThatItMade) {
  auto model = CutModel({4, 10});
  BeamOn(model, 10, 0, 1);
  BeamOn(model, 11, 1, 4);
  Add(model, Load(LoadType::Linear, {10, 30}));
  EXPECT_TRUE(Map(model, {{7, {8, 9}}, {8, {10, 11}}}));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 3, 10, 18, 0, 0}, {L"9", 3, 18, 30, 0, 0}}));
}

// Distortions.

Data::CBeamDist Dist(double position, Data::CEntList const& list) {
  Data::CBeamDist dist;
  dist.SetPos(position);
  dist.SetValue(0.01);
  dist.SetDirection(Direction::ZZ);
  dist.SetLoadedEntities(list);
  return dist;
}

TEST(MapBeamLoading, GivesADistortionToThePieceUnderItAsAPointLoad) {
  // Position, the piece that takes it, its position there.
  struct Case {
    double at;
    wchar_t const* piece;
    double there;
  };
  for (auto const& [at, piece, there] :
       {Case{0, L"8", 0}, Case{4, L"8", 4}, Case{6.5, L"9", 2.5}, Case{-1, L"9", 6}}) {
    auto model = CutModel({4, 10});
    model.SetBeamDist(1, Dist(at, Elements(L"7")));
    EXPECT_TRUE(Map(model, kTwo));
    ASSERT_EQ(model.HighestBeamDist(), 1);
    EXPECT_TRUE(model.BeamDist(1) == Dist(there, Elements(piece)));
  }
}

TEST(MapBeamLoading, LeavesADistortionOnARangeAndSaysSo) {
  auto model = CutModel({4, 10});
  model.SetBeamDist(1, Dist(1, Elements(L"7 to 7")));
  CZelData const before(model);
  EXPECT_FALSE(Map(model, kTwo));
  EXPECT_TRUE(IsUnchanged(model, before));
}

// Members. Member 1 runs from 0 to 10, members 2 and 3 are its pieces.

CZelData MemberModel() {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 10, 0, 0);
  NodeAt(model, 4, 0, 0);
  NodeAt(model, 12, 0, 0);
  for (auto const* topology : {L"1 2", L"1 3", L"3 2", L"3 4"})
    MemberAt(model, MembType::Beam, topology);
  return model;
}
Data::CBeamLoad OnMember(Data::CBeamLoad load) {
  load.SetLoadedEntities(Members(L"1"));
  return load;
}

TEST(MapBeamLoading, GivesUniformLoadsOfMembersToTheirPieces) {
  auto model = MemberModel();
  Add(model, OnMember(Load(LoadType::Uniform, {5})));
  EXPECT_TRUE(Map(model, {{1, {2, 3}}}, SelMember));
  EXPECT_EQ(Loads(model), (AllSeen{{L"2 3", 2, 5, 0, 0, 0}}));
  EXPECT_EQ(model.BeamLoad(1).LoadedEntities().TypeOf(), SelMember);
}

TEST(MapBeamLoading, MapsNoOtherLoadOfAMemberSaysSoAndTakesItOffTheMemberAllTheSame) {
  for (auto const type :
       {LoadType::Point, LoadType::Linear, LoadType::Patch, LoadType::Trilinear}) {
    auto model = MemberModel();
    Add(model, OnMember(Load(type, {5, 6}, {1, 3})));
    EXPECT_FALSE(Map(model, {{1, {2, 3}}}, SelMember));
    EXPECT_EQ(model.HighestBeamLoad(), 0);
  }
}

TEST(MapBeamLoading, MapsNoUniformLoadToAPieceOutsideTheMemberAndSaysSo) {
  auto model = MemberModel();
  Add(model, OnMember(Load(LoadType::Uniform, {5})));
  EXPECT_FALSE(Map(model, {{1, {2, 4}}}, SelMember));
  EXPECT_EQ(Loads(model), (AllSeen{{L"2", 2, 5, 0, 0, 0}}));
}

TEST(MapBeamLoading, MapsNoDistortionOfAMemberAndSaysSo) {
  auto model = MemberModel();
  model.SetBeamDist(1, Dist(1, Members(L"1")));
  EXPECT_FALSE(Map(model, {{1, {2, 3}}}, SelMember));
  EXPECT_EQ(model.HighestBeamDist(), 0);
}

TEST(MapBeamLoading, TakesTheSecondNodeOfAMemberForItsSecondEnd) {
  auto model = MemberModel();
  // Member 5 passes node 3 at 4 on its way to node 2: its x is that from node 1 to node 2, but node
  // 3 counts as its end, so that it snaps to its whole length of 10 there.
  MemberAt(model, MembType::Beam, L"1 3 2");
  auto load = Load(LoadType::Uniform, {5});
  load.SetLoadedEntities(Members(L"5"));
  Add(model, load);
  EXPECT_TRUE(Map(model, {{5, {2}}}, SelMember));
  EXPECT_EQ(Loads(model), (AllSeen{{L"2", 2, 5, 0, 0, 0}}));
}

// Offsets.

void Offset(CZelData& model, int n, Data::COffset const& offset) { model.SetElemOffset(n, offset); }

TEST(MapBeamLoading, MeasuresAlongTheLineThatOffsetsMove) {
  auto model = CutModel({4, 10});
  for (int const n : {7, 8, 9}) Offset(model, n, {0, 0, 0.5, -0.3});
  Add(model, Load(LoadType::Point, {5}, {6.5}));
  Add(model, Load(LoadType::Linear, {10, 30}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model),
            (AllSeen{{L"8", 3, 10, 18, 0, 0}, {L"9", 1, 5, 0, 2.5, 0}, {L"9", 3, 18, 30, 0, 0}}));
}

TEST(MapBeamLoading, MeasuresFromTheEndsThatAxialOffsetsPullIn) {
  auto model = CutModel({4, 10});
  // The parent runs from 1 to 8, 7 long; the pieces from 1 to 4 and from 4 to 8: 0 to 3 and 3 to 7.
  Offset(model, 7, {1, 2, 0, 0});
  Offset(model, 8, {1, 0, 0, 0});
  Offset(model, 9, {0, 2, 0, 0});
  Add(model, Load(LoadType::Linear, {0, 14}));
  Add(model, Load(LoadType::Point, {5}, {-0.5}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model),
            (AllSeen{{L"8", 3, 0, 6, 0, 0}, {L"9", 3, 6, 14, 0, 0}, {L"9", 1, 5, 0, 0.5, 0}}));
}

TEST(MapBeamLoading, SnapsEndsThatAreNearerThanATenthOfAThousandMillionth) {
  auto model = CutModel({});
  BeamOn(model, 8, 0.9e-10, 4);
  BeamOn(model, 9, 4, 10 - 0.9e-10);
  Add(model, Load(LoadType::Point, {5}, {0}));
  Add(model, Load(LoadType::Point, {6}, {-1}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 1, 5, 0, 0, 0}, {L"9", 1, 6, 0, 6, 0}}));
}

TEST(MapBeamLoading, TakesAPieceOffTheAxisByItsShadow) {
  auto model = CutModel({});
  int const a = NodeAt(model, 2, 3, 4);
  int const b = NodeAt(model, 6, 0, 0);
  model.SetElem(8, Element(ElementType::Beam, {a, b}));
  Add(model, Load(LoadType::Linear, {10, 30}));
  EXPECT_TRUE(Map(model, {{7, {8}}}));
  EXPECT_EQ(Loads(model), (AllSeen{{L"8", 3, 14, 22, 0, 0}}));
  double start = 0;
  double end = 0;
  CDataMgr const manager(model);
  // 3 and 4 off the axis: the farther end is 5 off.
  EXPECT_NEAR(CallPrivate(PieceDeviation(), manager, SelElement, 7, 8, start, end), 5, 1e-12);
  EXPECT_NEAR(start, 2, 1e-12);
  EXPECT_NEAR(end, 6, 1e-12);
}

// What has no length, no finite place or no finite value.

TEST(MapBeamLoading, GivesNothingToAPieceWithoutLengthAlongTheParentAndFindsNoFault) {
  auto model = CutModel({});
  BeamOn(model, 8, 3, 3);
  int const a = NodeAt(model, 5, 0, 0);
  int const b = NodeAt(model, 5, 1, 0);
  model.SetElem(9, Element(ElementType::Beam, {a, b}));
  Add(model, Load(LoadType::Uniform, {5}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(model.HighestBeamLoad(), 0);
}

TEST(MapBeamLoading, MapsNothingOfAParentWithoutLengthAndFindsNoFault) {
  CZelData model;
  BeamOn(model, 7, 3, 3);
  BeamOn(model, 8, 3, 4);
  Add(model, Load(LoadType::Linear, {5, 6}));
  EXPECT_TRUE(Map(model, {{7, {8}}}));
  EXPECT_EQ(model.HighestBeamLoad(), 0);
}

TEST(MapBeamLoading, WritesNothingWhereACoordinateIsNotFiniteAndSaysSo) {
  for (auto const type :
       {LoadType::Point, LoadType::Uniform, LoadType::Linear, LoadType::Patch, LoadType::Trilinear})
    for (double const bad : {kNan, kHuge})
      for (int const node : {1, 4}) {
        auto model = CutModel({4, 10});
        model.SetNodeCoor(node, {bad, 0, 0});
        Add(model, Load(type, {5, 6}, {1, 3}));
        EXPECT_FALSE(Map(model, {{7, {8}}}));
        EXPECT_EQ(model.HighestBeamLoad(), 0);
      }
}

TEST(MapBeamLoading, WritesNothingOfALoadThatIsNotFiniteAndSaysSo) {
  std::vector<Data::CBeamLoad> const loads{Load(LoadType::Point, {kNan}, {1}),
                                           Load(LoadType::Point, {1}, {kHuge}),
                                           Load(LoadType::Uniform, {kHuge}),
                                           Load(LoadType::Linear, {1, kNan}),
                                           Load(LoadType::Patch, {1, kNan}, {1, 2}),
                                           Load(LoadType::Patch, {1, 2}, {kNan, 2}),
                                           Load(LoadType::Trilinear, {1, 2}, {1, kNan})};
  for (auto const& load : loads) {
    auto model = CutModel({4, 10});
    Add(model, load);
    EXPECT_FALSE(Map(model, kTwo));
    EXPECT_EQ(model.HighestBeamLoad(), 0);
  }
}

TEST(MapBeamLoading, WritesNoValueThatOverflows) {
  auto model = CutModel({4, 10});
  // A patch of 1e-300 from -1e300 to 1e300: the line through it is steeper than any number.
  Add(model, Load(LoadType::Patch, {-1e300, 1e300}, {3, 3.0000000001}));
  Map(model, kTwo);
  for (auto const& load : model.BeamLoad())
    EXPECT_TRUE(std::isfinite(load.Value(0)) && std::isfinite(load.Value(1)));
}

TEST(MapBeamLoading, SaysThatALoadOfAParentThatIsGoneCouldNotBeMapped) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Uniform, {5}));
  EXPECT_FALSE(Map(model, {{7, {99}}}));
}

TEST(MapBeamLoading, LeavesALoadOfAnUnknownTypeAndFindsNoFault) {
  auto model = CutModel({4, 10});
  Add(model, Load(static_cast<LoadType>(6), {5}));
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(model.HighestBeamLoad(), 0);  // but it comes off the parent
}

TEST(MapBeamLoading, IsAStepAlsoWithNothingToDo) {
  for (auto const& pieces : {NumberLists{}, kTwo}) {
    auto model = CutModel({4, 10});
    CZelData const before(model);
    EXPECT_TRUE(Map(model, pieces));
    EXPECT_TRUE(IsUnchanged(model, before));
    EXPECT_EQ(model.NumUndo(), 1);
  }
}

TEST(MapBeamLoading, IsOneStepThatCanBeUndone) {
  auto model = CutModel({4, 10});
  Add(model, Load(LoadType::Linear, {10, 30}));
  CZelData const before(model);
  EXPECT_TRUE(Map(model, kTwo));
  EXPECT_EQ(model.NumUndo(), 1);
  EXPECT_TRUE(model.Undo());
  EXPECT_TRUE(IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex::BeamMappingTest
