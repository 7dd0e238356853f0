#include "store/record/block.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::BlockTest {
namespace {

using Offsets = std::vector<Vec3<double>>;
using Steps = std::vector<ReplicaStep>;

TEST(Replica, HasNoOffsetWithoutSteps) { EXPECT_TRUE(CReplica().ExpandedOffsets().empty()); }

TEST(Replica, RepeatsAlongOneStep) {
  EXPECT_EQ(CReplica(Steps{{3, {2, 0, 1}}}).ExpandedOffsets(),
            (Offsets{{2, 0, 1}, {4, 0, 2}, {6, 0, 3}}));
}

TEST(Replica, RepeatsAllThatTheStepsBeforeGave) {
  EXPECT_EQ(CReplica(Steps{{1, {1, 0, 0}}, {2, {0, 10, 0}}}).ExpandedOffsets(),
            (Offsets{{1, 0, 0}, {0, 10, 0}, {1, 10, 0}, {0, 20, 0}, {1, 20, 0}}));
}

TEST(Replica, LeavesOutWhatComesToStandOnTheOriginal) {
  EXPECT_EQ(CReplica(Steps{{1, {1, 0, 0}}, {1, {-1, 0, 0}}}).ExpandedOffsets(),
            (Offsets{{1, 0, 0}, {-1, 0, 0}}));
  EXPECT_TRUE(CReplica(Steps{{4, {0, 0, 0}}}).ExpandedOffsets().empty());
  EXPECT_TRUE(CReplica(Steps{{0, {1, 0, 0}}}).ExpandedOffsets().empty());
}

TEST(Replica, RefusesACountBelowZero) {
  CReplica replica(Steps{{1, {1, 0, 0}}});
  EXPECT_THROW(replica.SetSteps({{1, {}}, {-1, {}}}), std::invalid_argument);
  EXPECT_THROW(CReplica(Steps{{-1, {}}}), std::invalid_argument);
  EXPECT_EQ(replica.Steps().size(), 1u);
  EXPECT_EQ(replica.Fault(), L"");
}

TEST(Replica, ComparesEveryField) {
  Testing::ExpectFields<ReplicaStep>(
      {{"count", [](ReplicaStep& s) { s.count = 1; }}, {"offset", [](ReplicaStep& s) {
                                                          s.offset = {0, 0, -0.0};
                                                        }}});
  Testing::ExpectFields<CReplica>({{"steps", [](CReplica& r) { r.SetSteps({{1, {}}}); }}});
}

TEST(Block, HasMembersAndHowTheyAreRepeated) {
  CBlock const block(L"bays", {3, 5}, CReplica(Steps{{1, {6, 0, 0}}}));
  EXPECT_EQ(block.Name(), L"bays");
  EXPECT_EQ(block.Members(), (std::vector{3, 5}));
  EXPECT_EQ(block.Replica().ExpandedOffsets(), (Offsets{{6, 0, 0}}));
}

TEST(Block, ComparesEveryField) {
  Testing::ExpectStoredFields<CBlock>({{"name", [](CBlock& b) { b.SetName(L"n"); }},
                                       {"sid", [](CBlock& b) { b.SetSid(L"s"); }},
                                       {"colour", [](CBlock& b) { b.SetColour(1); }},
                                       {"members", [](CBlock& b) { b.SetMembers({4}); }},
                                       {"replica", [](CBlock& b) {
                                          b.SetReplica(CReplica(Steps{{1, {}}}));
                                        }}});
}

}  // namespace
}  // namespace Tarvex::Data::BlockTest
