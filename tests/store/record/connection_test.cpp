#include "store/record/connection.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/record_fields.h"

namespace Tarvex::ConnectionTest {
namespace {

CElemConnect Pinned() { return CElemConnect(Vbool6(false, false, false, false, true, true)); }

TEST(ElemConnect, IsWithoutReleaseAndStiffnessAtFirst) {
  CElemConnect const connect;
  EXPECT_TRUE(connect.IsNone());
  EXPECT_TRUE(connect.Release().IsNone());
  for (auto d = Direction::X; d - Direction::X < 6; ++d) EXPECT_EQ(connect.Stiffness(d), 0);
}

TEST(ElemConnect, KeepsAStiffnessADirection) {
  CElemConnect connect;
  for (auto d = Direction::X; d - Direction::X < 6; ++d) {
    connect.SetStiffness(d, 10.0 * static_cast<int>(d));
    EXPECT_FALSE(connect.IsNone());
  }
  EXPECT_EQ(connect.Stiffness(Direction::X), 10);
  EXPECT_EQ(connect.Stiffness(Direction::Y), 20);
  EXPECT_EQ(connect.Stiffness(Direction::Z), 30);
  EXPECT_EQ(connect.Stiffness(Direction::XX), 40);
  EXPECT_EQ(connect.Stiffness(Direction::YY), 50);
  EXPECT_EQ(connect.Stiffness(Direction::ZZ), 60);
}

TEST(ElemConnect, TakesAStiffnessOfMinusZeroForNone) {
  CElemConnect connect;
  connect.SetStiffness(Direction::Y, -0.0);
  EXPECT_TRUE(connect.IsNone());
  Data::ConnectList list;
  list.Set(1, connect);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(ElemConnect, ComparesEveryField) {
  Testing::ExpectFields<CElemConnect>(
      {{"release", [](CElemConnect& c) { c.SetRelease(Vbool6(L"pin")); }},
       {"stiffness", [](CElemConnect& c) { c.SetStiffness(Direction::ZZ, 1); }}});
}

namespace InList {

using Data::ConnectList;

TEST(ConnectList, HoldsNothingAtFirst) {
  ConnectList const list;
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.Size(), 0);
  for (int const place : {-1, 0, 7}) EXPECT_TRUE(list.At(place).IsNone());
}

TEST(ConnectList, KeepsAConnectionAPosition) {
  ConnectList list;
  list.Set(2, Pinned());
  EXPECT_FALSE(list.IsEmpty());
  EXPECT_EQ(list.Size(), 3);
  EXPECT_EQ(list.At(2), Pinned());
  for (int const place : {-1, 0, 1, 3}) EXPECT_TRUE(list.At(place).IsNone());
}

TEST(ConnectList, ForgetsPositionsThatBecomeFree) {
  ConnectList list;
  list.Set(0, Pinned());
  list.Set(3, Pinned());
  list.Set(3, CElemConnect());
  EXPECT_EQ(list.Size(), 1);
  list.Set(0, CElemConnect());
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list, ConnectList());
  list.Set(9, CElemConnect());
  EXPECT_TRUE(list.IsEmpty());
}

TEST(ConnectList, TruncatesFromAPositionOn) {
  ConnectList list;
  list.Set(0, Pinned());
  list.Set(2, Pinned());
  list.Truncate(3);
  EXPECT_EQ(list.Size(), 3);
  list.Truncate(2);
  EXPECT_EQ(list.Size(), 1);
  EXPECT_EQ(list.At(0), Pinned());
  list.Truncate(-1);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(ConnectList, RefusesAPositionBelowZero) {
  ConnectList list;
  EXPECT_EQ(Testing::OutOfRangeText([&] { list.Set(-1, Pinned()); }), "connection at position -1");
  EXPECT_TRUE(list.IsEmpty());
}

TEST(ConnectList, LeavesCopiesAsTheyAre) {
  ConnectList list;
  list.Set(1, Pinned());
  auto const copy = list;
  list.Set(1, CElemConnect(Vbool6(L"fix")));
  EXPECT_EQ(copy.At(1), Pinned());
  list.Truncate(0);
  EXPECT_EQ(copy.At(1), Pinned());
}

TEST(ConnectList, TakesAConnectionOfItsOwn) {
  ConnectList list;
  list.Set(1, Pinned());
  list.Set(5, list.At(1));
  list.Set(0, list.At(5));
  EXPECT_EQ(list.At(0), Pinned());
  EXPECT_EQ(list.At(1), Pinned());
  EXPECT_EQ(list.At(5), Pinned());
}

TEST(ConnectList, ComparesByContent) {
  ConnectList a;
  ConnectList b;
  a.Set(1, Pinned());
  EXPECT_FALSE(a == b);
  EXPECT_FALSE(b == a);
  b.Set(1, Pinned());
  EXPECT_EQ(a, b);
  b.Set(0, Pinned());
  EXPECT_FALSE(a == b);
}

}  // namespace InList
}  // namespace
}  // namespace Tarvex::ConnectionTest
