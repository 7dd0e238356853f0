#include "workbench/commands/disconnect.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "store/model/list_expansion.h"
#include "store/record/block.h"
#include "store/record/element.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/select/numbers.h"
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

constexpr long long kMostCopies = 10'000;  // without --yes

constexpr std::array kExplodeBlocksOptions{
    Option{"--list", "TEXT", ValueKind::Text, "all", "the numbers of the blocks, as a list text"},
    Option{"--yes", "", ValueKind::Flag, "false", "make more than 10000 members"}};

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
         "node " + std::to_string(n) +
             ": the spring, mass or damper of the node that it was parted from stands at both"});
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
  auto const member = "member " + std::to_string(number);
  if (springs > 0 && before.MemberExist(number)) warn(member + " was replaced by a spring");
  if (springs > 1)
    warn(Counted(static_cast<std::size_t>(springs), "spring") + " came in the place of " + member +
         " one after the other: the last one is left");
}

/// The elements and panels of a set by node; for a set of nodes all that are there.
std::map<int, std::set<int>> UsersByNode(CZelData const& model, Util::CSet const& set) {
  std::map<int, std::set<int>> users;
  for (int const n : set) {
    if (set.TypeOf() == SelNode) {
      auto const& attached = model.Node(n).AttachedEnt(SelElement);
      users[n].insert(attached.begin(), attached.end());
    } else if (auto const view = model.VariantElement(n)) {
      for (int const node : view->Topology())
        if (model.NodeExist(node)) users[node].insert(n);
    }
  }
  return users;
}

/// Reports the load panels that keep a node which they share with others that are disconnected.
void ReportPanels(CZelData const& model, Util::CSet const& set, CommandResult& result) {
  std::set<int> panels;
  for (auto const& [node, users] : UsersByNode(model, set)) {
    if (users.size() < 2) continue;
    std::copy_if(users.begin(), users.end(), std::inserter(panels, panels.end()),
                 [&](int user) { return model.LoadPanelExist(user); });
  }
  for (int const n : panels)
    result.undone.push_back({"LoadPanel", n, "load panels are passed over"});
}

void Disconnect(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const kind = KindOf(arguments.Text("--kind"));
  auto const partsAtNodes = KindOf(arguments.Text("--parts"));
  if (kind != SelNode && arguments.IsGiven("--parts"))
    throw UsageError("--parts goes with --kind node");
  auto const set = SelectByOptions(model, kind, arguments, result);
  auto const parts = kind == SelNode ? partsAtNodes : kind;
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
  Util::CSet unflagged;
  Json released = Json::array();
  MemberEdges tool(model);
  for (int const n : set) {
    if (model.Member(n).Is2D() && !model.Member(n).ReleaseEdges()) unflagged.AddTo(n);
    int const highest = model.HighestNode();
    tool.ReleaseEdges(n);
    if (model.HighestNode() > highest)
      released.push_back({{"member", n}, {"newNodes", From(highest + 1, model.HighestNode())}});
  }
  if (!unflagged.IsEmpty())
    result.warnings.push_back(
        {"not-flagged", "Member", *unflagged.begin(),
         "2D members not flagged for the release of edges: " + unflagged.String().ToUtf8()});
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
  // A step stands for the lowest element between its nodes: one beside it is left out.
  for (int const n : lines)
    if (steps.erase({model.Elem(n).Topo(0), model.Elem(n).Topo(1)}) == 0) leftOut.push_back(n);
  for (int const n : leftOut) result.undone.push_back({"Elem", n, "it does not join on"});
  result.text = Counted(chain.size(), "node") + (chain.empty() ? "" : ":");
  for (int const n : chain) result.text += " " + std::to_string(n);
  result.text += "\n";
  for (int const n : leftOut) result.text += "element " + std::to_string(n) + " does not join on\n";
  result.result = std::make_shared<Json>(Json{
      {"nodes", Numbers(chain.begin(), chain.end())}, {"elements", lines}, {"leftOut", leftOut}});
  result.did = !chain.empty();
}

/// What an explosion makes before nodes are merged, counted up to kManyCopies.
struct BlockCopies {
  long long members = 0;
  long long nodes = 0;
};
constexpr long long kManyCopies = 1'000'000'000'000'000;

long long CappedTimes(long long a, long long b) {
  return b != 0 && a > kManyCopies / b ? kManyCopies : std::min(a * b, kManyCopies);
}
long long CappedPlus(long long a, long long b) { return std::min(a + b, kManyCopies); }

/// From the counts of the steps, without a list of the places.
long long MostPlaces(Data::CReplica const& replica) {
  long long places = 1;  // that of the original among them
  for (auto const& step : replica.Steps()) places = CappedTimes(places, step.count + 1LL);
  return places - 1;
}

BlockCopies BlockCopiesOf(CZelData const& model, Numbers const& blocks) {
  BlockCopies copies;
  for (int const n : blocks) {
    auto const places = MostPlaces(model.Block(n).Replica());
    for (int const member : model.Block(n).Members()) {
      if (!model.MemberExist(member)) continue;
      auto const nodes = model.Member(member).Topo().Nodes();
      copies.members = CappedPlus(copies.members, places);
      copies.nodes =
          CappedPlus(copies.nodes, CappedTimes(places, static_cast<long long>(nodes.size())));
    }
  }
  return copies;
}

/// Refuses more copies than are asked for, and more than there are numbers for.
void RequireRoom(CZelData const& model, BlockCopies const& copies, bool yes) {
  auto const text = "up to " + std::to_string(copies.members) + " members and " +
                    std::to_string(copies.nodes) + " nodes would be made: ";
  if (model.HighestMember() + copies.members > kHighestNumber ||
      model.HighestNode() + copies.nodes > kHighestNumber)
    throw Refusal(text + "numbers end at " + std::to_string(kHighestNumber));
  if (copies.members > kMostCopies && !yes)
    throw Refusal(text + "more than " + std::to_string(kMostCopies) + " members only with --yes");
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
  RequireRoom(model, BlockCopiesOf(model, blocks), arguments.Flag("--yes"));
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
