// Coincident nodes merged or joined.
#include <algorithm>
#include <optional>
#include <span>
#include <stdexcept>

#include "frame/rebuild_hold.h"
#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tarvex/coincidence.h"
#include "tarvex/renumber.h"
#include "topology/coincidence_run.h"
#include "topology/item_extents.h"

namespace Tarvex {
namespace {

/// What a node that stays takes over from one that goes.
struct MergeRule {
  Vbool6 (*restraint)(Vbool6 kept, Vbool6 removed);
  int (*property)(int kept, int removed);
  double (*size)(double kept, double removed);
};

constexpr MergeRule kGreater{[](Vbool6 kept, Vbool6 removed) { return kept | removed; },
                             [](int kept, int removed) { return std::max(kept, removed); },
                             [](double kept, double removed) { return std::max(kept, removed); }};
constexpr MergeRule kLesser{[](Vbool6 kept, Vbool6 removed) { return kept & removed; },
                            [](int kept, int removed) { return std::min(kept, removed); },
                            [](double kept, double removed) { return std::min(kept, removed); }};

/// The fields of a node that a merge can change. They are compared before the record is copied:
/// most nodes that merge are alike in them.
struct MergeFields {
  explicit MergeFields(Data::CNode const& node)
      : restraint(node.Restraint()),
        spring(node.SpringProperty()),
        mass(node.MassProperty()),
        damper(node.DamperProperty()),
        size(node.MeshSize()) {}
  friend bool operator==(MergeFields const&, MergeFields const&) = default;

  Vbool6 restraint;
  int spring;
  int mass;
  int damper;
  double size;
};

MergeFields Merged(Data::CNode const& kept, Data::CNode const& removed, MergeRule const& rule) {
  MergeFields fields(kept);
  MergeFields const others(removed);
  if (kept.Axis() == removed.Axis())
    fields.restraint = rule.restraint(fields.restraint, others.restraint);
  fields.spring = rule.property(fields.spring, others.spring);
  fields.mass = rule.property(fields.mass, others.mass);
  fields.damper = rule.property(fields.damper, others.damper);
  fields.size = rule.size(fields.size, others.size);
  return fields;
}

bool IsMerge(CReduceCoinc::Option option) {
  return option == CReduceCoinc::OptionMergeMax || option == CReduceCoinc::OptionMergeMin ||
         option == CReduceCoinc::OptionMergeKeep;
}

}  // namespace

CReduceCoinc::CReduceCoinc(CZelData& model, double tolerance, int stage)
    : m_model(model), m_tolerance(tolerance), m_stage(stage) {}
CReduceCoinc::CReduceCoinc(CReduceCoinc const&) = default;
CReduceCoinc::CReduceCoinc(CReduceCoinc&&) noexcept = default;
CReduceCoinc::~CReduceCoinc() = default;

void CReduceCoinc::SetOrderVector(Vec3<double> const& vector) {
  m_extents.reset();
  m_order.SetOrderVector(vector);
}

bool CReduceCoinc::SetSearchSet(Util::CSet const& set, int flags) {
  m_extents.reset();
  if ((flags & kTakeSet) != 0) m_order.SetSet(set, m_model, true);
  if ((flags & kFindOrder) != 0 && !m_order.CalcOrderVector(m_model)) return false;
  if ((flags & kTakeSet) != 0) m_order.CreateList(m_model);
  if ((flags & kSortList) != 0) m_order.Sort();
  return true;
}

bool CReduceCoinc::AddToSearchSet(int number) {
  m_extents.reset();
  return m_order.AddToSet(number, m_model);
}

bool CReduceCoinc::RemoveFromSearchSet(int number) { return m_order.RemoveFromSet(number); }

/// Lets a walk process items; then references change, when nodes were merged.
/// @param pairs what the walk appends to it was merged.
template <class Walk>
bool CReduceCoinc::RunOver(std::vector<std::pair<int, int>>& pairs, Walk&& walk) {
  bool const merging = IsMerge(m_option);
  std::optional<RebuildHold> hold;  // attachments would be worked out, and out of date at once
  if (merging) hold.emplace(m_model);
  auto const before = pairs.size();
  bool did = false;
  {
    Run run(m_model, m_order, m_tolerance, m_stage);
    did = walk(run);
  }
  if (!did || !merging) return did;
  CRenumber renumber(&m_model);
  renumber.Index(Data::CEntList(m_order.TypeOf(), CString()), CModule::None);
  renumber.IndexItems(EntModId(SelNode), std::span(pairs).subspan(before));
  renumber.Go(false);
  return true;
}

/// Finds the neighbours of all nodes along the list, where memory is read in its order, when the
/// search set is among the items and so each node of it is asked for.
///
/// A search and joints leave the set as it is; a node that a joint of the run ties gets no other
/// one. In a merge from the highest number down, no node that is still to come leaves the set, and
/// each that has passed near it has left: it found one, this node at least, and that one was lower,
/// since any higher one near it had left before for the same reason. So the nodes with lower
/// numbers are those that a node finds in the set.
void CReduceCoinc::Foresee(Util::CSet const& items, bool merging, Run& run) const {
  if (m_order.TypeOf() != SelNode || !m_order.IsSorted()) return;
  auto const isItem = [&](int number) { return items.IsItemIncluded(number); };
  if (!std::ranges::all_of(m_order.Set(), isItem)) return;
  run.FindAll(merging ? NodeSweep::Among::Lower : NodeSweep::Among::All);
}

bool CReduceCoinc::Do(Util::CSet const& items, std::vector<std::pair<int, int>>& pairs) {
  return RunOver(pairs, [&](Run& run) {
    bool did = false;
    int const lowest = items.LowestItem();
    Foresee(items, IsMerge(m_option), run);
    // What a merge takes out was passed before: no number comes up that is gone.
    for (int n = items.HighestItem(); n >= lowest && n > 0; --n) {
      if (items.IsItemIncluded(n) && DoItem(n, run, pairs)) did = true;
    }
    return did;
  });
}

bool CReduceCoinc::Do(int first, int count) {
  std::vector<std::pair<int, int>> pairs;
  return RunOver(pairs, [&](Run& run) {
    bool did = false;
    for (int left = count; left > 0; --left)
      if (DoItem(first + (left - 1), run, pairs)) did = true;
    return did;
  });
}

std::vector<std::pair<int, int>> CReduceCoinc::FindAllCoinc(Util::CSet const& items) const {
  Run run(m_model, m_order, m_tolerance, m_stage);
  Foresee(items, false, run);
  std::vector<std::pair<int, int>> found;
  for (int const n : items)
    if (int const other = FindIn(run, n); other != 0) found.emplace_back(n, other);
  return found;
}

/// As FindCoinc, with what a run keeps at hand.
int CReduceCoinc::FindIn(Run& run, int item) const {
  int const place = m_order.GetIndexFromRef(item);
  bool const listed = m_order.TypeOf() == SelNode && place >= 0;
  return listed ? run.Nearest(item, place) : FindCoinc(item, false);
}

bool CReduceCoinc::DoItem(int item, Run& run, std::vector<std::pair<int, int>>& pairs) {
  int const other = FindIn(run, item);
  if (other == 0) return false;
  bool const merging = IsMerge(m_option);
  if (!merging && m_option != OptionJoint) return true;
  if (m_order.TypeOf() != SelNode) throw std::out_of_range("bad entity type");
  if (!merging) return Join(item, other, run);
  int const removed = std::max(item, other);
  int const kept = std::min(item, other);
  Merge(removed, kept, run);
  pairs.emplace_back(removed, kept);
  m_order.RemoveFromSet(removed);
  return true;
}

void CReduceCoinc::Merge(int removed, int kept, Run& run) {
  if (m_option == OptionMergeKeep || run.AreBare(removed, kept)) return;
  auto const& node = m_model.Node(kept);
  auto const fields =
      Merged(node, m_model.Node(removed), m_option == OptionMergeMin ? kLesser : kGreater);
  if (fields == MergeFields(node)) return;
  Data::CNode changed(node);
  changed.SetRestraint(fields.restraint);
  changed.SetSpringProperty(fields.spring);
  changed.SetMassProperty(fields.mass);
  changed.SetDamperProperty(fields.damper);
  changed.SetMeshSize(fields.size);
  m_model.SetNode(kept, changed);
  run.TookOver(kept);
}

bool CReduceCoinc::Join(int item, int other, Run& run) {
  if (run.IsConstrained(item) || run.IsConstrained(other)) return false;
  run.AddJoint(other, item);
  auto const restraint = m_model.Node(item).Restraint();
  auto const& primary = m_model.Node(other);
  if (!restraint.IsNone() && m_model.Node(item).Axis() == primary.Axis())
    m_model.SetNodeRestraint(other, primary.Restraint() | restraint);
  return true;
}

}  // namespace Tarvex
