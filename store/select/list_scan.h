// The words of a list in groups: operators, parentheses and items.
//
// An item is what one operator takes: a number, a range, a word with its number, a quoted name,
// "all", "none". Whatever reads a list reads it through this, so that there is one place that says
// which words belong together.
#pragma once

#include "store/select/list_tokens.h"

namespace Tarvex::Data {

/// One operator, parenthesis or item of a list.
struct ListElement {
  enum class Part { Item, And, Or, Not, Open, Close };
  enum class Item {
    Nothing,  ///< "none", and a word without its number
    All,
    Numbers,  ///< a number or a range
    Word,     ///< a prefix word or "#" with its number
    Name,     ///< a quoted name
  };

  Part part = Part::Item;
  Item item = Item::Nothing;
  int token = 0;  ///< of Item::Word
  /// Item::Numbers: the range, kHighest for "*". Item::Word: the number of the word; a text may
  /// have a range there, until its tokens are checked.
  int first = 0;
  int last = 0;
  int step = 1;
  std::size_t name = 0;  ///< Item::Name: place among the strings of the list
  // The words of it.
  std::size_t begin = 0;
  std::size_t end = 0;

  bool IsRange() const { return item == Item::Numbers && end - begin > 1; }
};

/// Walks the elements of a list. Words that make no sense where they stand are passed over, and the
/// first one of them is told.
class TARVEX_STORE_EXPORT ListScanner {
 public:
  explicit ListScanner(ListTokens const& tokens) : m_words(tokens.words) {}

  /// Takes the next element; false at the end.
  bool Next(ListElement& element);

  /// What makes no sense, null when all does, and the place of the word.
  char const* Fault() const { return m_fault; }
  std::size_t FaultWord() const { return m_faultWord; }

 private:
  bool Has(std::size_t ahead) const { return m_at + ahead < m_words.size(); }
  bool Is(std::size_t ahead, int token) const {
    return Has(ahead) && m_words[m_at + ahead] == token;
  }
  bool IsNumber(std::size_t ahead) const;
  /// Whether a number, a case or "*" stands there.
  bool IsEnd(std::size_t ahead) const;
  void Fail(std::size_t ahead, char const* reason);

  bool Operator(ListElement& element);
  bool Item(ListElement& element);
  void Numbers(ListElement& element);
  void Step(ListElement& element);
  void Word(ListElement& element);

  std::vector<int> const& m_words;
  std::size_t m_at = 0;
  std::size_t m_names = 0;
  char const* m_fault = nullptr;
  std::size_t m_faultWord = 0;
};

}  // namespace Tarvex::Data
