#include "store/select/case_expression.h"

#include <gtest/gtest.h>

#include <string>

namespace Tarvex::Data::CaseExpressionTest {
namespace {

using Kind = CasePart::Kind;

std::string Letter(CaseOp kind) {
  switch (kind) {
    case CaseOp::Load:
      return "L";
    case CaseOp::Analysis:
      return "A";
    case CaseOp::Combination:
      return "C";
    default:
      return "T";
  }
}

std::string Number(double value) {
  auto text = std::to_string(value);
  text.erase(text.find_last_not_of('0') + 1);
  return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
}

/// A tree as a text of another form: each kind of part by its name.
std::string Tree(CaseExpression const& expression, int at) {
  auto const& part = expression.parts[static_cast<std::size_t>(at)];
  std::string inner;
  for (int const p : part.parts) inner += (inner.empty() ? "" : " ") + Tree(expression, p);
  switch (part.kind) {
    case Kind::Nothing:
      return "0";
    case Kind::Case:
      return Letter(part.first.type) + std::to_string(part.first.num);
    case Kind::Range:
      return Letter(part.first.type) + std::to_string(part.first.num) + ".." +
             std::to_string(part.last);
    case Kind::Sum:
      return "sum(" + inner + ")";
    case Kind::Either:
      return "or(" + inner + ")";
    case Kind::NonLinear:
      return "non(" + inner + ")";
    case Kind::Scaled:
      break;
  }
  std::string factors;
  for (double const factor : part.factors) factors += (factors.empty() ? "" : "|") + Number(factor);
  return factors + "*" + inner;
}

std::string Read(CString const& text) {
  CaseFault fault;
  auto const expression = ReadCases(text, &fault);
  if (!expression) return "fault at " + std::to_string(fault.position);
  auto tree = Tree(*expression, expression->whole);
  if (expression->pDelta) tree += " P " + Tree(*expression, *expression->pDelta);
  return tree;
}

struct Row {
  wchar_t const* text;
  char const* tree;
};

TEST(ReadCases, TakesEachForm) {
  for (auto const& [text, tree] : {
           Row{L"", "0"},
           Row{L"   ", "0"},
           Row{L"none", "0"},
           Row{L"L1", "L1"},
           Row{L"A12", "A12"},
           Row{L"C3", "C3"},
           Row{L"T4", "T4"},
           Row{L"M2", "0"},
           Row{L"1.35A1", "1.35*A1"},
           Row{L"-A1", "-1*A1"},
           Row{L"+A1", "A1"},
           Row{L"0.3 C3", "0.3*C3"},
           Row{L"1e-3C3", "0.001*C3"},
           Row{L"A1 + A4", "sum(A1 A4)"},
           Row{L"1.2L1+1.5L2", "sum(1.2*L1 1.5*L2)"},
           Row{L"A1 - 2A2", "sum(A1 -2*A2)"},
           Row{L"C5+ 0.3C6", "sum(C5 0.3*C6)"},
           Row{L"C5+ 0.3C6+ 0.3C7", "sum(C5 0.3*C6 0.3*C7)"},
           Row{L"A1 or A2", "or(A1 A2)"},
           Row{L"A1 + A2 or A3", "or(sum(A1 A2) A3)"},
           Row{L"(1.35 or 1)C7", "1.35|1*C7"},
           Row{L"(1 or -1)C7", "1|-1*C7"},
           Row{L"(1 or -1)C7 or(1 or -1)C8", "or(1|-1*C7 1|-1*C8)"},
           Row{L"-(1 or 2)C7", "-1|-2*C7"},
           Row{L"C5 to C9", "C5..9"},
           Row{L"0.5C5 to C9", "0.5*C5..9"},
           Row{L"C5abs", "non(C5)"},
           Row{L"2C5abs", "2*non(C5)"},
           Row{L"SRSS(C1,C2)", "non(C1 C2)"},
           Row{L"SRSS(C1)", "non(C1)"},
           Row{L"2SRSS(C1, 0.3C2 + C3)", "2*non(C1 sum(0.3*C2 C3))"},
           Row{L"(A1 + A2)", "sum(A1 A2)"},
           Row{L"2(A1 or A2) + A3", "sum(2*or(A1 A2) A3)"},
           Row{L"(1.35 or 1)(A1 + A2)", "1.35|1*sum(A1 A2)"},
           Row{L"((A1))", "A1"},
           Row{L"(2A1)", "2*A1"},
           Row{L"(A1 + A2)abs", "non(sum(A1 A2))"},
           Row{L"L1 : P(L1)", "L1 P L1"},
           Row{L"L3 : P(A12)", "L3 P A12"},
           Row{L"M1 : P(C2)", "0 P C2"},
           Row{L"M1 : P(none)", "0 P 0"},
           Row{L"L1 : P(1.2L1 + 0.3L2)", "L1 P sum(1.2*L1 0.3*L2)"},
           Row{L"L1: P((L1 + L2))", "L1 P sum(L1 L2)"},
           Row{L"L<deleted case>", "0"},
           Row{L"1.2C<deleted case> + C2", "sum(1.2*0 C2)"},
           Row{L"A100000000", "A100000000"},
       })
    EXPECT_EQ(Read(text), tree) << CString(text).ToUtf8();
}

TEST(ReadCases, TellsTheFirstPlaceThatIsWrong) {
  struct Fault {
    wchar_t const* text;
    int position;
  };
  for (auto const& [text, position] : {
           Fault{L"5", 1},
           Fault{L"A", 1},
           Fault{L"A0", 1},
           Fault{L"A100000001", 1},
           Fault{L"B1", 0},
           Fault{L"A1 A2", 3},
           Fault{L"A1 +", 4},
           Fault{L"A1 or", 5},
           Fault{L"A1,A2", 2},
           Fault{L"(A1", 3},
           Fault{L"A1)", 2},
           Fault{L"SRSS(C1", 7},
           Fault{L"SRSS()", 5},
           Fault{L"SRSS(C1,)", 8},
           Fault{L"C5 to A9", 6},
           Fault{L"C5 to C4", 8},
           Fault{L"C5 to", 3},
           Fault{L"L1 : P(L1", 9},
           Fault{L"L1 : P(L1) L2", 11},
           Fault{L"L1 : Q", 5},
           Fault{L"L1 : P()", 7},
           Fault{L"none A1", 0},
           Fault{L"a1", 0},
           Fault{L"(1 or)C2", 3},
           Fault{L"--A1", 1},
           Fault{L"1.2.3A1", 3},
           Fault{L"C1absabs", 5},
       })
    EXPECT_EQ(Read(text), "fault at " + std::to_string(position)) << CString(text).ToUtf8();
}

TEST(ReadCases, GivesAReasonWithEachFault) {
  for (auto const* text : {L"A", L"A0", L"B1", L"A1 A2", L"(A1", L"C5 to A9", L"C5 to C4",
                           L"L1 : Q", L"L1 : P(L1) L2"}) {
    CaseFault fault;
    EXPECT_FALSE(ReadCases(text, &fault));
    EXPECT_FALSE(fault.reason.IsEmpty());
    EXPECT_FALSE(ReadCases(text));
  }
}

TEST(ReadCases, TakesAHundredThousandTermsAndParentheses) {
  constexpr int kMany = 100000;
  std::wstring sum = L"A1";
  for (int i = 1; i < kMany; ++i) sum += L" + A1";
  auto const wide = ReadCases(CString(sum));
  ASSERT_TRUE(wide);
  EXPECT_EQ(wide->parts.back().parts.size(), static_cast<std::size_t>(kMany));
  auto const deep =
      ReadCases(CString(std::wstring(kMany, L'(') + L"A1" + std::wstring(kMany, L')')));
  ASSERT_TRUE(deep);
  EXPECT_EQ(deep->parts[static_cast<std::size_t>(deep->whole)].first.num, 1);
}

}  // namespace
}  // namespace Tarvex::Data::CaseExpressionTest
