// The paged table against std::map under random operations, copies included.
#include <gtest/gtest.h>

#include <map>
#include <ranges>
#include <string>

#include "store/table/paged_table.h"
#include "tests/support/random_model.h"

namespace Tarvex::PagedTablePropertyTest {
namespace {

using Testing::Random;
using Plain = std::map<int, std::string>;

/// Sizes of a table under test, and the highest number that is drawn.
template <unsigned PageSize, unsigned ChunkSize, int HighestNumber>
struct Sizes {
  using Table = PagedTable<std::string, PageSize, ChunkSize>;
  static constexpr int kHighest = HighestNumber;
};

/// A table and the map that says what it should hold.
template <class Table>
struct Pair {
  Table table;
  Plain plain;

  void CheckAll() const {
    ASSERT_EQ(table.size(), plain.size());
    ASSERT_EQ(table.Highest(), plain.empty() ? 0 : plain.rbegin()->first);
    auto expected = plain.begin();
    for (auto const& [n, record] : table) {
      ASSERT_EQ(static_cast<int>(n), expected->first);
      ASSERT_EQ(record, expected->second);
      ++expected;
    }
    ASSERT_EQ(expected, plain.end());
  }

  void CheckNear(int n) const {
    auto const at = plain.find(n);
    ASSERT_EQ(table.Exist(n), at != plain.end());
    ASSERT_EQ(table.count(static_cast<unsigned>(n)), plain.count(n));
    if (at != plain.end()) {
      ASSERT_EQ(table.at(static_cast<unsigned>(n)), at->second);
    }
    auto const next = plain.upper_bound(n);
    ASSERT_EQ(table.Next(n), next == plain.end() ? 0 : next->first);
    auto const here = plain.lower_bound(n);
    ASSERT_EQ(table.Previous(n), here == plain.begin() ? 0 : std::prev(here)->first);
    ASSERT_EQ(table.size(), plain.size());
    ASSERT_EQ(table.empty(), plain.empty());
    ASSERT_EQ(table.Highest(), plain.empty() ? 0 : plain.rbegin()->first);
  }
};

/// "number before after" of each number whose records differ, a missing record as "-".
using Changes = std::vector<std::string>;

std::string Line(int n, std::string const* before, std::string const* after) {
  return std::to_string(n) + " " + (before == nullptr ? "-" : *before) + " " +
         (after == nullptr ? "-" : *after);
}

Changes PlainDifference(Plain const& before, Plain const& after) {
  std::map<int, std::pair<std::string const*, std::string const*>> sides;
  for (auto const& [n, record] : before) sides[n].first = &record;
  for (auto const& [n, record] : after) sides[n].second = &record;
  Changes changes;
  for (auto const& [n, side] : sides) {
    auto const [was, is] = side;
    if (was == nullptr || is == nullptr || *was != *is) changes.push_back(Line(n, was, is));
  }
  return changes;
}

template <class Table>
Changes TableDifference(Table const& before, Table const& after) {
  Changes changes;
  int last = 0;
  Table::Difference(before, after, [&](int n, std::string const* was, std::string const* is) {
    EXPECT_LT(last, n);
    last = n;
    EXPECT_TRUE(was != nullptr || is != nullptr);
    if (was == nullptr || is == nullptr || *was != *is) changes.push_back(Line(n, was, is));
  });
  return changes;
}

template <class S>
class PagedTableProperty : public ::testing::Test {
 protected:
  using State = Pair<typename S::Table>;

  /// Mostly small numbers, so that operations meet; one in ten anywhere.
  int AnyNumber() { return m_random.Int(1, m_random.Percent(90) ? 150 : S::kHighest); }
  std::string AnyRecord() {
    return "a record of some length " + std::to_string(m_random.Int(1, 9));
  }

  void Set() {
    int const n = AnyNumber();
    auto const record = AnyRecord();
    EXPECT_EQ(m_live.table.Set(n, record), record);
    m_live.plain[n] = record;
    m_touched = n;
  }
  void Edit() {
    int const n = m_live.table.Next(AnyNumber() - 1);
    if (n == 0) return;
    m_live.plain[n] = m_live.table.Edit(n) = AnyRecord();
    m_touched = n;
  }
  void Remove() {
    int const first = AnyNumber() - m_random.Int(0, 3);
    int const count = m_random.Percent(80) ? m_random.Int(-1, 5) : m_random.Int(1, 100);
    m_live.table.Remove(first, count);
    auto& plain = m_live.plain;
    if (count > 0) plain.erase(plain.lower_bound(first), plain.upper_bound(first + count - 1));
    m_touched = first;
  }
  void Clear() {
    m_live.table.Clear();
    m_live.plain.clear();
  }
  void Refuse() {
    int const n = m_random.Of<int>({0, -1, -70, 100000001});
    EXPECT_THROW(m_live.table.Set(n, AnyRecord()), std::out_of_range);
    m_touched = n;
  }
  void Keep() {
    if (m_kept.size() < 5) m_kept.emplace_back();
    m_kept[Slot()] = m_live;
  }
  void GoBack() {
    if (!m_kept.empty()) m_live = m_kept[Slot()];
  }
  void Move() {
    State moved(std::move(m_live));
    m_live.CheckAll();  // both sides are empty now
    m_live = std::move(moved);
  }
  void Compare() {
    if (m_kept.empty()) return;
    auto const& kept = m_kept[Slot()];
    kept.CheckAll();
    auto const changes = PlainDifference(kept.plain, m_live.plain);
    EXPECT_EQ(TableDifference(kept.table, m_live.table), changes);
    EXPECT_EQ(TableDifference(m_live.table, kept.table), PlainDifference(m_live.plain, kept.plain));
    bool const sameRevision = kept.table.Revision() == m_live.table.Revision();
    EXPECT_TRUE(!sameRevision || changes.empty());
    bool const sameNumbers = kept.table.ExistenceRevision() == m_live.table.ExistenceRevision();
    EXPECT_TRUE(!sameNumbers ||
                std::ranges::equal(std::views::keys(kept.plain), std::views::keys(m_live.plain)));
  }

  void Step() {
    int const draw = m_random.Int(0, 9999);  // ten thousandths
    if (draw < 5500) return Set();
    if (draw < 7000) return Edit();
    if (draw < 9600) return Remove();
    if (draw < 9800) return Refuse();
    if (draw < 9860) return Keep();
    if (draw < 9900) return GoBack();
    if (draw < 9920) return Move();
    return draw < 9998 ? Compare() : Clear();
  }

  std::size_t Slot() {
    return static_cast<std::size_t>(m_random.Int(0, static_cast<int>(m_kept.size()) - 1));
  }

  Random m_random{20240517};
  State m_live;
  std::vector<State> m_kept;
  int m_touched = 1;
};

using AllSizes =
    ::testing::Types<Sizes<2, 2, 500>, Sizes<2, 256, 20000>, Sizes<4, 2, 500>, Sizes<4, 256, 40000>,
                     Sizes<64, 2, 20000>, Sizes<64, 256, 100000000>>;
TYPED_TEST_SUITE(PagedTableProperty, AllSizes);

TYPED_TEST(PagedTableProperty, AgreesWithAMapUnderRandomOperations) {
  for (int i = 0; i < 20000; ++i) {
    SCOPED_TRACE(i);
    this->Step();
    this->m_live.CheckNear(this->m_touched);
    this->m_live.CheckNear(this->AnyNumber());
    if (i % 500 == 0) this->m_live.CheckAll();
    if (this->HasFailure()) return;
  }
  this->m_live.CheckAll();
  EXPECT_EQ(this->m_kept.size(), 5u);
}

}  // namespace
}  // namespace Tarvex::PagedTablePropertyTest
