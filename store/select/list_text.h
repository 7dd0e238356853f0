// The definition of a list.
#pragma once

#include <memory>
#include <optional>

#include "store/select/list_tokens.h"
#include "store/select/reference.h"

namespace Tarvex::Data {

/// The words of a list, always in the form in which they print and read back alike
/// (list_grammar.h). Copies share them, and what they share tells that they select the same.
class TARVEX_STORE_EXPORT ListText {
 public:
  using Shared = std::shared_ptr<ListTokens const>;

  /// Takes the words of a text, or words as they are.
  /// @param kind what the words must be a list of; empty for whatever they are.
  /// @param fault receives place and reason of a refusal when it is given.
  /// @return false, and nothing changed, for what is no list.
  bool Set(std::wstring_view text, std::optional<SelType> kind, ListFault* fault = nullptr);
  bool Set(ListTokens tokens, std::optional<SelType> kind, ListFault* fault = nullptr);

  ListTokens const& Tokens() const;
  /// The words as they are shared, null for none. Two texts that share them are equal, and words
  /// that were changed are never shared with what they were.
  Shared Words() const { return m_words; }
  /// Takes the tokens out, for changing; whoever shares them keeps them. Without a copy when nobody
  /// does.
  ListTokens Take();
  /// Puts tokens of the right form in.
  void Put(ListTokens tokens);

  friend bool operator==(ListText const& a, ListText const& b) {
    return a.m_words == b.m_words || a.Tokens() == b.Tokens();
  }

 private:
  std::shared_ptr<ListTokens> m_words;
};

}  // namespace Tarvex::Data
