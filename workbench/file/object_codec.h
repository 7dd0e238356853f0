// JSON objects of types that describe their fields: reading, writing and schema, made from the
// field rows alone.
//
// The templates know neither the JSON library that reads nor the one that holds schemas: Value is
// the reader's value (json_value.h), Json the schema's (model_schema.cpp).
#pragma once

#include <array>
#include <bitset>
#include <concepts>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "store/record/field.h"
#include "store/text/cstring.h"
#include "workbench/file/json_scan.h"

namespace Tarvex::Workbench {

/// How values of one type stand in files; codecs.h has one a type. Each gives
///   Read(in, value)    from the reader's value, failing there
///   Write(out, value)  appended to a text; throws CodecFault for what a file can't hold
///   Schema<Json>()     the type's JSON schema
template <class T>
struct Codec;

/// A value that no file can hold.
struct CodecFault {
  std::string text;
};

// Reading.

/// One key of an object and what reads its value into the target that the object is read into.
template <class Value>
struct FieldReader {
  std::string_view name;
  bool required;
  void (*read)(Value&, void* target);
};

/// Readers of all fields of T into a Target, which is T or derived from it.
template <class Value, Described T, class Target = T>
constexpr auto MakeFieldReaders() {
  return []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array<FieldReader<Value>, sizeof...(I)>{FieldReader<Value>{
        GetRow<I>(kFieldsOf<T>).name, GetRow<I>(kFieldsOf<T>).required,
        [](Value& in, void* target) {
          using Member = typename std::remove_cvref_t<decltype(GetRow<I>(kFieldsOf<T>))>::Value;
          T& record = *static_cast<Target*>(target);
          Codec<Member>::Read(in, record.*GetRow<I>(kFieldsOf<T>).member);
        }}...};
  }
  (std::make_index_sequence<kFieldsOf<T>.kSize>());
}

/// Index of the reader of a key, the number of readers when there is none. Files have the keys of
/// most records in the order of the fields, so the search goes on from the one that may come next.
template <class Value, class Key>
std::size_t FindReader(std::span<FieldReader<Value> const> readers, Key const& key,
                       std::size_t next) {
  for (std::size_t i = next; i < readers.size(); ++i)
    if (key.Is(readers[i].name)) return i;
  for (std::size_t i = 0; i < next; ++i)
    if (key.Is(readers[i].name)) return i;
  auto const text = key.Text();  // perhaps spelled with escapes
  for (std::size_t i = 0; i < readers.size(); ++i)
    if (readers[i].name == text) return i;
  return readers.size();
}

/// More than any object has, the whole file with one for each table included.
inline constexpr std::size_t kMostKeys = 256;

/// The keys of one object as they come: each at most once and the required ones at least.
template <class Value>
class KeyWalk {
 public:
  KeyWalk(std::span<FieldReader<Value> const> readers, void* target)
      : m_readers(readers), m_target(target) {}

  /// Reads the value of a key. Calls before(index, key) first.
  template <class Key, class Before>
  void Take(Key const& key, Value& value, Before&& before) {
    auto const at = FindReader(m_readers, key, m_next);
    if (at == m_readers.size()) key.Fail("unknown key " + Quoted(key.Text()));
    if (m_seen[at]) key.Fail("repeated key " + Quoted(key.Text()));
    m_seen.set(at);
    m_next = at + 1;
    before(at, key);
    m_readers[at].read(value, m_target);
  }
  template <class Key>
  void Take(Key const& key, Value& value) {
    Take(key, value, [](std::size_t, Key const&) {});
  }
  /// Fails when a required key did not come.
  template <class Object>
  void Finish(Object& in) const {
    for (std::size_t i = 0; i < m_readers.size(); ++i)
      if (m_readers[i].required && !m_seen[i]) in.Fail("missing key " + Quoted(m_readers[i].name));
  }

 private:
  std::span<FieldReader<Value> const> m_readers;
  void* m_target;
  std::bitset<kMostKeys> m_seen;
  std::size_t m_next = 0;
};

/// Reads an object. Calls before(index, key) for each key before its value is read.
template <class Object, class Value, class Before>
void ReadKeys(Object& in, std::span<FieldReader<Value> const> readers, void* target,
              Before&& before) {
  KeyWalk<Value> walk(readers, target);
  in.ForEachField([&](auto const& key, Value& value) { walk.Take(key, value, before); });
  walk.Finish(in);
}

/// The same where the order of the keys does not matter. Not a part of ReadObject, so that it is
/// compiled once and not for each class of record.
template <class Value>
void ReadKeysInAnyOrder(Value& in, std::span<FieldReader<Value> const> readers, void* target) {
  ReadKeys(in, readers, target, [](std::size_t, auto const&) {});
}

/// A record that tells what makes it no record that a file may hold, where its fields can't tell
/// alone.
template <class T>
concept TellsFault = requires(T const& record) {
  { record.Fault() } -> std::same_as<CString>;
};

/// Reads an object into a target by the readers that were made for it.
template <class Value, class Target, std::size_t N>
void ReadObject(Value& in, std::array<FieldReader<Value>, N> const& readers, Target& target) {
  static_assert(N <= kMostKeys);
  ReadKeysInAnyOrder<Value>(in, readers, &target);
  if constexpr (TellsFault<Target>)
    if (auto const fault = target.Fault(); !fault.IsEmpty()) in.Fail(fault.ToUtf8());
}

// Writing.

/// Appends a value; a codec whose text depends on the record around the value is told the record.
template <class T, class Owner>
void WriteValue(std::string& out, T const& value, Owner const& owner) {
  if constexpr (requires { Codec<T>::Write(out, value, owner); })
    Codec<T>::Write(out, value, owner);
  else
    Codec<T>::Write(out, value);
}

/// What a field is when nothing is said of it.
template <class T>
T const& DefaultOf() {
  static T const kDefault{};
  return kDefault;
}

/// Appends "name": and a comma before it where it is not the first of an object.
inline void WriteKey(std::string& out, std::string_view name) {
  if (out.back() != '{') out += ", ";
  out += '"';
  out += name;
  out += "\": ";
}

/// Begins an object; throws for a record that no file may hold.
template <Described T>
void BeginObject(std::string& out, T const& record) {
  if constexpr (TellsFault<T>)
    if (auto const fault = record.Fault(); !fault.IsEmpty()) throw CodecFault{fault.ToUtf8()};
  out += '{';
}

/// Appends the fields of a record that are required or differ from their default.
template <Described T>
void WriteFields(std::string& out, T const& record) {
  auto const& initial = DefaultOf<T>();
  ForEachField<T>([&](auto const& field) {
    auto const& value = record.*field.member;
    if (!field.required && Same(value, initial.*field.member)) return;
    WriteKey(out, field.name);
    WriteValue(out, value, record);
  });
}

// Schema.

/// Adds one key to the schema of an object. @param initial JSON text of its default
template <class Json>
void AddKeyToSchema(Json& schema, std::string_view name, bool required, Json entry,
                    std::string const& initial) {
  if (required)
    schema["required"].push_back(name);
  else
    entry["default"] = Json::parse(initial);
  schema["properties"][std::string(name)] = std::move(entry);
}

/// Adds the fields of T to the schema of an object.
template <class Json, Described T>
void AddFieldsToSchema(Json& schema) {
  ForEachField<T>([&](auto const& field) {
    using V = typename std::remove_cvref_t<decltype(field)>::Value;
    std::string initial;
    if (!field.required) WriteValue(initial, DefaultOf<T>().*field.member, DefaultOf<T>());
    AddKeyToSchema(schema, field.name, field.required, Codec<V>::template Schema<Json>(), initial);
  });
}

template <class Json>
Json EmptyObjectSchema() {
  Json schema;
  schema["type"] = "object";
  schema["additionalProperties"] = false;
  schema["required"] = Json::array();
  schema["properties"] = Json::object();
  return schema;
}

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
    BeginObject(out, value);
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

}  // namespace Tarvex::Workbench
