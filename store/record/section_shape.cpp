#include "store/record/section_shape.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

#include "store/text/number_text.h"

namespace Tarvex::Data {
namespace {

using Prop = SectionProp;
using Dimensions = SectionDimensions;

constexpr std::array kRectangle{Prop::Depth, Prop::Width};
constexpr std::array kTrapezoid{Prop::Depth, Prop::Width, Prop::SecondWidth};
constexpr std::array kCircle{Prop::Depth};
constexpr std::array kTube{Prop::Depth, Prop::WebThickness};
constexpr std::array kBox{Prop::Depth,        Prop::Width,
                          Prop::WebThickness, Prop::TopFlangeThickness,
                          Prop::Radius,       Prop::InnerRadius};
constexpr std::array kUnequalBox{Prop::Depth,
                                 Prop::Width,
                                 Prop::WebThickness,
                                 Prop::SecondWebThickness,
                                 Prop::TopFlangeThickness,
                                 Prop::BottomFlangeThickness};
constexpr std::array kRolled{Prop::Depth, Prop::Width, Prop::WebThickness, Prop::TopFlangeThickness,
                             Prop::Radius};
constexpr std::array kUnequalI{Prop::Depth,
                               Prop::Width,
                               Prop::SecondWidth,
                               Prop::WebThickness,
                               Prop::TopFlangeThickness,
                               Prop::BottomFlangeThickness,
                               Prop::Radius};
constexpr std::array kTaperedTee{Prop::Depth, Prop::Width, Prop::WebThickness,
                                 Prop::SecondWebThickness, Prop::TopFlangeThickness};

constexpr std::array kShapes{
    SectionShapeRow{SectionShape::Rectangle, L"rectangle", kRectangle, 2},
    SectionShapeRow{SectionShape::Trapezoid, L"trapezoid", kTrapezoid, 3},
    SectionShapeRow{SectionShape::Circle, L"circle", kCircle, 1},
    SectionShapeRow{SectionShape::Tube, L"tube", kTube, 2},
    SectionShapeRow{SectionShape::Box, L"box", kBox, 4},
    SectionShapeRow{SectionShape::UnequalBox, L"unequal-box", kUnequalBox, 6},
    SectionShapeRow{SectionShape::I, L"I", kRolled, 4},
    SectionShapeRow{SectionShape::UnequalI, L"unequal-I", kUnequalI, 6},
    SectionShapeRow{SectionShape::TaperedI, L"tapered-I", kUnequalBox, 6},
    SectionShapeRow{SectionShape::Channel, L"channel", kRolled, 4},
    SectionShapeRow{SectionShape::Tee, L"tee", kRolled, 4},
    SectionShapeRow{SectionShape::TaperedTee, L"tapered-tee", kTaperedTee, 5},
};

struct Unit {
  std::wstring_view name;
  double perModelUnit;  ///< how many make a model length unit
};
constexpr std::array kUnits{Unit{L"m", 1}, Unit{L"cm", 100}, Unit{L"mm", 1000}};

double At(Dimensions const& dimensions, Prop prop) {
  return dimensions[static_cast<std::size_t>(prop)];
}

/// Whether the parts of a shape leave room for each other.
bool IsPossible(SectionShape shape, Dimensions const& d) {
  double const depth = At(d, Prop::Depth);
  double const width = At(d, Prop::Width);
  double const web = At(d, Prop::WebThickness);
  double const second = At(d, Prop::SecondWebThickness);
  double const top = At(d, Prop::TopFlangeThickness);
  double const bottom = At(d, Prop::BottomFlangeThickness);
  double const radius = At(d, Prop::Radius);
  double const inner = At(d, Prop::InnerRadius);
  switch (shape) {
    case SectionShape::Tube:
      return 2 * web <= depth;
    case SectionShape::Box:
      return 2 * web < width && 2 * top < depth && 2 * radius <= std::min(depth, width) &&
             2 * inner <= std::min(depth - 2 * top, width - 2 * web);
    case SectionShape::UnequalBox:
      return web + second < width && top + bottom < depth;
    case SectionShape::I:
      return 2 * top < depth && web + 2 * radius <= width && 2 * (top + radius) <= depth;
    case SectionShape::UnequalI:
      return top + bottom + 2 * radius < depth &&
             web + 2 * radius <= std::min(width, At(d, Prop::SecondWidth));
    case SectionShape::TaperedI:
      return top + bottom < depth && std::max(web, second) <= width;
    case SectionShape::Channel:
      return web + radius <= width && 2 * (top + radius) < depth;
    case SectionShape::Tee:
      return web + 2 * radius <= width && top + radius < depth;
    case SectionShape::TaperedTee:
      return std::max(web, second) <= width && top < depth;
    default:
      return true;
  }
}

constexpr bool IsRadius(Prop prop) { return prop == Prop::Radius || prop == Prop::InnerRadius; }

/// Reads one description.
class SectionReader {
 public:
  explicit SectionReader(CString const& text) : m_text(text.Str()) {}

  std::optional<SectionText> Read() {
    SectionText section;
    if (SkipBlanks(); AtEnd()) return section;
    if (!ReadName(section) || !ReadUnit() || !ReadDimensions(section.start)) return std::nullopt;
    section.end = section.start;
    if (TakeTo() && !ReadDimensions(section.end)) return std::nullopt;
    if (AtEnd()) return section;
    Fail("more than the shape has dimensions");
    return std::nullopt;
  }
  SectionFault const& Fault() const { return m_fault; }

 private:
  bool AtEnd() const { return m_at == m_text.size(); }
  void SkipBlanks() {
    while (!AtEnd() && m_text[m_at] == L' ') ++m_at;
  }
  bool Fail(char const* reason) { return Fail(reason, m_at); }
  bool Fail(char const* reason, std::size_t at) {
    m_fault = {static_cast<int>(at), CString::FromUtf8(reason)};
    return false;
  }
  /// The characters up to a blank or parenthesis.
  std::wstring_view Word() const {
    auto const end = m_text.find_first_of(L" ()", m_at);
    return std::wstring_view(m_text).substr(m_at, end - m_at);
  }

  bool ReadName(SectionText& section) {
    auto const word = Word();
    for (auto const& row : kShapes)
      if (row.name == word) m_row = &row;
    if (m_row == nullptr) return Fail("no shape of this name");
    section.shape = m_row->shape;
    m_at += word.size();
    return true;
  }

  bool ReadUnit() {
    SkipBlanks();
    if (AtEnd() || m_text[m_at] != L'(') return true;
    ++m_at;
    auto const word = Word();
    auto const* const unit =
        std::find_if(kUnits.begin(), kUnits.end(), [&](Unit const& u) { return u.name == word; });
    if (unit == kUnits.end()) return Fail("no unit of this name, expected m, cm or mm");
    m_perModelUnit = unit->perModelUnit;
    m_at += word.size();
    if (AtEnd() || m_text[m_at] != L')') return Fail("expected )");
    ++m_at;
    return true;
  }

  bool TakeTo() {
    if (Word() != L"to") return false;
    m_at += 2;
    return true;
  }

  bool ReadDimensions(Dimensions& dimensions) {
    SkipBlanks();
    auto const begin = m_at;
    std::size_t count = 0;
    for (SkipBlanks(); count < m_row->props.size(); ++count, SkipBlanks()) {
      if (AtEnd() || Word() == L"to") break;
      auto const prop = m_row->props[count];
      if (!ReadNumber(dimensions[static_cast<std::size_t>(prop)], IsRadius(prop))) return false;
    }
    if (count < m_row->needed) return Fail("fewer dimensions than the shape has");
    return IsPossible(m_row->shape, dimensions) ||
           Fail("no shape has these dimensions: its parts do not fit into it", begin);
  }

  bool ReadNumber(double& value, bool mayBeZero) {
    auto const word = CString(Word()).ToUtf8();
    auto const* const end = word.data() + word.size();
    double number = 0;
    auto const read = std::from_chars(word.data(), end, number);
    if (word.empty() || read.ec != std::errc() || read.ptr != end || !std::isfinite(number))
      return Fail("expected a number");
    if (number < 0 || (number == 0 && !mayBeZero)) return Fail("a dimension is above 0");
    value = number / m_perModelUnit;
    if (value == 0 && !mayBeZero) return Fail("a dimension is above 0");
    m_at += Word().size();
    return true;
  }

  std::wstring const& m_text;
  std::size_t m_at = 0;
  SectionShapeRow const* m_row = nullptr;
  double m_perModelUnit = 1;
  SectionFault m_fault;
};

void AppendDimensions(CString& text, SectionShapeRow const& row, Dimensions const& dimensions) {
  std::size_t count = row.props.size();
  while (count > row.needed && At(dimensions, row.props[count - 1]) == 0) --count;
  for (auto const prop : row.props.first(count)) {
    text += L" ";
    text += StringFrom(At(dimensions, prop));
  }
}

}  // namespace

SectionShapeRow const& SectionShapeOf(SectionShape shape) {
  static constexpr SectionShapeRow kNone;
  auto const* const row = std::find_if(kShapes.begin(), kShapes.end(),
                                       [&](auto const& other) { return other.shape == shape; });
  return row == kShapes.end() ? kNone : *row;
}

std::optional<SectionText> ReadSection(CString const& text, SectionFault* fault) {
  SectionReader reader(text);
  auto section = reader.Read();
  if (!section && fault != nullptr) *fault = reader.Fault();
  return section;
}

CString WriteSection(SectionText const& section) {
  auto const& row = SectionShapeOf(section.shape);
  CString text(row.name);
  AppendDimensions(text, row, section.start);
  if (section.end == section.start) return text;
  text += L" to";
  AppendDimensions(text, row, section.end);
  return text;
}

}  // namespace Tarvex::Data
