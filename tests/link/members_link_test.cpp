// Members and their tables, as an application links them.
#include <gtest/gtest.h>

#include <utility>

#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "store/record/member.h"
#include "tarvex/orientation.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::MembersLinkTest {
namespace {

using Data::CMember;
using Data::CTopoList;
using Testing::AreLinked;

TEST(MembersLink, Topologies) {
  EXPECT_TRUE(AreLinked(&CTopoList::NumTopo, &CTopoList::Topo, &CTopoList::Nodes,
                        &CTopoList::Outline, &CTopoList::SetString, &CTopoList::String,
                        &CTopoList::ReplaceItem, &CTopoList::Reverse, &CTopoList::Geometry,
                        &Data::TriangleStrips));
  CTopoList list(0);
  EXPECT_TRUE(list.SetString(L"1 arc 2 3"));
  CTopoList copy(list);
  CTopoList assigned;
  assigned = std::move(copy);
  EXPECT_EQ(assigned, list);
  list.SetTopo(0, 9);
  EXPECT_EQ(list.Topo(0), 9);
  list.SetTopo(std::vector{4, 5});
  list.AddItem(6);
  EXPECT_TRUE(list.Reverse() && list.ReplaceItem(6, 7));
  EXPECT_EQ(list.String(), L"7 5 4");
}

TEST(MembersLink, Records) {
  EXPECT_TRUE(AreLinked(&CMember::Dimension, &CMember::Geometry, &CMember::IsElementTypeValid,
                        &CMember::DoesElementTypeMatchAnalysisType, &CMember::NumElem,
                        &CMember::Elem, &CMember::ChildElements, &CMember::AddChildElement,
                        &CMember::AppendChildElement, &CMember::RemoveChildElement,
                        &CMember::ArcCentre, &CMember::GenerateOrientNode, &CMember::LocalAxis,
                        &MembTypeOf));
  CMember member(MembType::Beam, 1, 2);
  EXPECT_TRUE(member.SetTopo(CString(L"1 2")));
  member.AddChildElement(5, 0);
  CMember copy(member);
  CMember assigned;
  assigned = std::move(copy);
  EXPECT_EQ(assigned, member);
}

TEST(MembersLink, Tables) {
  using T = MemberTables;
  EXPECT_TRUE(AreLinked(&T::MemberExist, &T::HighestMember, &T::SetMember, &T::BlankMember,
                        &T::LockMember, &T::AddChildElement, &CZelData::SetEntOffset));
  CZelData model;
  Testing::BeamAt(model, {4, 0, 0}, {0, 0, 0});
  int const n = Testing::MemberAt(model, MembType::Beam, L"1 2");
  model.AddChildElement(n, 1, 0);
  EXPECT_EQ(model.Member(n).NumElem(), 1);
  EXPECT_EQ(model.Member().size(), 1u);
  EXPECT_TRUE(FlipMember(model, n));
  EXPECT_EQ(model.Member(n).LocalAxis(model).Origin().x, 0);
}

}  // namespace
}  // namespace Tarvex::MembersLinkTest
