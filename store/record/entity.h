// Common bases of the records.
#pragma once

#include "store/record/field.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// Base of every record: a text identifier, a lock and the number it was stored under.
class BaseEntity {
 public:
  BaseEntity() = default;
  explicit BaseEntity(unsigned int number) : m_number(number) {}

  /// Text identifier, free for the application.
  CString const& Sid() const { return m_sid; }
  void SetSid(CString const& sid) { m_sid = sid; }

  /// Protection against deletion for the time of one tool; no part of equality or files.
  void Lock(bool on) { m_locked = on; }
  bool IsLocked() const { return m_locked; }

  /// Number that the record was last stored under, 0 for one that never was; no part of equality or
  /// files.
  unsigned int Number() const { return m_number; }

 protected:
  ~BaseEntity() = default;
  BaseEntity(BaseEntity const&) = default;
  BaseEntity(BaseEntity&&) noexcept = default;
  BaseEntity& operator=(BaseEntity const&) = default;
  BaseEntity& operator=(BaseEntity&&) noexcept = default;

  template <class Record>
  static constexpr auto SidField() {
    return Plain<Record>("sid", &BaseEntity::m_sid);
  }

 private:
  friend struct StoreAccess;

  CString m_sid;
  unsigned int m_number = 0;
  bool m_locked = false;
};

/// A colour, red first: 0xRRGGBB.
struct Colour {
  unsigned int rgb = 0;
  friend bool operator==(Colour, Colour) = default;
};

/// Base of the records that have a name.
class NamedEntity : public BaseEntity {
 public:
  NamedEntity() = default;
  NamedEntity(unsigned int number, CString const& name) : BaseEntity(number), m_name(name) {}

  CString const& Name() const { return m_name; }
  void SetName(CString const& name) { m_name = name; }
  /// Red-first 24-bit colour; higher bits are dropped.
  unsigned long GetColour() const { return m_colour.rgb; }
  void SetColour(unsigned long rgb) { m_colour.rgb = static_cast<unsigned int>(rgb & 0xFFFFFF); }

 protected:
  ~NamedEntity() = default;
  NamedEntity(NamedEntity const&) = default;
  NamedEntity(NamedEntity&&) noexcept = default;
  NamedEntity& operator=(NamedEntity const&) = default;
  NamedEntity& operator=(NamedEntity&&) noexcept = default;

  /// Fields of the bases, which come first in every record.
  template <class Record>
  static constexpr auto NamedFields() {
    return MakeRows(Plain<Record>("name", &NamedEntity::m_name), SidField<Record>(),
                    Plain<Record>("colour", &NamedEntity::m_colour));
  }

 private:
  CString m_name;
  Colour m_colour;
};

/// The store's own way to what records keep for it.
struct StoreAccess {
  static void SetNumber(BaseEntity& record, int number) {
    record.m_number = static_cast<unsigned int>(number);
  }
  static void ClearSid(BaseEntity& record) { record.m_sid = CString(); }
};

}  // namespace Tarvex
