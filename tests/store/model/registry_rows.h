// The tables of a model, written out by hand: the registry must have the same.
#pragma once

#include <string>

#include "store/model/zel_data.h"
#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/axis.h"
#include "store/record/block.h"
#include "store/record/ent_list.h"
#include "store/record/grid_line.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/polyline.h"
#include "store/record/row_pack.h"
#include "store/record/views.h"
#include "tests/store/model/case_rows.h"
#include "tests/store/model/property_rows.h"
#include "tests/store/model/table_row.h"
#include "tests/support/builders.h"

namespace Tarvex::RegistryTest {

using Data::CAlignment;
using Data::CAssembly;
using Data::CAxis;
using Data::CBlock;
using Data::CElement;
using Data::CEntList;
using Data::CGridLine;
using Data::CGridPlane;
using Data::CGridSurface;
using Data::CGrView;
using Data::CMember;
using Data::CNode;
using Data::COpView;
using Data::CPolyline;
using Data::CReplica;
using Data::LoadPanel;

/// Entities, grids, groups and views.
inline auto EntityRows() {
  return MakeRows(
      Row<CNode>{"Node", 80, WithSid(CNode({1, 2, 3}, 0, Vbool6())), CNode({4, 5, 6}, 0, Vbool6()),
                 [](CZelData const& m, int n) { return m.NodeExist(n); },
                 [](CZelData const& m, int n) -> CNode const& { return m.Node(n); },
                 [](CZelData const& m) -> WholeTable<CNode> const& { return m.Node(); },
                 [](CZelData const& m) { return m.HighestNode(); },
                 [](CZelData& m, int n, CNode const& r, SidMode s) { m.SetNode(n, r, s); },
                 [](CZelData& m, int first, int count) { m.BlankNode(first, count); }},
      Row<CElement>{"Elem", 110, WithSid(Testing::Element(ElementType::Beam, {1, 2})),
                    Testing::Element(ElementType::Tri3, {1, 2, 3}),
                    [](CZelData const& m, int n) { return m.ElemExist(n); },
                    [](CZelData const& m, int n) -> CElement const& { return m.Elem(n); },
                    [](CZelData const& m) -> WholeTable<CElement> const& { return m.Elem(); },
                    [](CZelData const& m) { return m.HighestElem(); },
                    [](CZelData& m, int n, CElement const& r, SidMode s) { m.SetElem(n, r, s); },
                    [](CZelData& m, int first, int count) { m.BlankElem(first, count); }},
      Row<LoadPanel>{
          "LoadPanel", 110, WithSid(Testing::Panel({1, 2, 3})), Testing::Panel({4, 5, 6, 7}),
          [](CZelData const& m, int n) { return m.LoadPanelExist(n); },
          [](CZelData const& m, int n) -> LoadPanel const& { return m.LoadPanel(n); },
          [](CZelData const& m) -> WholeTable<LoadPanel> const& { return m.LoadPanels(); },
          [](CZelData const& m) { return m.HighestLoadPanel(); },
          [](CZelData& m, int n, LoadPanel const& r, SidMode s) { m.SetLoadPanel(n, r, s); },
          [](CZelData& m, int first, int count) { m.BlankLoadPanel(first, count); }},
      Row<CMember>{"Member", 100, WithSid(CMember(1, 2)), CMember(MembType::Wall, 3, 4),
                   [](CZelData const& m, int n) { return m.MemberExist(n); },
                   [](CZelData const& m, int n) -> CMember const& { return m.Member(n); },
                   [](CZelData const& m) -> WholeTable<CMember> const& { return m.Member(); },
                   [](CZelData const& m) { return m.HighestMember(); },
                   [](CZelData& m, int n, CMember const& r, SidMode s) { m.SetMember(n, r, s); },
                   [](CZelData& m, int first, int count) { m.BlankMember(first, count); }},
      Row<CAxis>{"Axis", 20, WithSid(CAxis(L"a", AxisType::Cartesian, {}, {1, 0, 0}, {0, 1, 0})),
                 CAxis(L"b", AxisType::Spherical, {}, {1, 0, 0}, {0, 1, 0}),
                 [](CZelData const& m, int n) { return m.AxisExist(n); },
                 [](CZelData const& m, int n) -> CAxis const& { return m.Axis(n); },
                 [](CZelData const& m) -> WholeTable<CAxis> const& { return m.Axis(); },
                 [](CZelData const& m) { return m.HighestAxis(); },
                 [](CZelData& m, int n, CAxis const& r, SidMode s) { m.SetAxis(n, r, s); },
                 [](CZelData& m, int first, int count) { m.BlankAxis(first, count); }},
      Row<CGridPlane>{
          "GridPlane", 23, WithSid(CGridPlane(L"a", 0, 1, true)), CGridPlane(L"b", 0, 2, false),
          [](CZelData const& m, int n) { return m.GridPlaneExist(n); },
          [](CZelData const& m, int n) -> CGridPlane const& { return m.GridPlane(n); },
          [](CZelData const& m) -> WholeTable<CGridPlane> const& { return m.GridPlane(); },
          [](CZelData const& m) { return m.HighestGridPlane(); },
          [](CZelData& m, int n, CGridPlane const& r, SidMode s) { m.SetGridPlane(n, r, s); },
          [](CZelData& m, int first, int count) { m.BlankGridPlane(first, count); }},
      Row<CGridSurface>{
          "GridSurface", 24,
          WithSid(CGridSurface(L"a", 1, CEntList(SelElement, L"1"), GridElementType::Lines)),
          CGridSurface(L"b", 2, CEntList(), GridElementType::Plates),
          [](CZelData const& m, int n) { return m.GridSurfaceExist(n); },
          [](CZelData const& m, int n) -> CGridSurface const& { return m.GridSurface(n); },
          [](CZelData const& m) -> WholeTable<CGridSurface> const& { return m.GridSurface(); },
          [](CZelData const& m) { return m.HighestGridSurface(); },
          [](CZelData& m, int n, CGridSurface const& r, SidMode s) {
            m.SetGridSurface(n, r, true, s);
          },
          [](CZelData& m, int first, int count) { m.BlankGridSurface(first, count); }},
      Row<CGridLine>{
          "GridLine", -1, WithSid(CGridLine(L"a", {1, 2}, 3, 4, 5)),
          CGridLine(L"b", {6, 7}, 8, 9, 10),
          [](CZelData const& m, int n) { return m.GridLineExist(n); },
          [](CZelData const& m, int n) -> CGridLine const& { return m.GridLine(n); },
          [](CZelData const& m) -> WholeTable<CGridLine> const& { return m.GridLine(); },
          [](CZelData const& m) { return m.HighestGridLine(); },
          [](CZelData& m, int n, CGridLine const& r, SidMode s) { m.SetGridLine(n, r, s); },
          [](CZelData& m, int first, int count) { m.BlankGridLine(first, count); }},
      Row<CPolyline>{
          "Polyline", 25, WithSid(CPolyline(L"a", 1, {{1, 2}})), CPolyline(L"b", 2, {{3, 4}}),
          [](CZelData const& m, int n) { return m.PolylineExist(n); },
          [](CZelData const& m, int n) -> CPolyline const& { return m.Polyline(n); },
          [](CZelData const& m) -> WholeTable<CPolyline> const& { return m.Polyline(); },
          [](CZelData const& m) { return m.HighestPolyline(); },
          [](CZelData& m, int n, CPolyline const& r, SidMode s) { m.SetPolyline(n, r, s); },
          [](CZelData& m, int first, int count) { m.BlankPolyline(first, count); }},
      Row<CAlignment>{
          "Alignment", -1, WithSid(CAlignment(L"a", 1, {{1, 2}})), CAlignment(L"b", 2, {{3, 4}}),
          [](CZelData const& m, int n) { return m.AlignmentExist(n); },
          [](CZelData const& m, int n) -> CAlignment const& { return m.Alignment(n); },
          [](CZelData const& m) -> WholeTable<CAlignment> const& { return m.Alignment(); },
          [](CZelData const& m) { return m.HighestAlignment(); },
          [](CZelData& m, int n, CAlignment const& r, SidMode s) { m.SetAlignment(n, r, s); },
          [](CZelData& m, int first, int count) { m.BlankAlignment(first, count); }},
      Row<CEntList>{"List", -1, WithSid(CEntList(L"a", SelNode, L"1 to 5")),
                    CEntList(L"b", SelElement, L"all not 3"),
                    [](CZelData const& m, int n) { return m.ListExist(n); },
                    [](CZelData const& m, int n) -> CEntList const& { return m.List(n); },
                    [](CZelData const& m) -> WholeTable<CEntList> const& { return m.List(); },
                    [](CZelData const& m) { return m.HighestList(); },
                    [](CZelData& m, int n, CEntList const& r, SidMode s) { m.SetList(n, r, s); },
                    [](CZelData& m, int first, int count) { m.BlankList(first, count); }},
      Row<CBlock>{"Block", -1, WithSid(CBlock(L"a", {1}, CReplica())),
                  CBlock(L"b", {2}, CReplica()),
                  [](CZelData const& m, int n) { return m.BlockExist(n); },
                  [](CZelData const& m, int n) -> CBlock const& { return m.Block(n); },
                  [](CZelData const& m) -> WholeTable<CBlock> const& { return m.Block(); },
                  [](CZelData const& m) { return m.HighestBlock(); },
                  [](CZelData& m, int n, CBlock const& r, SidMode s) { m.SetBlock(n, r, s); },
                  [](CZelData& m, int first, int count) { m.BlankBlock(first, count); }},
      Row<CAssembly>{
          "Assembly", -1, WithSid(CAssembly(L"a")), CAssembly(L"b"),
          [](CZelData const& m, int n) { return m.AssemblyExist(n); },
          [](CZelData const& m, int n) -> CAssembly const& { return m.Assembly(n); },
          [](CZelData const& m) -> WholeTable<CAssembly> const& { return m.Assembly(); },
          [](CZelData const& m) { return m.HighestAssembly(); },
          [](CZelData& m, int n, CAssembly const& r, SidMode s) { m.SetAssembly(n, r, s); },
          [](CZelData& m, int first, int count) { m.BlankAssembly(first, count); }},
      Row<CGrView>{"GrView", -1, WithSid(CGrView(L"a")), CGrView(L"b"),
                   [](CZelData const& m, int n) { return m.GrViewExist(n); },
                   [](CZelData const& m, int n) -> CGrView const& { return m.GrView(n); },
                   [](CZelData const& m) -> WholeTable<CGrView> const& { return m.GrView(); },
                   [](CZelData const& m) { return m.HighestGrView(); },
                   [](CZelData& m, int n, CGrView const& r, SidMode s) { m.SetGrView(n, r, s); },
                   [](CZelData& m, int first, int count) { m.BlankGrView(first, count); }},
      Row<COpView>{"OpView", -1, WithSid(COpView(L"a")), COpView(L"b"),
                   [](CZelData const& m, int n) { return m.OpViewExist(n); },
                   [](CZelData const& m, int n) -> COpView const& { return m.OpView(n); },
                   [](CZelData const& m) -> WholeTable<COpView> const& { return m.OpView(); },
                   [](CZelData const& m) { return m.HighestOpView(); },
                   [](CZelData& m, int n, COpView const& r, SidMode s) { m.SetOpView(n, r, s); },
                   [](CZelData& m, int first, int count) { m.BlankOpView(first, count); }});
}

inline auto Rows() { return JoinRows(EntityRows(), PropertyRows(), CaseRows(), ResultRows()); }

}  // namespace Tarvex::RegistryTest
