#include "workbench/commands/picture.h"

#include <array>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "workbench/commands/selection.h"
#include "workbench/report/text.h"
#include "workbench/view/picture.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<std::string_view, 4> kNumbersWords{"none", "nodes", "elements", "members"};

NumbersOf NumbersNamed(std::string_view word) {
  auto const found = std::find(kNumbersWords.begin(), kNumbersWords.end(), word);
  return static_cast<NumbersOf>(found - kNumbersWords.begin());
}

/// The members of which an element is drawn.
Util::CSet ParentsOf(CZelData const& model, Util::CSet const& elements) {
  Util::CSet members(SelMember);
  for (int const n : elements)
    if (int const member = model.ElemMember(n); model.MemberExist(member)) members.AddTo(member);
  return members;
}

/// What the options ask to draw. By the kind "both" a list names elements and the members that they
/// were made from, all members with all elements; in a model without elements it names members.
SceneRequest RequestOf(CZelData const& model, Arguments const& arguments, CommandResult& result) {
  auto const numElements = model.NumEnt(SelElement);
  bool const both = arguments.Text("--kind") == "both";
  auto kind = KindOf(arguments.Text("--kind"));
  if (both) kind = numElements > 0 ? SelElement : SelMember;

  SceneRequest request;
  auto listed = SelectByOptions(model, kind, arguments, result);
  bool const all = listed.NumItem() == model.NumEnt(kind);
  if (kind == SelMember)
    request.members = std::move(listed);
  else
    request.elements = std::move(listed);
  if (both && kind == SelElement)
    request.members = all ? Select(model, SelMember, "all") : ParentsOf(model, request.elements);
  request.allNodes = both && all;
  request.numbers = NumbersNamed(arguments.Text("--numbers"));
  return request;
}

std::string TitleOf(std::string const& modelFile) {
  return modelFile == "-" ? "standard input" : std::filesystem::path(modelFile).filename().string();
}

Json CountsJson(SceneCounts const& counts) {
  return {{"lines", counts.lines},   {"plates", counts.plates},   {"solids", counts.solids},
          {"panels", counts.panels}, {"members", counts.members}, {"supports", counts.supports},
          {"notDrawn", counts.left}};
}

void DrawModel(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const scene = RequestOf(model, arguments, result);
  PictureRequest request{ViewNamed(arguments.Text("--view")), scene, TitleOf(arguments.ModelFile()),
                         scene.allNodes ? "nothing to draw: the model is empty"
                                        : "nothing to draw: the list selects nothing"};
  auto picture = DrawPicture(model, request);
  auto const& counts = picture.counts;
  if (counts.left > 0)
    result.warnings.push_back({"not-drawn", "", 0,
                               Counted(counts.left, "element or member") +
                                   " without a shape or with missing nodes not drawn"});
  result.text = "picture: ";
  result.text += ViewOf(request.view).title;
  result.text += ": " + (counts.IsEmpty() ? request.nothing : CountsText(counts)) + "\n";
  result.result = std::make_shared<Json>(Json{{"view", arguments.Text("--view")},
                                              {"drawn", CountsJson(counts)},
                                              {"storeys", picture.storeys}});
  result.file = std::move(picture.svg);
  result.did = true;
}

constexpr std::array kPictureOptions{
    Option{"--view", "iso|plan|x|y", ValueKind::Choice, "iso",
           "iso: isometric, from +x, -y and above; plan: from above; x: from +x; y: from -y"},
    Option{"--list", "TEXT", ValueKind::Text, "all", "the entities to draw, as a list text"},
    Option{"--kind", "both|element|member", ValueKind::Choice, "both",
           "what the list names and the picture shows; both: elements, and the members that they "
           "were made from"},
    Option{"--numbers", "none|nodes|elements|members", ValueKind::Choice, "none",
           "what is numbered"}};

constexpr std::array kPictureCommands{
    Command{"picture",
            "draw a model as SVG: the colour of a plate tells the side that is seen, an arrow the "
            "second end of a 1D element",
            kPictureOptions, CommandKind::Draws, &DrawModel}};

}  // namespace

std::span<Command const> PictureCommands() { return kPictureCommands; }

}  // namespace Tarvex::Workbench
