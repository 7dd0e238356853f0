#include "workbench/commands/orientation.h"

#include <array>
#include <nlohmann/json.hpp>

#include "store/record/node.h"
#include "tarvex/orientation.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/selection.h"

namespace Tarvex::Workbench {
namespace {

constexpr Option kList{"--list", "TEXT", ValueKind::Text, "all",
                       "the entities to work on, as a list text"};
constexpr Option kKind{"--kind", "element|member", ValueKind::Choice, "element",
                       "what the list names"};

constexpr Option Axis(std::string_view preset, std::string_view help, double lowest) {
  return {"--axis", "N", ValueKind::Integer, preset, help, lowest};
}
constexpr std::string_view kAxisHelp = "number of the axis, 0 for the global one";

constexpr std::array kAlign1dOptions{kList, kKind, Axis("0", kAxisHelp, 0)};
constexpr std::array kAlignEdgesOptions{
    kList,
    Axis("-1", "number of the axis, 0 for the global one, -1 for each element's own x axis", -1)};
constexpr std::array kAlignNormalsOptions{kList, Axis("0", kAxisHelp, 0)};
constexpr std::array kAgreeNormalsOptions{
    kList,
    Option{"--angle", "DEG", ValueKind::Number, "15",
           "facet angle in degrees, from 0 to 180: neighbours within it have a vote", 0, 180}};
constexpr std::array kFlipOptions{kList, kKind};
constexpr std::array kSpinOptions{kList,
                                  Option{"--steps", "N", ValueKind::Integer, "1",
                                         "the corner, counted from 0, that becomes the first", 1}};

std::string TableOf(CZelData const& model, SEntRef ref) {
  if (ref.type == SelMember) return "Member";
  return model.LoadPanelExist(ref.num) ? "LoadPanel" : "Elem";
}

void LeaveUndone(CZelData const& model, SEntRef ref, std::string why, CommandResult& result) {
  result.undone.push_back({TableOf(model, ref), ref.num, std::move(why)});
}

bool HasMissingNode(CZelData const& model, SEntRef ref) {
  for (int i = 0; i < model.EntNumTopo(ref); ++i)
    if (!model.NodeExist(model.EntTopo(ref, i))) return true;
  return false;
}

/// Reports the entities of a set that pass a test and have a missing node.
template <class Test>
void ReportMissingNodes(CZelData const& model, Util::CSet const& set, Test&& test,
                        CommandResult& result) {
  for (int const n : set)
    if (SEntRef const ref(set.TypeOf(), n); test(ref) && HasMissingNode(model, ref))
      LeaveUndone(model, ref, "a node of its topology does not exist", result);
}

void RequireAxis(CZelData const& model, int axis) {
  if (axis > 0 && !model.AxisExist(axis))
    throw Refusal("axis " + std::to_string(axis) + " does not exist");
}

void Align1d(CZelData& model, Arguments const& arguments, CommandResult& result) {
  int const axis = arguments.Integer("--axis");
  RequireAxis(model, axis);
  auto const set = SelectByOptions(model, KindOf(arguments.Text("--kind")), arguments, result);
  CAlignElem1D tool(model);
  tool.SetSet(set);
  tool.SetAxis(axis);
  result.did = tool.Do();
  // The tool's walk ends at the first entity with a missing end node.
  bool ended = false;
  for (int const n : set) {
    SEntRef const ref(set.TypeOf(), n);
    if (!model.EntIs1D(ref)) continue;
    bool const missing = HasMissingNode(model, ref);
    if (missing || ended)
      LeaveUndone(model, ref,
                  missing ? "a node of its topology does not exist"
                          : "it comes behind an entity with a missing node",
                  result);
    ended = ended || missing;
  }
}

/// What the two commands on 2D elements and an axis have in common.
template <class Tool>
void Align2d(CZelData& model, Arguments const& arguments, CommandResult& result) {
  int const axis = arguments.Integer("--axis");
  RequireAxis(model, axis);
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  Tool tool(model);
  tool.SetSet(set);
  tool.SetAxis(axis);
  result.did = tool.Do();
  ReportMissingNodes(
      model, set, [&](SEntRef ref) { return model.EntIs2D(ref); }, result);
}

void AgreeNormals(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  double const angle = arguments.Number("--angle");
  CFlipElem2D tool(model);
  tool.SetSet(set);
  tool.SetFacetAngle(angle);
  result.did = tool.Do();
  result.tolerances.push_back({"facet angle", angle, "deg"});
  for (int const n : set)
    if (model.LoadPanelExist(n))
      LeaveUndone(model, {SelElement, n}, "load panels are passed over", result);
  ReportMissingNodes(
      model, set, [&](SEntRef ref) { return model.ElemExist(ref.num) && model.EntIs2D(ref); },
      result);
}

/// Applies a verb to each entity of a set, ascending, and reports those that it refuses.
template <class Verb>
void ForEachSelected(CZelData& model, Util::CSet const& set, Verb&& verb, char const* refused,
                     CommandResult& result) {
  for (int const n : set) {
    SEntRef const ref(set.TypeOf(), n);
    if (verb(ref))
      result.did = true;
    else
      LeaveUndone(model, ref, refused, result);
  }
}

void Flip(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, KindOf(arguments.Text("--kind")), arguments, result);
  ForEachSelected(
      model, set, [&](SEntRef ref) { return FlipEntity(model, ref); },
      "its shape can't be reversed", result);
}

void Spin(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const set = SelectByOptions(model, SelElement, arguments, result);
  int const steps = arguments.Integer("--steps");
  ForEachSelected(
      model, set, [&](SEntRef ref) { return SpinElement(model, ref.num, steps); },
      "it is not a 2D element or panel", result);
}

constexpr std::array kOrientationCommands{
    Command{"align-1d", "make 1D elements or members run along the positive sense of an axis",
            kAlign1dOptions, CommandKind::Changes, &Align1d},
    Command{"align-edges", "make the first edge of 2D elements and panels point along an axis",
            kAlignEdgesOptions, CommandKind::Changes, &Align2d<CAlignElem2DEdges>},
    Command{"align-normals", "make the normals of 2D elements and panels point along an axis",
            kAlignNormalsOptions, CommandKind::Changes, &Align2d<CAlignElem2DZ>},
    Command{"agree-normals", "make the normals of connected 2D elements agree",
            kAgreeNormalsOptions, CommandKind::Changes, &AgreeNormals},
    Command{"flip", "reverse elements, panels or members", kFlipOptions, CommandKind::Changes,
            &Flip},
    Command{"spin", "turn the topology of 2D elements and panels", kSpinOptions,
            CommandKind::Changes, &Spin},
};

}  // namespace

std::span<Command const> OrientationCommands() { return kOrientationCommands; }

}  // namespace Tarvex::Workbench
