// A missing number planted in each reference and each list of the grids, groups and views.
#include <gtest/gtest.h>

#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/axis.h"
#include "store/record/block.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/polyline.h"
#include "store/record/views.h"
#include "tests/support/builders.h"
#include "workbench/report/integrity.h"

namespace Tarvex::GridIntegrityTest {
namespace {

using Data::CEntList;
using Workbench::FindFaults;
using Workbench::Finding;

/// Nodes 1 to 9, elements 1 to 4, axis 1, planes 1 (a storey) and 2, surface 1, list 1 of elements,
/// and one of each of the rest that names them, under number 3.
CZelData Sound() {
  CZelData model;
  Testing::Grid(model, 2, 2);
  model.SetAxis(1, Data::CAxis());
  model.SetGridPlane(1, Data::CGridPlane(L"", 1, 0, true));
  model.SetGridPlane(2, Data::CGridPlane(L"", 0, 0, false));
  model.SetGridPlane(3, Data::CGridPlane(L"", 0, 0, false));
  model.SetGridSurface(
      1, Data::CGridSurface(L"", 2, CEntList(SelElement, L"1 to 50"), GridElementType::Lines));
  model.SetGridSurface(
      3, Data::CGridSurface(L"", 2, CEntList(SelElement, L"4 #1 G77"), GridElementType::Lines));
  model.SetPolyline(3, Data::CPolyline(L"", 2, {}));
  model.SetAlignment(3, Data::CAlignment(L"", 1, {}));
  model.SetList(1, CEntList(L"", SelElement, L"1"));
  Data::CAssembly assembly;
  assembly.SetEntities(CEntList(SelElement, L"1 not 2"));
  for (int i = 0; i < 3; ++i) assembly.SetTopo(i, 1 + i);
  assembly.SetIntTopo(CEntList(SelNode, L"4 5"));
  assembly.SetStorey(CEntList(SelNone, CString(L"1")));
  model.SetAssembly(3, assembly);
  Data::CGrView graphic;
  graphic.SetGrData(0, Data::CGrData());
  model.SetGrView(3, graphic);
  Data::COpView output;
  output.SetOpData(0, Data::COpData());
  model.SetOpView(3, output);
  return model;
}

template <class Change>
void ChangePlane(CZelData& m, Change&& change) {
  auto record = m.GridPlane(3);
  change(record);
  m.SetGridPlane(3, record);
}
template <class Change>
void ChangeSurface(CZelData& m, Change&& change) {
  auto record = m.GridSurface(3);
  change(record);
  m.SetGridSurface(3, record);
}
template <class Change>
void ChangeAssembly(CZelData& m, Change&& change) {
  auto record = m.Assembly(3);
  change(record);
  m.SetAssembly(3, record);
}
template <class Change>
void ChangeGraphic(CZelData& m, Change&& change) {
  auto record = m.GrView(3);
  change(record);
  m.SetGrView(3, record);
}
template <class Change>
void ChangeOutput(CZelData& m, Change&& change) {
  auto record = m.OpView(3);
  change(record);
  m.SetOpView(3, record);
}

struct Planted {
  char const* table;
  int number;
  char const* field;
  int index;
  int value;
  char const* target;
  void (*plant)(CZelData&);
};

void ConsGrid(CZelData& m) {
  auto spec = m.Spec();
  spec.SetConsGridRef(91);
  m.SetSpec(spec);
}

void SurfaceList(CZelData& m, wchar_t const* text) {
  ChangeSurface(m, [&](auto& s) { s.SetElements(CEntList(SelElement, CString(text))); });
}

Planted const kRows[] = {
    {"Spec", 0, "consGridRef", -1, 91, "GridPlane", &ConsGrid},
    {"GridPlane", 3, "axis", -1, 92, "Axis",
     [](CZelData& m) { ChangePlane(m, [](auto& p) { p.SetAxis(92); }); }},
    {"GridSurface", 3, "plane", -1, 93, "GridPlane",
     [](CZelData& m) { ChangeSurface(m, [](auto& s) { s.SetPlane(93); }); }},
    {"GridSurface", 3, "elements", 1, 94, "Elem", [](CZelData& m) { SurfaceList(m, L"1 94 2"); }},
    {"GridSurface", 3, "elements", 0, 94, "Elem", [](CZelData& m) { SurfaceList(m, L"E94 2"); }},
    {"GridSurface", 3, "elements", 2, 95, "List", [](CZelData& m) { SurfaceList(m, L"1 or #95"); }},
    {"GridSurface", 3, "elements", 0, 96, "Node", [](CZelData& m) { SurfaceList(m, L"ZX96"); }},
    {"Polyline", 3, "plane", -1, 97, "GridPlane",
     [](CZelData& m) { m.SetPolyline(3, Data::CPolyline(L"", 97, {})); }},
    {"Alignment", 3, "surface", -1, 98, "GridSurface",
     [](CZelData& m) { m.SetAlignment(3, Data::CAlignment(L"", 98, {})); }},
    {"Assembly", 3, "entities", 0, 99, "Elem",
     [](CZelData& m) {
       ChangeAssembly(m, [](auto& a) { a.SetEntities(CEntList(SelElement, L"99")); });
     }},
    {"Assembly", 3, "entities", 0, 99, "Node",
     [](CZelData& m) {
       ChangeAssembly(m, [](auto& a) { a.SetEntities(CEntList(SelNode, L"99")); });
     }},
    {"Assembly", 3, "topology", 2, 81, "Node",
     [](CZelData& m) { ChangeAssembly(m, [](auto& a) { a.SetTopo(2, 81); }); }},
    {"Assembly", 3, "intTopo", 1, 82, "Node",
     [](CZelData& m) {
       ChangeAssembly(m, [](auto& a) { a.SetIntTopo(CEntList(SelNode, L"5 82")); });
     }},
    {"Assembly", 3, "storey", 0, 2, "Storey",
     [](CZelData& m) {
       ChangeAssembly(m, [](auto& a) { a.SetStorey(CEntList(SelNone, CString(L"2"))); });
     }},
    {"GrView", 3, "nodes", 0, 83, "Node",
     [](CZelData& m) { ChangeGraphic(m, [](auto& v) {
                         v.SetNodes({SelNode, L"83"});
                       }); }},
    {"GrView", 3, "elements", 0, 84, "Elem",
     [](CZelData& m) { ChangeGraphic(m, [](auto& v) {
                         v.SetElements({SelElement, L"84"});
                       }); }},
    {"GrView", 3, "hiLiteElements", 0, 85, "Elem",
     [](CZelData& m) {
       ChangeGraphic(m, [](auto& v) { v.SetHiLiteElements({SelElement, L"85"}); });
     }},
    {"GrView", 3, "data.axis", 0, 86, "Axis",
     [](CZelData& m) {
       ChangeGraphic(m, [](auto& v) {
         Data::CGrData data;
         data.SetAxis(86);
         v.SetGrData(0, data);
       });
     }},
    {"OpView", 3, "nodes", 0, 87, "Node",
     [](CZelData& m) { ChangeOutput(m, [](auto& v) {
                         v.SetNodes({SelNode, L"87"});
                       }); }},
    {"OpView", 3, "elements", 0, 88, "Elem",
     [](CZelData& m) { ChangeOutput(m, [](auto& v) {
                         v.SetElements({SelElement, L"88"});
                       }); }},
    {"OpView", 3, "axis", -1, 89, "Axis",
     [](CZelData& m) { ChangeOutput(m, [](auto& v) { v.SetAxis(89); }); }},
    {"OpView", 3, "data.axis", 0, 90, "Axis",
     [](CZelData& m) {
       ChangeOutput(m, [](auto& v) {
         Data::COpData data;
         data.SetAxis(90);
         v.SetOpData(0, data);
       });
     }},
    {"GrView", 3, "members", 0, 71, "Member",
     [](CZelData& m) { ChangeGraphic(m, [](auto& v) {
                         v.SetMembers({SelMember, L"71"});
                       }); }},
    {"GrView", 3, "hiLiteMembers", 0, 72, "Member",
     [](CZelData& m) {
       ChangeGraphic(m, [](auto& v) { v.SetHiLiteMembers({SelMember, L"72"}); });
     }},
    {"OpView", 3, "members", 0, 73, "Member",
     [](CZelData& m) { ChangeOutput(m, [](auto& v) {
                         v.SetMembers({SelMember, L"73"});
                       }); }},
    {"Assembly", 3, "entities", 0, 74, "Member",
     [](CZelData& m) {
       ChangeAssembly(m, [](auto& a) { a.SetEntities(CEntList(SelMember, L"74")); });
     }},
    {"Block", 3, "members", 0, 75, "Member",
     [](CZelData& m) { m.SetBlock(3, Data::CBlock(L"", {75}, Data::CReplica())); }},
};

TEST(FindFaults, FindsNothingWhereAllThatGridsAndViewsNameIsThere) {
  EXPECT_TRUE(FindFaults(Sound()).empty());
}

TEST(FindFaults, NamesAMissingNumberInEachReferenceAndListOfGridsAndViews) {
  for (auto const& row : kRows) {
    SCOPED_TRACE(std::string(row.table) + " " + row.field + " " + std::to_string(row.value));
    auto model = Sound();
    row.plant(model);
    EXPECT_EQ(FindFaults(model),
              (std::vector<Finding>{{"dangling-reference", row.table, row.number, row.field,
                                     row.index, row.value, row.target}}));
  }
}

TEST(FindFaults, TakesRangesAndWordsForNoReferencesToRecords) {
  auto model = Sound();
  SurfaceList(model, L"50 to 60 or G99 or 3 to * step 2 or PB8 or all");
  EXPECT_TRUE(FindFaults(model).empty());
}

TEST(FindFaults, FindsANumberThatIsNotFiniteInAlignmentsAndPlanes) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  auto model = Sound();
  model.SetAlignment(3, Data::CAlignment(L"", 1, {{0, 1}, {5, nan}}));
  ChangePlane(model, [&](auto& p) { p.SetElevation(nan); });
  EXPECT_EQ(FindFaults(model),
            (std::vector<Finding>{
                {"dimension-not-finite", "GridPlane", 3, "elevation", -1, std::nullopt, ""},
                {"dimension-not-finite", "Alignment", 3, "items.curvature", 1, std::nullopt, ""}}));
}

}  // namespace
}  // namespace Tarvex::GridIntegrityTest
