#include "workbench/commands/split_connect.h"

#include <array>
#include <nlohmann/json.hpp>

#include "store/record/element.h"
#include "store/record/member.h"
#include "tarvex/data_mgr.h"
#include "tarvex/split_connect.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/kept_references.h"
#include "workbench/commands/selection.h"
#include "workbench/commands/unlisted_pieces.h"
#include "workbench/commands/unmapped_loads.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

constexpr Option kEntities{"--list", "TEXT", ValueKind::Text, "all",
                           "the entities to work on, as a list text"};
constexpr Option kLineKind{"--kind", "element|member", ValueKind::Choice, "element",
                           "what the list names"};
constexpr Option kNoReferences{"--no-references", "", ValueKind::Flag, "false",
                               "leave loads and references on the old numbers"};
constexpr Option kCoincidence{"--coincidence",
                              "L",
                              ValueKind::Number,
                              "0",
                              "a node within this distance in m is taken instead of a new one",
                              0};

constexpr std::array kSplitOptions{
    kEntities,
    kLineKind,
    Option{"--at", "L", ValueKind::Text, "",
           "distance of the cut from the first node in m; below 0 or beyond the end it is outside; "
           "there, as within a member, only a node is made"},
    Option{"--extend", "", ValueKind::Flag, "false", "extend to a place that is outside"},
    Option{
        "--coincidence", "L", ValueKind::Number, "0",
        "a node within this distance in m is taken instead of a new one; so far must a cut be from "
        "a rigid offset",
        0},
    kNoReferences};
constexpr std::array kConnectOptions{
    kEntities,
    kLineKind,
    Option{"--tol", "L", ValueKind::Number, "0.001", "lines closer than this in m meet", 0},
    Option{"--end-tol", "L", ValueKind::Number, "0.01",
           "a meeting this near to an end in m is the end; so far must it be from a rigid offset",
           0},
    kCoincidence,
    kNoReferences};

char const* LineTable(SelType kind) { return kind == SelMember ? "Member" : "Elem"; }

double RequiredLength(Arguments const& arguments, char const* option) {
  constexpr std::array kAt{Option{"--at", "L", ValueKind::Number, "", ""}};
  if (arguments.Text(option).empty()) throw UsageError(std::string(option) + ": give a distance");
  return Arguments(kAt, {{option, arguments.Text(option)}}).Number(option);
}

/// Why an entity gave no split node and was no cut within an offset.
char const* WhyNotSplit(CZelData const& model, SEntRef ref) {
  return model.EntIs1D(ref) ? "it has no length, or a node of it does not exist"
                            : "it is no 1D entity";
}

/// Warns of what an element that is still there has lost, of a new one without length, and of rigid
/// ends at a cut.
void WarnOfRemains(CZelData const& model, int element, bool wasOffset, int node,
                   std::vector<int> const& created, CommandResult& result) {
  auto const warn = [&](char const* code, int n, char const* text) {
    result.warnings.push_back({code, "Elem", n, "element " + std::to_string(n) + text});
  };
  if (wasOffset && model.ElemExist(element) && !model.Elem(element).IsOffset())
    warn("offset-cleared", element, " has lost its offsets");
  for (int const n : created)
    if (model.Elem(n).Topo(0) == model.Elem(n).Topo(1))
      warn("no-length", n, " has both its ends on the new node");
  if (model.ElemExist(element)) return;
  for (int const n : created) {
    int const end = model.Elem(n).Topo(0) == node ? 0 : 1;
    if (model.Elem(n).Offset().X(end) != 0)
      warn("offset-kept", n, " keeps an axial offset at the cut, and no load there");
  }
}

/// Warns of a place that gave a node and nothing else, which is less than was asked for.
void WarnOfNodeAlone(CZelData const& model, SEntRef ref, int node, CommandResult& result) {
  if (node == model.EntTopo(ref, 0) || node == model.EntTopo(ref, 1)) return;
  bool const isMember = ref.type == SelMember;
  result.warnings.push_back({"node-alone", LineTable(ref.type), ref.num,
                             SelTypeLabel(ref.type).ToUtf8() + " " + std::to_string(ref.num) +
                                 " was neither cut nor extended: node " + std::to_string(node) +
                                 " is at the place" + (isMember ? "; members are not cut" : "")});
  result.lookAt = true;
}

/// Reports what still names elements that are gone.
void ReportGoneElements(CZelData const& before, CZelData const& model, CommandResult& result) {
  ReportKeptReferences(
      model,
      {"Elem", "element",
       [&](int n) { return before.VariantElementExist(n) && !model.VariantElementExist(n); }},
      result);
}

using CutElements = CDataMgr::NumberLists;

/// Cuts one entity; loads and references stay. @param pieces gains those of an element that was
/// cut.
/// @return the row of the result; empty when it could not be cut.
Json SplitOne(CZelData& model, SEntRef ref, double position, Arguments const& arguments,
              CutElements& pieces, CommandResult& result) {
  CSplit1dEl tool(model);
  tool.SetCoincidenceTol(arguments.Number("--coincidence"));
  std::vector<int> created;
  bool const isElement = ref.type == SelElement;
  bool const wasOffset = isElement && model.EntIsOffset(ref);
  bool const done =
      model.EntIs1D(ref) && tool.Do(ref, position, arguments.Flag("--extend"), created);
  if (isElement) WarnOfRemains(model, ref.num, wasOffset, tool.SplitNode(), created, result);
  if (!done) {
    result.undone.push_back({LineTable(ref.type), ref.num,
                             tool.IsSomeSplitsSkipped() ? "the place is within a rigid offset"
                                                        : WhyNotSplit(model, ref)});
    return {};
  }
  if (created.empty()) WarnOfNodeAlone(model, ref, tool.SplitNode(), result);
  if (isElement && !model.ElemExist(ref.num)) pieces[ref.num] = {created.rbegin(), created.rend()};
  return {{"number", ref.num}, {"node", tool.SplitNode()}, {"created", created}};
}

/// Gives the loads and references of elements that were cut to their pieces, in one walk over them
/// for all. For so long the elements stand again as they were cut, without offsets.
void FollowCuts(CZelData const& before, CZelData& model, CutElements const& pieces,
                CommandResult& result) {
  if (pieces.empty()) return;
  std::set<int> cut;
  for (auto const& [n, made] : pieces) {
    cut.insert(n);
    auto element = before.Elem(n);
    element.SetOffset(Data::COffset(0, 0, 0, 0));
    model.SetElem(n, element);
  }
  auto const unmappable = FindUnmappableLineLoads(model, SelElement, cut);
  CDataMgr const manager(model);
  ReportUnmapped(unmappable, manager.MapBeamLoading(SelElement, pieces), result);
  manager.ReplaceElemRef(pieces, false);
  for (int const n : cut) model.BlankElem(n, 1);
}

void Split(CZelData& model, Arguments const& arguments, CommandResult& result) {
  double const position = RequiredLength(arguments, "--at");
  auto const kind = KindOf(arguments.Text("--kind"));
  auto const set = SelectByOptions(model, kind, arguments, result);
  CZelData const before(model);
  bool const references = !arguments.Flag("--no-references");
  bool const all = arguments.Text("--list") == kEntities.preset;
  bool extended = false;
  CutElements pieces;
  Json rows = Json::array();
  for (int const n : set) {
    if (all && !model.EntIs1D({kind, n})) continue;
    auto row = SplitOne(model, {kind, n}, position, arguments, pieces, result);
    if (row.empty()) continue;
    result.text += SelTypeLabel(kind).ToUtf8() + " " + std::to_string(n) + ": node " +
                   std::to_string(row.at("node").get<int>()) + "\n";
    extended = extended || (!row.at("created").empty() && model.EntExist({kind, n}));
    rows.push_back(std::move(row));
  }
  if (references) FollowCuts(before, model, pieces, result);
  result.did = !(model == before);
  result.result = std::make_shared<Json>(Json{{"splits", std::move(rows)}});
  result.tolerances.push_back({"coincidence", arguments.Number("--coincidence"), "m"});
  WarnOfUnlistedPieces(before, model, result);
  if (!references) return;
  ReportGoneElements(before, model, result);
  if (!extended) ReportForces(before, model, result);  // an extension bears loads of its own
}

/// Lines that pass one another within a tolerance as long as themselves are cut in ever more
/// pieces, which pass one another again: such a tolerance is refused.
void RequireShortTolerance(CZelData const& model, Util::CSet const& set, double tolerance) {
  for (int const n : set) {
    SEntRef const ref(set.TypeOf(), n);
    if (!model.EntExist(ref) || model.EntNumTopo(ref) != 2) continue;
    int const a = model.EntTopo(ref, 0);
    int const b = model.EntTopo(ref, 1);
    if (!model.NodeExist(a) || !model.NodeExist(b)) continue;
    double const length = Length(model.NodeCoor(b) - model.NodeCoor(a));
    if (length > 0 && tolerance >= length)
      throw Refusal("--tol " + NumberText(tolerance) + " m is not shorter than " +
                    SelTypeLabel(set.TypeOf()).ToUtf8() + " " + std::to_string(n) + ", which is " +
                    NumberText(length) + " m long");
  }
}

void Connect(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const kind = KindOf(arguments.Text("--kind"));
  auto const set = SelectByOptions(model, kind, arguments, result);
  RequireShortTolerance(model, set, arguments.Number("--tol"));
  bool const references = !arguments.Flag("--no-references");
  CZelData const before(model);
  CConnect1dEl tool(model);
  tool.SetEntType(kind);
  tool.SetSet(set);
  tool.SetTol(arguments.Number("--tol"), arguments.Number("--end-tol"));
  tool.SetCoincidenceTol(arguments.Number("--coincidence"));
  tool.SetReplaceElemRef(references);
  result.did = tool.Do();
  if (!tool.IsAllLoadsMapped()) {
    std::set<int> cut;
    for (int const n : set)
      if (!model.EntExist({kind, n})) cut.insert(n);
    for (int n = before.HighestEnt(kind) + 1; n <= model.HighestEnt(kind); ++n)
      if (!model.EntExist({kind, n})) cut.insert(n);  // a piece that was cut again
    ReportUnmapped(FindUnmappableLineLoads(before, kind, cut), false, result);
  }
  if (tool.IsSomeSplitsSkipped()) {
    result.messages.push_back(
        "some meetings were left alone: they are within a rigid offset, or a corner of a plate is "
        "nearer than --end-tol to an end");
    result.lookAt = true;
  }
  if (kind == SelMember && references && result.did)
    result.warnings.push_back({"member-references", "Member", 0,
                               "loads and references of members stay on the old numbers"});
  result.tolerances.push_back({"connection", arguments.Number("--tol"), "m"});
  result.tolerances.push_back({"end", arguments.Number("--end-tol"), "m"});
  result.tolerances.push_back({"coincidence", arguments.Number("--coincidence"), "m"});
  WarnOfUnlistedPieces(before, model, result);
  if (!references) return;
  ReportGoneElements(before, model, result);
  ReportForces(before, model, result);
}

constexpr std::array kSplitConnectCommands{
    Command{"split", "cut 1D elements at a distance from their start, or extend 1D entities",
            kSplitOptions, CommandKind::Changes, &Split},
    Command{"connect", "cut 1D entities where they cross or touch corners of plates",
            kConnectOptions, CommandKind::Changes, &Connect},
};

}  // namespace

std::span<Command const> SplitConnectCommands() { return kSplitConnectCommands; }

}  // namespace Tarvex::Workbench
