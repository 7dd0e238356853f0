// Each field of a member in model files: its text, and the record that the text reads back as.
#include <gtest/gtest.h>

#include "store/record/member.h"
#include "tests/support/matchers.h"
#include "tests/workbench/file/file_support.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Workbench::MemberCodecsTest {
namespace {

using Data::CMember;
using Testing::FaultOf;
using Testing::Read;

void Expect(void (*change)(CMember&), std::string const& before, std::string const& behind) {
  CMember member(1, 0);
  member.SetTopo(CString(L"4 7"));
  change(member);
  CZelData model;
  model.SetMember(3, member);
  auto const text = WriteModelText(model);
  auto const line = R"({"n": 3, )" + before + R"("topology": "4 7")" + behind + "}\n";
  EXPECT_NE(text.find(line), std::string::npos) << line << text;
  EXPECT_TRUE(Testing::IsUnchanged(Read(text), model));
}

TEST(MemberFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect([](CMember&) {}, "", "");
  Expect([](CMember& m) { m.SetName(L"M"); }, R"("name": "M", )", "");
  Expect([](CMember& m) { m.SetSid(L"s"); }, R"("sid": "s", )", "");
  Expect([](CMember& m) { m.SetColour(0x20); }, R"("colour": "#000020", )", "");
  Expect([](CMember& m) { m.SetType(MembType::Solid); }, R"("type": 13, )", "");
  Expect([](CMember& m) { m.SetGroup(2); }, R"("group": 2, )", "");
  Expect([](CMember& m) { m.SetProperty(2); }, R"("property": 2, )", "");
  Expect([](CMember& m) { m.SetOrientationNode(2); }, "", R"(, "orientationNode": 2)");
  Expect([](CMember& m) { m.SetOrientationAngle(2.5); }, "", R"(, "orientationAngle": 2.5)");
  Expect(
      [](CMember& m) {
        m.SetOffset({1, 2, 3, 4});
      },
      "", R"(, "offset": {"x1": 1, "x2": 2, "y": 3, "z": 4})");
  Expect([](CMember& m) { m.SetEndRelease(1, CElemConnect(Vbool6(0, 0, 0, 0, 1, 0))); }, "",
         R"(, "endRelease": [{}, {"release": ["YY"]}])");
  Expect([](CMember& m) { m.SetEndRestraint(0, Vbool6(1, 0, 0, 0, 0, 0)); }, "",
         R"(, "endRestraint": [["X"], []])");
  Expect([](CMember& m) { m.SetAnalysisType1D(ElementType::Cable); }, "",
         R"(, "analysisType1D": 10)");
  Expect([](CMember& m) { m.SetAnalysisOrder(Member::AnalysisOrder::LoadPanels); }, "",
         R"(, "analysisOrder": 3)");
  Expect([](CMember& m) { m.SetIsDummy(true); }, "", R"(, "dummy": true)");
  Expect([](CMember& m) { m.SetReleaseEdges(true); }, "", R"(, "releaseEdges": true)");
  Expect(
      [](CMember& m) {
        m.AddChildElement(9, 2);
        m.AddChildElement(8, 0);
        m.AddChildElement(7, 2);
      },
      "", R"(, "children": [[0, 8], [2, 9], [2, 7]])");
}

TEST(MemberFields, HoldEveryFormOfTopology) {
  for (auto const* topology : {L"", L"1 arc 5 2", L"1 about 2", L"1 2 3 hole( 4 5 6 )",
                               L"1 2 3 line( 4 5 ) points( 6 )", L"1 5 2 6 ; 1 4 2 3"}) {
    CZelData model;
    CMember member(1, 1);
    member.SetTopo(CString(topology));
    model.SetMember(1, member);
    EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
  }
}

TEST(MemberFields, AreRefusedWhereTheyAreNone) {
  auto const fault = [](std::string const& fields) {
    auto const found =
        FaultOf(Testing::ModelFile(",\n"
                                   R"("Member": [{"n": 1, )" +
                                   fields + "}]"));
    return found ? found->Text() : "";
  };
  EXPECT_NE(fault(R"("topology": "1 to 2")").find("no topology: fault at character 3"),
            std::string::npos);
  EXPECT_NE(fault(R"("topology": [1, 2])"), "");
  EXPECT_NE(fault(R"("group": 1)"), "");  // without topology
  EXPECT_NE(fault(R"("topology": "1 2", "type": 9)"), "");
  EXPECT_NE(fault(R"("topology": "1 2", "analysisOrder": 4)"), "");
  EXPECT_NE(fault(R"("topology": "1 2", "children": [[0, 3], [1, 3], [0, 3]])")
                .find("child 3 of replica 0 stands twice"),
            std::string::npos);
  EXPECT_NE(fault(R"("topology": "1 2", "children": [[0]])"), "");
  EXPECT_EQ(fault(R"("topology": "1 2")"), "");
}

}  // namespace
}  // namespace Tarvex::Workbench::MemberCodecsTest
