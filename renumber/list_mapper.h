// Selection lists with new numbers.
#pragma once

#include <array>
#include <optional>

#include "renumber/list_word_text.h"
#include "renumber/number_runs.h"
#include "renumber/schemes.h"
#include "store/model/zel_data.h"
#include "store/record/ent_list.h"

namespace Tarvex {

/// Rewrites lists by schemes. What the numbers were is asked of the model before the run. Compact
/// lists stay compact: a range is written out only where its numbers do not move alike.
class ListMapper {
 public:
  using Id = CModule::ModuleId;

  ListMapper(Schemes const& schemes, CZelData const& before, bool refOnly)
      : m_schemes(schemes), m_before(before), m_refOnly(refOnly) {}

  /// As CRenumber::MapList.
  Data::CEntList Map(Data::CEntList const& list, Id module = CModule::None,
                     Id propertyModule = CModule::None);
  /// As CRenumber::ListPreconversion.
  Data::CEntList Preconvert(Data::CEntList list);
  /// As CRenumber::MapWord.
  CString MapWord(Data::CEntList const& list, int token, Id& module, int& string,
                  Id propertyModule) const;

 private:
  friend class ListTextMapper;

  bool StaysAsItIs(Data::CEntList const& list) const;
  Data::CEntList MapUntyped(Data::CEntList const& list, Id module) const;
  Data::CEntList MapExpanded(Data::CEntList const& list) const;
  /// The new numbers of some, in a list that is otherwise a given one.
  Data::CEntList MapNumbers(Data::CEntList const& list, Intervals const& numbers) const;
  Data::CEntList MapText(Data::CEntList const& list, Id propertyModule);
  /// Appends a token with its new number. @return false, and nothing appended, for one that goes.
  bool AppendMapped(std::wstring& text, Data::CEntList const& list, int token, Id& module,
                    int& string, Id propertyModule) const;
  /// The range that begins at a place of a list, where "*" is the highest number of the kind;
  /// nothing when none does. @param stepped whether it must have a step, else it may.
  std::optional<NumberRange> RangeAt(Data::CEntList const& list, int place, bool stepped) const;
  void WriteOutStepped(Data::CEntList& list);
  void WriteOutRanges(Data::CEntList& list);
  NumberRuns const& RunsOf(SelType kind);

  Schemes const& m_schemes;
  CZelData const& m_before;
  bool m_refOnly;
  std::array<std::optional<NumberRuns>, SelMember + 1> m_runs;
};

}  // namespace Tarvex
