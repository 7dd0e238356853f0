// Totals of loads before and after their mapping on random subdivisions.
#include <algorithm>

#include "tarvex/split_connect.h"
#include "tests/support/random_model.h"
#include "tests/topology/body_support.h"
#include "tests/topology/load_totals.h"

namespace Tarvex::LoadTotalsPropertyTest {
namespace {

using namespace Testing;

constexpr int kRuns = 120;
constexpr double kRelative = 1e-9;

/// Calls run(random) with another seed each time.
template <class Run>
void Repeat(Run&& run) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(seed);
    run(random);
    if (::testing::Test::HasFailure()) return;
  }
}

Vec3<double> AnyPoint(Random& random, double size) {
  double const x = random.Real(-size, size);
  double const y = random.Real(-size, size);
  return {x, y, random.Real(-size, size)};
}
Direction AnyDirection(Random& random) { return static_cast<Direction>(random.Int(1, 3)); }

/// So many places between 0 and 1 and a twentieth apart, ascending.
std::vector<double> Places(Random& random, int count) {
  std::vector<int> steps;
  for (int i = 1; i < 20; ++i) steps.push_back(i);
  random.Shuffle(steps);
  steps.resize(static_cast<std::size_t>(count));
  std::sort(steps.begin(), steps.end());
  std::vector<double> places;
  for (int const step : steps) places.push_back(step / 20.0 + random.Real(-0.01, 0.01));
  return places;
}

// Beams.

Data::CBeamLoad AnyBeamLoad(Random& random, double length) {
  Data::CBeamLoad load;
  load.SetType(static_cast<Data::CBeamLoad::LoadType>(random.Int(1, 5)));
  load.SetDirection(AnyDirection(random));
  load.SetLoadedEntities(Elements(L"70"));
  auto const places = Places(random, 2);
  bool const fractions = random.Percent(50);
  for (int i = 0; i < 2; ++i) {
    double const place = places[static_cast<std::size_t>(i)];
    load.SetPos(i, fractions ? -place : place * length);
    load.SetValue(i, random.Real(-10, 10));
  }
  return load;
}

/// Parent and pieces between random points of it, of which none has an axial offset.
CZelData AnyCutBeam(Random& random) {
  CZelData model;
  auto const a = AnyPoint(random, 20);
  auto const b = a + AnyPoint(random, 10);
  Data::COffset const offset(0, 0, random.Real(-1, 1), random.Real(-1, 1));
  auto const beam = [&](int n, int first, int second) {
    auto element = Element(ElementType::Beam, {first, second});
    element.SetOffset(offset);
    model.SetElem(n, element);
  };
  int const start = NodeAt(model, a.x, a.y, a.z);
  int const end = NodeAt(model, b.x, b.y, b.z);
  beam(kParent, start, end);
  int last = start;
  int n = kFirstPiece;
  for (double const place : Places(random, random.Int(1, 6))) {
    auto const p = a + (b - a) * place;
    int const node = NodeAt(model, p.x, p.y, p.z);
    beam(n++, last, node);
    last = node;
  }
  beam(n, last, end);
  return model;
}

TEST(LoadTotals, OfEveryTypeOfBeamLoadAreKeptOnRandomSubdivisions) {
  Repeat([](Random& random) {
    auto model = AnyCutBeam(random);
    double const length = model.ElemLen(kParent);
    for (int n = 1; n <= 8; ++n) model.SetBeamLoad(n, AnyBeamLoad(random, length));
    auto const before = BeamTotals(model);
    ASSERT_GT(before.forceSize, 0);
    ASSERT_TRUE(CDataMgr(model).MapBeamLoading(SelElement, PiecesOf(model)));
    ASSERT_TRUE(AreEqual(BeamTotals(model), before, kRelative));
    for (auto const& load : model.BeamLoad())
      for (int const n : PlainNumbers(load.LoadedEntities())) ASSERT_NE(n, kParent);
  });
}

TEST(LoadTotals, OfBeamsThatAreCutAgainAndAgainAreKept) {
  Repeat([](Random& random) {
    CZelData model;
    auto const a = AnyPoint(random, 20);
    BeamAt(model, a, a + Vec3<double>{6, 2, 3});  // 7 long
    for (int n = 1; n <= 5; ++n) {
      auto load = AnyBeamLoad(random, 7);
      load.SetLoadedEntities(Elements(L"1"));
      model.SetBeamLoad(n, load);
    }
    auto const before = BeamTotals(model);
    int element = 1;
    for (int cut = 0; cut < 4; ++cut) {
      CSplit1dEl tool(model);
      tool.SetReplaceElemRef(true);
      std::vector<int> created;
      ASSERT_TRUE(tool.Do({SelElement, element}, model.ElemLen(element) * random.Real(0.2, 0.8),
                          false, created));
      ASSERT_TRUE(tool.IsAllLoadsMapped());
      element = random.Of(created);
    }
    ASSERT_TRUE(AreEqual(BeamTotals(model), before, kRelative));
  });
}

TEST(LoadTotals, OfBeamsThatAreConnectedAreKept) {
  Repeat([](Random& random) {
    CZelData model;
    Util::CSet all(SelElement);
    for (int i = 0; i < 5; ++i) {
      double const angle = random.Real(0, 3);
      Vec3<double> const u{std::cos(angle), std::sin(angle), 0};
      Vec3<double> const mid{random.Real(-1, 1), random.Real(-1, 1), 0};
      all.AddTo(BeamAt(model, mid - u * 5.0, mid + u * 5.0));
      auto load = AnyBeamLoad(random, 10);
      Data::CEntList list(SelElement, L"");
      list.AddTo(i + 1);
      load.SetLoadedEntities(list);
      model.SetBeamLoad(i + 1, load);
    }
    auto const before = BeamTotals(model);
    CConnect1dEl tool(model);
    tool.SetSet(all);
    tool.SetTol(1e-6, 1e-9);  // no end is moved by anything to speak of
    tool.SetReplaceElemRef(true);
    ASSERT_TRUE(tool.Do());
    ASSERT_TRUE(tool.IsAllLoadsMapped());
    ASSERT_GT(model.HighestElem(), 10);
    ASSERT_TRUE(AreEqual(BeamTotals(model), before, kRelative));
    ASSERT_TRUE(NoDanglingReference(model));
  });
}

// Plates.

/// A random plane quadrilateral or triangle, the nodes along its sides in order, its corners among
/// them, and pieces that run as it does.
struct PlateMaker {
  CZelData model;
  Random& random;
  Vec3<double> origin;
  Util::CDirCos frame;

  explicit PlateMaker(Random& r)
      : random(r), origin(AnyPoint(r, 10)), frame(AnyPoint(r, 1), AnyPoint(r, 1)) {}

  int AddNode(Vec2<double> at) {
    auto const p = origin + frame.LtoG({at.x, at.y, 0});
    return NodeAt(model, p.x, p.y, p.z);
  }
  static Vec2<double> Between(Vec2<double> a, Vec2<double> b, double t) {
    return a * (1 - t) + b * t;
  }

  CZelData Make() {
    std::vector<Vec2<double>> corners{{0, 0}, {4, 0}, {4, 3}, {0, 3}};
    for (auto& corner : corners)
      corner = corner + Vec2<double>{random.Real(-0.8, 0.8), random.Real(-0.8, 0.8)};
    if (random.Percent(50)) corners.pop_back();
    std::vector<int> nodes;
    for (auto const& corner : corners) nodes.push_back(AddNode(corner));
    bool const quad = corners.size() == 4;
    model.SetElem(kParent, Element(quad ? ElementType::Quad4 : ElementType::Tri3, nodes));
    if (quad && random.Percent(50))
      FourQuads(corners, nodes);
    else
      Fan(corners, nodes);
    return model;
  }

  /// Triangles from an inner point to sides that are cut at random.
  void Fan(std::vector<Vec2<double>> const& corners, std::vector<int> const& nodes) {
    std::vector<int> ring;
    for (std::size_t i = 0; i < corners.size(); ++i) {
      ring.push_back(nodes[i]);
      for (double const t : Places(random, random.Int(0, 3)))
        ring.push_back(AddNode(Between(corners[i], corners[(i + 1) % corners.size()], t)));
    }
    auto const inside = Between(Between(corners[0], corners[1], 0.4), corners[2], 0.4);
    int const centre = AddNode(inside);
    for (std::size_t i = 0; i < ring.size(); ++i)
      model.SetElem(kFirstPiece + static_cast<int>(i),
                    Element(ElementType::Tri3, {ring[i], ring[(i + 1) % ring.size()], centre}));
  }

  /// Quadrilaterals that begin at any of their corners.
  void FourQuads(std::vector<Vec2<double>> const& corners, std::vector<int> const& nodes) {
    std::vector<int> sides;
    for (std::size_t i = 0; i < 4; ++i)
      sides.push_back(AddNode(Between(corners[i], corners[(i + 1) % 4], random.Real(0.3, 0.7))));
    int const centre = AddNode((corners[0] + corners[1] + corners[2] + corners[3]) * 0.25);
    for (std::size_t i = 0; i < 4; ++i) {
      std::vector<int> piece{nodes[i], sides[i], centre, sides[(i + 3) % 4]};
      std::rotate(piece.begin(), piece.begin() + random.Int(0, 3), piece.end());
      model.SetElem(kFirstPiece + static_cast<int>(i), Element(ElementType::Quad4, piece));
    }
  }
};

/// Sets what plate loads have in common.
template <class Load>
void Dress(Load& load, Random& random) {
  load.SetDirection(AnyDirection(random));
  load.SetLoadedEntities(Elements(L"70"));
}

TEST(LoadTotals, OfUniformAndPlanePressuresAreKeptOnRandomSubdivisions) {
  Repeat([](Random& random) {
    auto model = PlateMaker(random).Make();
    for (int n = 1; n <= 4; ++n) {
      Data::CFaceLoad load;
      Dress(load, random);
      load.SetType(n % 2 == 0 ? Data::CFaceLoad::Load2D::Uniform
                              : Data::CFaceLoad::Load2D::PerCorner);
      auto const slope = AnyPoint(random, 5);
      auto const base = model.NodeCoor(1);
      double const first = random.Real(-10, 10);
      for (int i = 0; i < model.Elem(kParent).NumTopo(); ++i)
        load.SetValue(i, first + Dot(slope, model.NodeCoor(model.Elem(kParent).Topo(i)) - base));
      model.SetFaceLoad(n, load);
    }
    auto const before = PlateTotals(model);
    ASSERT_TRUE(CDataMgr(model).Map2DLoading(PiecesOf(model)));
    ASSERT_TRUE(AreEqual(PlateTotals(model), before, kRelative));
  });
}

TEST(LoadTotals, OfEdgeLoadsAreKeptOnRandomSubdivisions) {
  Repeat([](Random& random) {
    auto model = PlateMaker(random).Make();
    for (int n = 1; n <= 6; ++n) {
      Data::CEdgeLoad load;
      Dress(load, random);
      load.SetEdge(random.Int(1, model.Elem(kParent).NumTopo()));
      for (int i = 0; i < 2; ++i) load.SetValue(i, random.Real(-10, 10));
      model.SetEdgeLoad(n, load);
    }
    auto const before = PlateTotals(model);
    ASSERT_TRUE(CDataMgr(model).Map2DLoading(PiecesOf(model)));
    ASSERT_TRUE(AreEqual(PlateTotals(model), before, kRelative));
  });
}

TEST(LoadTotals, OfPointLoadsOnPlatesAreKeptOnRandomSubdivisions) {
  Repeat([](Random& random) {
    auto model = PlateMaker(random).Make();
    bool const quad = model.Elem(kParent).NumTopo() == 4;
    for (int n = 1; n <= 6; ++n) {
      Data::CFaceLoad load;
      Dress(load, random);
      load.SetType(Data::CFaceLoad::Load2D::Point);
      load.SetValue(0, random.Real(1, 10));
      double const r = random.Real(0, 1);
      double const s = random.Real(0, 1);
      load.SetPosition(quad ? Vec2<double>{2 * r - 1, 2 * s - 1} : Vec2<double>{r, s * (1 - r)});
      model.SetFaceLoad(n, load);
    }
    auto const before = PlateTotals(model);
    ASSERT_TRUE(CDataMgr(model).Map2DLoading(PiecesOf(model)));
    ASSERT_EQ(model.HighestFaceLoad(), 6);
    ASSERT_TRUE(AreEqual(PlateTotals(model), before, kRelative));
  });
}

// Solids.

TEST(LoadTotals, OfUniformPressuresOnFacesAreKeptOnPiecesNumberedLikeTheParent) {
  Repeat([](Random& random) {
    int const columns = random.Int(1, 3);
    int const rows = random.Int(1, 3);
    auto model = CutBrick(columns, rows, random.Int(1, 3));
    // The box becomes a skew one, its cuts fall where they may.
    auto const shift = AnyPoint(random, 20);
    auto const x = Vec3<double>{1, 0, 0} + AnyPoint(random, 0.3);
    auto const y = Vec3<double>{0, 1, 0} + AnyPoint(random, 0.3);
    auto const z = Vec3<double>{0, 0, 1} + AnyPoint(random, 0.3);
    std::array<std::array<double, 4>, 3> grid{};
    for (auto& line : grid)
      for (std::size_t i = 1; i < 4; ++i) line[i] = line[i - 1] + random.Real(0.5, 1.5);
    for (int n = 1; n <= model.HighestNode(); ++n) {
      auto const p = model.NodeCoor(n);
      auto const at = [&](std::size_t axis, double v) {
        return grid[axis][static_cast<std::size_t>(v)];
      };
      model.SetNodeCoor(n, shift + x * at(0, p.x) + y * at(1, p.y) + z * at(2, p.z));
    }
    for (int n = 1; n <= 6; ++n) {
      Data::CBodyFaceLoad load;
      Dress(load, random);
      load.SetFace(n - 1);
      load.SetValue(0, random.Real(1, 10));
      model.SetBodyFaceLoad(n, load);
    }
    auto const before = BodyTotals(model);
    ASSERT_TRUE(CDataMgr(model).Map3DLoading(PiecesOf(model)));
    ASSERT_EQ(model.HighestBodyFaceLoad(), 6);
    ASSERT_TRUE(AreEqual(BodyTotals(model), before, kRelative));
  });
}

}  // namespace
}  // namespace Tarvex::LoadTotalsPropertyTest
