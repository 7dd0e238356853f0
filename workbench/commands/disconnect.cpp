#include "workbench/commands/disconnect.h"

#include <array>
#include <nlohmann/json.hpp>
#include <set>

#include "store/model/list_expansion.h"
#include "store/record/block.h"
#include "store/record/element.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tarvex/disconnect.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/selection.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;
using Numbers = std::vector<int>;

constexpr int kItemItself = -1;  // place of an item in a set that means the item

constexpr std::array kDisconnectOptions{
    Option{"--list", "TEXT", ValueKind::Text, "all",
           "the nodes, elements or members to disconnect, as a list text"},
    Option{"--kind", "node|element|member", ValueKind::Choice, "element", "what the list names"},
    Option{"--parts", "element|member", ValueKind::Choice, "element",
           "for --kind node: what is given nodes of its own there"},
    Option{"--joint", "", ValueKind::Flag, "", "tie each new node to the old one by a joint"},
    Option{"--spring", "", ValueKind::Flag, "",
           "tie each new node to the old one by a spring without stiffness"},
    Option{"--full", "", ValueKind::Flag, "",
           "give all of them new nodes; else the lowest number keeps the old one"}};

constexpr std::array kReleaseEdgesOptions{
    Option{"--list", "TEXT", ValueKind::Text, "all", "the members, as a list text"}};

constexpr std::array kChainOptions{Option{"--list", "TEXT", ValueKind::Text, "all",
                                          "the 1D elements, which run end to end, as a list text"}};

constexpr std::array kExplodeBlocksOptions{
    Option{"--list", "TEXT", ValueKind::Text, "all", "the numbers of the blocks, as a list text"}};

Numbers From(int first, int last) {
  Numbers numbers;
  for (int n = first; n <= last; ++n) numbers.push_back(n);
  return numbers;
}

/// Warns of new nodes that brought a spring, mass or damper along: it stands at both nodes now.
void WarnOfCopiedProperties(CZelData const& model, int firstNew, CommandResult& result) {
  for (int n = firstNew; n <= model.HighestNode(); ++n) {
    auto const& node = model.Node(n);
    if (node.SpringProperty() <= 0 && node.MassProperty() <= 0 && node.DamperProperty() <= 0)
      continue;
    result.warnings.push_back(
        {"copied-property", "Node", n,
         "the spring, mass or damper of the node that it was parted from stands at both"});
    result.lookAt = true;
  }
}

/// Warns of members that springs of members took the place of.
void WarnOfReplacedMembers(CZelData const& before, CZelData const& after, CommandResult& result) {
  int const springs = after.HighestSpringProp() - before.HighestSpringProp();
  int const number = before.HighestElem() + 1;  // that of every spring
  auto const warn = [&](std::string const& text) {
    result.warnings.push_back({"member-replaced", "Member", number, text});
    result.lookAt = true;
  };
  if (springs > 0 && before.MemberExist(number)) warn("it was replaced by a spring");
  if (springs > 1)
    warn(Counted(static_cast<std::size_t>(springs), "spring") +
         " came under this number one after the other: the last one is left");
}

/// Reports the load panels that keep their nodes: those of a set of elements, and those at nodes.
void ReportPanels(CZelData const& model, Util::CSet const& set, CommandResult& result) {
  std::set<int> panels;
  for (int const n : set) {
    if (set.TypeOf() == SelElement && model.LoadPanelExist(n)) panels.insert(n);
    if (set.TypeOf() != SelNode) continue;
    for (int const e : model.Node(n).AttachedEnt(SelElement))
      if (model.LoadPanelExist(e)) panels.insert(e);
  }
  for (int const n : panels)
    result.undone.push_back({"LoadPanel", n, "load panels are passed over"});
}

void Disconnect(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const kind = KindOf(arguments.Text("--kind"));
  auto const set = SelectByOptions(model, kind, arguments, result);
  auto const parts = kind == SelNode ? KindOf(arguments.Text("--parts")) : kind;
  if (parts == SelElement) ReportPanels(model, set, result);
  CZelData const before(model);
  Util::CTopoSet items(kind);
  for (int const n : set) items.AddTo(n, kItemItself);
  CDisconnect tool(model);
  tool.SetCreateJoint(arguments.Flag("--joint"));
  tool.SetCreateSpring(arguments.Flag("--spring"));
  tool.SetFullDisconnect(arguments.Flag("--full"));
  result.did =
      kind == SelNode ? tool.DisconnectNode(parts, &items) : tool.DisconnectEntity(kind, &items);
  WarnOfCopiedProperties(model, before.HighestNode() + 1, result);
  if (parts == SelMember) WarnOfReplacedMembers(before, model, result);
  result.result = std::make_shared<Json>(
      Json{{"newNodes", model.HighestNode() - before.HighestNode()},
           {"joints", model.HighestJoint() - before.HighestJoint()},
           {"springs", model.HighestSpringProp() - before.HighestSpringProp()}});
}

void ReleaseEdges(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelMember, arguments, result);
  int const firstNew = model.HighestNode() + 1;
  std::size_t unflagged = 0;
  Json released = Json::array();
  MemberEdges tool(model);
  for (int const n : set) {
    if (model.Member(n).Is2D() && !model.Member(n).ReleaseEdges()) ++unflagged;
    int const highest = model.HighestNode();
    tool.ReleaseEdges(n);
    if (model.HighestNode() > highest)
      released.push_back({{"member", n}, {"newNodes", From(highest + 1, model.HighestNode())}});
  }
  if (unflagged > 0)
    result.warnings.push_back({"not-flagged", "Member", 0,
                               Counted(unflagged, "2D member") +
                                   " of the selection not flagged for the release of edges"});
  WarnOfCopiedProperties(model, firstNew, result);
  result.did = !released.empty();
  result.result = std::make_shared<Json>(Json{{"released", released}});
}

void Chain(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  Numbers lines;
  for (int const n : set)
    if (model.ElemExist(n) && model.Elem(n).Is1D()) lines.push_back(n);
  auto const chain = NodesChain(model, lines);
  std::set<std::pair<int, int>> steps;
  for (std::size_t i = 1; i < chain.size(); ++i) steps.emplace(chain[i - 1], chain[i]);
  Numbers leftOut;
  for (int const n : lines)
    if (!steps.contains({model.Elem(n).Topo(0), model.Elem(n).Topo(1)})) leftOut.push_back(n);
  for (int const n : leftOut) result.undone.push_back({"Elem", n, "it does not join on"});
  result.text = Counted(chain.size(), "node") + (chain.empty() ? "" : ":");
  for (int const n : chain) result.text += " " + std::to_string(n);
  result.text += "\n";
  for (int const n : leftOut) result.text += "element " + std::to_string(n) + " does not join on\n";
  result.result = std::make_shared<Json>(Json{
      {"nodes", Numbers(chain.begin(), chain.end())}, {"elements", lines}, {"leftOut", leftOut}});
  result.did = !chain.empty();
}

void Explode(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const& text = arguments.Text("--list");
  auto const list = ListOf(SelNone, text);
  Numbers blocks;
  for (int const n : Util::Item(list, model, model.HighestBlock())) {
    if (!model.BlockExist(n)) continue;
    blocks.push_back(n);
    for (int const member : model.Block(n).Members())
      if (!model.MemberExist(member))
        result.undone.push_back(
            {"Block", n, "member " + std::to_string(member) + " does not exist"});
  }
  if (blocks.empty())
    result.warnings.push_back({"empty-selection", "", 0, "'" + text + "' selects no block"});
  int const firstNew = model.HighestMember() + 1;
  Data::CEntList members(SelMember, CString());
  ExplodeBlocks(model, list, members);
  result.did = !blocks.empty();
  result.tolerances.push_back({"coincidence", model.Spec().GenTol(TolType::Coincidence), "m"});
  result.result = std::make_shared<Json>(Json{{"blocks", blocks},
                                              {"newMembers", From(firstNew, model.HighestMember())},
                                              {"toMesh", members.String().ToUtf8()}});
}

constexpr std::array kDisconnectCommands{
    Command{"disconnect", "give elements or members that share nodes nodes of their own",
            kDisconnectOptions, CommandKind::Changes, &Disconnect},
    Command{"release-edges", "pin the edges of 2D members that are flagged for it",
            kReleaseEdgesOptions, CommandKind::Changes, &ReleaseEdges},
    Command{"chain", "tell the nodes of 1D elements that run end to end, in order", kChainOptions,
            CommandKind::Reads, &Chain},
    Command{"explode-blocks", "turn repeated blocks into members of their own",
            kExplodeBlocksOptions, CommandKind::Changes, &Explode},
};

}  // namespace

std::span<Command const> DisconnectCommands() { return kDisconnectCommands; }

}  // namespace Tarvex::Workbench
