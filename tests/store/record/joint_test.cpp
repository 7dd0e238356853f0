#include "store/record/joint.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::JointTest {
namespace {

TEST(Joint, IsGivenByNameDirectionsPrimaryAndConstrainedNodeAndStages) {
  CJoint const joint(L"j", Vbool6(L"pin"), 4, 5, CEntList(SelNone, CString(L"2")));
  EXPECT_EQ(joint.Name(), L"j");
  EXPECT_EQ(joint.GetDirection(), Vbool6(L"pin"));
  EXPECT_EQ(joint.PrimaryNode(), 4);
  EXPECT_EQ(joint.ConstrainedNode(), 5);
  EXPECT_EQ(joint.Stage().String(), L"2");
  EXPECT_TRUE(CJoint().Stage().IsAll());
}

TEST(Joint, TellsWhatItWasTold) {
  CJoint r;
  r.SetName(L"n");
  EXPECT_EQ(r.Name(), L"n");
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetColour(1);
  EXPECT_EQ(r.GetColour(), 1u);
  r.SetDirection(Vbool6(L"pin"));
  EXPECT_EQ(r.GetDirection(), Vbool6(L"pin"));
  r.SetPrimaryNode(7);
  EXPECT_EQ(r.PrimaryNode(), 7);
  r.SetConstrainedNode(8);
  EXPECT_EQ(r.ConstrainedNode(), 8);
  r.SetStage(CEntList(SelNone, CString(L"4")));
  EXPECT_EQ(r.Stage().String(), L"4");
}

TEST(Joint, ComparesEveryField) {
  Testing::ExpectStoredFields<CJoint>(
      {{"name", [](CJoint& r) { r.SetName(L"n"); }},
       {"sid", [](CJoint& r) { r.SetSid(L"s"); }},
       {"colour", [](CJoint& r) { r.SetColour(1); }},
       {"direction", [](CJoint& r) { r.SetDirection(Vbool6(L"pin")); }},
       {"primaryNode", [](CJoint& r) { r.SetPrimaryNode(7); }},
       {"constrainedNode", [](CJoint& r) { r.SetConstrainedNode(8); }},
       {"stage", [](CJoint& r) { r.SetStage(CEntList(SelNone, CString(L"4"))); }}});
}

}  // namespace
}  // namespace Tarvex::Data::JointTest
