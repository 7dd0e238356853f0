#include "workbench/commands/tidy.h"

#include <array>
#include <nlohmann/json.hpp>

#include "store/select/set.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/property_use.h"
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

/// What tidying does to the numbers of materials and properties. @param left the model without the
/// records that went, all of them under the numbers that they had before.
SchemeMaps SchemesOf(CZelData const& left, bool compact) {
  SchemeMaps schemes;
  for (auto const& row : kUseRows) {
    auto& scheme = schemes[row.module];
    for (int next = 0; int const n : NumbersInUse(left, row.module))
      scheme[n] = compact ? ++next : n;
  }
  return schemes;
}

/// Removes and closes up, and reports what became of all that names materials and properties.
void TidyNumbers(CZelData& model, bool blank, bool compact, bool sections, CommandResult& result) {
  CZelData const before(model);
  CUpdateProp tool(model);
  tool.SetNoSection(sections);
  if (blank) result.did = tool.Update(CUpdateProp::kBlankUnused);
  auto const schemes = SchemesOf(model, compact);
  if (compact) result.did = tool.Update(CUpdateProp::kDeleteBlank) || result.did;
  ReportMoves(before, schemes, result);
  CRenumber numbers(&model);
  for (auto const& [module, scheme] : schemes) numbers.Index(module, scheme);
  ReportLosses({before, model, numbers, schemes, false}, result);
}

void Tidy(CZelData& model, Arguments const& arguments, CommandResult& result) {
  bool const blank = arguments.Flag("--blank");
  bool const compact = arguments.Flag("--compact");
  bool const fit = arguments.Flag("--fit-2d-types");
  if (!blank && !compact && !fit) throw UsageError("give --blank, --compact or --fit-2d-types");
  if (arguments.Flag("--sections") && !blank) throw UsageError("--sections goes with --blank");
  if (blank || compact) TidyNumbers(model, blank, compact, arguments.Flag("--sections"), result);
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
