// The records, as an application links them.
#include <gtest/gtest.h>

#include <utility>

#include "store/record/axis.h"
#include "store/record/element.h"
#include "store/record/node.h"
#include "store/record/spec.h"
#include "store/record/variant_element.h"
#include "tests/link/linked.h"

namespace Tarvex::RecordsLinkTest {
namespace {

using Data::CElement;
using Testing::AreLinked;
using Testing::Member;

/// Copies, moves and assigns a record; what comes out in the end.
template <class Record>
Record PassedOn(Record const& record) {
  Record copy(record);
  Record moved(std::move(copy));
  Record assigned(record);
  assigned = moved;
  Record last(record);
  last = std::move(assigned);
  return last;
}

TEST(RecordsLink, Elements) {
  EXPECT_TRUE(AreLinked(&CElement::SetType, Member<int(int) const>(&CElement::Topo),
                        Member<void(int, int)>(&CElement::SetTopo),
                        Member<std::vector<int>(int) const>(&CElement::FaceTopo)));
  CElement element(2, ElementType::Quad4, 3);
  element.SetTopo(3, 7);
  element.SetConnect(1, CElemConnect(Vbool6(true, false, false, false, false, false)));
  auto const same = PassedOn(element);
  EXPECT_TRUE(same == element);
  EXPECT_EQ(same.Topo(3), 7);
  EXPECT_EQ(same.FaceTopo(0), (std::vector{0, 0, 0, 7}));
  element.SetType(ElementType::Tri3);
  EXPECT_EQ(element.NumTopo(), 3);
}

TEST(RecordsLink, Connections) {
  using Data::ConnectList;
  EXPECT_TRUE(
      AreLinked(&ConnectList::At, &ConnectList::Set, &ConnectList::Truncate, &ConnectList::Assign));
  ConnectList list;
  list.Set(2, CElemConnect(Vbool6(CString(L"pin"))));
  EXPECT_TRUE(PassedOn(list) == list);
  EXPECT_TRUE(list.At(2).Release().X());
  list.Truncate(2);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(RecordsLink, Shapes) {
  EXPECT_TRUE(AreLinked(&ShapeOf, &ToElementType, &ToVariantType));
  EXPECT_EQ(ShapeOf(ElementType::Brick8).faces.size(), 6u);
  EXPECT_EQ(ToElementType(VariantElementType::Spacer), ElementType::Spacer);
  EXPECT_EQ(ToVariantType(ElementType::Spacer), VariantElementType::Spacer);
}

TEST(RecordsLink, NodesAndAxes) {
  EXPECT_TRUE(AreLinked(&Data::CNode::AttachedEnt));
  Data::CNode const node({1, 2, 3}, 4, Vbool6());
  EXPECT_TRUE(PassedOn(node) == node);
  EXPECT_TRUE(node.AttachedEnt(SelElement).empty());
  Data::CAxis const axis(L"a", AxisType::Cartesian, {0, 0, 0}, {0, 0, 1}, {1, 0, 0});
  EXPECT_TRUE(PassedOn(axis) == axis);
  EXPECT_EQ(axis.XAxis().z, 1);
}

TEST(RecordsLink, Specification) {
  EXPECT_TRUE(AreLinked(&Data::CSpec::GenTol, &Data::CSpec::SetGenTol, &Data::CUnit::Conversion,
                        &Data::CUnit::SetConversion));
  Data::CSpec spec;
  spec.SetGenTol(TolType::Coincidence, 0.5);
  EXPECT_EQ(PassedOn(spec).GenTol(), 0.5);
  Data::CUnit unit;
  unit.SetConversion(Data::CUnit::kLength, 1000);
  EXPECT_EQ(PassedOn(unit).Conversion(Data::CUnit::kLength), 1000);
}

TEST(RecordsLink, ViewsOfElementsAndPanels) {
  using View = Data::VariantElementConstRef;
  EXPECT_TRUE(AreLinked(&View::Type, &View::VariantType, &View::IsDummy, &View::Group,
                        &View::Property, &View::Topology, &View::OrientationAngle,
                        &View::OrientationNode, &View::Offset, &View::Connect, &View::CopyAsType));
  CElement const element(2, ElementType::Tri3, 3);
  auto const view = PassedOn(View(element));
  EXPECT_EQ(view.Type(), ElementType::Tri3);
  auto const value = PassedOn(view.CopyAsType(VariantElementType::LoadPanel));
  ASSERT_TRUE(value.IsLoadPanel());
  EXPECT_EQ(View(*value.Panel()).Topology().size(), 3u);
}

}  // namespace
}  // namespace Tarvex::RecordsLinkTest
