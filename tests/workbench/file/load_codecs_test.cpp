// Each field of the loads and constraints, with a value that differs from its default: its text in
// a file, and the record that the text reads back as. Their tables are positional: no numbers.
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/constraint_eqn.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/node_load.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "tests/support/matchers.h"
#include "tests/workbench/file/file_support.h"
#include "workbench/file/file_error.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Workbench::LoadCodecsTest {
namespace {

using Data::CEntList;
using Testing::Read;

/// What the writer gives for a model behind the head of the file.
std::string Entries(CZelData const& model) {
  auto const text = WriteModelText(model);
  auto const headEnd = text.find("\"deg\"}") + 6;
  return text.substr(headEnd, text.size() - headEnd - 3);
}

/// Expects that a new record and one that was changed write their fields as lines without numbers,
/// and read back.
template <class R>
void Expect(std::string const& table, void (CZelData::*set)(int, R const&, SidMode),
            std::string const& fields, void (*change)(R&)) {
  SCOPED_TRACE(table);
  CZelData model;
  R record;
  (model.*set)(1, record, SidMode::Keep);
  change(record);
  (model.*set)(2, record, SidMode::Keep);
  EXPECT_EQ(Entries(model), ",\n  \"" + table + "\": [\n    {},\n    {" + fields + "}\n  ]");
  EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
}

TEST(NodeLoadFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const change = [](Data::CNodeLoad& r) {
    r = {CEntList(SelNode, L"1 to 3"), 2, 3, Direction::YY, -4.5, CModule::NodeLoad};
    r.SetSid(L"s");
  };
  std::string const fields =
      R"("sid": "s", "loadCase": 2, "loadedEntities": "1 to 3", "axis": 3, "direction": 5, )"
      R"("value": -4.5)";
  Expect<Data::CNodeLoad>("NodeLoad", &CZelData::SetNodeLoad, fields, change);
  Expect<Data::CNodeLoad>("AppliedDisplacement", &CZelData::SetAppliedDisplacement, fields, change);
  Expect<Data::CNodeLoad>("Settlement", &CZelData::SetSettlement, fields, change);
}

TEST(BeamLoadFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect<Data::CBeamLoad>(
      "BeamLoad", &CZelData::SetBeamLoad,
      R"("loadCase": 2, "loadedEntities": {"kind": 3, "text": "4 5"}, "type": 4, "axis": 3, )"
      R"("direction": 1, "projected": true, "pos": [0.5, 2], "value": [10, 20])",
      [](auto& r) {
        r.SetLoadCase(2);
        r.SetLoadedEntities(CEntList(SelMember, L"4 5"));
        r.SetType(Data::CBeamLoad::LoadType::Patch);
        r.SetAxis(3);
        r.SetDirection(Direction::X);
        r.SetIsProjected(true);
        r.SetPos(0, 0.5);
        r.SetPos(1, 2);
        r.SetValue(0, 10);
        r.SetValue(1, 20);
      });
  Expect<Data::CAxialLoad>("AxialLoad", &CZelData::SetAxialLoad,
                           R"("loadedEntities": {"text": "4 5"}, "value": 2)", [](auto& r) {
                             r.SetLoadedEntities(CEntList(SelElement, L"4 5"));
                             r.SetValue(2);
                           });
  Expect<Data::CBeamDist>("BeamDist", &CZelData::SetBeamDist,
                          R"("pos": 1.5, "direction": 3, "value": 2)", [](auto& r) {
                            r.SetPos(1.5);
                            r.SetDirection(Direction::Z);
                            r.SetValue(2);
                          });
  Expect<Data::CBeamThermalLoad>("BeamThermalLoad", &CZelData::SetBeamThermalLoad,
                                 R"("type": 3, "value": [10, -10])", [](auto& r) {
                                   r.SetType(Data::CBeamThermalLoad::ThermalType::GradientZ);
                                   r.SetValue(0, 10);
                                   r.SetValue(1, -10);
                                 });
}

TEST(FaceLoadFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect<Data::CFaceLoad>(
      "FaceLoad", &CZelData::SetFaceLoad,
      R"("type": 3, "axis": 3, "direction": 1, "projected": true, "position": [0.25, -0.5], )"
      R"("value": [1, 2, 3, 4])",
      [](auto& r) {
        r.SetType(Data::CFaceLoad::Load2D::Point);
        r.SetAxis(3);
        r.SetDirection(Direction::X);
        r.SetIsProjected(true);
        r.SetPosition({0.25, -0.5});
        for (int i = 0; i < 4; ++i) r.SetValue(i, i + 1);
      });
  Expect<Data::CEdgeLoad>("EdgeLoad", &CZelData::SetEdgeLoad,
                          R"("axis": 3, "direction": 3, "edge": 4, "value": [0, 7])", [](auto& r) {
                            r.SetAxis(3);
                            r.SetDirection(Direction::Z);
                            r.SetEdge(4);
                            r.SetValue(1, 7);
                          });
  Expect<Data::CInPlaneLoad>("InPlaneLoad", &CZelData::SetInPlaneLoad,
                             R"("axis": 3, "value": [0, 0, 7])", [](auto& r) {
                               r.SetAxis(3);
                               r.SetValue(2, 7);
                             });
  Expect<Data::CFaceThermalLoad>("FaceThermalLoad", &CZelData::SetFaceThermalLoad,
                                 R"("type": 8, "value": [0, 0, 0, 0, 0, 0, 0, 7])", [](auto& r) {
                                   r.SetType(Data::CFaceThermalLoad::ThermalType::PerCorner);
                                   r.SetValue(7, 7);
                                 });
}

TEST(BodyLoadFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect<Data::CBodyFaceLoad>(
      "BodyFaceLoad", &CZelData::SetBodyFaceLoad,
      R"("type": 2, "axis": 3, "direction": 1, "face": 5, "value": [0, 0, 0, 7])", [](auto& r) {
        r.SetType(Data::CBodyFaceLoad::Load3D::PerCorner);
        r.SetAxis(3);
        r.SetDirection(Direction::X);
        r.SetFace(5);
        r.SetValue(3, 7);
      });
  Expect<Data::CBodyThermalLoad>("BodyThermalLoad", &CZelData::SetBodyThermalLoad,
                                 R"("type": 8, "value": [7, 0, 0, 0, 0, 0, 0, 0])", [](auto& r) {
                                   r.SetType(Data::CBodyThermalLoad::ThermalType::PerNode);
                                   r.SetValue(0, 7);
                                 });
  Expect<Data::CGravityLoad>(
      "GravityLoad", &CZelData::SetGravityLoad,
      R"("loadedEntities": {"text": "all"}, "loadedNodes": "3", "factor": [0.1, 0, -1])",
      [](auto& r) {
        r.SetLoadedEntities(CEntList(SelElement, L"all"));
        r.SetLoadedNodes(CEntList(SelNode, L"3"));
        r.SetFactor({0.1, 0, -1});
      });
}

TEST(GridLoadFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect<Data::CGridPointLoad>(
      "GridPointLoad", &CZelData::SetGridPointLoad,
      R"("loadCase": 2, "surface": 3, "axis": 4, "direction": 1, "projected": true, )"
      R"("gridCoor": [1, 2.5], "value": 7)",
      [](auto& r) {
        r.SetLoadCase(2);
        r.SetSurface(3);
        r.SetAxis(4);
        r.SetDirection(Direction::X);
        r.SetIsProjected(true);
        r.SetGridCoor({1, 2.5});
        r.SetValue(7);
      });
  Expect<Data::CGridLineLoad>(
      "GridLineLoad", &CZelData::SetGridLineLoad,
      R"("surface": 3, "line": 3, "polygon": [[0, 0], [4, 0]], "value": [-1, -1])", [](auto& r) {
        r = {3, 0, 0, 0, false, Direction::Z, -1, -1};
        Data::CPolygon polygon;
        polygon.AddPoint(Vec2<double>{0, 0});
        polygon.AddPoint(Vec2<double>{4, 0});
        r.SetPolygon(polygon, true);
      });
  Expect<Data::CGridAreaLoad>("GridAreaLoad", &CZelData::SetGridAreaLoad,
                              R"("area": 2, "polyRef": 6, "value": 7)", [](auto& r) {
                                r.SetPolyRef(6, true);
                                r.SetValue(7);
                              });
}

TEST(ConstraintFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect<Data::CGenRest>(
      "GenRest", &CZelData::SetGenRest,
      R"("name": "r", "nodes": "1", "restraint": ["X", "Y", "Z"], "stage": "2")", [](auto& r) {
        r = {L"r", CEntList(SelNode, L"1"), Vbool6(L"pin"), CEntList(SelNone, CString(L"2"))};
      });
  Expect<Data::CRigid>(
      "Rigid", &CZelData::SetRigid,
      R"("name": "f", "type": 53, "primaryNode": 4, "constrainedNodes": "5 to 9", )"
      R"("parentMember": 6, "stage": "2")",
      [](auto& r) {
        r = {L"f", Data::LinkType::Diaphragm, 4, CEntList(SelNode, L"5 to 9"),
             CEntList(SelNone, CString(L"2"))};
        r.SetParentMember(6);
      });
  Expect<Data::CJoint>(
      "Joint", &CZelData::SetJoint,
      R"("direction": ["Z"], "primaryNode": 4, "constrainedNode": 5, "stage": "")", [](auto& r) {
        r = {L"", Vbool6(false, false, true, false, false, false), 4, 5, CEntList()};
      });
  Expect<Data::CConstraintEqn>(
      "ConstraintEqn", &CZelData::SetConstraintEqn,
      R"("constrainedNode": 4, "dir": 3, "terms": [{"node": 5, "direction": 2, "value": 0.5}, {}])",
      [](auto& r) {
        r.SetConstrainedNode(4);
        r.SetDir(Direction::Z);
        r.SetRhsTerm(-1, 5, Direction::Y, 0.5);
        r.SetRhsTerm(-1, 0, Direction::X, 0);
      });
  Expect<Data::CTiedInterface>(
      "TiedInterface", &CZelData::SetTiedInterface,
      R"("primaryElements": "1", "constrainedEntities": {"kind": 1, "text": "2"})", [](auto& r) {
        r.SetPrimaryElements(CEntList(SelElement, L"1"));
        r.SetConstrainedEntities(CEntList(SelNode, L"2"));
      });
  Expect<Data::CRaftInteraction>(
      "RaftInteraction", &CZelData::SetRaftInteraction,
      R"("nodes": "1", "x": 2, "y": 3, "level": 4, "lowerLimit": 5, "upperLimit": 6)",
      [](auto& r) { r = {CEntList(SelNode, L"1"), 2, 3, 4, 5, 6}; });
  Expect<Data::CPileInteraction>("PileInteraction", &CZelData::SetPileInteraction,
                                 R"("nodes": "1 2")",
                                 [](auto& r) { r.SetNodes(CEntList(SelNode, L"1 2")); });
  Expect<Data::CInfluenceNode>("InfluenceNode", &CZelData::SetInfluenceNode, R"("node": 4)",
                               [](auto& r) { r.SetNode(4); });
  Expect<Data::CInfluenceBeam>("InfluenceBeam", &CZelData::SetInfluenceBeam, R"("elem": 4)",
                               [](auto& r) { r.SetElem(4); });
}

TEST(ConstraintFields, KeepALinkTypeWithoutAName) {
  CZelData model;
  Data::CRigid rigid;
  rigid.SetType(static_cast<Data::LinkType>(4094));
  model.SetRigid(1, rigid);
  EXPECT_EQ(Entries(model), ",\n  \"Rigid\": [\n    {\"type\": 4094}\n  ]");
  EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
}

/// The fault of a file with one record in one table.
std::string FaultOf(std::string const& table, std::string const& record) {
  CZelData model;
  model.SetJoint(1, Data::CJoint());
  auto text = WriteModelText(model);
  std::string const old = "\"Joint\": [\n    {}\n  ]";
  auto const at = text.find(old);
  EXPECT_NE(at, std::string::npos);
  text.replace(at, old.size(), "\"" + table + "\": [" + record + "]");
  try {
    Read(text);
  } catch (FileError const& fault) {
    return fault.Place().pointer + ": " + fault.Text();
  }
  return "";
}

TEST(LoadFaults, AreTold) {
  EXPECT_EQ(FaultOf("NodeLoad", R"({"n": 1})"), "/NodeLoad/0/n: unknown key \"n\"");
  EXPECT_EQ(FaultOf("NodeLoad", R"({}, {"loadedEntities": "L1"})").substr(0, 36),
            "/NodeLoad/1/loadedEntities: no list:");
  EXPECT_EQ(FaultOf("BeamLoad", R"({"loadedEntities": {"kind": 1, "text": "1"}})"),
            "/BeamLoad/0/loadedEntities: a list of another kind than elements (2) and members (3)");
  EXPECT_EQ(FaultOf("BeamLoad", R"({"type": 6})").substr(0, 17), "/BeamLoad/0/type:");
  EXPECT_EQ(FaultOf("FaceThermalLoad", R"({"type": 3})"),
            "/FaceThermalLoad/0/type: unknown value 3");
  EXPECT_EQ(FaultOf("FaceLoad", R"({"value": [1, 2]})"),
            "/FaceLoad/0/value: expected 4 values, found 2");
  EXPECT_EQ(FaultOf("Rigid", R"({"type": 4096})").substr(0, 14), "/Rigid/0/type:");
  EXPECT_EQ(FaultOf("Rigid", R"({"type": -1})").substr(0, 14), "/Rigid/0/type:");
}

TEST(LoadFaults, StopAWriterThatWouldHaveToWriteThem) {
  CZelData model;
  Data::CRigid rigid;
  rigid.SetType(static_cast<Data::LinkType>(4096));
  model.SetRigid(1, rigid);
  try {
    WriteModelText(model);
    ADD_FAILURE();
  } catch (FileError const& fault) {
    EXPECT_EQ(fault.Place().pointer, "/Rigid/0/type");
  }
}

}  // namespace
}  // namespace Tarvex::Workbench::LoadCodecsTest
