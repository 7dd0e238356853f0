// Which references are looked at when one table alone is renumbered.
#include <gtest/gtest.h>

#include <functional>

#include "store/record/assembly.h"
#include "store/record/cases.h"
#include "store/record/constraint_eqn.h"
#include "store/record/grid_loads.h"
#include "store/record/joint.h"
#include "store/record/load_panel.h"
#include "store/record/prop_2d.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "store/record/section.h"
#include "store/record/spring_prop.h"
#include "store/record/stages.h"
#include "store/record/tasks.h"
#include "store/record/views.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::ReferenceRowsTest {
namespace {

using Data::CEntList;
using Testing::Apply;
using Testing::NodesAt;
using Testing::Scheme;

/// A table, the scheme that it alone has, and what is read off a model before and behind the run.
struct Case {
  char const* name;
  CModule::ModuleId module;
  Scheme scheme;
  std::function<void(CZelData&)> fill;
  std::function<std::wstring(CZelData const&)> read;
  std::wstring before;
  std::wstring after;
};

std::wstring Text(int number) { return std::to_wstring(number); }
CEntList Stages() { return {SelNone, L"1"}; }

void ExpectCase(Case const& row) {
  SCOPED_TRACE(row.name);
  CZelData model;
  row.fill(model);
  EXPECT_EQ(row.read(model), row.before);
  ASSERT_TRUE(Apply(model, row.module, row.scheme));
  EXPECT_EQ(row.read(model), row.after);
}

TEST(ReferenceRows, OfLoadPanelsRunForNodesMembersAndPlates) {
  auto const fill = [](CZelData& model) {
    NodesAt(model, {1, 2, 3});
    auto panel = Testing::Panel({1, 2, 3});
    panel.SetProperty(4);
    panel.SetParentMember({5, 0});
    model.SetLoadPanel(1, panel);
  };
  auto const read = [](CZelData const& model) {
    auto const& panel = model.LoadPanel(1);
    return Text(panel.Topology()[0]) + L" " + Text(panel.ParentMember().member) + L" " +
           Text(panel.Property());
  };
  auto const before = L"1 5 4";
  ExpectCase({"nodes", CModule::Node, {{1, 7}, {2, 2}, {3, 3}}, fill, read, before, L"7 5 4"});
  ExpectCase({"members", CModule::Member, {{5, 8}}, fill, read, before, L"1 8 4"});
  ExpectCase({"plates", CModule::Prop2D, {{4, 9}}, fill, read, before, L"1 5 9"});
}

TEST(ReferenceRows, OfSectionsRunForEachMaterial) {
  struct Row {
    MatType type;
    CModule::ModuleId module;
  };
  auto const read = [](CZelData const& model) {
    auto const& section = model.Section(1);
    return Text(section.MaterialAnalysis(0)) + L" " + Text(section.MaterialGrade(0));
  };
  for (auto const& row :
       {Row{MatType::Steel, CModule::MatSteel}, Row{MatType::Concrete, CModule::MatConcrete},
        Row{MatType::Aluminium, CModule::MatAluminium}, Row{MatType::Glass, CModule::MatGlass},
        Row{MatType::Frp, CModule::MatFrp}, Row{MatType::Timber, CModule::MatTimber}}) {
    auto const fill = [&](CZelData& model) {
      model.SetSection(1, {L"", {Data::CSecComp(L"", 2, {row.type, 4})}});
    };
    ExpectCase({"grade", row.module, {{4, 9}}, fill, read, L"2 4", L"2 9"});
    ExpectCase({"analysis", CModule::MatAnal, {{2, 3}}, fill, read, L"2 4", L"3 4"});
  }
}

TEST(ReferenceRows, OfSpringsRunForCurvesAndForMatrices) {
  auto const fill = [](CZelData& model) {
    Data::CSpringProp spring;
    spring.SetTableRef(Direction::Y, 3);
    spring.SetMatrix(4);
    model.SetSpringProp(1, spring);
  };
  auto const read = [](CZelData const& model) {
    auto const& spring = model.SpringProp(1);
    return Text(spring.TableRef(Direction::Y)) + L" " + Text(spring.Matrix());
  };
  ExpectCase({"curves", CModule::MatCurve, {{3, 5}}, fill, read, L"3 4", L"5 4"});
  ExpectCase({"matrices", CModule::MatMatrix, {{4, 6}}, fill, read, L"3 4", L"3 6"});
}

TEST(ReferenceRows, OfPlatesRunForAxesAndForMaterials) {
  auto const fill = [](CZelData& model) {
    Data::CProp2D plate;
    plate.SetAxis(3);
    plate.SetMaterialAnalysis(2);
    model.SetProp2D(1, plate);
  };
  auto const read = [](CZelData const& model) {
    return Text(model.Prop2D(1).Axis()) + L" " + Text(model.Prop2D(1).MaterialAnalysis());
  };
  ExpectCase({"axes", CModule::Axis, {{3, 5}}, fill, read, L"3 2", L"5 2"});
  ExpectCase({"materials", CModule::MatAnal, {{2, 6}}, fill, read, L"3 2", L"3 6"});
}

TEST(ReferenceRows, OfConstraintsRunForStages) {
  auto const fill = [](CZelData& model) {
    NodesAt(model, {1, 2, 3});
    model.SetGenRest(1, {L"", {SelNode, L"1"}, Vbool6(), Stages()});
    model.SetRigid(1, {L"", Data::LinkType::All, 1, {SelNode, L"2 3"}, Stages()});
    model.SetJoint(1, {L"", Vbool6(), 1, 2, Stages()});
    Data::CConstraintEqn equation;
    equation.SetConstrainedNode(1);
    equation.SetStage(Stages());
    model.SetConstraintEqn(1, equation);
    Data::CTiedInterface tied;
    tied.SetPrimaryElements({SelElement, L"1"});
    tied.SetConstrainedEntities({SelNode, L"2"});
    tied.SetStage(Stages());
    model.SetTiedInterface(1, tied);
  };
  auto const read = [](CZelData const& model) {
    return model.GenRest(1).Stage().String().Str() + L" " + model.Rigid(1).Stage().String().Str() +
           L" " + model.Joint(1).Stage().String().Str() + L" " +
           model.ConstraintEqn(1).Stage().String().Str() + L" " +
           model.TiedInterface(1).Stage().String().Str();
  };
  ExpectCase({"stages", CModule::AnalStage, {{1, 2}}, fill, read, L"1 1 1 1 1", L"2 2 2 2 2"});
}

TEST(ReferenceRows, OfTiedInterfacesRunForElementsAndForNodes) {
  auto const fill = [](CZelData& model) {
    NodesAt(model, {2});
    Data::CTiedInterface tied;
    tied.SetPrimaryElements({SelElement, L"1"});
    tied.SetConstrainedEntities({SelNode, L"2"});
    model.SetTiedInterface(1, tied);
  };
  auto const read = [](CZelData const& model) {
    auto const& tied = model.TiedInterface(1);
    return tied.PrimaryElements().String().Str() + L" " + tied.ConstrainedEntities().String().Str();
  };
  ExpectCase({"elements", CModule::Elem, {{1, 5}}, fill, read, L"1 2", L"5 2"});
  ExpectCase({"nodes", CModule::Node, {{2, 6}}, fill, read, L"1 2", L"1 6"});
}

TEST(ReferenceRows, OfGridLoadsRunForAxesSurfacesAndPolylines) {
  auto const fill = [](CZelData& model) {
    Data::CGridPointLoad point;
    point.SetAxis(1);
    point.SetSurface(2);
    model.SetGridPointLoad(1, point);
    Data::CGridLineLoad line;
    line.SetAxis(1);
    line.SetSurface(2);
    line.SetPolyRef(3, true);
    model.SetGridLineLoad(1, line);
    Data::CGridAreaLoad area;
    area.SetAxis(1);
    area.SetSurface(2);
    area.SetPolyRef(3, false);
    model.SetGridAreaLoad(1, area);
  };
  auto const read = [](CZelData const& model) {
    auto const& line = model.GridLineLoad(1);
    auto const& area = model.GridAreaLoad(1);
    return Text(model.GridPointLoad(1).Axis()) + Text(model.GridPointLoad(1).Surface()) + L" " +
           Text(line.Axis()) + Text(line.Surface()) + Text(line.PolyRef()) + L" " +
           Text(area.Axis()) + Text(area.Surface()) + Text(area.PolyRef());
  };
  auto const before = L"12 123 123";
  ExpectCase({"axes", CModule::Axis, {{1, 7}}, fill, read, before, L"72 723 723"});
  ExpectCase({"surfaces", CModule::GridSurface, {{2, 8}}, fill, read, before, L"18 183 183"});
  ExpectCase({"polylines", CModule::Polyline, {{3, 9}}, fill, read, before, L"12 129 129"});
}

TEST(ReferenceRows, OfGravityAndAssembliesRunForElementsAndForNodes) {
  auto const fill = [](CZelData& model) {
    NodesAt(model, {2});
    Data::CGravityLoad load;
    load.SetLoadedEntities({SelElement, L"1"});
    load.SetLoadedNodes({SelNode, L"2"});
    model.SetGravityLoad(1, load);
    Data::CAssembly assembly;
    assembly.SetEntities({SelElement, L"1"});
    assembly.SetTopo(0, 2);
    model.SetAssembly(1, assembly);
  };
  auto const read = [](CZelData const& model) {
    return model.GravityLoad(1).LoadedEntities().String().Str() + L" " +
           model.GravityLoad(1).LoadedNodes().String().Str() + L" " +
           model.Assembly(1).Entities().String().Str() + L" " + Text(model.Assembly(1).Topo(0));
  };
  ExpectCase({"elements", CModule::Elem, {{1, 5}}, fill, read, L"1 2 1 2", L"5 2 5 2"});
  ExpectCase({"nodes", CModule::Node, {{2, 6}}, fill, read, L"1 2 1 2", L"1 6 1 6"});
}

TEST(ReferenceRows, OfStageMaterialsRunForStagesAlone) {
  auto const fill = [](CZelData& model) { model.SetAnalStageMat(1, {2, 4, 5}); };
  auto const read = [](CZelData const& model) {
    auto const& record = model.AnalStageMat(1);
    return Text(record.Stage()) + L" " + Text(record.ElemOriginalMat()) + L" " +
           Text(record.ElemStageMat());
  };
  ExpectCase({"stages", CModule::AnalStage, {{2, 3}}, fill, read, L"2 4 5", L"3 4 5"});
  ExpectCase({"materials", CModule::MatAnal, {{4, 14}}, fill, read, L"2 4 5", L"2 4 5"});
}

TEST(ReferenceRows, OfTasksRunForAxesElementsAndNodes) {
  auto const fill = [](CZelData& model) {
    NodesAt(model, {1, 2});
    CZdSpecTask spectrum(L"", AnalSoln::ResponseSpectrum);
    spectrum.SetRelDisp(0, {3, 1, 2});
    model.SetAnalysisTask(1, spectrum);
    CFormRelaxTask form(L"");
    form.SetEulerElemList({SelElement, L"1"});
    model.SetAnalysisTask(2, form);
  };
  auto const read = [](CZelData const& model) {
    auto const& spectrum = dynamic_cast<CZdSpecTask const&>(model.AnalysisTask(1));
    std::wstring const moved = spectrum.RelDisp(0) == CRelDisp(3, 1, 2)   ? L"same"
                               : spectrum.RelDisp(0) == CRelDisp(7, 1, 2) ? L"axis"
                               : spectrum.RelDisp(0) == CRelDisp(3, 8, 2) ? L"node"
                                                                          : L"other";
    auto const& form = dynamic_cast<CFormRelaxTask const&>(model.AnalysisTask(2));
    return moved + L" " + form.GetEulerElemList().String().Str();
  };
  ExpectCase({"axes", CModule::Axis, {{3, 7}}, fill, read, L"same 1", L"axis 1"});
  ExpectCase({"nodes", CModule::Node, {{1, 8}, {2, 2}}, fill, read, L"same 1", L"node 1"});
  ExpectCase({"elements", CModule::Elem, {{1, 9}}, fill, read, L"same 1", L"same 9"});
}

TEST(ReferenceRows, OfDescriptionsRunForEachTableOfCases) {
  auto const fill = [](CZelData& model) {
    Data::CCaseDescription description;
    description.SetDescription(L"L1 A1 C1 T1");
    model.SetCaseDescription(1, description);
  };
  auto const read = [](CZelData const& model) {
    return model.CaseDescription(1).Description().Str();
  };
  auto const before = L"L1 A1 C1 T1";
  ExpectCase({"load", CModule::LoadCaseTitle, {{1, 8}}, fill, read, before, L"L8 A1 C1 T1"});
  ExpectCase({"analysis", CModule::AnalysisCase, {{1, 8}}, fill, read, before, L"L1 A8 C1 T1"});
  ExpectCase({"combined", CModule::CombinationCase, {{1, 8}}, fill, read, before, L"L1 A1 C8 T1"});
  ExpectCase({"task", CModule::AnalysisTask, {{1, 8}}, fill, read, before, L"L1 A1 C1 T8"});
}

TEST(ReferenceRows, OfSavedListsAndViewsAlwaysRun) {
  auto const fill = [](CZelData& model) {
    CEntList const list(SelElement, L"PB1");
    model.SetList(1, {L"", SelElement, L"PB1"});
    Data::CGrView drawn;
    drawn.SetElements(list);
    model.SetGrView(1, drawn);
    Data::COpView told;
    told.SetElements(list);
    model.SetOpView(1, told);
  };
  auto const read = [](CZelData const& model) {
    return model.List(1).String().Str() + L" " + model.GrView(1).Elements().String().Str() + L" " +
           model.OpView(1).Elements().String().Str();
  };
  ExpectCase({"sections", CModule::Section, {{1, 5}}, fill, read, L"PB1 PB1 PB1", L"PB5 PB5 PB5"});
}

}  // namespace
}  // namespace Tarvex::ReferenceRowsTest
