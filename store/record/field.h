// One description of a record's fields.
//
// A record class lists its fields once, in a static function Fields() that gives a pack of Field
// rows. Equality, difference, model files, their schema and the integrity check are made from it.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

#include "store/numeric/vec.h"
#include "store/record/row_pack.h"
#include "store/select/module_id.h"

namespace Tarvex {

/// One field of a record.
template <class Record, class T>
struct Field {
  using Value = T;
  /// Table that a reference points into, asked of the record since it may depend on its type.
  using Target = CModule::ModuleId (*)(Record const&);

  std::string_view name;  ///< key in model files
  T Record::*member;
  bool required = false;    ///< must stand in a file
  Target target = nullptr;  ///< not null: the number, or each number of a list, is a reference
};

/// The target of a reference into one table, whatever the record.
template <class Record, CModule::ModuleId Module>
constexpr CModule::ModuleId PointsInto(Record const&) {
  return Module;
}

/// A field that is a plain value.
template <class Record, class T, class Base>
constexpr Field<Record, T> Plain(std::string_view name, T Base::*member) {
  return {name, member};
}

/// A plain field without which a record in a file is faulty.
template <class Record, class T, class Base>
constexpr Field<Record, T> Required(std::string_view name, T Base::*member) {
  return {name, member, true};
}

/// A field that names records of one table.
template <class Record, CModule::ModuleId Module, class T, class Base>
constexpr Field<Record, T> Reference(std::string_view name, T Base::*member,
                                     bool required = false) {
  return {name, member, required, &PointsInto<Record, Module>};
}

/// A type that describes its own fields.
template <class T>
concept Described = requires {
  T::Fields();
};

/// The field rows of a record class, made once.
template <Described Record>
inline constexpr auto kFieldsOf = Record::Fields();

/// Calls visit(row) for each field of a record class.
template <Described Record, class Visit>
constexpr void ForEachField(Visit&& visit) {
  kFieldsOf<Record>.ForEach(visit);
}

/// Equality to the bit: 0 and -0 differ. The store's promise is that undo, copies and files give
/// back the very same numbers.
inline bool Same(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}
inline bool Same(Vec2<double> a, Vec2<double> b) { return Same(a.x, b.x) && Same(a.y, b.y); }
inline bool Same(Vec3<double> const& a, Vec3<double> const& b) {
  return Same(a.x, b.x) && Same(a.y, b.y) && Same(a.z, b.z);
}
template <std::size_t N>
bool Same(std::array<double, N> const& a, std::array<double, N> const& b) {
  for (std::size_t i = 0; i < N; ++i)
    if (!Same(a[i], b[i])) return false;
  return true;
}
template <class T>
bool Same(T const& a, T const& b);
template <class T>
bool Same(std::vector<T> const& a, std::vector<T> const& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](T const& x, T const& y) { return Same(x, y); });
}
template <class T>
bool Same(T const& a, T const& b) {
  if constexpr (Described<T>)
    return kFieldsOf<T>.All([&](auto const& row) { return Same(a.*row.member, b.*row.member); });
  else
    return a == b;
}

}  // namespace Tarvex
