#include "tests/support/matchers.h"

#include <cmath>
#include <map>
#include <set>
#include <sstream>

#include "store/model/registry.h"
#include "store/record/node.h"
#include "tests/support/record_fields.h"

namespace Tarvex::Testing {
namespace {

using Lines = std::vector<std::string>;

::testing::AssertionResult NoLines(Lines const& lines, char const* what) {
  if (lines.empty()) return ::testing::AssertionSuccess();
  constexpr std::size_t kShown = 40;
  auto failure = ::testing::AssertionFailure() << what;
  for (std::size_t i = 0; i < std::min(lines.size(), kShown); ++i) failure << "\n  " << lines[i];
  if (lines.size() > kShown) failure << "\n  and " << lines.size() - kShown << " more";
  return failure;
}

template <class Record>
std::string FieldList(Record const& after, Record const& before) {
  std::string list;
  bool const alike =
      RecordClasses<Record>::TakeTwo(after, before, [&](auto const& a, auto const& b) {
        for (auto const& name : ChangedFields(a, b)) list += (list.empty() ? "" : ", ") + name;
      });
  return alike ? list : "class";
}

template <class Row>
void TableDifferences(Row const& row, CZelData const& model, CZelData const& before, Lines& lines) {
  ForEachDifference(
      (before.*row.all)(), (model.*row.all)(), [&](int n, auto const* was, auto const* is) {
        if (was != nullptr && is != nullptr && *was == *is) return;
        auto const what = was == nullptr ? "came" : is == nullptr ? "went" : FieldList(*is, *was);
        lines.push_back(std::string(row.stem) + " " + std::to_string(n) + ": " + what);
      });
}

std::string Text(std::span<int const> numbers) {
  std::ostringstream text;
  for (int const n : numbers) text << ' ' << n;
  return text.str();
}

}  // namespace

Lines Differences(CZelData const& model, CZelData const& before) {
  Lines lines;
  ForEachOneOff([&](auto const& row) {
    auto const fields = FieldList((model.*row.get)(), (before.*row.get)());
    if (!fields.empty()) lines.push_back(std::string(row.stem) + ": " + fields);
  });
  ForEachTable([&](auto const& row) { TableDifferences(row, model, before, lines); });
  return lines;
}

::testing::AssertionResult IsUnchanged(CZelData const& model, CZelData const& before) {
  auto const result =
      NoLines(Differences(model, before), "the model differs from its former state");
  if (result && !(model == before))
    return ::testing::AssertionFailure() << "the models are unequal in no table and no field";
  return result;
}

::testing::AssertionResult References(CZelData const& model, int entity,
                                      std::vector<int> const& nodes) {
  auto const view = model.VariantElement(entity);
  if (!view) return ::testing::AssertionFailure() << "there is no element or panel " << entity;
  std::span<int const> const actual = view->Topology();
  if (std::equal(actual.begin(), actual.end(), nodes.begin(), nodes.end()))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "element or panel " << entity << " refers to"
                                       << Text(actual) << ", not to" << Text(nodes);
}

::testing::AssertionResult NoDanglingReference(CZelData const& model) {
  Lines lines;
  auto const check = [&](char const* table, unsigned int n, char const* field, int node) {
    if (node == 0 || model.NodeExist(node)) return;
    lines.push_back(std::string(table) + " " + std::to_string(n) + ": " + field + " names node " +
                    std::to_string(node));
  };
  for (auto const& [n, element] : model.Elem()) {
    for (int const node : element.Topology()) check("Elem", n, "topology", node);
    check("Elem", n, "orientationNode", element.OrientationNode());
  }
  for (auto const& [n, panel] : model.LoadPanels())
    for (int const node : panel.Topology()) check("LoadPanel", n, "topology", node);
  return NoLines(lines, "references to nodes that do not exist");
}

namespace {

using EntitiesOfNode = std::map<int, std::set<int>>;

void CompareAttached(CZelData const& model, SelType kind, EntitiesOfNode expected, Lines& lines) {
  for (auto const& [n, node] : model.Node()) {
    auto const& entities = expected[static_cast<int>(n)];
    std::vector<int> const should(entities.begin(), entities.end());
    auto const& attached = node.AttachedEnt(kind);
    std::vector<int> const is(attached.begin(), attached.end());
    if (is != should || node.NumEntAttached(kind) != static_cast<int>(should.size()))
      lines.push_back("node " + std::to_string(n) + " has" + Text(is) + ", not" + Text(should));
  }
}

}  // namespace

::testing::AssertionResult AttachmentsFollowTopology(CZelData const& model) {
  EntitiesOfNode elements;
  EntitiesOfNode members;
  for (auto const& [n, element] : model.Elem())
    for (int const node : element.Topology()) elements[node].insert(static_cast<int>(n));
  for (auto const& [n, panel] : model.LoadPanels())
    for (int const node : panel.Topology()) elements[node].insert(static_cast<int>(n));
  for (auto const& [n, member] : model.Member())
    for (int const item : member.Topo())
      if (item > 0) members[item].insert(static_cast<int>(n));
  Lines lines;
  CompareAttached(model, SelElement, elements, lines);
  CompareAttached(model, SelMember, members, lines);
  return NoLines(lines, "attachments that do not follow topology");
}

::testing::AssertionResult IsNear(Vec3<double> const& actual, Vec3<double> const& expected,
                                  double tolerance) {
  auto const near = [&](double a, double b) { return std::abs(a - b) <= tolerance; };
  if (near(actual.x, expected.x) && near(actual.y, expected.y) && near(actual.z, expected.z))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << ::testing::PrintToString(actual) << " is not " << ::testing::PrintToString(expected);
}

}  // namespace Tarvex::Testing
