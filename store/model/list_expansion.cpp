#include "store/model/list_expansion.h"

#include <boost/make_shared.hpp>

#include "store/model/list_expander.h"
#include "store/model/zel_data.h"
#include "store/select/list_grammar.h"
#include "store/select/list_rewrite.h"

namespace Tarvex::Util {
namespace {

using Data::CEntList;
using Data::ListAccess;

/// A list of so few words is read anew at each question.
constexpr std::size_t kFewWords = 16;

ListForm FormOf(CEntList const& list, CZelData const& model, int highest, bool panels) {
  bool const untyped = list.TypeOf() == SelNone;
  if (untyped && highest == -1) highest = model.HighestRecord(CModule::AnalStage);
  return {list.TypeOf(), panels, untyped ? highest : 0, untyped ? 0 : std::max(highest, 0)};
}

/// Expands a list, or takes what the model keeps of it.
ListCache::Pointer Expansion(CEntList const& list, CZelData const& model, ListForm const& form) {
  static auto const kNothing = boost::make_shared<CBitContainer const>();
  auto const words = ListAccess::Text(list).Words();
  if (words == nullptr) return kNothing;
  auto& cache = ModelAccess::Core(model).lists;
  auto const* kept = cache.Find(words, form);
  // What cases exist is not told by any revision.
  bool const current = kept != nullptr && form.kind != SelCase &&
                       kept->sources == SourcesOf(model, form, kept->reads);
  if (current) return kept->numbers;
  ListExpander expander(model, list, form);
  auto numbers = Difference(expander.Numbers(), {{0, 0}});
  auto expansion = kept != nullptr && kept->numbers->Numbers() == numbers
                       ? kept->numbers
                       : boost::make_shared<CBitContainer const>(std::move(numbers));
  auto const reads = expander.Reads();
  cache.Keep(words, {form, reads, SourcesOf(model, form, reads), expansion});
  return expansion;
}

/// Whether a list that needs no model, or a list of a kind without entities, names a number.
bool Names(CEntList const& list, int number, CZelData const& model) {
  return Data::ListNames(ListAccess::Text(list).Tokens(), list.TypeOf(), number,
                         model.HighestEnt(list.TypeOf()));
}

bool IncludesZero(CEntList const& list, CZelData const& model, ListForm const& form) {
  return form.kind == SelNone && ListExpander(model, list, form).Numbers().Contains(0);
}

}  // namespace

CSet MakeSet(CEntList const& list, CZelData const& model, bool panels) {
  if (list.TypeOf() == SelCase) return CSet(SelCase);  // cases have no record numbers
  return {list.TypeOf(), Item(list, model, -1, panels).Numbers()};
}

CBitContainer const& Item(CEntList const& list, CZelData const& model, int highest, bool panels) {
  auto const numbers = Expansion(list, model, FormOf(list, model, highest, panels));
  ListAccess::Pin(list, panels, numbers);
  return *numbers;
}

void Items(CEntList const& list, std::vector<int>& items, CZelData const& model, bool panels) {
  auto const form = FormOf(list, model, -1, panels);
  auto const numbers = Expansion(list, model, form);
  items = ListExpander(model, list, form).Order(numbers->Numbers());
}

int NumItem(CEntList const& list, CZelData const& model, int highest, bool panels) {
  auto const numbers = Expansion(list, model, FormOf(list, model, highest, panels));
  ListAccess::SetLast(list, numbers);
  return numbers->NumItem();
}

bool IsItemIncluded(CEntList const& list, SEntRef ref, CZelData const& model, int highest,
                    bool panels) {
  if (ref.type != list.TypeOf() || ref.num < 0) return false;
  auto const form = FormOf(list, model, highest, panels);
  if (ref.num == 0) return IncludesZero(list, model, form);
  if (!panels && ref.type == SelElement && model.LoadPanelExist(ref.num)) return false;
  auto const& tokens = ListAccess::Text(list).Tokens();
  if (tokens.words.size() <= kFewWords && Data::NeedsNoModel(tokens, ref.type))
    return Names(list, ref.num, model);
  bool const isEntity = EntModId(ref.type) != CModule::None;
  if (isEntity && !model.EntExist(ref, panels)) return Names(list, ref.num, model);
  return Expansion(list, model, form)->IsItemIncluded(ref.num);
}

bool Delete(CEntList& list, int number, CZelData const& model) {
  if (!IsItemIncluded(list, {list.TypeOf(), number}, model, -1, true)) return false;
  auto tokens = ListAccess::Text(list).Tokens();
  Data::RemoveFromList(tokens, list.TypeOf(), number, model.HighestEnt(list.TypeOf()));
  ListAccess::Change(list, std::move(tokens));
  return true;
}

bool Replace(CEntList& list, std::map<int, std::vector<int>> const& numbers,
             CZelData const& model) {
  auto tokens = ListAccess::Text(list).Tokens();
  if (!Data::ReplaceInList(tokens, list.TypeOf(), numbers, model.HighestEnt(list.TypeOf())))
    return false;
  ListAccess::Change(list, std::move(tokens));
  return true;
}

bool ExpandListProp(CEntList& list, CZelData const& model) {
  auto tokens = ListAccess::Text(list).Tokens();
  auto& core = ModelAccess::Core(model);
  auto const expand = [&](int token, int number) -> std::optional<Intervals> {
    if (!ListWords::IsPropertyWord(token)) return std::nullopt;
    return ListWords::Select(core, list.TypeOf(), token, number, 0);
  };
  if (!Data::WriteOutWords(tokens, expand)) return false;
  ListAccess::Change(list, std::move(tokens));
  return true;
}

bool ExpandListRange(CEntList& list) {
  auto tokens = ListAccess::Text(list).Tokens();
  if (!Data::WriteOutRanges(tokens)) return false;
  ListAccess::Change(list, std::move(tokens));
  return true;
}

}  // namespace Tarvex::Util
