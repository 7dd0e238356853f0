// Selection lists: which entities of a kind a record or a user means.
#pragma once

#include <utility>

#include "store/record/entity.h"
#include "store/record/kept_value.h"
#include "store/select/bit_container.h"
#include "store/select/list_text.h"
#include "store/select/set.h"

namespace Tarvex::Data {

/// Expansions that a list keeps: what it was last counted for, which the accessors without a model
/// tell, and what references were given to. A copy of the list takes them along; using the same
/// list from two threads is no fault.
class KeptExpansions {
 public:
  using Pointer = boost::shared_ptr<CBitContainer const>;
  struct All {
    Pointer counted;
    Pointer walked[2];  ///< without and with load panels
  };

  All Get() const {
    auto const all = m_all.Get();
    return all == nullptr ? All() : *all;
  }
  void Set(All const& all) { m_all.Set(all); }
  void Clear() { m_all.Clear(); }

 private:
  KeptValue<All> m_all;
};

/// A selection list: a kind, and a definition in words (see docs/lists.md). What it selects depends
/// on the model; Util::Item and its like in store/model/list_expansion.h tell.
class TARVEX_STORE_EXPORT CEntList : public NamedEntity {
 public:
  /// An empty list without a kind.
  CEntList() = default;
  /// A list of a text or of tokens; empty when they are no list of the kind.
  CEntList(CString const& name, SelType kind, CString const& text);
  CEntList(SelType kind, CString const& text) : CEntList(CString(), kind, text) {}
  CEntList(SelType kind, std::vector<int> const& tokens);

  SelType TypeOf() const { return m_kind; }
  /// Takes the list to another kind; the words stay.
  void SetType(SelType kind);

  /// Replaces the words. @param fault receives the character, from 0, and the reason of a refusal.
  /// @return false, and the list as it was, for a text that is no list of the kind.
  bool SetString(CString const& text, ListFault* fault = nullptr);
  /// As SetString, from tokens (list_tokens.h); the n-th quoted name keeps its text.
  bool SetTokens(std::vector<int> const& tokens);
  /// The text: it reads back to the same words. A list has one text only, so the flag is without
  /// effect.
  CString String(bool = false) const { return WriteListTokens(m_text.Tokens()); }

  /// Number of words; the words, from 0. One that the list has not is std::out_of_range.
  int NumWord() const { return static_cast<int>(Word().size()); }
  int Word(int i) const;
  std::vector<int> const& Word() const { return m_text.Tokens().words; }
  /// The i-th of the quoted names, from 0.
  CString const& StringRef(int i) const;

  /// Whether the list is the word "all" alone.
  bool IsAll() const;
  /// Whether the list names nothing: no word, or "none".
  bool IsEmpty() const;

  /// Appends a number or a keyword; "none" gives way to it, and a word that would take it is ended
  /// with "or". A token that can't stand at the end of a list is std::out_of_range.
  void AddTo(int token);
  /// Replaces the words by the compact text of a set.
  void AssignFromSet(Util::CSet const& set);

  /// The n-th of the numbers or cases, from 0, that the last Util::NumItem of this list counted;
  /// std::out_of_range when the list changed since or has not so many.
  int Item(int n) const;
  SCaseRef Case(int n) const;
  /// Whether all words are numbers, so that the list can be changed number by number.
  bool IsPlain() const;
  /// For a list that needs no model: how many of its words are numbers that stand alone, and what
  /// it selects. So the count is NumWord() for a list of plain numbers, and only then.
  /// @return false, and nothing told, for a list that needs one.
  bool CheckSimpleList(int& count, Util::CSet& set) const;
  /// Makes the list be expanded anew when it is next asked for.
  void FlagRebuild();

  /// The text of the list of everything.
  static CString All() { return L"all"; }
  /// Whether a keyword behind this token needs no blank between them.
  static bool IsWordSuffixOptional(int token) { return IsPrefixWord(token); }

  /// What makes the list no record that a file may hold, empty when nothing does.
  CString Fault() const;

  friend bool operator==(CEntList const& a, CEntList const& b) { return Same(a, b); }

 protected:
  template <class Record>
  static constexpr auto KindField() {
    return Plain<Record>("kind", &CEntList::m_kind);
  }
  template <class Record>
  static constexpr auto TextField() {
    return Plain<Record>("text", &CEntList::m_text);
  }

 public:
  static constexpr auto Fields() {
    return JoinRows(NamedFields<CEntList>(),
                    MakeRows(KindField<CEntList>(), TextField<CEntList>()));
  }

 private:
  friend struct ListAccess;

  /// Puts changed tokens in.
  void Change(ListTokens tokens);

  SelType m_kind = SelNone;
  ListText m_text;
  mutable KeptExpansions m_kept;
};

/// The store's own way to what lists keep for it.
struct ListAccess {
  static ListText const& Text(CEntList const& list) { return list.m_text; }
  using Pointer = KeptExpansions::Pointer;
  static void SetLast(CEntList const& list, Pointer numbers) {
    auto kept = list.m_kept.Get();
    Keep(list, kept, kept.counted, std::move(numbers));
  }
  static void Pin(CEntList const& list, bool panels, Pointer numbers) {
    auto kept = list.m_kept.Get();
    Keep(list, kept, kept.walked[panels ? 1 : 0], std::move(numbers));
  }
  /// Replaces the words by others of the right form.
  static void Change(CEntList& list, ListTokens tokens) { list.Change(std::move(tokens)); }

 private:
  static void Keep(CEntList const& list, KeptExpansions::All& all, Pointer& place,
                   Pointer numbers) {
    if (place == numbers) return;
    place = std::move(numbers);
    list.m_kept.Set(all);
  }
};

}  // namespace Tarvex::Data
