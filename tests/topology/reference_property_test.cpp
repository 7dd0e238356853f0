// What holds behind every operation on references and loads on any model.
#include <cmath>
#include <functional>
#include <set>

#include "store/model/list_expansion.h"
#include "tarvex/split_connect.h"
#include "tests/support/random_model.h"
#include "tests/topology/topology_support.h"

namespace Tarvex::ReferencePropertyTest {
namespace {

using namespace Testing;

constexpr int kModels = 40;
constexpr int kModelsForAllUses = 12;

/// One use of an operation.
struct Use {
  std::string name;
  std::function<bool(CZelData&, Random&)> run;
  bool opensStep = true;  ///< the tools leave that to the caller
};

std::vector<int> NumbersOf(CZelData const& model, SelType kind) {
  std::vector<int> numbers;
  for (int n = 1; n <= model.HighestEnt(kind); ++n)
    if (model.EntExist({kind, n}, false)) numbers.push_back(n);
  return numbers;
}

/// Up to so many existing numbers and for each up to three others that exist.
NumberLists AnyLists(CZelData const& model, SelType kind, Random& random, int count) {
  auto const all = NumbersOf(model, kind);
  NumberLists lists;
  for (int i = random.Int(1, count); i > 0; --i) {
    auto& to = lists[random.Of(all)];
    for (int k = random.Int(0, 3); k > 0; --k) to.push_back(random.Of(all));
  }
  return lists;
}
NumberMap AnyCopies(CZelData const& model, SelType kind, Random& random) {
  auto const all = NumbersOf(model, kind);
  NumberMap copies;
  for (int i = random.Int(1, 15); i > 0; --i) {
    int const old = random.Of(all);
    copies[old] = random.Of(all);
  }
  return copies;
}

bool Split(CZelData& model, Random& random) {
  CSplit1dEl tool(model);
  tool.SetReplaceElemRef(true);
  std::vector<int> lines;
  for (int const n : NumbersOf(model, SelElement))
    if (model.EntIs1D({SelElement, n})) lines.push_back(n);
  std::vector<int> created;
  int const line = random.Of(lines);
  double const length = model.ElemLen(line, EntAt::Nodes);
  bool const extend = random.Percent(50);
  return tool.Do({SelElement, line}, random.Real(-0.3, 1.3) * length, extend, created);
}

bool Connect(CZelData& model, Random& random, SelType kind) {
  CConnect1dEl tool(model);
  Util::CSet set(kind);
  for (int const n : NumbersOf(model, kind))
    if (random.Percent(80)) set.AddTo(n);
  tool.SetEntType(kind);
  tool.SetSet(set);
  tool.SetTol(0.5, 0.05);
  tool.SetCoincidenceTol(0.01);
  tool.SetReplaceElemRef(true);
  return tool.Do();
}

std::vector<Use> AllUses() {
  return {
      {"ReplaceNodeRef",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).ReplaceNodeRef(AnyLists(model, SelNode, random, 20),
                                               random.Percent(70));
       }},
      {"CopyNodeRef",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).CopyNodeRef(AnyCopies(model, SelNode, random), true, true, true,
                                            true);
       }},
      {"ReplaceElemRef",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).ReplaceElemRef(AnyLists(model, SelElement, random, 20),
                                               random.Percent(50));
       }},
      {"CopyElemRef",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).CopyElemRef(AnyCopies(model, SelElement, random), true, true, true);
       }},
      {"MapBeamLoading on elements",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).MapBeamLoading(SelElement, AnyLists(model, SelElement, random, 40));
       }},
      {"MapBeamLoading on members",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).MapBeamLoading(SelMember, AnyLists(model, SelMember, random, 10));
       }},
      {"Map2DLoading",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).Map2DLoading(AnyLists(model, SelElement, random, 40));
       }},
      {"Map3DLoading",
       [](CZelData& model, Random& random) {
         return CDataMgr(model).Map3DLoading(AnyLists(model, SelElement, random, 40));
       }},
      {"CSplit1dEl", &Split, false},
      {"CConnect1dEl on elements",
       [](CZelData& model, Random& random) { return Connect(model, random, SelElement); }, false},
      {"CConnect1dEl on members",
       [](CZelData& model, Random& random) { return Connect(model, random, SelMember); }, false},
  };
}

/// Loads on plain lists, so that mappings find work.
void AddPlainLoads(CZelData& model, Random& random) {
  auto const all = NumbersOf(model, SelElement);
  auto const list = [&] {
    Data::CEntList numbers(SelElement, L"");
    for (int i = random.Int(1, 25); i > 0; --i) numbers.AddTo(random.Of(all));
    return numbers;
  };
  for (int i = 0; i < 6; ++i) {
    auto beam = model.BeamLoad(1);
    beam.SetType(static_cast<Data::CBeamLoad::LoadType>(random.Int(1, 5)));
    beam.SetLoadedEntities(list());
    model.SetBeamLoad(model.HighestBeamLoad() + 1, beam);
    Data::CEntList members(SelMember, L"");
    for (int const n : NumbersOf(model, SelMember))
      if (random.Percent(60)) members.AddTo(n);
    beam.SetLoadedEntities(members);
    model.SetBeamLoad(model.HighestBeamLoad() + 1, beam);
    auto face = model.FaceLoad(1);
    face.SetType(static_cast<Data::CFaceLoad::Load2D>(random.Int(1, 3)));
    face.SetPosition({random.Real(-1, 1), random.Real(-1, 1)});
    face.SetLoadedEntities(list());
    model.SetFaceLoad(model.HighestFaceLoad() + 1, face);
    auto edge = model.EdgeLoad(1);
    edge.SetLoadedEntities(list());
    model.SetEdgeLoad(model.HighestEdgeLoad() + 1, edge);
    auto thermal = model.FaceThermalLoad(1);
    thermal.SetLoadedEntities(list());
    model.SetFaceThermalLoad(model.HighestFaceThermalLoad() + 1, thermal);
    auto body = model.BodyFaceLoad(1);
    body.SetLoadedEntities(list());
    model.SetBodyFaceLoad(model.HighestBodyFaceLoad() + 1, body);
    auto solid = model.BodyThermalLoad(1);
    solid.SetLoadedEntities(list());
    model.SetBodyThermalLoad(model.HighestBodyThermalLoad() + 1, solid);
  }
}

/// Calls check(use, before, after, seed of the use) for every use on random models.
template <class Check>
void ForEachUse(Check&& check) {
  Testing::ForEachRandomModel(kModelsForAllUses, [&](CZelData before, Random& random) {
    AddPlainLoads(before, random);
    for (auto const& use : AllUses()) {
      SCOPED_TRACE(use.name);
      auto const seed = static_cast<std::uint32_t>(random.Int(1, 1000000));
      CZelData after(before);
      Random of(seed);
      use.run(after, of);
      check(use, before, after, seed);
      if (::testing::Test::HasFailure()) return;
    }
  });
}

TEST(ReferenceProperty, EachUseChangesSomethingOnMostModels) {
  std::map<std::string, int> changed;
  ForEachUse([&](Use const& use, CZelData const& before, CZelData const& after, std::uint32_t) {
    if (!(after == before)) ++changed[use.name];
  });
  for (auto const& use : AllUses()) EXPECT_GT(changed[use.name], kModelsForAllUses / 3) << use.name;
}

TEST(ReferenceProperty, GivesTheSameFromTheSameState) {
  ForEachUse([](Use const& use, CZelData const& before, CZelData const& after, std::uint32_t seed) {
    CZelData again(before);
    Random of(seed);
    use.run(again, of);
    ASSERT_TRUE(IsUnchanged(again, after));
  });
}

TEST(ReferenceProperty, IsUndoneToTheBit) {
  ForEachUse([](Use const& use, CZelData const& before, CZelData const&, std::uint32_t seed) {
    if (!use.opensStep) return;
    CZelData model(before);
    Random of(seed);
    use.run(model, of);
    while (model.Undo()) {
    }
    ASSERT_TRUE(IsUnchanged(model, before));
  });
}

TEST(ReferenceProperty, NamesNoNodeThatDoesNotExist) {
  ForEachUse([](Use const&, CZelData const&, CZelData const& after, std::uint32_t) {
    ASSERT_TRUE(NoDanglingReference(after));
    ASSERT_TRUE(AttachmentsFollowTopology(after));
    ASSERT_FALSE(after.rebuildHold);
  });
}

template <class Load>
void ExpectFinite(std::vector<Load> const& loads, int count) {
  for (auto const& load : loads)
    for (int i = 0; i < count; ++i) ASSERT_TRUE(std::isfinite(load.Value(i)));
}

TEST(ReferenceProperty, WritesNoLoadThatIsNotFinite) {
  ForEachUse([](Use const&, CZelData const&, CZelData const& after, std::uint32_t) {
    ExpectFinite(after.BeamLoad(), 2);
    ExpectFinite(after.FaceLoad(), 4);
    ExpectFinite(after.EdgeLoad(), 2);
    ExpectFinite(after.FaceThermalLoad(), 8);
    ExpectFinite(after.BodyFaceLoad(), 4);
    ExpectFinite(after.BodyThermalLoad(), 8);
    for (auto const& load : after.BeamLoad())
      ASSERT_TRUE(std::isfinite(load.Pos(0)) && std::isfinite(load.Pos(1)));
    for (auto const& load : after.FaceLoad())
      ASSERT_TRUE(std::isfinite(load.Position().x) && std::isfinite(load.Position().y));
  });
}

TEST(ReferenceProperty, ChangesNoTableButItsOwn) {
  std::map<std::string, std::set<std::string>> const tables{
      {"ReplaceNodeRef",
       {"Elem", "Member", "List", "GenRest", "Joint", "Rigid", "ConstraintEqn", "NodeLoad",
        "AppliedDisplacement", "Settlement", "GravityLoad"}},
      {"CopyNodeRef",
       {"List", "GenRest", "Joint", "Rigid", "ConstraintEqn", "NodeLoad", "AppliedDisplacement",
        "Settlement", "GravityLoad"}},
      {"ReplaceElemRef",
       {"List", "GridSurface", "AnalStage", "Assembly", "TiedInterface", "BeamLoad", "AxialLoad",
        "BeamDist", "BeamThermalLoad", "EdgeLoad", "FaceLoad", "InPlaneLoad", "FaceThermalLoad",
        "GravityLoad"}},
      {"CopyElemRef",
       {"List", "GridSurface", "AnalStage", "TiedInterface", "BeamLoad", "AxialLoad", "BeamDist",
        "BeamThermalLoad", "EdgeLoad", "FaceLoad", "InPlaneLoad", "FaceThermalLoad",
        "GravityLoad"}},
      {"MapBeamLoading on elements", {"BeamLoad", "BeamDist"}},
      {"MapBeamLoading on members", {"BeamLoad", "BeamDist"}},
      {"Map2DLoading", {"FaceLoad", "EdgeLoad", "FaceThermalLoad"}},
      {"Map3DLoading", {"BodyFaceLoad", "BodyThermalLoad"}}};
  ForEachUse([&](Use const& use, CZelData const& before, CZelData const& after, std::uint32_t) {
    auto const own = tables.find(use.name);
    if (own == tables.end()) return;
    for (auto const& line : Differences(after, before))
      ASSERT_TRUE(own->second.contains(line.substr(0, line.find(' ')))) << line;
  });
}

TEST(ReferenceProperty, LeavesNoOldNodeInTopologyJointsAndEquations) {
  Testing::ForEachRandomModel(kModels, [&](CZelData model, Random& random) {
    // Old and new numbers apart, so that no new one is an old one too.
    auto all = NumbersOf(model, SelNode);
    random.Shuffle(all);
    NumberLists numbers;
    for (std::size_t i = 0; i < all.size() / 2; ++i) numbers[all[i]] = {all[all.size() - 1 - i]};
    CDataMgr(model).ReplaceNodeRef(numbers, true);
    auto const isOld = [&](int node) { return numbers.contains(node); };
    for (auto const& [n, element] : model.Elem()) {
      for (int const node : element.Topology()) ASSERT_FALSE(isOld(node));
      ASSERT_FALSE(isOld(element.OrientationNode()));
    }
    for (auto const& [n, member] : model.Member()) {
      for (int const node : member.Topo().Nodes()) ASSERT_FALSE(isOld(node));
      ASSERT_FALSE(isOld(member.OrientationNode()));
    }
    for (auto const& joint : model.Joint()) {
      ASSERT_FALSE(isOld(joint.PrimaryNode()));
      ASSERT_FALSE(isOld(joint.ConstrainedNode()));
    }
    for (auto const& equation : model.ConstraintEqn()) {
      ASSERT_FALSE(isOld(equation.ConstrainedNode()));
      for (auto const& term : equation.Terms()) ASSERT_FALSE(isOld(term.Node()));
    }
  });
}

TEST(ReferenceProperty, TakesEveryParentOffTheLoadsOnPlainLists) {
  int seen = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData model, Random& random) {
    AddPlainLoads(model, random);
    auto all = NumbersOf(model, SelElement);
    random.Shuffle(all);
    NumberLists pieces;
    for (std::size_t i = 0; i < all.size() / 2; ++i) pieces[all[i]] = {all[all.size() - 1 - i]};
    CDataMgr const manager(model);
    manager.MapBeamLoading(SelElement, pieces);
    manager.Map2DLoading(pieces);
    manager.Map3DLoading(pieces);
    auto const check = [&](auto const& loads) {
      for (auto const& load : loads) {
        auto const& list = load.LoadedEntities();
        int count = 0;
        Util::CSet set;
        if (list.TypeOf() != SelElement || !list.CheckSimpleList(count, set)) continue;
        if (count != list.NumWord()) continue;
        ++seen;
        for (auto const& [parent, subs] : pieces) ASSERT_FALSE(set.IsItemIncluded(parent));
      }
    };
    check(model.BeamLoad());
    check(model.BeamDist());
    check(model.FaceLoad());
    check(model.EdgeLoad());
    check(model.FaceThermalLoad());
    check(model.BodyFaceLoad());
    check(model.BodyThermalLoad());
  });
  EXPECT_GT(seen, kModels * 20);
}

}  // namespace
}  // namespace Tarvex::ReferencePropertyTest
