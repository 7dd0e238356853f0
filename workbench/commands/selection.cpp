#include "workbench/commands/selection.h"

#include <array>
#include <nlohmann/json.hpp>

#include "store/model/list_expansion.h"
#include "store/model/saved_lists.h"
#include "workbench/commands/errors.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Data::CEntList;
using Json = nlohmann::ordered_json;

struct KindWord {
  std::string_view word;
  SelType kind;
};
constexpr std::array kKindWords{KindWord{"node", SelNode}, KindWord{"element", SelElement},
                                KindWord{"member", SelMember}};

void WarnOfMissingLists(CZelData const& model, CEntList const& list, CommandResult& result) {
  SavedLists saved(model.List(), list.TypeOf());
  auto const reason = " is no saved list of " + SelTypeLabel(list.TypeOf()).ToUtf8() + "s";
  for (auto const& missing : saved.MissingIn(Data::ListAccess::Text(list).Tokens())) {
    auto const what = missing.number == 0 ? "'" + missing.name.ToUtf8() + "'"
                                          : "#" + std::to_string(missing.number);
    result.warnings.push_back({"missing-list", "List", missing.number, what + reason});
  }
}

void RunSelect(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const& word = arguments.Text("--kind");
  auto const set = SelectByOptions(model, KindOf(word), arguments, result);
  auto const count = static_cast<std::size_t>(set.NumItem());
  result.result = std::make_shared<Json>(Json{
      {"kind", word}, {"count", count}, {"numbers", std::vector<int>(set.begin(), set.end())}});
  result.text = Counted(count, word);
  if (count > 0) result.text += ": " + set.String().ToUtf8();
  result.text += "\n";
  result.did = true;
}

constexpr std::array kSelectOptions{
    Option{"--list", "TEXT", ValueKind::Text, "all", "the list text; docs/lists.md explains it"},
    Option{"--kind", "node|element|member", ValueKind::Choice, "element", "what the list names"}};

constexpr std::array kSelectionCommands{Command{"select",
                                                "tell the entities that a list text selects",
                                                kSelectOptions, CommandKind::Reads, &RunSelect}};

}  // namespace

SelType KindOf(std::string_view word) {
  for (auto const& row : kKindWords)
    if (row.word == word) return row.kind;
  return SelNone;
}

Data::CEntList ListOf(SelType kind, std::string const& text, std::string const& option) {
  Data::CEntList list(kind, L"");
  Data::ListFault fault{};
  if (!list.SetString(CString::FromUtf8(text), &fault)) {
    auto place = option + ": character " + std::to_string(fault.position + 1);
    throw UsageError((place += ": ") += fault.reason.ToUtf8());
  }
  return list;
}

Util::CSet Select(CZelData const& model, SelType kind, std::string const& listText,
                  std::string const& option) {
  return Util::MakeSet(ListOf(kind, listText, option), model, true);
}

Util::CSet SelectByOptions(CZelData const& model, SelType kind, Arguments const& arguments,
                           CommandResult& result) {
  auto const& text = arguments.Text("--list");
  auto const list = ListOf(kind, text);
  auto set = Util::MakeSet(list, model, true);
  WarnOfMissingLists(model, list, result);
  if (set.IsEmpty())
    result.warnings.push_back(
        {"empty-selection", "", 0, "'" + text + "' selects no " + SelTypeLabel(kind).ToUtf8()});
  return set;
}

std::span<Command const> SelectionCommands() { return kSelectionCommands; }

}  // namespace Tarvex::Workbench
