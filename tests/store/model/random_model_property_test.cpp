// What random models hold, so that the property tests that walk them see everything there is.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "store/model/registry.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::RandomModelPropertyTest {
namespace {

using Testing::ForEachRandomModel;
using Testing::Random;

constexpr int kModels = 200;

/// Names of all fields of a record, those of records within it behind a point.
template <class Record>
void AllFields(std::string const& prefix, std::set<std::string>& names) {
  ForEachField<Record>([&](auto const& field) {
    using Value = typename std::remove_cvref_t<decltype(field)>::Value;
    auto const name = prefix + "." + std::string(field.name);
    names.insert(name);
    if constexpr (Described<Value>) AllFields<Value>(name, names);
  });
}

/// Takes the names of the fields that differ from a default record's.
template <class Record>
void DropChanged(Record const& record, Record const& original, std::string const& prefix,
                 std::set<std::string>& names) {
  ForEachField<Record>([&](auto const& field) {
    using Value = typename std::remove_cvref_t<decltype(field)>::Value;
    auto const& value = record.*field.member;
    if (Same(value, original.*field.member)) return;
    auto const name = prefix + "." + std::string(field.name);
    names.erase(name);
    if constexpr (Described<Value>) DropChanged(value, original.*field.member, name, names);
  });
}

/// What the fields of a record are told by: its table, or the class where a table has several.
template <class Record, class Class>
std::string NameOf(std::string_view stem) {
  if constexpr (RecordClasses<Record>::kSeveral)
    return std::string(Class::kClass);
  else
    return std::string(stem);
}

TEST(RandomModelProperty, FillsEveryTableAndEveryField) {
  std::set<std::string> left;
  ForEachTable([&](auto const& row) {
    left.emplace(row.stem);
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    RecordClasses<Record>::ForEach(
        [&]<class Class>(Class*) { AllFields<Class>(NameOf<Record, Class>(row.stem), left); });
  });
  ForEachOneOff([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    AllFields<Record>(std::string(row.stem), left);
  });
  EXPECT_GT(left.size(), 50u);
  ForEachRandomModel(kModels, [&](CZelData& model, Random&) {
    ForEachTable([&](auto const& row) {
      std::string const stem(row.stem);
      if (!(model.*row.all)().empty()) left.erase(stem);
      using Record = typename std::remove_cvref_t<decltype(row)>::Record;
      ForEachRecord((model.*row.all)(), [&](int, Record const& record) {
        RecordClasses<Record>::Take(record, [&]<class Class>(Class const& object) {
          Class const original{};
          DropChanged(object, original, NameOf<Record, Class>(stem), left);
        });
      });
    });
    ForEachOneOff([&](auto const& row) {
      typename std::remove_cvref_t<decltype(row)>::Record const original{};
      DropChanged((model.*row.get)(), original, std::string(row.stem), left);
    });
  });
  EXPECT_EQ(left, std::set<std::string>()) << "never changed";
}

TEST(RandomModelProperty, HoldsEveryTypeReleasesAndStiffnesses) {
  std::set<int> types;
  bool released = false;
  bool stiff = false;
  bool automatic = false;
  ForEachRandomModel(kModels, [&](CZelData& model, Random&) {
    for (auto const& [n, element] : model.Elem()) {
      types.insert(static_cast<int>(element.Type()));
      for (int i = 0; i < element.NumTopo(); ++i) {
        released = released || !element.Connect(i).Release().IsNone();
        for (auto d = Direction::X; d - Direction::X < 6; ++d)
          stiff = stiff || element.Connect(i).Stiffness(d) != 0;
      }
      automatic = automatic || element.Offset().AutomaticOffset(1) == AutoOffset::On;
    }
  });
  std::set<int> all;
  for (int type = 1; type <= 26; ++type) all.insert(type);
  EXPECT_EQ(types, all);
  EXPECT_TRUE(released);
  EXPECT_TRUE(stiff);
  EXPECT_TRUE(automatic);
}

TEST(RandomModelProperty, HasHolesAndPanelsBetweenAndAboveTheElements) {
  int between = 0;
  ForEachRandomModel(kModels, [&](CZelData& model, Random&) {
    EXPECT_LT(model.NumEnt(SelNode), model.HighestNode());
    EXPECT_LT(model.NumEnt(SelElement), model.HighestElem());
    EXPECT_GT(model.HighestLoadPanel(), model.Elem().Highest());
    between += model.LoadPanels().Next(0) < model.Elem().Highest() ? 1 : 0;
  });
  EXPECT_GT(between, kModels / 4);
}

TEST(RandomModelProperty, HasPlanePatchesWhosePlatesShareEdges) {
  int plane = 0;
  int warped = 0;
  int shared = 0;
  ForEachRandomModel(kModels, [&](CZelData& model, Random&) {
    std::map<std::pair<int, int>, int> edges;
    for (auto const& [n, element] : model.Elem()) {
      if (!element.Is2D()) continue;
      auto const z = model.Normal(static_cast<int>(n));
      auto const origin = model.NodeCoor(element.Topo(0));
      double away = 0;
      for (int i = 0; i < element.NumEdge(); ++i) {
        away = std::max(away, std::abs(Dot(z, model.NodeCoor(element.Topo(i)) - origin)));
        ++edges[std::minmax(element.Topo(i), element.Topo((i + 1) % element.NumEdge()))];
      }
      ++(away < 1e-9 ? plane : warped);
    }
    for (auto const& [edge, count] : edges) shared += count == 2 ? 1 : 0;
  });
  EXPECT_GT(plane, 10 * kModels / 4);
  EXPECT_GT(warped, kModels / 2);
  EXPECT_GT(shared, 4 * kModels);
}

TEST(RandomModelProperty, HasListsOfEveryKindWithWordsAndRanges) {
  std::map<SelType, std::set<int>> tokens;
  ForEachRandomModel(kModels, [&](CZelData& model, Random&) {
    for (auto const& [n, list] : model.List())
      tokens[list.TypeOf()].insert(list.Word().begin(), list.Word().end());
  });
  for (auto const kind : {SelNone, SelNode, SelElement, SelMember, SelCase})
    for (int const token : {Data::kTo, Data::kOr})
      EXPECT_TRUE(tokens[kind].contains(token)) << kind << " " << token;
  for (int const token : {Data::kAnd, Data::kNot, Data::kOpen, Data::kString, Data::kSavedList})
    EXPECT_TRUE(tokens[SelElement].contains(token)) << token;
}

TEST(RandomModelProperty, NamesNothingThatIsMissing) {
  ForEachRandomModel(kModels, [](CZelData& model, Random&) {
    EXPECT_TRUE(Testing::NoDanglingReference(model));
    for (auto const& [n, node] : model.Node())
      EXPECT_TRUE(node.Axis() == 0 || model.AxisExist(node.Axis()));
  });
}

TEST(RandomModelProperty, IsTheSameForTheSameSeedAndAnotherForAnother) {
  EXPECT_TRUE(Testing::IsUnchanged(Testing::RandomModel(5), Testing::RandomModel(5)));
  EXPECT_FALSE(Testing::RandomModel(5) == Testing::RandomModel(6));
}

}  // namespace
}  // namespace Tarvex::RandomModelPropertyTest
