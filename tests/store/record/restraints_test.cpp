#include "store/record/restraints.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::RestraintsTest {
namespace {

TEST(GenRest, IsGivenByNameNodesRestraintAndStages) {
  CGenRest const restraint(L"r", CEntList(SelNode, L"1 to 3"), Vbool6(L"pin"),
                           CEntList(SelNone, CString(L"2")));
  EXPECT_EQ(restraint.Name(), L"r");
  EXPECT_EQ(restraint.Nodes().String(), L"1 to 3");
  EXPECT_EQ(restraint.Restraint(), Vbool6(L"pin"));
  EXPECT_EQ(restraint.Stage().String(), L"2");
  EXPECT_TRUE(CGenRest().Stage().IsAll());
}

TEST(TiedInterface, TakesElementsThatLeadAndEntitiesOfAnyKindThatFollow) {
  CTiedInterface tied;
  EXPECT_THROW(tied.SetPrimaryElements(CEntList(SelNode, L"1")), std::invalid_argument);
  for (auto const kind : {SelNode, SelElement, SelMember}) {
    tied.SetConstrainedEntities(CEntList(kind, L"4"));
    EXPECT_EQ(tied.ConstrainedEntities().TypeOf(), kind);
  }
  EXPECT_TRUE(tied.Stage().IsAll());
}

TEST(GenRest, TellsWhatItWasTold) {
  CGenRest r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetNodes(CEntList(SelNode, CString(L"5 6")));
  EXPECT_EQ(r.Nodes().String(), L"5 6");
  r.SetRestraint(Vbool6(L"pin"));
  EXPECT_EQ(r.Restraint(), Vbool6(L"pin"));
  r.SetStage(CEntList(SelNone, CString(L"4")));
  EXPECT_EQ(r.Stage().String(), L"4");
}

TEST(GenRest, ComparesEveryField) {
  Testing::ExpectStoredFields<CGenRest>(
      {{"name", [](CGenRest& r) { r.SetName(L"n"); }},
       {"sid", [](CGenRest& r) { r.SetSid(L"s"); }},
       {"colour", [](CGenRest& r) { r.SetColour(1); }},
       {"nodes", [](CGenRest& r) { r.SetNodes(CEntList(SelNode, CString(L"5 6"))); }},
       {"restraint", [](CGenRest& r) { r.SetRestraint(Vbool6(L"pin")); }},
       {"stage", [](CGenRest& r) { r.SetStage(CEntList(SelNone, CString(L"4"))); }}});
}

TEST(TiedInterface, TellsWhatItWasTold) {
  CTiedInterface r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetPrimaryElements(CEntList(SelElement, CString(L"5 6")));
  EXPECT_EQ(r.PrimaryElements().String(), L"5 6");
  r.SetConstrainedEntities(CEntList(SelNode, CString(L"5 6")));
  EXPECT_EQ(r.ConstrainedEntities().String(), L"5 6");
  r.SetStage(CEntList(SelNone, CString(L"4")));
  EXPECT_EQ(r.Stage().String(), L"4");
}

TEST(TiedInterface, ComparesEveryField) {
  Testing::ExpectStoredFields<CTiedInterface>(
      {{"name", [](CTiedInterface& r) { r.SetName(L"n"); }},
       {"sid", [](CTiedInterface& r) { r.SetSid(L"s"); }},
       {"colour", [](CTiedInterface& r) { r.SetColour(1); }},
       {"primaryElements",
        [](CTiedInterface& r) { r.SetPrimaryElements(CEntList(SelElement, CString(L"5 6"))); }},
       {"constrainedEntities",
        [](CTiedInterface& r) { r.SetConstrainedEntities(CEntList(SelNode, CString(L"5 6"))); }},
       {"stage", [](CTiedInterface& r) { r.SetStage(CEntList(SelNone, CString(L"4"))); }}});
}

}  // namespace
}  // namespace Tarvex::Data::RestraintsTest
