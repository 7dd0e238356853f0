#include "store/select/reference.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/print.h"

namespace Tarvex::ReferenceTest {
namespace {

TEST(SelType, HasADisplayWord) {
  EXPECT_EQ(SelTypeLabel(SelNone), L"");
  EXPECT_EQ(SelTypeLabel(SelNode), L"node");
  EXPECT_EQ(SelTypeLabel(SelElement), L"element");
  EXPECT_EQ(SelTypeLabel(SelMember), L"member");
  EXPECT_EQ(SelTypeLabel(SelCase), L"case");
  EXPECT_EQ(SelTypeLabel(SelOther), L"");
  EXPECT_EQ(SelTypeLabel(static_cast<SelType>(6)), L"");
  EXPECT_EQ(SelTypeLabel(static_cast<SelType>(-1)), L"");
}

TEST(SelType, HasATableForNodesElementsAndMembersOnly) {
  EXPECT_EQ(static_cast<int>(EntModId(SelNode)), 80);
  EXPECT_EQ(static_cast<int>(EntModId(SelElement)), 110);
  EXPECT_EQ(static_cast<int>(EntModId(SelMember)), 100);
  for (int const kind : {0, 4, 5, 6, -1})
    EXPECT_EQ(EntModId(static_cast<SelType>(kind)), CModule::None) << kind;
}

TEST(SelType, HasFixedNumbers) {
  EXPECT_EQ(static_cast<int>(SelNone), 0);
  EXPECT_EQ(static_cast<int>(SelNode), 1);
  EXPECT_EQ(static_cast<int>(SelElement), 2);
  EXPECT_EQ(static_cast<int>(SelMember), 3);
  EXPECT_EQ(static_cast<int>(SelCase), 4);
  EXPECT_EQ(static_cast<int>(SelOther), 5);
}

TEST(EntRef, IsAKindAndANumber) {
  SEntRef const ref(SelMember, 7);
  EXPECT_EQ(ref.Type(), SelMember);
  EXPECT_EQ(ref.Number(), 7);
  EXPECT_EQ(ref, SEntRef(SelMember, 7));
  EXPECT_NE(ref, SEntRef(SelElement, 7));
  EXPECT_NE(ref, SEntRef(SelMember, 8));
  EXPECT_EQ(SEntRef(), SEntRef(SelNone, 0));
}

TEST(CaseRef, IsAKindANumberAndAPermutation) {
  SCaseRef const ref(CaseOp::Combination, 3, 2);
  EXPECT_EQ(ref.CaseType(), CaseOp::Combination);
  EXPECT_EQ(ref.Case(), 3);
  EXPECT_EQ(ref.Permutation(), 2);
  EXPECT_EQ(SCaseRef(CaseOp::Load, 5).Permutation(), 0);
  EXPECT_EQ(SCaseRef().CaseType(), CaseOp::None);
}

TEST(CaseRef, HasAStrictOrderByEachOfItsParts) {
  SCaseRef const refs[] = {{CaseOp::Load, 1, 0},
                           {CaseOp::Load, 1, 1},
                           {CaseOp::Load, 2, 0},
                           {CaseOp::Analysis, 1, 0},
                           {CaseOp::Task, 1, 0}};
  for (auto const& a : refs) {
    EXPECT_FALSE(a < a);
    for (auto const& b : refs) EXPECT_EQ(a == b, !(a < b) && !(b < a));
  }
  EXPECT_EQ(std::set<SCaseRef>(std::begin(refs), std::end(refs)).size(), 5u);
}

TEST(CaseOp, HasBitValues) {
  EXPECT_EQ(static_cast<int>(CaseOp::None), 0);
  EXPECT_EQ(static_cast<int>(CaseOp::Load), 1);
  EXPECT_EQ(static_cast<int>(CaseOp::Analysis), 2);
  EXPECT_EQ(static_cast<int>(CaseOp::Combination), 4);
  EXPECT_EQ(static_cast<int>(CaseOp::Task), 64);
}

}  // namespace
}  // namespace Tarvex::ReferenceTest
