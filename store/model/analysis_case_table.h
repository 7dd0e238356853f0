// The table of analysis cases, keyed by references to cases.
#pragma once

#include <utility>

#include "store/record/cases.h"
#include "store/select/reference.h"
#include "store/table/paged_table.h"

namespace Tarvex {

/// A view of the analysis cases of a model, in ascending number; good as long as the model is.
class AnalysisCaseTable {
 public:
  using Table = tarvex_unordered_map<unsigned int, Zel::CAnalysisCase>;
  using value_type = std::pair<SCaseRef, Zel::CAnalysisCase const&>;

  explicit AnalysisCaseTable(Table const& table) : m_table(&table) {}

  class Iterator {
   public:
    Iterator(Table const* table, int number) : m_table(table), m_number(number) {}

    value_type operator*() const {
      return {SCaseRef(CaseOp::Analysis, m_number), *m_table->Find(m_number)};
    }
    Iterator& operator++() {
      m_number = m_table->Next(m_number);
      return *this;
    }
    friend bool operator==(Iterator const&, Iterator const&) = default;

   private:
    Table const* m_table;
    int m_number;  // 0 behind the last
  };

  Iterator begin() const { return {m_table, m_table->Next(0)}; }
  Iterator end() const { return {m_table, 0}; }
  std::size_t size() const { return m_table->size(); }
  /// end() for a reference that names no analysis case.
  Iterator find(SCaseRef const& ref) const {
    bool const is = ref.CaseType() == CaseOp::Analysis && m_table->Exist(ref.Case());
    return is ? Iterator(m_table, ref.Case()) : end();
  }

 private:
  Table const* m_table;
};

}  // namespace Tarvex
