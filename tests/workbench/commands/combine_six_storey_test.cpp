// The combinations of the six-storey example, worked by hand.
#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "tests/workbench/run.h"
#include "workbench/file/model_reader.h"

namespace Tarvex::CombineSixStoreyTest {
namespace {

using Json = nlohmann::json;
using Factors = std::set<double>;

// What it has, and the basic combinations behind its own four:
//   permanent   5 self weight A1, 6 finishes A2
//   imposed     7 offices 3B A3, 8 and 9 offices of odd and of even floors 13B A13 and 14B A14,
//               10 archive 3E A15, 11 roof 3 A4
//   wind        12 to 15 from four sides, A5, A6, A16, A17
//   snow        16 A7; not severe
//   accidental  17 impact A18
//   seismic     18 and 19 responses 9x A11 and 9y A12, 20 and 21 torsion 9x A19 and 9y A20
// Summer, A8, is thermal and gets none.
constexpr int kOwn = 4;
constexpr int kBasic = 17;

class CombineSixStorey : public Testing::RunTest {
 protected:
  /// Runs the command for some families and reads what it wrote.
  void Combine(std::string const& families) {
    auto const result =
        Testing::RunTarvex({"combine", TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json",
                            "--families", families, "-o", Path("out.json"), "--json"});
    ASSERT_EQ(result.exit, 1) << result.out;  // A8 is left out
    report = result.Json();
    Workbench::ReadModel(Path("out.json"), model);
  }
  /// "NAME = DESCRIPTION" of a combination.
  std::string Line(int n) const {
    auto const& record = model.CombinationCase(n);
    return record.Name().ToUtf8() + " = " + record.Description().Text().ToUtf8();
  }
  /// Factors of each basic combination in a family.
  std::map<int, Factors> FactorsOf(std::size_t family) const {
    std::map<int, Factors> factors;
    for (auto const& row : report.at("data").at("result").at("families").at(family).at("factors"))
      factors[row.at("action").get<int>()] = row.at("values").get<Factors>();
    return factors;
  }
  std::vector<std::string> Codes() const {
    std::vector<std::string> codes;
    for (auto const& warning : report.at("warnings")) codes.push_back(warning.at("code"));
    return codes;
  }

  CZelData model;
  Json report;
};

TEST_F(CombineSixStorey, InUlsPersistent) {
  Combine("persistent");
  EXPECT_EQ(Line(5), "Permanent : Self weight 1 = A1");
  EXPECT_EQ(Line(10), "Variable : Imposed 3E = A15");
  EXPECT_EQ(Line(21), "Seismic : Acc. tors. 9y = A20");
  // Permanent: 2 actions, 1 way, 1 envelope. Two values of 10 variable actions. The roof with the
  // offices and the archive of its source: 1 way. Imposed leading: 3B with the archive, 13B, 14B,
  // beside 4 winds; 3E alone is a companion: 12 ways. Wind leading, then snow: 4 winds with each of
  // 4, or with wind and snow only in the place of the companion: 16 ways each. Two more.
  constexpr int kFamily = (2 + 1 + 1) + 2 * 10 + (1 + 3 * 4 + 4 * 4 + 4 * 4) + 1 + 1;
  static_assert(kFamily == 71);
  constexpr int kFinal = kOwn + kBasic + kFamily;  // 92
  EXPECT_EQ(model.HighestCombinationCase(), kFinal);
  EXPECT_EQ(Line(24), "Persistent 1 = C22 + C23");
  // Leading 26 (3B), 28, 30, 32 (3E), 34 (roof), 36, 38, 40, 42 (wind), 44 (snow).
  EXPECT_EQ(Line(33), "Variable : Imposed 3E (Accompanying) = (1.5 or 0)C10");  // psi0 1
  EXPECT_EQ(Line(46), "Variable 1 = C26 + C32 + C34");
  EXPECT_EQ(Line(47), "Variable 2 = C26 + C32 + C37 + C45");
  EXPECT_EQ(Line(58), "Variable 13 = C30 + C43 + C45");  // 14B, the last wind
  EXPECT_EQ(Line(59), "Variable 14 = C27 + C33 + C36 + C45");
  EXPECT_EQ(Line(71), "Variable 26 = C36 + C45");  // the companion's place
  EXPECT_EQ(Line(90), "Variable 45 = C43 + C44");
  EXPECT_EQ(Line(91), "Variable = C46 to C90");
  EXPECT_EQ(Line(kFinal), "ULS Persistent = C25 + C91");

  Factors const permanent{1, 1.35};
  Factors const offices{0, 1.05, 1.5};  // 0.7 x 1.5
  Factors const wind{0, 0.9, 1.5};      // 0.6 x 1.5
  EXPECT_EQ(FactorsOf(0), (std::map<int, Factors>{{5, permanent},
                                                  {6, permanent},
                                                  {7, offices},
                                                  {8, offices},
                                                  {9, offices},
                                                  {10, {0, 1.5}},  // 1.0 x 1.5 too
                                                  {11, {0, 1.5}},  // the roof leads only
                                                  {12, wind},
                                                  {13, wind},
                                                  {14, wind},
                                                  {15, wind},
                                                  {16, {0, 0.75, 1.5}}}));  // 0.5 x 1.5
  // Each action has two factors. With the roof: 2^3. Imposed leading beside 4 winds and snow: 3B
  // with the archive 2^4, 13B and 14B 2^3 each; wind leading the same and 2^2 without; snow too.
  constexpr int kLeading = 4 * (16 + 8 + 8);
  constexpr int kPermutations = 2 * 2 * (8 + kLeading + 2 * (kLeading + 4 * 4));
  EXPECT_EQ(model.CombinationCase(kFinal).Description().NumPermutation(model), kPermutations);
  EXPECT_EQ(Codes(), (std::vector<std::string>{"no-basic-combination", "taken-one-at-a-time"}));
}

TEST_F(CombineSixStorey, InUlsSeismic) {
  Combine("seismic");
  // Permanent as before: 4. One value of 10 actions. 5 imposed, the archive with 3B and with the
  // roof, by 4 winds: 20 ways, 1 envelope. Torsion and response in two directions, 2 of squares,
  // the final one.
  constexpr int kFamily = 4 + 10 + 5 * 4 + 1 + (2 + 2 + 2) + 1;
  static_assert(kFamily == 42);
  constexpr int kFinal = kOwn + kBasic + kFamily;  // 63
  EXPECT_EQ(model.HighestCombinationCase(), kFinal);
  // 26 (3B), 27, 28, 29 (3E), 30 (roof), 31 to 34 (wind), 35 (snow).
  EXPECT_EQ(Line(36), "Variable 1 = C26 + C29 + C31 + C35");
  EXPECT_EQ(Line(48), "Variable 13 = C31 + C35");  // the archive's own place
  EXPECT_EQ(Line(55), "Variable 20 = C30 + C29 + C34 + C35");
  EXPECT_EQ(Line(57), "| Seismic : Acc. tors. 9x | = C20abs");
  EXPECT_EQ(Line(58), "| Seismic : Acc. tors. 9y | = C21abs");
  EXPECT_EQ(Line(59), "Seismic 9x = C18 + C57");
  EXPECT_EQ(Line(60), "Seismic 9y = C19 + C58");
  EXPECT_EQ(Line(61), "Seismic SRSS = SRSS(C59,C60)");
  EXPECT_EQ(Line(kFinal), "ULS Seismic = C25 + C56 + C62");
  auto const factors = FactorsOf(0);
  EXPECT_EQ(factors.at(7), (Factors{0, 0.3}));   // psi2 of offices
  EXPECT_EQ(factors.at(10), (Factors{0, 0.8}));  // of the archive
  EXPECT_EQ(factors.at(11), (Factors{0}));       // of roofs
  EXPECT_EQ(factors.at(16), (Factors{0}));       // of snow
}

}  // namespace
}  // namespace Tarvex::CombineSixStoreyTest
