#include "workbench/commands/refinement.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "store/record/element.h"
#include "store/record/node.h"
#include "store/text/cstring.h"
#include "tarvex/data_mgr.h"
#include "tarvex/refinement.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/selection.h"
#include "workbench/commands/shaped_loads.h"
#include "workbench/commands/unlisted_pieces.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;
using Pieces = std::map<int, std::vector<int>>;

constexpr std::array kRefineOptions{
    Option{"--list", "TEXT", ValueKind::Text, "", "the nodes to refine around, as a list text"},
    Option{"--ratio", "R", ValueKind::Number, "0.2",
           "where inner points lie on the way from the centre of an element to the node, from 0 to "
           "below 1",
           0},
    Option{"--tol", "L", ValueKind::Number, "0.001",
           "a node within this distance in m of a new one is taken instead", 0},
    Option{"--sid", "TEXT", ValueKind::Text, "",
           "refine elements with this identifier only, and give it to new nodes"}};

// From these ratios on the inner point stands before its neighbours, and the piece at the corner
// folds over.
constexpr double kFoldedPlate = 1.0 / 2;
constexpr double kFoldedBrick = 1.0 / 3;

/// Why an element at a node was left alone.
std::string WhyLeft(CZelData const& model, Data::CElement const& element, int node,
                    CString const& sid) {
  if (element.IsDummy()) return "it is a dummy";
  if (sid != CString(L"") && element.Sid() != sid) return "it has another identifier";
  for (int const each : element.Topology())
    if (!model.NodeExist(each)) return "a node of its topology does not exist";
  bool corner = false;
  for (int i = 0; i < element.Shape().corners; ++i) corner = corner || element.Topo(i) == node;
  return corner ? "elements of its shape are not refined" : "the node is in the middle of its side";
}

void ReportLeft(CZelData const& model, int node, CString const& sid, Pieces const& pieces,
                CommandResult& result) {
  for (int const n : model.Node(node).AttachedEnt(SelElement)) {
    if (!model.ElemExist(n) || pieces.contains(n)) continue;
    auto const& element = model.Elem(n);
    bool const made = std::any_of(pieces.begin(), pieces.end(), [&](auto const& row) {
      return std::find(row.second.begin(), row.second.end(), n) != row.second.end();
    });
    if (!made && (element.Is2D() || element.Is3D()))
      result.undone.push_back({"Elem", n, WhyLeft(model, element, node, sid)});
  }
}

void WarnOfFolds(CZelData const& model, double ratio, Pieces const& pieces, CommandResult& result) {
  for (auto const& [n, made] : pieces) {
    auto const& element = model.Elem(n);
    bool const folded =
        element.Is3D() ? ratio >= kFoldedBrick : element.IsQuad() && ratio >= kFoldedPlate;
    if (folded)
      result.warnings.push_back({"folded-piece", "Elem", made.front(),
                                 "element " + std::to_string(made.front()) +
                                     " folds over at this ratio: take one below " +
                                     (element.Is3D() ? "1/3" : "1/2")});
  }
}

/// Gives loads and references to the pieces and removes the elements.
void Replace(CZelData& model, Pieces const& pieces, CommandResult& result) {
  Util::CSet elements(SelElement);
  Pieces plates;
  Pieces solids;
  for (auto const& [n, made] : pieces) {
    elements.AddTo(n);
    (model.Elem(n).Is2D() ? plates : solids)[n] = made;
  }
  WriteOutShapedLoads(model, elements);
  CDataMgr const manager(model);
  bool const ofPlates = manager.Map2DLoading(plates);
  bool const ofSolids = manager.Map3DLoading(solids);
  if (!ofPlates || !ofSolids) {
    result.messages.push_back(
        "some loads could not be mapped: a value or a co-ordinate is not usable");
    result.lookAt = true;
  }
  manager.ReplaceElemRef(pieces, true);
  for (auto const& [n, made] : pieces) model.BlankElem(n, 1);
}

void Refine(CZelData& model, Arguments const& arguments, CommandResult& result) {
  if (arguments.Text("--list").empty()) throw UsageError("--list: give the nodes to refine around");
  double const ratio = arguments.Number("--ratio");
  if (ratio >= 1) throw UsageError("--ratio: '" + arguments.Text("--ratio") + "' is not below 1");
  double const tolerance = arguments.Number("--tol");
  CString const sid = CString::FromUtf8(arguments.Text("--sid"));
  auto const nodes = SelectByOptions(model, SelNode, arguments, result);
  CZelData const before(model);
  Json rows = Json::array();
  for (int const node : nodes) {
    Pieces pieces;
    if (ZelUtil::RefineMeshAtNode(model, node, ratio, tolerance, pieces, sid)) result.did = true;
    ReportLeft(model, node, sid, pieces, result);
    WarnOfFolds(model, ratio, pieces, result);
    Replace(model, pieces, result);
    for (auto const& [n, made] : pieces) rows.push_back(Json::array({n, made}));
  }
  result.text = std::to_string(rows.size()) + " elements refined\n";
  result.result = std::make_shared<Json>(Json{{"pieces", std::move(rows)}});
  result.tolerances.push_back({"coincidence", tolerance, "m"});
  WarnOfUnlistedPieces(before, model, result);
}

constexpr std::array kRefinementCommands{
    Command{"refine", "make the mesh of plates and bricks finer around nodes, loads with it",
            kRefineOptions, CommandKind::Changes, &Refine}};

}  // namespace

std::span<Command const> RefinementCommands() { return kRefinementCommands; }

}  // namespace Tarvex::Workbench
