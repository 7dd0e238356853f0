#include "store/record/rigid.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::RigidTest {
namespace {

TEST(Rigid, HoldsAllDirectionsInAllStagesAtFirst) {
  CRigid const rigid;
  EXPECT_EQ(rigid.TypeOf(), LinkType::All);
  EXPECT_TRUE(rigid.Stage().IsAll());
  EXPECT_EQ(rigid.Stage().TypeOf(), SelNone);
  EXPECT_EQ(rigid.ConstrainedNodes().TypeOf(), SelNode);
  EXPECT_EQ(rigid.ConstrainedDof(), Vbool6(true, true, true, true, true, true));
}

TEST(Rigid, IsGivenByNameTypePrimaryNodeConstrainedNodesAndStages) {
  CRigid const rigid(L"floor", LinkType::Diaphragm, 4, CEntList(SelNode, L"5 to 9"),
                     CEntList(SelNone, CString(L"2")));
  EXPECT_EQ(rigid.Name(), L"floor");
  EXPECT_EQ(static_cast<int>(rigid.TypeOf()), 53);
  EXPECT_EQ(rigid.PrimaryNode(), 4);
  EXPECT_EQ(rigid.ConstrainedNodes().String(), L"5 to 9");
  EXPECT_EQ(rigid.Stage().String(), L"2");
  EXPECT_TRUE(rigid.ConstrainedDof().X());
  EXPECT_FALSE(rigid.ConstrainedDof().Z());
  EXPECT_FALSE(rigid.IsPin());
  EXPECT_FALSE(rigid.IsCustom());
}

TEST(Rigid, IsAPinWhereAllTranslationsFollowAndNoRotation) {
  CRigid rigid;
  rigid.SetType(LinkType::Pinned);
  EXPECT_TRUE(rigid.IsPin());
}

TEST(Rigid, IsCustomWithATypeWithoutAName) {
  CRigid rigid;
  rigid.SetType(static_cast<LinkType>(54));
  EXPECT_TRUE(rigid.IsCustom());
}

TEST(Rigid, IsClonedWithAllFields) {
  CRigid const rigid(L"floor", LinkType::Inert, 4, CEntList(SelNode, L"5"), CEntList());
  EXPECT_EQ(*rigid.Clone(), rigid);
}

TEST(Rigid, RefusesListsOfOtherKinds) {
  CRigid rigid;
  EXPECT_THROW(rigid.SetConstrainedNodes(CEntList(SelMember, L"1")), std::invalid_argument);
  EXPECT_THROW(rigid.SetStage(CEntList(SelNode, L"1")), std::invalid_argument);
  EXPECT_EQ(rigid, CRigid());
}

TEST(Rigid, TellsWhatItWasTold) {
  CRigid r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetType(LinkType::Diaphragm);
  EXPECT_EQ(r.TypeOf(), LinkType::Diaphragm);
  r.SetPrimaryNode(7);
  EXPECT_EQ(r.PrimaryNode(), 7);
  r.SetConstrainedNodes(CEntList(SelNode, CString(L"5 6")));
  EXPECT_EQ(r.ConstrainedNodes().String(), L"5 6");
  r.SetParentMember(8);
  EXPECT_EQ(r.ParentMember(), 8);
  r.SetStage(CEntList(SelNone, CString(L"4")));
  EXPECT_EQ(r.Stage().String(), L"4");
}

TEST(Rigid, ComparesEveryField) {
  Testing::ExpectStoredFields<CRigid>(
      {{"name", [](CRigid& r) { r.SetName(L"n"); }},
       {"sid", [](CRigid& r) { r.SetSid(L"s"); }},
       {"colour", [](CRigid& r) { r.SetColour(1); }},
       {"type", [](CRigid& r) { r.SetType(LinkType::Diaphragm); }},
       {"primaryNode", [](CRigid& r) { r.SetPrimaryNode(7); }},
       {"constrainedNodes",
        [](CRigid& r) { r.SetConstrainedNodes(CEntList(SelNode, CString(L"5 6"))); }},
       {"parentMember", [](CRigid& r) { r.SetParentMember(8); }},
       {"stage", [](CRigid& r) { r.SetStage(CEntList(SelNone, CString(L"4"))); }}});
}

}  // namespace
}  // namespace Tarvex::Data::RigidTest
