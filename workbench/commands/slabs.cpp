#include "workbench/commands/slabs.h"

#include <array>
#include <nlohmann/json.hpp>
#include <set>

#include "store/model/list_expansion.h"
#include "store/record/element.h"
#include "store/record/rigid.h"
#include "tarvex/connect_slab.h"
#include "tarvex/merge_rigid.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/selection.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

struct ModeWord {
  std::string_view word;
  ConnectMode mode;
};
constexpr std::array kModeWords{ModeWord{"all", ConnectMode::AllAttached},
                                ModeWord{"section", ConnectMode::WithinSection},
                                ModeWord{"radius", ConnectMode::WithinRadius}};

ConnectMode ModeNamed(std::string_view word) {
  for (auto const& row : kModeWords)
    if (row.word == word) return row.mode;
  return ConnectMode::AllAttached;
}

constexpr std::array kConnectSlabOptions{
    Option{"--list", "TEXT", ValueKind::Text, "all",
           "the elements to take columns from, as a list text"},
    Option{
        "--mode", "all|section|radius", ValueKind::Choice, "all",
        "which slab elements at the end of a column are tied: all of them, those within a quarter "
        "of the area of the box around its section, or those within a radius"},
    Option{"--radius", "M", ValueKind::Number, "0",
           "for --mode radius: greatest distance in m from the column to the centre of an element",
           0},
    Option{"--overwrite", "", ValueKind::Flag, "",
           "treat ends that are in a rigid constraint too, and replace the one that they lead"}};

constexpr std::array kMergedRigidsOptions{
    Option{"--stage", "N", ValueKind::Integer, "0",
           "number of the analysis stage, 0 for the model without stages", 0}};

/// The nodes that lead a rigid constraint or are held by one.
std::set<int> RigidNodes(CZelData const& model) {
  std::set<int> nodes;
  for (auto const& rigid : model.Rigid()) {
    nodes.insert(rigid.PrimaryNode());
    for (int const node : Util::Item(rigid.ConstrainedNodes(), model)) nodes.insert(node);
  }
  return nodes;
}

/// The columns with an end that the tool passes over, since its node is in a rigid constraint.
void ReportHeldEnds(CZelData const& model, Util::CSet const& set, CommandResult& result) {
  auto const held = RigidNodes(model);
  for (int const n : set) {
    if (!model.ElemExist(n) || !model.Elem(n).IsBeam() || !model.ElemIsVertical(n)) continue;
    for (int const node : {model.Elem(n).Topo(0), model.Elem(n).Topo(1)})
      if (held.contains(node))
        result.undone.push_back(
            {"Elem", n, "node " + std::to_string(node) + " is in a rigid constraint already"});
  }
}

void ConnectSlab(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  auto const mode = ModeNamed(arguments.Text("--mode"));
  bool const overwrite = arguments.Flag("--overwrite");
  if (!overwrite) ReportHeldEnds(model, set, result);
  CConnectSlab tool(model);
  tool.SetSet(set);
  tool.SetMode(mode);
  tool.SetRadius(arguments.Number("--radius"));
  tool.SetOverwrite(overwrite);
  result.did = tool.Do();
  if (mode == ConnectMode::WithinRadius)
    result.tolerances.push_back({"radius", arguments.Number("--radius"), "m"});
  result.result = std::make_shared<Json>(
      Json{{"ends", tool.NumItem(1)}, {"connected", tool.NumItem(2)}, {"rigids", tool.NumItem(3)}});
}

Json RigidJson(CZelData const& model, int number) {
  auto const& rigid = model.Rigid(number);
  auto const nodes = Util::MakeSet(rigid.ConstrainedNodes(), model);
  return {{"number", number},
          {"type", static_cast<int>(rigid.TypeOf())},
          {"primaryNode", rigid.PrimaryNode()},
          {"nodes", nodes.String().ToUtf8()}};
}

/// Warns where a node that led a constraint is not held by it any more, since a restrained one of
/// another constraint leads the merged one.
void WarnOfLostPrimary(CZelData const& before, CZelData const& after, int number,
                       CommandResult& result) {
  int const former = before.Rigid(number).PrimaryNode();
  auto const& rigid = after.Rigid(number);
  if (rigid.PrimaryNode() == former ||
      Util::IsItemIncluded(rigid.ConstrainedNodes(), {SelNode, former}, after))
    return;
  result.warnings.push_back({"primary-node-lost", "Rigid", number,
                             "node " + std::to_string(former) +
                                 " leads it no more and is not among its constrained nodes"});
  result.lookAt = true;
}

void MergedRigids(CZelData& model, Arguments const& arguments, CommandResult& result) {
  int const stage = arguments.Integer("--stage");
  if (stage > 0 && !model.AnalStageExist(stage))
    throw Refusal("stage " + std::to_string(stage) + " does not exist");
  CZelData const before(model);
  MergeRigid merged(model);
  merged.Merge(stage);
  int acting = 0;
  Json rigids = Json::array();
  Json away = Json::array();
  for (int n = 1; n <= model.HighestRigid(); ++n) {
    acting += before.RigidIsActive(before.Rigid(n), stage) ? 1 : 0;
    if (model.RigidIsActive(model.Rigid(n), stage)) {
      rigids.push_back(RigidJson(model, n));
      WarnOfLostPrimary(before, model, n, result);
    } else if (before.RigidIsActive(before.Rigid(n), stage)) {
      away.push_back(n);
    }
  }
  result.text = Counted(static_cast<std::size_t>(acting), "rigid constraint") + " in stage " +
                std::to_string(stage) + ", " + std::to_string(rigids.size()) + " when merged\n";
  for (auto const& rigid : rigids)
    result.text += std::to_string(rigid.at("number").get<int>()) + ": node " +
                   std::to_string(rigid.at("primaryNode").get<int>()) + " leads " +
                   rigid.at("nodes").get<std::string>() + "\n";
  result.result = std::make_shared<Json>(
      Json{{"stage", stage}, {"before", acting}, {"rigids", rigids}, {"mergedAway", away}});
  result.did = !away.empty();
}

constexpr std::array kSlabCommands{
    Command{"connect-slab",
            "tie slab elements to the heads and feet of columns by rigid constraints",
            kConnectSlabOptions, CommandKind::Changes, &ConnectSlab},
    Command{"merged-rigids",
            "tell the rigid constraints that a stage sees when those that touch are merged",
            kMergedRigidsOptions, CommandKind::Reads, &MergedRigids},
};

}  // namespace

std::span<Command const> SlabCommands() { return kSlabCommands; }

}  // namespace Tarvex::Workbench
