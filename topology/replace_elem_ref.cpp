// New elements in the place of old ones.
#include <array>

#include "store/model/undo_step.h"
#include "tarvex/data_mgr.h"
#include "topology/list_fields.h"

namespace Tarvex {
namespace {

/// A list of elements, and when it is rewritten.
struct ElementListRow {
  ListField field;
  bool elementsOnly;     ///< a list of another kind is passed over
  bool mapped;           ///< a load that has a mapping of its own
  bool readsOn = false;  ///< the row before is of the same record, which is read again here
};

using namespace ListFields;

constexpr std::array kElementListRows{
    ElementListRow{kSavedLists, true, false},
    ElementListRow{kGridSurface, false, false},
    ElementListRow{kAnalStage, false, false},
    ElementListRow{kAssembly, false, false},
    ElementListRow{kTiedConstrained, false, false},
    ElementListRow{kTiedPrimary, false, false, true},
    ElementListRow{kBeamLoad, true, true},
    ElementListRow{kAxialLoad, true, false},
    ElementListRow{kBeamDist, false, true},
    ElementListRow{kBeamThermalLoad, true, false},
    ElementListRow{kEdgeLoad, false, true},
    ElementListRow{kFaceLoad, true, true},
    ElementListRow{kInPlaneLoad, true, false},
    ElementListRow{kFaceThermalLoad, true, true},
    ElementListRow{kGravityEntities, true, false},
};

bool ReplaceInRecord(CZelData& model, ElementListRow const& row, int n,
                     CDataMgr::NumberLists const& numbers) {
  if (row.elementsOnly && row.field.read(model, n).TypeOf() != SelElement) return false;
  return ReplaceInField(model, row.field, n, numbers);
}

/// Walks the table of a row. The second list of a record is rewritten directly behind the first:
/// under the same number, which is another record's when the first took the record with it.
bool ReplaceInTable(CZelData& model, ElementListRow const& row, ElementListRow const* second,
                    CDataMgr::NumberLists const& numbers) {
  return WalkDown(model, row.field, [&](int n) {
    bool changed = ReplaceInRecord(model, row, n, numbers);
    if (second != nullptr && n <= (model.*second->field.highest)())
      changed = ReplaceInRecord(model, *second, n, numbers) || changed;
    return changed;
  });
}

}  // namespace

bool CDataMgr::ReplaceElemRef(NumberLists const& numbers, bool mapped) const {
  CUndoStep step(m_model, false);
  bool changed = false;
  for (std::size_t i = 0; i < kElementListRows.size(); ++i) {
    auto const& row = kElementListRows[i];
    if (row.readsOn || (row.mapped && !mapped)) continue;
    bool const hasSecond = i + 1 < kElementListRows.size() && kElementListRows[i + 1].readsOn;
    if (ReplaceInTable(m_model, row, hasSecond ? &kElementListRows[i + 1] : nullptr, numbers))
      changed = true;
  }
  step.Accept();
  return changed;
}

}  // namespace Tarvex
