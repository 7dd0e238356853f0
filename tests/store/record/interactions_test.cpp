#include "store/record/interactions.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::InteractionsTest {
namespace {

TEST(RaftInteraction, IsGivenByNodesThreeMeasuresAndTwoLimits) {
  CRaftInteraction const raft(CEntList(SelNode, L"3"), 1, 2, 4, 0.0, 1e38);
  EXPECT_EQ(raft.Nodes().String(), L"3");
  EXPECT_EQ(raft.X(), 1);
  EXPECT_EQ(raft.Y(), 2);
  EXPECT_EQ(raft.Level(), 4);
  EXPECT_EQ(raft.LowerLimit(), 0);
  EXPECT_EQ(raft.UpperLimit(), 1e38);
  EXPECT_EQ(CRaftInteraction().UpperLimit(), 1e38);
}

TEST(PileInteraction, IsGivenByItsNodes) {
  EXPECT_EQ(CPileInteraction(CEntList(SelNode, L"3 4")).Nodes().String(), L"3 4");
  EXPECT_THROW(CPileInteraction(CEntList(SelMember, L"3")), std::invalid_argument);
}

TEST(RaftInteraction, TellsWhatItWasTold) {
  CRaftInteraction r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetNodes(CEntList(SelNode, CString(L"5 6")));
  EXPECT_EQ(r.Nodes().String(), L"5 6");
  r.SetX(1.5);
  EXPECT_EQ(r.X(), 1.5);
  r.SetY(2.5);
  EXPECT_EQ(r.Y(), 2.5);
  r.SetLevel(3.5);
  EXPECT_EQ(r.Level(), 3.5);
  r.SetLowerLimit(4.5);
  EXPECT_EQ(r.LowerLimit(), 4.5);
  r.SetUpperLimit(5.5);
  EXPECT_EQ(r.UpperLimit(), 5.5);
}

TEST(RaftInteraction, ComparesEveryField) {
  Testing::ExpectStoredFields<CRaftInteraction>(
      {{"name", [](CRaftInteraction& r) { r.SetName(L"n"); }},
       {"sid", [](CRaftInteraction& r) { r.SetSid(L"s"); }},
       {"colour", [](CRaftInteraction& r) { r.SetColour(1); }},
       {"nodes", [](CRaftInteraction& r) { r.SetNodes(CEntList(SelNode, CString(L"5 6"))); }},
       {"x", [](CRaftInteraction& r) { r.SetX(1.5); }},
       {"y", [](CRaftInteraction& r) { r.SetY(2.5); }},
       {"level", [](CRaftInteraction& r) { r.SetLevel(3.5); }},
       {"lowerLimit", [](CRaftInteraction& r) { r.SetLowerLimit(4.5); }},
       {"upperLimit", [](CRaftInteraction& r) { r.SetUpperLimit(5.5); }}});
}

TEST(PileInteraction, TellsWhatItWasTold) {
  CPileInteraction r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetNodes(CEntList(SelNode, CString(L"5 6")));
  EXPECT_EQ(r.Nodes().String(), L"5 6");
}

TEST(PileInteraction, ComparesEveryField) {
  Testing::ExpectStoredFields<CPileInteraction>(
      {{"name", [](CPileInteraction& r) { r.SetName(L"n"); }},
       {"sid", [](CPileInteraction& r) { r.SetSid(L"s"); }},
       {"colour", [](CPileInteraction& r) { r.SetColour(1); }},
       {"nodes", [](CPileInteraction& r) { r.SetNodes(CEntList(SelNode, CString(L"5 6"))); }}});
}

}  // namespace
}  // namespace Tarvex::Data::InteractionsTest
