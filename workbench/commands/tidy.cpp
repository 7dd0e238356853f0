#include "workbench/commands/tidy.h"

#include <array>
#include <nlohmann/json.hpp>

#include "store/model/registry.h"
#include "store/record/node.h"
#include "tarvex/tidy.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/renumber_run.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;
using Id = CModule::ModuleId;

constexpr std::array kUsedOptions{Option{"--stage", "N", ValueKind::Integer, "-1",
                                         "of one stage, 0 for the model without stages; all of "
                                         "them unless given",
                                         -1}};
constexpr std::array kTidyOptions{
    Option{"--blank", "", ValueKind::Flag, "false", "remove the records that nothing uses"},
    Option{"--compact", "", ValueKind::Flag, "false",
           "close the holes in the numbers of all materials and properties"},
    Option{"--sections", "", ValueKind::Flag, "false", "with --blank: unused sections go, too"},
    Option{"--fit-2d-types", "", ValueKind::Flag, "false",
           "give 2D properties the type that the kind of structure asks for"}};

struct UseRow {
  Id module;
  bool (CIndexProp::*isUsed)(int) const;
};
constexpr std::array kUseRows{UseRow{CModule::MatAnal, &CIndexProp::IsMatAnalUsed},
                              UseRow{CModule::MatSteel, &CIndexProp::IsMatSteelUsed},
                              UseRow{CModule::MatConcrete, &CIndexProp::IsMatConcreteUsed},
                              UseRow{CModule::MatAluminium, &CIndexProp::IsMatAluminiumUsed},
                              UseRow{CModule::MatGlass, &CIndexProp::IsMatGlassUsed},
                              UseRow{CModule::MatFrp, &CIndexProp::IsMatFrpUsed},
                              UseRow{CModule::MatTimber, &CIndexProp::IsMatTimberUsed},
                              UseRow{CModule::MatFabric, &CIndexProp::IsMatFabricUsed},
                              UseRow{CModule::MatRebar, &CIndexProp::IsMatRebarUsed},
                              UseRow{CModule::Section, &CIndexProp::IsSectionUsed},
                              UseRow{CModule::Prop2D, &CIndexProp::IsProp2DUsed},
                              UseRow{CModule::SpringProp, &CIndexProp::IsSpringUsed},
                              UseRow{CModule::DamperProp, &CIndexProp::IsDamperUsed},
                              UseRow{CModule::MassProp, &CIndexProp::IsMassUsed},
                              UseRow{CModule::LinkProp, &CIndexProp::IsLinkUsed},
                              UseRow{CModule::CableProp, &CIndexProp::IsCableUsed},
                              UseRow{CModule::SpacerProp, &CIndexProp::IsSpacerUsed},
                              UseRow{CModule::Prop3D, &CIndexProp::IsProp3DUsed}};

std::string SetText(std::vector<int> const& numbers) {
  Util::CSet set;
  for (int const n : numbers) set.AddTo(n);
  return numbers.empty() ? "none" : set.String().ToUtf8();
}

void Used(CZelData& model, Arguments const& arguments, CommandResult& result) {
  CIndexProp index(model);
  int const stage = arguments.Integer("--stage");
  result.did = stage < 0 ? index.IndexUsed() : index.IndexStage(stage);
  if (!result.did) throw Refusal("stage " + std::to_string(stage) + " does not exist");
  Json tables = Json::object();
  for (auto const& row : kUseRows) {
    std::vector<int> used;
    std::vector<int> unused;
    for (int const n : NumbersInUse(model, row.module))
      ((index.*row.isUsed)(n) ? used : unused).push_back(n);
    if (used.empty() && unused.empty()) continue;
    auto const stem = StemOf(row.module);
    tables[stem] = {{"used", used}, {"unused", unused}};
    result.text +=
        Padded(stem, 14) + "used " + SetText(used) + "; not used " + SetText(unused) + "\n";
  }
  result.result = std::make_shared<Json>(Json{{"tables", tables}});
}

/// The properties of nodes keep their numbers when the tables close up.
void ReportNodes(CZelData const& before, CommandResult& result) {
  struct NodeField {
    Id module;
    int (Data::CNode::*number)() const;
    char const* name;
  };
  constexpr std::array kFields{
      NodeField{CModule::SpringProp, &Data::CNode::SpringProperty, "springProperty"},
      NodeField{CModule::MassProp, &Data::CNode::MassProperty, "massProperty"},
      NodeField{CModule::DamperProp, &Data::CNode::DamperProperty, "damperProperty"}};
  for (auto const& field : kFields) {
    std::map<int, int> numbers;
    for (int const n : NumbersInUse(before, field.module))
      numbers.emplace(n, static_cast<int>(numbers.size()) + 1);
    for (auto const& [n, node] : before.Node()) {
      auto const found = numbers.find((node.*field.number)());
      if (found != numbers.end() && found->first != found->second)
        result.undone.push_back({"Node", static_cast<int>(n),
                                 std::string(field.name) + " still says " + StemOf(field.module) +
                                     " " + std::to_string(found->first)});
    }
  }
}

void ReportCompaction(CZelData const& before, CommandResult& result) {
  for (auto const& row : kUseRows) {
    int next = 0;
    for (int const n : NumbersInUse(before, row.module))
      if (n != ++next) result.maps[StemOf(row.module)].emplace_back(n, next);
  }
  ReportNodes(before, result);
}

void Tidy(CZelData& model, Arguments const& arguments, CommandResult& result) {
  bool const blank = arguments.Flag("--blank");
  bool const compact = arguments.Flag("--compact");
  bool const fit = arguments.Flag("--fit-2d-types");
  if (!blank && !compact && !fit) throw UsageError("give --blank, --compact or --fit-2d-types");
  if (arguments.Flag("--sections") && !blank) throw UsageError("--sections goes with --blank");
  CUpdateProp tool(model);
  tool.SetNoSection(arguments.Flag("--sections"));
  if (blank) result.did = tool.Update(CUpdateProp::kBlankUnused);
  if (compact) {
    CZelData const before(model);  // NOLINT(performance-unnecessary-copy-initialization): changes
    result.did = tool.Update(CUpdateProp::kDeleteBlank) || result.did;
    ReportCompaction(before, result);
  }
  if (fit) {
    CZelData const before(model);
    CUpdateProp::Update2dElementProperties(model);
    result.did = result.did || !(model == before);
  }
}

constexpr std::array kTidyCommands{
    Command{"used", "tell the materials and properties that a model uses", kUsedOptions,
            CommandKind::Reads, &Used},
    Command{"tidy", "remove unused materials and properties, or close the holes in their numbers",
            kTidyOptions, CommandKind::Changes, &Tidy}};

}  // namespace

std::span<Command const> TidyCommands() { return kTidyCommands; }

}  // namespace Tarvex::Workbench
