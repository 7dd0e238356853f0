#include "workbench/commands/references.h"

#include <algorithm>
#include <array>

#include "tarvex/data_mgr.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/kept_references.h"
#include "workbench/commands/number_map.h"
#include "workbench/commands/selection.h"
#include "workbench/commands/shape_warnings.h"
#include "workbench/commands/unmapped_loads.h"
#include "workbench/file/references.h"

namespace Tarvex::Workbench {
namespace {

constexpr Option kMap{"--map", "FILE", ValueKind::Text, "",
                      "a file of lines \"old new new ...\", # begins a comment"};

constexpr Option Without(std::string_view name, std::string_view help) {
  return {name, "", ValueKind::Flag, "false", help};
}

constexpr std::array kReplaceNodesOptions{
    kMap, Without("--no-entities", "leave elements and members alone")};
constexpr std::array kReplaceElementsOptions{
    kMap,
    Without("--map-loads",
            "give beam, face, edge, thermal and body loads to the new elements by what lies on "
            "each of them; otherwise all loads follow as they are, those on solids do not")};
constexpr std::array kCopyOptions{
    Option{"--kind", "node|element", ValueKind::Choice, "element", "what the numbers are"},
    Option{"--map", "FILE", ValueKind::Text, "",
           "a file of lines \"number copy\", # begins a comment"},
    Without("--no-lists", "leave saved lists alone"),
    Without("--no-restraints", "leave general restraints of nodes alone"),
    Without("--no-constraints", "make no constraints or tied interfaces for the copies"),
    Without("--no-loads",
            "leave loads alone (but gravity loads of nodes), and surfaces and stages of elements")};
constexpr std::array kMapLoadsOptions{
    Option{"--kind", "element|member", ValueKind::Choice, "element", "what the numbers are"}, kMap};

/// Reads the map that is named. Throws UsageError when it would be read from behind the model.
NumberLists MapOf(Arguments const& arguments, int fewest, int most) {
  auto const& file = arguments.Text("--map");
  if (file == "-" && arguments.ModelFile() == "-")
    throw UsageError("--map: the model is on standard input, name a file");
  return ReadNumberMap(file, fewest, most);
}

std::set<int> OldNumbers(NumberLists const& numbers) {
  std::set<int> old;
  for (auto const& [number, now] : numbers) old.insert(number);
  return old;
}

/// Whether a number was to be replaced, and not by itself among others.
std::function<bool(int)> IsOldIn(NumberLists const& numbers) {
  return [&numbers](int number) {
    auto const found = numbers.find(number);
    return found != numbers.end() &&
           std::find(found->second.begin(), found->second.end(), number) == found->second.end();
  };
}

/// Refuses old numbers of records that do not exist, but for those that something names all the
/// same: to put another in their place mends it.
void RequireKnown(CZelData const& model, SelType kind, NumberLists const& numbers) {
  std::set<int> unknown;
  for (auto const& [old, now] : numbers)
    if (!model.EntExist({kind, old}, true)) unknown.insert(old);
  if (unknown.empty()) return;
  std::string_view const table = kind == SelNode ? "Node" : "Elem";
  ForEachReference(model, [&](ReferenceSite const& site) {
    if (site.target == table) unknown.erase(site.value);
  });
  if (!unknown.empty())
    throw Refusal(SelTypeLabel(kind).ToUtf8() + " " + std::to_string(*unknown.begin()) +
                  " does not exist, and nothing names it");
}

bool IsEntityTable(std::string_view table) { return table == "Elem" || table == "Member"; }

void ReplaceNodes(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const numbers = MapOf(arguments, 0, -1);
  RequireKnown(model, SelNode, numbers);
  RequireEntities(model, SelNode, numbers, false);
  bool const entities = !arguments.Flag("--no-entities");
  result.did = CDataMgr(model).ReplaceNodeRef(numbers, entities);
  KeptReferences kept{"Node", "node", IsOldIn(numbers)};
  if (!entities) kept.mayStay = IsEntityTable;
  ReportKeptReferences(model, kept, result);
}

/// A parent among its own pieces, or among those of another one, would be mapped over again, and so
/// would a piece that comes twice.
void RequireApart(NumberLists const& numbers) {
  for (auto const& [old, now] : numbers) {
    std::set<int> pieces;
    for (int const number : now) {
      if (numbers.contains(number))
        throw Refusal("number " + std::to_string(number) + " is an old and a new one");
      if (!pieces.insert(number).second)
        throw Refusal("number " + std::to_string(number) + " is twice among the new ones of " +
                      std::to_string(old));
    }
  }
}

bool MapLoads(CZelData& model, SelType kind, NumberLists const& numbers, CommandResult& result) {
  RequireEntities(model, kind, numbers, true);
  RequireApart(numbers);
  auto const unmappable = FindUnmappableLoads(model, kind, OldNumbers(numbers));
  if (kind == SelElement) WarnOfShapes(model, numbers, result);
  CZelData const before(model);
  CDataMgr const manager(model);
  bool all = manager.MapBeamLoading(kind, numbers);
  if (kind == SelElement) {
    bool const plates = manager.Map2DLoading(numbers);
    bool const solids = manager.Map3DLoading(numbers);
    all = all && plates && solids;
  }
  ReportUnmapped(unmappable, all, result);
  return !(model == before);
}

void ReplaceElements(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const numbers = MapOf(arguments, 0, -1);
  RequireKnown(model, SelElement, numbers);
  RequireEntities(model, SelElement, numbers, false);
  bool const mapLoads = arguments.Flag("--map-loads");
  CZelData const before(model);
  if (mapLoads) result.did = MapLoads(model, SelElement, numbers, result);
  if (CDataMgr(model).ReplaceElemRef(numbers, !mapLoads)) result.did = true;
  if (mapLoads) ReportForces(before, model, result);
  // The elements themselves stay with their members until they are deleted.
  ReportKeptReferences(model, {"Elem", "element", IsOldIn(numbers), IsEntityTable}, result);
}

void CopyReferences(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const kind = KindOf(arguments.Text("--kind"));
  auto const numbers = MapOf(arguments, 1, 1);
  RequireKnown(model, kind, numbers);
  RequireEntities(model, kind, numbers, false);
  CDataMgr::NumberMap copies;
  for (auto const& [number, copy] : numbers) copies[number] = copy.front();
  auto const with = [&](char const* option) { return !arguments.Flag(option); };
  CDataMgr const manager(model);
  result.did = kind == SelNode
                   ? manager.CopyNodeRef(copies, with("--no-lists"), with("--no-restraints"),
                                         with("--no-constraints"), with("--no-loads"))
                   : manager.CopyElemRef(copies, with("--no-lists"), with("--no-constraints"),
                                         with("--no-loads"));
}

void RunMapLoads(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const kind = KindOf(arguments.Text("--kind"));
  CZelData const before(model);
  result.did = MapLoads(model, kind, MapOf(arguments, 0, -1), result);
  ReportForces(before, model, result);
}

constexpr std::array kReferenceUpdateCommands{
    Command{"replace-nodes",
            "put new nodes in the place of old ones; what still names an old one is told",
            kReplaceNodesOptions, CommandKind::Changes, &ReplaceNodes},
    Command{"replace-elements",
            "put new elements in the place of old ones; what still names an old one is told",
            kReplaceElementsOptions, CommandKind::Changes, &ReplaceElements},
    Command{"copy-references",
            "put the copies of nodes or elements beside them in all that names "
            "them",
            kCopyOptions, CommandKind::Changes, &CopyReferences},
    Command{"map-loads", "give the loads of elements or members to pieces that exist",
            kMapLoadsOptions, CommandKind::Changes, &RunMapLoads},
};

}  // namespace

std::span<Command const> ReferenceUpdateCommands() { return kReferenceUpdateCommands; }

}  // namespace Tarvex::Workbench
