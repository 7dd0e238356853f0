#include "store/record/node.h"

#include <gtest/gtest.h>

#include "tests/support/print.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::NodeTest {
namespace {

TEST(Node, StandsAtTheOriginWithoutRestraintAtFirst) {
  CNode const node;
  EXPECT_EQ(node.Position(), Vec3<double>());
  EXPECT_EQ(node.Axis(), 0);
  EXPECT_TRUE(node.Restraint().IsNone());
  EXPECT_EQ(node.SpringProperty(), 0);
  EXPECT_EQ(node.MassProperty(), 0);
  EXPECT_EQ(node.DamperProperty(), 0);
  EXPECT_EQ(node.MeshSize(), 0);
}

TEST(Node, TakesPositionAxisAndRestraint) {
  CNode const node({1, 2, 3}, 4, Vbool6(L"pin"));
  EXPECT_EQ(node.Position(), (Vec3<double>{1, 2, 3}));
  EXPECT_EQ(node.Axis(), 4);
  EXPECT_EQ(node.Restraint(), Vbool6(L"pin"));
}

TEST(Node, KeepsWhatIsSet) {
  CNode node;
  node.SetPosition({1, 2, 3});
  node.SetAxis(1);
  node.SetRestraint(Vbool6(L"fix"));
  node.SetSpringProperty(2);
  node.SetMassProperty(3);
  node.SetDamperProperty(4);
  node.SetMeshSize(0.5);
  EXPECT_EQ(node.Position(), (Vec3<double>{1, 2, 3}));
  EXPECT_EQ(node.Axis(), 1);
  EXPECT_EQ(node.Restraint(), Vbool6(L"fix"));
  EXPECT_EQ(node.SpringProperty(), 2);
  EXPECT_EQ(node.MassProperty(), 3);
  EXPECT_EQ(node.DamperProperty(), 4);
  EXPECT_EQ(node.MeshSize(), 0.5);
}

TEST(Node, HasNothingAttachedOutsideAModel) {
  CNode const node;
  for (auto const kind : {SelNone, SelNode, SelElement, SelMember, SelCase}) {
    EXPECT_TRUE(node.AttachedEnt(kind).empty());
    EXPECT_EQ(node.NumEntAttached(kind), 0);
  }
}

TEST(Node, GivesAttachmentsByKind) {
  CNode node;
  NodeUseAccess::Pointer const use(new NodeUse);
  use->elements = {3, 5};
  use->members = {9};
  NodeUseAccess::Set(node, use);
  EXPECT_EQ(node.AttachedEnt(SelElement), (boost::container::flat_set<int>{3, 5}));
  EXPECT_EQ(node.AttachedEnt(SelMember), (boost::container::flat_set<int>{9}));
  EXPECT_TRUE(node.AttachedEnt(SelNode).empty());
  EXPECT_TRUE(node.AttachedEnt(SelNone).empty());
  EXPECT_EQ(node.NumEntAttached(SelElement), 2);
  EXPECT_EQ(node.NumEntAttached(SelMember), 1);
  EXPECT_EQ(node, CNode());
}

TEST(Node, ComparesEveryField) {
  Testing::ExpectStoredFields<CNode>(
      {{"name", [](CNode& n) { n.SetName(L"n"); }},
       {"sid", [](CNode& n) { n.SetSid(L"s"); }},
       {"colour", [](CNode& n) { n.SetColour(1); }},
       {"position",
        [](CNode& n) {
          n.SetPosition({0, -0.0, 0});
        }},
       {"axis", [](CNode& n) { n.SetAxis(1); }},
       {"restraint", [](CNode& n) { n.SetRestraint(Vbool6(L"pin")); }},
       {"springProperty", [](CNode& n) { n.SetSpringProperty(1); }},
       {"massProperty", [](CNode& n) { n.SetMassProperty(1); }},
       {"damperProperty", [](CNode& n) { n.SetDamperProperty(1); }},
       {"meshSize", [](CNode& n) { n.SetMeshSize(1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::NodeTest
