#include "workbench/view/scene.h"

#include <gtest/gtest.h>

#include "store/record/node.h"
#include "tests/support/builders.h"

namespace Tarvex::SceneTest {
namespace {

using Testing::NodeAt;
using Workbench::MakeScene;
using Workbench::NumbersOf;
using Workbench::Scene;
using Workbench::SceneRequest;
using Workbench::ThingKind;
using Nodes = std::vector<int>;

SceneRequest Elements(std::vector<int> const& numbers) {
  SceneRequest request;
  for (int const n : numbers) request.elements.AddTo(n);
  return request;
}

int Count(Scene const& scene, ThingKind kind) {
  int count = 0;
  for (auto const& thing : scene.things) count += thing.kind == kind;
  return count;
}

TEST(MakeScene, TakesTheElementsThatAreAskedFor) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  model.SetLoadPanel(7, Testing::Panel({1, 2, 5}));
  auto const scene = MakeScene(model, Elements({2, 7}));
  EXPECT_EQ(scene.counts.plates, 1u);
  EXPECT_EQ(scene.counts.panels, 1u);
  ASSERT_EQ(scene.things.size(), 2u);
  EXPECT_EQ(scene.things[0].nodes, (Nodes{2, 3, 6, 5}));
  EXPECT_EQ(scene.things[1].nodes, (Nodes{1, 2, 5}));
}

TEST(MakeScene, AQuadraticPlateHasItsMidSideNodesBetweenItsCorners) {
  CZelData model;
  for (int i = 0; i < 6; ++i) NodeAt(model, i, i * i, 0);
  model.SetElem(1, Testing::Element(ElementType::Tri6, {1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(MakeScene(model, Elements({1})).things.at(0).nodes, (Nodes{1, 4, 2, 5, 3, 6}));
}

TEST(MakeScene, SolidsShowTheFacesThatTheyDoNotShare) {
  CZelData model;
  Testing::Brick(model, 1, 1, 1);
  for (double const y : {0, 1}) NodeAt(model, 2, y, 0);  // 9, 10
  for (double const y : {0, 1}) NodeAt(model, 2, y, 1);  // 11, 12
  // Brick 1 has 1 2 3 4 below and 5 6 7 8 above; brick 2 stands on its side 2 3 7 6.
  model.SetElem(2, Testing::Element(ElementType::Brick8, {2, 9, 10, 3, 6, 11, 12, 7}));
  EXPECT_EQ(Count(MakeScene(model, Elements({1})), ThingKind::SolidFace), 6);
  auto const both = MakeScene(model, Elements({1, 2}));
  EXPECT_EQ(Count(both, ThingKind::SolidFace), 10);  // 2 x 6 less the two that meet
  EXPECT_EQ(both.counts.solids, 2u);
}

TEST(MakeScene, CountsWhatItCannotDraw) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  model.SetElem(1, Testing::Element(ElementType::Beam, {1, 9}));
  model.SetElem(2, Testing::Element(static_cast<ElementType>(4), {1, 1}));
  auto const scene = MakeScene(model, Elements({1, 2}));
  EXPECT_EQ(scene.counts.left, 2u);
  EXPECT_TRUE(scene.things.empty());
  EXPECT_TRUE(scene.counts.IsEmpty());
}

TEST(MakeScene, SupportsAreThoseOfTheNodesShownOrOfAll) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  model.SetNode(1, Data::CNode({0, 0, 0}, 0, Vbool6(L"fix")));
  model.SetNode(2, Data::CNode({1, 0, 0}, 0, Vbool6(false, false, true, false, false, false)));
  model.SetNode(3, Data::CNode({2, 0, 0}, 0, Vbool6(L"pin")));
  auto request = Elements({1});
  auto const shown = MakeScene(model, request);
  EXPECT_EQ(Count(shown, ThingKind::Fixed), 1);
  EXPECT_EQ(Count(shown, ThingKind::Support), 1);
  EXPECT_EQ(shown.counts.supports, 2u);
  request.allNodes = true;
  EXPECT_EQ(Count(MakeScene(model, request), ThingKind::Support), 2);
}

TEST(MakeScene, NumbersWhatIsAskedFor) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  Testing::MemberAt(model, MembType::Beam, L"1 4");
  auto request = Elements({1});
  request.members.AddTo(1);
  auto const numbers = [&](NumbersOf of) {
    request.numbers = of;
    Nodes found;
    for (auto const& mark : MakeScene(model, request).numbers) found.push_back(mark.number);
    return found;
  };
  EXPECT_EQ(numbers(NumbersOf::None), Nodes{});
  EXPECT_EQ(numbers(NumbersOf::Nodes), (Nodes{1, 2, 3, 4}));
  EXPECT_EQ(numbers(NumbersOf::Elements), Nodes{1});
  EXPECT_EQ(numbers(NumbersOf::Members), Nodes{1});
  request.numbers = NumbersOf::Elements;
  EXPECT_EQ(MakeScene(model, request).numbers[0].at, (Vec3<double>{0.5, 0.5, 0}));
}

TEST(MakeScene, PartsAMemberWhereElementsMeetIt) {
  CZelData model;
  Testing::Grid(model, 2, 1);  // nodes 1 2 3 along x
  Testing::MemberAt(model, MembType::Beam, L"3 1");
  auto request = Elements({1, 2});
  request.members.AddTo(1);
  std::vector<std::pair<ThingKind, Nodes>> parts;
  for (auto const& thing : MakeScene(model, request).things)
    if (!Workbench::IsFace(thing.kind)) parts.emplace_back(thing.kind, thing.nodes);
  // The arrow is at the end of the last part alone.
  EXPECT_EQ(parts, (std::vector<std::pair<ThingKind, Nodes>>{{ThingKind::MemberBody, {3, 2}},
                                                             {ThingKind::Member, {2, 1}}}));
}

}  // namespace
}  // namespace Tarvex::SceneTest
