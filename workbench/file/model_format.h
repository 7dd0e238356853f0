// What stands at the head of every model file.
#pragma once

#include <array>
#include <string_view>

namespace Tarvex::Workbench {

/// A key with the one text that it may have.
struct FixedText {
  std::string_view key;
  std::string_view text;
};

/// A key of the head of a model file, in the order in which they stand.
struct HeaderKey {
  std::string_view name;
  bool required;
};

namespace ModelFormat {

inline constexpr std::string_view kName = "tarvex-model";
inline constexpr std::string_view kVersion = "1.0";
inline constexpr std::string_view kGenerator = "tarvex " TARVEX_VERSION;

/// The units of all numbers of a file; nothing is converted.
inline constexpr std::array<FixedText, 6> kUnits{{{"length", "m"},
                                                  {"force", "N"},
                                                  {"mass", "kg"},
                                                  {"time", "s"},
                                                  {"temperature", "C"},
                                                  {"angle", "deg"}}};

/// Places of the keys in kHeader.
enum Key : std::size_t { kSchema, kFormat, kVersionKey, kGeneratorKey, kUnitsKey };
inline constexpr std::array<HeaderKey, 5> kHeader{{{"$schema", false},
                                                   {"format", true},
                                                   {"version", true},
                                                   {"generator", false},
                                                   {"units", true}}};

}  // namespace ModelFormat
}  // namespace Tarvex::Workbench
