#include <charconv>
#include <cmath>

#include "workbench/commands/command.h"
#include "workbench/commands/errors.h"

namespace Tarvex::Workbench {
namespace {

/// @return invalid_argument for a text that is no number, result_out_of_range for one that T can't
/// hold
template <class T>
std::errc Parse(std::string const& text, T& value) {
  auto const* end = text.data() + text.size();
  auto const [rest, fault] = std::from_chars(text.data(), end, value);
  return rest == end ? fault : std::errc::invalid_argument;
}

bool IsChoice(std::string_view choices, std::string_view text) {
  for (std::size_t at = 0; at <= choices.size();) {
    auto const end = std::min(choices.find('|', at), choices.size());
    if (choices.substr(at, end - at) == text) return true;
    at = end + 1;
  }
  return false;
}

[[noreturn]] void Refuse(Option const& option, std::string const& text, std::string const& wanted) {
  throw UsageError(std::string(option.name) + ": '" + text + "' is not " + wanted);
}

template <class T>
void CheckNumber(Option const& option, std::string const& text, char const* wanted) {
  T value{};
  auto const fault = Parse(text, value);
  if (fault == std::errc::result_out_of_range) throw OutOfRange(std::string(option.name), text);
  if (fault != std::errc() || !std::isfinite(static_cast<double>(value)))
    Refuse(option, text, wanted);
  auto const bound = [](double limit) { return std::to_string(static_cast<long long>(limit)); };
  if (static_cast<double>(value) < option.lowest)
    Refuse(option, text, "at least " + bound(option.lowest));
  if (static_cast<double>(value) > option.highest)
    Refuse(option, text, "at most " + bound(option.highest));
}

void Check(Option const& option, std::string const& text) {
  switch (option.kind) {
    case ValueKind::Flag:
    case ValueKind::Text:
    case ValueKind::FileBefore:
    case ValueKind::FileBehind:
      return;
    case ValueKind::Integer:
      return CheckNumber<int>(option, text, "a whole number");
    case ValueKind::Number:
      return CheckNumber<double>(option, text, "a number");
    case ValueKind::Choice:
      if (!IsChoice(option.value, text))
        Refuse(option, text, "one of " + std::string(option.value));
  }
}

}  // namespace

Arguments::Arguments(std::span<Option const> options, std::map<std::string, std::string> given) {
  for (auto const& option : options) {
    auto const found = given.find(std::string(option.name));
    auto const text = found == given.end() ? std::string(option.preset) : found->second;
    if (found != given.end()) {
      Check(option, text);
      m_given.emplace(option.name);
    }
    m_values.emplace(option.name, text);
  }
}

std::string const& Arguments::Text(std::string_view name) const {
  auto const found = m_values.find(name);
  if (found == m_values.end())
    throw std::logic_error("the command has no option " + std::string(name));
  return found->second;
}

int Arguments::Integer(std::string_view name) const {
  int value = 0;
  Parse(Text(name), value);
  return value;
}

double Arguments::Number(std::string_view name) const {
  double value = 0;
  Parse(Text(name), value);
  return value;
}

}  // namespace Tarvex::Workbench
