// Rows of different types in one object, which is how records list their fields and the model its
// tables. A std::tuple does the same, but so general that every file with the model in it would
// compile for seconds longer.
#pragma once

#include <cstddef>
#include <utility>

namespace Tarvex {

/// One row of a pack at its place.
template <std::size_t I, class Row>
struct RowAt {
  Row row;
};

template <class Places, class... Rows>
struct RowPackOf;

template <std::size_t... I, class... Rows>
struct RowPackOf<std::index_sequence<I...>, Rows...> : RowAt<I, Rows>... {
  static constexpr std::size_t kSize = sizeof...(Rows);

  /// Calls visit(row) for each row in their order.
  template <class Visit>
  constexpr void ForEach(Visit&& visit) const {
    (visit(static_cast<RowAt<I, Rows> const&>(*this).row), ...);
  }

  /// Whether test(row) is true for each row; asks no further than the first for which it is not.
  template <class Test>
  constexpr bool All(Test&& test) const {
    return (test(static_cast<RowAt<I, Rows> const&>(*this).row) && ...);
  }
};

template <class... Rows>
using RowPack = RowPackOf<std::index_sequence_for<Rows...>, Rows...>;

template <class... Rows>
constexpr RowPack<Rows...> MakeRows(Rows const&... rows) {
  return {{rows}...};
}

/// The row at a place from 0.
template <std::size_t I, class Row>
constexpr Row const& GetRow(RowAt<I, Row> const& pack) {
  return pack.row;
}

/// The rows of two packs, one behind the other.
template <std::size_t... I, class... A, std::size_t... J, class... B>
constexpr RowPack<A..., B...> JoinRows(RowPackOf<std::index_sequence<I...>, A...> const& a,
                                       RowPackOf<std::index_sequence<J...>, B...> const& b) {
  return {{GetRow<I>(a)}..., {GetRow<J>(b)}...};
}
/// The rows of more packs.
template <class First, class Second, class... More>
constexpr auto JoinRows(First const& first, Second const& second, More const&... more) {
  return JoinRows(JoinRows(first, second), more...);
}

}  // namespace Tarvex
