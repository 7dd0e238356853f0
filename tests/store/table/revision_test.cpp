#include "store/table/revision.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>

namespace Tarvex::RevisionTest {
namespace {

TEST(Revision, NeverGivesANumberTwiceNorZero) {
  std::set<std::uint64_t> seen{0};
  for (int i = 0; i < 1000; ++i) EXPECT_TRUE(seen.insert(NextRevision()).second);
}

TEST(Revision, GivesDifferentNumbersToThreads) {
  std::vector<std::uint64_t> a(10000);
  std::vector<std::uint64_t> b(10000);
  auto const fill = [](std::vector<std::uint64_t>& numbers) {
    for (auto& number : numbers) number = NextRevision();
  };
  std::thread other(fill, std::ref(a));
  fill(b);
  other.join();
  std::set<std::uint64_t> seen(a.begin(), a.end());
  seen.insert(b.begin(), b.end());
  EXPECT_EQ(seen.size(), 20000u);
}

}  // namespace
}  // namespace Tarvex::RevisionTest
