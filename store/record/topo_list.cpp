#include "store/record/topo_list.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "store/select/numbers.h"

namespace Tarvex::Data {
namespace {

struct TopoWordRow {
  int item;
  std::wstring_view text;
};

constexpr std::array kTopoWords{
    TopoWordRow{kTopoArc, L"arc"},        TopoWordRow{kTopoAbout, L"about"},
    TopoWordRow{kTopoHole, L"hole("},     TopoWordRow{kTopoLine, L"line("},
    TopoWordRow{kTopoPoints, L"points("}, TopoWordRow{kTopoClose, L")"},
    TopoWordRow{kTopoStripEnd, L";"}};

constexpr bool IsTopoDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

/// Takes one node number or word off the front of a text; empty when it begins with neither.
std::optional<int> TakeTopoItem(std::wstring_view& text) {
  for (auto const& row : kTopoWords) {
    if (!text.starts_with(row.text)) continue;
    text.remove_prefix(row.text.size());
    return row.item;
  }
  long long number = 0;
  std::size_t digits = 0;
  for (; digits < text.size() && IsTopoDigit(text[digits]); ++digits) {
    number = number * 10 + (text[digits] - L'0');
    if (number > kHighestNumber) return std::nullopt;
  }
  if (digits == 0) return std::nullopt;
  text.remove_prefix(digits);
  return static_cast<int>(number);
}

/// Words that end with a letter want a blank behind them, as numbers do.
bool EndsLikeAWord(int item) { return !CTopoList::IsWord(item) || item >= kTopoAbout; }

bool IsNodeAt(CTopoList::ItemVector const& items, std::size_t i) {
  return i < items.size() && !CTopoList::IsWord(items[i]);
}

/// Whether items are a line: nodes, and arcs that have the nodes that they need.
bool IsLineOfNodesAndArcs(CTopoList::ItemVector const& items) {
  if (!IsNodeAt(items, 0) || items.size() < 2) return false;
  for (std::size_t i = 1; i < items.size(); ++i) {
    if (!CTopoList::IsWord(items[i])) continue;
    bool const arc = items[i] == kTopoArc && IsNodeAt(items, i + 1) && IsNodeAt(items, i + 2);
    bool const about = items[i] == kTopoAbout && IsNodeAt(items, i + 1);
    if (!arc && !about) return false;
    i += arc ? 2 : 1;
  }
  return true;
}

}  // namespace

int CTopoList::NumTopo() const {
  return static_cast<int>(std::count_if(begin(), end(), [](int item) { return !IsWord(item); }));
}

int CTopoList::Topo(int place) const {
  for (int const item : m_items)
    if (!IsWord(item) && place-- == 0) return item;
  return 0;
}

TopoVector CTopoList::Nodes() const {
  TopoVector nodes;
  std::copy_if(begin(), end(), std::back_inserter(nodes), [](int item) { return !IsWord(item); });
  return nodes;
}

TopoVector CTopoList::Outline() const {
  TopoVector nodes;
  for (int const item : m_items) {
    if (item <= kTopoHole) break;
    if (!IsWord(item)) nodes.push_back(item);
  }
  return nodes;
}

void CTopoList::SetTopo(int place, int node) {
  for (int& item : m_items) {
    if (IsWord(item) || place-- != 0) continue;
    item = node;
    return;
  }
  ThrowBadSubscript();
}

void CTopoList::SetTopo(std::span<int const> nodes) { m_items.assign(nodes.begin(), nodes.end()); }

bool CTopoList::SetString(CString const& text, int* fault) {
  std::wstring_view const whole = text;
  auto rest = whole;
  ItemVector items;
  bool wantsBlank = false;
  while (true) {
    auto const start = rest.find_first_not_of(L" \t\r\n");
    if (start == std::wstring_view::npos) break;
    rest.remove_prefix(start);
    auto const item = wantsBlank && start == 0 && rest.front() != L')' && rest.front() != L';'
                          ? std::nullopt
                          : TakeTopoItem(rest);
    if (!item) {
      if (fault != nullptr) *fault = static_cast<int>(whole.size() - rest.size());
      return false;
    }
    items.push_back(*item);
    wantsBlank = EndsLikeAWord(*item);
  }
  m_items = std::move(items);
  return true;
}

CString CTopoList::String() const {
  std::wstring text;
  for (int const item : m_items) {
    if (!text.empty()) text += L' ';
    auto const* row = std::find_if(kTopoWords.begin(), kTopoWords.end(),
                                   [item](TopoWordRow const& r) { return r.item == item; });
    if (row == kTopoWords.end())
      text += std::to_wstring(item);
    else
      text += row->text;
  }
  return CString(std::move(text));
}

bool CTopoList::ReplaceItem(int oldNode, int newNode) {
  bool const found = !IsWord(oldNode) && std::find(begin(), end(), oldNode) != end();
  if (!found) return false;
  std::replace(m_items.begin(), m_items.end(), oldNode, newNode);
  return true;
}

bool CTopoList::Reverse() {
  if (!IsLineOfNodesAndArcs(m_items)) return false;
  std::reverse(m_items.begin(), m_items.end());
  // The word of an arc stands before its middle node, and has come to stand behind it.
  for (std::size_t i = 1; i < m_items.size(); ++i)
    if (m_items[i] == kTopoArc) std::swap(m_items[i - 1], m_items[i]);
  return true;
}

MembGeom CTopoList::Geometry() const {
  if (!IsLineOfNodesAndArcs(m_items)) return MembGeom::Line;
  if (m_items.size() == 4 && m_items[1] == kTopoArc) return MembGeom::ArcThrough;
  if (m_items.size() == 3 && m_items[1] == kTopoAbout) return MembGeom::ArcAbout;
  return MembGeom::Line;
}

std::vector<TopoVector> TriangleStrips(CTopoList const& list) {
  std::vector<TopoVector> strips(1);
  for (int const item : list) {
    if (item == kTopoStripEnd)
      strips.emplace_back();
    else if (!CTopoList::IsWord(item))
      strips.back().push_back(item);
  }
  if (strips.back().empty()) strips.pop_back();
  return strips;
}

}  // namespace Tarvex::Data
