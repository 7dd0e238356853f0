#include "workbench/commands/selection.h"

#include "store/select/compact_text.h"
#include "tests/support/builders.h"
#include "tests/workbench/page.h"
#include "tests/workbench/run.h"
#include "workbench/commands/errors.h"

namespace Tarvex::SelectionTest {
namespace {

using Testing::RunTarvex;
using Workbench::Select;
using Json = nlohmann::json;
using Numbers = std::vector<int>;

/// Nodes 1 to 16, elements 1 to 9 without 4, and a load panel 12.
CZelData Model() {
  CZelData model;
  Testing::Grid(model, 3, 3);
  for (int n = 1; n <= 9; ++n) model.SetElemProperty(n, 1);
  model.BlankElem(4, 1);
  auto panel = Testing::Panel({1, 4, 16});
  panel.SetProperty(1);
  model.SetLoadPanel(12, panel);
  return model;
}

Numbers Elements(std::string const& text) {
  auto const set = Select(Model(), SelElement, text);
  return {set.begin(), set.end()};
}

TEST(Selection, TakesTheWholeLanguageOfLists) {
  EXPECT_EQ(Elements("9 2 4 2 99"), (Numbers{2, 9}));
  EXPECT_EQ(Elements("all not 1 to 6"), (Numbers{7, 8, 9, 12}));
  EXPECT_EQ(Elements("(PA1 and 5 to *) not Y1"), (Numbers{5, 6, 7, 8, 9, 12}));
}

TEST(Selection, HasLoadPanelsAmongTheElements) {
  EXPECT_EQ(Elements("all"), (Numbers{1, 2, 3, 5, 6, 7, 8, 9, 12}));
  EXPECT_EQ(Elements("12"), Numbers{12});
}

TEST(Selection, KeepsTheKind) {
  EXPECT_EQ(Select(Model(), SelNode, "1").TypeOf(), SelNode);
  EXPECT_EQ(Workbench::KindOf("element"), SelElement);
  EXPECT_EQ(Workbench::KindOf("member"), SelMember);
  EXPECT_EQ(Workbench::KindOf("node"), SelNode);
  EXPECT_EQ(Workbench::KindOf("case"), SelNone);
}

TEST(Selection, SaysWhereAndWhyATextIsNoList) {
  try {
    Select(Model(), SelElement, "1 to five");
    FAIL();
  } catch (Workbench::UsageError const& fault) {
    EXPECT_STREQ(fault.what(), "--list: character 6: an unknown word");
  }
}

class SelectCommand : public Testing::RunTest {
 protected:
  /// The small model with saved lists. It has elements 1 to 4 and load panel 5.
  std::string Small() {
    auto text = Testing::SmallModel();
    auto const end = text.rfind(']') + 1;
    return Write("a.json", text.substr(0, end) + R"(,
      "List": [{"n": 4, "name": "some", "kind": 2, "text": "1 3"}, {"n": 5, "kind": 1}])" +
                               text.substr(end));
  }
};

TEST_F(SelectCommand, TellsCountAndNumbers) {
  auto const result = RunTarvex({"select", Small(), "--list", "1 to 3 not 2", "--json"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.Json().at("data"),
            Json::parse(R"({"kind": "element", "count": 2, "numbers": [1, 3]})"));
  EXPECT_TRUE(result.Json().at("warnings").empty());
  EXPECT_EQ(RunTarvex({"select", Small(), "--list", "\"some\""}).out, "2 elements: 1 3\n");
  EXPECT_EQ(RunTarvex({"select", Small(), "--list", "2"}).out, "1 element: 2\n");
}

TEST_F(SelectCommand, TakesKindsAndSelectsAllElementsUnlessTold) {
  EXPECT_EQ(RunTarvex({"select", Small()}).out, "5 elements: 1 to 5\n");
  EXPECT_EQ(RunTarvex({"select", Small(), "--kind", "node", "--list", "1 2"}).out,
            "2 nodes: 1 2\n");
  EXPECT_EQ(RunTarvex({"select", Small(), "--kind", "member", "-q"}).out, "");
  EXPECT_EQ(RunTarvex({"select", Small(), "--kind", "member"}).out, "0 members\n");
  EXPECT_EQ(RunTarvex({"select", Small(), "--kind", "case"}).exit, 2);
}

TEST_F(SelectCommand, WarnsOfNothingAndOfMissingLists) {
  auto const result = RunTarvex({"select", Small(), "--list", "#9 \"other\" #5", "--json"}).Json();
  EXPECT_EQ(result.at("exit"), 0);
  EXPECT_EQ(result.at("data").at("numbers"), Json::array());
  EXPECT_EQ(result.at("warnings"), Json::parse(R"([
    {"code": "missing-list", "table": "List", "number": 9,
     "text": "#9 is no saved list of elements"},
    {"code": "missing-list", "table": "List", "text": "'other' is no saved list of elements"},
    {"code": "missing-list", "table": "List", "number": 5,
     "text": "#5 is no saved list of elements"},
    {"code": "empty-selection", "text": "'#9 \"other\" #5' selects no element"}])"));
}

TEST_F(SelectCommand, RefusesWhatIsNoList) {
  auto const result = RunTarvex({"select", Small(), "--list", "1 to"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_EQ(result.err, "tarvex: --list: character 3: a range without its end\n");
  EXPECT_EQ(result.out, "");
}

// The page that explains lists.

class ListsPage : public Testing::RunTest {
 protected:
  /// The model file that the page shows.
  std::string PageModel() const { return Write("page.json", m_page.Json()); }

  /// The rows of the table with a heading, by cell.
  std::vector<std::vector<std::string>> Rows(std::string const& heading) const {
    auto rows = m_page.Rows(heading);
    for (auto& cells : rows)
      for (auto& cell : cells) cell = Testing::Bare(cell);
    return rows;
  }

 private:
  Testing::Page m_page{"docs/lists.md"};
};

TEST_F(ListsPage, SelectsInEachExampleWhatItSays) {
  auto const model = PageModel();
  auto const rows = Rows("| Kind | List | Selects | Because |");
  EXPECT_GE(rows.size(), 50u);
  for (auto const& row : rows) {
    auto const result =
        RunTarvex({"select", model, "--kind", row[0], "--list", row[1], "-q", "--json"});
    ASSERT_EQ(result.exit, 0) << row[1] << ": " << result.out;
    auto const numbers = result.Json().at("data").at("numbers").get<Numbers>();
    EXPECT_EQ(CompactText(numbers).ToUtf8(), row[2]) << row[0] << " " << row[1];
  }
}

TEST_F(ListsPage, RefusesWhatItSaysIsRefused) {
  auto const model = PageModel();
  auto const rows = Rows("| Refused | Character | Reason |");
  EXPECT_GE(rows.size(), 15u);
  for (auto const& row : rows) {
    auto const result = RunTarvex({"select", model, "--list", row[0]});
    EXPECT_EQ(result.exit, 2) << row[0];
    EXPECT_EQ(result.err, "tarvex: --list: character " + row[1] + ": " + row[2] + "\n");
  }
}

// The saved lists of the example.

TEST(SixStorey, HasListsThatSelectAsManyAsItsPageSays) {
  struct Row {
    char const* name;
    int count;
  };
  // 6 storeys of 12 facade panels, 4 on each long and 2 on each short side. Of 1267 elements of
  // type 2 four are posts and 763 beams. The canopy has 25 plates on the 4 posts.
  Row const rows[] = {{"Columns", 500},     {"Beams", 763},      {"Posts", 4},
                      {"Frame", 1267},      {"Slabs", 1211},     {"Walls", 834},
                      {"Raft", 195},        {"Facade", 72},      {"South facade", 24},
                      {"North facade", 24}, {"West facade", 12}, {"East facade", 12},
                      {"Canopy", 29}};
  std::string const model = TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json";
  auto const count = [&](std::string const& kind, std::string const& text) {
    auto const result = RunTarvex({"select", model, "--kind", kind, "--list", text, "--json"});
    EXPECT_TRUE(result.Json().at("warnings").empty()) << text;
    return result.Json().at("data").at("count").get<int>();
  };
  for (auto const& row : rows)
    EXPECT_EQ(count("element", "\"" + std::string(row.name) + "\""), row.count) << row.name;
  EXPECT_EQ(count("node", "\"Supports\""), 224);
  // Every element belongs to one of three parts, and the basement storeys make up the basement.
  constexpr int kAll = 3507 + 72;
  EXPECT_EQ(count("element", "\"Tower\"") + count("element", "\"Basement\"") + 195, kAll);
  EXPECT_EQ(count("element", "\"Tower\" \"Basement\" \"Raft\""), kAll);
  EXPECT_EQ(count("element", "\"Basement 1\" \"Basement 2\""), count("element", "\"Basement\""));
}

}  // namespace
}  // namespace Tarvex::SelectionTest
