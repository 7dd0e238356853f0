// Each field of each record, with a value that differs from its default: its text in a file, and
// the record that the text reads back as. Records are filled through their setters.
#include "workbench/file/codecs.h"

#include "store/record/axis.h"
#include "store/record/ent_list.h"
#include "store/record/load_panel.h"
#include "store/record/node.h"
#include "store/record/spec.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/workbench/file/file_support.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Workbench::CodecsTest {
namespace {

using Testing::Element;
using Testing::Panel;
using Testing::Read;

/// What the writer gives for a model behind the head of the file.
std::string Entries(CZelData const& model) {
  auto const text = WriteModelText(model);
  auto const headEnd = text.find("\"deg\"}") + 6;
  return text.substr(headEnd, text.size() - headEnd - 3);
}

/// Expects that a model with one record in one table writes the record as a line, and reads back.
void ExpectLine(CZelData const& model, std::string const& table, std::string const& line) {
  EXPECT_EQ(Entries(model), ",\n  \"" + table + "\": [\n    " + line + "\n  ]");
  EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
}

void ExpectNode(Data::CNode const& node, std::string const& fields) {
  CZelData model;
  model.SetNode(3, node);
  ExpectLine(model, "Node", R"({"n": 3, )" + fields + "}");
}

void ExpectElement(Data::CElement const& element, std::string const& fields) {
  CZelData model;
  model.SetElem(3, element);
  ExpectLine(model, "Elem", R"({"n": 3, )" + fields + "}");
}

void ExpectPanel(Data::LoadPanel const& panel, std::string const& fields) {
  CZelData model;
  model.SetLoadPanel(3, panel);
  ExpectLine(model, "LoadPanel", R"({"n": 3, )" + fields + "}");
}

void ExpectAxis(Data::CAxis const& axis, std::string const& fields) {
  CZelData model;
  model.SetAxis(3, axis);
  ExpectLine(model, "Axis", R"({"n": 3)" + fields + "}");
}

/// A node at the origin, to be changed in one field.
template <class Change>
Data::CNode Node(Change&& change) {
  Data::CNode node;
  change(node);
  return node;
}

/// A beam from node 1 to node 2, to be changed in one field.
template <class Change>
Data::CElement Beam(Change&& change) {
  auto beam = Element(ElementType::Beam, {1, 2});
  change(beam);
  return beam;
}

constexpr auto kOrigin = R"("position": [0, 0, 0])";
constexpr auto kBeam = R"("type": 2, "topology": [1, 2])";

TEST(NodeFields, AreWrittenWhereTheyDifferFromTheDefault) {
  std::string const at = kOrigin;
  ExpectNode({}, at);
  ExpectNode({{1.5, -2, 1e-9}, 0, Vbool6()}, R"("position": [1.5, -2, 1e-09])");
  ExpectNode(Node([](auto& n) { n.SetName(L"N \u00e9"); }), "\"name\": \"N \xC3\xA9\", " + at);
  ExpectNode(Node([](auto& n) { n.SetSid(L"a\"b"); }), R"("sid": "a\"b", )" + at);
  ExpectNode(Node([](auto& n) { n.SetColour(0x0A1BFF); }), R"("colour": "#0a1bff", )" + at);
  ExpectNode(Node([](auto& n) { n.SetAxis(4); }), at + R"(, "axis": 4)");
  ExpectNode(Node([](auto& n) { n.SetRestraint(Vbool6(1, 0, 1, 0, 0, 1)); }),
             at + R"(, "restraint": ["X", "Z", "ZZ"])");
  ExpectNode(Node([](auto& n) { n.SetRestraint(Vbool6(0, 1, 0, 1, 1, 0)); }),
             at + R"(, "restraint": ["Y", "XX", "YY"])");
  ExpectNode(Node([](auto& n) { n.SetSpringProperty(5); }), at + R"(, "springProperty": 5)");
  ExpectNode(Node([](auto& n) { n.SetMassProperty(6); }), at + R"(, "massProperty": 6)");
  ExpectNode(Node([](auto& n) { n.SetDamperProperty(7); }), at + R"(, "damperProperty": 7)");
  ExpectNode(Node([](auto& n) { n.SetMeshSize(0.25); }), at + R"(, "meshSize": 0.25)");
}

TEST(NodeFields, KeepTheSignOfZero) {
  ExpectNode({{-0.0, 0, -0.0}, 0, Vbool6()}, R"("position": [-0, 0, -0])");
  ExpectNode(Node([](auto& n) { n.SetMeshSize(-0.0); }),
             std::string(kOrigin) + R"(, "meshSize": -0)");
}

TEST(ElementFields, AreWrittenWhereTheyDifferFromTheDefault) {
  std::string const beam = kBeam;
  ExpectElement(Beam([](auto&) {}), beam);
  ExpectElement(Beam([](auto& e) { e.SetName(L"B"); }), R"("name": "B", )" + beam);
  ExpectElement(Beam([](auto& e) { e.SetSid(L"s"); }), R"("sid": "s", )" + beam);
  ExpectElement(Beam([](auto& e) { e.SetColour(1); }), R"("colour": "#000001", )" + beam);
  ExpectElement(Beam([](auto& e) { e.SetGroup(9); }),
                R"("type": 2, "group": 9, "topology": [1, 2])");
  ExpectElement(Beam([](auto& e) { e.SetProperty(-1); }),
                R"("type": 2, "property": -1, "topology": [1, 2])");
  ExpectElement(Beam([](auto& e) { e.SetOrientationNode(8); }), beam + R"(, "orientationNode": 8)");
  ExpectElement(Beam([](auto& e) { e.SetOrientationAngle(22.5); }),
                beam + R"(, "orientationAngle": 22.5)");
  ExpectElement(Beam([](auto& e) { e.SetLongPosition(true, 0.5); }),
                beam + R"(, "longPosition": [0.5, 1])");
  ExpectElement(Beam([](auto& e) { e.SetLongPosition(false, 0.75); }),
                beam + R"(, "longPosition": [0, 0.75])");
  ExpectElement(Beam([](auto& e) { e.SetIsDummy(true); }), beam + R"(, "dummy": true)");
  ExpectElement(Beam([](auto& e) {
                  e.SetParentMember({3, 0});
                }),
                beam + R"(, "parentMember": {"member": 3})");
  ExpectElement(Beam([](auto& e) {
                  e.SetParentMember({3, 2});
                }),
                beam + R"(, "parentMember": {"member": 3, "replica": 2})");
}

TEST(ElementFields, HoldTypeAndTopologyWhateverTheirLength) {
  ExpectElement(Element(ElementType::Quad4, {}), R"("type": 5, "topology": [])");
  ExpectElement(Element(static_cast<ElementType>(4), {7}), R"("type": 4, "topology": [7])");
  ExpectElement(Element(ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8, 9, -1, 0}),
                R"("type": 12, "topology": [1, 2, 3, 4, 5, 6, 7, 8, 9, -1, 0])");
}

TEST(OffsetFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](auto const& change, std::string const& text) {
    Data::COffset offset;
    change(offset);
    ExpectElement(Beam([&](auto& e) { e.SetOffset(offset); }),
                  std::string(kBeam) + R"(, "offset": {)" + text + "}");
  };
  expect([](auto& o) { o.SetX1(0.1); }, R"("x1": 0.1)");
  expect([](auto& o) { o.SetX2(0.2); }, R"("x2": 0.2)");
  expect([](auto& o) { o.SetY(-3); }, R"("y": -3)");
  expect([](auto& o) { o.SetZ(4); }, R"("z": 4)");
  expect([](auto& o) { o.SetAuto(1, AutoOffset::On); }, R"("auto": [0, 1])");
  expect([](auto& o) { o.SetType(0, OffsetType::Derived); }, R"("type": [1, 0])");
}

TEST(ConnectionFields, StandByTopologyPlace) {
  auto const expect = [](auto const& change, std::string const& text) {
    ExpectElement(Beam(change), std::string(kBeam) + R"(, "connect": )" + text);
  };
  CElemConnect const hinge(Vbool6(0, 0, 0, 0, 1, 0));
  expect([&](auto& e) { e.SetConnect(0, hinge); }, R"([{"release": ["YY"]}, null])");
  expect([&](auto& e) { e.SetConnect(1, hinge); }, R"([null, {"release": ["YY"]}])");
  expect(
      [&](auto& e) {
        CElemConnect spring;
        spring.SetStiffness(Direction::X, 10);
        spring.SetStiffness(Direction::ZZ, 2.5);
        e.SetConnect(0, spring);
        e.SetConnect(1, hinge);
      },
      R"([{"stiffness": [10, 0, 0, 0, 0, 2.5]}, {"release": ["YY"]}])");
  // Beyond the topology: the list goes to the last place that has a connection.
  expect([&](auto& e) { e.SetConnect(3, hinge); }, R"([null, null, null, {"release": ["YY"]}])");
}

TEST(PanelFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](auto const& change, std::string const& text) {
    auto panel = Panel({4, 3, 9});
    change(panel);
    ExpectPanel(panel, text);
  };
  std::string const nodes = R"("topology": [4, 3, 9])";
  expect([](auto&) {}, nodes);
  expect([](auto& p) { p.SetName(L"P"); }, R"("name": "P", )" + nodes);
  expect([](auto& p) { p.SetSid(L"s"); }, R"("sid": "s", )" + nodes);
  expect([](auto& p) { p.SetColour(0xFFFFFF); }, R"("colour": "#ffffff", )" + nodes);
  expect([](auto& p) { p.SetGroup(2); }, R"("group": 2, )" + nodes);
  expect([](auto& p) { p.SetProperty(2); }, R"("property": 2, )" + nodes);
  expect([](auto& p) { p.SetOrientationAngle(90); }, nodes + R"(, "orientationAngle": 90)");
  expect([](auto& p) { p.SetIsDummy(true); }, nodes + R"(, "dummy": true)");
  expect([](auto& p) { p.SetParentMember({0, 1}); }, nodes + R"(, "parentMember": {"replica": 1})");
}

TEST(AxisFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const axis = [](AxisType type, Vec3<double> origin, Vec3<double> x, Vec3<double> xy) {
    return Data::CAxis(L"", type, origin, x, xy);
  };
  Vec3<double> const zero;
  Vec3<double> const x{1, 0, 0};
  Vec3<double> const y{0, 1, 0};
  ExpectAxis(axis(AxisType::Cartesian, zero, x, y), "");
  ExpectAxis({L"A", AxisType::Cartesian, zero, x, y}, R"(, "name": "A")");
  ExpectAxis(axis(AxisType::Spherical, zero, x, y), R"(, "type": 3)");
  ExpectAxis(axis(AxisType::Cartesian, {1, 2, 3}, x, y), R"(, "origin": [1, 2, 3])");
  ExpectAxis(axis(AxisType::Cartesian, zero, y, y), R"(, "x": [0, 1, 0])");
  ExpectAxis(axis(AxisType::Cartesian, zero, x, x), R"(, "xy": [1, 0, 0])");
  auto other = axis(AxisType::Cartesian, zero, x, y);
  other.SetSid(L"s");
  other.SetColour(0x20);
  ExpectAxis(other, R"(, "sid": "s", "colour": "#000020")");
}

TEST(ListFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](Data::CEntList const& list, std::string const& fields) {
    CZelData model;
    model.SetList(3, list);
    ExpectLine(model, "List", R"({"n": 3)" + fields + "}");
  };
  expect({}, "");
  expect({SelNone, L"4 7"}, R"(, "text": "4 7")");
  expect({SelElement, L""}, R"(, "kind": 2)");
  expect({L"A", SelNode, L"1 to 10 not (3 5)"},
         R"-(, "name": "A", "kind": 1, "text": "1 to 10 not (3 5)")-");
  expect({SelElement, L"PB2 or \"a \u00e9\""},
         ", \"kind\": 2, \"text\": \"PB2 or \\\"a \xC3\xA9\\\"\"");
  Data::CEntList other;
  other.SetSid(L"s");
  other.SetColour(0xFF);
  expect(other, R"(, "sid": "s", "colour": "#0000ff")");
}

/// Expects that a model without tables writes one entry, and reads back.
void ExpectEntry(CZelData const& model, std::string const& entry) {
  EXPECT_EQ(Entries(model), ",\n  " + entry);
  EXPECT_TRUE(Testing::IsUnchanged(Read(WriteModelText(model)), model));
}

TEST(SpecFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](TolType type, std::string const& name) {
    CZelData model;
    Data::CSpec spec;
    spec.SetGenTol(type, 0.5);
    model.SetSpec(spec);
    ExpectEntry(model, R"("Spec": {"genTol": {")" + name + R"(": 0.5}})");
  };
  expect(TolType::PointInElement, "pointInElement");
  expect(TolType::Vertical, "vertical");
  expect(TolType::AxisAngle, "axisAngle");
  expect(TolType::Coincidence, "coincidence");
  CZelData model;
  Data::CSpec spec;
  Data::CUnit unit;
  unit.SetConversion(Data::CUnit::kLength, 1000);
  unit.SetConversion(Data::CUnit::kAngle, 57.5);
  spec.SetUnit(unit);
  model.SetSpec(spec);
  ExpectEntry(model, R"("Spec": {"unit": {"length": 1000, "angle": 57.5}})");
}

TEST(DefaultsFields, AreWrittenWhereTheyDifferFromTheDefault) {
  auto const expect = [](auto const& change, std::string const& text) {
    CZelData model;
    Data::CDefaults defaults;
    change(defaults);
    model.SetDefaults(defaults);
    ExpectEntry(model, R"("Defaults": {)" + text + "}");
  };
  expect([](auto& d) { d.SetAnalysisTaskName(L"T #"); }, R"("analysisTaskName": "T #")");
  expect([](auto& d) { d.SetAnalysisCaseName(L""); }, R"("analysisCaseName": "")");
  expect([](auto& d) { d.SetCombinationCaseName(L"C"); }, R"("combinationCaseName": "C")");
}

TEST(ListsOfObjects, AreArraysInOrder) {
  std::string text;
  Codec<std::vector<Data::ParentMember>>::Write(text, {{2, 1}, {}, {0, 3}});
  EXPECT_EQ(text, R"([{"member": 2, "replica": 1}, {}, {"replica": 3}])");
}

TEST(PlaneVectors, AreTwoNumbers) {
  std::string text;
  Codec<Vec2<double>>::Write(text, {1.5, -2});
  EXPECT_EQ(text, "[1.5, -2]");
}

}  // namespace
}  // namespace Tarvex::Workbench::CodecsTest
