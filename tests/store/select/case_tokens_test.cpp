#include "store/select/case_tokens.h"

#include <gtest/gtest.h>

#include <climits>

#include "store/select/numbers.h"

namespace Tarvex::Data::CaseTokensTest {
namespace {

struct Row {
  CaseOp kind;
  wchar_t letter;
};
constexpr Row kRows[] = {{CaseOp::Load, L'L'},
                         {CaseOp::Analysis, L'A'},
                         {CaseOp::Combination, L'C'},
                         {CaseOp::Task, L'T'}};

TEST(CaseTokens, GoThereAndBackAboveTheRecordNumbers) {
  for (auto const& row : kRows)
    for (int const number : {0, 1, 7, kHighestNumber}) {
      int const token = CaseToken({row.kind, number});
      EXPECT_GT(token, kHighestNumber);
      EXPECT_EQ(CaseOfToken(token), SCaseRef(row.kind, number));
    }
}

TEST(CaseTokens, FollowTheNumbersOfAKind) {
  for (auto const& row : kRows) EXPECT_EQ(CaseToken({row.kind, 12}) - CaseToken({row.kind, 5}), 7);
}

TEST(CaseTokens, DropThePermutation) {
  EXPECT_EQ(CaseToken({CaseOp::Combination, 3, 9}), CaseToken({CaseOp::Combination, 3}));
}

TEST(CaseTokens, AreNoneForWhatIsNoCase) {
  EXPECT_EQ(CaseToken({CaseOp::None, 1}), 0);
  EXPECT_EQ(CaseToken({static_cast<CaseOp>(3), 1}), 0);
  EXPECT_EQ(CaseToken({CaseOp::Load, -1}), 0);
  EXPECT_EQ(CaseToken({CaseOp::Load, kHighestNumber + 1}), 0);
  for (int const token : {-5, 0, 1, kHighestNumber, INT_MAX, INT_MIN})
    EXPECT_EQ(CaseOfToken(token), SCaseRef()) << token;
  EXPECT_EQ(CaseOfToken(CaseToken({CaseOp::Load, kHighestNumber}) + 1), SCaseRef());
}

TEST(CaseTokens, HaveLetters) {
  for (auto const& row : kRows) {
    EXPECT_EQ(CaseOfLetter(row.letter), row.kind);
    EXPECT_EQ(LetterOfCase(row.kind), row.letter);
  }
  EXPECT_EQ(CaseOfLetter(L'M'), CaseOp::None);
  EXPECT_EQ(CaseOfLetter(L'l'), CaseOp::None);
  EXPECT_EQ(LetterOfCase(CaseOp::None), 0);
}

TEST(CaseTokens, TellRecordNumbers) {
  EXPECT_TRUE(IsNumberToken(0));
  EXPECT_TRUE(IsNumberToken(kHighestNumber));
  EXPECT_FALSE(IsNumberToken(-1));
  EXPECT_FALSE(IsNumberToken(kHighestNumber + 1));
}

}  // namespace
}  // namespace Tarvex::Data::CaseTokensTest
