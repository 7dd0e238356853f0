#include "store/record/influences.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::InfluencesTest {
namespace {

TEST(Influences, AreGivenByNameAndWhatTheyAreFor) {
  EXPECT_EQ(CInfluenceNode(L"a", 4).Name(), L"a");
  EXPECT_EQ(CInfluenceNode(L"a", 4).Node(), 4);
  EXPECT_EQ(CInfluenceBeam(L"b", 5).Name(), L"b");
  EXPECT_EQ(CInfluenceBeam(L"b", 5).Elem(), 5);
}

TEST(InfluenceNode, TellsWhatItWasTold) {
  CInfluenceNode r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetNode(7);
  EXPECT_EQ(r.Node(), 7);
}

TEST(InfluenceNode, ComparesEveryField) {
  Testing::ExpectStoredFields<CInfluenceNode>(
      {{"name", [](CInfluenceNode& r) { r.SetName(L"n"); }},
       {"sid", [](CInfluenceNode& r) { r.SetSid(L"s"); }},
       {"colour", [](CInfluenceNode& r) { r.SetColour(1); }},
       {"node", [](CInfluenceNode& r) { r.SetNode(7); }}});
}

TEST(InfluenceBeam, TellsWhatItWasTold) {
  CInfluenceBeam r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetElem(7);
  EXPECT_EQ(r.Elem(), 7);
}

TEST(InfluenceBeam, ComparesEveryField) {
  Testing::ExpectStoredFields<CInfluenceBeam>(
      {{"name", [](CInfluenceBeam& r) { r.SetName(L"n"); }},
       {"sid", [](CInfluenceBeam& r) { r.SetSid(L"s"); }},
       {"colour", [](CInfluenceBeam& r) { r.SetColour(1); }},
       {"elem", [](CInfluenceBeam& r) { r.SetElem(7); }}});
}

}  // namespace
}  // namespace Tarvex::Data::InfluencesTest
