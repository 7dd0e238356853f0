#include "workbench/commands/slabs.h"

#include <array>
#include <map>
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
           "for --mode radius, above 0: greatest distance in m from the column to the centre of an "
           "element",
           0},
    Option{"--overwrite", "", ValueKind::Flag, "",
           "treat ends that are in a rigid constraint too, and replace the one that they lead"}};

constexpr std::array kMergedRigidsOptions{
    Option{"--stage", "N", ValueKind::Integer, "0",
           "number of the analysis stage, 0 for the model without stages", 0}};

/// The rigid constraints that came or changed since, by the node that leads them.
std::map<int, int> WrittenByPrimary(CZelData const& before, CZelData const& after) {
  std::map<int, int> written;
  for (int n = 1; n <= after.HighestRigid(); ++n)
    if (n > before.HighestRigid() || !(after.Rigid(n) == before.Rigid(n)))
      written.emplace(after.Rigid(n).PrimaryNode(), n);
  return written;
}

/// The columns with an end that the tool passed over, since its node is in a rigid constraint; but
/// for nodes that this run gave one of their own, such as the head of the column below.
void ReportHeldEnds(CConnectSlab const& tool, std::map<int, int> const& written,
                    CommandResult& result) {
  std::set<std::pair<int, int>> ends;
  for (auto const& [column, node] : tool.PassedOver())
    if (!written.contains(node)) ends.emplace(column, node);
  for (auto const& [column, node] : ends)
    result.undone.push_back(
        {"Elem", column, "node " + std::to_string(node) + " is in a rigid constraint already"});
}

/// Warns of constraints of this run whose own node another constraint holds: many solvers refuse a
/// node that leads and is held at once.
void WarnOfHeldPrimaries(CZelData const& model, std::map<int, int> const& written,
                         CommandResult& result) {
  std::map<int, int> holders;  // by node, the first one
  for (int n = 1; n <= model.HighestRigid(); ++n) {
    auto const& rigid = model.Rigid(n);
    for (int const node : Util::Item(rigid.ConstrainedNodes(), model))
      if (node != rigid.PrimaryNode() && written.contains(node)) holders.try_emplace(node, n);
  }
  for (auto const& [node, holder] : holders) {
    int const number = written.at(node);
    result.warnings.push_back(
        {"primary-node-held", "Rigid", number,
         "rigid constraint " + std::to_string(number) + ": node " + std::to_string(node) +
             ", which leads it, is held by rigid constraint " + std::to_string(holder) + " too"});
    result.lookAt = true;
  }
}

void ConnectSlab(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const mode = ModeNamed(arguments.Text("--mode"));
  double const radius = arguments.Number("--radius");
  if (mode == ConnectMode::WithinRadius && radius == 0)
    throw UsageError("--radius: give a distance above 0 for --mode radius");
  if (mode != ConnectMode::WithinRadius && radius != 0)
    throw UsageError("--radius goes with --mode radius");
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  CZelData const before(model);
  CConnectSlab tool(model);
  tool.SetSet(set);
  tool.SetMode(mode);
  tool.SetRadius(radius);
  tool.SetOverwrite(arguments.Flag("--overwrite"));
  result.did = tool.Do();
  auto const written = WrittenByPrimary(before, model);
  ReportHeldEnds(tool, written, result);
  WarnOfHeldPrimaries(model, written, result);
  if (mode == ConnectMode::WithinRadius) result.tolerances.push_back({"radius", radius, "m"});
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
                             "rigid constraint " + std::to_string(number) + ": node " +
                                 std::to_string(former) +
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
