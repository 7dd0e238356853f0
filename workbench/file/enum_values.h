// The values that an enumeration knows.
#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "store/record/element_shape.h"
#include "store/record/mat_design.h"

namespace Tarvex::Workbench {

/// Enumerators are looked for from 0 to below this.
inline constexpr int kEnumRange = 64;

/// Whether an enumeration has a name for a value. The compiler writes the name into the signature
/// of this function, or a number (perhaps behind a cast in parentheses) where it has none.
template <class E, E Value>
constexpr bool HasEnumerator() {
  constexpr std::string_view kSignature = __PRETTY_FUNCTION__;
  constexpr auto kBegin = kSignature.rfind("Value = ") + 8;
  constexpr char kFirst = kSignature[kBegin];
  return kFirst != '(' && kFirst != '-' && (kFirst < '0' || kFirst > '9');
}

/// The values of an enumeration, ascending: its enumerators.
template <class E>
struct EnumValues {
  static constexpr auto Get() {
    return []<int... I>(std::integer_sequence<int, I...>) {
      constexpr bool kNamed[] = {HasEnumerator<E, static_cast<E>(I)>()...};
      constexpr std::size_t kCount = (std::size_t{kNamed[I]} + ...);
      std::array<int, kCount> values{};
      std::size_t next = 0;
      for (int i = 0; i < kEnumRange; ++i)
        if (kNamed[i]) values[next++] = i;
      return values;
    }
    (std::make_integer_sequence<int, kEnumRange>());
  }
};

/// Every number of a type is one that elements may have, with or without a name and a shape.
template <>
struct EnumValues<ElementType> {
  static constexpr auto Get() {
    std::array<int, kHighestElementType> values{};
    for (int i = 0; i < kHighestElementType; ++i) values[static_cast<std::size_t>(i)] = i + 1;
    return values;
  }
};

/// One of the types of a material lies below 0.
template <>
struct EnumValues<MatType> {
  static constexpr auto Get() { return std::array{-2, 0, 1, 2, 3, 4, 5, 6, 7, 8}; }
};

}  // namespace Tarvex::Workbench
