// Unused materials and properties removed, and holes closed.
#include <gtest/gtest.h>

#include "store/record/assembly.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/grid_surface.h"
#include "store/record/restraints.h"
#include "store/record/section.h"
#include "store/record/spring_prop.h"
#include "store/record/stages.h"
#include "store/text/number_text.h"
#include "tarvex/tidy.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::UpdatePropTest {
namespace {

using Data::CEntList;
using Testing::Numbers;

/// Runs test(row) on the tables of materials and properties that are tidied.
template <class Test>
void ForTidied(Test&& test) {
  int met = 0;
  Registry::kSparseTables.ForEach([&](auto const& row) {
    for (int const module :
         {38, 30, 31, 32, 33, 35, 34, 36, 37, 50, 54, 52, 57, 53, 56, 58, 59, 55})
      if (row.module == module) {
        SCOPED_TRACE(row.stem);
        ++met;
        test(row);
      }
  });
  EXPECT_EQ(met, 18);
}

TEST(BlankUnused, RemovesWhatNothingUsesFromEachTableButSections) {
  ForTidied([](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    for (bool const noSection : {false, true}) {
      CZelData model;
      (model.*row.set)(3, Record(), SidMode::Keep);
      CUpdateProp tidy(model);
      tidy.SetNoSection(noSection);
      EXPECT_TRUE(tidy.Update(CUpdateProp::kBlankUnused));
      bool const stays = row.module == CModule::Section && !noSection;
      EXPECT_EQ((model.*row.exist)(3), stays);
    }
  });
}

TEST(BlankUnused, LeavesWhatIsUsedAndTheNumbers) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  model.SetElemProperty(1, 4);
  model.SetSection(4, {L"", {Data::CSecComp(L"", 2, {MatType::Steel, 3})}});
  model.SetSection(5, {L"", {Data::CSecComp(L"", 3, {MatType::Steel, 4})}});
  for (int const n : {2, 3}) model.SetMatAnal(n, Data::CMatAnal());
  for (int const n : {3, 4}) model.SetMatSteel(n, Data::Design::CMatSteel());
  CUpdateProp tidy(model);
  tidy.SetNoSection(true);
  EXPECT_TRUE(tidy.Update(CUpdateProp::kBlankUnused));
  EXPECT_EQ(Numbers(model.Section()), std::vector<int>{4});
  EXPECT_EQ(Numbers(model.MatAnal()), std::vector<int>{2});
  EXPECT_EQ(Numbers(model.MatSteel()), std::vector<int>{3});
}

TEST(BlankUnused, CountsAMaterialOfAnUnusedSectionAsUnused) {
  CZelData model;
  model.SetSection(5, {L"", {Data::CSecComp(L"", 3, {MatType::Steel, 4})}});
  model.SetMatAnal(3, Data::CMatAnal());
  model.SetMatSteel(4, Data::Design::CMatSteel());
  CUpdateProp tidy(model);
  EXPECT_TRUE(tidy.Update(CUpdateProp::kBlankUnused));
  EXPECT_EQ(Numbers(model.Section()), std::vector<int>{5});
  EXPECT_EQ(model.HighestMatAnal(), 0);
  EXPECT_EQ(model.HighestMatSteel(), 0);
}

TEST(Update, RefusesAnyOtherOption) {
  CZelData model;
  model.SetMatAnal(3, Data::CMatAnal());
  CZelData const before(model);
  CUpdateProp tidy(model);
  EXPECT_FALSE(tidy.Update(static_cast<CUpdateProp::Opt>(2)));
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

TEST(DeleteBlank, ClosesTheHolesOfEachTable) {
  ForTidied([](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    CZelData model;
    for (int const n : {2, 5, 9}) {
      Record record;
      record.SetName(StringFrom(n));
      (model.*row.set)(n, record, SidMode::Keep);
    }
    CUpdateProp tidy(model);
    EXPECT_TRUE(tidy.Update(CUpdateProp::kDeleteBlank));
    EXPECT_EQ(Numbers((model.*row.all)()), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ((model.*row.get)(1).Name(), L"2");
    EXPECT_EQ((model.*row.get)(3).Name(), L"9");
  });
}

TEST(DeleteBlank, LeavesAModelWithoutHolesAsItIs) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  model.SetElemProperty(1, 1);
  model.SetSection(1, {L"", {Data::CSecComp(L"", 1, {MatType::Steel, 1})}});
  model.SetMatAnal(1, Data::CMatAnal());
  model.SetMatSteel(1, Data::Design::CMatSteel());
  model.SetList(1, {L"", SelElement, L"PB1"});
  CZelData const before(model);
  CUpdateProp tidy(model);
  EXPECT_TRUE(tidy.Update(CUpdateProp::kDeleteBlank));
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

/// A model in which each table that is tidied has a record 4 only, which becomes 1.
CZelData ModelWithHoles() {
  CZelData model;
  ForTidied([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    (model.*row.set)(4, Record(), SidMode::Keep);
  });
  return model;
}

void Tidy(CZelData& model) {
  CUpdateProp tidy(model);
  EXPECT_TRUE(tidy.Update(CUpdateProp::kDeleteBlank));
}

TEST(TidyRef, GivesMaterialsOfPropertiesTheirNewNumbersWhetherTheyMoveOrNot) {
  for (auto const type : {MatType::Steel, MatType::Concrete, MatType::Aluminium, MatType::Glass,
                          MatType::Frp, MatType::Rebar, MatType::Timber, MatType::Fabric})
    for (int const n : {1, 4}) {
      auto model = ModelWithHoles();
      model.BlankSection(4, 1);
      model.BlankProp2D(4, 1);
      model.BlankProp3D(4, 1);
      model.SetSection(n, {L"", {Data::CSecComp(L"", 4, {type, 4}), Data::CSecComp(L"", -1, {})}});
      Data::CProp2D plate;
      plate.SetMaterialAnalysis(4);
      plate.SetMaterialDesign({type, 4});
      model.SetProp2D(n, plate);
      model.SetProp3D(n, {L"", 9, {type, 4}, 0, Data::CProp3D::PropType::Solid});
      Tidy(model);
      EXPECT_EQ(model.Section(1).MaterialAnalysis(0), 1);
      EXPECT_EQ(model.Section(1).MaterialGrade(0), 1);
      EXPECT_EQ(model.Section(1).MaterialAnalysis(1), -1);
      EXPECT_EQ(model.Prop2D(1).MaterialAnalysis(), 1);
      EXPECT_EQ(model.Prop2D(1).MaterialGrade(), 1);
      EXPECT_EQ(model.Prop3D(1).MaterialAnalysis(), 0);  // there is no material 9
      EXPECT_EQ(model.Prop3D(1).MaterialGrade(), 1);
    }
}

TEST(TidyRef, FollowsElementsByTypeMembersAndPanels) {
  auto model = ModelWithHoles();
  // One table of properties is left with its hole, so that the others tell themselves apart.
  for (int const type : {1, 2, 20, 21, 23, 3, 5, 6, 7, 8, 9, 10, 12, 14, 16, 26, 19, 24, 4})
    model.SetElem(type, Data::CElement(1, static_cast<ElementType>(type), 4));
  model.SetElem(30, Data::CElement(1, ElementType::Beam, 9));  // of no section
  Data::LoadPanel panel;
  panel.SetProperty(4);
  model.SetLoadPanel(40, panel);
  wchar_t const* const topologies[] = {L"1 2", L"1 2 3", L"1 2 3 ; 1 2 4"};
  for (int n = 1; n <= 3; ++n) {
    Data::CMember member(1, 4);
    ASSERT_TRUE(member.SetTopo(CString(topologies[n - 1])));
    model.SetMember(n, member);
  }
  Tidy(model);
  for (int const type : {1, 2, 20, 21, 23, 3, 5, 6, 7, 8, 9, 10, 12, 14, 16, 26, 19, 24})
    EXPECT_EQ(model.Elem(type).Property(), 1) << type;
  EXPECT_EQ(model.Elem(4).Property(), 4);
  EXPECT_EQ(model.Elem(30).Property(), 0);
  EXPECT_EQ(model.LoadPanel(40).Property(), 1);
  for (int n = 1; n <= 3; ++n) EXPECT_EQ(model.Member(n).Property(), 1);
}

TEST(TidyRef, GoesByTheTableOfEachFamily) {
  struct Row {
    int type;
    CModule::ModuleId module;
  };
  for (auto const& [type, module] :
       {Row{2, CModule::Section}, Row{3, CModule::SpringProp}, Row{5, CModule::Prop2D},
        Row{9, CModule::LinkProp}, Row{10, CModule::CableProp}, Row{12, CModule::Prop3D},
        Row{19, CModule::SpacerProp}, Row{24, CModule::DamperProp}}) {
    CZelData model;
    ForTidied([&](auto const& row) {
      using Record = typename std::remove_cvref_t<decltype(row)>::Record;
      if (row.module == module) (model.*row.set)(4, Record(), SidMode::Keep);
    });
    model.SetElem(1, Data::CElement(1, static_cast<ElementType>(type), 4));
    Tidy(model);
    EXPECT_EQ(model.Elem(1).Property(), 1) << type;
  }
}

/// A model in which a record 40 closes up to another number in each table of properties: 1 in that
/// of sections, then springs, masses, plates, links, cables, solids and dampers.
CZelData ModelWithHolesOfItsOwnInEachTable() {
  CZelData model;
  int const modules[] = {50, 52, 53, 54, 56, 58, 55, 57};
  for (int number = 1; number <= 8; ++number)
    ForTidied([&](auto const& row) {
      using Record = typename std::remove_cvref_t<decltype(row)>::Record;
      if (row.module != modules[number - 1]) return;
      for (int n = 1; n < number; ++n) (model.*row.set)(n, Record(), SidMode::Keep);
      (model.*row.set)(40, Record(), SidMode::Keep);
    });
  return model;
}

TEST(TidyRef, GoesByTheTableOfMembersPanelsAndStages) {
  auto model = ModelWithHolesOfItsOwnInEachTable();
  struct MemberRow {
    wchar_t const* topology;
    ElementType type;
    int now;
  };
  MemberRow const members[] = {{L"1 2", ElementType::Beam, 1},
                               {L"1 2", ElementType::Cable, 6},
                               {L"1 2", ElementType::Damper, 8},
                               {L"1 2 3", ElementType::Beam, 4},
                               {L"1 2 3 ; 1 2 4", ElementType::Beam, 7}};
  for (int n = 1; auto const& row : members) {
    Data::CMember member(1, 40);
    ASSERT_TRUE(member.SetTopo(CString(row.topology)));
    member.SetAnalysisType1D(row.type);
    model.SetMember(n++, member);
  }
  Data::LoadPanel panel;
  panel.SetProperty(40);
  model.SetLoadPanel(1, panel);
  struct StageRow {
    PropertyType type;
    int now;
  };
  StageRow const stages[] = {{PropertyType::Section, 1}, {PropertyType::Spring, 2},
                             {PropertyType::Mass, 3},    {PropertyType::Plate, 4},
                             {PropertyType::Link, 5},    {PropertyType::Cable, 6},
                             {PropertyType::Solid, 7},   {PropertyType::Damper, 8}};
  for (int n = 1; auto const& row : stages) model.SetAnalStageProp(n++, {1, row.type, 40, 40});
  Tidy(model);
  for (int n = 1; auto const& row : members) EXPECT_EQ(model.Member(n++).Property(), row.now);
  EXPECT_EQ(model.LoadPanel(1).Property(), 4);
  for (int n = 1; auto const& row : stages)
    EXPECT_EQ(model.AnalStageProp(n++), Data::CAnalStageProp(1, row.type, row.now, row.now));
}

TEST(TidyRef, LeavesTheNumbersThatNodesName) {
  auto model = ModelWithHoles();
  Data::CNode node;
  node.SetSpringProperty(4);
  node.SetMassProperty(4);
  node.SetDamperProperty(4);
  model.SetNode(1, node);
  CZelData const before(model);
  Tidy(model);
  EXPECT_EQ(model.Node(1), node);
}

TEST(TidyRef, FollowsPropertiesAndMaterialsOfStages) {
  struct Row {
    PropertyType type;
    bool follows;
  };
  for (auto const& [type, follows] :
       {Row{PropertyType::Section, true}, Row{PropertyType::Spring, true},
        Row{PropertyType::Mass, true}, Row{PropertyType::Plate, true},
        Row{PropertyType::Link, true}, Row{PropertyType::Cable, true},
        Row{PropertyType::None, false}, Row{PropertyType::Solid, true},
        Row{PropertyType::Damper, true}}) {
    auto model = ModelWithHoles();
    model.SetAnalStageProp(1, {2, type, 4, 9});
    model.SetAnalStageMat(1, {2, 4, 9});
    Tidy(model);
    EXPECT_EQ(model.AnalStageProp(1),
              Data::CAnalStageProp(2, type, follows ? 1 : 4, follows ? 0 : 9));
    EXPECT_EQ(model.AnalStageMat(1), Data::CAnalStageMat(2, 1, 0));
  }
}

CEntList const kList(SelElement,
                     L"PB4 PS4 PM4 PA4 PL4 PC4 PG4 PV4 PD4 M4 MS4 MC4 MA4 MG4 MP4 MT4 "
                     L"MF4 P4 G4 X4 4 #4");
constexpr wchar_t kTidied[] =
    L"PB1 PS1 PM1 PA1 PL1 PC1 PG1 PV1 PD1 M1 MS1 MC1 MA1 MG1 MP1 MT1 MF1 P4 G4 X4 4 #4";

TEST(TidyRef, FollowsWordsOfLists) {
  auto model = ModelWithHoles();
  Data::CGridSurface surface;
  surface.SetElements(kList);
  model.SetGridSurface(1, surface);
  Data::CTiedInterface tied;
  tied.SetPrimaryElements(kList);
  tied.SetConstrainedEntities(kList);
  model.SetTiedInterface(1, tied);
  tied.SetConstrainedEntities({SelMember, L"PB4"});
  model.SetTiedInterface(2, tied);
  auto const add = [&]<class Load>(Load load, void (LoadTables::*set)(int, Load const&, SidMode)) {
    load.SetLoadedEntities(kList);
    (model.*set)(1, load, SidMode::Keep);
  };
  add(Data::CBeamLoad(), &CZelData::SetBeamLoad);
  add(Data::CAxialLoad(), &CZelData::SetAxialLoad);
  add(Data::CBeamDist(), &CZelData::SetBeamDist);
  add(Data::CBeamThermalLoad(), &CZelData::SetBeamThermalLoad);
  add.operator()<Data::CFaceLoad>(Data::CFaceLoad(), &CZelData::SetFaceLoad);
  add(Data::CEdgeLoad(), &CZelData::SetEdgeLoad);
  add(Data::CInPlaneLoad(), &CZelData::SetInPlaneLoad);
  add(Data::CFaceThermalLoad(), &CZelData::SetFaceThermalLoad);
  add(Data::CBodyFaceLoad(), &CZelData::SetBodyFaceLoad);
  add(Data::CBodyThermalLoad(), &CZelData::SetBodyThermalLoad);
  Data::CGravityLoad gravity;
  gravity.SetLoadedEntities(kList);
  gravity.SetLoadedNodes({SelNode, L"PM4"});
  model.SetGravityLoad(1, gravity);
  model.SetList(1, {L"", SelElement, kList.String()});
  model.SetList(2, {L"", SelMember, L"PB4"});
  model.SetList(3, {L"", SelNode, L"PS4"});
  model.SetList(4, {L"", SelNone, L"4"});
  Data::CAssembly assembly;
  assembly.SetEntities(kList);
  model.SetAssembly(1, assembly);
  Tidy(model);
  EXPECT_EQ(model.GridSurface(1).Elements().String(), kTidied);
  EXPECT_EQ(model.TiedInterface(1).PrimaryElements().String(), kTidied);
  EXPECT_EQ(model.TiedInterface(1).ConstrainedEntities().String(), kTidied);
  EXPECT_EQ(model.TiedInterface(2).ConstrainedEntities().String(), L"PB4");
  EXPECT_EQ(model.BeamLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.AxialLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.BeamDist(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.BeamThermalLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.FaceLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.EdgeLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.InPlaneLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.FaceThermalLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.BodyFaceLoad(1).LoadedEntities(), kList);  // loads on solids do not follow
  EXPECT_EQ(model.BodyThermalLoad(1).LoadedEntities(), kList);
  EXPECT_EQ(model.GravityLoad(1).LoadedEntities().String(), kTidied);
  EXPECT_EQ(model.GravityLoad(1).LoadedNodes().String(), L"PM1");
  EXPECT_EQ(model.List(1).String(), kTidied);
  EXPECT_EQ(model.List(2).String(), L"PB1");
  EXPECT_EQ(model.List(3).String(), L"PS1");
  EXPECT_EQ(model.List(4).String(), L"4");
  EXPECT_EQ(model.Assembly(1).Entities().String(), kTidied);
}

TEST(TidyRef, WritesZeroForAPropertyThatThereIsNot) {
  auto model = ModelWithHoles();
  model.SetList(1, {L"", SelElement, L"PB9 3"});
  Tidy(model);
  EXPECT_EQ(model.List(1).String(), L"PB0 3");
}

// Types of 2D properties.

constexpr int kTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};

TEST(IsValidProperty, GoesByTheKindOfStructure) {
  struct Row {
    int structure;
    std::vector<int> types;
  };
  for (auto const& [structure, types] : std::vector<Row>{{0, {0, 1, 4, 5, 6, 7, 8, 9, 10}},
                                                         {1, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
                                                         {2, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
                                                         {3, {1}},
                                                         {4, {2}},
                                                         {5, {3}},
                                                         {6, {}},
                                                         {-1, {}}}) {
    std::vector<int> valid;
    for (int const type : kTypes) {
      auto const kind = static_cast<StrType>(structure);
      auto const plate = static_cast<Data::PropertyType2d>(type);
      if (CUpdateProp::IsValidProperty(plate, kind)) valid.push_back(type);
      CZelData model;
      EXPECT_TRUE(CUpdateProp::Check2dProperties(model, kind));
      Data::CProp2D record;
      record.SetType(plate);
      model.SetProp2D(3, record);
      EXPECT_EQ(CUpdateProp::Check2dProperties(model, kind),
                CUpdateProp::IsValidProperty(plate, kind));
    }
    EXPECT_EQ(valid, types) << structure;
  }
}

TEST(Update2dElementProperties, GivesPlatesTheTypeOfTheStructure) {
  struct Row {
    int structure;
    std::vector<int> after;  // of the types 0 to 10
  };
  for (auto const& [structure, after] : std::vector<Row>{{0, {0, 1, 1, 1, 4, 5, 6, 7, 8, 9, 10}},
                                                         {1, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
                                                         {2, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
                                                         {3, std::vector<int>(11, 1)},
                                                         {4, std::vector<int>(11, 2)},
                                                         {5, std::vector<int>(11, 3)}}) {
    CZelData model;
    auto spec = model.Spec();
    spec.SetStructType(static_cast<StrType>(structure));
    model.SetSpec(spec);
    for (int const type : kTypes) {
      Data::CProp2D plate;
      plate.SetType(static_cast<Data::PropertyType2d>(type));
      model.SetProp2D(type + 1, plate);
    }
    CUpdateProp::Update2dElementProperties(model);
    std::vector<int> types;
    for (auto const& [n, plate] : model.Prop2D()) types.push_back(static_cast<int>(plate.Type()));
    EXPECT_EQ(types, after) << structure;
  }
}

}  // namespace
}  // namespace Tarvex::UpdatePropTest
