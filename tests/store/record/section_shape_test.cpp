#include "store/record/section_shape.h"

#include <gtest/gtest.h>

namespace Tarvex::Data::SectionShapeTest {
namespace {

using Values = SectionDimensions;

/// A text, the shape that it describes and its nine dimensions by number.
struct Row {
  wchar_t const* text;
  SectionShape shape;
  Values dimensions;
};

void ExpectRead(Row const& row) {
  SCOPED_TRACE(CString(row.text).ToUtf8());
  SectionFault fault;
  auto const section = ReadSection(row.text, &fault);
  ASSERT_TRUE(section) << fault.reason.ToUtf8() << " at " << fault.position;
  EXPECT_EQ(section->shape, row.shape);
  EXPECT_EQ(section->start, row.dimensions);
  EXPECT_EQ(section->end, row.dimensions);
  EXPECT_EQ(WriteSection(*section), row.text);
}

TEST(ReadSection, KnowsEachShapeByItsNumberAndDimensions) {
  for (auto const& row : {
           Row{L"rectangle 0.5 0.3", SectionShape(10), {0.5, 0.3}},
           Row{L"trapezoid 0.5 0.4 0.2", SectionShape(12), {0.5, 0.4, 0, 0, 0.2}},
           Row{L"circle 0.6", SectionShape(7), {0.6}},
           Row{L"tube 0.2 0.01", SectionShape(8), {0.2, 0, 0.01}},
           Row{L"box 0.3 0.2 0.01 0.012", SectionShape(9), {0.3, 0.2, 0.01, 0.012}},
           Row{L"box 0.3 0.2 0.01 0.01 0.015 0.01",
               SectionShape(9),
               {0.3, 0.2, 0.01, 0.01, 0, 0, 0, 0.015, 0.01}},
           Row{L"unequal-box 0.3 0.2 0.01 0.011 0.012 0.013",
               SectionShape(1033),
               {0.3, 0.2, 0.01, 0.012, 0, 0.011, 0.013}},
           Row{L"I 0.3 0.15 0.007 0.01", SectionShape(1), {0.3, 0.15, 0.007, 0.01}},
           Row{L"I 0.3 0.15 0.007 0.01 0.015",
               SectionShape(1),
               {0.3, 0.15, 0.007, 0.01, 0, 0, 0, 0.015}},
           Row{L"unequal-I 0.4 0.3 0.2 0.01 0.02 0.015",
               SectionShape(11),
               {0.4, 0.3, 0.01, 0.02, 0.2, 0, 0.015}},
           Row{L"unequal-I 0.4 0.3 0.2 0.01 0.02 0.015 0.008",
               SectionShape(11),
               {0.4, 0.3, 0.01, 0.02, 0.2, 0, 0.015, 0.008}},
           Row{L"tapered-I 0.4 0.3 0.02 0.01 0.03 0.025",
               SectionShape(1024),
               {0.4, 0.3, 0.02, 0.03, 0, 0.01, 0.025}},
           Row{L"channel 0.2 0.08 0.006 0.011 0.013",
               SectionShape(2),
               {0.2, 0.08, 0.006, 0.011, 0, 0, 0, 0.013}},
           Row{L"tee 0.3 0.4 0.1 0.15", SectionShape(3), {0.3, 0.4, 0.1, 0.15}},
           Row{L"tapered-tee 0.5 0.6 0.2 0.15 0.1",
               SectionShape(1027),
               {0.5, 0.6, 0.2, 0.1, 0, 0.15}},
       })
    ExpectRead(row);
}

TEST(ReadSection, TellsKindsByTheBitsThatToolsMask) {
  constexpr int kMask = 0x140F;
  for (int const code : {1, 2, 3, 7, 8, 9, 10, 11, 12, 1024, 1027, 1033}) {
    EXPECT_EQ(code & kMask, code);
    EXPECT_FALSE(SectionShapeOf(SectionShape(code)).name.empty()) << code;
  }
  EXPECT_TRUE(SectionShapeOf(SectionShape(4)).name.empty());
  EXPECT_TRUE(SectionShapeOf(SectionShape::None).name.empty());
}

TEST(ReadSection, TakesUnits) {
  auto const plain = ReadSection(L"I 0.3 0.15 0.0071 0.0107 0.015");
  for (auto const* text :
       {L"I(mm) 300 150 7.1 10.7 15", L"I(cm) 30 15 0.71 1.07 1.5",
        L"I(m) 0.3 0.15 0.0071 0.0107 0.015", L" I (mm)  300 150 7.1 10.7 15 "}) {
    auto const section = ReadSection(text);
    ASSERT_TRUE(section) << CString(text).ToUtf8();
    for (std::size_t i = 0; i < kSectionProps; ++i)
      EXPECT_NEAR(section->start[i], plain->start[i], 1e-17);
  }
}

TEST(ReadSection, TakesDimensionsOfBothEnds) {
  auto const section = ReadSection(L"rectangle(cm) 50 30 to 80 40");
  ASSERT_TRUE(section);
  EXPECT_EQ(section->start, (Values{0.5, 0.3}));
  EXPECT_EQ(section->end, (Values{0.8, 0.4}));
  EXPECT_EQ(WriteSection(*section), L"rectangle 0.5 0.3 to 0.8 0.4");
  EXPECT_EQ(WriteSection(*ReadSection(L"circle 1 to 1")), L"circle 1");
}

TEST(ReadSection, TakesTheEmptyTextAsNoShape) {
  for (auto const* text : {L"", L"  "}) {
    auto const section = ReadSection(text);
    ASSERT_TRUE(section);
    EXPECT_EQ(section->shape, SectionShape::None);
    EXPECT_EQ(WriteSection(*section), L"");
  }
}

TEST(ReadSection, TellsThePlaceAndReasonOfAFault) {
  struct Fault {
    wchar_t const* text;
    int position;
    wchar_t const* reason;
  };
  for (auto const& row : {
           Fault{L"beam 1 2", 0, L"no shape of this name"},
           Fault{L"i 0.3 0.15 0.007 0.01", 0, L"no shape of this name"},
           Fault{L"circle(in) 1", 7, L"no unit of this name, expected m, cm or mm"},
           Fault{L"circle(mm 1", 9, L"expected )"},
           Fault{L"rectangle 0.5", 13, L"fewer dimensions than the shape has"},
           Fault{L"rectangle", 9, L"fewer dimensions than the shape has"},
           Fault{L"rectangle 0.5 0.3 0.2", 18, L"more than the shape has dimensions"},
           Fault{L"rectangle 0.5 0.3 to 0.2", 24, L"fewer dimensions than the shape has"},
           Fault{L"rectangle 0.5 x", 14, L"expected a number"},
           Fault{L"rectangle 0.5 nan", 14, L"expected a number"},
           Fault{L"rectangle 0.5 1e999", 14, L"expected a number"},
           Fault{L"rectangle 0.5 0,3", 14, L"expected a number"},
           Fault{L"rectangle 0.5 0", 14, L"a dimension is above 0"},
           Fault{L"rectangle -1 1", 10, L"a dimension is above 0"},
           Fault{L"tube 0.2 0.101", 5,
                 L"no shape has these dimensions: its parts do not fit into it"},
           Fault{L"I 1 1 0.1 0.5", 2,
                 L"no shape has these dimensions: its parts do not fit into it"},
       }) {
    SCOPED_TRACE(CString(row.text).ToUtf8());
    SectionFault fault;
    EXPECT_FALSE(ReadSection(row.text, &fault));
    EXPECT_EQ(fault.position, row.position);
    EXPECT_EQ(fault.reason, row.reason);
  }
}

TEST(ReadSection, RefusesPartsThatDoNotFit) {
  for (auto const* text :
       {L"box 0.3 0.2 0.1 0.01", L"box 0.3 0.2 0.01 0.15", L"box 0.3 0.2 0.01 0.01 0.11",
        L"box 0.3 0.2 0.01 0.01 0.01 0.1", L"unequal-box 0.3 0.2 0.1 0.1 0.01 0.01",
        L"unequal-box 0.3 0.2 0.01 0.01 0.2 0.1", L"I 0.3 0.15 0.16 0.01",
        L"I 0.3 0.15 0.01 0.01 0.08", L"unequal-I 0.3 0.2 0.1 0.11 0.01 0.01",
        L"unequal-I 0.3 0.2 0.1 0.01 0.2 0.1", L"tapered-I 0.3 0.2 0.01 0.21 0.01 0.01",
        L"channel 0.2 0.08 0.07 0.01 0.011", L"channel 0.2 0.08 0.01 0.095 0.01",
        L"tee 0.2 0.1 0.11 0.01", L"tee 0.2 0.1 0.01 0.2", L"tapered-tee 0.2 0.1 0.01 0.11 0.01"}) {
    EXPECT_FALSE(ReadSection(text)) << CString(text).ToUtf8();
  }
}

}  // namespace
}  // namespace Tarvex::Data::SectionShapeTest
