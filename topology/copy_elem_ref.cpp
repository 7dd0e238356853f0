// Copies of elements beside the elements.
#include <array>
#include <unordered_set>

#include "store/model/undo_step.h"
#include "tarvex/data_mgr.h"
#include "topology/list_copy.h"
#include "topology/list_fields.h"

namespace Tarvex {
namespace {

using Copies = CDataMgr::NumberMap;
using namespace ListFields;

/// A list that gains copies.
struct CopyRow {
  ListField field;
  bool elementsOnly;  ///< a list of another kind is passed over
  bool bySelected;    ///< by what it selects before anything is added
  bool savedList = false;
};

constexpr std::array kCopyRows{
    CopyRow{kSavedLists, true, false, true}, CopyRow{kGridSurface, false, false},
    CopyRow{kAnalStage, false, false},       CopyRow{kBeamLoad, true, true},
    CopyRow{kAxialLoad, true, false},        CopyRow{kBeamDist, true, true},
    CopyRow{kBeamThermalLoad, true, false},  CopyRow{kEdgeLoad, true, false},
    CopyRow{kFaceLoad, true, true},          CopyRow{kInPlaneLoad, true, true},
    CopyRow{kFaceThermalLoad, true, false},  CopyRow{kGravityEntities, true, true},
};

bool CopyInRecord(CZelData& model, CopyRow const& row, int n, Copies const& copies) {
  Data::CEntList list(row.field.read(model, n));
  if (row.elementsOnly && list.TypeOf() != SelElement) return false;
  bool const grown = row.bySelected ? AddCopiesOfSelected(list, copies, model)
                                    : AddCopies(list, SelElement, copies, model);
  if (grown) row.field.write(model, n, list);
  return grown;
}

/// The copies of what a list of elements includes, without those that it includes itself.
Data::CEntList CopiesIn(Data::CEntList const& list, Copies const& copies, CZelData const& model) {
  Data::CEntList found(SelElement, L"");
  std::unordered_set<int> added;
  auto const includes = [&](int number) {
    return Util::IsItemIncluded(list, {SelElement, number}, model, -1, false);
  };
  for (auto const& [number, copy] : copies)
    if (includes(number) && !includes(copy) && added.insert(copy).second) found.AddTo(copy);
  return found;
}

/// Makes an interface for the copies. A side that has none keeps its list.
bool CopyTied(CZelData& model, int n, Copies const& copies) {
  auto tied = model.TiedInterface(n);
  auto const constrained = CopiesIn(tied.ConstrainedEntities(), copies, model);
  auto const primary = CopiesIn(tied.PrimaryElements(), copies, model);
  if (constrained.IsEmpty() && primary.IsEmpty()) return false;
  if (!constrained.IsEmpty()) tied.SetConstrainedEntities(constrained);
  if (!primary.IsEmpty()) tied.SetPrimaryElements(primary);
  model.SetTiedInterface(model.HighestTiedInterface() + 1, tied);
  return true;
}

}  // namespace

bool CDataMgr::CopyElemRef(NumberMap const& copies, bool lists, bool tied, bool loads) const {
  CUndoStep step(m_model, false);
  bool changed = false;
  for (auto const& row : kCopyRows) {
    if (!(row.savedList ? lists : loads)) continue;
    auto const copy = [&](int n) { return CopyInRecord(m_model, row, n, copies); };
    if (WalkDown(m_model, row.field, copy)) changed = true;
  }
  if (tied) {
    auto const copy = [&](int n) { return CopyTied(m_model, n, copies); };
    if (WalkDown(m_model, kTiedConstrained, copy)) changed = true;
  }
  step.Accept();
  return changed;
}

}  // namespace Tarvex
