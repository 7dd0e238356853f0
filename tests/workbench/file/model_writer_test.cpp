#include "workbench/file/model_writer.h"

#include <cmath>
#include <limits>
#include <regex>

#include "store/record/ent_list.h"
#include "store/record/node.h"
#include "store/record/spec.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"
#include "tests/workbench/file/file_support.h"

namespace Tarvex::Workbench::ModelWriterTest {
namespace {

using Testing::Contents;
using Testing::Element;
using Testing::Read;

std::string const kGeneratorLine = "  \"generator\": \"tarvex [0-9.]+\",\n";

/// A text with the line of its generator left out.
std::string WithoutGenerator(std::string const& text) {
  return std::regex_replace(text, std::regex("  \"generator\": [^\n]*\n"), "");
}

TEST(WriteModelText, OfAnEmptyModelIsTheHeader) {
  auto const text = WriteModelText(CZelData());
  EXPECT_TRUE(std::regex_search(text, std::regex(kGeneratorLine))) << text;
  EXPECT_EQ(WithoutGenerator(text), R"({
  "format": "tarvex-model",
  "version": "1.0",
  "units": {"length": "m", "force": "N", "mass": "kg", "time": "s", "temperature": "C", "angle": "deg"}
}
)");
}

TEST(WriteModelText, PutsOneRecordALineInAscendingNumber) {
  CZelData model;
  model.SetElem(12, Element(ElementType::Beam, {20, 3}));
  model.CreateNode(20, {1, 2, 3}, 0, Vbool6());
  model.CreateNode(3, {0, 0, 0.5}, 0, Vbool6());
  Data::CSpec spec;
  spec.SetGenTol(TolType::Vertical, 0.25);
  model.SetSpec(spec);
  EXPECT_EQ(WithoutGenerator(WriteModelText(model)), R"({
  "format": "tarvex-model",
  "version": "1.0",
  "units": {"length": "m", "force": "N", "mass": "kg", "time": "s", "temperature": "C", "angle": "deg"},
  "Spec": {"genTol": {"vertical": 0.25}},
  "Node": [
    {"n": 3, "position": [0, 0, 0.5]},
    {"n": 20, "position": [1, 2, 3]}
  ],
  "Elem": [
    {"n": 12, "type": 2, "topology": [20, 3]}
  ]
}
)");
}

TEST(WriteModelText, GivesBackTheExampleButForItsGenerator) {
  auto const example = Contents(TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json");
  ASSERT_FALSE(example.empty());
  std::istringstream wanted(WithoutGenerator(example));
  std::istringstream written(WithoutGenerator(WriteModelText(Read(example))));
  std::string line;
  std::string other;
  while (std::getline(wanted, line)) {
    ASSERT_TRUE(std::getline(written, other));
    ASSERT_EQ(other, line);
  }
  EXPECT_FALSE(std::getline(written, other));
}

TEST(WriteModelText, ReadsBackAsTheSameModelAndText) {
  Testing::ForEachRandomModel(60, [](CZelData const& model, Testing::Random&) {
    auto const text = WriteModelText(model);
    auto const back = Read(text);
    EXPECT_TRUE(Testing::IsUnchanged(back, model));
    EXPECT_EQ(WriteModelText(back), text);
  });
}

/// A double of any bits that is finite.
double AnyDouble(Testing::Random& random) {
  for (;;) {
    auto const high = static_cast<std::uint64_t>(random.Int(0, 0x7FFFFFFF));
    auto const low = static_cast<std::uint64_t>(random.Int(0, 0x7FFFFFFF));
    auto const value = std::bit_cast<double>(high << 33 | low << 2 | high >> 29);
    if (std::isfinite(value)) return value;
  }
}

/// A text of characters of every kind.
CString AnyText(Testing::Random& random) {
  std::wstring text;
  for (int size = random.Int(0, 12); size > 0; --size) {
    int const highest = random.Of(std::vector{0x7F, 0x7FF, 0xD7FF, 0x10FFFF});
    int const code = random.Int(0, highest);
    bool const surrogate = code >= 0xD800 && code < 0xE000;
    text += static_cast<wchar_t>(surrogate ? 0xFFFD : code);
  }
  return text;
}

TEST(WriteModelText, ReadsBackAnyNumbersAndTexts) {
  Testing::Random random(7);
  for (int i = 0; i < 200; ++i) {
    CZelData model;
    Data::CNode node({AnyDouble(random), AnyDouble(random), AnyDouble(random)},
                     random.Int(std::numeric_limits<int>::min() / 2, 1 << 30), random.Flags());
    node.SetMeshSize(AnyDouble(random));
    node.SetName(AnyText(random));
    node.SetSid(AnyText(random));
    node.SetColour(static_cast<unsigned long>(random.Int(0, 0xFFFFFF)));
    model.SetNode(random.Int(1, 100000000), node);
    auto const text = WriteModelText(model);
    EXPECT_TRUE(Testing::IsUnchanged(Read(text), model)) << text;
  }
}

/// What keeps a model from being written.
std::string RefusalOf(CZelData const& model) {
  try {
    return WriteModelText(model);
  } catch (FileError const& fault) {
    return fault.what();
  }
}

TEST(WriteModelText, RefusesValuesThatNoFileCanHold) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  auto infinite = model;
  infinite.SetNodeCoor(2, {0, std::numeric_limits<double>::infinity(), 0});
  EXPECT_EQ(RefusalOf(infinite), "model: /Node/1/position/1: a value that is not finite");
  auto noNumber = model;
  noNumber.SetElemBeta(1, std::nan(""));
  EXPECT_EQ(RefusalOf(noNumber), "model: /Elem/0/orientationAngle: a value that is not finite");
  auto noType = model;
  noType.SetElem(1, Element(ElementType::None, {1}));
  EXPECT_EQ(RefusalOf(noType), "model: /Elem/0/type: unknown value 0");
  auto wrongList = model;
  Data::CEntList cases(SelCase, L"L1");
  cases.SetType(SelElement);
  wrongList.SetList(1, {});
  wrongList.SetList(5, cases);
  EXPECT_EQ(RefusalOf(wrongList), "model: /List/1: a case in a list of elements");
}

class WriteModelFile : public Testing::FolderTest {};

TEST_F(WriteModelFile, WritesTheTextAndNothingElse) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  WriteModel(model, Path("a.json"));
  EXPECT_EQ(Contents(Path("a.json")), WriteModelText(model));
  EXPECT_EQ(Count(), 1);
}

TEST_F(WriteModelFile, NamesTheFileOfAModelThatCannotBeWritten) {
  CZelData model;
  model.CreateNode(1, {0, 0, std::nan("")}, 0, Vbool6());
  Put("a.json", "old");
  try {
    WriteModel(model, Path("a.json"));
    FAIL();
  } catch (FileError const& fault) {
    EXPECT_EQ(fault.what(), Path("a.json") + ": /Node/0/position/2: a value that is not finite");
  }
  EXPECT_EQ(Contents(Path("a.json")), "old");
}

TEST_F(WriteModelFile, ReplaceModelKeepsTheOldFile) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  Put("a.json", "old");
  ReplaceModel(model, Path("a.json"));
  EXPECT_EQ(Contents(Path("a.json")), WriteModelText(model));
  EXPECT_EQ(Contents(Path("a.json.bak")), "old");
  EXPECT_EQ(Count(), 2);
}

}  // namespace
}  // namespace Tarvex::Workbench::ModelWriterTest
