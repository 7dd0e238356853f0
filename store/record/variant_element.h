// One view of elements and load panels, which share their numbers.
#pragma once

#include <optional>
#include <variant>

#include "store/export.h"
#include "store/record/element.h"
#include "store/record/load_panel.h"

namespace Tarvex {

/// The element type of a variant type; empty for the load panel and for a value of neither.
TARVEX_STORE_EXPORT std::optional<ElementType> ToElementType(VariantElementType type);
/// The variant type of an element type.
TARVEX_STORE_EXPORT VariantElementType ToVariantType(ElementType type);

namespace Data {

/// Owning copy of an element or a load panel.
class TARVEX_STORE_EXPORT VariantElementValue {
 public:
  VariantElementValue(CElement element) : m_value(std::move(element)) {}  // NOLINT: either converts
  VariantElementValue(LoadPanel panel) : m_value(std::move(panel)) {}     // NOLINT

  bool IsLoadPanel() const { return std::holds_alternative<LoadPanel>(m_value); }
  /// The record, null when it is of the other class.
  CElement const* Element() const { return std::get_if<CElement>(&m_value); }
  LoadPanel const* Panel() const { return std::get_if<LoadPanel>(&m_value); }

  friend bool operator==(VariantElementValue const&, VariantElementValue const&) = default;

 private:
  std::variant<CElement, LoadPanel> m_value;
};

/// Read-only view of an element or a load panel; good as long as the record is.
class TARVEX_STORE_EXPORT VariantElementConstRef {
 public:
  explicit VariantElementConstRef(CElement const& element) : m_element(&element) {}
  explicit VariantElementConstRef(LoadPanel const& panel) : m_panel(&panel) {}

  bool IsLoadPanel() const { return m_panel != nullptr; }
  CElement const* Element() const { return m_element; }
  LoadPanel const* Panel() const { return m_panel; }

  /// Shape of an element, empty for a panel.
  std::optional<ElementType> Type() const;
  VariantElementType VariantType() const;
  bool Is2D() const { return IsLoadPanel() || m_element->Is2D(); }
  bool IsDummy() const;
  int Group() const;
  int Property() const;
  TopoVector const& Topology() const;
  double OrientationAngle() const;

  // What a load panel has not is empty.
  std::optional<int> OrientationNode() const;
  std::optional<COffset> Offset() const;
  std::optional<CElemConnect> Connect(int place) const;
  bool CanGetConnect() const { return !IsLoadPanel(); }
  bool CanGetOffset() const { return !IsLoadPanel(); }

  /// A copy as another type. A panel of an element takes the corners only and keeps name,
  /// identifier, colour, group, property, dummy state, angle and parent member; so does an element
  /// of a panel, with as many nodes as its type has. Between elements it is CElement::SetType.
  VariantElementValue CopyAsType(VariantElementType type) const;

 private:
  LoadPanel CopyAsPanel() const;
  CElement CopyAsElement(ElementType type) const;

  CElement const* m_element = nullptr;
  LoadPanel const* m_panel = nullptr;
};

}  // namespace Data
}  // namespace Tarvex
