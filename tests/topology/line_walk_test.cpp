// Loads on many lines at once, held to the walk of all loads for each piece.
#include <algorithm>

#include "tests/support/random_model.h"
#include "tests/topology/load_walk.h"
#include "tests/topology/topology_support.h"
#include "topology/load_table.h"

namespace Tarvex::LineWalkTest {
namespace {

using namespace Testing;
using LoadType = Data::CBeamLoad::LoadType;

bool Adds(Data::CBeamLoad const& load) { return load.TypeOf() == LoadType::Uniform; }
bool Adds(Data::CBeamDist const&) { return false; }

/// The walk of one table.
template <class Table>
struct Walk {
  CZelData& model;
  std::vector<Util::CSet> on{};  // of each load at the beginning
  bool all = true;

  explicit Walk(CZelData& m) : model(m) {
    for (int n = 1; n <= Table::Highest(model); ++n)
      on.push_back(Util::MakeSet(Table::Read(model, n).LoadedEntities(), model));
  }
  bool IsOn(int n, int parent) const {
    auto const at = static_cast<std::size_t>(n);
    return at <= on.size() && on[at - 1].IsItemIncluded(parent);
  }
  bool IsPlain(int n) const { return Table::Read(model, n).LoadedEntities().IsPlain(); }

  /// Maps one load as if it was the only one, and takes over what the piece gets.
  void MapAlone(int n, int parent, int piece) {
    CZelData alone(model);
    alone.DeleteBeamLoad(1, alone.HighestBeamLoad());
    alone.DeleteBeamDist(1, alone.HighestBeamDist());
    auto const load = Table::Read(model, n);
    Table::AppendOn(alone, parent, load);
    ASSERT_TRUE(CDataMgr(alone).MapBeamLoading(SelElement, {{parent, {piece}}}));
    for (int made = 1; made <= Table::Highest(alone); ++made)
      if (Adds(load))
        AddToLoad<Table>(model, n, piece);
      else
        Table::AppendOn(model, piece, Table::Read(alone, made));
  }
  void Map(int parent, int piece) {
    for (int n = 1, highest = Table::Highest(model); n <= highest; ++n) {
      if (!IsOn(n, parent)) continue;
      if (IsPlain(n))
        MapAlone(n, parent, piece);
      else
        all = false;
    }
  }
  void TakeOff(int parent) {
    for (int n = Table::Highest(model); n >= 1; --n)
      if (IsOn(n, parent) && IsPlain(n) && TakeOffLoad<Table>(model, n, parent))
        on.erase(on.begin() + (n - 1));
  }
};

constexpr int kLines = 8;
constexpr double kLength = 6;

void AddLine(CZelData& model, int n, double y, double from, double to) {
  int const a = NodeAt(model, from, y, 0);
  int const b = NodeAt(model, to, y, 0);
  model.SetElem(n, Element(ElementType::Beam, {a, b}));
}

/// Eight lines and some loads on them, on plain lists, ranges and all.
CZelData LoadedLines(Random& random) {
  CZelData model;
  for (int n = 1; n <= kLines; ++n) AddLine(model, n, n, 0, kLength);
  auto const list = [&] {
    if (random.Percent(10)) return Elements(random.Percent(50) ? L"2 to 4" : L"all");
    Data::CEntList plain(SelElement, L"");
    for (int i = random.Int(1, 4); i > 0; --i) plain.AddTo(random.Int(1, 2 * kLines));
    return plain;
  };
  for (int n = 1; n <= 12; ++n) {
    Data::CBeamLoad load;
    load.SetType(static_cast<LoadType>(random.Int(1, 5)));
    load.SetLoadedEntities(list());
    for (int i : {0, 1}) load.SetValue(i, random.Real(-9, 9));
    load.SetPos(0, random.Real(0, 3));
    load.SetPos(1, random.Real(3, kLength));
    model.SetBeamLoad(n, load);
    Data::CBeamDist dist;
    dist.SetLoadedEntities(list());
    dist.SetPos(random.Real(0, kLength));
    dist.SetValue(0.1);
    model.SetBeamDist(n, dist);
  }
  return model;
}

/// Cuts some of the lines, and some of their pieces again.
NumberLists CutSome(CZelData& model, Random& random) {
  NumberLists pieces;
  for (int n = 1; n <= model.HighestElem() && n <= 2 * kLines; ++n) {
    if (!random.Percent(60)) continue;
    double const from = model.NodeCoor(model.Elem(n).Topo(0)).x;
    double const to = model.NodeCoor(model.Elem(n).Topo(1)).x;
    double const y = model.NodeCoor(model.Elem(n).Topo(0)).y;
    double const cut = from + random.Real(0.2, 0.8) * (to - from);
    int const first = model.HighestElem() + 1;
    AddLine(model, first, y, from, cut);
    AddLine(model, first + 1, y, cut, to);
    pieces[n] = {first, first + 1};
  }
  return pieces;
}

TEST(LineWalk, MapsManyLinesAsTheWalkOfAllLoadsForEachPieceDoes) {
  int unmapped = 0;
  int loads = 0;
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    auto model = LoadedLines(random);
    auto const pieces = CutSome(model, random);
    CZelData plain(model);
    Walk<BeamLoads> beams(plain);
    Walk<BeamDists> dists(plain);
    for (auto const& [parent, subs] : pieces) {
      for (int const sub : subs) {
        beams.Map(parent, sub);
        dists.Map(parent, sub);
      }
      beams.TakeOff(parent);
      dists.TakeOff(parent);
    }
    bool const all = CDataMgr(model).MapBeamLoading(SelElement, pieces);
    EXPECT_EQ(all, beams.all && dists.all);
    EXPECT_TRUE(IsUnchanged(model, plain));
    if (!all) ++unmapped;
    loads += model.HighestBeamLoad();
  }
  EXPECT_GT(unmapped, 10);
  EXPECT_GT(loads, 600);
}

}  // namespace
}  // namespace Tarvex::LineWalkTest
