// How single values stand in model files.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "store/numeric/vbool6.h"
#include "store/record/case_desc.h"
#include "store/record/entity.h"
#include "store/record/held_list.h"
#include "store/record/link_type.h"
#include "store/record/topo_list.h"
#include "store/select/list_text.h"
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

/// Fails since a text is no list.
template <class Value>
[[noreturn]] void FailNoList(Value& in, Data::ListFault const& fault) {
  in.Fail("no list: " + fault.reason.ToUtf8() + " at character " +
          std::to_string(fault.position + 1));
}

/// What keeps the text that it was built from, also one that it can't read: descriptions of cases
/// and of sections.
template <class T>
concept KeepsText = requires(T const& value) {
  { value.Text() } -> std::same_as<CString const&>;
  { value.IsReadable() } -> std::same_as<bool>;
};

/// Its text.
template <KeepsText T>
struct Codec<T> {
  template <class Value>
  static void Read(Value& in, T& value) {
    value = T(CString::FromUtf8(in.String()));
  }
  static void Write(std::string& out, T const& value) { Codec<CString>::Write(out, value.Text()); }
  template <class Json>
  static Json Schema() {
    return Codec<CString>::Schema<Json>();
  }
};

/// The text of a selection list.
template <>
struct Codec<Data::ListText> {
  template <class Value>
  static void Read(Value& in, Data::ListText& value) {
    auto const text = CString::FromUtf8(in.String());
    Data::ListFault fault{};
    if (!value.Set(text, std::nullopt, &fault)) FailNoList(in, fault);
  }
  static void Write(std::string& out, Data::ListText const& value) {
    AppendJsonString(out, WriteListTokens(value.Tokens()).ToUtf8());
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "string"}};
  }
};

/// A list whose kind its field tells: its text alone.
template <SelType Kind>
struct Codec<Data::ListOf<Kind>> {
  template <class Value>
  static void Read(Value& in, Data::ListOf<Kind>& list) {
    list = {};
    Data::ListFault fault{};
    if (!list.SetString(CString::FromUtf8(in.String()), &fault)) FailNoList(in, fault);
  }
  static void Write(std::string& out, Data::ListOf<Kind> const& list) {
    AppendJsonString(out, list.String().ToUtf8());
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "string"}};
  }
};

/// The text of a member's topology.
template <>
struct Codec<Data::CTopoList> {
  template <class Value>
  static void Read(Value& in, Data::CTopoList& value) {
    int fault = 0;
    if (!value.SetString(CString::FromUtf8(in.String()), &fault))
      in.Fail("no topology: fault at character " + std::to_string(fault + 1));
  }
  static void Write(std::string& out, Data::CTopoList const& value) {
    AppendJsonString(out, value.String().ToUtf8());
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

/// The type of a link: any sum of its bits.
template <>
struct Codec<Data::LinkType> {
  template <class Value>
  static void Read(Value& in, Data::LinkType& value) {
    value = static_cast<Data::LinkType>(in.Whole(0, Data::LinkTypes::kHighest));
  }
  static void Write(std::string& out, Data::LinkType value) {
    auto const number = static_cast<int>(value);
    if (number < 0 || number > Data::LinkTypes::kHighest)
      throw CodecFault{"unknown value " + std::to_string(number)};
    AppendJsonNumber(out, number);
  }
  template <class Json>
  static Json Schema() {
    return {{"type", "integer"}, {"minimum", 0}, {"maximum", Data::LinkTypes::kHighest}};
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

}  // namespace Tarvex::Workbench
