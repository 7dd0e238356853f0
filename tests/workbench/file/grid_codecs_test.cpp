// Each field of the grids, groups and views, with a value that differs from its default: its text
// in a file, and the record that the text reads back as.
#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/block.h"
#include "store/record/grid_line.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/polyline.h"
#include "store/record/views.h"
#include "tests/support/matchers.h"
#include "tests/workbench/file/file_support.h"
#include "workbench/file/file_error.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Workbench::GridCodecsTest {
namespace {

using Data::CEntList;
using Testing::Read;
using Steps = std::vector<Data::ReplicaStep>;

/// What the writer gives for a model behind the head of the file.
std::string Entries(CZelData const& model) {
  auto const text = WriteModelText(model);
  auto const headEnd = text.find("\"deg\"}") + 6;
  return text.substr(headEnd, text.size() - headEnd - 3);
}

/// Expects that a record, under number 3, writes its fields as a line, and reads back.
template <class R>
void Expect(std::string const& table, void (GridTables::*set)(int, R const&, SidMode),
            R const& record, std::string const& fields) {
  CZelData model;
  (model.*set)(3, record, SidMode::Keep);
  EXPECT_EQ(Entries(model), ",\n  \"" + table + "\": [\n    {\"n\": 3" + fields + "}\n  ]");
  EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
}

TEST(GridPlaneFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](Data::CGridPlane const& plane, std::string const& fields) {
    Expect("GridPlane", &CZelData::SetGridPlane, plane, fields);
  };
  expect({}, "");
  expect({L"roof", 0, 0, false}, R"(, "name": "roof")");
  expect({L"", 4, 0, false}, R"(, "axis": 4)");
  expect({L"", 0, -2.5, false}, R"(, "elevation": -2.5)");
  expect({L"", 0, 0, true}, R"(, "storey": true)");
}

TEST(GridSurfaceFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](Data::CGridSurface const& surface, std::string const& fields) {
    Expect<Data::CGridSurface>("GridSurface", &CZelData::SetGridSurface, surface, fields);
  };
  CEntList const all(SelElement, L"all");
  expect({}, "");
  expect({L"floor", 0, all, GridElementType::Lines}, R"(, "name": "floor")");
  expect({L"", 4, all, GridElementType::Lines}, R"(, "plane": 4)");
  expect({L"", 0, CEntList(), GridElementType::Lines}, R"(, "elements": "")");
  expect({L"", 0, CEntList(L"a", SelElement, L"1 to 9 not 4"), GridElementType::Lines},
         R"(, "elements": "1 to 9 not 4")");
  expect({L"", 0, all, GridElementType::Plates}, R"(, "elementType": 2)");
}

TEST(GridLineFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("GridLine", &CZelData::SetGridLine, Data::CGridLine(L"A", {1, 2}, 3.5, 90, -15),
         R"(, "name": "A", "start": [1, 2], "length": 3.5, "angle": 90, "arc": -15)");
  Expect("GridLine", &CZelData::SetGridLine, Data::CGridLine(), "");
}

TEST(PolylineFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("Polyline", &CZelData::SetPolyline, Data::CPolyline(L"p", 2, {{0, -0.0}, {1.5, 2}}),
         R"(, "name": "p", "plane": 2, "points": [[0, -0], [1.5, 2]])");
  Expect("Polyline", &CZelData::SetPolyline, Data::CPolyline(), "");
}

TEST(AlignmentFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("Alignment", &CZelData::SetAlignment, Data::CAlignment(L"r", 2, {{0, 0}, {10, 0.25}}),
         R"(, "name": "r", "surface": 2, "items": [{}, {"chainage": 10, "curvature": 0.25}])");
  Expect("Alignment", &CZelData::SetAlignment, Data::CAlignment(), "");
}

TEST(BlockFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Expect("Block", &CZelData::SetBlock,
         Data::CBlock(L"b", {4, 2}, Data::CReplica(Steps{{2, {6, 0, 0}}, {1, {}}})),
         R"(, "name": "b", "members": [4, 2], "replica": {"steps": [{"count": 2, )"
         R"("offset": [6, 0, 0]}, {"count": 1}]})");
  Expect("Block", &CZelData::SetBlock, Data::CBlock(), "");
}

TEST(AssemblyFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](auto const& change, std::string const& fields) {
    Data::CAssembly assembly;
    change(assembly);
    Expect("Assembly", &CZelData::SetAssembly, assembly, fields);
  };
  expect([](auto&) {}, "");
  expect([](auto& a) { a.SetEntities(CEntList(SelMember, L"1 to 4")); },
         R"(, "entities": {"kind": 3, "text": "1 to 4"})");
  expect([](auto& a) { a.SetTopo(1, 7); }, R"(, "topology": [0, 7, 0])");
  expect([](auto& a) { a.SetIntTopo(CEntList(SelNode, L"8")); }, R"(, "intTopo": "8")");
  expect([](auto& a) { a.definition = 3; }, R"(, "definition": 3)");
  expect([](auto& a) { a.SetStorey(CEntList(SelNone, CString(L"all"))); }, R"(, "storey": "all")");
  expect([](auto& a) { a.SetSpacing(0.5); }, R"(, "spacing": 0.5)");
  expect([](auto& a) { a.cutSpacing = 2; }, R"(, "cutSpacing": 2)");
}

TEST(ViewFields, AreWrittenWhereTheyDifferFromTheDefault) {
  Data::CGrView graphic(L"g");
  graphic.SetNodes(CEntList(SelNode, L"1"));
  graphic.SetElements(CEntList(SelElement, L"2"));
  graphic.SetMembers(CEntList(SelMember, L"3"));
  graphic.SetHiLiteElements(CEntList(SelElement, L"4"));
  graphic.SetHiLiteMembers(CEntList(SelMember, L"5"));
  Data::CGrData drawn;
  graphic.SetGrData(0, drawn);
  drawn.SetAxis(6);
  graphic.SetGrData(1, drawn);
  Expect("GrView", &CZelData::SetGrView, graphic,
         R"(, "name": "g", "nodes": "1", "elements": "2", "members": "3", "hiLiteElements": "4", )"
         R"("hiLiteMembers": "5", "data": [{}, {"axis": 6}])");
  Data::COpView output(L"o");
  output.SetNodes(CEntList());
  output.SetAxis(7);
  Data::COpData told;
  told.SetAxis(8);
  output.SetOpData(0, told);
  Expect("OpView", &CZelData::SetOpView, output,
         R"(, "name": "o", "nodes": "", "axis": 7, "data": [{"axis": 8}])");
}

TEST(SpecFields, HoldThePlaneOfTheConstructionGrid) {
  CZelData model;
  Data::CSpec spec;
  spec.SetConsGridRef(4);
  model.SetSpec(spec);
  EXPECT_EQ(Entries(model), ",\n  \"Spec\": {\"consGridRef\": 4}");
  EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
}

/// The fault of a file with one record in one table.
std::string FaultOf(std::string const& table, std::string const& record) {
  CZelData model;
  model.SetGridPlane(1, Data::CGridPlane());
  auto text = WriteModelText(model);
  std::string const old = "\"GridPlane\": [\n    {\"n\": 1}\n  ]";
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

TEST(GridFaults, AreTold) {
  EXPECT_EQ(FaultOf("GridSurface", R"({"n": 1, "elements": "1 to"})"),
            "/GridSurface/0/elements: no list: a range without its end at character 3");
  EXPECT_EQ(FaultOf("GridSurface", R"({"n": 1, "elements": "L1"})").substr(0, 32),
            "/GridSurface/0/elements: no list");
  EXPECT_EQ(FaultOf("Alignment", R"({"n": 1, "items": [{"chainage": 1}, {"chainage": 1}]})"),
            "/Alignment/0: chainages of an alignment must ascend");
  EXPECT_EQ(FaultOf("Block", R"({"n": 1, "replica": {"steps": [{"count": -1}]}})"),
            "/Block/0/replica: count of a replica below 0");
  EXPECT_EQ(FaultOf("Assembly", R"({"n": 1, "topology": [1, 2]})"),
            "/Assembly/0/topology: expected 3 values, found 2");
}

}  // namespace
}  // namespace Tarvex::Workbench::GridCodecsTest
