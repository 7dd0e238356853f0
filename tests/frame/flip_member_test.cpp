// Members turned round, singly and by the align tool.
#include <gtest/gtest.h>

#include <cmath>

#include "store/model/zel_data.h"
#include "store/record/member.h"
#include "tarvex/orientation.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::FlipMemberTest {
namespace {

using Data::CMember;
using Testing::IsUnchanged;
using Testing::MemberAt;
using Testing::NodeAt;

/// Nodes 1 (0 0 0), 2 (4 0 0), 3 (0 0 3), 4 (2 1 0).
class Members : public ::testing::Test {
 protected:
  Members() {
    NodeAt(model, 0, 0, 0);
    NodeAt(model, 4, 0, 0);
    NodeAt(model, 0, 0, 3);
    NodeAt(model, 2, 1, 0);
  }
  /// Member 1 with everything at its ends that flipping exchanges.
  void Store(wchar_t const* topology) {
    CMember member(MembType::Beam, 3, 4);
    member.SetTopo(CString(topology));
    member.SetEndRelease(0, CElemConnect(Vbool6(0, 0, 0, 0, 1, 1)));
    member.SetEndRestraint(1, Vbool6(1, 1, 1, 0, 0, 0));
    Data::COffset offset(0.5, 0.25, 2, 3);
    offset.SetAuto(0, AutoOffset::On);
    offset.SetType(0, OffsetType::Derived);
    member.SetOffset(offset);
    member.SetOrientationAngle(30);
    model.SetMember(1, member);
  }
  CZelData model;
};

TEST_F(Members, ALevelMemberExchangesItsEndsAndNegatesY) {
  Store(L"2 1");
  EXPECT_TRUE(FlipMember(model, 1));
  auto const& member = model.Member(1);
  EXPECT_EQ(member.Topo().String(), L"1 2");
  EXPECT_TRUE(member.EndRelease(0).IsNone());
  EXPECT_EQ(member.EndRelease(1).Release(), Vbool6(0, 0, 0, 0, 1, 1));
  EXPECT_EQ(member.EndRestraint(0), Vbool6(1, 1, 1, 0, 0, 0));
  EXPECT_TRUE(member.EndRestraint(1).IsNone());
  EXPECT_EQ(member.Offset().X1(), 0.25);
  EXPECT_EQ(member.Offset().X2(), 0.5);
  EXPECT_EQ(member.Offset().Y(), -2);
  EXPECT_EQ(member.Offset().Z(), 3);
  EXPECT_EQ(member.Offset().AutomaticOffset(0), AutoOffset::Off);
  EXPECT_EQ(member.Offset().AutomaticOffset(1), AutoOffset::On);
  EXPECT_EQ(member.OrientationAngle(), 30);
  EXPECT_EQ(member.Group(), 3);
}

TEST_F(Members, AVerticalMemberNegatesZ) {
  Store(L"3 1");
  EXPECT_TRUE(FlipMember(model, 1));
  EXPECT_EQ(model.Member(1).Offset().Y(), 2);
  EXPECT_EQ(model.Member(1).Offset().Z(), -3);
  EXPECT_EQ(model.Member(1).Topo().String(), L"1 3");
}

TEST_F(Members, TheOffsetIsBuiltFromZeroSoThatItsTypesGo) {
  Store(L"2 1");
  FlipMember(model, 1);
  EXPECT_EQ(model.Member(1).Offset().Type(0), OffsetType::Given);
  EXPECT_EQ(model.Member(1).Offset().Type(1), OffsetType::Given);
}

TEST_F(Members, AnArcKeepsItsMiddleNode) {
  Store(L"2 arc 4 1");
  EXPECT_TRUE(FlipMember(model, 1));
  EXPECT_EQ(model.Member(1).Topo().String(), L"1 arc 4 2");
}

TEST_F(Members, FlippedTwiceAreAsBeforeButForTheTypesOfTheirOffsets) {
  for (auto const* topology : {L"1 2", L"3 1", L"1 4 2", L"2 arc 4 1", L"1 about 3"}) {
    Store(topology);
    auto member = model.Member(1);
    auto offset = member.Offset();
    offset.SetType(0, OffsetType::Given);
    member.SetOffset(offset);
    model.SetMember(1, member);
    CZelData const before(model);
    EXPECT_TRUE(FlipMember(model, 1));
    EXPECT_FALSE(model == before);
    EXPECT_TRUE(FlipMember(model, 1));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST_F(Members, AreLeftAloneWhenMissingNot1DOrNotReversible) {
  MemberAt(model, MembType::Slab, L"1 2 4");
  MemberAt(model, MembType::Beam, L"1 arc 2");
  MemberAt(model, MembType::Beam, L"1");
  CZelData const before(model);
  for (int const n : {0, 1, 2, 3, 4, -1}) EXPECT_FALSE(FlipMember(model, n)) << n;
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST_F(Members, AreFlippedByReference) {
  Store(L"2 1");
  EXPECT_TRUE(FlipEntity(model, {SelMember, 1}));
  EXPECT_EQ(model.Member(1).Topo().String(), L"1 2");
  EXPECT_FALSE(FlipEntity(model, {SelMember, 2}));
}

Util::CSet Set(std::vector<int> const& numbers) {
  Util::CSet set(SelMember);
  for (int const n : numbers) set.AddTo(n);
  return set;
}

bool Align(CZelData& model, std::vector<int> const& numbers) {
  CAlignElem1D tool(model);
  tool.SetSet(Set(numbers));
  tool.SetAxis(0);
  return tool.Do();
}

TEST_F(Members, AreAlignedFromTheirFirstToTheirLastNode) {
  MemberAt(model, MembType::Beam, L"2 4 1");      // runs along -X: turns
  MemberAt(model, MembType::Beam, L"1 4 2");      // stays
  MemberAt(model, MembType::Column, L"3 1");      // runs down: turns
  MemberAt(model, MembType::Beam, L"2 arc 4 1");  // turns
  MemberAt(model, MembType::Slab, L"2 1 4");      // not 1D: passed over
  EXPECT_TRUE(Align(model, {1, 2, 3, 4, 5}));
  EXPECT_EQ(model.Member(1).Topo().String(), L"1 4 2");
  EXPECT_EQ(model.Member(2).Topo().String(), L"1 4 2");
  EXPECT_EQ(model.Member(3).Topo().String(), L"1 3");
  EXPECT_EQ(model.Member(4).Topo().String(), L"1 arc 4 2");
  EXPECT_EQ(model.Member(5).Topo().String(), L"2 1 4");
  EXPECT_FALSE(Align(model, {1, 2, 3, 4, 5}));
}

TEST_F(Members, OfNoLengthAreNotAligned) {
  MemberAt(model, MembType::Beam, L"2 2");
  EXPECT_FALSE(Align(model, {1}));
}

TEST_F(Members, AreAlignedUpToTheFirstMissingNode) {
  MemberAt(model, MembType::Beam, L"2 1");
  MemberAt(model, MembType::Beam, L"2 99");
  MemberAt(model, MembType::Beam, L"2 1");
  EXPECT_TRUE(Align(model, {1, 2, 3}));
  EXPECT_EQ(model.Member(1).Topo().String(), L"1 2");
  EXPECT_EQ(model.Member(3).Topo().String(), L"2 1");
}

TEST_F(Members, OfEqualComponentsFollowX) {
  NodeAt(model, -1, 1, 0);                  // node 5
  MemberAt(model, MembType::Beam, L"1 5");  // (-1, 1, 0): X decides, turns
  NodeAt(model, 1, -1, 0);                  // node 6
  MemberAt(model, MembType::Beam, L"1 6");  // (1, -1, 0): stays
  EXPECT_TRUE(Align(model, {1, 2}));
  EXPECT_EQ(model.Member(1).Topo().String(), L"5 1");
  EXPECT_EQ(model.Member(2).Topo().String(), L"1 6");
}

/// The types of offsets are not carried through a reversal.
void ClearOffsetTypes(CZelData& model) {
  for (int n = 1; n <= model.HighestMember(); ++n) {
    if (!model.MemberExist(n)) continue;
    auto offset = model.Member(n).Offset();
    offset.SetType(0, OffsetType::Given);
    offset.SetType(1, OffsetType::Given);
    model.SetEntOffset({SelMember, n}, offset);
  }
}

TEST(FlipMemberProperty, FlippedTwiceARandomModelIsAsBefore) {
  int flipped = 0;
  int refused = 0;
  Testing::ForEachRandomModel(100, [&](CZelData& model, Testing::Random&) {
    ClearOffsetTypes(model);
    CZelData const before(model);
    for (int n = 1; n <= model.HighestMember() + 1; ++n) {
      CZelData const single(model);
      bool const did = FlipMember(model, n);
      ++(did ? flipped : refused);
      EXPECT_EQ(did, model.MemberExist(n) && model.Member(n).Is1D());
      EXPECT_EQ(model == single, !did) << n;
    }
    EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
    for (auto const& [n, element] : before.Elem()) EXPECT_TRUE(model.Elem(int(n)) == element);
    for (int n = 1; n <= model.HighestMember(); ++n) FlipMember(model, n);
    EXPECT_TRUE(IsUnchanged(model, before));
  });
  EXPECT_GT(flipped, 100);
  EXPECT_GT(refused, 100);
}

TEST(FlipMemberProperty, AlignedMembersRunInThePositiveSenseOfTheirLargestComponent) {
  Testing::ForEachRandomModel(100, [](CZelData& model, Testing::Random&) {
    std::vector<int> numbers;
    for (auto const& [n, member] : model.Member()) numbers.push_back(static_cast<int>(n));
    CZelData again(model);
    bool const turned = Align(model, numbers);
    EXPECT_EQ(turned, Align(again, numbers));  // the same from the same state
    EXPECT_TRUE(IsUnchanged(again, model));
    for (auto const& [n, member] : model.Member()) {
      if (!member.Is1D()) continue;
      auto const along =
          model.NodeCoor(member.Topo(member.NumTopo() - 1)) - model.NodeCoor(member.Topo(0));
      auto const size = [](double v) { return std::abs(v); };
      double largest = along.x;
      if (size(along.y) > size(largest) * (1 + 1e-12)) largest = along.y;
      if (size(along.z) > size(largest) * (1 + 1e-12)) largest = along.z;
      EXPECT_GE(largest, 0) << n;
    }
    EXPECT_FALSE(Align(model, numbers));
  });
}

}  // namespace
}  // namespace Tarvex::FlipMemberTest
