#include "store/table/history.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <stdexcept>

#include "store/table/paged_table.h"

namespace Tarvex::HistoryTest {
namespace {

using Table = PagedTable<int, 2, 2>;  // pages of two records reach deep states with few
using Plain = std::map<int, int>;

Plain ToPlain(Table const& table) {
  Plain plain;
  for (auto const& [n, value] : table) plain[static_cast<int>(n)] = value;
  return plain;
}

TEST(History, GoesBackAndForth) {
  History<int> history;
  int state = 1;
  history.Open();
  history.Accept(state);
  state = 2;
  auto const replace = [&](int other) { state = other; };
  EXPECT_TRUE(history.Undo(state, replace));
  EXPECT_EQ(state, 1);
  EXPECT_FALSE(history.Undo(state, replace));
  EXPECT_TRUE(history.Redo(state, replace));
  EXPECT_EQ(state, 2);
  EXPECT_FALSE(history.Redo(state, replace));
}

TEST(History, OnlyTheOutermostStepMakesAnEntry) {
  History<int> history;
  history.Open();
  history.Open();
  history.Accept(2);
  EXPECT_EQ(history.NumUndo(), 0u);
  history.Accept(1);
  EXPECT_EQ(history.NumUndo(), 1u);
  EXPECT_EQ(history.OpenSteps(), 0);
}

TEST(History, AnAbandonedStepMakesNone) {
  History<int> history;
  history.Open();
  history.Abandon();
  EXPECT_EQ(history.NumUndo(), 0u);
}

TEST(History, ANewStepDropsWhatCouldBeRedone) {
  History<int> history;
  int state = 1;
  auto const replace = [&](int other) { state = other; };
  history.Open();
  history.Accept(0);
  history.Undo(state, replace);
  EXPECT_EQ(history.NumRedo(), 1u);
  history.Open();
  history.Accept(0);
  EXPECT_EQ(history.NumRedo(), 0u);
}

TEST(History, RefusesWhileAStepIsOpen) {
  History<int> history;
  int state = 1;
  auto const replace = [&](int other) { state = other; };
  history.Open();
  history.Accept(0);
  history.Open();
  EXPECT_FALSE(history.Undo(state, replace));
  history.Abandon();
  EXPECT_TRUE(history.Undo(state, replace));
}

TEST(History, KeepsTheNewestStepsWithinItsDepth) {
  History<int> history;
  history.SetDepth(3);
  for (int i = 0; i < 5; ++i) {
    history.Open();
    history.Accept(i);
  }
  EXPECT_EQ(history.NumUndo(), 3u);
  int state = 5;
  auto const replace = [&](int other) { state = other; };
  while (history.Undo(state, replace)) continue;
  EXPECT_EQ(state, 2);
  history.SetDepth(0);
  history.Open();
  history.Accept(9);
  EXPECT_EQ(history.NumUndo(), 0u);
}

/// A table with a history, and the same as plain maps kept whole.
class Machine {
 public:
  explicit Machine(unsigned seed) : m_random(seed) {}

  void Step() {
    int const kind = Pick(0, 99);
    if (kind < 60) return Store();
    if (kind < 75) return Remove();
    if (kind < 82) return Open();
    if (kind < 88) return Accept();
    if (kind < 91) return Abandon();
    if (kind < 95) return Move(true);
    if (kind < 97) return Move(false);
    if (kind < 98) return ThrowInSteps(Pick(1, 3));
    m_snapshots.emplace_back(m_table, m_plain);
    if (m_snapshots.size() > 20) m_snapshots.erase(m_snapshots.begin());
  }

  void Check() const {
    ASSERT_EQ(ToPlain(m_table), m_plain);
    for (auto const& [table, plain] : m_snapshots) ASSERT_EQ(ToPlain(table), plain);
  }

 private:
  struct OpenStep {
    Table table;
    Plain plain;
  };

  int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

  void Store() {
    int const n = Pick(1, 60);
    int const value = Pick(0, 1000000);
    m_table.Set(n, value);
    m_plain[n] = value;
  }
  void Remove() {
    int const first = Pick(1, 60);
    int const count = Pick(0, 5);
    m_table.Remove(first, count);
    m_plain.erase(m_plain.lower_bound(first), m_plain.lower_bound(first + count));
  }
  void Open() {
    if (m_open.size() >= 4) return;
    m_history.Open();
    m_open.push_back({m_table, m_plain});
  }
  void Accept() {
    if (m_open.empty()) return;
    m_history.Accept(m_open.back().table);
    if (m_open.size() == 1) {
      m_undo.push_back(m_open.back().plain);
      m_redo.clear();
      if (m_undo.size() > 100) m_undo.erase(m_undo.begin());
    }
    m_open.pop_back();
  }
  void Abandon() {
    if (m_open.empty()) return;
    m_history.Abandon();
    m_table = m_open.back().table;
    m_plain = m_open.back().plain;
    m_open.pop_back();
  }
  /// Steps within each other, all of which an exception leaves.
  void ThrowInSteps(int depth) {
    if (m_open.size() + static_cast<std::size_t>(depth) > 4) return;
    auto const before = m_plain;
    try {
      LeaveSteps(depth);
      FAIL() << "nothing was thrown";
    } catch (std::runtime_error const&) {
    }
    ASSERT_EQ(m_plain, before);
    ASSERT_EQ(ToPlain(m_table), before);
  }
  void LeaveSteps(int depth) {
    struct Scope {
      Machine& machine;
      ~Scope() { machine.Abandon(); }
    };
    Open();
    Scope const scope{*this};
    Store();
    Remove();
    if (depth == 1) throw std::runtime_error("out of the innermost step");
    LeaveSteps(depth - 1);
  }
  void Move(bool back) {
    auto& from = back ? m_undo : m_redo;
    auto& to = back ? m_redo : m_undo;
    bool const can = !from.empty() && m_open.empty();
    auto const replace = [&](Table other) { m_table = std::move(other); };
    bool const did = back ? m_history.Undo(m_table, replace) : m_history.Redo(m_table, replace);
    ASSERT_EQ(did, can);
    if (!can) return;
    to.push_back(m_plain);
    m_plain = from.back();
    from.pop_back();
  }

  std::mt19937 m_random;
  Table m_table;
  Plain m_plain;
  History<Table> m_history;
  std::vector<OpenStep> m_open;
  std::vector<Plain> m_undo;
  std::vector<Plain> m_redo;
  std::vector<std::pair<Table, Plain>> m_snapshots;
};

TEST(HistoryProperty, AgreesWithPlainMapsOverAMillionOperations) {
  for (unsigned seed = 1; seed <= 4; ++seed) {
    Machine machine(seed);
    for (int i = 0; i < 250000; ++i) {
      ASSERT_NO_FATAL_FAILURE(machine.Step());
      if (i % 500 == 0) {
        ASSERT_NO_FATAL_FAILURE(machine.Check()) << "seed " << seed << " step " << i;
      }
    }
    ASSERT_NO_FATAL_FAILURE(machine.Check());
  }
}

}  // namespace
}  // namespace Tarvex::HistoryTest
