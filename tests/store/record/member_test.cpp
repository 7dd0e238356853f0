#include "store/record/member.h"

#include <gtest/gtest.h>

#include "store/record/variant_element.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::MemberTest {
namespace {

CMember Of(MembType type, wchar_t const* topology) {
  CMember member(type, 1, 1);
  EXPECT_TRUE(member.SetTopo(CString(topology)));
  return member;
}

TEST(Member, IsAGenericLineOfBeamsAtFirst) {
  CMember const member(3, 4);
  EXPECT_EQ(member.Type(), MembType::Generic);
  EXPECT_EQ(member.Group(), 3);
  EXPECT_EQ(member.Property(), 4);
  EXPECT_TRUE(member.Is1D());
  EXPECT_TRUE(member.IsSection());
  EXPECT_EQ(member.AnalysisTypes().element1D, ElementType::Beam);
  EXPECT_EQ(member.AnalysisTypes().order, Member::AnalysisOrder::Linear);
  EXPECT_FALSE(member.HasElements());
  EXPECT_FALSE(member.IsDummy());
  EXPECT_FALSE(member.IsOffset());
  EXPECT_FALSE(member.ReleaseEdges());
}

TEST(Member, HasTheDimensionOfItsType) {
  struct Row {
    MembType type;
    int dimension;
  };
  for (auto const& [type, dimension] :
       {Row{MembType::Beam, 1}, Row{MembType::Column, 1}, Row{MembType::Brace, 1},
        Row{MembType::Slab, 2}, Row{MembType::Wall, 2}, Row{MembType::VoidCutter, 2},
        Row{MembType::Solid, 3}}) {
    auto const member = Of(type, L"1 2 3");
    EXPECT_EQ(member.Dimension(), dimension);
    EXPECT_EQ(member.Is1D(), dimension == 1);
    EXPECT_EQ(member.Is2D(), dimension == 2);
    EXPECT_EQ(member.Is3D(), dimension == 3);
    EXPECT_EQ(member.IsVoidCutter(), type == MembType::VoidCutter);
  }
}

TEST(Member, OfTheGenericTypeHasTheDimensionOfItsTopology) {
  EXPECT_TRUE(Of(MembType::Generic, L"").Is1D());
  EXPECT_TRUE(Of(MembType::Generic, L"1 2").Is1D());
  EXPECT_TRUE(Of(MembType::Generic, L"1 arc 2 3").Is1D());
  EXPECT_TRUE(Of(MembType::Generic, L"1 2 3").Is2D());
  EXPECT_TRUE(Of(MembType::Generic, L"1 2 3 4").Is2D());
  EXPECT_TRUE(Of(MembType::Generic, L"1 2 3; 1 2 4").Is3D());
}

TEST(Member, IsAnArcIn1DOnly) {
  EXPECT_EQ(Of(MembType::Beam, L"1 arc 2 3").Geometry(), MembGeom::ArcThrough);
  EXPECT_EQ(Of(MembType::Beam, L"1 about 3").Geometry(), MembGeom::ArcAbout);
  EXPECT_EQ(Of(MembType::Beam, L"1 2 3").Geometry(), MembGeom::Line);
  EXPECT_EQ(Of(MembType::Slab, L"1 arc 2 3").Geometry(), MembGeom::Line);
}

TEST(Member, HasASectionIn1DWhereItsElementsHaveOne) {
  auto member = Of(MembType::Beam, L"1 2");
  member.SetAnalysisType1D(ElementType::Spring);
  EXPECT_FALSE(member.IsSection());
  EXPECT_FALSE(Of(MembType::Slab, L"1 2 3").IsSection());
}

TEST(Member, KeepsATopologyWhoseTextDoesNotParse) {
  auto member = Of(MembType::Beam, L"1 2");
  EXPECT_FALSE(member.SetTopo(CString(L"1 to 2")));
  EXPECT_EQ(member.Topo().String(), L"1 2");
}

TEST(Member, HasReleaseAndRestraintAtEachEnd) {
  CMember member(1, 1);
  CElemConnect const hinge(Vbool6(0, 0, 0, 0, 1, 1));
  member.SetEndRelease(1, hinge);
  member.SetEndRestraint(0, Vbool6(1, 0, 0, 0, 0, 0));
  EXPECT_TRUE(member.EndRelease(0).IsNone());
  EXPECT_EQ(member.EndRelease(1), hinge);
  EXPECT_EQ(member.EndRestraint(0), Vbool6(1, 0, 0, 0, 0, 0));
  EXPECT_TRUE(member.EndRestraint(1).IsNone());
}

TEST(Member, ListsChildrenByReplicaInTheOrderTheyCame) {
  CMember member(1, 1);
  member.AddChildElement(7, 1);
  member.AddChildElement(9, 0);
  member.AddChildElement(3, 1);
  member.AddChildElement(7, 1);  // listed there
  member.AddChildElement(7, 0);  // of another replica
  EXPECT_TRUE(member.HasElements());
  EXPECT_EQ(member.ChildElements(), (std::map<int, std::vector<int>>{{0, {9, 7}}, {1, {7, 3}}}));
  EXPECT_EQ(member.NumElem(), 4);
  EXPECT_EQ(member.Elem(0), 9);
  EXPECT_EQ(member.Elem(1), 7);
  EXPECT_EQ(member.Elem(2), 7);
  EXPECT_EQ(member.Elem(3), 3);
  EXPECT_EQ(member.Elem(4), 0);
  EXPECT_EQ(member.Elem(-1), 0);
}

TEST(Member, LosesAReplicaWithItsLastChild) {
  CMember member(1, 1);
  member.AddChildElement(7, 1);
  member.AddChildElement(9, 0);
  EXPECT_TRUE(member.RemoveChildElement(7));
  EXPECT_FALSE(member.RemoveChildElement(7));
  EXPECT_EQ(member.ChildElements(), (std::map<int, std::vector<int>>{{0, {9}}}));
  EXPECT_TRUE(member.RemoveChildElement(9));
  EXPECT_FALSE(member.HasElements());
}

TEST(Member, TakesElementsOfItsDimension) {
  struct Row {
    ElementType type;
    int dimension;
  };
  for (auto const& [type, dimension] :
       {Row{ElementType::Bar, 1}, Row{ElementType::Beam, 1}, Row{ElementType::Spacer, 1},
        Row{ElementType::Quad4, 2}, Row{ElementType::Tri6, 2}, Row{ElementType::Brick8, 3},
        Row{ElementType::Pyramid5, 3}}) {
    auto const variant = ToVariantType(type);
    EXPECT_EQ(Of(MembType::Beam, L"1 2").IsElementTypeValid(variant), dimension == 1);
    EXPECT_EQ(Of(MembType::Slab, L"1 2 3").IsElementTypeValid(variant), dimension == 2);
    EXPECT_EQ(Of(MembType::Solid, L"").IsElementTypeValid(variant), dimension == 3);
  }
  EXPECT_TRUE(Of(MembType::Wall, L"").IsElementTypeValid(VariantElementType::LoadPanel));
  EXPECT_FALSE(Of(MembType::Beam, L"").IsElementTypeValid(VariantElementType::LoadPanel));
}

TEST(Member, MatchesTheElementsThatItsAnalysisTypeAsksFor) {
  auto beam = Of(MembType::Beam, L"1 2");
  EXPECT_TRUE(beam.DoesElementTypeMatchAnalysisType(ToVariantType(ElementType::Beam)));
  EXPECT_FALSE(beam.DoesElementTypeMatchAnalysisType(ToVariantType(ElementType::Bar)));
  beam.SetAnalysisType1D(ElementType::Spacer);
  EXPECT_TRUE(beam.DoesElementTypeMatchAnalysisType(ToVariantType(ElementType::Spacer)));
  EXPECT_FALSE(beam.DoesElementTypeMatchAnalysisType(VariantElementType::LoadPanel));

  struct Row {
    Member::AnalysisOrder order;
    bool linear;
    bool quadratic;
    bool panel;
  };
  auto slab = Of(MembType::Slab, L"1 2 3");
  for (auto const& [order, linear, quadratic, panel] :
       {Row{Member::AnalysisOrder::Linear, true, false, false},
        Row{Member::AnalysisOrder::Quadratic, false, true, false},
        Row{Member::AnalysisOrder::RigidDiaphragm, true, false, false},
        Row{Member::AnalysisOrder::LoadPanels, false, false, true}}) {
    slab.SetAnalysisOrder(order);
    for (auto const type : {ElementType::Quad4, ElementType::Tri3})
      EXPECT_EQ(slab.DoesElementTypeMatchAnalysisType(ToVariantType(type)), linear);
    for (auto const type : {ElementType::Quad8, ElementType::Tri6})
      EXPECT_EQ(slab.DoesElementTypeMatchAnalysisType(ToVariantType(type)), quadratic);
    EXPECT_EQ(slab.DoesElementTypeMatchAnalysisType(VariantElementType::LoadPanel), panel);
    EXPECT_FALSE(slab.DoesElementTypeMatchAnalysisType(ToVariantType(ElementType::Beam)));
  }
  auto const solid = Of(MembType::Solid, L"");
  EXPECT_TRUE(solid.DoesElementTypeMatchAnalysisType(ToVariantType(ElementType::Wedge6)));
}

TEST(Member, PointsByItsPropertyIntoTheTableOfItsElements) {
  auto const tableOf = [](CMember const& member) {
    auto module = CModule::None;
    ForEachField<CMember>([&](auto const& row) {
      if (row.name == "property") module = row.target(member);
    });
    return module;
  };
  auto beam = Of(MembType::Beam, L"1 2");
  EXPECT_EQ(tableOf(beam), CModule::Section);
  beam.SetAnalysisType1D(ElementType::Cable);
  EXPECT_EQ(tableOf(beam), CModule::CableProp);
  EXPECT_EQ(tableOf(Of(MembType::Slab, L"1 2 3")), CModule::Prop2D);
  EXPECT_EQ(tableOf(Of(MembType::Solid, L"")), CModule::Prop3D);
}

TEST(Member, ComparesEveryField) {
  Testing::ExpectStoredFields<CMember>(
      {{"name", [](CMember& m) { m.SetName(L"B1"); }},
       {"sid", [](CMember& m) { m.SetSid(L"s"); }},
       {"colour", [](CMember& m) { m.SetColour(0x123456); }},
       {"type", [](CMember& m) { m.SetType(MembType::Column); }},
       {"group", [](CMember& m) { m.SetGroup(5); }},
       {"property", [](CMember& m) { m.SetProperty(5); }},
       {"topology", [](CMember& m) { m.SetTopo(CString(L"1 2")); }},
       {"orientationNode", [](CMember& m) { m.SetOrientationNode(5); }},
       {"orientationAngle", [](CMember& m) { m.SetOrientationAngle(5); }},
       {"offset",
        [](CMember& m) {
          m.SetOffset({0, 0, 1, 0});
        }},
       {"endRelease",
        [](CMember& m) { m.SetEndRelease(1, CElemConnect(Vbool6(1, 0, 0, 0, 0, 0))); }},
       {"endRestraint", [](CMember& m) { m.SetEndRestraint(1, Vbool6(1, 0, 0, 0, 0, 0)); }},
       {"analysisType1D", [](CMember& m) { m.SetAnalysisType1D(ElementType::Bar); }},
       {"analysisOrder", [](CMember& m) { m.SetAnalysisOrder(Member::AnalysisOrder::Quadratic); }},
       {"dummy", [](CMember& m) { m.SetIsDummy(true); }},
       {"releaseEdges", [](CMember& m) { m.SetReleaseEdges(true); }},
       {"children", [](CMember& m) { m.AddChildElement(1, 0); }}});
}

}  // namespace
}  // namespace Tarvex::Data::MemberTest
