#include "store/select/list_text.h"

#include <utility>

#include "store/select/list_grammar.h"

namespace Tarvex::Data {

bool ListText::Set(std::wstring_view text, std::optional<SelType> kind, ListFault* fault) {
  auto tokens = ReadList(text, kind, fault);
  if (!tokens) return false;
  Put(std::move(*tokens));
  return true;
}

bool ListText::Set(ListTokens tokens, std::optional<SelType> kind, ListFault* fault) {
  if (kind && !IsListOfKind(tokens, *kind, fault)) return false;
  if (!NormalizeList(tokens, fault)) return false;
  Put(std::move(tokens));
  return true;
}

ListTokens const& ListText::Tokens() const {
  static ListTokens const kNone;
  return m_words == nullptr ? kNone : *m_words;
}

ListTokens ListText::Take() {
  auto const words = std::exchange(m_words, nullptr);
  if (words == nullptr) return {};
  return words.use_count() == 1 ? std::move(*words) : *words;
}

void ListText::Put(ListTokens tokens) {
  if (tokens.words.empty())
    m_words.reset();
  else
    m_words = std::make_shared<ListTokens>(std::move(tokens));
}

}  // namespace Tarvex::Data
