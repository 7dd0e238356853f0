// How lists and vectors stand in model files.
#pragma once

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "store/record/connection.h"
#include "store/record/member.h"
#include "workbench/file/scalar_codecs.h"

namespace Tarvex::Workbench {

/// Appends items as an array.
template <class Items>
void WriteItems(std::string& out, Items const& items) {
  out += '[';
  for (auto const& item : items) {
    if (out.back() != '[') out += ", ";
    Codec<std::remove_cvref_t<decltype(item)>>::Write(out, item);
  }
  out += ']';
}

/// An array of a fixed length.
template <class T, std::size_t N>
struct Codec<std::array<T, N>> {
  template <class Value>
  static void Read(Value& in, std::array<T, N>& value) {
    std::size_t count = 0;
    in.ForEachItem([&](Value& item) {
      if (count == N) item.Fail("more than " + std::to_string(N) + " values");
      Codec<T>::Read(item, value[count++]);
    });
    if (count < N)
      in.Fail("expected " + std::to_string(N) + " values, found " + std::to_string(count));
  }
  static void Write(std::string& out, std::array<T, N> const& value) { WriteItems(out, value); }
  template <class Json>
  static Json Schema() {
    return {{"type", "array"},
            {"items", Codec<T>::template Schema<Json>()},
            {"minItems", N},
            {"maxItems", N}};
  }
};

/// [x, y] and [x, y, z].
template <class T>
struct Codec<Vec2<T>> {
  using Items = std::array<T, 2>;
  template <class Value>
  static void Read(Value& in, Vec2<T>& value) {
    Items items{};
    Codec<Items>::Read(in, items);
    value = {items[0], items[1]};
  }
  static void Write(std::string& out, Vec2<T> const& value) {
    WriteItems(out, Items{value.x, value.y});
  }
  template <class Json>
  static Json Schema() {
    return Codec<Items>::template Schema<Json>();
  }
};
template <class T>
struct Codec<Vec3<T>> {
  using Items = std::array<T, 3>;
  template <class Value>
  static void Read(Value& in, Vec3<T>& value) {
    Items items{};
    Codec<Items>::Read(in, items);
    value = {items[0], items[1], items[2]};
  }
  static void Write(std::string& out, Vec3<T> const& value) {
    WriteItems(out, Items{value.x, value.y, value.z});
  }
  template <class Json>
  static Json Schema() {
    return Codec<Items>::template Schema<Json>();
  }
};

/// A container that grows at its end.
template <class T>
concept Growing = requires(T& items, typename T::value_type const& item) {
  items.clear();
  items.push_back(item);
};

/// An array of any length, in order.
template <Growing T>
struct Codec<T> {
  using Item = typename T::value_type;

  template <class Value>
  static void Read(Value& in, T& items) {
    items.clear();
    in.ForEachItem([&](Value& value) {
      Item item{};
      Codec<Item>::Read(value, item);
      items.push_back(std::move(item));
    });
  }
  static void Write(std::string& out, T const& items) { WriteItems(out, items); }
  template <class Json>
  static Json Schema() {
    return {{"type", "array"}, {"items", Codec<Item>::template Schema<Json>()}};
  }
};

/// A set, ascending; a repeated number in a file counts once.
template <>
struct Codec<std::set<int>> {
  template <class Value>
  static void Read(Value& in, std::set<int>& items) {
    items.clear();
    in.ForEachItem([&](Value& value) { items.insert(value.Whole()); });
  }
  static void Write(std::string& out, std::set<int> const& items) { WriteItems(out, items); }
  template <class Json>
  static Json Schema() {
    return {{"type", "array"}, {"items", Codec<int>::Schema<Json>()}};
  }
};

/// Connections by topology place, null for a free one; as many as the topology has places.
template <>
struct Codec<Data::ConnectList> {
  template <class Value>
  static void Read(Value& in, Data::ConnectList& list) {
    std::vector<CElemConnect> places;
    in.ForEachItem([&](Value& item) {
      auto& connect = places.emplace_back();
      if (!item.IsNull()) Codec<CElemConnect>::Read(item, connect);
    });
    list.Assign(std::move(places));
  }
  template <class Owner>
  static void Write(std::string& out, Data::ConnectList const& list, Owner const& owner) {
    int const count = std::max(list.Size(), owner.NumTopo());
    out += '[';
    for (int i = 0; i < count; ++i) {
      if (i > 0) out += ", ";
      if (list.At(i).IsNone())
        out += "null";
      else
        Codec<CElemConnect>::Write(out, list.At(i));
    }
    out += ']';
  }
  template <class Json>
  static Json Schema() {
    auto const connect = Codec<CElemConnect>::Schema<Json>();
    Json const free{{"type", "null"}};
    return {{"type", "array"}, {"items", {{"anyOf", Json::array({connect, free})}}}};
  }
};

/// The children of a member: [replica, number] each, by ascending replica.
template <>
struct Codec<Data::ChildLists> {
  using Pair = std::array<int, 2>;

  template <class Value>
  static void Read(Value& in, Data::ChildLists& lists) {
    std::set<Pair> listed;
    lists.clear();
    in.ForEachItem([&](Value& item) {
      Pair pair{};
      Codec<Pair>::Read(item, pair);
      if (!listed.insert(pair).second)
        item.Fail("child " + std::to_string(pair[1]) + " of replica " + std::to_string(pair[0]) +
                  " stands twice");
      Data::AppendChild(lists, pair[1], pair[0]);
    });
  }
  static void Write(std::string& out, Data::ChildLists const& lists) {
    std::vector<Pair> pairs;
    for (auto const& children : lists)
      for (int const number : children.elements) pairs.push_back({children.replica, number});
    WriteItems(out, pairs);
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "array"}, {"items", Codec<Pair>::Schema<Json>()}};
  }
};

}  // namespace Tarvex::Workbench
