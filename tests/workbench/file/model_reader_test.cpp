#include "workbench/file/model_reader.h"

#include "store/record/axis.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/workbench/file/file_support.h"

namespace Tarvex::Workbench::ModelReaderTest {
namespace {

using Testing::Contents;
using Testing::FaultOf;
using Testing::ModelFile;
using Testing::Read;

/// A faulty text and its one line for the user.
struct FaultRow {
  char const* name;
  std::string text;
  std::string fault;
};

std::string Nested(int depth) {
  auto const size = static_cast<std::size_t>(depth);
  return std::string(size, '[') + std::string(size, ']');
}

/// Faults of the text as JSON. Entries of ModelFile begin on line 5.
std::vector<FaultRow> TextFaults() {
  return {
      {"Empty", "", "1:1: the file is empty"},
      {"Blank", " \n\t\n", "1:1: the file is empty"},
      {"ByteOrderMark", "\xEF\xBB\xBF{}",
       "1:1: a byte-order mark; model files are UTF-8 without one"},
      {"TruncatedInRecord", "{\"format\": \"tarvex-model\",\n\"Node\": [{\"n\": 1,",
       "2:18: /Node/0: the file ends early"},
      {"TruncatedBehindLineEnd", "{\n\"format\":\n", "3:1: /format: the file ends early"},
      {"TruncatedBeforeTheLastBrace", "{\"format\": \"tarvex-model\", \"units\": {}",
       "1:39: the file ends early"},
      {"BehindTheEnd", ModelFile("") + "{}", "6:1: text behind the end of the model"},
      {"SecondClosingBrace", ModelFile("") + "}", "6:1: text behind the end of the model"},
      {"MissingComma", ModelFile(",\n\"Node\": [\n{\"n\": 1 \"position\": [0, 0, 0]}\n]"),
       "6:9: /Node/0: expected \",\" or \"}\", found \"\\\"\""},
      {"BadEscapeBehindAKnownKey", ModelFile(",\n\"Axis\": [\n{\"n\": 1, \"type\\q\": 1}]"),
       "6:15: /Axis/0: an unknown escape in a string"},
      {"ColonBehindText", ModelFile(",\n\"Axis\": [\n{\"n\": 1, \"name\": \"a\": [1]}, []]"),
       "6:21: /Axis/0: expected \",\" or \"}\", found \":\""},
      {"ColonBehindNumber", ModelFile(",\n\"Axis\": [\n{\"n\": 1: 2}]"),
       "6:8: /Axis/0: expected \",\" or \"}\", found \":\""},
      {"NotANumber", ModelFile(",\n\"Node\": [\n{\"n\": 1, \"position\": [0, NaN, 0]}\n]"),
       "6:26: /Node/0/position/1: NaN is not finite"},
      {"Infinity", ModelFile(",\n\"Node\": [\n{\"n\": 1, \"position\": [-Infinity, 0, 0]}\n]"),
       "6:23: /Node/0/position/0: -Infinity is not finite"},
      {"LeadingZero", ModelFile(",\n\"Node\": [\n{\"n\": 01, \"position\": [0, 0, 0]}\n]"),
       "6:7: /Node/0/n: expected a value, found \"01\""},
      {"ZeroByteBehindNumber",
       ModelFile(std::string(",\n\"Node\": [\n{\"n\": 1\0, \"position\": [0, 0, 0]}\n]", 46)),
       "6:7: /Node/0/n: expected a value, found \"1\\u0000\""},
      {"InvalidUtf8", ModelFile(",\n\"Axis\": [\n{\"n\": 1, \"name\": \"a\xC3\"}\n]"),
       "6:20: /Axis/0/name: invalid UTF-8"},
      {"InvalidUtf8BehindWideCharacter",
       ModelFile(",\n\"Axis\": [\n{\"n\": 1, \"name\": \"\xC3\xA9\xFF\"}\n]"),
       "6:20: /Axis/0/name: invalid UTF-8"},
      {"LoneSurrogate", ModelFile(",\n\"Axis\": [\n{\"n\": 1, \"name\": \"a\\udc00\"}\n]"),
       "6:20: /Axis/0/name: half of a surrogate pair in a string"},
      {"ControlCharacter", ModelFile(",\n\"Axis\": [\n{\"n\": 1, \"name\": \"\t\"}\n]"),
       "6:19: /Axis/0/name: a control character in a string must be escaped"},
      {"DeeperThan64", ModelFile(",\n\"List\": " + Nested(64)),
       "5:72: /List" +
           [] {
             std::string p;
             for (int i = 0; i < 63; ++i) p += "/0";
             return p;
           }() +
           ": nesting deeper than 64"},
      {"JsonFaultCountsBeforeEarlierOnes", ModelFile(",\n\"Foo\": 1,\n\"Node\": [1,]"),
       "6:12: /Node/1: expected a value, found \"]\""},
  };
}

/// Faults of what the text says.
std::vector<FaultRow> ContentFaults() {
  auto const node = [](std::string const& fields) {
    return ModelFile(",\n\"Node\": [\n{" + fields + "}\n]");
  };
  auto const elem = [](std::string const& fields) {
    return ModelFile(",\n\"Elem\": [\n{" + fields + "}\n]");
  };
  std::string const one = R"("n": 1, "position": [0, 0, 0])";
  return {
      {"RootIsNoObject", " [1]", "1:2: expected an object, found an array"},
      {"RootIsANumber", "5", "1:1: expected an object, found a number"},
      {"TableIsNoArray", ModelFile(",\n\"Node\": {}"),
       "5:9: /Node: expected an array, found an object"},
      {"RecordIsNoObject", ModelFile(",\n\"Node\": [\n3]"),
       "6:1: /Node/0: expected an object, found a number"},
      {"OneOffIsNoObject", ModelFile(",\n\"Spec\": [{}]"),
       "5:9: /Spec: expected an object, found an array"},
      {"TextForANumber", node(R"("n": "1", "position": [0, 0, 0])"),
       "6:7: /Node/0/n: expected a number, found a text"},
      {"NumberForAText", node(one + R"(, "name": 5)"),
       "6:41: /Node/0/name: expected a text, found a number"},
      {"NumberForABool", elem(R"("n": 1, "type": 1, "topology": [], "dummy": 1)"),
       "6:46: /Elem/0/dummy: expected true or false, found a number"},
      {"NullForANumber", node(R"("n": 1, "position": [0, null, 0])"),
       "6:26: /Node/0/position/1: expected a number, found null"},
      {"FieldWithinField", elem(R"("n": 1, "type": 1, "topology": [], "offset": {"x1": true})"),
       "6:54: /Elem/0/offset/x1: expected a number, found true"},
      {"UnknownTable", ModelFile(",\n\"Nodes\": []"), "5:1: /Nodes: unknown key \"Nodes\""},
      {"UnknownField", node(one + R"(, "colr": "#ffffff")"),
       "6:33: /Node/0/colr: unknown key \"colr\""},
      {"UnknownFieldOfField", elem(R"("n": 1, "type": 1, "topology": [], "offset": {"x3": 0})"),
       "6:48: /Elem/0/offset/x3: unknown key \"x3\""},
      {"UnknownFieldOfOneOff", ModelFile(",\n\"Spec\": {\"genTol\": {\"a\": 1}}"),
       "5:21: /Spec/genTol/a: unknown key \"a\""},
      {"PrefixOfAFieldIsUnknown", node(one + R"(, "ax": 1)"),
       "6:33: /Node/0/ax: unknown key \"ax\""},
      {"RepeatedTable", ModelFile(",\n\"Node\": [],\n\"Axis\": [],\n\"Node\": []"),
       "7:1: /Node: repeated key \"Node\""},
      {"RepeatedHeader", ModelFile(",\n\"version\": \"1.0\""),
       "5:1: /version: repeated key \"version\""},
      {"RepeatedField", node(one + R"(, "axis": 1, "axis": 1)"),
       "6:44: /Node/0/axis: repeated key \"axis\""},
      {"RepeatedFieldSpelledWithEscape", node(one + R"(, "axis": 1, "\u0061xis": 1)"),
       "6:44: /Node/0/axis: repeated key \"axis\""},
      {"RepeatedNode", node(one + "},\n{" + one),
       "7:7: /Node/1/n: number 1 occurs twice, first in Node"},
      {"PanelWithTheNumberOfAnElement",
       ModelFile(",\n\"Elem\": [{\"n\": 7, \"type\": 1, \"topology\": []}],\n\"LoadPanel\": [\n"
                 "{\"n\": 6, \"topology\": []},\n{\"topology\": [], \"n\": 7}]"),
       "8:23: /LoadPanel/1/n: number 7 occurs twice, first in Elem"},
      {"NumberBelowOne", node(R"("n": 0, "position": [0, 0, 0])"),
       "6:7: /Node/0/n: expected a whole number from 1 to 100000000, found 0"},
      {"NumberAboveTheHighest", node(R"("n": 100000001, "position": [0, 0, 0])"),
       "6:7: /Node/0/n: expected a whole number from 1 to 100000000, found 100000001"},
      {"NumberBeyondInt", node(R"("n": 4294967297, "position": [0, 0, 0])"),
       "6:7: /Node/0/n: expected a whole number from 1 to 100000000, found 4294967297"},
      {"NumberNotWhole", node(R"("n": 1.5, "position": [0, 0, 0])"),
       "6:7: /Node/0/n: expected a whole number from 1 to 100000000, found 1.5"},
      {"IntegerNotWhole", node(one + R"(, "axis": 0.5)"),
       "6:41: /Node/0/axis: expected a whole number from -2147483648 to 2147483647, found 0.5"},
      {"NodeOfTopologyBeyondInt", elem(R"("n": 1, "type": 1, "topology": [1, 3e9])"),
       "6:37: /Elem/0/topology/1: expected a whole number from -2147483648 to 2147483647, "
       "found 3e9"},
      {"NotFiniteAsDouble", node(R"("n": 1, "position": [0, 0, 1e400])"),
       "6:29: /Node/0/position/2: a number that is not finite as a double"},
      {"TooFewCoordinates", node(R"("n": 1, "position": [0, 0])"),
       "6:22: /Node/0/position: expected 3 values, found 2"},
      {"TooManyCoordinates", node(R"("n": 1, "position": [0, 0, 0, 0])"),
       "6:32: /Node/0/position/3: more than 3 values"},
      {"NodeWithoutNumber", node(R"("position": [0, 0, 0])"), "6:1: /Node/0: missing key \"n\""},
      {"NodeWithoutPosition", node(R"("n": 1)"), "6:1: /Node/0: missing key \"position\""},
      {"ElementWithoutType", elem(R"("n": 1, "topology": [])"),
       "6:1: /Elem/0: missing key \"type\""},
      {"ElementWithoutTopology", elem(R"("n": 1, "type": 2)"),
       "6:1: /Elem/0: missing key \"topology\""},
      {"PanelWithoutTopology", ModelFile(",\n\"LoadPanel\": [\n{\"n\": 1}]"),
       "6:1: /LoadPanel/0: missing key \"topology\""},
      {"TypeZero", elem(R"("n": 1, "type": 0, "topology": [])"),
       "6:18: /Elem/0/type: expected a whole number from 1 to 26, found 0"},
      {"TypeAboveTheHighest", elem(R"("n": 1, "type": 27, "topology": [])"),
       "6:18: /Elem/0/type: expected a whole number from 1 to 26, found 27"},
      {"UnknownAxisType", ModelFile(",\n\"Axis\": [\n{\"n\": 1, \"type\": 4}]"),
       "6:18: /Axis/0/type: expected a whole number from 1 to 3, found 4"},
      {"ColourWithoutMark", node(one + R"(, "colour": "123456")"),
       "6:43: /Node/0/colour: expected a colour like \"#1a2b3c\", found \"123456\""},
      {"ColourWithOtherDigits", node(one + R"(, "colour": "#12345g")"),
       "6:43: /Node/0/colour: expected a colour like \"#1a2b3c\", found \"#12345g\""},
      {"ColourTooLong", node(one + R"(, "colour": "#1234567")"),
       "6:43: /Node/0/colour: expected a colour like \"#1a2b3c\", found \"#1234567\""},
      {"UnknownDirection", node(one + R"(, "restraint": ["X", "x"])"),
       "6:52: /Node/0/restraint/1: unknown direction \"x\", expected X, Y, Z, XX, YY or ZZ"},
      {"RepeatedDirection", node(one + R"(, "restraint": ["X", "X"])"),
       "6:52: /Node/0/restraint/1: repeated direction \"X\""},
      {"TextIsNoList", ModelFile(",\n\"List\": [\n{\"n\": 1, \"text\": \"1 to x\"}]"),
       "6:18: /List/0/text: no list: an unknown word at character 6"},
      {"ListOfAnotherKind", ModelFile(",\n\"List\": [\n{\"n\": 1, \"kind\": 2, \"text\": \"L1\"}]"),
       "6:1: /List/0: a case in a list of elements"},
      {"ConnectionIsNoObject", elem(R"("n": 1, "type": 2, "topology": [], "connect": [null, 1])"),
       "6:55: /Elem/0/connect/1: expected an object, found a number"},
  };
}

/// Faults of the head of a file.
std::vector<FaultRow> HeaderFaults() {
  auto const units = [](std::string const& text) {
    return "{\"format\": \"tarvex-model\", \"version\": \"1.0\",\n\"units\": {" + text + "}}";
  };
  auto const version = [](std::string const& text) {
    return "{\"format\": \"tarvex-model\",\n\"version\": " + text + "}";
  };
  return {
      {"NoHeader", "{}", "1:1: missing key \"format\""},
      {"NoUnits", "{\"format\": \"tarvex-model\", \"version\": \"1.0\"}",
       "1:1: missing key \"units\""},
      {"OtherFormat", "{\"format\": \"model\"}",
       "1:12: /format: expected \"tarvex-model\", found \"model\""},
      {"VersionFirst", "{\"version\": \"1.0\"}", "1:2: /version: expected key \"format\""},
      {"TableBeforeUnits", "{\"format\": \"tarvex-model\", \"version\": \"1.0\",\n\"Node\": []}",
       "2:1: /Node: expected key \"units\""},
      {"SchemaBehindFormat", "{\"format\": \"tarvex-model\",\n\"$schema\": \"\"}",
       "2:1: /$schema: key \"$schema\" comes too late"},
      {"GeneratorBehindUnits", ModelFile(",\n\"generator\": \"x\""),
       "5:1: /generator: key \"generator\" comes too late"},
      {"LaterMinorVersion", version("\"1.1\""),
       "2:12: /version: format version \"1.1\" is not known; this program reads version \"1.0\""},
      {"LaterMajorVersion", version("\"2.0\""),
       "2:12: /version: format version \"2.0\" is not known; this program reads version \"1.0\""},
      {"VersionAsNumber", version("1.0"), "2:12: /version: expected a text, found a number"},
      {"OtherUnit",
       units(R"("length": "mm", "force": "N", "mass": "kg", "time": "s", "temperature": "C",)"
             R"( "angle": "deg")"),
       "2:21: /units/length: expected \"m\", found \"mm\""},
      {"MissingUnit",
       units(R"("length": "m", "force": "N", "mass": "kg", "time": "s", "angle": "deg")"),
       "2:10: /units: missing key \"temperature\""},
      {"UnknownUnit", units(R"("length": "m", "stress": "Pa")"),
       "2:26: /units/stress: unknown key \"stress\""},
  };
}

class ReadModelText_ : public ::testing::TestWithParam<FaultRow> {};

TEST_P(ReadModelText_, TellsTheFaultAndItsPlaceAndLeavesTheModel) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  CZelData const before(model);
  try {
    ReadModelText(GetParam().text, "m.json", model);
    FAIL() << "no fault in " << GetParam().text;
  } catch (FileError const& fault) {
    EXPECT_EQ(fault.what(), "m.json:" + GetParam().fault);
  }
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

auto const kNameOf = [](auto const& info) { return std::string(info.param.name); };
INSTANTIATE_TEST_SUITE_P(Text, ReadModelText_, ::testing::ValuesIn(TextFaults()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Content, ReadModelText_, ::testing::ValuesIn(ContentFaults()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Header, ReadModelText_, ::testing::ValuesIn(HeaderFaults()), kNameOf);

TEST(ReadModelText, FillsThePlaceOfAFault) {
  auto const fault = FaultOf(ModelFile(",\n\"Node\": [\n{\"n\": 0}]"));
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->Place().file, "m.json");
  EXPECT_EQ(fault->Place().line, 6);
  EXPECT_EQ(fault->Place().column, 7);
  EXPECT_EQ(fault->Place().pointer, "/Node/0/n");
  EXPECT_EQ(fault->Text(), "expected a whole number from 1 to 100000000, found 0");
}

TEST(ReadModelText, EveryTruncationOfAFileIsAFault) {
  auto const text = ModelFile(
      ",\n\"Spec\": {\"unit\": {\"length\": 2}},\n\"Node\": [{\"n\": 1, \"position\": [1.5, 0, "
      "-2e3], \"name\": \"a\\u00e9\", \"restraint\": [\"X\"]}],\n\"Elem\": [{\"n\": 1, \"type\": "
      "2, "
      "\"topology\": [1, 1], \"dummy\": true, \"connect\": [null, {\"release\": [\"X\"]}]}]");
  EXPECT_NO_THROW(Read(text));
  auto const lastBrace = text.rfind('}');
  for (std::size_t size = 1; size <= lastBrace; ++size) {
    auto const fault = FaultOf(text.substr(0, size));
    ASSERT_TRUE(fault) << text.substr(0, size);
    EXPECT_EQ(fault->Text(), "the file ends early") << text.substr(0, size);
  }
}

TEST(ReadModelText, TakesTheHeaderWithAndWithoutItsFreeTexts) {
  std::string const units =
      R"("units": {"angle": "deg", "length": "m", "force": "N", "mass": "kg", "time": "s",
         "temperature": "C"}})";
  EXPECT_FALSE(FaultOf(R"({"format": "tarvex-model", "version": "1.0", )" + units));
  EXPECT_FALSE(FaultOf(R"({"$schema": "any", "format": "tarvex-model", "version": "1.0",
                           "generator": "any", )" +
                       units));
}

TEST(ReadModelText, TakesTablesAndFieldsInAnyOrder) {
  auto const model = Read(ModelFile(
      R"(, "Axis": [{"name": "A", "n": 3}], "Elem": [{"topology": [2, 1], "group": 5, "type": 1,
      "n": 4}], "Node": [{"position": [1, 2, 3], "n": 2}, {"n": 1, "position": [0, 0, 0]}])"));
  EXPECT_EQ(model.Axis(3).Name(), L"A");
  EXPECT_EQ(model.Elem(4).Group(), 5);
  EXPECT_TRUE(Testing::References(model, 4, {2, 1}));
  EXPECT_EQ(model.NodeCoor(2), (Vec3<double>{1, 2, 3}));
}

TEST(ReadModelText, TakesNoTablesAsAnEmptyModel) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  ReadModelText(ModelFile(R"(, "Node": [], "Spec": {})"), "m.json", model);
  EXPECT_EQ(model, CZelData());
}

TEST(ReadModelText, TakesWholeNumbersInAnyForm) {
  auto const model = Read(ModelFile(
      R"(, "Node": [{"n": 10.0, "position": [1e0, 1.50, -0], "axis": 2e1},
         {"n": 1e8, "position": [0.000001e6, 1e-400, 0]}])"));
  ASSERT_TRUE(model.NodeExist(10) && model.NodeExist(100000000));
  EXPECT_EQ(model.Node(10).Axis(), 20);
  EXPECT_EQ(model.NodeCoor(10).y, 1.5);
  EXPECT_TRUE(std::signbit(model.NodeCoor(10).z));
  EXPECT_EQ(model.NodeCoor(100000000), (Vec3<double>{1, 0, 0}));
}

TEST(ReadModelText, GivesMissingFieldsTheirDefaults) {
  auto const model = Read(ModelFile(R"(, "Elem": [{"n": 1, "type": 2, "topology": [1, 2]}])"));
  Data::CElement expected(1, ElementType::Beam, 0);
  expected.SetTopo(std::vector{1, 2});
  EXPECT_EQ(model.Elem(1), expected);
}

TEST(ReadModelText, TakesEveryElementTypeNumberWithAndWithoutShape) {
  for (int type = 1; type <= 26; ++type) {
    auto const model = Read(
        ModelFile(R"(, "Elem": [{"n": 1, "topology": [], "type": )" + std::to_string(type) + "}]"));
    EXPECT_EQ(static_cast<int>(model.Elem(1).Type()), type);
  }
}

TEST(ReadModelText, ReadsEscapesInTextsAndKeys) {
  auto const model =
      Read(ModelFile(R"(, "A\u0078is": [{"\u006e": 1, "name": "\u00e9\n\ud83d\ude00\u0000"}])"));
  EXPECT_EQ(model.Axis(1).Name().Str(), std::wstring(L"\u00e9\n\U0001F600\0", 4));
}

TEST(ReadModelText, BuildsAttachmentsAndKeepsTheHoldOfTheModel) {
  CZelData model;
  model.rebuildHold = true;
  auto const text = ModelFile(
      R"(, "Node": [{"n": 1, "position": [0, 0, 0]}], "Elem": [{"n": 7, "type": 1,
      "topology": [1]}])");
  ReadModelText(text, "m.json", model);
  EXPECT_TRUE(model.rebuildHold);
  model.rebuildHold = false;
  ReadModelText(text, "m.json", model);
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model.Node(1).AttachedEnt(SelElement), (boost::container::flat_set<int>{7}));
}

class ReadModelFile : public Testing::FolderTest {};

TEST_F(ReadModelFile, NamesTheFileInFaults) {
  Put("a.json", "{\n");
  CZelData model;
  try {
    ReadModel(Path("a.json"), model);
    FAIL();
  } catch (FileError const& fault) {
    EXPECT_EQ(fault.what(), Path("a.json") + ":2:1: the file ends early");
  }
}

TEST_F(ReadModelFile, TellsWhyAFileCannotBeRead) {
  CZelData model;
  auto const reason = [&](std::string const& path) {
    try {
      ReadModel(path, model);
      return std::string("none");
    } catch (FileError const& fault) {
      return std::string(fault.what());
    }
  };
  EXPECT_EQ(reason(Path("no.json")),
            Path("no.json") + ": cannot be read: No such file or directory");
  EXPECT_EQ(reason(Path("")), Path("") + ": cannot be read: Is a directory");
}

TEST_F(ReadModelFile, ReadsTheExample) {
  CZelData model;
  ReadModel(TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json", model);
  EXPECT_EQ(model.NumEnt(SelNode), 2800);  // lines 7 to 2806 of the file
  EXPECT_EQ(model.Axis(1).Origin(), (Vec3<double>{0, 3.5, 0}));
  EXPECT_TRUE(model.Elem(1049).Connect(0).Release().YY());
  EXPECT_EQ(model.LoadPanel(6070).Name(), L"North bay 5 storey 6");
}

}  // namespace
}  // namespace Tarvex::Workbench::ModelReaderTest
