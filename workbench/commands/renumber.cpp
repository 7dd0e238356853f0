#include "workbench/commands/renumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <set>

#include "store/model/list_expansion.h"
#include "store/model/registry.h"
#include "store/record/case_refs.h"
#include "store/select/numbers.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/number_map.h"
#include "workbench/commands/property_use.h"
#include "workbench/commands/renumber_run.h"
#include "workbench/commands/selection.h"
#include "workbench/file/references.h"

namespace Tarvex::Workbench {
namespace {

using Id = CModule::ModuleId;

constexpr std::array kRenumberOptions{
    Option{"--table", "STEM", ValueKind::Text, "",
           "the table, as model files name it; with --compress several, split by commas"},
    Option{"--compress", "", ValueKind::Flag, "false", "close the holes in the numbers"},
    Option{"--shift", "FROM,BY", ValueKind::Text, "", "add a number to those from a number on"},
    Option{"--direction", "X,Y,Z", ValueKind::Text, "",
           "number along a direction, in global axes; nodes, elements and members"},
    Option{"--map", "FILE", ValueKind::Text, "",
           "lines with an old number and a new one; all others stay"},
    Option{"--keep-descriptions", "", ValueKind::Flag, "false",
           "leave the descriptions of tasks and analysis cases as they are"}};

constexpr std::array kDeleteOptions{
    Option{"--list", "TEXT", ValueKind::Text, "", "the records to delete, as a list text"},
    Option{"--kind", "node|element|member|case", ValueKind::Choice, "element",
           "what the list names"},
    Option{"--table", "STEM", ValueKind::Text, "",
           "the table that the numbers of the list are of, in the place of a kind"},
    Option{"--with-users", "", ValueKind::Flag, "false",
           "delete the elements, panels and members that need a record, too"}};

/// The parts of a text between commas.
std::vector<std::string> SplitByCommas(std::string const& text) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at <= text.size();) {
    auto const end = std::min(text.find(',', at), text.size());
    parts.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return parts;
}

/// The numbers of a text, split by commas; throws UsageError unless there are as many as asked for.
template <class T>
std::vector<T> NumbersOf(std::string const& option, std::string const& text, std::size_t count) {
  std::vector<T> numbers;
  for (auto const& part : SplitByCommas(text)) {
    T number{};
    auto const* const end = part.data() + part.size();
    auto const [rest, fault] = std::from_chars(part.data(), end, number);
    if (fault == std::errc::result_out_of_range) throw OutOfRange(option, part);
    if (fault == std::errc() && rest == end) numbers.push_back(number);
  }
  if (numbers.size() != count || SplitByCommas(text).size() != count)
    throw UsageError(option + ": '" + text + "' is not " + std::to_string(count) +
                     " numbers, split by commas");
  return numbers;
}

/// Refuses a scheme that would give two records one number.
void RequireOneToOne(std::string const& stem, std::map<int, int> const& scheme) {
  std::map<int, int> olds;
  for (auto const& [old, number] : scheme) {
    auto const record = stem + " " + std::to_string(old);
    auto const [at, isNew] = olds.try_emplace(number, old);
    if (!isNew)
      throw Refusal(record + " and " + std::to_string(at->second) + " would both have the number " +
                    std::to_string(number));
  }
}

std::map<int, int> ShiftedBy(std::vector<int> const& numbers, std::string const& stem,
                             std::string const& text) {
  auto const values = NumbersOf<int>("--shift", text, 2);
  std::map<int, int> scheme;
  for (int const n : numbers) {
    long long const shifted = n < values[0] ? n : static_cast<long long>(n) + values[1];
    if (shifted < 1 || shifted > kHighestNumber)
      throw Refusal(stem + " " + std::to_string(n) + " can't have the number " +
                    std::to_string(shifted));
    scheme[n] = static_cast<int>(shifted);
  }
  return scheme;
}

std::map<int, int> MapOfFile(std::vector<int> const& numbers, std::string const& stem,
                             std::string const& path) {
  std::map<int, int> scheme;
  for (int const n : numbers) scheme[n] = n;
  for (auto const& [old, now] : ReadNumberMap(path, 1, 1)) {
    auto const found = scheme.find(old);
    if (found == scheme.end()) throw Refusal(stem + " " + std::to_string(old) + " does not exist");
    found->second = now.front();
  }
  return scheme;
}

/// The scheme that the tool makes of a table.
template <class Build>
std::map<int, int> SchemeBy(CZelData const& model, Id module, Build&& build) {
  CZelData copy(model);
  CRenumber renumber(&copy);
  build(renumber);
  std::map<int, int> scheme;
  for (int const n : NumbersInUse(model, module)) scheme[n] = renumber.MapItem(module, n);
  return scheme;
}

SelType KindOfTable(Id module) {
  for (auto const kind : {SelNode, SelElement, SelMember})
    if (EntModId(kind) == module) return kind;
  throw UsageError("--direction: nodes, elements and members alone have a place");
}

std::map<int, int> BuildScheme(CZelData const& model, Id module, Arguments const& arguments) {
  auto const numbers = NumbersInUse(model, module);
  if (arguments.Flag("--compress"))
    return SchemeBy(model, module, [&](CRenumber& renumber) { renumber.Index(module); });
  if (auto const& text = arguments.Text("--direction"); !text.empty()) {
    auto const v = NumbersOf<double>("--direction", text, 3);
    bool const finite = std::all_of(v.begin(), v.end(), [](double x) { return std::isfinite(x); });
    if (!finite || v == std::vector<double>{0, 0, 0})
      throw UsageError("--direction: '" + text + "' is no direction");
    auto const kind = KindOfTable(module);
    return SchemeBy(model, module, [&](CRenumber& renumber) {
      renumber.Index(kind, Vec3<double>{v[0], v[1], v[2]});
    });
  }
  if (auto const& text = arguments.Text("--shift"); !text.empty())
    return ShiftedBy(numbers, StemOf(module), text);
  return MapOfFile(numbers, StemOf(module), arguments.Text("--map"));
}

void CheckForm(Arguments const& arguments) {
  int forms = arguments.Flag("--compress") ? 1 : 0;
  for (auto const* name : {"--shift", "--direction", "--map"})
    forms += arguments.Text(name).empty() ? 0 : 1;
  if (forms != 1) throw UsageError("give one of --compress, --shift, --direction and --map");
  if (arguments.Text("--table").empty()) throw UsageError("--table: which table?");
}

void Renumber(CZelData& model, Arguments const& arguments, CommandResult& result) {
  CheckForm(arguments);
  auto const stems = SplitByCommas(arguments.Text("--table"));
  if (stems.size() > 1 && !arguments.Flag("--compress"))
    throw UsageError("--table: several tables go with --compress alone");
  SchemeMaps schemes;
  for (auto const& stem : stems) {
    auto const module = ModuleOf(stem);
    auto const& scheme = schemes[module] = BuildScheme(model, module, arguments);
    RequireOneToOne(StemOf(module), scheme);
  }
  RunRenumbering(model, schemes, arguments.Flag("--keep-descriptions"), result);
}

// Deleting.

/// Records by table.
using Records = std::map<Id, std::set<int>>;

bool IsGone(Records const& gone, Id module, int n) {
  auto const found = gone.find(module);
  return found != gone.end() && found->second.contains(n);
}

/// Elements and load panels share their numbers: whether one stands in the table that is named.
bool IsOfTable(CZelData const& model, std::string_view stem, int n) {
  if (stem == "Elem") return model.ElemExist(n);
  return stem != "LoadPanel" || model.LoadPanelExist(n);
}

Records RecordsToDelete(CZelData const& model, Arguments const& arguments, CommandResult& result) {
  Records gone;
  auto const& text = arguments.Text("--list");
  if (text.empty()) throw UsageError("--list: which records?");
  std::map<Id, std::vector<int>> inUse;
  auto const take = [&](Id module, int n) {
    auto const [at, isNew] = inUse.try_emplace(module);
    auto& numbers = at->second;
    if (isNew) numbers = NumbersInUse(model, module);
    if (std::binary_search(numbers.begin(), numbers.end(), n)) gone[module].insert(n);
  };
  std::string what = "case";
  if (auto const& stem = arguments.Text("--table"); !stem.empty()) {
    if (arguments.IsGiven("--kind")) throw UsageError("give one of --kind and --table");
    auto const module = ModuleOf(stem);
    auto const list = ListOf(SelNone, text);
    what = "record of " + stem;
    for (int const n : Util::Item(list, model, model.HighestRecord(module)))
      if (IsOfTable(model, stem, n)) take(module, n);
  } else if (arguments.Text("--kind") == "case") {
    auto const list = ListOf(SelCase, text);
    int const count = Util::NumItem(list, model);
    for (int i = 0; i < count; ++i) take(CaseModule(list.Case(i).CaseType()), list.Case(i).Case());
  } else {
    auto const kind = KindOf(arguments.Text("--kind"));
    for (int const n : SelectByOptions(model, kind, arguments, result))
      gone[EntModId(kind)].insert(n);
    return gone;
  }
  if (gone.empty())
    result.warnings.push_back({"empty-selection", "", 0, "'" + text + "' selects no " + what});
  return gone;
}

/// Whether a reference can't do without its record.
bool IsEssential(ReferenceSite const& site) {
  constexpr std::array kTargets{"Axis", "GridPlane", "GridSurface", "Polyline", "AnalStage"};
  bool const entity = site.table == "Elem" || site.table == "LoadPanel" || site.table == "Member";
  if (entity) return site.field == "topology" || site.field == "property";
  bool const single = site.index == -1 || site.field == "relDisp.nodes";
  return single && std::find(kTargets.begin(), kTargets.end(), site.target) != kTargets.end();
}

std::map<std::string_view, Id> ModulesByStem() {
  std::map<std::string_view, Id> modules;
  for (auto const& row : Tables()) modules[row.stem] = row.module;
  return modules;
}

/// Elements, panels and members that need a record that is to go, until none is left.
void AddUsers(CZelData const& model, Records& gone) {
  auto const modules = ModulesByStem();
  for (bool grows = true; grows;) {
    grows = false;
    ForEachReference(model, [&](ReferenceSite const& site) {
      bool const member = site.table == "Member";
      if (!member && site.table != "Elem" && site.table != "LoadPanel") return;
      auto const target = modules.find(site.target);
      bool const needs = target != modules.end() && IsEssential(site);
      if (!needs || !IsGone(gone, target->second, site.value)) return;
      auto& users = gone[member ? CModule::Member : CModule::Elem];
      grows = users.insert(site.number).second || grows;
    });
  }
}

[[noreturn]] void RefuseUse(std::string_view target, int value, std::string_view user, int number) {
  throw Refusal(std::string(target) + " " + std::to_string(value) +
                " can't be deleted: " + std::string(user) +
                (number == 0 ? "" : " " + std::to_string(number)) + " needs it");
}

/// Refuses to delete what a record that stays can't do without.
void RequireUnused(CZelData const& model, Records const& gone) {
  auto const modules = ModulesByStem();
  CIndexProp index(model);
  index.IndexUsed();
  ForEachReference(model, [&](ReferenceSite const& site) {
    auto const target = modules.find(site.target);
    if (site.value <= 0 || target == modules.end() || !IsGone(gone, target->second, site.value))
      return;
    auto const user = modules.find(site.table);
    if (user != modules.end() && IsGone(gone, user->second, site.number)) return;
    if (IsEssential(site) || IsUsed(index, target->second, site.value))
      RefuseUse(site.target, site.value, site.table, site.number);
  });
}

/// Fields that a renumbering leaves as they are when what they name goes.
bool MayDangle(DanglingReference const& reference) {
  struct Left {
    std::string_view table;
    std::string_view field;
  };
  constexpr std::array kLeft{Left{"Elem", "orientationNode"},
                             Left{"Elem", "parentMember.member"},
                             Left{"LoadPanel", "parentMember.member"},
                             Left{"Node", "springProperty"},
                             Left{"Node", "massProperty"},
                             Left{"Node", "damperProperty"},
                             Left{"Prop2D", "materialDesign.grade"},
                             Left{"Prop3D", "materialDesign.grade"},
                             Left{"Prop3D", "materialAnalysis"}};
  return std::any_of(kLeft.begin(), kLeft.end(), [&](Left const& left) {
    return left.table == reference.table && left.field == reference.field;
  });
}

/// Refuses what would leave a reference to a record that went.
void RequireNoneDangling(CZelData const& before, CZelData const& after) {
  using Key = std::tuple<std::string, std::string, int, std::string>;
  auto const keyOf = [](DanglingReference const& r) {
    return Key(r.table, r.field, r.value, r.target);
  };
  std::set<Key> known;
  for (auto const& reference : FindDanglingReferences(before)) known.insert(keyOf(reference));
  for (auto const& reference : FindDanglingReferences(after))
    if (!MayDangle(reference) && !known.contains(keyOf(reference)))
      RefuseUse(reference.target, reference.value, reference.table, reference.number);
}

void Delete(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto gone = RecordsToDelete(model, arguments, result);
  for (auto const module : {CModule::DamperProp, CModule::DesignTask})
    if (gone.contains(module))
      throw Refusal("records of " + StemOf(module) + " can't be deleted by renumbering");
  if (arguments.Flag("--with-users")) AddUsers(model, gone);
  RequireUnused(model, gone);
  SchemeMaps schemes;
  for (auto const& [module, numbers] : gone) {
    auto& scheme = schemes[module];
    for (int const n : NumbersInUse(model, module))
      if (!numbers.contains(n)) scheme[n] = n;
  }
  if (gone.empty()) return;
  CZelData const before(model);
  RunRenumbering(model, schemes, false, result);
  RequireNoneDangling(before, model);
}

constexpr std::array kRenumberCommands{
    Command{"renumber", "give the records of a table other numbers, with every reference to them",
            kRenumberOptions, CommandKind::Changes, &Renumber},
    Command{"delete", "delete records, with every reference to them", kDeleteOptions,
            CommandKind::Changes, &Delete}};

}  // namespace

std::span<Command const> RenumberCommands() { return kRenumberCommands; }

}  // namespace Tarvex::Workbench
