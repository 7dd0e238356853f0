// How each type of value stands in model files: one codec a type, with reading, writing and schema
// side by side. A new type of value needs a codec here; a new field or record of known types needs
// nothing.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <vector>

#include "store/numeric/vbool6.h"
#include "store/record/connection.h"
#include "store/record/entity.h"
#include "workbench/file/enum_values.h"
#include "workbench/file/json_number.h"
#include "workbench/file/json_string.h"
#include "workbench/file/object_codec.h"

namespace Tarvex::Workbench {

template <>
struct Codec<bool> {
  template <class Value>
  static void Read(Value& in, bool& value) {
    value = in.Bool();
  }
  static void Write(std::string& out, bool value) { out += value ? "true" : "false"; }
  template <class Json>
  static Json Schema() {
    return {{"type", "boolean"}};
  }
};

template <>
struct Codec<int> {
  template <class Value>
  static void Read(Value& in, int& value) {
    value = in.Whole();
  }
  static void Write(std::string& out, int value) { AppendJsonNumber(out, value); }
  template <class Json>
  static Json Schema() {
    return {{"type", "integer"},
            {"minimum", std::numeric_limits<int>::min()},
            {"maximum", std::numeric_limits<int>::max()}};
  }
};

template <>
struct Codec<double> {
  template <class Value>
  static void Read(Value& in, double& value) {
    value = in.Number();
  }
  static void Write(std::string& out, double value) {
    if (!std::isfinite(value)) throw CodecFault{"a value that is not finite"};
    AppendJsonNumber(out, value);
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "number"}};
  }
};

template <>
struct Codec<CString> {
  template <class Value>
  static void Read(Value& in, CString& value) {
    value = CString::FromUtf8(in.String());
  }
  static void Write(std::string& out, CString const& value) {
    AppendJsonString(out, value.ToUtf8());
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "string"}};
  }
};

/// Enumerations are their numbers.
template <class E>
requires std::is_enum_v<E>
struct Codec<E> {
  static constexpr auto kValues = EnumValues<E>::Get();

  template <class Value>
  static void Read(Value& in, E& value) {
    int const number = in.Whole(kValues.front(), kValues.back());
    if (!IsKnown(number)) in.Fail("unknown value " + std::to_string(number));
    value = static_cast<E>(number);
  }
  static void Write(std::string& out, E value) {
    auto const number = static_cast<int>(value);
    if (!IsKnown(number)) throw CodecFault{"unknown value " + std::to_string(number)};
    AppendJsonNumber(out, number);
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "integer"}, {"enum", kValues}};
  }

 private:
  static bool IsKnown(int number) {
    return std::binary_search(kValues.begin(), kValues.end(), number);
  }
};

/// "#rrggbb".
template <>
struct Codec<Colour> {
  template <class Value>
  static void Read(Value& in, Colour& value) {
    auto const text = in.String();
    auto const* const end = text.data() + text.size();
    bool const shaped = text.size() == 7 && text[0] == '#';
    if (!shaped || std::from_chars(text.data() + 1, end, value.rgb, 16).ptr != end)
      in.Fail("expected a colour like \"#1a2b3c\", found " + Quoted(text));
  }
  static void Write(std::string& out, Colour value) {
    out += "\"#";
    for (int shift = 20; shift >= 0; shift -= 4) out += "0123456789abcdef"[value.rgb >> shift & 15];
    out += '"';
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "string"}, {"pattern", "^#[0-9a-fA-F]{6}$"}};
  }
};

/// The directions that are set, by name.
template <>
struct Codec<Vbool6> {
  static constexpr std::array<std::string_view, 6> kNames{"X", "Y", "Z", "XX", "YY", "ZZ"};

  template <class Value>
  static void Read(Value& in, Vbool6& value) {
    value = Vbool6();
    in.ForEachItem([&](Value& item) {
      auto const name = item.String();
      auto const found = std::find(kNames.begin(), kNames.end(), name);
      if (found == kNames.end())
        item.Fail("unknown direction " + Quoted(name) + ", expected X, Y, Z, XX, YY or ZZ");
      auto const direction = At(found - kNames.begin());
      if (value.Get(direction)) item.Fail("repeated direction " + Quoted(name));
      value.Set(direction, true);
    });
  }
  static void Write(std::string& out, Vbool6 value) {
    out += '[';
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      if (!value.Get(At(i))) continue;
      if (out.back() != '[') out += ", ";
      out += '"';
      out += kNames[i];
      out += '"';
    }
    out += ']';
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "array"},
            {"items", {{"type", "string"}, {"enum", kNames}}},
            {"uniqueItems", true}};
  }

 private:
  template <class Index>
  static Direction At(Index index) {
    return static_cast<Direction>(static_cast<int>(Direction::X) + static_cast<int>(index));
  }
};

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

/// An object of the fields.
template <Described T>
struct Codec<T> {
  template <class Value>
  static void Read(Value& in, T& value) {
    static constexpr auto kReaders = MakeFieldReaders<Value, T>();
    value = T();
    ReadObject(in, kReaders, value);
  }
  static void Write(std::string& out, T const& value) {
    out += '{';
    WriteFields(out, value);
    out += '}';
  }
  template <class Json>
  static Json Schema() {
    auto schema = EmptyObjectSchema<Json>();
    AddFieldsToSchema<Json, T>(schema);
    return schema;
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

}  // namespace Tarvex::Workbench
