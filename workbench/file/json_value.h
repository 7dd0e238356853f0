// Values of a JSON text as the model reader walks them, in the order of the text.
//
// The walk is lazy: what is not asked for is not checked, so the reader asks for every value. This
// is the one header that includes the JSON library, which takes seconds to compile: only
// model_reader.cpp includes it.
#pragma once

#include <simdjson.h>

#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <string_view>

#include "workbench/file/json_number.h"
#include "workbench/file/json_scan.h"
#include "workbench/file/json_string.h"

namespace Tarvex::Workbench {

/// A fault found while walking: the place in the text and the reason. Where the text is no JSON,
/// reason and place may be vague; ScanJson then knows better.
struct JsonWalkFault {
  char const* at;
  std::string text;
};

/// Number of zero bytes that must follow a text in memory, for the JSON library looks ahead.
inline constexpr std::size_t kJsonPadding = simdjson::SIMDJSON_PADDING;
/// Size of the longest text that it reads.
inline constexpr std::size_t kJsonLongest = simdjson::SIMDJSON_MAXSIZE_BYTES;

/// Fails since something else than the value at a place was expected.
[[noreturn]] inline void FailExpected(char const* at, std::string const& what) {
  struct Kind {
    char first;
    char const* name;
  };
  constexpr Kind kKinds[] = {{'{', "an object"}, {'[', "an array"}, {'"', "a text"},
                             {'t', "true"},      {'f', "false"},    {'n', "null"}};
  for (auto const& kind : kKinds)
    if (kind.first == *at) throw JsonWalkFault{at, "expected " + what + ", found " + kind.name};
  throw JsonWalkFault{at, "expected " + what + ", found a number"};
}

/// What a call of the library gave; fails at a place where that is an error.
template <class Result>
auto TakeJson(Result result, char const* at) {
  if (result.error() == simdjson::MEMALLOC) throw std::bad_alloc();
  if (result.error()) throw JsonWalkFault{at, simdjson::error_message(result.error())};
  return std::move(result).value_unsafe();
}

/// The key of a field.
class JsonKey {
 public:
  /// @param text behind the opening quote.
  JsonKey(char const* text, char const* end) : m_text(text), m_end(end) {}

  /// Whether the key is a name, which has nothing in it that must be escaped.
  bool Is(std::string_view name) const {
    return std::memcmp(m_text, name.data(), name.size()) == 0 && m_text[name.size()] == '"';
  }
  /// The key with its escapes read.
  std::string Text() const {
    std::string text;
    auto const read = ReadJsonString({m_text, m_end}, 0, text);
    if (read.fault != nullptr) Fail(read.fault);
    return text;
  }
  [[noreturn]] void Fail(std::string text) const {
    throw JsonWalkFault{m_text - 1, std::move(text)};
  }

 private:
  char const* m_text;
  char const* m_end;
};

/// A value. Each is asked once; every way to ask it fails when it is of another type.
class JsonValue {
 public:
  JsonValue(simdjson::ondemand::value value, char const* end)
      : m_value(value), m_begin(m_value.raw_json_token().data()), m_end(end) {}

  /// Where the value begins in the text.
  char const* Place() const { return m_begin; }
  [[noreturn]] void Fail(std::string text) const { throw JsonWalkFault{m_begin, std::move(text)}; }

  bool IsNull() const { return IsWord("null"); }
  bool Bool() const {
    bool const isTrue = IsWord("true");
    if (!isTrue && !IsWord("false")) FailExpected(m_begin, "true or false");
    return isTrue;
  }
  /// A finite number.
  double Number() const;
  /// A whole number within bounds.
  int Whole(int lowest = std::numeric_limits<int>::min(),
            int highest = std::numeric_limits<int>::max()) const;
  /// A text as UTF-8.
  std::string String();

  /// Calls visit(item) for each item of an array.
  template <class Visit>
  void ForEachItem(Visit&& visit);
  /// Calls visit(key, value) for each field of an object.
  template <class Visit>
  void ForEachField(Visit&& visit);

 private:
  bool IsWord(std::string_view word) const {
    return std::string_view(m_begin, word.size()) == word && EndsJsonWord(m_begin[word.size()]);
  }
  [[noreturn]] void FailWhole(int lowest, int highest) const;

  simdjson::ondemand::value m_value;
  char const* m_begin;
  char const* m_end;
};

inline double JsonValue::Number() const {
  auto const* const end = EndOfJsonNumber(m_begin);
  if (end == nullptr || !EndsJsonWord(*end)) FailExpected(m_begin, "a number");
  double const value = JsonNumberValue(m_begin, end);
  if (!std::isfinite(value)) Fail("a number that is not finite as a double");
  return value;
}

inline int JsonValue::Whole(int lowest, int highest) const {
  constexpr int kDigits = 9;  // so many fit an int
  auto const* at = m_begin + (*m_begin == '-' ? 1 : 0);
  auto const* const first = at;
  int value = 0;
  for (; *at >= '0' && *at <= '9' && at - first < kDigits; ++at) value = value * 10 + (*at - '0');
  bool const plain = at != first && EndsJsonWord(*at) && (*first != '0' || at == first + 1);
  if (*m_begin == '-') value = -value;
  if (!plain) {
    double const number = Number();
    if (number != std::floor(number) || number < lowest || number > highest)
      FailWhole(lowest, highest);
    value = static_cast<int>(number);
  }
  if (value < lowest || value > highest) FailWhole(lowest, highest);
  return value;
}

inline void JsonValue::FailWhole(int lowest, int highest) const {
  std::string_view const token(m_begin,
                               static_cast<std::size_t>(EndOfJsonNumber(m_begin) - m_begin));
  Fail("expected a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest) +
       ", found " + std::string(token));
}

inline std::string JsonValue::String() {
  if (*m_begin != '"') FailExpected(m_begin, "a text");
  // The library takes a text that nobody asked for as a key where a colon follows, so it is asked.
  TakeJson(m_value.get_raw_json_string(), m_begin);
  std::string text;
  auto const read = ReadJsonString({m_begin, m_end}, 1, text);
  if (read.fault != nullptr) Fail(read.fault);
  return text;
}

template <class Visit>
void JsonValue::ForEachItem(Visit&& visit) {
  if (*m_begin != '[') FailExpected(m_begin, "an array");
  for (auto item : TakeJson(m_value.get_array(), m_begin)) {
    JsonValue value(TakeJson(item, m_begin), m_end);
    visit(value);
  }
}

/// Calls visit(key, value) for each field of the library's object, which begins at a place.
template <class Visit>
void ForEachJsonField(simdjson::ondemand::object object, char const* begin, char const* end,
                      Visit&& visit) {
  for (auto item : object) {
    auto field = TakeJson(item, begin);
    JsonKey const key(field.key().raw(), end);
    JsonValue value(std::move(field).value(), end);
    visit(key, value);
  }
}

template <class Visit>
void JsonValue::ForEachField(Visit&& visit) {
  if (*m_begin != '{') FailExpected(m_begin, "an object");
  ForEachJsonField(TakeJson(m_value.get_object(), m_begin), m_begin, m_end, visit);
}

/// The object that a whole text is.
class JsonRoot {
 public:
  /// @param text goes on for kJsonPadding zero bytes.
  explicit JsonRoot(std::string_view text) : m_begin(text.data()), m_end(m_begin + text.size()) {
    m_document =
        TakeJson(m_parser.iterate(text.data(), text.size(), text.size() + kJsonPadding), m_begin);
    m_begin = TakeJson(m_document.raw_json_token(), m_begin).data();
  }

  [[noreturn]] void Fail(std::string text) const { throw JsonWalkFault{m_begin, std::move(text)}; }

  template <class Visit>
  void ForEachField(Visit&& visit) {
    if (*m_begin != '{') FailExpected(m_begin, "an object");
    ForEachJsonField(TakeJson(m_document.get_object(), m_begin), m_begin, m_end, visit);
    if (m_document.current_location().error() != simdjson::OUT_OF_BOUNDS)
      Fail("text behind the end");
  }

 private:
  simdjson::ondemand::parser m_parser;
  simdjson::ondemand::document m_document;
  char const* m_begin;
  char const* m_end;
};

}  // namespace Tarvex::Workbench
