// The positional tables of a model: each operation of each table does what its name says, in that
// table and in no other. The rows are written out in positional_rows.h.
#include <gtest/gtest.h>

#include <climits>

#include "store/model/registry.h"
#include "store/model/undo_step.h"
#include "tests/store/model/positional_rows.h"
#include "tests/support/matchers.h"

namespace Tarvex::PositionalTablesTest {
namespace {

using Data::CEntList;
using Testing::Differences;
using Testing::IsUnchanged;
using Testing::OutOfRangeText;

template <class Row>
using RecordOf = std::remove_cvref_t<decltype(std::declval<Row>().get(CZelData(), 1))>;

/// A model that holds one record in every table but one.
CZelData AllBut(std::string const& stem) {
  CZelData model;
  auto const fill = [&](auto const& row) {
    RecordOf<decltype(row)> record;
    row.change(record);
    if (row.stem != stem) row.set(model, 1, record, SidMode::Keep);
  };
  PlaceRows().ForEach(fill);
  return model;
}

/// Calls check(row, record, model) for each table with a record that differs from a new one and a
/// model that holds one record in every other table.
template <class Check>
void ForEachPlaceRow(Check&& check) {
  auto const run = [&](auto const& row) {
    SCOPED_TRACE(row.stem);
    auto model = AllBut(row.stem);
    RecordOf<decltype(row)> record;
    row.change(record);
    record.SetSid(L"id");
    check(row, record, model);
  };
  PlaceRows().ForEach(run);
}

TEST(PositionalTables, AreThoseOfTheRegistry) {
  std::vector<std::string> expected;
  ForEachPlaceRow([&](auto const& row, auto const&, CZelData&) {
    expected.push_back(row.stem + " " + std::to_string(row.module));
  });
  std::vector<std::string> found;
  ForEachTable([&](auto const& row) {
    bool const positional = row.shape == TableShape::Positional;
    EXPECT_EQ(row.removal == RemovalForm::Delete, positional);
    if (positional) found.push_back(std::string(row.stem) + " " + std::to_string(row.module));
  });
  EXPECT_EQ(found, expected);
}

TEST(PositionalTables, AreReachedThroughTheRegistry) {
  ForEachPlaceRow([](auto const& row, auto const& record, CZelData& model) {
    using R = std::remove_cvref_t<decltype(record)>;
    int met = 0;
    ForEachTable([&](auto const& registered) {
      if constexpr (std::is_same_v<typename std::remove_cvref_t<decltype(registered)>::Record, R>) {
        if (registered.stem != row.stem) return;
        ++met;
        (model.*registered.set)(1, record, SidMode::Keep);
        EXPECT_EQ(row.get(model, 1), record);
        EXPECT_TRUE((model.*registered.exist)(1));
        EXPECT_EQ(&(model.*registered.get)(1), &row.get(model, 1));
        EXPECT_EQ(&(model.*registered.all)(), &row.all(model));
        EXPECT_EQ((model.*registered.highest)(), 1);
        (model.*registered.remove)(1, 1);
        EXPECT_FALSE(row.exist(model, 1));
      }
    });
    EXPECT_EQ(met, 1);
  });
}

TEST(PositionalTables, StoreReadAndRemoveARecordAndTouchNoOtherTable) {
  ForEachPlaceRow([](auto const& row, auto const& record, CZelData& model) {
    CZelData const before(model);
    EXPECT_EQ(row.highest(model), 0);
    EXPECT_FALSE(row.exist(model, 1));
    row.set(model, 1, record, SidMode::Keep);
    EXPECT_EQ(Differences(model, before), std::vector<std::string>{row.stem + " 1: came"});
    EXPECT_TRUE(row.exist(model, 1));
    EXPECT_FALSE(row.exist(model, 2));
    EXPECT_EQ(row.get(model, 1), record);
    EXPECT_EQ(row.get(model, 1).Sid(), L"id");
    EXPECT_EQ(row.get(model, 1).Number(), 1u);
    EXPECT_EQ(row.all(model).size(), 1u);
    EXPECT_EQ(&row.all(model)[0], &row.get(model, 1));
    row.remove(model, 1, 1);
    EXPECT_TRUE(IsUnchanged(model, before));
  });
}

TEST(PositionalTables, StoreWithOrWithoutTheIdentifier) {
  ForEachPlaceRow([](auto const& row, auto record, CZelData& model) {
    row.set(model, 1, record, SidMode::Drop);
    EXPECT_EQ(row.get(model, 1).Sid(), L"");
    record.SetSid(L"");
    EXPECT_EQ(row.get(model, 1), record);
  });
}

TEST(PositionalTables, RefuseANumberBelowOneAndBehindTheNextOne) {
  ForEachPlaceRow([](auto const& row, auto const& record, CZelData& model) {
    row.set(model, 1, record, SidMode::Keep);
    CZelData const before(model);
    for (int const n : {INT_MIN, -1, 0, 3, 100000001, INT_MAX})
      EXPECT_THROW(row.set(model, n, record, SidMode::Keep), std::out_of_range) << n;
    EXPECT_TRUE(IsUnchanged(model, before));
  });
}

TEST(PositionalTables, NameTableAndNumberOfAMissingRecord) {
  ForEachPlaceRow([](auto const& row, auto const&, CZelData& model) {
    for (int const n : {1, 0, -1, INT_MAX})
      EXPECT_EQ(OutOfRangeText([&] { row.get(model, n); }),
                row.stem + " " + std::to_string(n) + " does not exist");
  });
}

TEST(PositionalTables, CloseUpWhereARecordGoesAndTellTheOthersTheirNumbers) {
  ForEachPlaceRow([](auto const& row, auto const& record, CZelData& model) {
    std::remove_cvref_t<decltype(record)> const plain;
    for (int n = 1; n <= 4; ++n) row.set(model, n, n == 4 ? record : plain, SidMode::Keep);
    row.remove(model, 2, 2);
    EXPECT_EQ(row.highest(model), 2);
    EXPECT_EQ(row.get(model, 2), record);
    EXPECT_EQ(row.get(model, 2).Number(), 2u);
    for (int const count : {0, -1, INT_MIN}) row.remove(model, 1, count);
    EXPECT_EQ(row.highest(model), 2);
    row.remove(model, 0, 1);
    EXPECT_EQ(row.highest(model), 0);
    EXPECT_TRUE(row.all(model).empty());
  });
}

TEST(PositionalTables, AreSharedWithCopiesAndComeBackByUndo) {
  ForEachPlaceRow([](auto const& row, auto const& record, CZelData& model) {
    std::remove_cvref_t<decltype(record)> const plain;
    row.set(model, 1, plain, SidMode::Keep);
    auto const snapshot = model.Snapshot();
    EXPECT_EQ(&row.all(*snapshot), &row.all(model));
    {
      CUndoStep step(model, false);
      row.set(model, 1, record, SidMode::Keep);
      row.set(model, 2, record, SidMode::Keep);
      step.Accept();
    }
    CZelData const changed(model);
    EXPECT_EQ(row.all(*snapshot).size(), 1u);
    EXPECT_EQ(row.get(*snapshot, 1), plain);
    ASSERT_TRUE(model.Undo());
    EXPECT_TRUE(IsUnchanged(model, *snapshot));
    ASSERT_TRUE(model.Redo());
    EXPECT_TRUE(IsUnchanged(model, changed));
    EXPECT_FALSE(model == *snapshot);
  });
}

TEST(PositionalTables, AnswerForTheirModule) {
  ForEachPlaceRow([](auto const& row, auto const& record, CZelData& model) {
    auto const module = static_cast<CModule::ModuleId>(row.module);
    if (module == CModule::None) return;
    CZelData const before(model);
    EXPECT_EQ(model.HighestRecord(module), 0);
    row.set(model, 1, record, SidMode::Keep);
    row.set(model, 2, record, SidMode::Keep);
    EXPECT_EQ(model.HighestRecord(module), 2);
    EXPECT_TRUE(model.RecordExist(module, 2));
    EXPECT_FALSE(model.RecordExist(module, 3));
    model.RemoveModule(module);
    EXPECT_TRUE(IsUnchanged(model, before));
  });
}

TEST(PositionalTables, TakeTheFlagOfSomeSetters) {
  CZelData model;
  model.SetFaceLoad(1, Data::CFaceLoad(), true, SidMode::Keep);
  model.SetGridPointLoad(1, Data::CGridPointLoad(), true);
  model.SetGridLineLoad(1, Data::CGridLineLoad(), false);
  model.SetGridAreaLoad(1, Data::CGridAreaLoad(), true);
  EXPECT_EQ(model.HighestFaceLoad() + model.HighestGridPointLoad() + model.HighestGridLineLoad() +
                model.HighestGridAreaLoad(),
            4);
}

TEST(PositionalTables, TellNodeLoadsWhichTableTheyAreIn) {
  CZelData model;
  model.SetNodeLoad(1, Data::CNodeLoad({}, 0, 0, Direction::X, 1, CModule::Settlement));
  model.SetAppliedDisplacement(1, model.NodeLoad(1));
  model.SetSettlement(1, model.NodeLoad(1));
  EXPECT_EQ(model.NodeLoad(1).Module(), CModule::NodeLoad);
  EXPECT_EQ(model.AppliedDisplacement(1).Module(), CModule::AppliedDisplacement);
  EXPECT_EQ(model.Settlement(1).Module(), CModule::Settlement);
}

/// A shortcut that replaces one list of a stored record: the table, the field and the list of
/// record 2 after the change.
struct ListShortcut {
  char const* difference;
  void (*set)(CZelData&);
  CEntList const& (*get)(CZelData const&);
};

CEntList const kNodes(SelNode, L"3 1 to 9");
CEntList const kElements(SelElement, L"4 all not 2");

ListShortcut const kListShortcuts[] = {
    {"NodeLoad 2: loadedEntities", [](CZelData& m) { m.SetNodeLoadItem(2, kNodes); },
     [](CZelData const& m) -> CEntList const& { return m.NodeLoad(2).LoadedEntities(); }},
    {"AppliedDisplacement 2: loadedEntities",
     [](CZelData& m) { m.SetAppliedDisplacementItem(2, kNodes); },
     [](CZelData const& m) -> CEntList const& {
       return m.AppliedDisplacement(2).LoadedEntities();
     }},
    {"Settlement 2: loadedEntities", [](CZelData& m) { m.SetSettlementItem(2, kNodes); },
     [](CZelData const& m) -> CEntList const& { return m.Settlement(2).LoadedEntities(); }},
    {"BeamLoad 2: loadedEntities", [](CZelData& m) { m.SetBeamLoadItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.BeamLoad(2).LoadedEntities(); }},
    {"AxialLoad 2: loadedEntities", [](CZelData& m) { m.SetAxialLoadItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.AxialLoad(2).LoadedEntities(); }},
    {"BeamDist 2: loadedEntities", [](CZelData& m) { m.SetBeamDistItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.BeamDist(2).LoadedEntities(); }},
    {"BeamThermalLoad 2: loadedEntities",
     [](CZelData& m) { m.SetBeamThermalLoadItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.BeamThermalLoad(2).LoadedEntities(); }},
    {"FaceLoad 2: loadedEntities", [](CZelData& m) { m.SetFaceLoadItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.FaceLoad(2).LoadedEntities(); }},
    {"EdgeLoad 2: loadedEntities", [](CZelData& m) { m.SetEdgeLoadItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.EdgeLoad(2).LoadedEntities(); }},
    {"InPlaneLoad 2: loadedEntities", [](CZelData& m) { m.SetInPlaneLoadItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.InPlaneLoad(2).LoadedEntities(); }},
    {"FaceThermalLoad 2: loadedEntities",
     [](CZelData& m) { m.SetFaceThermalLoadItem(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.FaceThermalLoad(2).LoadedEntities(); }},
    {"GravityLoad 2: loadedEntities", [](CZelData& m) { m.SetGravityLoadEntities(2, kElements); },
     [](CZelData const& m) -> CEntList const& { return m.GravityLoad(2).LoadedEntities(); }},
    {"GravityLoad 2: loadedNodes", [](CZelData& m) { m.SetGravityLoadNodes(2, kNodes); },
     [](CZelData const& m) -> CEntList const& { return m.GravityLoad(2).LoadedNodes(); }},
    {"GenRest 2: nodes", [](CZelData& m) { m.SetGenRestNodes(2, kNodes); },
     [](CZelData const& m) -> CEntList const& { return m.GenRest(2).Nodes(); }},
    {"Rigid 2: constrainedNodes", [](CZelData& m) { m.SetRigidConstrainedNodes(2, kNodes); },
     [](CZelData const& m) -> CEntList const& { return m.Rigid(2).ConstrainedNodes(); }},
};

/// A model with three new records in each table.
CZelData ThreeOfEach() {
  CZelData model;
  PlaceRows().ForEach([&](auto const& row) {
    for (int n = 1; n <= 3; ++n) row.set(model, n, RecordOf<decltype(row)>(), SidMode::Keep);
  });
  return model;
}

TEST(ListShortcuts, ReplaceOneListOfOneRecord) {
  auto const before = ThreeOfEach();
  for (auto const& row : kListShortcuts) {
    SCOPED_TRACE(row.difference);
    CZelData model(before);
    row.set(model);
    EXPECT_EQ(Differences(model, before), std::vector<std::string>{row.difference});
    bool const nodes = row.get(model).TypeOf() == SelNode;
    EXPECT_EQ(row.get(model).String(), (nodes ? kNodes : kElements).String());
    CZelData empty;
    EXPECT_THROW(row.set(empty), std::out_of_range);
  }
}

TEST(FieldShortcuts, ReplaceOneFieldOfOneRecord) {
  auto const before = ThreeOfEach();
  auto const expect = [&](char const* difference, auto const& set) {
    SCOPED_TRACE(difference);
    CZelData model(before);
    set(model);
    EXPECT_EQ(Differences(model, before), std::vector<std::string>{difference});
    CZelData empty;
    EXPECT_THROW(set(empty), std::out_of_range);
    return model;
  };
  auto model = expect("Joint 2: primaryNode", [](auto& m) { m.SetJointPrimaryNode(2, 7); });
  EXPECT_EQ(model.Joint(2).PrimaryNode(), 7);
  model = expect("Joint 2: constrainedNode", [](auto& m) { m.SetJointConstrainedNode(2, 8); });
  EXPECT_EQ(model.Joint(2).ConstrainedNode(), 8);
  model = expect("ConstraintEqn 2: sid", [](auto& m) { m.SetConstraintEqnSid(2, L"e"); });
  EXPECT_EQ(model.ConstraintEqn(2).Sid(), L"e");
  model = expect("RaftInteraction 2: sid", [](auto& m) { m.SetRaftInteractionSid(2, L"r"); });
  EXPECT_EQ(model.RaftInteraction(2).Sid(), L"r");
}

}  // namespace
}  // namespace Tarvex::PositionalTablesTest
