#include "workbench/commands/conversion.h"

#include <array>
#include <nlohmann/json.hpp>

#include "store/record/element.h"
#include "tarvex/conversion.h"
#include "workbench/commands/lost_loads.h"
#include "workbench/commands/selection.h"
#include "workbench/commands/shaped_loads.h"
#include "workbench/commands/unlisted_pieces.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array kPlateOptions{
    Option{"--list", "TEXT", ValueKind::Text, "all", "the elements to work on, as a list text"}};

/// Distance within which new mid-side nodes become nodes that stand there, m.
constexpr double kMiddleTolerance = 1e-5;

bool IsLinearPlate(Data::CElement const& element) {
  return element.Type() == ElementType::Quad4 || element.Type() == ElementType::Tri3;
}
/// Whether a plate has the nodes of a quadrilateral: the cutting tools go by them and not by the
/// type.
bool IsQuadPlate(Data::CElement const& element) {
  return element.Is2D() && (element.NumTopo() == 4 || element.NumTopo() == 8);
}

/// The elements of a set that pass a test.
template <class Test>
Util::CSet Those(CZelData const& model, Util::CSet const& set, Test&& test) {
  Util::CSet found(SelElement);
  for (int const n : set)
    if (model.ElemExist(n) && test(model.Elem(n))) found.AddTo(n);
  return found;
}

/// Reports the elements of which a node is missing.
void ReportMissingNodes(CZelData const& model, Util::CSet const& elements, CommandResult& result) {
  for (int const n : elements)
    for (int const node : model.Elem(n).Topology())
      if (!model.NodeExist(node)) {
        result.undone.push_back({"Elem", n, "a node of its topology does not exist"});
        break;
      }
}

template <class Tool>
void RunTool(CZelData& model, Util::CSet const& set, CommandResult& result) {
  Tool tool(model);
  tool.SetSet(set);
  result.did = tool.Do();
}

void ToLinear(CZelData& model, Arguments const& arguments, CommandResult& result) {
  RunTool<CMod2DToLinear>(model, SelectByOptions(model, SelElement, arguments, result), result);
}

void ToQuadratic(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  ReportMissingNodes(model, Those(model, set, &IsLinearPlate), result);
  RunTool<CMod2DToQuadratic>(model, set, result);
  result.tolerances.push_back({"coincidence", kMiddleTolerance, "m"});
}

/// Tells what became of the elements that were cut: old number, then its pieces.
void TellPieces(std::map<int, std::vector<int>> const& pieces, CommandResult& result) {
  Json rows = Json::array();
  for (auto const& [n, made] : pieces) rows.push_back(Json::array({n, made}));
  result.text += Counted(pieces.size(), "element") + " cut\n";
  result.result = std::make_shared<Json>(Json{{"pieces", std::move(rows)}});
}

void ToTriangles(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  CZelData const before(model);
  auto const quads = Those(model, set, &IsQuadPlate);
  LoadMarks const marks(model);
  CZelData const marked(model);
  WriteOutShapedLoads(model, quads);
  int next = model.HighestElem() + 1;
  RunTool<CMod2DToTriangle>(model, set, result);
  ReportMissingNodes(model, Those(model, quads, &IsQuadPlate), result);
  std::map<int, std::vector<int>> pieces;
  for (int const n : quads) {
    if (model.ElemExist(n)) continue;
    pieces[n] = {next, next + 1};
    next += 2;
  }
  LoadMarks::ReportLost(marked, model, pieces, result);
  marks.TakeOff(model);
  TellPieces(pieces, result);
  WarnOfUnlistedPieces(before, model, result);
}

void CutWarped(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  CZelData const before(model);
  auto const quads = Those(model, set, &IsQuadPlate);
  ReportMissingNodes(model, quads, result);
  int next = model.HighestElem() + 1;
  RunTool<CWarpElem2D>(model, set, result);
  std::map<int, std::vector<int>> pieces;
  Util::CSet cut(SelElement);
  for (int const n : quads) {
    if (model.Elem(n).NumTopo() == before.Elem(n).NumTopo()) continue;
    pieces[n] = {n, next++};
    cut.AddTo(n);
    if (before.Elem(n).IsConnect())
      result.undone.push_back({"Elem", n, "its releases stay with the places of the topology"});
  }
  auto const loads =
      FindShapedLoads(before, cut, "it names both pieces, with its values as they are");
  result.undone.insert(result.undone.end(), loads.begin(), loads.end());
  TellPieces(pieces, result);
  WarnOfUnlistedPieces(before, model, result);
}

constexpr std::array kConversionCommands{
    Command{"to-linear", "take the mid-side nodes of plates away", kPlateOptions,
            CommandKind::Changes, &ToLinear},
    Command{"to-quadratic", "add mid-side nodes to plates", kPlateOptions, CommandKind::Changes,
            &ToQuadratic},
    Command{"to-triangles", "cut quadrilaterals into two triangles each, loads with them",
            kPlateOptions, CommandKind::Changes, &ToTriangles},
    Command{"cut-warped", "cut warped quadrilaterals along the shorter diagonal", kPlateOptions,
            CommandKind::Changes, &CutWarped},
};

}  // namespace

std::span<Command const> ConversionCommands() { return kConversionCommands; }

}  // namespace Tarvex::Workbench
