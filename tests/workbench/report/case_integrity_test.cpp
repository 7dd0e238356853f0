// A missing number planted in each reference, list and description of stages, tasks and cases, and
// in saved lists.
#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/cases.h"
#include "store/record/load_case_title.h"
#include "store/record/mat_anal.h"
#include "store/record/stages.h"
#include "store/record/tasks.h"
#include "tests/support/builders.h"
#include "workbench/report/field_changes.h"
#include "workbench/report/integrity.h"

namespace Tarvex::CaseIntegrityTest {
namespace {

using Data::CEntList;
using Workbench::FindFaults;
using Workbench::FindFieldChanges;
using Workbench::Finding;

/// A plate, and under number 1 what tasks and cases name.
CZelData Sound() {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetMatAnal(1, Data::CMatAnal());
  model.SetLoadCaseTitle(1, Data::CLoadCaseTitle());
  model.SetAnalStage(1, Data::CAnalStage(L"", CEntList(SelElement, L"1")));
  model.SetAnalysisTask(1, CZssTask());
  model.SetAnalysisCase(1, Zel::CAnalysisCase(L"", L"L1", 1));
  model.SetCombinationCase(1, Data::CCombinationCase());
  return model;
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

using M = CZelData;

/// Stores a task under number 7 after a change.
template <class Task, class Change>
void PutTask(M& model, Change&& change) {
  Task task;
  change(task);
  model.SetAnalysisTask(7, task);
}

template <PropertyType Type>
void PutStageProp(M& model) {
  model.SetAnalStageProp(7, Data::CAnalStageProp(1, Type, 91, 0));
}

Planted const kRows[] = {
    {"AnalStage", 7, "stageElem", 1, 93, "Elem",
     [](M& m) { m.SetAnalStage(7, Data::CAnalStage(L"", CEntList(SelElement, L"1 93"))); }},
    {"AnalStageProp", 7, "stage", -1, 91, "AnalStage",
     [](M& m) { m.SetAnalStageProp(7, Data::CAnalStageProp(91, PropertyType::Link, 0, 0)); }},
    {"AnalStageProp", 7, "elemProp", -1, 91, "Section", &PutStageProp<PropertyType::Section>},
    {"AnalStageProp", 7, "elemProp", -1, 91, "SpringProp", &PutStageProp<PropertyType::Spring>},
    {"AnalStageProp", 7, "elemProp", -1, 91, "MassProp", &PutStageProp<PropertyType::Mass>},
    {"AnalStageProp", 7, "elemProp", -1, 91, "Prop2D", &PutStageProp<PropertyType::Plate>},
    {"AnalStageProp", 7, "elemProp", -1, 91, "LinkProp", &PutStageProp<PropertyType::Link>},
    {"AnalStageProp", 7, "elemProp", -1, 91, "CableProp", &PutStageProp<PropertyType::Cable>},
    {"AnalStageProp", 7, "elemProp", -1, 91, "Prop3D", &PutStageProp<PropertyType::Solid>},
    {"AnalStageProp", 7, "elemProp", -1, 91, "DamperProp", &PutStageProp<PropertyType::Damper>},
    {"AnalStageProp", 7, "propRec", -1, 91, "LinkProp",
     [](M& m) { m.SetAnalStageProp(7, Data::CAnalStageProp(1, PropertyType::Link, 0, 91)); }},
    {"AnalStageMat", 7, "stage", -1, 91, "AnalStage",
     [](M& m) { m.SetAnalStageMat(7, Data::CAnalStageMat(91, 1, 1)); }},
    {"AnalStageMat", 7, "elemOriginalMat", -1, 91, "MatAnal",
     [](M& m) { m.SetAnalStageMat(7, Data::CAnalStageMat(1, 91, 1)); }},
    {"AnalStageMat", 7, "elemStageMat", -1, 91, "MatAnal",
     [](M& m) { m.SetAnalStageMat(7, Data::CAnalStageMat(1, 1, 91)); }},
    {"AnalysisTask", 7, "stage", -1, 91, "AnalStage",
     [](M& m) { PutTask<Zel::CAnalysisTask>(m, [](auto& t) { t.SetStage(91); }); }},
    {"AnalysisTask", 7, "cases", 1, 91, "AnalysisCase",
     [](M& m) { PutTask<Zel::CAnalysisTask>(m, [](auto& t) {
                  t.SetCases({1, 91});
                }); }},
    {"AnalysisTask", 7, "pDelta", 0, 91, "CombinationCase",
     [](M& m) { PutTask<CZssTask>(m, [](auto& t) { t.SetPDelta(L"C91"); }); }},
    {"AnalysisTask", 7, "prestress", 1, 91, "LoadCaseTitle",
     [](M& m) { PutTask<CZssTask>(m, [](auto& t) { t.SetPrestress(L"1.2L1+L91"); }); }},
    {"AnalysisTask", 7, "massCase", 0, 91, "LoadCaseTitle",
     [](M& m) { PutTask<CZssTask>(m, [](auto& t) { t.SetMassCase(L"L91"); }); }},
    {"AnalysisTask", 7, "geoExclude", 0, 93, "Elem",
     [](M& m) {
       PutTask<CZssTask>(m, [](auto& t) { t.SetGeoExclude(CEntList(SelElement, L"93")); });
     }},
    {"AnalysisTask", 7, "task", -1, 91, "AnalysisTask",
     [](M& m) { PutTask<CZdSpecTask>(m, [](auto& t) { t.SetTask(91); }); }},
    {"AnalysisTask", 7, "load", 0, 91, "LoadCaseTitle",
     [](M& m) { PutTask<CZdSpecTask>(m, [](auto& t) { t.SetLoad(L"L91"); }); }},
    {"AnalysisTask", 7, "spectrum", 1, 91, "ResSpectrum",
     [](M& m) { PutTask<CZdSpecTask>(m, [](auto& t) { t.SetSpectrum(Direction::Y, 91); }); }},
    {"AnalysisTask", 7, "relDisp.axis", 0, 91, "Axis",
     [](M& m) { PutTask<CZdSpecTask>(m, [](auto& t) { t.SetRelDisp(0, CRelDisp(91, 1, 2)); }); }},
    {"AnalysisTask", 7, "relDisp.nodes", 1, 92, "Node",
     [](M& m) { PutTask<CZdSpecTask>(m, [](auto& t) { t.SetRelDisp(0, CRelDisp(0, 1, 92)); }); }},
    {"AnalysisTask", 7, "desc", 1, 91, "AnalysisCase",
     [](M& m) { PutTask<CEnvelopeTask>(m, [](auto& t) { t.SetDesc(L"A1 to A91", nullptr); }); }},
    {"AnalysisTask", 7, "eulerElemList", 0, 93, "Elem",
     [](M& m) {
       PutTask<CFormRelaxTask>(m, [](auto& t) { t.SetEulerElemList(CEntList(SelElement, L"93")); });
     }},
    {"AnalysisCase", 7, "description", 0, 91, "LoadCaseTitle",
     [](M& m) { m.SetAnalysisCase(7, Zel::CAnalysisCase(L"", L"L91 : P(L1)", 1)); }},
    {"AnalysisCase", 7, "task", -1, 91, "AnalysisTask",
     [](M& m) { m.SetAnalysisCase(7, Zel::CAnalysisCase(L"", L"L1", 91)); }},
    {"CombinationCase", 7, "description", 2, 91, "AnalysisTask",
     [](M& m) {
       Data::CCombinationCase record;
       record.SetDescription(Data::CCombCaseDesc(L"(1.35 or 1)A1 + 0.3C1 or T91"));
       m.SetCombinationCase(7, record);
     }},
    {"CaseDescription", 7, "description", 0, 91, "CombinationCase",
     [](M& m) {
       Data::CCaseDescription record;
       record.SetDescription(L"SRSS(C91,C1)");
       m.SetCaseDescription(7, record);
     }},
    {"List", 7, "text", 1, 92, "Node", [](M& m) { m.SetList(7, CEntList(SelNode, L"1 92")); }},
    {"List", 7, "text", 0, 93, "Elem", [](M& m) { m.SetList(7, CEntList(SelElement, L"93 1")); }},
    {"List", 7, "text", 0, 94, "Member", [](M& m) { m.SetList(7, CEntList(SelMember, L"94")); }},
    {"List", 7, "text", 1, 95, "List", [](M& m) { m.SetList(7, CEntList(SelNode, L"1 #95")); }},
    {"List", 7, "text", 0, 96, "Node", [](M& m) { m.SetList(7, CEntList(SelElement, L"X96")); }},
    {"List", 7, "text", 1, 91, "LoadCaseTitle",
     [](M& m) { m.SetList(7, CEntList(SelCase, L"L1 L91")); }},
    {"List", 7, "text", 0, 91, "AnalysisCase",
     [](M& m) { m.SetList(7, CEntList(SelCase, L"A91 C1")); }},
    {"List", 7, "text", 1, 91, "CombinationCase",
     [](M& m) { m.SetList(7, CEntList(SelCase, L"A1 C91")); }},
    {"List", 7, "text", 1, 91, "AnalysisTask",
     [](M& m) { m.SetList(7, CEntList(SelCase, L"T1 T91")); }},
};

TEST(FindFaults, FindsNothingWhereAllThatTasksAndCasesNameIsThere) {
  EXPECT_TRUE(FindFaults(Sound()).empty());
}

TEST(FindFaults, NamesAMissingNumberInEachReferenceListAndDescriptionOfTasksAndCases) {
  for (auto const& row : kRows) {
    SCOPED_TRACE(std::string(row.table) + " " + row.field + " " + row.target);
    auto model = Sound();
    row.plant(model);
    EXPECT_EQ(FindFaults(model),
              (std::vector<Finding>{{"dangling-reference", row.table, row.number, row.field,
                                     row.index, row.value, row.target}}));
  }
}

TEST(FindFaults, TakesNoNumberOfAFamilyWithoutATableForAReference) {
  auto model = Sound();
  model.SetAnalStageProp(7, Data::CAnalStageProp(1, PropertyType::None, 91, 92));
  EXPECT_TRUE(FindFaults(model).empty());
}

TEST(FindFaults, FindsANumberThatIsNotFiniteInTasks) {
  auto model = Sound();
  CZssTask task;
  task.SetModalParameters({1, 1, std::numeric_limits<double>::infinity()});
  model.SetAnalysisTask(7, task);
  EXPECT_EQ(FindFaults(model),
            (std::vector<Finding>{{"dimension-not-finite", "AnalysisTask", 7,
                                   "modalParameters.shift", -1, std::nullopt, ""}}));
}

TEST(FindFaults, FindsDescriptionsThatCannotBeReadAndDeletedCases) {
  auto model = Sound();
  model.SetAnalysisCase(7, Zel::CAnalysisCase(L"", L"L1 L1", 1));
  Data::CCombinationCase combination;
  combination.SetDescription(Data::CCombCaseDesc(L"C1 + A<deleted case> or C<deleted case>"));
  model.SetCombinationCase(8, combination);
  PutTask<CZssTask>(model, [](auto& t) { t.SetPDelta(L"C1 or"); });
  EXPECT_EQ(FindFaults(model),
            (std::vector<Finding>{
                {"deleted-case", "CombinationCase", 8, "description", 0, std::nullopt, ""},
                {"deleted-case", "CombinationCase", 8, "description", 1, std::nullopt, ""},
                {"description-not-readable", "AnalysisTask", 7, "pDelta", -1, 5, "",
                 "character 6: expected a case"},
                {"description-not-readable", "AnalysisCase", 7, "description", -1, 3, "",
                 "character 4: expected an operator"}}));
}

TEST(FindFaults, FindsCombinationsThatReachThemselves) {
  auto model = Sound();
  auto const set = [&](int n, wchar_t const* text) {
    Data::CCombinationCase combination;
    combination.SetDescription(Data::CCombCaseDesc(CString(text)));
    model.SetCombinationCase(n, combination);
  };
  set(2, L"C3 + A1");
  set(3, L"0.5C2");
  set(4, L"C2");  // leads to them, but not back
  EXPECT_EQ(FindFaults(model),
            (std::vector<Finding>{{"combination-reaches-itself", "CombinationCase", 2,
                                   "description", -1, std::nullopt, ""},
                                  {"combination-reaches-itself", "CombinationCase", 3,
                                   "description", -1, std::nullopt, ""}}));
}

TEST(FindFieldChanges, TellsTheFieldsOfATaskAndItsClassWhereThatChanged) {
  auto const before = Sound();
  auto after = before;
  CZssTask task;
  task.SetPDelta(L"A1");
  after.SetAnalysisTask(1, task);
  auto changes = FindFieldChanges(before, after);
  ASSERT_EQ(changes.size(), 1u);
  EXPECT_EQ(changes[0].table, "AnalysisTask");
  EXPECT_EQ(changes[0].number, 1);
  EXPECT_EQ(changes[0].field, "pDelta");
  EXPECT_EQ(changes[0].before, "\"\"");
  EXPECT_EQ(changes[0].after, "\"A1\"");
  after.SetAnalysisTask(1, CEnvelopeTask());
  changes = FindFieldChanges(before, after);
  ASSERT_EQ(changes.size(), 1u);
  EXPECT_EQ(changes[0].field, "class");
  EXPECT_EQ(changes[0].before, "\"CZssTask\"");
  EXPECT_EQ(changes[0].after, "\"CEnvelopeTask\"");
}

}  // namespace
}  // namespace Tarvex::CaseIntegrityTest
