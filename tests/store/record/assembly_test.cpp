#include "store/record/assembly.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::AssemblyTest {
namespace {

TEST(Assembly, IsNamedAndEmptyAtFirst) {
  CAssembly const assembly(L"core");
  EXPECT_EQ(assembly.Name(), L"core");
  EXPECT_TRUE(assembly.Entities().IsEmpty());
  for (int const place : {0, 1, 2}) EXPECT_EQ(assembly.Topo(place), 0);
  EXPECT_TRUE(assembly.IntTopo().IsEmpty());
  EXPECT_EQ(assembly.IntTopo().TypeOf(), SelNode);
  EXPECT_EQ(assembly.Definition(), 0);
  EXPECT_TRUE(assembly.Storey().IsEmpty());
  EXPECT_EQ(assembly.Storey().TypeOf(), SelNone);
  EXPECT_EQ(assembly.Spacing(), 0);
  EXPECT_EQ(assembly.cutSpacing, 0);
}

TEST(Assembly, HasFixedNumbersOfDefinitions) {
  EXPECT_EQ(CAssembly::kByPoints, 0);
  EXPECT_EQ(CAssembly::kByStoreys, 3);
}

TEST(Assembly, HasEntitiesOfAnyKind) {
  CAssembly assembly;
  for (auto const kind : {SelNode, SelElement, SelMember}) {
    assembly.SetEntities(CEntList(kind, L"1 to 4"));
    EXPECT_EQ(assembly.Entities().TypeOf(), kind);
    EXPECT_EQ(assembly.Entities().String(), L"1 to 4");
  }
}

TEST(Assembly, HasThreePlacesOfItsLine) {
  CAssembly assembly;
  for (int const place : {0, 1, 2}) assembly.SetTopo(place, 10 + place);
  for (int const place : {0, 1, 2}) EXPECT_EQ(assembly.Topo(place), 10 + place);
  for (int const none : {-1, 3}) {
    EXPECT_EQ(assembly.Topo(none), 0);
    EXPECT_THROW(assembly.SetTopo(none, 1), std::out_of_range);
  }
}

TEST(Assembly, RefusesOtherThanNodesBetweenAndStoreys) {
  CAssembly assembly;
  EXPECT_THROW(assembly.SetIntTopo(CEntList(SelElement, L"1")), std::invalid_argument);
  EXPECT_THROW(assembly.SetStorey(CEntList(SelNode, L"1")), std::invalid_argument);
  EXPECT_EQ(assembly, CAssembly());
  assembly.SetStorey(CEntList(SelNone, CEntList::All()));
  EXPECT_TRUE(assembly.Storey().IsAll());
}

TEST(Assembly, ComparesEveryField) {
  Testing::ExpectStoredFields<CAssembly>(
      {{"name", [](CAssembly& a) { a.SetName(L"n"); }},
       {"sid", [](CAssembly& a) { a.SetSid(L"s"); }},
       {"colour", [](CAssembly& a) { a.SetColour(1); }},
       {"entities", [](CAssembly& a) { a.SetEntities(CEntList(SelNode, L"")); }},
       {"topology", [](CAssembly& a) { a.SetTopo(2, 1); }},
       {"intTopo", [](CAssembly& a) { a.SetIntTopo(CEntList(SelNode, L"1")); }},
       {"definition", [](CAssembly& a) { a.definition = 3; }},
       {"storey", [](CAssembly& a) { a.SetStorey(CEntList(SelNone, CString(L"1"))); }},
       {"spacing", [](CAssembly& a) { a.SetSpacing(1); }},
       {"cutSpacing", [](CAssembly& a) { a.cutSpacing = 1; }}});
}

}  // namespace
}  // namespace Tarvex::Data::AssemblyTest
