#include "store/select/list_machine.h"

#include <gtest/gtest.h>

#include <string>

namespace Tarvex::Data::ListMachineTest {
namespace {

/// Writes down what is done to it.
struct Trace {
  std::string text = "0";

  void Unite(Trace other) { Join(" + ", other); }
  void Intersect(Trace other) { Join(" * ", other); }
  void Subtract(Trace other) { Join(" - ", other); }
  void Join(char const* sign, Trace const& other) {
    text = std::string("[").append(text).append(sign).append(other.text).append("]");
  }
};

/// What a machine does with a list: a letter is an item, & | ! ( ) are its operators.
std::string Done(std::string const& list) {
  ListMachine<Trace> machine;
  for (char const c : list) {
    if (c == '&') machine.And();
    if (c == '|') machine.Or();
    if (c == '!') machine.Not();
    if (c == '(') machine.Open();
    if (c == ')') machine.Close();
    if (c >= 'a' && c <= 'z') machine.Item({std::string(1, c)});
  }
  return machine.Finish().text;
}

TEST(ListMachine, UnitesItems) {
  EXPECT_EQ(Done(""), "0");
  EXPECT_EQ(Done("ab"), "[[0 + a] + b]");
  EXPECT_EQ(Done("a|b"), "[[0 + a] + b]");
}

TEST(ListMachine, JoinsItemsByAndBeforeItUnitesThem) {
  EXPECT_EQ(Done("ab&c&de"), "[[[0 + a] + [[b * c] * d]] + e]");
}

TEST(ListMachine, TakesOneItemAwayFromAllBeforeIt) {
  EXPECT_EQ(Done("ab!cd"), "[[[[0 + a] + b] - c] + d]");
  EXPECT_EQ(Done("a&b!c"), "[[0 + [a * b]] - c]");
}

TEST(ListMachine, TakesAParenthesisForOneItem) {
  EXPECT_EQ(Done("a!(b!c)d"), "[[[0 + a] - [[0 + b] - c]] + d]");
  EXPECT_EQ(Done("a&(bc)"), "[0 + [a * [[0 + b] + c]]]");
}

TEST(ListMachine, TakesWhatAnOperatorLacksForNothing) {
  EXPECT_EQ(Done("a&"), "0");
  EXPECT_EQ(Done("&a"), "[0 + [0 * a]]");
  EXPECT_EQ(Done("a&|b"), "[0 + b]");
  EXPECT_EQ(Done("a&&b"), "[0 + [0 * b]]");
  EXPECT_EQ(Done("a!|b"), "[[0 + a] + b]");
  EXPECT_EQ(Done("a!!b"), "[[0 + a] - b]");
  EXPECT_EQ(Done("a&!b"), "[0 - b]");
  EXPECT_EQ(Done("a!b&c"), "[[[0 + a] - b] + [0 * c]]");
  EXPECT_EQ(Done("a()"), "[[0 + a] + 0]");
}

TEST(ListMachine, PutsUpWithParenthesesThatHaveNoPartner) {
  EXPECT_EQ(Done("a)b"), "[[0 + a] + b]");
  EXPECT_EQ(Done("a((b"), "[[0 + a] + [0 + [0 + b]]]");
}

}  // namespace
}  // namespace Tarvex::Data::ListMachineTest
