// Formatting of text: what printf would print, in every locale.
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>

#include "store/text/cstring.h"

namespace Tarvex::FormatTest {
namespace {

template <class... Args>
std::string Formatted(wchar_t const* format, Args const&... args) {
  CString text;
  text.Format(format, args...);
  return text.ToUtf8();
}

TEST(Format, PrintsWholeNumbers) {
  EXPECT_EQ(Formatted(L"%i and %d", 7, -3), "7 and -3");
  EXPECT_EQ(Formatted(L"%i", std::numeric_limits<int>::min()), "-2147483648");
  EXPECT_EQ(Formatted(L"%u", 4294967295u), "4294967295");
  EXPECT_EQ(Formatted(L"%d", 9223372036854775807LL), "9223372036854775807");
  EXPECT_EQ(Formatted(L"%u", 18446744073709551615ULL), "18446744073709551615");
  EXPECT_EQ(Formatted(L"%d", static_cast<short>(-5)), "-5");
  EXPECT_EQ(Formatted(L"%d", true), "1");
  enum class Kind : int { Fourth = 4 };
  EXPECT_EQ(Formatted(L"%i", Kind::Fourth), "4");
}

TEST(Format, TakesWidthAndFlagsOfWholeNumbers) {
  EXPECT_EQ(Formatted(L"[%5i]", 42), "[   42]");
  EXPECT_EQ(Formatted(L"[%-5i]", 42), "[42   ]");
  EXPECT_EQ(Formatted(L"[%05i]", 42), "[00042]");
  EXPECT_EQ(Formatted(L"[%+i]", 42), "[+42]");
}

TEST(Format, PrintsRealNumbers) {
  EXPECT_EQ(Formatted(L"%g", 0.5), "0.5");
  EXPECT_EQ(Formatted(L"%g", 1e20), "1e+20");
  EXPECT_EQ(Formatted(L"%g", 1234567.0), "1.23457e+06");
  EXPECT_EQ(Formatted(L"%f", 2.0), "2.000000");
  EXPECT_EQ(Formatted(L"%.2f", 3.14159), "3.14");
  EXPECT_EQ(Formatted(L"[%8.3f]", 3.14159), "[   3.142]");
  EXPECT_EQ(Formatted(L"%.3g", 1234.0), "1.23e+03");
  EXPECT_EQ(Formatted(L"%g", 1.5f), "1.5");
}

TEST(Format, PrintsTextsOfEveryKind) {
  EXPECT_EQ(Formatted(L"<%s>", CString(L"\u00FC")), "<\xC3\xBC>");
  EXPECT_EQ(Formatted(L"<%s>", L"wide"), "<wide>");
  EXPECT_EQ(Formatted(L"<%s>", std::wstring(L"standard")), "<standard>");
  EXPECT_EQ(Formatted(L"[%6s]", L"ab"), "[    ab]");
  EXPECT_EQ(Formatted(L"[%-6s]", L"ab"), "[ab    ]");
  EXPECT_EQ(Formatted(L"[%.1s]", L"ab"), "[a]");
  EXPECT_EQ(Formatted(L"%s", L"%d"), "%d");
}

TEST(Format, PrintsCharacters) {
  EXPECT_EQ(Formatted(L"%c%c", L'\u00FC', 'x'), "\xC3\xBCx");
  EXPECT_EQ(Formatted(L"[%3c]", L'x'), "[  x]");
}

TEST(Format, PrintsThePerCentSignAndPlainText) {
  EXPECT_EQ(Formatted(L"100%%"), "100%");
  EXPECT_EQ(Formatted(L""), "");
}

TEST(Format, RepeatsWhatItWasAppliedTo) {
  CString text(L"5");
  text.Format(L"%s%s", text, text);
  EXPECT_EQ(text, L"55");
}

TEST(Format, RefusesArgumentsThatDoNotFit) {
  EXPECT_THROW(Formatted(L"%i", L"text"), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%i", 1.5), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%u", 1.5), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%s", 5), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%s", 1.5), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%g", L"text"), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%f", 5), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%g", 5), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%c", L"text"), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%c", 1.5), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%s", L'c'), std::invalid_argument);
}

TEST(Format, RefusesMissingArgumentsAndBrokenFormats) {
  EXPECT_THROW(Formatted(L"%i"), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%i %i", 1), std::invalid_argument);
  EXPECT_THROW(Formatted(L"100%"), std::invalid_argument);
  EXPECT_THROW(Formatted(L"%y", 1), std::invalid_argument);
}

TEST(Format, LeavesTheTextAsItIsWhenItRefuses) {
  CString text(L"before");
  EXPECT_THROW(text.Format(L"%i", L"x"), std::invalid_argument);
  EXPECT_EQ(text, L"before");
}

/// Writes a comma for the point and dots between thousands.
class Commas : public std::numpunct<wchar_t> {
  wchar_t do_decimal_point() const override { return L','; }
  wchar_t do_thousands_sep() const override { return L'.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Format, KnowsNoGlobalLocale) {
  auto const before = std::locale::global(std::locale(std::locale::classic(), new Commas));
  auto const text = Formatted(L"%g %.1f %i", 0.5, 1234567.5, 1234567);
  std::locale::global(before);
  EXPECT_EQ(text, "0.5 1234567.5 1234567");
}

TEST(Format, KnowsNoLocaleOfTheCLibrary) {
  std::string const before = std::setlocale(LC_ALL, nullptr);
  char const* found = nullptr;
  for (char const* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8", "de_DE"})
    if (found == nullptr) found = std::setlocale(LC_ALL, name);
  if (found == nullptr) GTEST_SKIP() << "no locale with a decimal comma is installed";
  std::string const comma = std::localeconv()->decimal_point;
  auto const text = Formatted(L"%g %.1f", 0.5, 1234567.5);
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_EQ(comma, ",");
  EXPECT_EQ(text, "0.5 1234567.5");
}

}  // namespace
}  // namespace Tarvex::FormatTest
