#include "workbench/cli/colour.h"

#include <cstdlib>
#include <map>

#include "tests/workbench/run.h"

namespace Tarvex::ColourTest {
namespace {

using Workbench::ColourAskedFor;
using Workbench::ColourMode;
using Workbench::IsColoured;

/// Sets the variables that colours look at, and gives them back what they were.
class Colour : public Testing::RunTest {
 protected:
  Colour() {
    for (auto const* name : {"NO_COLOR", "CLICOLOR_FORCE", "TERM"}) {
      auto const* const text = std::getenv(name);
      if (text != nullptr) m_before[name] = text;
      ::unsetenv(name);
    }
  }
  ~Colour() override {
    for (auto const* name : {"NO_COLOR", "CLICOLOR_FORCE", "TERM"}) {
      auto const found = m_before.find(name);
      if (found == m_before.end())
        ::unsetenv(name);
      else
        ::setenv(name, found->second.c_str(), 1);
    }
  }

  /// Whether messages are coloured with one variable set.
  static bool With(char const* name, char const* text, bool isTerminal) {
    ::setenv(name, text, 1);
    bool const coloured = IsColoured(ColourMode::Auto, isTerminal);
    ::unsetenv(name);
    return coloured;
  }

 private:
  std::map<std::string, std::string> m_before;
};

TEST_F(Colour, OfItsOwnAccordIsOnATerminalAlone) {
  EXPECT_TRUE(IsColoured(ColourMode::Auto, true));
  EXPECT_FALSE(IsColoured(ColourMode::Auto, false));
  EXPECT_TRUE(IsColoured(ColourMode::Always, false));
  EXPECT_FALSE(IsColoured(ColourMode::Never, true));
}

TEST_F(Colour, FollowsTheEnvironment) {
  EXPECT_FALSE(With("NO_COLOR", "1", true));
  EXPECT_FALSE(With("NO_COLOR", "0", true));  // any text
  EXPECT_TRUE(With("NO_COLOR", "", true));
  EXPECT_FALSE(With("TERM", "dumb", true));
  EXPECT_TRUE(With("TERM", "xterm", true));
  EXPECT_TRUE(With("CLICOLOR_FORCE", "1", false));
  EXPECT_FALSE(With("CLICOLOR_FORCE", "0", false));
  ::setenv("CLICOLOR_FORCE", "1", 1);
  EXPECT_FALSE(With("NO_COLOR", "1", false));
}

TEST_F(Colour, AskedForIsStrongerThanTheEnvironment) {
  ::setenv("NO_COLOR", "1", 1);
  EXPECT_TRUE(IsColoured(ColourMode::Always, false));
  ::setenv("CLICOLOR_FORCE", "1", 1);
  EXPECT_FALSE(IsColoured(ColourMode::Never, true));
}

TEST_F(Colour, IsFoundAmongWordsThatAreWrong) {
  EXPECT_EQ(ColourAskedFor({"info", "--wide", "--color", "always"}), ColourMode::Always);
  EXPECT_EQ(ColourAskedFor({"info", "--color=never"}), ColourMode::Never);
  EXPECT_EQ(ColourAskedFor({"info", "--color"}), ColourMode::Auto);
  EXPECT_EQ(ColourAskedFor({"info", "--color", "green"}), ColourMode::Auto);
  EXPECT_EQ(ColourAskedFor({"info", "--", "--color=always"}), ColourMode::Auto);
}

TEST_F(Colour, IsThatOfFaultsAndOfTheWordWarning) {
  auto const fault = Testing::RunTarvex({"info", "--color=always"});
  EXPECT_EQ(fault.err, "\033[31mtarvex: the model file is missing\033[0m\n");
  auto const model = Write("in.json", Testing::SmallModel());
  auto const warned = Testing::RunTarvex(
      {"flip", model, "--list", "PB9", "--kind", "member", "--dry-run", "--color", "always"});
  EXPECT_EQ(warned.err, "\033[33mwarning:\033[0m 'PB9' selects no member\n");
  auto const plain =
      Testing::RunTarvex({"flip", model, "--list", "PB9", "--kind", "member", "--dry-run"});
  EXPECT_EQ(plain.err, "warning: 'PB9' selects no member\n");
}

TEST_F(Colour, RunsColourMessagesOnATerminal) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(Workbench::RunProgram({"info"}, out, err, true), 2);
  EXPECT_EQ(err.str(), "\033[31mtarvex: the model file is missing\033[0m\n");
}

TEST_F(Colour, TakesItsThreeWordsAlone) {
  auto const model = Write("in.json", Testing::SmallModel());
  for (std::string const word : {"green", "1", ""}) {
    auto const result = Testing::RunTarvex({"info", model, "--color", word});
    EXPECT_EQ(result.exit, 2);
    EXPECT_EQ(result.err, "tarvex: --color: '" + word + "' is not one of auto|always|never\n");
  }
  for (auto const* word : {"auto", "always", "never"})
    EXPECT_EQ(Testing::RunTarvex({"info", model, "--color", word}).exit, 0) << word;
}

}  // namespace
}  // namespace Tarvex::ColourTest
