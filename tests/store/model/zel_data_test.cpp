#include "store/model/zel_data.h"

#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::ZelDataTest {
namespace {

using Data::CNode;
using Testing::Differences;
using Testing::Element;
using Testing::Grid;
using Testing::IsUnchanged;
using Testing::Panel;
using V = Vec3<double>;

TEST(Model, IsEmptyAtFirst) {
  CZelData const model;
  for (auto const kind : {SelNone, SelNode, SelElement, SelMember, SelCase, SelOther}) {
    EXPECT_EQ(model.HighestEnt(kind), 0);
    EXPECT_EQ(model.NumEnt(kind), 0);
    EXPECT_FALSE(model.EntExist({kind, 1}));
  }
  EXPECT_TRUE(model.Extents().IsEmpty());
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model, CZelData());
}

/// Nodes 2, 4, 6, a beam 3 and panels 5 and 9.
CZelData Small() {
  CZelData model;
  for (int const n : {2, 4, 6}) model.SetNode(n, CNode({1.0 * n, 0, 0}, 0, Vbool6()));
  model.SetElem(3, Element(ElementType::Beam, {2, 4}));
  model.SetLoadPanel(5, Panel({2, 4, 6}));
  model.SetLoadPanel(9, Panel({2, 4, 6}));
  return model;
}

TEST(Entities, AreCountedByKind) {
  auto const model = Small();
  EXPECT_EQ(model.NumEnt(SelNode), 3);
  EXPECT_EQ(model.NumEnt(SelNode, false), 3);
  EXPECT_EQ(model.NumEnt(SelElement), 3);
  EXPECT_EQ(model.NumEnt(SelElement, true), 3);
  EXPECT_EQ(model.NumEnt(SelElement, false), 1);
  EXPECT_EQ(model.NumEnt(SelMember), 0);
  EXPECT_EQ(model.HighestEnt(SelNode), 6);
  EXPECT_EQ(model.HighestEnt(SelElement), 9);
  EXPECT_EQ(model.HighestEnt(SelCase), 0);
}

TEST(Entities, ExistByKindAndPanelsWhenTheyAreAskedFor) {
  auto const model = Small();
  EXPECT_TRUE(model.EntExist({SelNode, 2}));
  EXPECT_TRUE(model.EntExist({SelNode, 2}, false));
  EXPECT_FALSE(model.EntExist({SelNode, 3}));
  EXPECT_TRUE(model.EntExist({SelElement, 3}));
  EXPECT_TRUE(model.EntExist({SelElement, 3}, false));
  EXPECT_TRUE(model.EntExist({SelElement, 5}));
  EXPECT_TRUE(model.EntExist({SelElement, 5}, true));
  EXPECT_FALSE(model.EntExist({SelElement, 5}, false));
  for (SEntRef const ref : {SEntRef(SelElement, 4), SEntRef(SelNone, 2), SEntRef(SelOther, 2),
                            SEntRef(SelCase, 2), SEntRef(SelNode, 0), SEntRef(SelElement, -1)})
    EXPECT_FALSE(model.EntExist(ref));
}

TEST(Entities, AreCountedWithPanelsByTheHighestRecordButNotByExistence) {
  auto const model = Small();
  EXPECT_EQ(model.HighestRecord(CModule::Elem), 9);
  EXPECT_TRUE(model.RecordExist(CModule::Elem, 3));
  EXPECT_FALSE(model.RecordExist(CModule::Elem, 5));
  EXPECT_FALSE(model.RecordExist(CModule::Elem, 9));
}

TEST(SetEntTopo, ChangesElementsAndPanels) {
  auto model = Small();
  auto const before = model;
  model.SetEntTopo({SelElement, 3}, 1, 6);
  model.SetEntTopo({SelElement, 5}, 0, 6);
  EXPECT_EQ(Differences(model, before),
            (std::vector<std::string>{"Elem 3: topology", "LoadPanel 5: topology"}));
  EXPECT_TRUE(Testing::References(model, 3, {2, 6}));
  EXPECT_TRUE(Testing::References(model, 5, {6, 4, 6}));
}

TEST(SetEntTopo, NamesWhatItCannotChange) {
  auto model = Small();
  auto const before = model;
  auto const fault = [&](SEntRef ref, int place) {
    return Testing::OutOfRangeText([&] { model.SetEntTopo(ref, place, 2); });
  };
  EXPECT_EQ(fault({SelElement, 4}, 0), "Elem 4 does not exist");
  EXPECT_EQ(fault({SelElement, 3}, 2), "invalid vector subscript");
  EXPECT_EQ(fault({SelNode, 2}, 0), "no topology to set in a node");
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(RemoveModule, EmptiesElementsWithPanels) {
  auto model = Small();
  model.RemoveModule(CModule::Elem);
  EXPECT_TRUE(model.Elem().empty());
  EXPECT_TRUE(model.LoadPanels().empty());
  EXPECT_EQ(model.NumEnt(SelNode), 3);
}

TEST(Extents, HoldAllNodesAtAllTimes) {
  CZelData model;
  model.SetNode(1, CNode({1, 2, 3}, 0, Vbool6()));
  EXPECT_EQ(model.Extents().Min(), (V{1, 2, 3}));
  EXPECT_EQ(model.Extents().Max(), (V{1, 2, 3}));
  model.SetNode(7, CNode({-1, 5, 0}, 0, Vbool6()));
  EXPECT_EQ(model.Extents().Min(), (V{-1, 2, 0}));
  EXPECT_EQ(model.Extents().Max(), (V{1, 5, 3}));
  model.SetNodeCoor(7, {0, 0, 9});
  EXPECT_EQ(model.Extents().Min(), (V{0, 0, 3}));
  EXPECT_EQ(model.Extents().Max(), (V{1, 2, 9}));
  model._SetNode(8, CNode({5, 5, 5}, 0, Vbool6()));
  EXPECT_EQ(model.Extents().Max(), (V{5, 5, 9}));
  model.BlankNode(7, 1);
  EXPECT_EQ(model.Extents().Max(), (V{5, 5, 5}));
  model.RemoveModule(CModule::Node);
  EXPECT_TRUE(model.Extents().IsEmpty());
}

TEST(Extents, AreTrueInAHoldAndInCopies) {
  CZelData model;
  model.SetNode(1, CNode({1, 1, 1}, 0, Vbool6()));
  EXPECT_EQ(model.Extents().Right(), 1);
  CZelData const copy(model);
  CZelData assigned;
  assigned.SetNode(1, CNode({50, 50, 50}, 0, Vbool6()));
  EXPECT_EQ(assigned.Extents().Right(), 50);
  assigned = model;
  EXPECT_EQ(assigned.Extents().Right(), 1);
  model.rebuildHold = true;
  model.SetNodeCoor(1, {4, 4, 4});
  EXPECT_EQ(model.Extents().Right(), 4);
  EXPECT_EQ(copy.Extents().Right(), 1);
  EXPECT_EQ(assigned.Extents().Right(), 1);
}

TEST(Extents, TakeNoNodeThatIsOnlyNamed) {
  CZelData model;
  model.SetElem(1, Element(ElementType::Beam, {7, 8}));
  EXPECT_TRUE(model.Extents().IsEmpty());
}

TEST(OneOffRecords, AreKeptByTheModelAndItsCopies) {
  CZelData model;
  EXPECT_EQ(model.Spec(), Data::CSpec());
  EXPECT_EQ(model.Defaults(), Data::CDefaults());
  Data::CSpec spec;
  spec.SetGenTol(TolType::Coincidence, 0.5);
  Data::CUnit unit;
  unit.SetConversion(Data::CUnit::kLength, 1000);
  spec.SetUnit(unit);
  model.SetSpec(spec);
  Data::CDefaults defaults;
  defaults.SetAnalysisCaseName(L"Fall #");
  CZelData const copy(model);
  model.SetDefaults(defaults);
  EXPECT_EQ(model.Spec(), spec);
  EXPECT_EQ(model.Spec().GenTol(), 0.5);
  EXPECT_EQ(model.Spec().Unit().Conversion(Data::CUnit::kLength), 1000);
  EXPECT_EQ(model.Defaults().AnalysisCaseName(), L"Fall #");
  EXPECT_EQ(copy.Spec(), spec);
  EXPECT_EQ(copy.Defaults(), Data::CDefaults());
  EXPECT_EQ(Differences(model, copy), std::vector<std::string>{"Defaults: analysisCaseName"});
  model.SetSpec(model.Spec());
  EXPECT_EQ(model.Spec(), spec);
}

TEST(Copies, AreIndependentModels) {
  auto model = Small();
  CZelData copy(model);
  EXPECT_EQ(copy, model);
  copy.SetNodeCoor(2, {9, 9, 9});
  EXPECT_EQ(model.NodeCoor(2), (V{2, 0, 0}));
  model.BlankElem(3, 1);
  EXPECT_TRUE(copy.ElemExist(3));
  EXPECT_NE(copy, model);
  copy = model;
  EXPECT_EQ(copy, model);
  EXPECT_FALSE(copy.ElemExist(3));
  model.SetNodeCoor(2, {7, 7, 7});
  EXPECT_EQ(copy.NodeCoor(2), (V{2, 0, 0}));
}

TEST(Copies, AreNotHeld) {
  auto model = Small();
  model.rebuildHold = true;
  model.rebuildHoldDepth = 2;
  CZelData const copy(model);
  EXPECT_FALSE(copy.rebuildHold);
  EXPECT_EQ(copy.rebuildHoldDepth, 0);
  model = Small();
  EXPECT_TRUE(model.rebuildHold);
  EXPECT_EQ(model.rebuildHoldDepth, 2);
}

TEST(Copies, OfAModelToItselfChangeNothing) {
  auto model = Small();
  auto const before = model;
  auto const& same = model;
  model = same;
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(Snapshots, StayAsTheyAre) {
  CZelData model;
  Grid(model, 3, 3);
  CZelData const before(model);
  auto const snapshot = model.Snapshot();
  model.BlankNode(1, 5);
  model.SetElemTopo(1, 0, 9);
  model.SetSpec([] {
    Data::CSpec spec;
    spec.SetGenTol(TolType::Vertical, 0.5);
    return spec;
  }());
  EXPECT_TRUE(IsUnchanged(*snapshot, before));
  EXPECT_FALSE(IsUnchanged(model, before));
}

TEST(Snapshots, OutliveTheirModel) {
  std::shared_ptr<CZelData const> snapshot;
  {
    auto const model = Small();
    snapshot = model.Snapshot();
  }
  EXPECT_TRUE(IsUnchanged(*snapshot, Small()));
  EXPECT_EQ(snapshot->Node(2).NumEntAttached(SelElement), 3);
}

TEST(Equality, IsToTheBit) {
  auto const plusZero = Small();
  auto minusZero = plusZero;
  minusZero.SetNodeCoor(2, {2, -0.0, 0});
  EXPECT_EQ(plusZero.NodeCoor(2), minusZero.NodeCoor(2));
  EXPECT_NE(plusZero, minusZero);
  EXPECT_EQ(Differences(minusZero, plusZero), std::vector<std::string>{"Node 2: position"});
  minusZero.SetNodeCoor(2, {2, 0, 0});
  EXPECT_EQ(plusZero, minusZero);
}

TEST(Equality, SeesEveryTableAndOneOffRecord) {
  auto const model = Small();
  auto const differs = [&](auto&& change) {
    auto changed = model;
    change(changed);
    return !(changed == model) && !(model == changed);
  };
  EXPECT_TRUE(differs([](CZelData& m) { m.SetNodeSid(2, L"x"); }));
  EXPECT_TRUE(differs([](CZelData& m) { m.SetNode(99, CNode()); }));
  EXPECT_TRUE(differs([](CZelData& m) { m.BlankNode(2, 1); }));
  EXPECT_TRUE(differs([](CZelData& m) { m.SetElemGroup(3, 2); }));
  EXPECT_TRUE(differs([](CZelData& m) { m.SetElemGroup(5, 2); }));
  EXPECT_TRUE(differs([](CZelData& m) { m.SetAxis(1, Data::CAxis()); }));
  EXPECT_TRUE(differs([](CZelData& m) {
    Data::CSpec spec;
    spec.SetGenTol(TolType::Vertical, 0.5);
    m.SetSpec(spec);
  }));
  EXPECT_TRUE(differs([](CZelData& m) {
    Data::CDefaults defaults;
    defaults.SetAnalysisTaskName(L"");
    m.SetDefaults(defaults);
  }));
  EXPECT_FALSE(differs([](CZelData&) {}));
}

TEST(Equality, IsOfContentsNotOfHistory) {
  auto const model = Small();
  auto other = model;
  other.SetNode(2, other.Node(2));
  other.SetNode(50, CNode());
  other.BlankNode(50, 1);
  other.SetLoadPanel(3, Panel({2, 4, 6}));
  other.SetElem(3, Element(ElementType::Beam, {2, 4}));
  EXPECT_EQ(other, model);
  EXPECT_EQ(Small(), model);  // nothing shared
}

TEST(Locks, AreNoPartOfEquality) {
  auto const model = Small();
  auto other = model;
  auto element = other.Elem(3);
  element.Lock(true);
  other.SetElem(3, element);
  EXPECT_TRUE(other.Elem(3).IsLocked());
  EXPECT_EQ(other, model);
}

}  // namespace
}  // namespace Tarvex::ZelDataTest
