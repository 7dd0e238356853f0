#include "workbench/commands/references.h"

#include <algorithm>
#include <array>

#include "store/record/member.h"
#include "store/record/rigid.h"
#include "tarvex/data_mgr.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/number_map.h"
#include "workbench/commands/selection.h"
#include "workbench/commands/unmapped_loads.h"

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

std::set<int> OldNumbers(NumberLists const& numbers) {
  std::set<int> old;
  for (auto const& [number, now] : numbers) old.insert(number);
  return old;
}

/// Reports what still names a node that was to be replaced.
void ReportKeptNodes(CZelData const& model, NumberLists const& numbers, bool entities,
                     CommandResult& result) {
  auto const report = [&](char const* table, int n, int node) {
    result.undone.push_back({table, n, "it still names node " + std::to_string(node)});
  };
  auto const isOld = [&](int node) {
    auto const found = numbers.find(node);
    return found != numbers.end() &&
           std::find(found->second.begin(), found->second.end(), node) == found->second.end();
  };
  auto const reportTopology = [&](char const* table, int n, auto const& nodes) {
    auto const kept = std::find_if(nodes.begin(), nodes.end(), isOld);
    if (kept != nodes.end()) report(table, n, *kept);
  };
  for (auto const& [n, panel] : model.LoadPanels())
    reportTopology("LoadPanel", static_cast<int>(n), panel.Topology());
  for (auto const& [n, element] : model.Elem())
    if (entities) reportTopology("Elem", static_cast<int>(n), element.Topology());
  for (auto const& [n, member] : model.Member())
    if (entities) reportTopology("Member", static_cast<int>(n), member.Topo().Nodes());
  for (int n = 1; n <= model.HighestRigid(); ++n)
    if (isOld(model.Rigid(n).PrimaryNode())) report("Rigid", n, model.Rigid(n).PrimaryNode());
}

void ReplaceNodes(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const numbers = ReadNumberMap(arguments.Text("--map"), 0, -1);
  RequireEntities(model, SelNode, numbers, false);
  bool const entities = !arguments.Flag("--no-entities");
  result.did = CDataMgr(model).ReplaceNodeRef(numbers, entities);
  ReportKeptNodes(model, numbers, entities, result);
}

/// A parent among its own pieces, or among those of another one, would be mapped over again.
void RequireOldApart(NumberLists const& numbers) {
  for (auto const& [old, now] : numbers)
    for (int const number : now)
      if (numbers.contains(number))
        throw Refusal("number " + std::to_string(number) + " is an old and a new one");
}

bool MapLoads(CZelData& model, SelType kind, NumberLists const& numbers, CommandResult& result) {
  RequireEntities(model, kind, numbers, true);
  RequireOldApart(numbers);
  auto const unmappable = FindUnmappableLoads(model, kind, OldNumbers(numbers));
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
  auto const numbers = ReadNumberMap(arguments.Text("--map"), 0, -1);
  RequireEntities(model, SelElement, numbers, false);
  bool const mapLoads = arguments.Flag("--map-loads");
  if (mapLoads) result.did = MapLoads(model, SelElement, numbers, result);
  if (CDataMgr(model).ReplaceElemRef(numbers, !mapLoads)) result.did = true;
}

void CopyReferences(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const kind = KindOf(arguments.Text("--kind"));
  auto const numbers = ReadNumberMap(arguments.Text("--map"), 1, 1);
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
  result.did = MapLoads(model, kind, ReadNumberMap(arguments.Text("--map"), 0, -1), result);
}

constexpr std::array kReferenceUpdateCommands{
    Command{"replace-nodes", "put new nodes in the place of old ones in all that names them",
            kReplaceNodesOptions, CommandKind::Changes, &ReplaceNodes},
    Command{"replace-elements", "put new elements in the place of old ones in all that names them",
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
