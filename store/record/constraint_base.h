// What constraints that act in stages have in common.
#pragma once

#include "store/record/held_list.h"

namespace Tarvex::Data {

/// A named record that acts in the stages of a list, at first in all.
class CStagedEntity : public NamedEntity {
 public:
  /// The stages, a list without a kind.
  Storage<CEntList> const& Stage() const { return m_stage; }
  /// Throws std::invalid_argument for a list with a kind that names something.
  void SetStage(CEntList const& stages) { m_stage.Put(stages); }

 protected:
  CStagedEntity() = default;
  CStagedEntity(CString const& name, CEntList const& stages) : NamedEntity(0, name) {
    m_stage.Put(stages);
  }

  /// The field of the base, which comes last.
  template <class Record>
  static constexpr auto StageField() {
    return MakeRows(Reference<Record, CModule::AnalStage>("stage", &CStagedEntity::m_stage));
  }

 private:
  ListOf<SelNone> m_stage{CEntList::All()};
};

}  // namespace Tarvex::Data
