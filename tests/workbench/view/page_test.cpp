#include "workbench/view/page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "tests/support/builders.h"

namespace Tarvex::PageTest {
namespace {

using Workbench::Look;
using Workbench::Mark;
using Workbench::PageFit;
using Workbench::PagePoint;
using Workbench::Scene;
using Workbench::Thing;
using Workbench::ThingKind;
using Workbench::View;
using Points = std::vector<Vec3<double>>;
using Looks = std::vector<Look>;

constexpr Workbench::PageBox kBox{100, 200, 1000, 800};

TEST(PageFit, FitsWidthOrHeightInTheMiddle) {
  // 4 by 1 in a box of 1000 by 800: 250 a unit, so 1000 by 250.
  PageFit const fit(View::Plan, {{0, 0, 0}, {4, 1, 0}}, kBox, 100);
  EXPECT_EQ(fit.Box().height, 250);
  EXPECT_EQ(fit.Place({0, 0, 0}), (PagePoint{100, 450}));
  EXPECT_EQ(fit.Place({4, 1, 0}), (PagePoint{1100, 200}));
  EXPECT_EQ(fit.Place({2, 0.5, 9}), (PagePoint{600, 325}));
  // 1 by 8: 100 a unit, so 100 by 800.
  PageFit const tall(View::Plan, {{0, 0, 0}, {1, 8, 0}}, kBox, 100);
  EXPECT_EQ(tall.Place({0, 0, 0}), (PagePoint{550, 1000}));
  EXPECT_EQ(tall.Place({1, 8, 0}), (PagePoint{650, 200}));
}

TEST(PageFit, TakesWhatIsHugeTinyOrAwayFromTheOrigin) {
  double const huge = std::numeric_limits<double>::max();
  for (auto const& points : {Points{{-huge, 0, 0}, {huge, 0, 0}}, Points{{0, 0, 0}, {1e-300, 0, 0}},
                             Points{{1e9, 1e9, 1e9}, {1e9 + 1, 1e9, 1e9}}}) {
    PageFit const fit(View::Plan, points, kBox, 100);
    EXPECT_EQ(fit.Place(points[0]), (PagePoint{100, 250}));
    EXPECT_EQ(fit.Place(points[1]), (PagePoint{1100, 250}));
    EXPECT_EQ(fit.Box().height, 100);
  }
}

TEST(PageFit, PutsEqualPointsIntoTheMiddle) {
  EXPECT_EQ(PageFit(View::Iso, {{3, 4, 5}, {3, 4, 5}}, kBox, 100).Place({3, 4, 5}),
            (PagePoint{600, 250}));
  EXPECT_EQ(PageFit(View::Iso, {}, kBox, 100).Place({0, 0, 0}), (PagePoint{600, 250}));
  // A line that is seen end on.
  PageFit const fit(View::X, {{0, 0.1, 0.3}, {7, 0.1, 0.3}}, kBox, 100);
  EXPECT_EQ(fit.Place({7, 0.1, 0.3}), (PagePoint{600, 250}));
}

Points PointsOf(Scene const& scene) {
  Points points;
  for (auto const& thing : scene.things)
    points.insert(points.end(), thing.points.begin(), thing.points.end());
  return points;
}

std::vector<Mark> Marks(Scene const& scene, View view) {
  return MakeMarks(scene, PageFit(view, PointsOf(scene), {0, 0, 10000, 10000}, 100));
}

Looks LooksOf(std::vector<Thing> const& things, View view = View::Plan) {
  Looks looks;
  for (auto const& mark : Marks({things, {}, {}}, view)) looks.push_back(mark.look);
  return looks;
}

/// A unit square at a height with its normal up; nodes numbered from the given one.
Thing Square(ThingKind kind, double z, int node, double x = 0) {
  return {kind,
          {{x, 0, z}, {x + 1, 0, z}, {x + 1, 1, z}, {x, 1, z}},
          {node, node + 1, node + 2, node + 3}};
}

Thing Turned(Thing thing) {
  std::reverse(thing.points.begin(), thing.points.end());
  return thing;
}

TEST(MakeMarks, PaintsWhatIsFarFirst) {
  // Seen from above the lower one is further away, in whatever order they come.
  auto const low = Square(ThingKind::Panel, 0, 1);
  auto const high = Square(ThingKind::Plate, 3, 11);
  EXPECT_EQ(LooksOf({low, high}), (Looks{Look::PanelFront, Look::PlateFront}));
  EXPECT_EQ(LooksOf({high, low}), (Looks{Look::PanelFront, Look::PlateFront}));
}

TEST(MakeMarks, TellsTheSideOfAPlateByTheNormal) {
  auto const square = Square(ThingKind::Plate, 0, 1);
  EXPECT_EQ(LooksOf({square}), Looks{Look::PlateFront});
  EXPECT_EQ(LooksOf({Turned(square)}), Looks{Look::PlateBack});
  EXPECT_EQ(LooksOf({square}, View::X), Looks{Look::PlateEdge});
  EXPECT_EQ(LooksOf({square}, View::Iso), Looks{Look::PlateFront});
  auto const panel = Square(ThingKind::Panel, 0, 1);
  EXPECT_EQ(LooksOf({Turned(panel)}), Looks{Look::PanelBack});
  EXPECT_EQ(LooksOf({panel}, View::Y), Looks{Look::PanelEdge});
}

TEST(MakeMarks, LeavesOutFacesOfSolidsThatAreSeenFromBehind) {
  auto const face = Square(ThingKind::SolidFace, 0, 1);
  EXPECT_EQ(LooksOf({face}), Looks{Look::Solid});
  EXPECT_EQ(LooksOf({Turned(face)}), Looks{});
}

TEST(MakeMarks, PutsLinesAndSupportsOnTheFacesWhoseNodesTheyShare) {
  // A roof that slopes towards the viewer of the elevation x: its mean is nearer than its far edge.
  Thing const roof{ThingKind::Plate, {{0, 0, 2}, {4, 0, 0}, {4, 3, 0}, {0, 3, 2}}, {1, 2, 3, 4}};
  Thing const ridge{ThingKind::Line, {{0, 0, 2}, {0, 3, 2}}, {1, 4}};
  Thing const strange{ThingKind::Line, {{0, 0, 2}, {0, 3, 2}}, {8, 9}};
  Thing const support{ThingKind::Support, {{0, 0, 2}}, {1}};
  EXPECT_EQ(LooksOf({ridge, roof}, View::X), (Looks{Look::PlateFront, Look::Line}));
  EXPECT_EQ(LooksOf({support, roof}, View::X), (Looks{Look::PlateFront, Look::Support}));
  EXPECT_EQ(LooksOf({strange, roof}, View::X), (Looks{Look::Line, Look::PlateFront}));
}

TEST(MakeMarks, PutsLinesInThePlaneOfAPanelOnIt) {
  // A wall panel in the plane y = 0, 4 long and 3 high, and a beam along its foot whose nodes are
  // none of the panel's. In the isometric view the middle of the panel is nearer than its foot.
  Thing const panel{ThingKind::Panel, {{0, 0, 0}, {4, 0, 0}, {4, 0, 3}, {0, 0, 3}}, {1, 2, 3, 4}};
  Thing const beam{ThingKind::Line, {{1, 0, 0}, {2, 0, 0}}, {8, 9}};
  Thing const behind{ThingKind::Line, {{1, 2, 0}, {2, 2, 0}}, {8, 9}};
  EXPECT_EQ(LooksOf({beam, panel}, View::Iso), (Looks{Look::PanelFront, Look::Line}));
  EXPECT_EQ(LooksOf({behind, panel}, View::Iso), (Looks{Look::Line, Look::PanelFront}));
}

TEST(MakeMarks, ALineThatIsSeenEndOnTellsWhereItRuns) {
  Thing const up{ThingKind::Line, {{0, 0, 0}, {0, 0, 3}}, {1, 2}};
  Thing const down{ThingKind::Line, {{5, 0, 3}, {5, 0, 0}}, {3, 4}};
  EXPECT_EQ(LooksOf({up, down}), (Looks{Look::LineToward, Look::LineAway}));
}

TEST(MakeMarks, ALineKeepsItsDirection) {
  auto const marks =
      Marks({{{ThingKind::Line, {{2, 0, 0}, {0, 0, 0}}, {2, 1}}}, {}, {}}, View::Plan);
  ASSERT_EQ(marks.size(), 1u);
  EXPECT_EQ(marks[0].points.front(), (PagePoint{10000, 50}));
  EXPECT_EQ(marks[0].points.back(), (PagePoint{0, 50}));
}

TEST(MakeMarks, NumbersAreOnWhatTheyNumberAndBehindWhatIsNearer) {
  Scene scene{{Square(ThingKind::Plate, 0, 1), Square(ThingKind::Panel, 5, 11)}, {}, {}};
  scene.numbers.push_back({7, {0.5, 0.5, 0}, {1, 2, 3, 4}});
  scene.numbers.push_back({8, {0, 0, 5}, {11}});
  auto const marks = Marks(scene, View::Plan);
  ASSERT_EQ(marks.size(), 4u);
  EXPECT_EQ(marks[0].look, Look::PlateFront);
  EXPECT_EQ(marks[1].look, Look::Number);
  EXPECT_EQ(marks[1].number, 7);
  EXPECT_EQ(marks[2].look, Look::PanelFront);
  EXPECT_EQ(marks[3].look, Look::NumberBeside);
  EXPECT_EQ(marks[3].number, 8);
}

}  // namespace
}  // namespace Tarvex::PageTest
