// The text of the tokens of lists, and ranges that are written out.
#include <gtest/gtest.h>

#include "store/record/node.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::MapWordTest {
namespace {

using Data::CEntList;
using Testing::OpenRenumber;
using Testing::Scheme;

constexpr int kOwn = CModule::Member;             // of the lists here
constexpr int kPropertyModule = CModule::Prop2D;  // that the owner of the list says

struct TokenRow {
  int token;
  wchar_t const* text;
  int next;
};

constexpr TokenRow kTokens[] = {
    {-58, L"MF", 36},    {-57, L"MT", 34},   {-55, L"MP", 32},
    {-54, L"MG", 35},    {-53, L"MA", 33},   {-52, L"MC", 31},
    {-51, L"MS", 30},    {-50, L"M", 38},    {-39, L"YZ", 80},
    {-38, L"ZX", 80},    {-37, L"Z", 80},    {-36, L"XY", 80},
    {-35, L"Y", 80},     {-34, L"X", 80},    {-32, L"PD", 57},
    {-31, L"DCS", -1},   {-30, L"DCB", -1},  {-29, L"DSR", -1},
    {-28, L"DS", -1},    {-27, L"DMR", 37},  {-24, L"G", -1},
    {-23, L"PV", 55},    {-22, L"PG", 59},   {-21, L"PC", 58},
    {-20, L"PL", 56},    {-19, L"PA", 54},   {-18, L"PM", 53},
    {-17, L"PS", 52},    {-16, L"PB", 50},   {-15, L"P", kPropertyModule},
    {-14, L"E", kOwn},   {-13, L"N", kOwn},  {-12, L"#", -1},
    {-10, L")", kOwn},   {-9, L"(", kOwn},   {-8, L"or ", kOwn},
    {-7, L"and ", kOwn}, {-6, L"* ", kOwn},  {-5, L"none ", kOwn},
    {-4, L"all ", kOwn}, {-3, L"step ", -1}, {-2, L"not ", kOwn},
    {-1, L"to ", kOwn}};

TEST(MapWord, WritesEachKeywordAndSaysTheTableOfTheNext) {
  OpenRenumber const renumber;
  CZelData model;
  OpenRenumber withModel(&model);
  CEntList const list(SelMember, L"1");
  for (auto const& row : kTokens) {
    SCOPED_TRACE(row.token);
    auto module = CModule::Axis;  // any other
    int string = 0;
    EXPECT_EQ(withModel.MapWord(list, row.token, module, string, CModule::Prop2D), row.text);
    EXPECT_EQ(static_cast<int>(module), row.next);
    EXPECT_EQ(string, 0);
  }
}

TEST(MapWord, WritesQuotedNamesOneAfterTheOther) {
  CZelData model;
  OpenRenumber renumber(&model);
  CEntList const list(SelMember, L"\"a b\" 3 \"c\"");
  auto module = CModule::Axis;
  int string = 0;
  EXPECT_EQ(renumber.MapWord(list, -11, module, string, CModule::None), L"\"a b\" ");
  EXPECT_EQ(module, CModule::Member);
  EXPECT_EQ(string, 1);
  EXPECT_EQ(renumber.MapWord(list, -11, module, string, CModule::None), L"\"c\" ");
  EXPECT_EQ(string, 2);
}

TEST(MapWord, MapsANumberByTheRunningTable) {
  CZelData model;
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Node, {{3, 8}});
  CEntList const list(SelMember, L"1");
  int string = 0;
  auto module = CModule::Node;
  EXPECT_EQ(renumber.MapWord(list, 3, module, string, CModule::None), L"8 ");
  EXPECT_EQ(module, CModule::Member);
  module = CModule::Node;
  EXPECT_EQ(renumber.MapWord(list, 4, module, string, CModule::None), L"");
  EXPECT_EQ(module, CModule::Member);
  module = CModule::None;
  EXPECT_EQ(renumber.MapWord(list, 4, module, string, CModule::None), L"4 ");
  EXPECT_EQ(module, CModule::Member);
}

TEST(Word, WritesTokensAsTheyAreButForFiveThatItDoesNotKnow) {
  OpenRenumber const renumber;
  CEntList const list(SelMember, L"1");
  for (auto const& row : kTokens) {
    bool const unknown = row.token == -57 || row.token == -54 || row.token == -53 ||
                         row.token == -58 || row.token == -50;
    int string = 0;
    EXPECT_EQ(renumber.Word(list, row.token, string).Str(),
              unknown ? std::to_wstring(row.token) + L" " : row.text);
  }
  int string = 0;
  EXPECT_EQ(renumber.Word(list, 12, string), L"12 ");
  CEntList const named(SelMember, L"\"a\"");
  EXPECT_EQ(renumber.Word(named, -11, string), L"\"a\" ");
  EXPECT_EQ(string, 1);
}

TEST(String, IsANumberWithABlank) { EXPECT_EQ(OpenRenumber().String(-7), L"-7 "); }

/// A model with these nodes, of which a scheme keeps some.
std::wstring Preconverted(wchar_t const* text, std::vector<int> const& nodes,
                          Scheme const& scheme) {
  CZelData model;
  Testing::NodesAt(model, nodes);
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Node, scheme);
  return renumber.ListPreconversion({SelNode, text}).String().Str();
}

TEST(ListPreconversion, LeavesListsOfOtherKinds) {
  CZelData model;
  OpenRenumber renumber(&model);
  renumber.Index(CModule::AnalStage, Scheme());
  for (auto const& list : {CEntList(SelNone, L"1 to 3"), CEntList(SelCase, L"L1 to L3")})
    EXPECT_EQ(renumber.ListPreconversion(list), list);
}

TEST(ListPreconversion, WritesASteppedRangeOutWhereOneDoesNotExist) {
  // of 2 4 6 8 the node 6 is missing
  EXPECT_EQ(Preconverted(L"2 to 8 step 2", {2, 4, 8}, {{2, 2}, {4, 4}, {6, 6}, {8, 8}}), L"2 4 8");
}

TEST(ListPreconversion, WritesASteppedRangeOutWhereOneMovesOtherwise) {
  EXPECT_EQ(Preconverted(L"2 to 6 step 2", {2, 4, 6}, {{2, 2}, {4, 5}, {6, 6}}), L"2 4 6");
}

TEST(ListPreconversion, KeepsASteppedRangeThatMovesAlike) {
  EXPECT_EQ(Preconverted(L"2 to 7 step 2", {2, 4, 6}, {{2, 12}, {4, 14}, {6, 16}}),
            L"2 to 7 step 2");
}

TEST(ListPreconversion, KeepsASteppedRangeOutOfOrder) {
  EXPECT_EQ(Preconverted(L"6 to 2 step 2", {2, 4, 6}, {{2, 2}, {4, 9}, {6, 6}}), L"6 to 2 step 2");
}

TEST(ListPreconversion, KeepsARangeWhoseEndsGo) {
  EXPECT_EQ(Preconverted(L"1 to 5", {1, 2, 3, 4, 5}, {{2, 2}, {3, 3}}), L"1 to 5");
}

TEST(ListPreconversion, WritesOutWhatExistsBetweenTheEndsThatStay) {
  EXPECT_EQ(Preconverted(L"1 to 6", {1, 2, 3, 4, 6}, {{2, 2}, {4, 4}, {6, 7}}), L"2 3 4 6");
}

TEST(ListPreconversion, CountsAHoleAsANumberThatMovesOtherwise) {
  EXPECT_EQ(Preconverted(L"1 to 3", {1, 3}, {{1, 1}, {3, 3}}), L"1 3");
}

TEST(ListPreconversion, WritesARangeOfOneNumberAsTheNumber) {
  EXPECT_EQ(Preconverted(L"3 to 3", {3}, {{3, 3}}), L"3");
}

TEST(ListPreconversion, TakesTheHighestNumberFromTheModel) {
  EXPECT_EQ(Preconverted(L"2 to *", {2, 3, 4}, {{2, 5}, {3, 6}, {4, 7}}), L"2 to *");
  EXPECT_EQ(Preconverted(L"2 to *", {2, 3, 4}, {{2, 5}, {3, 1}, {4, 7}}), L"2 3 4");
}

TEST(ListPreconversion, WritesARangeBehindNotInParentheses) {
  EXPECT_EQ(Preconverted(L"all not (1 to 3)", {1, 2, 3}, {{1, 1}, {3, 3}}), L"all not (1 2 3)");
}

TEST(ListPreconversion, ReadsTheFiveWordsBackThatItWritesAsNumbers) {
  EXPECT_EQ(Preconverted(L"MT3 MG3 MA3 MF3 M3 1 to 3", {1, 2, 3}, {{1, 1}, {3, 3}}),
            L"MT3 MG3 MA3 MF3 M3 1 2 3");
}

}  // namespace
}  // namespace Tarvex::MapWordTest
