// Combinations from end to end: the factors that the store works out of the descriptions, beside
// those of EN 1990, and the warnings of the command where the two differ.
#include <set>

#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "tests/workbench/run.h"
#include "workbench/file/model_reader.h"

namespace Tarvex::CombineEn1990Test {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;
using Factors = std::set<double>;
using Codes = std::set<std::string>;

/// Factors of one action in one family.
struct Row {
  int analysisCase;
  Factors ours;      ///< over all alternatives of the final combination
  Factors standard;  ///< of the expression of EN 1990
  Codes codes;       ///< of the warnings where the two differ
};

struct FamilyTable {
  char const* word;
  char const* name;
  std::vector<Row> rows;
};

/// The clause that a warning has to name, by code; the others name that of their family.
std::string ClauseOf(std::string const& code, std::string const& family) {
  static std::map<std::string, std::string> const kByCode{
      {"no-basic-combination", "6.4.3.2 (6.10) and 6.5.3"},
      {"permanent-factor-zero", "6.4.3 and 6.5.3"},
      {"taken-one-at-a-time", "6.4.3 and 6.5.3"},
      {"prestress-factor", "6.4.3.2 (6.10)"}};
  static std::map<std::string, std::string> const kByFamily{
      {"persistent", "6.4.3.2 (6.10)"}, {"accidental", "6.4.3.3 (6.11b)"},
      {"seismic", "6.4.3.4 (6.12b)"},   {"characteristic", "6.5.3 (6.14b)"},
      {"frequent", "6.5.3 (6.15b)"},    {"quasi-permanent", "6.5.3 (6.16b)"}};
  auto const found = kByCode.find(code);
  return "EN 1990, " + (found == kByCode.end() ? kByFamily.at(family) : found->second);
}

/// The factors of an analysis case over all alternatives of a combination, as the store has them.
Factors Evaluate(CZelData const& model, int combination, int analysisCase) {
  auto const description = model.CombinationCase(combination).Description();
  Factors factors;
  int const count = description.NumPermutation(model);
  for (int i = 1; i <= count; ++i)
    factors.insert(description.CaseFactor(i, {CaseOp::Analysis, analysisCase}) + 0.0);
  return factors;
}

/// Whether two sets of factors are the same but for rounding. An action that takes no part at all
/// has the factor 0.
::testing::AssertionResult AreSame(Factors const& actual, Factors const& expected) {
  bool same = actual.size() == expected.size();
  for (auto a = actual.begin(), b = expected.begin(); same && a != actual.end(); ++a, ++b)
    same = std::abs(*a - *b) < 1e-9;
  if (same) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << ::testing::PrintToString(actual) << " in place of "
                                       << ::testing::PrintToString(expected);
}

class CombineEn1990 : public Testing::RunTest {
 protected:
  /// Checks a table against a run of its family alone.
  void Expect(std::string const& file, FamilyTable const& table) {
    SCOPED_TRACE(table.name);
    auto const result = RunTarvex({"combine", file, "--families", table.word, "--seismic", "30",
                                   "-o", Path("out.json"), "--force", "--json"});
    ASSERT_LE(result.exit, 1) << result.out;
    CZelData model;
    Workbench::ReadModel(Path("out.json"), model);
    int const final = model.HighestCombinationCase();
    EXPECT_EQ(model.CombinationCase(final).Name().ToUtf8(), table.name);
    Codes expected;
    for (auto const& row : table.rows) {
      SCOPED_TRACE("A" + std::to_string(row.analysisCase));
      EXPECT_TRUE(AreSame(Evaluate(model, final, row.analysisCase), row.ours));
      EXPECT_EQ(static_cast<bool>(AreSame(row.ours, row.standard)), row.codes.empty());
      expected.insert(row.codes.begin(), row.codes.end());
    }
    Codes found;
    auto const json = result.Json();
    for (auto const& warning : json.at("warnings")) {
      auto const code = warning.at("code").get<std::string>();
      found.insert(code);
      EXPECT_NE(warning.at("text").get<std::string>().find(ClauseOf(code, table.word)),
                std::string::npos)
          << warning;
    }
    EXPECT_EQ(found, expected);
  }
  void Expect(std::string const& file, std::vector<FamilyTable> const& tables) {
    for (auto const& table : tables) Expect(file, table);
  }
};

// An office frame: one source of each of self weight, offices, wind, impact, earthquake along x.
std::string OfficeFrame() {
  return Testing::kHeader + R"(,
"LoadCaseTitle": [{"n": 1, "type": 11}, {"n": 2, "type": 31, "category": 2}, {"n": 3, "type": 33},
  {"n": 4, "type": 41}],
"AnalysisTask": [{"n": 1, "class": "CZssTask"}, {"n": 2, "class": "CZdSpecTask"}],
"AnalysisCase": [{"n": 1, "description": "L1", "task": 1}, {"n": 2, "description": "L2", "task": 1},
  {"n": 3, "description": "L3", "task": 1}, {"n": 4, "description": "L4", "task": 1},
  {"n": 5, "description": "M1", "task": 2, "modeDirection": 1}]
})";
}

TEST_F(CombineEn1990, OfficeFrameAgreesButForTheFrequentAndTheQuasiPermanentFamily) {
  // psi0, psi1, psi2 of offices (category B) 0.7, 0.5, 0.3; of wind 0.6, 0.2, 0.
  Expect(Write("in.json", OfficeFrame()),
         {{"persistent",
           "ULS Persistent",
           {{1, {1.35, 1}, {1.35, 1}, {}},                 // gamma G sup, inf
            {2, {1.5, 1.05, 0}, {1.5, 0.7 * 1.5, 0}, {}},  // leading, 0.7 x 1.5, favourable
            {3, {1.5, 0.9, 0}, {1.5, 0.6 * 1.5, 0}, {}},   // leading, 0.6 x 1.5, favourable
            {4, {0}, {0}, {}},
            {5, {0}, {0}, {}}}},
          {"accidental",
           "ULS Accidental",
           {{1, {1}, {1}, {}},
            {2, {0.5, 0.3}, {0.5, 0.3}, {}},  // psi1 leading, psi2 accompanying
            {3, {0.2, 0}, {0.2, 0}, {}},
            {4, {1}, {1}, {}},  // A d
            {5, {0}, {0}, {}}}},
          {"seismic",
           "ULS Seismic",
           {{1, {1}, {1}, {}},
            {2, {0.3}, {0.3}, {}},  // psi2
            {3, {0}, {0}, {}},
            {4, {0}, {0}, {}},
            {5, {1, -1}, {1, -1}, {}}}},  // A Ed in both senses
          {"characteristic",
           "SLS Characteristic",
           {{1, {1}, {1}, {}},
            {2, {1, 0.7}, {1, 0.7}, {}},  // leading, psi0
            {3, {1, 0.6}, {1, 0.6}, {}},
            {4, {0}, {0}, {}},
            {5, {0}, {0}, {}}}},
          {"frequent",
           "SLS Frequent",
           {{1, {1.35, 1}, {1}, {"persistent-factors"}},
            {2, {1.5, 1.05, 0}, {0.5, 0.3}, {"persistent-factors"}},  // the code: psi1, psi2
            {3, {1.5, 0.9, 0}, {0.2, 0}, {"persistent-factors"}},
            {4, {0}, {0}, {}},
            {5, {0}, {0}, {}}}},
          {"quasi-permanent",
           "SLS Quasi-Permament",
           {{1, {1.35, 1}, {1}, {"persistent-factors"}},
            {2, {1.5, 0}, {0.3}, {"persistent-factors"}},  // the code: psi2
            {3, {1.5, 0}, {0}, {"persistent-factors"}},
            {4, {0}, {0}, {}},
            {5, {0}, {0}, {}}}}});
}

// A tensioned roof in the wind: self weight by its upper factor only, prestress, one wind.
std::string TensionedRoof() {
  return Testing::kHeader + R"(,
"LoadCaseTitle": [{"n": 1, "type": 11, "permanentMode": 1}, {"n": 2, "type": 21}, {"n": 3, "type": 33},
  {"n": 4, "type": 41}],
"AnalysisTask": [{"n": 1, "class": "CZssTask", "solution": 7}, {"n": 2, "class": "CZdSpecTask"}],
"AnalysisCase": [{"n": 1, "description": "L1", "task": 1}, {"n": 2, "description": "L2", "task": 1},
  {"n": 3, "description": "L3", "task": 1}, {"n": 4, "description": "L4", "task": 1},
  {"n": 5, "description": "M1", "task": 2, "modeDirection": 1}]
})";
}

TEST_F(CombineEn1990, TensionedRoofHasASingleVariableActionPrestressAndAPermanentMode) {
  std::string const kZero = "permanent-factor-zero";
  std::string const kSingle = "single-variable-action";
  std::string const kPersistent = "persistent-factors";
  // psi0, psi1, psi2 of wind 0.6, 0.2, 0. Prestress has gamma P, 1 (EN 1992-1-1, 2.4.2.2).
  Expect(Write("in.json", TensionedRoof()),
         {{"persistent",
           "ULS Persistent",
           {{1, {1.35, 0}, {1.35, 1}, {kZero}},
            {2, {1.35, 1}, {1}, {"prestress-factor"}},
            {3, {0.9, 0}, {1.5, 0}, {kSingle}}}},  // 0.6 x 1.5; the code: leading
          {"accidental",
           "ULS Accidental",
           {{1, {1, 0}, {1}, {kZero}},
            {2, {1}, {1}, {}},
            {3, {0}, {0.2}, {kSingle}},  // psi2; the code: psi1
            {4, {1}, {1}, {}}}},
          {"seismic",
           "ULS Seismic",
           {{1, {1, 0}, {1}, {kZero}},
            {2, {1}, {1}, {}},
            {3, {0}, {0}, {}},  // psi2
            {5, {1, -1}, {1, -1}, {}}}},
          {"characteristic",
           "SLS Characteristic",
           {{1, {1, 0}, {1}, {kZero}},
            {2, {1}, {1}, {}},
            {3, {0.6}, {1}, {kSingle}}}},  // psi0; the code: leading
          {"frequent",
           "SLS Frequent",
           {{1, {1.35, 0}, {1}, {kZero, kPersistent}},
            {2, {1.35, 1}, {1}, {kPersistent}},
            {3, {0.9, 0}, {0.2}, {kPersistent, kSingle}}}},  // the code: psi1
          {"quasi-permanent",
           "SLS Quasi-Permament",
           {{1, {1.35, 0}, {1}, {kZero, kPersistent}},
            {2, {1.35, 1}, {1}, {kPersistent}},
            {3, {1.5, 0}, {0}, {kPersistent}}}}});  // the code: psi2
}

// A lodge high up in a country with much snow: two sources of self weight, rooms and stores of one
// source, snow, temperature, a roof of a source of its own, impact, earthquake along x and y.
std::string Lodge() {
  return Testing::kHeader + R"(,
"Spec": {"country": {"code": 169}},
"LoadCaseTitle": [{"n": 1, "type": 11}, {"n": 2, "type": 11, "source": 2},
  {"n": 3, "type": 31, "category": 1}, {"n": 4, "type": 31, "category": 5}, {"n": 5, "type": 34},
  {"n": 6, "type": 36}, {"n": 7, "type": 32, "category": 8, "source": 9}, {"n": 8, "type": 41}],
"AnalysisTask": [{"n": 1, "class": "CZssTask"}, {"n": 2, "class": "CZdSpecTask"}],
"AnalysisCase": [{"n": 1, "description": "L1", "task": 1}, {"n": 2, "description": "L2", "task": 1},
  {"n": 3, "description": "L3", "task": 1}, {"n": 4, "description": "L4", "task": 1},
  {"n": 5, "description": "L5", "task": 1}, {"n": 6, "description": "L6", "task": 1},
  {"n": 7, "description": "L7", "task": 1}, {"n": 8, "description": "L8", "task": 1},
  {"n": 9, "description": "M1", "task": 2, "modeDirection": 1},
  {"n": 10, "description": "M1", "task": 2, "modeDirection": 2}]
})";
}

TEST_F(CombineEn1990, LodgeHasAlternativesCompanionsTemperatureAndARoofByItself) {
  std::string const kTurns = "taken-one-at-a-time";
  std::string const kNoBasic = "no-basic-combination";
  std::string const kLeftOut = "action-left-out";
  std::string const kSome = "absent-from-some";
  std::string const kPersistent = "persistent-factors";
  // psi0, psi1, psi2: rooms (A) 0.7, 0.5, 0.3; stores (E) 1.0, 0.9, 0.8; snow there 0.7, 0.5, 0.2;
  // temperature 0.6, 0.5, 0; roofs (H) 0, 0, 0.
  Expect(Write("in.json", Lodge()),
         {{"persistent",
           "ULS Persistent",
           {{1, {1.35, 1, 0}, {1.35, 1}, {kTurns}},
            {2, {1.35, 1, 0}, {1.35, 1}, {kTurns}},
            {3, {1.5, 1.05, 0}, {1.5, 0.7 * 1.5, 0}, {}},
            {4, {1.5, 0}, {1.5, 1.0 * 1.5, 0}, {}},
            {5, {1.5, 1.05, 0}, {1.5, 0.7 * 1.5, 0}, {}},
            {6, {0}, {1.5, 0.6 * 1.5, 0}, {kNoBasic}},
            {7, {0}, {1.5, 0.0 * 1.5}, {kLeftOut}}}},
          {"accidental",
           "ULS Accidental",
           {{1, {1, 0}, {1}, {kTurns}},
            {2, {1, 0}, {1}, {kTurns}},
            {3, {0.5, 0.3}, {0.5, 0.3}, {}},
            {4, {0.9, 0.8}, {0.9, 0.8}, {}},
            {5, {0.5, 0.2}, {0.5, 0.2}, {}},
            {6, {0}, {0.5, 0}, {kNoBasic}},
            {7, {0}, {0}, {}},
            {8, {1}, {1}, {}}}},
          {"seismic",
           "ULS Seismic",
           {{1, {1, 0}, {1}, {kTurns}},
            {2, {1, 0}, {1}, {kTurns}},
            {3, {0.3, 0}, {0.3}, {kSome}},
            {4, {0.8, 0}, {0.8}, {kSome}},
            {5, {0.2}, {0.2}, {}},
            {6, {0}, {0}, {}},
            {7, {0}, {0}, {}},
            {9, {1, 0.3, -0.3, -1}, {1, 0.3, -0.3, -1}, {}},  // EN 1998-1, 4.3.3.5.1
            {10, {1, 0.3, -0.3, -1}, {1, 0.3, -0.3, -1}, {}}}},
          {"characteristic",
           "SLS Characteristic",
           {{1, {1, 0}, {1}, {kTurns}},
            {2, {1, 0}, {1}, {kTurns}},
            {3, {1, 0.7}, {1, 0.7}, {}},
            {4, {1}, {1, 1.0}, {}},
            {5, {1, 0.7}, {1, 0.7}, {}},
            {6, {0}, {1, 0.6}, {kNoBasic}},
            {7, {0}, {1, 0}, {kLeftOut}}}},
          {"frequent",
           "SLS Frequent",
           {{1, {1.35, 1, 0}, {1}, {kTurns, kPersistent}},
            {2, {1.35, 1, 0}, {1}, {kTurns, kPersistent}},
            {3, {1.5, 1.05, 0}, {0.5, 0.3}, {kPersistent}},
            {4, {1.5, 0}, {0.9, 0.8}, {kPersistent}},
            {5, {1.5, 1.05, 0}, {0.5, 0.2}, {kPersistent}},
            {6, {0}, {0.5, 0}, {kNoBasic}},
            {7, {0}, {0}, {}}}},
          {"quasi-permanent",
           "SLS Quasi-Permament",
           {{1, {1.35, 1, 0}, {1}, {kTurns, kPersistent}},
            {2, {1.35, 1, 0}, {1}, {kTurns, kPersistent}},
            {3, {1.5, 0}, {0.3}, {kPersistent}},
            {4, {1.5, 0}, {0.8}, {kPersistent}},
            {5, {1.5, 0}, {0.2}, {kPersistent}},
            {6, {0}, {0}, {}},
            {7, {1.5, 0}, {0}, {kPersistent}}}}});
}

}  // namespace
}  // namespace Tarvex::CombineEn1990Test
