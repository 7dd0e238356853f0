#include "workbench/commands/coincidence.h"

#include <algorithm>
#include <array>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "store/model/list_expansion.h"
#include "store/record/joint.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "tarvex/coincidence.h"
#include "workbench/commands/selection.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

constexpr Option kNodeList{"--list", "TEXT", ValueKind::Text, "all",
                           "the nodes to work on, as a list text"};
constexpr Option kCoincidenceList{"--list", "TEXT", ValueKind::Text, "all",
                                  "the entities to compare with one another, as a list text"};
constexpr Option kWith{
    "--with", "TEXT", ValueKind::Text, "all",
    "the nodes that they are compared with, beside themselves; these may go, too"};
constexpr Option kTolerance{"--tolerance",
                            "LENGTH",
                            ValueKind::Number,
                            "0",
                            "distance in m below which things coincide; 0 for the model's own",
                            0};
constexpr Option kStage{"--stage",
                        "N",
                        ValueKind::Integer,
                        "0",
                        "analysis stage whose constraints count, 0 for the model without stages",
                        0};
constexpr Option kNodeStage{"--stage",
                            "N",
                            ValueKind::Integer,
                            "0",
                            "of nodes: analysis stage whose joints count, 0 for the model without "
                            "stages",
                            0};
constexpr Option kOverlapKind{"--kind", "element|member", ValueKind::Choice, "element",
                              "what the list names"};

constexpr std::array kMergeOptions{
    kNodeList, kWith, kTolerance,
    Option{"--properties", "greater|lesser|kept", ValueKind::Choice, "greater",
           "what the node that stays gets: restraints of both and the greater property numbers and "
           "mesh size, what both restrain and the lesser ones, or its own"},
    kStage};
constexpr std::array kJoinOptions{kNodeList, kWith, kTolerance, kStage};
constexpr std::array kCoincidentOptions{
    Option{"--kind", "node|element|member", ValueKind::Choice, "node", "what the list names"},
    kCoincidenceList, kTolerance, kNodeStage};
constexpr std::array kOverlapOptions{kOverlapKind, kCoincidenceList, kTolerance};
constexpr std::array kCrossingOptions{kOverlapKind, kCoincidenceList};
constexpr std::array kUnconnectedOptions{kCoincidenceList};

double ToleranceOf(CZelData const& model, Arguments const& arguments, CommandResult& result) {
  double const given = arguments.Number("--tolerance");
  double const tolerance = given > 0 ? given : model.Spec().GenTol();
  result.tolerances.push_back({"coincidence", tolerance, "m"});
  return tolerance;
}

/// The stage asked for. Throws Refusal when the model has none of that number.
int CoincidenceStageOf(CZelData const& model, Arguments const& arguments) {
  int const stage = arguments.Integer("--stage");
  if (stage != 0 && !model.AnalStageExist(stage))
    throw Refusal("stage " + std::to_string(stage) + " does not exist");
  return stage;
}

CReduceCoinc SearchIn(CZelData& model, Util::CSet const& set, double tolerance, int stage) {
  CReduceCoinc tool(model, tolerance, stage);
  tool.SetSearchSet(set, CReduceCoinc::kWholeSearch);
  return tool;
}

Util::CSet Union(Util::CSet set, Util::CSet const& other) {
  for (int const n : other) set.AddTo(n);
  return set;
}

// Merging and joining.

CReduceCoinc::Option OptionOf(std::string const& word) {
  if (word == "lesser") return CReduceCoinc::OptionMergeMin;
  return word == "kept" ? CReduceCoinc::OptionMergeKeep : CReduceCoinc::OptionMergeMax;
}

/// What each removed node became in the end, ascending.
std::map<int, int> SurvivorsOf(std::vector<std::pair<int, int>> const& pairs) {
  std::map<int, int> survivors;
  // A node that stays may go in a later pair: from the last pair on, what it became is known.
  for (auto pair = pairs.rbegin(); pair != pairs.rend(); ++pair) {
    auto const later = survivors.find(pair->second);
    survivors[pair->first] = later == survivors.end() ? pair->second : later->second;
  }
  return survivors;
}

/// Chains of near nodes can end further away than the tolerance.
void WarnOfMoves(CZelData const& before, std::map<int, int> const& survivors, double tolerance,
                 CommandResult& result) {
  for (auto const& [removed, kept] : survivors) {
    double const distance = Length(before.NodeCoor(removed) - before.NodeCoor(kept));
    if (distance < tolerance) continue;
    result.warnings.push_back({"moved-by-chain", "Node", removed,
                               "node " + std::to_string(removed) + " became node " +
                                   std::to_string(kept) + ", " + NumberText(distance) +
                                   " m away, over nodes between them"});
  }
}

/// A load on a list acts once on each of its nodes: nodes of one list that became one bear it once.
void WarnOfFewerLoadedNodes(CZelData const& before, CZelData const& after, CommandResult& result) {
  int const highest = std::min(before.HighestNodeLoad(), after.HighestNodeLoad());
  for (int n = 1; n <= highest; ++n) {
    int const was = Util::NumItem(before.NodeLoad(n).LoadedEntities(), before);
    int const is = Util::NumItem(after.NodeLoad(n).LoadedEntities(), after);
    if (is >= was) continue;
    result.warnings.push_back({"fewer-loaded-nodes", "NodeLoad", n,
                               "NodeLoad " + std::to_string(n) + " acts on " +
                                   Counted(static_cast<std::size_t>(is), "node") + ", and on " +
                                   std::to_string(was) + " before"});
    result.lookAt = true;
  }
}

void MergeNodes(CZelData& model, Arguments const& arguments, CommandResult& result) {
  CZelData const before(model);
  auto const items = SelectByOptions(model, SelNode, arguments, result);
  auto const others = Select(model, SelNode, arguments.Text("--with"), "--with");
  double const tolerance = ToleranceOf(model, arguments, result);
  auto tool =
      SearchIn(model, Union(items, others), tolerance, CoincidenceStageOf(model, arguments));
  tool.SetOption(OptionOf(arguments.Text("--properties")));
  std::vector<std::pair<int, int>> pairs;
  result.did = tool.Do(items, pairs);
  if (pairs.empty()) return;
  auto const survivors = SurvivorsOf(pairs);
  result.maps["Node"].assign(survivors.begin(), survivors.end());
  WarnOfMoves(before, survivors, tolerance, result);
  WarnOfFewerLoadedNodes(before, model, result);
  if (model.AnyResults())
    result.warnings.push_back(
        {"stale-results", "", 0, "results still stand under the numbers before the merge"});
}

void JoinNodes(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const items = SelectByOptions(model, SelNode, arguments, result);
  auto const others = Select(model, SelNode, arguments.Text("--with"), "--with");
  auto tool = SearchIn(model, Union(items, others), ToleranceOf(model, arguments, result),
                       CoincidenceStageOf(model, arguments));
  tool.SetOption(CReduceCoinc::OptionJoint);
  int const first = model.HighestJoint() + 1;
  std::vector<std::pair<int, int>> pairs;
  result.did = tool.Do(items, pairs);
  std::set<int> joined;
  for (int n = first; n <= model.HighestJoint(); ++n)
    joined.insert({model.Joint(n).PrimaryNode(), model.Joint(n).ConstrainedNode()});
  auto left = items;
  for (int const n : joined) left.RemoveFrom(n);
  for (auto const& [n, other] : tool.FindAllCoinc(left))
    result.undone.push_back(
        {"Node", n,
         "it or node " + std::to_string(other) + ", which coincides with it, is in a constraint"});
}

// Finding.

/// Two entities, the lower number first, that a search brought together.
using FoundPairs = std::set<std::pair<int, int>>;

void ReportPairs(std::string const& kind, FoundPairs const& pairs, std::string const& what,
                 CommandResult& result) {
  result.result = std::make_shared<Json>(
      Json{{"kind", kind},
           {"count", pairs.size()},
           {"pairs", std::vector<std::pair<int, int>>(pairs.begin(), pairs.end())}});
  for (auto const& [a, b] : pairs) {
    result.text += kind;
    result.text += " " + std::to_string(a) + " ";
    result.text += what;
    result.text += " " + std::to_string(b) + "\n";
  }
  result.text += Counted(pairs.size(), "pair") + "\n";
  result.did = !pairs.empty();
  result.lookAt = !pairs.empty();
}

template <class Find>
FoundPairs PairsOf(Util::CSet const& set, Find&& find) {
  FoundPairs pairs;
  for (int const n : set)
    if (int const other = find(n); other != 0) pairs.insert(std::minmax(n, other));
  return pairs;
}

void FindCoincident(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const& kind = arguments.Text("--kind");
  auto const set = SelectByOptions(model, KindOf(kind), arguments, result);
  int const stage = CoincidenceStageOf(model, arguments);
  auto const tool = SearchIn(model, set, ToleranceOf(model, arguments, result), stage);
  FoundPairs pairs;
  for (auto const& [n, other] : tool.FindAllCoinc(set)) pairs.insert(std::minmax(n, other));
  ReportPairs(kind, pairs, "and", result);
}

void FindOverlaps(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const& kind = arguments.Text("--kind");
  auto const set = SelectByOptions(model, KindOf(kind), arguments, result);
  auto const tool = SearchIn(model, set, ToleranceOf(model, arguments, result), 0);
  ReportPairs(kind, PairsOf(set, [&](int n) { return tool.FindCoinc(n, true); }), "overlaps",
              result);
}

/// The 1D entities of a set.
Util::CSet LinesOf(CZelData const& model, Util::CSet const& set) {
  Util::CSet lines(set.TypeOf());
  for (int const n : set)
    if (model.EntIs1D({set.TypeOf(), n})) lines.AddTo(n);
  return lines;
}

void FindCrossing(CZelData& model, Arguments const& arguments, CommandResult& result) {
  constexpr double kCrossing = 0.001;  // the search has a distance of its own
  auto const& kind = arguments.Text("--kind");
  auto const lines = LinesOf(model, SelectByOptions(model, KindOf(kind), arguments, result));
  auto tool = SearchIn(model, lines, kCrossing, 0);
  result.tolerances.push_back({"crossing", kCrossing, "m"});
  ReportPairs(kind, PairsOf(lines, [&](int n) { return tool.FindCross(n); }), "crosses", result);
}

void FindUnconnected(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const lines = LinesOf(model, SelectByOptions(model, SelElement, arguments, result));
  CReduceCoinc tool(model, 0, 0);
  tool.SetSearchSet(lines, CReduceCoinc::kTakeSet);
  Util::CSet found(SelElement);
  for (int const n : lines)
    if (tool.FindUnconnect(n) != 0) found.AddTo(n);
  auto const count = static_cast<std::size_t>(found.NumItem());
  result.result =
      std::make_shared<Json>(Json{{"kind", "element"},
                                  {"count", count},
                                  {"numbers", std::vector<int>(found.begin(), found.end())}});
  result.text = Counted(count, "unconnected element");
  if (count > 0) result.text += ": " + found.String().ToUtf8();
  result.text += "\n";
  result.did = count > 0;
  result.lookAt = count > 0;
}

constexpr std::array kCoincidenceCommands{
    Command{"merge-nodes", "merge nodes that coincide, with every reference to them", kMergeOptions,
            CommandKind::Changes, &MergeNodes},
    Command{"join-nodes", "tie nodes that coincide by joints", kJoinOptions, CommandKind::Changes,
            &JoinNodes},
    Command{"find-coincident", "find nodes at one place, elements and members on the same nodes",
            kCoincidentOptions, CommandKind::Reads, &FindCoincident},
    Command{"find-overlaps",
            "find lines along one another and plates over one another; solids "
            "count as plates on their first nodes",
            kOverlapOptions, CommandKind::Reads, &FindOverlaps},
    Command{"find-crossing", "find lines that cross between their ends", kCrossingOptions,
            CommandKind::Reads, &FindCrossing},
    Command{"find-unconnected", "find 1D elements that hang on nothing", kUnconnectedOptions,
            CommandKind::Reads, &FindUnconnected},
};

}  // namespace

std::span<Command const> CoincidenceCommands() { return kCoincidenceCommands; }

}  // namespace Tarvex::Workbench
