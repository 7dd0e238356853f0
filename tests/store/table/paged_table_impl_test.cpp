// What changes of a paged table cost, and what they leave when they fail.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

#include "store/table/paged_table.h"

namespace Tarvex::PagedTableImplTest {
namespace {

/// A record that counts its copies.
struct Counted {
  Counted() = default;
  Counted(Counted const& other) : value(other.value) { ++copies; }
  Counted& operator=(Counted const& other) {
    value = other.value;
    ++copies;
    return *this;
  }

  static inline int copies = 0;
  int value = 0;
};

template <class Table>
class PagedTableCost : public ::testing::Test {
 protected:
  PagedTableCost() {
    for (int n = 1; n <= 1000; ++n) table.Set(n, Counted());
    Counted::copies = 0;
  }
  int Copies() { return std::exchange(Counted::copies, 0); }

  Table table;
};

/// A table whose page size a test can read.
template <unsigned Page, unsigned Chunk>
struct CountedTable : PagedTable<Counted, Page, Chunk> {
  static constexpr int kPage = Page;
};
using CostTables =
    ::testing::Types<CountedTable<2, 2>, CountedTable<4, 256>, CountedTable<64, 256>>;
TYPED_TEST_SUITE(PagedTableCost, CostTables);

TYPED_TEST(PagedTableCost, CopyingATableCopiesNoRecord) {
  auto const copy = this->table;
  EXPECT_EQ(copy.size(), 1000u);
  EXPECT_EQ(this->Copies(), 0);
}

TYPED_TEST(PagedTableCost, StoringAfterACopyClonesOnePageOnly) {
  auto const copy = this->table;
  this->table.Set(500, Counted());
  // The clone of the page, and the record itself.
  EXPECT_EQ(this->Copies(), TypeParam::kPage + 1);
  this->table.Set(500, Counted());
  EXPECT_EQ(this->Copies(), 1);
}

TYPED_TEST(PagedTableCost, EditingAfterACopyClonesOnePageOnce) {
  auto const copy = this->table;
  this->table.Edit(500).value = 7;
  EXPECT_EQ(this->Copies(), TypeParam::kPage);
  this->table.EditDerived(500).value = 8;
  EXPECT_EQ(this->Copies(), 0);
  EXPECT_EQ(copy.Find(500)->value, 0);
}

TYPED_TEST(PagedTableCost, RemovingWholePagesOfACopyClonesAtMostThem) {
  auto const copy = this->table;
  this->table.Remove(500, 1);
  EXPECT_EQ(this->Copies(), TypeParam::kPage);
  this->table.Clear();
  EXPECT_EQ(this->Copies(), 0);
  EXPECT_EQ(copy.size(), 1000u);
}

TYPED_TEST(PagedTableCost, GoingBackToACopyCopiesNoRecord) {
  auto const copy = this->table;
  this->table.Set(500, Counted());
  this->Copies();
  this->table = copy;
  EXPECT_EQ(this->Copies(), 0);
  EXPECT_EQ(this->table.Revision(), copy.Revision());
}

TYPED_TEST(PagedTableCost, WritesInPlaceOnceTheCopyIsGone) {
  { auto const copy = this->table; }
  this->table.Set(500, Counted());
  EXPECT_EQ(this->Copies(), 1);
}

/// A record whose copying throws when a count runs out, and which knows how many of it live.
struct Fragile {
  explicit Fragile(int v) : value(v) { ++alive; }
  Fragile(Fragile const& other) : value(other.value) {
    Pass();
    ++alive;
  }
  Fragile& operator=(Fragile const& other) {
    Pass();
    value = other.value;
    return *this;
  }
  ~Fragile() { --alive; }

  static void Pass() {
    if (--copiesLeft == -1) throw std::runtime_error("no more copies");
  }
  static inline int copiesLeft = 1 << 30;
  static inline int alive = 0;
  int value;
};
using FragileTable = PagedTable<Fragile, 4, 2>;

std::string Contents(FragileTable const& table) {
  std::string text = std::to_string(table.size()) + " to " + std::to_string(table.Highest()) + ":";
  for (auto const& [n, record] : table)
    text += " " + std::to_string(n) + "=" + std::to_string(record.value);
  return text;
}

/// Runs a change that may copy 0, 1, 2, ... records before it fails, until it succeeds. Each
/// failure must leave the table and its copy as they were.
template <class Change>
void ExpectContentsKeptWhenCopyingFails(Change&& change) {
  bool done = false;
  for (int allowed = 0; !done; ++allowed) {
    ASSERT_LT(allowed, 20);
    FragileTable table;
    for (int const n : {1, 2, 3, 5, 7, 21}) table.Set(n, Fragile(10 * n));
    auto const copy = table;
    auto const before = Contents(table);
    Fragile::copiesLeft = allowed;
    try {
      change(table);
      done = true;
      EXPECT_GT(allowed, 0) << "the change copies nothing, so the test shows nothing";
    } catch (std::runtime_error const&) {
      EXPECT_EQ(Contents(table), before);
    }
    Fragile::copiesLeft = 1 << 30;
    EXPECT_EQ(Contents(copy), before);
    table.Set(2, Fragile(99));
    EXPECT_EQ(table.Find(2)->value, 99);
    EXPECT_EQ(Contents(copy), before);
  }
  EXPECT_EQ(Fragile::alive, 0);
}

TEST(PagedTableFailure, KeepsItsContentsWhenANewRecordCannotBeStored) {
  Fragile::alive = 0;
  ExpectContentsKeptWhenCopyingFails([](FragileTable& table) {
    Fragile const record(6);
    table.Set(6, record);
  });
}

TEST(PagedTableFailure, KeepsItsContentsWhenARecordCannotBeReplaced) {
  ExpectContentsKeptWhenCopyingFails([](FragileTable& table) {
    Fragile const record(6);
    table.Set(7, record);
  });
}

TEST(PagedTableFailure, KeepsItsContentsWhenAPageBeyondTheRootCannotBeFilled) {
  ExpectContentsKeptWhenCopyingFails([](FragileTable& table) {
    Fragile const record(6);
    table.Set(200, record);
  });
}

TEST(PagedTableFailure, KeepsItsContentsWhenASharedPageCannotBeCloned) {
  ExpectContentsKeptWhenCopyingFails([](FragileTable& table) { table.Edit(1).value = 5; });
  ExpectContentsKeptWhenCopyingFails([](FragileTable& table) { table.Remove(2, 1); });
}

/// A record of two parts, of which replacing it may change the first only.
struct TwoParts {
  TwoParts(int a, int b) : first(a), second(b) {}
  TwoParts(TwoParts const&) = default;
  TwoParts& operator=(TwoParts const& other) {
    first = other.first;
    if (other.second < 0) throw std::runtime_error("second part");
    second = other.second;
    return *this;
  }
  int first;
  int second;
};

TEST(PagedTableFailure, DoesNotKeepItsRevisionWhenARecordIsLeftHalfReplaced) {
  PagedTable<TwoParts> table;
  table.Set(1, TwoParts(1, 1));
  auto const copy = table;
  TwoParts const bad(2, -1);
  EXPECT_THROW(table.Set(1, bad), std::runtime_error);
  EXPECT_NE(table.Find(1)->first, copy.Find(1)->first);
  EXPECT_NE(table.Revision(), copy.Revision());
}

}  // namespace
}  // namespace Tarvex::PagedTableImplTest
