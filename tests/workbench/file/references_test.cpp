#include "workbench/file/references.h"

#include <gtest/gtest.h>

#include "store/record/assembly.h"
#include "store/record/axis.h"
#include "store/record/grid_surface.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tests/support/builders.h"

namespace Tarvex::Workbench::ReferencesTest {
namespace {

using Testing::Element;
using Testing::Panel;

std::string Text(ReferenceSite const& site) {
  return std::string(site.table) + " " + std::to_string(site.number) + " " +
         std::string(site.field) + " " + std::to_string(site.index) + ": " +
         std::to_string(site.value) + " " + std::string(site.target) +
         (site.exists ? " exists" : "");
}

std::vector<std::string> Sites(CZelData const& model) {
  std::vector<std::string> sites;
  ForEachReference(model, [&](ReferenceSite const& site) { sites.push_back(Text(site)); });
  return sites;
}

TEST(ForEachReference, NamesEveryReferenceOfANode) {
  CZelData model;
  model.SetAxis(4, Data::CAxis());
  Data::CNode node({}, 4, Vbool6());
  node.SetSpringProperty(5);
  model.SetNode(7, node);
  EXPECT_EQ(Sites(model), (std::vector<std::string>{
                              "Spec 0 consGridRef -1: 0 GridPlane",
                              "Node 7 axis -1: 4 Axis exists",
                              "Node 7 springProperty -1: 5 SpringProp",
                              "Node 7 massProperty -1: 0 MassProp",
                              "Node 7 damperProperty -1: 0 DamperProp",
                          }));
}

TEST(ForEachReference, NamesEveryReferenceOfElementsAndPanels) {
  CZelData model;
  model.CreateNode(2, {}, 0, Vbool6());
  auto beam = Element(ElementType::Beam, {2, 9});
  beam.SetProperty(3);
  beam.SetOrientationNode(2);
  beam.SetParentMember({6, 1});
  model.SetElem(1, beam);
  model.SetLoadPanel(8, Panel({2}));
  std::vector<std::string> const all{
      "Spec 0 consGridRef -1: 0 GridPlane",
      "Node 2 axis -1: 0 Axis",
      "Node 2 springProperty -1: 0 SpringProp",
      "Node 2 massProperty -1: 0 MassProp",
      "Node 2 damperProperty -1: 0 DamperProp",
      "Elem 1 property -1: 3 Section",
      "Elem 1 topology 0: 2 Node exists",
      "Elem 1 topology 1: 9 Node",
      "Elem 1 orientationNode -1: 2 Node exists",
      "Elem 1 parentMember.member -1: 6 Member",
      "LoadPanel 8 property -1: 0 Prop2D",
      "LoadPanel 8 topology 0: 2 Node exists",
      "LoadPanel 8 parentMember.member -1: 0 Member",
  };
  EXPECT_EQ(Sites(model), all);
}

TEST(ForEachReference, NamesEveryReferenceOfAMemberAndNoWordOfItsTopology) {
  CZelData model;
  model.SetElem(4, Element(ElementType::Beam, {}));
  Data::CMember member(MembType::Beam, 1, 3);
  member.SetTopo(CString(L"2 arc 7 9"));
  member.SetOrientationNode(8);
  member.AddChildElement(4, 0);
  member.AddChildElement(5, 1);
  member.AddChildElement(6, 1);
  model.SetMember(1, member);
  auto sites = Sites(model);
  std::erase_if(sites, [](std::string const& site) { return !site.starts_with("Member"); });
  EXPECT_EQ(sites, (std::vector<std::string>{
                       "Member 1 property -1: 3 Section",
                       "Member 1 topology 0: 2 Node",
                       "Member 1 topology 2: 7 Node",
                       "Member 1 topology 3: 9 Node",
                       "Member 1 orientationNode -1: 8 Node",
                       "Member 1 children 0: 4 Elem exists",
                       "Member 1 children 1: 5 Elem",
                       "Member 1 children 2: 6 Elem",
                   }));
}

TEST(ForEachReference, NamesTheNumbersOfAListByTheirPlaceAmongItsWords) {
  CZelData model;
  model.SetElem(4, Element(ElementType::Beam, {}));
  model.SetLoadPanel(5, Panel({}));
  model.SetList(8, Data::CEntList(SelElement, L"1"));
  model.SetList(9, Data::CEntList(SelNode, L"1"));
  Data::CGridSurface surface;
  // Words: ( 4 or 5 ) 1 to 3 not 6 E 7 # 8 # 9 XY 2 PB 3 "roof" *
  surface.SetElements(
      Data::CEntList(SelElement, L"(4 or 5) 1 to 3 not 6 E7 #8 #9 XY2 PB3 \"roof\" 10 to * all"));
  model.SetGridSurface(1, surface);
  std::vector<std::string> sites;
  for (auto const& site : Sites(model))
    if (site.rfind("GridSurface", 0) == 0) sites.push_back(site);
  EXPECT_EQ(sites, (std::vector<std::string>{
                       "GridSurface 1 plane -1: 0 GridPlane",
                       "GridSurface 1 elements 1: 4 Elem exists",
                       "GridSurface 1 elements 3: 5 Elem exists",
                       "GridSurface 1 elements 9: 6 Elem",
                       "GridSurface 1 elements 10: 7 Elem",
                       "GridSurface 1 elements 12: 8 List exists",
                       "GridSurface 1 elements 14: 9 List",
                       "GridSurface 1 elements 16: 2 Node",
                   }));
}

TEST(ForEachReference, TakesTheKindOfAListForItsTable) {
  CZelData model;
  Data::CAssembly assembly;
  auto const sites = [&](Data::CEntList const& entities) {
    assembly.SetEntities(entities);
    model.SetAssembly(1, assembly);
    std::vector<std::string> found;
    for (auto const& site : Sites(model))
      if (site.find("entities") != std::string::npos) found.push_back(site);
    return found;
  };
  using Lines = std::vector<std::string>;
  EXPECT_EQ(sites({SelNode, L"7"}), (Lines{"Assembly 1 entities 0: 7 Node"}));
  EXPECT_EQ(sites({SelElement, L"7"}), (Lines{"Assembly 1 entities 0: 7 Elem"}));
  EXPECT_EQ(sites({SelNone, CString(L"7")}), (Lines{"Assembly 1 entities 0: 7 "}));
  EXPECT_EQ(sites({SelCase, L"L7 T8"}), (Lines{"Assembly 1 entities 0: 7 LoadCaseTitle",
                                               "Assembly 1 entities 1: 8 AnalysisTask"}));
}

TEST(FindDanglingReferences, FindsNothingInAWholeModel) {
  CZelData model;
  Testing::Grid(model, 2, 2);
  EXPECT_TRUE(FindDanglingReferences(model).empty());
}

TEST(FindDanglingReferences, FindsWhatNamesAMissingRecord) {
  CZelData model;
  Testing::Grid(model, 1, 1);  // nodes 1 to 4, element 1: 1 2 4 3
  model.SetNodeAxis(2, 5);
  model.SetElemOrientNode(1, 60);
  model.SetLoadPanel(9, Panel({1, 70, 2}));
  model.BlankNode(4, 1);
  std::vector<DanglingReference> const expected{
      {"Node", 2, "axis", -1, 5, "Axis"},
      {"Elem", 1, "topology", 2, 4, "Node"},
      {"Elem", 1, "orientationNode", -1, 60, "Node"},
      {"LoadPanel", 9, "topology", 1, 70, "Node"},
  };
  EXPECT_EQ(FindDanglingReferences(model), expected);
}

TEST(FindDanglingReferences, CountsNumbersBelowZeroAndPassesOverZero) {
  CZelData model;
  model.CreateNode(1, {}, -3, Vbool6());
  model.SetElem(1, Element(ElementType::Beam, {0, 1, -1}));
  std::vector<DanglingReference> const expected{
      {"Node", 1, "axis", -1, -3, "Axis"},
      {"Elem", 1, "topology", 2, -1, "Node"},
  };
  EXPECT_EQ(FindDanglingReferences(model), expected);
}

TEST(FindDanglingReferences, PassesOverWhatPointsIntoNoTable) {
  CZelData model;
  model.CreateNode(1, {}, 0, Vbool6());
  model.CreateNode(2, {}, 0, Vbool6());
  auto odd = Element(static_cast<ElementType>(4), {1, 2});  // a type without a shape
  odd.SetProperty(12);
  model.SetElem(1, odd);
  EXPECT_TRUE(FindDanglingReferences(model).empty());
}

}  // namespace
}  // namespace Tarvex::Workbench::ReferencesTest
