#include "workbench/commands/number_map.h"

#include <charconv>

#include "store/select/numbers.h"
#include "workbench/commands/errors.h"
#include "workbench/file/file_error.h"
#include "workbench/file/json_scan.h"
#include "workbench/file/read_file.h"

namespace Tarvex::Workbench {
namespace {

constexpr std::string_view kBlanks = " \t\r";

/// Reads the lines of one file.
class MapReader {
 public:
  MapReader(std::string const& path, int fewest, int most)
      : m_path(path), m_fewest(fewest), m_most(most) {}

  void Line(std::string_view line) {
    ++m_line;
    line = line.substr(0, line.find('#'));
    std::vector<int> numbers;
    for (auto at = line.find_first_not_of(kBlanks); at != std::string_view::npos;
         at = line.find_first_not_of(kBlanks, at)) {
      auto const end = std::min(line.find_first_of(kBlanks, at), line.size());
      numbers.push_back(Number(line.substr(at, end - at), at));
      at = end;
    }
    if (!numbers.empty()) Take(numbers);
  }
  NumberLists const& Lists() const { return m_lists; }

 private:
  [[noreturn]] void Fail(std::size_t at, std::string const& text) const {
    throw FileError({m_path, m_line, static_cast<int>(at) + 1, ""}, text);
  }

  int Number(std::string_view word, std::size_t at) const {
    int number = 0;
    auto const* end = word.data() + word.size();
    auto const [rest, fault] = std::from_chars(word.data(), end, number);
    if (fault != std::errc() || rest != end || number < 1 || number > kHighestNumber)
      Fail(at, Quoted(word) + " is no number from 1 to 100000000");
    return number;
  }

  void Take(std::vector<int> const& numbers) {
    int const count = static_cast<int>(numbers.size()) - 1;
    if (count < m_fewest) Fail(0, "a new number is missing");
    if (m_most >= 0 && count > m_most) Fail(0, "more than one new number");
    auto const [place, isNew] =
        m_lists.try_emplace(numbers.front(), numbers.begin() + 1, numbers.end());
    if (!isNew) Fail(0, "number " + std::to_string(numbers.front()) + " comes a second time");
  }

  std::string const& m_path;
  int m_fewest;
  int m_most;
  int m_line = 0;
  NumberLists m_lists;
};

void RequireEntity(CZelData const& model, SEntRef ref) {
  if (!model.EntExist(ref, true))
    throw Refusal(SelTypeLabel(ref.type).ToUtf8() + " " + std::to_string(ref.num) +
                  " does not exist");
}

}  // namespace

NumberLists ReadNumberMap(std::string const& path, int fewest, int most) {
  if (path.empty()) throw UsageError("--map: name a file");
  auto const text = ReadWholeFile(path);
  MapReader reader(path, fewest, most);
  std::string_view const all = text;
  for (std::size_t at = 0; at < all.size();) {
    auto const end = std::min(all.find('\n', at), all.size());
    reader.Line(all.substr(at, end - at));
    at = end + 1;
  }
  return reader.Lists();
}

void RequireEntities(CZelData const& model, SelType kind, NumberLists const& numbers, bool oldToo) {
  for (auto const& [old, now] : numbers) {
    if (oldToo) RequireEntity(model, {kind, old});
    for (int const number : now) RequireEntity(model, {kind, number});
  }
}

}  // namespace Tarvex::Workbench
