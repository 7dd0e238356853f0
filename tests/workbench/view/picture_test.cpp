#include "workbench/view/picture.h"

#include <gtest/gtest.h>

#include <regex>

#include "store/record/element.h"
#include "store/record/grid_plane.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tests/support/builders.h"

namespace Tarvex::PictureTest {
namespace {

using Workbench::Picture;
using Workbench::PictureRequest;
using Workbench::View;

/// A request for all of a model.
PictureRequest All(CZelData const& model, View view = View::Iso) {
  PictureRequest request{view, {}, "a model", "nothing here"};
  for (auto const& [n, element] : model.Elem()) request.scene.elements.AddTo(static_cast<int>(n));
  for (auto const& [n, member] : model.Member()) request.scene.members.AddTo(static_cast<int>(n));
  request.scene.allNodes = true;
  return request;
}

bool Has(Picture const& picture, std::string const& text) {
  return picture.svg.find(text) != std::string::npos;
}

TEST(Picture, DrawsAPlateAsAnOutlineOfItsClass) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  // 2 by 1 over the width of 960 of the page, from x = 20: squares of 480, the first from the lower
  // left corner round, the second behind it in the same path, as both are equally deep. The upper
  // edge is at y = 105.
  auto const picture = DrawPicture(model, All(model, View::Plan));
  EXPECT_TRUE(Has(picture,
                  "<g class=\"front\">\n"
                  "<path d=\"M20 585l480 0l0-480l-480 0zM500 585l480 0l0-480l-480 0z\"/>\n"
                  "</g>"))
      << picture.svg;
  EXPECT_EQ(picture.counts.plates, 2u);
}

TEST(Picture, WritesAnAreaOfAnotherDepthInAPathOfItsOwn) {
  CZelData model;
  for (double const z : {0, 1}) Testing::QuadAt(model, {0, 0, z}, {1, 0, z}, {1, 1, z}, {0, 1, z});
  // 820 is the most that a picture is high; 20 + (960 - 820) / 2 = 90, 105 + 820 = 925.
  EXPECT_TRUE(Has(DrawPicture(model, All(model, View::Plan)),
                  "<path d=\"M90 925l820 0l0-820l-820 0z\"/>\n"
                  "<path d=\"M90 925l820 0l0-820l-820 0z\"/>\n"));
}

TEST(Picture, ALineHasItsArrowAtItsSecondEnd) {
  CZelData model;
  Testing::BeamAt(model, {1, 0, 0}, {0, 0, 0});
  // From right to left at half of the least height, y = 105 + 100 / 2; the head is 5.5 long.
  EXPECT_TRUE(Has(DrawPicture(model, All(model, View::Plan)),
                  "<g class=\"line\">\n<path d=\"M980 155l-960 0M25.5 152.8l-5.5 2.2l5.5 2.2\"/>"));
}

TEST(Picture, HasALegendOfWhatOccursOnly) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  auto const picture = DrawPicture(model, All(model));
  EXPECT_TRUE(Has(picture, ">1D element; the arrow is at its second end<"));
  EXPECT_FALSE(Has(picture, ">2D element, front: its normal points to the viewer<"));
  Testing::QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  EXPECT_TRUE(
      Has(DrawPicture(model, All(model)), ">2D element, front: its normal points to the viewer<"));
}

TEST(Picture, HasACaptionWithTitleViewAndCounts) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  Testing::MemberAt(model, MembType::Beam, L"1 2");
  auto request = All(model, View::X);
  request.title = "tower <1> & \"co\"";
  auto const picture = DrawPicture(model, request);
  EXPECT_TRUE(Has(picture, ">tower &lt;1&gt; &amp; &quot;co&quot;</text>"));
  EXPECT_TRUE(Has(picture, ">elevation seen from +x</text>"));
  EXPECT_TRUE(Has(picture, ">2 elements (1 1D, 1 2D), 1 member</text>"));
}

TEST(Picture, CutsATitleThatIsLongerThanThePage) {
  auto request = All(CZelData{});
  request.title = std::string(200, 'w');
  auto const picture = DrawPicture({}, request);
  EXPECT_TRUE(Has(picture, ">" + std::string(137, 'w') + "...</text>"));
}

TEST(Picture, OfNothingSaysSo) {
  auto const picture = DrawPicture({}, All(CZelData{}));
  EXPECT_TRUE(Has(picture, ">nothing here</text>"));
  EXPECT_TRUE(picture.counts.IsEmpty());
  EXPECT_FALSE(Has(picture, "class=\"legend\""));
}

CZelData WithStoreys() {
  CZelData model;
  Testing::Frame(model, 1, 2);  // 6 wide, 6 high
  model.SetGridPlane(1, Data::CGridPlane(L"Ground", 0, 0, true));
  model.SetGridPlane(2, Data::CGridPlane(L"Roof <r>", 0, 6, true));
  return model;
}

TEST(Picture, HasStoreysAsLevelLinesInElevations) {
  auto const model = WithStoreys();
  // The names take the left 170 of the page, so that 980 - 170 = 810 is left for the width of 6 in
  // the elevation y; seen from x the frame has no width and takes all of the height of 820. The
  // roof is at y = 105; the lines run over the whole page.
  EXPECT_TRUE(Has(DrawPicture(model, All(model, View::Y)),
                  "<path class=\"level\" d=\"M20 915l960 0M20 105l960 0\"/>"));
  auto const picture = DrawPicture(model, All(model, View::X));
  EXPECT_TRUE(Has(picture, "<path class=\"level\" d=\"M20 925l960 0M20 105l960 0\"/>"));
  EXPECT_TRUE(Has(picture, ">Ground, z = 0 m</text>"));
  EXPECT_TRUE(Has(picture, ">Roof &lt;r&gt;, z = 6 m</text>"));
  EXPECT_EQ(picture.storeys, 2);
}

TEST(Picture, NamesStoreysInTheCaptionOfOtherViews) {
  auto const model = WithStoreys();
  for (auto const view : {View::Iso, View::Plan}) {
    auto const picture = DrawPicture(model, All(model, view));
    EXPECT_TRUE(Has(picture, ">storeys, with z in m: Ground (0), Roof &lt;r&gt; (6)</text>"));
    EXPECT_FALSE(Has(picture, "class=\"level\""));
  }
}

TEST(Picture, OfAPartShowsTheStoreysWithinItsHeights) {
  auto const model = WithStoreys();
  PictureRequest request{View::Y, {}, "", ""};
  request.scene.elements.AddTo(1);  // a column of the lower storey, from 0 to 3
  auto const picture = DrawPicture(model, request);
  EXPECT_EQ(picture.storeys, 1);
  EXPECT_TRUE(Has(picture, ">Ground, z = 0 m</text>"));
}

TEST(Picture, DrawsSupportsAndMembers) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  model.BlankElem(1, 1);
  model.SetNode(1, Data::CNode({0, 0, 0}, 0, Vbool6(L"fix")));
  Testing::MemberAt(model, MembType::Beam, L"1 2");
  auto const picture = DrawPicture(model, All(model, View::Plan));
  EXPECT_TRUE(Has(picture, "<g class=\"member\">\n<path d=\"M20 155l960 0M974.5"));
  EXPECT_TRUE(Has(picture, "<g class=\"fixed\">\n<path d=\"M20 155m-3.5-3.5h7v7h-7z\"/>"));
}

TEST(Picture, WritesNumbersOnDemand) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  auto request = All(model, View::Plan);
  EXPECT_FALSE(Has(DrawPicture(model, request), "<g class=\"number\""));
  request.scene.numbers = Workbench::NumbersOf::Elements;
  // The square is 820 wide, so its middle is at (500, 515); the base line is 2.8 lower.
  EXPECT_TRUE(Has(DrawPicture(model, request),
                  "<g class=\"number\">\n<text x=\"500\" y=\"517.8\">1</text>"));
  request.scene.numbers = Workbench::NumbersOf::Nodes;
  EXPECT_TRUE(Has(DrawPicture(model, request), "<text x=\"92.5\" y=\"922.5\">1</text>"));
}

TEST(Picture, HasNothingFromOutsideAndNoMoreThanTwoDecimals) {
  auto const model = WithStoreys();
  auto const svg = DrawPicture(model, All(model)).svg;
  auto const outside =
      std::regex("href|url\\(|@import|<script|<image|http(?!://www.w3.org/2000/svg\")");
  EXPECT_FALSE(std::regex_search(svg, outside));
  EXPECT_FALSE(std::regex_search(svg, std::regex("[.][0-9]{3}")));
  EXPECT_FALSE(std::regex_search(svg, std::regex("nan|inf", std::regex::icase)));
}

TEST(Picture, IsTheSameOnEveryRun) {
  auto const model = WithStoreys();
  auto const again = WithStoreys();
  EXPECT_EQ(DrawPicture(model, All(model)).svg, DrawPicture(again, All(again)).svg);
}

TEST(Picture, OfThreeThousandElementsIsBelowAMegabyte) {
  CZelData model;
  Testing::Grid(model, 60, 50);
  EXPECT_LT(DrawPicture(model, All(model)).svg.size(), 1000000u);
}

}  // namespace
}  // namespace Tarvex::PictureTest
