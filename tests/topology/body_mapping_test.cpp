// Loads on faces and temperatures of solids given to pieces.
#include "tests/topology/body_support.h"

namespace Tarvex::BodyMappingTest {
namespace {

using namespace Testing;
using Data::CBodyFaceLoad;
using Data::CBodyThermalLoad;
using FaceType = CBodyFaceLoad::Load3D;
using ThermalType = CBodyThermalLoad::ThermalType;

bool Map(CZelData& model, NumberLists const& pieces) {
  return CDataMgr(model).Map3DLoading(pieces);
}
bool Map(CZelData& model) { return Map(model, PiecesOf(model)); }

CBodyFaceLoad FaceLoad(FaceType type, int face, std::vector<double> const& values,
                       wchar_t const* list = L"70") {
  auto load = OnParent<CBodyFaceLoad>(type, values, list);
  load.SetFace(face);
  return load;
}
CBodyThermalLoad Temperature(ThermalType type, std::vector<double> const& values,
                             wchar_t const* list = L"70") {
  return OnParent<CBodyThermalLoad>(type, values, list);
}

TEST(Map3dFaceLoading, AddsThePiecesThatLieOnTheFaceToAUniformPressure) {
  // 2 by 2 by 2 cells: 80 to 83 below, 84 to 87 above; odd numbers at x = 1, 82 83 86 87 at y = 1.
  struct Case {
    bool (*test)(Vec3<double> const&);
    wchar_t const* pieces;
  };
  for (auto const& [test, pieces] :
       {Case{[](Vec3<double> const& p) { return p.z == 0; }, L"80 81 82 83"},
        Case{[](Vec3<double> const& p) { return p.z == 2; }, L"84 85 86 87"},
        Case{[](Vec3<double> const& p) { return p.x == 0; }, L"80 82 84 86"},
        Case{[](Vec3<double> const& p) { return p.x == 2; }, L"81 83 85 87"},
        Case{[](Vec3<double> const& p) { return p.y == 0; }, L"80 81 84 85"},
        Case{[](Vec3<double> const& p) { return p.y == 2; }, L"82 83 86 87"}}) {
    auto model = CutBrick(2, 2, 2);
    model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, FaceWhere(model, kParent, test), {5}));
    EXPECT_TRUE(Map(model));
    EXPECT_EQ(ValuesOf(model.BodyFaceLoad(), 1), (AllValues{{pieces, {5}}}));
  }
}

TEST(Map3dFaceLoading, GivesAPressureByCornerToTheFirstFourNodesOfThePieceUnderTheParentsFace) {
  auto model = CutBrick(2, 1, 1);
  int const top = FaceWhere(model, kParent, [](Vec3<double> const& p) { return p.z == 1; });
  // 1 + 2 x + 3 y over the face, at its nodes in their order.
  std::vector<double> values;
  for (int const node : model.Elem(kParent).FaceTopo(top)) {
    auto const& p = model.NodeCoor(node);
    values.push_back(1 + 2 * p.x + 3 * p.y);
  }
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::PerCorner, top, values));
  EXPECT_TRUE(Map(model));
  // The first four nodes of a piece are those below: (0,0) (1,0) (1,1) (0,1), a unit on for 81.
  EXPECT_EQ(ValuesOf(model.BodyFaceLoad(), 4),
            (AllValues{{L"80", {1, 3, 6, 4}}, {L"81", {3, 5, 8, 6}}}));
  EXPECT_EQ(model.BodyFaceLoad(1).Face(), top);
}

TEST(Map3dFaceLoading, SkipsAPieceWhoseNodesAreNotNumberedLikeTheParents) {
  auto model = CutBrick(1, 1, 2);
  int const below = FaceWhere(model, kParent, [](Vec3<double> const& p) { return p.z == 0; });
  // The lower piece upside down: the places of the face below hold its upper nodes.
  auto const nodes = model.Elem(80).Topology();
  model.SetElem(80, Element(ElementType::Brick8, {nodes[4], nodes[5], nodes[6], nodes[7], nodes[0],
                                                  nodes[1], nodes[2], nodes[3]}));
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, below, {5}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(model.HighestBodyFaceLoad(), 0);  // the parent comes off all the same
}

TEST(Map3dFaceLoading, SkipsAPieceThatReachesOutOfTheParent) {
  auto model = CutBrick(2, 1, 1);
  int const below = FaceWhere(model, kParent, [](Vec3<double> const& p) { return p.z == 0; });
  auto out = model.Elem(81);
  out.SetTopo(1, NodeAt(model, 3, 0, 0));
  model.SetElem(81, out);
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, below, {5}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.BodyFaceLoad(), 1), (AllValues{{L"80", {5}}}));
}

/// A solid of 2 by 2 by 2 with a uniform pressure on each face, and one piece on nodes of its own.
CZelData PressedBrick(Points const& piece) {
  auto model = CutBrick(2, 2, 2);
  model.BlankElem(kFirstPiece, 8);
  std::vector<int> nodes;
  for (auto const& p : piece) nodes.push_back(NodeAt(model, p.x, p.y, p.z));
  model.SetElem(kFirstPiece, Element(ElementType::Brick8, nodes));
  for (int face = 0; face < 6; ++face)
    model.SetBodyFaceLoad(face + 1, FaceLoad(FaceType::Uniform, face, {5}));
  return model;
}
/// The faces whose loads are left, each once.
std::vector<int> LoadedFaces(CZelData const& model) {
  std::vector<int> faces;
  for (auto const& load : model.BodyFaceLoad()) {
    EXPECT_EQ(TextOf(load.LoadedEntities()), L"80");
    faces.push_back(load.Face());
  }
  return faces;
}

TEST(Map3dFaceLoading, LetsAPieceLieOffAFaceOrOutsideByAMillionthInNaturalCoordinates) {
  // A cell at the corner of the solid; natural co-ordinates are lengths less 1.
  auto const cell = [](double z, double x) {
    return Points{{1, 0, z}, {x, 0, z}, {2, 1, z}, {1, 1, z},
                  {1, 0, 1}, {2, 0, 1}, {2, 1, 1}, {1, 1, 1}};
  };
  struct Case {
    double z;
    double x;
    bool takes;
  };
  for (auto const& [z, x, takes] : {Case{0, 2, true}, Case{1e-7, 2, true}, Case{1e-5, 2, false},
                                    Case{0, 2 + 1e-7, true}, Case{0, 2 + 1e-5, false}}) {
    auto model = PressedBrick(cell(z, x));
    int const below = FaceWhere(model, kParent, [](Vec3<double> const& p) { return p.z == 0; });
    EXPECT_TRUE(Map(model, {{kParent, {kFirstPiece}}}));
    auto const faces = LoadedFaces(model);
    EXPECT_EQ(std::count(faces.begin(), faces.end(), below), takes ? 1 : 0) << z << " " << x;
  }
}

TEST(Map3dFaceLoading, TakesANaturalCoordinateOfZeroInCommonWithTheCentreOfAFaceForTheFace) {
  // Upright on the middles of the sides, from half the height up: each node has r = 0 or s = 0, as
  // the centres of the lower and the upper face have; the piece touches the upper one alone. A side
  // face has t = 0 at its centre and so have the lower nodes of the piece, but not its upper ones.
  auto model = PressedBrick(
      {{1, 0, 1}, {2, 1, 1}, {1, 2, 1}, {0, 1, 1}, {1, 0, 2}, {2, 1, 2}, {1, 2, 2}, {0, 1, 2}});
  std::vector<int> expected;
  for (double const z : {0.0, 2.0})
    expected.push_back(FaceWhere(model, kParent, [z](Vec3<double> const& p) { return p.z == z; }));
  std::sort(expected.begin(), expected.end());
  EXPECT_TRUE(Map(model, {{kParent, {kFirstPiece}}}));
  EXPECT_EQ(LoadedFaces(model), expected);
}

TEST(Map3dFaceLoading, GivesNothingForAFaceThatTheSolidHasNotAndFindsNoFault) {
  for (int const face : {-1, 6, 99}) {
    auto model = CutBrick(2, 1, 1);
    model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, face, {5}));
    EXPECT_TRUE(Map(model));
    EXPECT_EQ(model.HighestBodyFaceLoad(), 0);
  }
}

TEST(Map3dFaceLoading, GivesNothingToAPieceWithFewerNodes) {
  auto model = CutBrick(2, 1, 1);
  auto const nodes = model.Elem(80).Topology();
  model.SetElem(80, Element(ElementType::Wedge6,
                            {nodes[0], nodes[1], nodes[3], nodes[4], nodes[5], nodes[7]}));
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, 0, {5}));
  EXPECT_TRUE(Map(model, {{kParent, {80}}}));
  EXPECT_EQ(model.HighestBodyFaceLoad(), 0);
}

TEST(Map3dFaceLoading, GivesUniformPressureOfWedgesToPiecesOnTheirFaces) {
  CZelData model;
  for (double const z : {0.0, 1.0, 2.0})
    for (auto const& p : Points{{0, 0, z}, {1, 0, z}, {0, 1, z}}) NodeAt(model, p.x, p.y, p.z);
  model.SetElem(kParent, Element(ElementType::Wedge6, {1, 2, 3, 7, 8, 9}));
  model.SetElem(80, Element(ElementType::Wedge6, {1, 2, 3, 4, 5, 6}));
  model.SetElem(81, Element(ElementType::Wedge6, {4, 5, 6, 7, 8, 9}));
  int below = -1;
  for (int face = 0; face < 5; ++face)
    if (model.Elem(kParent).FaceTopo(face).size() == 3 &&
        model.NodeCoor(model.Elem(kParent).FaceTopo(face)[0]).z == 0)
      below = face;
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, below, {5}));
  model.SetBodyFaceLoad(2, FaceLoad(FaceType::PerCorner, below, {1, 2, 3}));
  EXPECT_TRUE(Map(model));
  // A triangle has no fit through four corners.
  EXPECT_EQ(ValuesOf(model.BodyFaceLoad(), 1), (AllValues{{L"80", {5}}}));
}

TEST(Map3dFaceLoading, LeavesALoadOnAnIndirectListAndSaysSo) {
  auto model = CutBrick(2, 1, 1);
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, 0, {5}, L"all"));
  CZelData const before(model);
  EXPECT_FALSE(Map(model));
  EXPECT_TRUE(IsUnchanged(model, before));
}

// Temperatures.

TEST(MapBodyThermalLoadLoading, AddsThePiecesToAUniformTemperature) {
  auto model = CutBrick(2, 1, 1);
  model.SetBodyThermalLoad(1, Temperature(ThermalType::Uniform, {20}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.BodyThermalLoad(), 1), (AllValues{{L"80 81", {20}}}));
}

TEST(MapBodyThermalLoadLoading, FitsEightTermsAndWritesTheFirstHalfOfTheNodesOnly) {
  auto model = CutBrick(2, 1, 2);
  // 1 + x + 2 y + 3 z + x y z at the corners of 2 by 1 by 2.
  auto const at = [](double x, double y, double z) { return 1 + x + 2 * y + 3 * z + x * y * z; };
  std::vector<double> const corners{at(0, 0, 0), at(2, 0, 0), at(2, 1, 0), at(0, 1, 0),
                                    at(0, 0, 2), at(2, 0, 2), at(2, 1, 2), at(0, 1, 2)};
  model.SetBodyThermalLoad(1, Temperature(ThermalType::PerNode, corners));
  EXPECT_TRUE(Map(model, {{kParent, {83}}}));
  // 83 begins at (1, 0, 1). Its nodes 4 to 7 keep what those of the parent have.
  EXPECT_EQ(ValuesOf(model.BodyThermalLoad(), 8),
            (AllValues{{L"83",
                        {at(1, 0, 1), at(2, 0, 1), at(2, 1, 1), at(1, 1, 1), corners[4], corners[5],
                         corners[6], corners[7]}}}));
}

TEST(MapBodyThermalLoadLoading, WritesThreeValuesForAWedgeThatIsAPieceOfABrick) {
  auto model = CutBrick(2, 1, 1);
  auto const nodes = model.Elem(80).Topology();
  model.SetElem(80, Element(ElementType::Wedge6,
                            {nodes[0], nodes[1], nodes[3], nodes[4], nodes[5], nodes[7]}));
  // 1 + x + 2 y + 3 z at the corners of 2 by 1 by 1.
  model.SetBodyThermalLoad(1, Temperature(ThermalType::PerNode, {1, 3, 5, 3, 4, 6, 8, 6}));
  EXPECT_TRUE(Map(model, {{kParent, {80}}}));
  // At (0,0,0) (1,0,0) (0,1,0): 1, 2, 3. From the fourth on those of the parent.
  EXPECT_EQ(ValuesOf(model.BodyThermalLoad(), 8), (AllValues{{L"80", {1, 2, 3, 3, 4, 6, 8, 6}}}));
}

TEST(MapBodyThermalLoadLoading, LeavesALoadByNodeOnASolidWithFewerThanEightNodesOut) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0.5, 0, 0}})
    NodeAt(model, p.x, p.y, p.z);
  model.SetElem(kParent, Element(ElementType::Tetra4, {1, 2, 3, 4}));
  model.SetElem(80, Element(ElementType::Tetra4, {1, 5, 3, 4}));
  model.SetBodyThermalLoad(1, Temperature(ThermalType::PerNode, {1, 2, 3, 4}));
  model.SetBodyThermalLoad(2, Temperature(ThermalType::Uniform, {7}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.BodyThermalLoad(), 1), (AllValues{{L"80", {7}}}));
}

TEST(MapBodyThermalLoadLoading, LeavesALoadOnAnIndirectListAndSaysSo) {
  auto model = CutBrick(2, 1, 1);
  model.SetBodyThermalLoad(1, Temperature(ThermalType::PerNode, {1, 2, 3}, L"all"));
  CZelData const before(model);
  EXPECT_FALSE(Map(model));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(Map3DLoading, MapsTemperaturesAlsoWhereFaceLoadsFailedAndIsTwoSteps) {
  auto model = CutBrick(2, 1, 1);
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, 0, {5}, L"all"));
  model.SetBodyThermalLoad(1, Temperature(ThermalType::Uniform, {20}));
  EXPECT_FALSE(Map(model));
  EXPECT_EQ(ValuesOf(model.BodyThermalLoad(), 1), (AllValues{{L"80 81", {20}}}));
  EXPECT_EQ(model.NumUndo(), 2);
}

TEST(Map3DLoading, WritesNothingWhereACoordinateOrAValueIsNotFiniteAndSaysSo) {
  double const inf = std::numeric_limits<double>::infinity();
  auto model = CutBrick(2, 1, 1);
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::PerCorner, 0, {1, 2, 3, inf}));
  EXPECT_FALSE(Map(model));
  EXPECT_EQ(model.HighestBodyFaceLoad(), 0);
  model.SetBodyThermalLoad(1, Temperature(ThermalType::PerNode, {1, 2, inf}));
  EXPECT_FALSE(Map(model));
  EXPECT_EQ(model.HighestBodyThermalLoad(), 0);
  model.SetNodeCoor(2, {inf, 0, 0});
  model.SetBodyFaceLoad(1, FaceLoad(FaceType::Uniform, 0, {1}));
  model.SetBodyThermalLoad(1, Temperature(ThermalType::Uniform, {1}));
  EXPECT_FALSE(Map(model));
  EXPECT_EQ(model.HighestBodyFaceLoad(), 0);
  EXPECT_EQ(model.HighestBodyThermalLoad(), 0);
}

}  // namespace
}  // namespace Tarvex::BodyMappingTest
