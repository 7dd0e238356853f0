#include "workbench/view/svg.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "store/text/utf8.h"

namespace Tarvex::Workbench {
namespace {

constexpr double kHeadLength = 55;  // tenths
constexpr double kHeadShare = 0.4;  // of a line that is shorter than its head would have it
constexpr double kHeadWidth = 0.4;  // half of it, to the length
constexpr wchar_t kReplacement = 0xFFFD;

/// Whether XML 1.0 has the character.
bool IsXml(wchar_t c) {
  if (c < 0x20) return c == L'\t' || c == L'\n' || c == L'\r';
  return c != 0xFFFE && c != 0xFFFF;
}

/// A pair of numbers with as few characters between them as can be.
std::string Pair(int x, int y) {
  auto text = Tenths(x);
  if (y >= 0) text += ' ';
  return text += Tenths(y);
}

double LengthOf(std::vector<PagePoint> const& points) {
  double length = 0;
  for (std::size_t i = 1; i < points.size(); ++i)
    length += std::hypot(points[i].x - points[i - 1].x, points[i].y - points[i - 1].y);
  return length;
}

}  // namespace

std::string XmlText(std::string_view utf8) {
  std::wstring text = Text::DecodeUtf8(utf8);
  for (auto& c : text)
    if (!IsXml(c)) c = kReplacement;
  std::string escaped;
  for (char const c : Text::EncodeUtf8(text)) {
    if (c == '&')
      escaped += "&amp;";
    else if (c == '<')
      escaped += "&lt;";
    else if (c == '>')
      escaped += "&gt;";
    else if (c == '"')
      escaped += "&quot;";
    else
      escaped += c;
  }
  return escaped;
}

std::string Tenths(int tenths) {
  int const size = std::abs(tenths);
  auto text = std::string(tenths < 0 ? "-" : "") + std::to_string(size / 10);
  if (size % 10 != 0) (text += '.') += static_cast<char>('0' + size % 10);
  return text;
}

std::string PathOf(std::vector<PagePoint> const& points, bool closed) {
  std::string path;
  for (std::size_t i = 0; i < points.size(); ++i) {
    auto const& p = points[i];
    if (i == 0)
      path += "M" + Pair(p.x, p.y);
    else
      path += "l" + Pair(p.x - points[i - 1].x, p.y - points[i - 1].y);
  }
  if (closed) path += 'z';
  return path;
}

std::string ArrowHead(std::vector<PagePoint> const& points) {
  if (points.size() < 2) return {};
  auto const& tip = points.back();
  auto const& from = points[points.size() - 2];
  double const x = tip.x - from.x;
  double const y = tip.y - from.y;
  double const length = std::hypot(x, y);
  if (length == 0) return {};
  double const head = std::min(kHeadLength, kHeadShare * LengthOf(points)) / length;
  auto const barb = [&](double side) {
    return PagePoint{
        static_cast<int>(std::lround(tip.x - head * x - side * kHeadWidth * head * y)),
        static_cast<int>(std::lround(tip.y - head * y + side * kHeadWidth * head * x))};
  };
  return PathOf({barb(1), tip, barb(-1)}, false);
}

}  // namespace Tarvex::Workbench
