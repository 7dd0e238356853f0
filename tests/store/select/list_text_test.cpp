#include "store/select/list_text.h"

#include <gtest/gtest.h>

#include "tests/support/print.h"

namespace Tarvex::Data::ListTextTest {
namespace {

ListText Of(std::wstring_view text) {
  ListText list;
  EXPECT_TRUE(list.Set(text, SelElement));
  return list;
}

TEST(ListText, HoldsTheWordsInTheFormThatTheyAreKeptIn) {
  EXPECT_EQ(WriteListTokens(Of(L"all not 1 to 3").Tokens()), L"all not (1 to 3)");
  ListText list;
  EXPECT_TRUE(list.Set({{kAll, kNot, 1, kTo, 3}, {}}, SelElement));
  EXPECT_EQ(list, Of(L"all not (1 to 3)"));
  EXPECT_TRUE(ListText().Tokens().words.empty());
}

TEST(ListText, StaysAsItWasWhenItRefuses) {
  auto list = Of(L"1 2");
  auto const words = list.Words();
  ListFault fault;
  EXPECT_FALSE(list.Set(L"3 to", SelElement, &fault));
  EXPECT_EQ(fault.position, 2);
  EXPECT_FALSE(list.Set({{3, kTo}, {}}, SelElement));
  EXPECT_FALSE(list.Set(L"L3", SelElement));
  EXPECT_FALSE(list.Set(ListTokens{{3}, {}}, SelCase));
  EXPECT_EQ(list.Words(), words);
  EXPECT_TRUE(list.Set(L"L3", std::nullopt));
}

TEST(ListText, SharesItsWordsWithCopiesUntilEitherChanges) {
  auto const list = Of(L"1 2");
  auto copy = list;
  EXPECT_EQ(copy.Words(), list.Words());
  auto tokens = copy.Take();
  EXPECT_EQ(tokens.words, (std::vector{1, 2}));
  EXPECT_EQ(copy.Words(), nullptr);
  tokens.words.push_back(3);
  copy.Put(std::move(tokens));
  EXPECT_EQ(list.Tokens().words, (std::vector{1, 2}));
  EXPECT_EQ(copy.Tokens().words, (std::vector{1, 2, 3}));
}

TEST(ListText, NeverHasTheSharedWordsOfWhatItWas) {
  // As long as someone remembers them, even without holding them.
  auto list = Of(L"1 2");
  std::weak_ptr<ListTokens const> const was = list.Words();
  auto const* const address = list.Words().get();
  list.Put(list.Take());
  EXPECT_TRUE(was.expired());
  EXPECT_NE(list.Words().get(), address);
}

TEST(ListText, IsEqualByItsWords) {
  EXPECT_EQ(Of(L"1 2"), Of(L"1  2"));
  EXPECT_FALSE(Of(L"1 2") == Of(L"2 1"));
  EXPECT_FALSE(Of(L"\"a\"") == Of(L"\"b\""));
  EXPECT_EQ(ListText(), Of(L""));
}

}  // namespace
}  // namespace Tarvex::Data::ListTextTest
