#include "workbench/view/svg.h"

#include <gtest/gtest.h>

namespace Tarvex::SvgTest {
namespace {

using Workbench::ArrowHead;
using Workbench::PathOf;
using Workbench::Tenths;
using Workbench::XmlText;

TEST(XmlText, EscapesMarkup) {
  EXPECT_EQ(XmlText("a<b> & \"c\""), "a&lt;b&gt; &amp; &quot;c&quot;");
}

TEST(XmlText, KeepsOtherCharactersAndReplacesWhatXmlHasNot) {
  EXPECT_EQ(XmlText("\xC3\xA4 \xF0\x9F\x8F\xA0"), "\xC3\xA4 \xF0\x9F\x8F\xA0");  // a umlaut, house
  EXPECT_EQ(XmlText("a\x01z"), "a\xEF\xBF\xBDz");      // a control character
  EXPECT_EQ(XmlText("\xEF\xBF\xBE"), "\xEF\xBF\xBD");  // U+FFFE
  EXPECT_EQ(XmlText("\xFF"), "\xEF\xBF\xBD");          // no UTF-8
  EXPECT_EQ(XmlText("a\tb\n"), "a\tb\n");
}

TEST(Tenths, HasOneDecimalAtMost) {
  EXPECT_EQ(Tenths(0), "0");
  EXPECT_EQ(Tenths(120), "12");
  EXPECT_EQ(Tenths(5), "0.5");
  EXPECT_EQ(Tenths(-5), "-0.5");
  EXPECT_EQ(Tenths(-1234), "-123.4");
}

TEST(PathOf, StartsAbsoluteAndGoesOnRelative) {
  // From (1, 2) by (2, -1.5) to (3, 0.5).
  EXPECT_EQ(PathOf({{10, 20}, {30, 5}}, false), "M1 2l2-1.5");
  EXPECT_EQ(PathOf({{10, 20}, {30, 20}, {30, 40}}, true), "M1 2l2 0l0 2z");
  EXPECT_EQ(PathOf({}, false), "");
}

TEST(ArrowHead, IsAtTheLastPoint) {
  // 100 long: a head of 5.5, 0.4 x 5.5 = 2.2 to either side, on both sides of a line to the right.
  EXPECT_EQ(ArrowHead({{0, 0}, {1000, 0}}), "M94.5 2.2l5.5-2.2l-5.5-2.2");
  // The other way round it is at the other end.
  EXPECT_EQ(ArrowHead({{1000, 0}, {0, 0}}), "M5.5-2.2l-5.5 2.2l5.5 2.2");
}

TEST(ArrowHead, IsShortOnAShortLineAndThereIsNoneWithoutLength) {
  // 0.4 x 10 = 4, and 0.4 x 4 = 1.6 to either side.
  EXPECT_EQ(ArrowHead({{0, 0}, {100, 0}}), "M6 1.6l4-1.6l-4-1.6");
  EXPECT_EQ(ArrowHead({{7, 7}, {7, 7}}), "");
  EXPECT_EQ(ArrowHead({{7, 7}}), "");
}

}  // namespace
}  // namespace Tarvex::SvgTest
