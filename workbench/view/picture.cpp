#include "workbench/view/picture.h"

#include <algorithm>
#include <array>
#include <set>

#include "store/record/node.h"
#include "workbench/report/text.h"
#include "workbench/view/storeys.h"
#include "workbench/view/style.h"
#include "workbench/view/svg.h"

namespace Tarvex::Workbench {
namespace {

// The page, in tenths of its unit.
constexpr int kPageWidth = 10000;
constexpr int kMargin = 200;
constexpr int kCaptionHeight = 1050;
constexpr int kMostHeight = 8200;
constexpr int kLeastHeight = 1000;
constexpr int kLevelRoom = 1700;  // at the left, for the names of levels
constexpr int kLegendRow = 180;
constexpr int kLegendColumns = 2;
constexpr int kSwatch = 280;               // width of a sample in the legend
constexpr int kAxisLength = 260;           // of the drawn axes
constexpr std::size_t kLongestText = 140;  // characters of a line of the caption
constexpr std::size_t kMostStoreys = 8;    // names of storeys in a caption

constexpr PagePoint kInMiddle{0, 28};  // from a point to the base line of its number
constexpr PagePoint kBeside{25, -25};

using Points = std::vector<Vec3<double>>;

std::string Cut(std::string const& utf8) {
  auto const text = CString::FromUtf8(utf8);
  auto const most = static_cast<int>(kLongestText);
  return text.GetLength() <= most ? utf8 : text.Left(most - 3).ToUtf8() + "...";
}

std::string TextAt(PagePoint at, std::string_view attributes, std::string const& text) {
  auto element = "<text x=\"" + Tenths(at.x) + "\" y=\"" + Tenths(at.y) + "\"";
  (element += attributes) += ">";
  return (element += XmlText(text)) += "</text>\n";
}

/// The path of a mark as its style draws it.
std::string MarkPath(StyleRow const& style, std::vector<PagePoint> const& points) {
  auto path = PathOf(points, style.stroke == Stroke::Closed);
  if (style.stroke == Stroke::Arrow) path += ArrowHead(points);
  if (style.stroke == Stroke::Spot) path += style.symbol;
  return path;
}

/// Writes marks one behind the other: a group for a run of one look, a path for as many as may
/// be painted at once.
class MarkWriter {
 public:
  std::string Write(std::vector<Mark> const& marks) {
    for (auto const& mark : marks) Add(mark);
    EndGroup();
    return std::move(m_text);
  }

 private:
  void Add(Mark const& mark) {
    auto const& style = StyleOf(mark.look);
    if (m_style != &style) {
      EndGroup();
      m_style = &style;
      ((m_text += "<g class=\"") += style.name) += "\">\n";
    }
    if (style.stroke == Stroke::Text) {
      auto const& at = mark.points.front();
      auto const shift = mark.look == Look::Number ? kInMiddle : kBeside;
      m_text += TextAt({at.x + shift.x, at.y + shift.y}, "", std::to_string(mark.number));
      return;
    }
    // Areas of different depth may cover each other's outlines; lines and spots of one look may
    // come in any order.
    if (style.stroke == Stroke::Closed && mark.depth != m_depth) EndPath();
    m_depth = mark.depth;
    m_text += m_inPath ? "" : "<path d=\"";
    m_text += MarkPath(style, mark.points);
    m_inPath = true;
  }

  void EndPath() {
    if (m_inPath) m_text += "\"/>\n";
    m_inPath = false;
  }

  void EndGroup() {
    EndPath();
    if (m_style != nullptr) m_text += "</g>\n";
    m_style = nullptr;
  }

  std::string m_text;
  StyleRow const* m_style = nullptr;
  std::int64_t m_depth = 0;
  bool m_inPath = false;
};

Points PointsOf(Scene const& scene) {
  Points points;
  for (auto const& thing : scene.things)
    points.insert(points.end(), thing.points.begin(), thing.points.end());
  for (auto const& number : scene.numbers) points.push_back(number.at);
  return points;
}

/// The levels that a picture shows.
std::vector<Level> ShownLevels(CZelData const& model, bool all, Util::CBox3D const& shown) {
  auto levels = LevelsOf(model);
  double const slack = model.Spec().GenTol();
  std::erase_if(levels, [&](Level const& level) {
    return !all && (level.height < shown.Min().z - slack || level.height > shown.Max().z + slack);
  });
  return levels;
}

std::string StoreysText(std::vector<Level> const& levels) {
  std::string text = "storeys, with z in m: ";
  for (std::size_t i = 0; i < std::min(levels.size(), kMostStoreys); ++i)
    ((((text += i == 0 ? "" : ", ") += levels[i].name) += " (") += HeightText(levels[i])) += ")";
  if (levels.size() > kMostStoreys)
    text += " and " + std::to_string(levels.size() - kMostStoreys) + " more";
  return text;
}

/// The sample of a look, as its marks are drawn.
std::string Swatch(StyleRow const& style, PagePoint at) {
  int const half = kSwatch / 2;
  std::vector<PagePoint> points{{at.x, at.y}, {at.x + kSwatch, at.y}};
  if (style.stroke == Stroke::Spot) points = {{at.x + half, at.y}};
  if (style.stroke == Stroke::Closed)
    points = {{at.x, at.y - 50},
              {at.x + kSwatch, at.y - 50},
              {at.x + kSwatch, at.y + 50},
              {at.x, at.y + 50}};
  auto path = "<path class=\"" + std::string(style.name) + "\" d=\"";
  return (path += MarkPath(style, points)) += "\"/>\n";
}

/// The styles that occur and have something to say.
std::vector<StyleRow const*> LegendRows(std::vector<Mark> const& marks) {
  std::set<Look> looks;
  for (auto const& mark : marks) looks.insert(mark.look);
  std::vector<StyleRow const*> rows;
  for (auto const& style : Styles())
    if (!style.legend.empty() && looks.contains(style.look)) rows.push_back(&style);
  return rows;
}

/// Puts a picture together.
class PictureMaker {
 public:
  PictureMaker(CZelData const& model, PictureRequest const& request)
      : m_request(request), m_scene(MakeScene(model, request.scene)) {
    auto points = PointsOf(m_scene);
    Util::CBox3D box;
    for (auto const& p : points) box.AddPoint(p);
    m_levels = ShownLevels(model, request.scene.allNodes, box);
    bool const lines = IsElevation(request.view) && !m_levels.empty();
    if (lines)
      for (auto const& level : m_levels) points.push_back(level.At(box.Centre()));
    m_centre = box.Centre();
    int const left = lines ? kLevelRoom : kMargin;
    m_fit = PageFit(request.view, points,
                    {left, kCaptionHeight, kPageWidth - kMargin - left, kMostHeight}, kLeastHeight);
  }

  Picture Make() {
    auto const marks = MakeMarks(m_scene, m_fit);
    auto const body = Caption() + Axes() + LevelLines() + MarkWriter().Write(marks) + Legend(marks);
    auto const width = Tenths(kPageWidth);
    auto const height = Tenths(m_height);
    return {
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"" +
            width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + " " + height +
            "\">\n<title>" + XmlText(m_request.title) + "</title>\n<style type=\"text/css\">\n" +
            StyleSheet() + "</style>\n<rect width=\"" + width + "\" height=\"" + height +
            "\" fill=\"#fff\"/>\n" + body + "</svg>\n",
        m_scene.counts, static_cast<int>(m_levels.size())};
  }

 private:
  std::string Caption() const {
    bool const empty = m_scene.counts.IsEmpty() && m_scene.numbers.empty();
    auto const counts = empty ? m_request.nothing : CountsText(m_scene.counts);
    auto text = TextAt({kMargin, 260}, " class=\"title\"", Cut(m_request.title)) +
                TextAt({kMargin, 450}, "", std::string(ViewOf(m_request.view).title)) +
                TextAt({kMargin, 620}, "", Cut(counts));
    if (!m_levels.empty() && !IsElevation(m_request.view))
      text += TextAt({kMargin, 790}, "", Cut(StoreysText(m_levels)));
    return "<g class=\"caption\">\n" + text + "</g>\n";
  }

  /// The global axes as they are seen, at the upper right.
  std::string Axes() const {
    constexpr PagePoint kOrigin{kPageWidth - kMargin - 350, 500};
    constexpr std::array<Vec3<double>, 3> kUnits{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    std::string paths;
    std::string names;
    for (std::size_t i = 0; i < kUnits.size(); ++i) {
      auto const seen = Project(m_request.view, kUnits[i]);
      auto const at = [&](double length) {
        return PagePoint{kOrigin.x + static_cast<int>(length * seen.right),
                         kOrigin.y - static_cast<int>(length * seen.up)};
      };
      std::vector<PagePoint> const line{kOrigin, at(kAxisLength)};
      if (line[0] == line[1]) continue;  // straight at the viewer
      paths += PathOf(line, false) + ArrowHead(line);
      auto const name = at(kAxisLength + 90);
      names += TextAt({name.x, name.y + 40}, " text-anchor=\"middle\"",
                      std::string(1, static_cast<char>('x' + i)));
    }
    return "<g>\n<path class=\"axes\" d=\"" + paths + "\"/>\n" + names + "</g>\n";
  }

  std::string LevelLines() const {
    if (!IsElevation(m_request.view) || m_levels.empty()) return {};
    std::string path;
    std::string names;
    for (auto const& level : m_levels) {
      int const y = m_fit.Place(level.At(m_centre)).y;
      path += PathOf({{kMargin, y}, {kPageWidth - kMargin, y}}, false);
      names += TextAt({kMargin, y - 30}, "", Cut(level.name + ", z = " + HeightText(level) + " m"));
    }
    return "<g class=\"levels\">\n<path class=\"level\" d=\"" + path + "\"/>\n" + names + "</g>\n";
  }

  /// The legend of the looks that occur; sets the height of the page.
  std::string Legend(std::vector<Mark> const& marks) {
    auto const rows = LegendRows(marks);
    int const top = m_fit.Box().top + m_fit.Box().height + 2 * kMargin;
    int const inColumn = (static_cast<int>(rows.size()) + kLegendColumns - 1) / kLegendColumns;
    m_height = top + inColumn * kLegendRow;
    PagePoint at{kMargin, top};
    std::string text;
    for (auto const* style : rows) {
      text += Swatch(*style, at);
      text += TextAt({at.x + kSwatch + 100, at.y + 40}, "", std::string(style->legend));
      at.y += kLegendRow;
      if (at.y < m_height) continue;
      at = {at.x + (kPageWidth - 2 * kMargin) / kLegendColumns, top};
    }
    return text.empty() ? "" : "<g class=\"legend\">\n" + text + "</g>\n";
  }

  PictureRequest const& m_request;
  Scene m_scene;
  std::vector<Level> m_levels;
  Vec3<double> m_centre;
  PageFit m_fit{View::Iso, {}, {}, 0};
  int m_height = 0;
};

/// "a, b" from parts that are not empty.
std::string WithCommas(std::span<std::string const> parts) {
  std::string text;
  for (auto const& part : parts)
    if (!part.empty()) (text += text.empty() ? "" : ", ") += part;
  return text;
}

std::string CountOrNothing(std::size_t count, std::string_view noun) {
  return count == 0 ? "" : Counted(count, noun);
}

std::string Labelled(std::size_t count, std::string_view label) {
  return count == 0 ? "" : std::to_string(count) + " " + std::string(label);
}

}  // namespace

std::string CountsText(SceneCounts const& counts) {
  std::array const kinds{Labelled(counts.lines, "1D"), Labelled(counts.plates, "2D"),
                         Labelled(counts.solids, "3D"),
                         CountOrNothing(counts.panels, "load panel")};
  auto elements = CountOrNothing(counts.Elements(), "element");
  if (!elements.empty()) elements += " (" + WithCommas(kinds) + ")";
  std::array const parts{elements, CountOrNothing(counts.members, "member"),
                         CountOrNothing(counts.supports, "support"),
                         Labelled(counts.left, "not drawn")};
  return WithCommas(parts);
}

Picture DrawPicture(CZelData const& model, PictureRequest const& request) {
  return PictureMaker(model, request).Make();
}

}  // namespace Tarvex::Workbench
