// Saved views of a model: what is drawn and what results are output.
#pragma once

#include <vector>

#include "store/record/held_list.h"

namespace Tarvex::Data {

/// One thing that a view shows, in an axis.
class ViewItem {
 public:
  /// Number of the axis, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }

  friend bool operator==(ViewItem const& a, ViewItem const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Reference<ViewItem, CModule::Axis>("axis", &ViewItem::m_axis));
  }

 private:
  int m_axis = 0;
};

/// Something that a graphic view draws.
class CGrData : public ViewItem {};
/// Something that an output view tells.
class COpData : public ViewItem {};

/// What views have in common: the entities that they show, at first all. The setters give false,
/// and leave the list as it was, for a list of another kind that names something.
class EntityView : public NamedEntity {
 public:
  CEntList const& Nodes() const { return m_nodes; }
  bool SetNodes(CEntList const& nodes) { return m_nodes.Take(nodes); }
  CEntList const& Elements() const { return m_elements; }
  bool SetElements(CEntList const& elements) { return m_elements.Take(elements); }
  CEntList const& Members() const { return m_members; }
  bool SetMembers(CEntList const& members) { return m_members.Take(members); }

 protected:
  EntityView() = default;
  explicit EntityView(CString const& name) : NamedEntity(0, name) {}
  ~EntityView() = default;
  EntityView(EntityView const&) = default;
  EntityView(EntityView&&) noexcept = default;
  EntityView& operator=(EntityView const&) = default;
  EntityView& operator=(EntityView&&) noexcept = default;

  template <class Record>
  static constexpr auto ViewFields() {
    return JoinRows(NamedFields<Record>(),
                    MakeRows(Plain<Record>("nodes", &EntityView::m_nodes),
                             Plain<Record>("elements", &EntityView::m_elements),
                             Plain<Record>("members", &EntityView::m_members)));
  }

 private:
  ListOf<SelNode> m_nodes{CEntList::All()};
  ListOf<SelElement> m_elements{CEntList::All()};
  ListOf<SelMember> m_members{CEntList::All()};
};

/// A graphic view.
class TARVEX_STORE_EXPORT CGrView : public EntityView {
 public:
  CGrView() = default;
  explicit CGrView(CString const& name) : EntityView(name) {}

  /// Entities that are picked out, at first none.
  CEntList const& HiLiteElements() const { return m_hiLiteElements; }
  bool SetHiLiteElements(CEntList const& elements) { return m_hiLiteElements.Take(elements); }
  CEntList const& HiLiteMembers() const { return m_hiLiteMembers; }
  bool SetHiLiteMembers(CEntList const& members) { return m_hiLiteMembers.Take(members); }

  int NumGrData() const { return static_cast<int>(m_data.size()); }
  /// What the view draws, from 0; std::out_of_range for a place that there is not.
  CGrData const& GrData(int index) const;
  /// Replaces an item, or appends it at NumGrData(); std::out_of_range beyond.
  void SetGrData(int index, CGrData const& data);

  friend bool operator==(CGrView const& a, CGrView const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ViewFields<CGrView>(),
                    MakeRows(Plain<CGrView>("hiLiteElements", &CGrView::m_hiLiteElements),
                             Plain<CGrView>("hiLiteMembers", &CGrView::m_hiLiteMembers),
                             Plain<CGrView>("data", &CGrView::m_data)));
  }

 private:
  ListOf<SelElement> m_hiLiteElements;
  ListOf<SelMember> m_hiLiteMembers;
  std::vector<CGrData> m_data;
};

/// An output view.
class TARVEX_STORE_EXPORT COpView : public EntityView {
 public:
  COpView() = default;
  explicit COpView(CString const& name) : EntityView(name) {}

  /// Number of the axis that all is told in, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }

  int NumOpData() const { return static_cast<int>(m_data.size()); }
  /// What the view tells, from 0; std::out_of_range for a place that there is not.
  COpData const& OpData(int index) const;
  /// Replaces an item, or appends it at NumOpData(); std::out_of_range beyond.
  void SetOpData(int index, COpData const& data);

  friend bool operator==(COpView const& a, COpView const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ViewFields<COpView>(),
                    MakeRows(Reference<COpView, CModule::Axis>("axis", &COpView::m_axis),
                             Plain<COpView>("data", &COpView::m_data)));
  }

 private:
  int m_axis = 0;
  std::vector<COpData> m_data;
};

}  // namespace Tarvex::Data
