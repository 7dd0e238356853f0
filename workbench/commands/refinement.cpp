#include "workbench/commands/refinement.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <set>
#include <unordered_set>

#include "store/record/element.h"
#include "store/record/node.h"
#include "store/text/cstring.h"
#include "tarvex/data_mgr.h"
#include "tarvex/refinement.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/lost_loads.h"
#include "workbench/commands/selection.h"
#include "workbench/commands/shaped_loads.h"
#include "workbench/commands/unlisted_pieces.h"
#include "workbench/report/text.h"

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
  if (element.NumTopo() != element.Shape().nodes)
    return "its number of nodes is not that of its type";
  bool corner = false;
  for (int i = 0; i < element.Shape().corners; ++i) corner = corner || element.Topo(i) == node;
  return corner ? "elements of its shape are not refined" : "the node is in the middle of its side";
}

/// @param told the elements that were reported at another node; those reported here join them.
void ReportLeft(CZelData const& model, int node, CString const& sid, Pieces const& pieces,
                std::set<int>& told, CommandResult& result) {
  for (int const n : model.Node(node).AttachedEnt(SelElement)) {
    if (!model.ElemExist(n) || pieces.contains(n)) continue;
    auto const& element = model.Elem(n);
    bool const made = std::any_of(pieces.begin(), pieces.end(), [&](auto const& row) {
      return std::find(row.second.begin(), row.second.end(), n) != row.second.end();
    });
    if (!made && (element.Is2D() || element.Is3D()) && told.insert(n).second)
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

/// Warns of pieces that have a node twice: a side was shorter than the tolerance reaches.
void WarnOfRepeatedNodes(CZelData const& model, Pieces const& pieces, CommandResult& result) {
  for (auto const& [n, made] : pieces)
    for (int const piece : made) {
      auto const& topology = model.Elem(piece).Topology();
      std::set<int> const nodes(topology.begin(), topology.end());
      if (nodes.size() < static_cast<std::size_t>(model.Elem(piece).NumTopo()))
        result.warnings.push_back(
            {"repeated-node", "Elem", piece,
             "element " + std::to_string(piece) + " names a node twice: take a smaller --tol"});
    }
}

/// Gives loads and references to the pieces and removes the elements. The loads bear marks.
void Replace(CZelData& model, Pieces const& pieces, CommandResult& result) {
  Util::CSet elements(SelElement);
  Pieces plates;
  Pieces solids;
  for (auto const& [n, made] : pieces) {
    elements.AddTo(n);
    (model.Elem(n).Is2D() ? plates : solids)[n] = made;
  }
  CZelData const before(model);
  WriteOutShapedLoads(model, elements);
  CDataMgr const manager(model);
  // What is left undone shows in the loads: a uniform load on a range is not mapped, and follows
  // the references.
  manager.Map2DLoading(plates);
  manager.Map3DLoading(solids);
  manager.ReplaceElemRef(pieces, true);
  LoadMarks::ReportLost(before, model, pieces, result);
  for (auto const& [n, made] : pieces) model.BlankElem(n, 1);
}

/// Replaces refined elements, as many at a time as no further node meets: one walk over the loads
/// and references serves them all.
class Replacements {
 public:
  Replacements(CZelData& model, CommandResult& result) : m_model(model), m_result(result) {}

  /// Told before a node is refined around: what it stands on has to be in its place by then.
  void Expect(int node) {
    auto const& attached = m_model.Node(node).AttachedEnt(SelElement);
    if (std::any_of(attached.begin(), attached.end(), [&](int n) { return m_met.contains(n); }))
      Finish();
  }
  void Add(Pieces const& pieces) {
    for (auto const& [n, made] : pieces) {
      m_pieces[n] = made;
      m_met.insert(n);
      m_met.insert(made.begin(), made.end());
    }
  }
  void Finish() {
    if (m_pieces.empty()) return;
    Replace(m_model, m_pieces, m_result);
    m_pieces.clear();
    m_met.clear();
  }

 private:
  CZelData& m_model;
  CommandResult& m_result;
  Pieces m_pieces;                // not replaced yet
  std::unordered_set<int> m_met;  // those and their pieces
};

void Refine(CZelData& model, Arguments const& arguments, CommandResult& result) {
  if (arguments.Text("--list").empty()) throw UsageError("--list: give the nodes to refine around");
  double const ratio = arguments.Number("--ratio");
  if (ratio >= 1) throw UsageError("--ratio: '" + arguments.Text("--ratio") + "' is not below 1");
  double const tolerance = arguments.Number("--tol");
  CString const sid = CString::FromUtf8(arguments.Text("--sid"));
  auto const nodes = SelectByOptions(model, SelNode, arguments, result);
  CZelData const before(model);
  LoadMarks const marks(model);
  Json rows = Json::array();
  std::set<int> told;
  Replacements replacements(model, result);
  for (int const node : nodes) {
    Pieces pieces;
    replacements.Expect(node);
    if (ZelUtil::RefineMeshAtNode(model, node, ratio, tolerance, pieces, sid)) result.did = true;
    ReportLeft(model, node, sid, pieces, told, result);
    WarnOfFolds(model, ratio, pieces, result);
    WarnOfRepeatedNodes(model, pieces, result);
    replacements.Add(pieces);
    for (auto const& [n, made] : pieces) rows.push_back(Json::array({n, made}));
  }
  replacements.Finish();
  marks.TakeOff(model);
  result.text = Counted(rows.size(), "element") + " refined\n";
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
