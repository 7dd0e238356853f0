#include "store/record/grid_surface.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::GridSurfaceTest {
namespace {

/// A surface with two panels.
CGridSurface Searched() {
  CGridSurface surface(L"floor", 2, CEntList(SelElement, L"1 to 9"), GridElementType::Lines);
  PanelAccess::Set(surface, {CPanel({1, 2, 3}), CPanel({3, 2, 4}, true)});
  return surface;
}

TEST(GridSurface, HasAllElementsByThePanelsBetweenThemAtFirst) {
  CGridSurface const surface;
  EXPECT_EQ(surface.Plane(), 0);
  EXPECT_TRUE(surface.Elements().IsAll());
  EXPECT_EQ(surface.Elements().TypeOf(), SelElement);
  EXPECT_EQ(static_cast<int>(surface.ElementType()), 1);
  EXPECT_FALSE(surface.IsIndexed());
  EXPECT_EQ(surface._NumPanel(), 0);
}

TEST(GridSurface, HasFixedNumbersOfElementTypes) {
  EXPECT_EQ(static_cast<int>(GridElementType::Lines), 1);
  EXPECT_EQ(static_cast<int>(GridElementType::Plates), 2);
}

TEST(GridSurface, RefusesListsOfOtherThings) {
  auto surface = Searched();
  EXPECT_THROW(surface.SetElements(CEntList(SelNode, L"1")), std::invalid_argument);
  EXPECT_EQ(surface.Elements().String(), L"1 to 9");
  surface.SetElements(CEntList());
  EXPECT_TRUE(surface.Elements().IsEmpty());
  EXPECT_EQ(surface.Elements().TypeOf(), SelElement);
}

TEST(GridSurface, HasThePanelsOfTheLastSearchFromZero) {
  auto const surface = Searched();
  EXPECT_TRUE(surface.IsIndexed());
  ASSERT_EQ(surface._NumPanel(), 2);
  EXPECT_EQ(surface.Panel(0), CPanel({1, 2, 3}));
  EXPECT_TRUE(surface.Panel(1).IsBoundary());
  for (int const none : {-1, 2}) EXPECT_THROW(surface.Panel(none), std::out_of_range);
  EXPECT_THROW(CGridSurface().Panel(0), std::out_of_range);
}

TEST(GridSurface, IsIndexedByASearchThatFindsNoPanel) {
  CGridSurface surface;
  PanelAccess::Set(surface, {});
  EXPECT_TRUE(surface.IsIndexed());
  EXPECT_EQ(surface._NumPanel(), 0);
}

TEST(GridSurface, TakesPanelsAlongAndACopyIsSearchedByItself) {
  auto const surface = Searched();
  CGridSurface const copy(surface);
  EXPECT_EQ(copy._NumPanel(), 2);
  PanelAccess::Set(copy, {CPanel({8, 9, 10})});
  EXPECT_EQ(copy.Panel(0), CPanel({8, 9, 10}));
  EXPECT_EQ(surface._NumPanel(), 2);
}

TEST(GridSurface, LosesPanelsWhenWhatTheyFollowFromIsSet) {
  void (*const changes[])(CGridSurface&) = {
      [](CGridSurface& s) { s.SetPlane(5); },
      [](CGridSurface& s) { s.SetElements(CEntList(SelElement, L"1")); },
      [](CGridSurface& s) { s.SetElementType(GridElementType::Plates); }};
  for (auto* change : changes) {
    auto surface = Searched();
    change(surface);
    EXPECT_FALSE(surface.IsIndexed());
    EXPECT_EQ(surface._NumPanel(), 0);
  }
  auto surface = Searched();
  surface.SetName(L"other");
  EXPECT_TRUE(surface.IsIndexed());
}

TEST(GridSurface, ComparesEveryFieldAndNoPanels) {
  Testing::ExpectStoredFields<CGridSurface>(
      {{"name", [](CGridSurface& s) { s.SetName(L"n"); }},
       {"sid", [](CGridSurface& s) { s.SetSid(L"s"); }},
       {"colour", [](CGridSurface& s) { s.SetColour(1); }},
       {"plane", [](CGridSurface& s) { s.SetPlane(2); }},
       {"elements", [](CGridSurface& s) { s.SetElements(CEntList(SelElement, L"1")); }},
       {"elementType", [](CGridSurface& s) { s.SetElementType(GridElementType::Plates); }}});
  CGridSurface const plain(L"floor", 2, CEntList(SelElement, L"1 to 9"), GridElementType::Lines);
  EXPECT_EQ(plain, Searched());
}

}  // namespace
}  // namespace Tarvex::Data::GridSurfaceTest
