// Each field of load cases, stages, tasks and cases, with a value that differs from its default:
// its text in a file, and the record that the text reads back as.
#include "store/record/cases.h"
#include "store/record/load_case_title.h"
#include "store/record/stages.h"
#include "store/record/tasks.h"
#include "tests/support/matchers.h"
#include "tests/workbench/file/file_support.h"
#include "workbench/file/file_error.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Workbench::CaseCodecsTest {
namespace {

using Data::CEntList;
using Testing::FaultOf;
using Testing::IsUnchanged;
using Testing::ModelFile;
using Testing::Read;

/// What the writer gives for a model behind the head of the file.
std::string Entries(CZelData const& model) {
  auto const text = WriteModelText(model);
  auto const headEnd = text.find("\"deg\"}") + 6;
  return text.substr(headEnd, text.size() - headEnd - 3);
}

/// Expects that a model writes one table with one record of these fields, and reads back.
void ExpectRecord(CZelData const& model, std::string const& table, std::string const& fields) {
  SCOPED_TRACE(table);
  EXPECT_EQ(Entries(model), ",\n  \"" + table + "\": [\n    {" + fields + "}\n  ]");
  EXPECT_TRUE(IsUnchanged(Read(WriteModelText(model)), model));
}

TEST(CaseFields, AreWrittenWhereTheyDifferFromTheDefault) {
  CZelData titles;
  Data::CLoadCaseTitle title(L"dead", CaseType::Prestress, 2);
  title.SetCategory(3);
  title.SetPermanentMode(4);
  title.SetDirection(5);
  titles.SetLoadCaseTitle(7, title);
  ExpectRecord(titles, "LoadCaseTitle",
               R"("n": 7, "name": "dead", "type": 21, "source": 2, "category": 3, )"
               R"("permanentMode": 4, "direction": 5)");
  CZelData cases;
  Zel::CAnalysisCase record(L"a", L"L1 : P(C2)", 3);
  record.SetModeDirection(2);
  cases.SetAnalysisCase(7, record);
  ExpectRecord(cases, "AnalysisCase",
               R"x("n": 7, "name": "a", "description": "L1 : P(C2)", "task": 3, )x"
               R"("modeDirection": 2)");
  CZelData combinations;
  Data::CCombinationCase combination(false);
  combination.SetDescription(Data::CCombCaseDesc(L"1.35A1 + C2"));
  combinations.SetCombinationCase(7, combination);
  ExpectRecord(combinations, "CombinationCase",
               R"("n": 7, "description": "1.35A1 + C2", "isUsed": false)");
  CZelData descriptions;
  Data::CCaseDescription description;
  description.SetDescription(L"SRSS(C1,C2)");
  descriptions.SetCaseDescription(7, description);
  ExpectRecord(descriptions, "CaseDescription", "\"n\": 7, \"description\": \"SRSS(C1,C2)\"");
  CZelData designs;
  designs.SetDesignTask(7, CDesignTask(L"steel"));
  ExpectRecord(designs, "DesignTask", R"("n": 7, "name": "steel")");
}

TEST(StageFields, AreWrittenWhereTheyDifferFromTheDefault) {
  CZelData stages;
  stages.SetAnalStage(7, Data::CAnalStage(L"a", CEntList(SelElement, L"1 to 4")));
  ExpectRecord(stages, "AnalStage", R"("n": 7, "name": "a", "stageElem": "1 to 4")");
  CZelData properties;
  properties.SetAnalStageProp(7, Data::CAnalStageProp(1, PropertyType::Solid, 2, 3));
  ExpectRecord(properties, "AnalStageProp",
               R"("n": 7, "stage": 1, "propType": 7, "elemProp": 2, "propRec": 3)");
  CZelData materials;
  materials.SetAnalStageMat(7, Data::CAnalStageMat(1, 2, 3));
  ExpectRecord(materials, "AnalStageMat",
               R"("n": 7, "stage": 1, "elemOriginalMat": 2, "elemStageMat": 3)");
}

TEST(TaskFields, StandBehindTheClass) {
  auto const expect = [](Zel::CAnalysisTask const& task, std::string const& fields) {
    CZelData model;
    model.SetAnalysisTask(7, task);
    ExpectRecord(model, "AnalysisTask", "\"n\": 7, " + fields);
  };
  Zel::CAnalysisTask plain(L"a", AnalSoln::StaticNonLinear);
  plain.SetStatus(TaskStatus::Done);
  plain.SetStage(2);
  plain.SetCases({3, 1});
  expect(plain, R"("class": "CAnalysisTask", "name": "a", "solution": 7, "status": 2, "stage": 2, )"
                R"("cases": [1, 3])");
  CZssTask task(L"", AnalSoln::Static);
  task.SetPDelta(L"A1");
  task.SetPDeltaAnalysis(true);
  task.SetPDeltaEffects(true);
  task.SetPrestress(L"L1");
  task.SetAdditionalMass(true);
  task.SetMassCase(L"L2");
  task.SetMassDirection(Direction::X);
  task.SetMassScale(0.3);
  task.SetMassOption(Data::CSpec::MassOp::Ignored);
  task.SetModalParameters({2, 5, 0.5});
  task.SetGeoExclude(CEntList(SelElement, L"5"));
  expect(task,
         R"("class": "CZssTask", "pDelta": "A1", "pDeltaAnalysis": true, "pDeltaEffects": true, )"
         R"("prestress": "L1", "additionalMass": true, "massCase": "L2", "massDirection": 1, )"
         R"("massScale": 0.3, "massOption": 0, )"
         R"("modalParameters": {"firstMode": 2, "numModes": 5, "shift": 0.5}, )"
         R"("geoExclude": "5")");
  CZdSpecTask spectrum;
  spectrum.SetTask(2);
  spectrum.SetLoad(L"L1");
  spectrum.SetSource(4);
  spectrum.SetSpectrum(Direction::Z, 2);
  spectrum.SetRelDisp(0, CRelDisp(1, 2, 3));
  expect(spectrum,
         R"("class": "CZdSpecTask", "task": 2, "load": "L1", "source": 4, "spectrum": [0, 0, 2], )"
         R"("relDisp": [{"axis": 1, "nodes": [2, 3]}])");
  CEnvelopeTask envelope;
  envelope.SetDesc(L"A1 to A3", nullptr);
  expect(envelope, R"("class": "CEnvelopeTask", "desc": "A1 to A3")");
  CFormRelaxTask relax;
  relax.SetEulerElemList(CEntList(SelElement, L"all"));
  expect(relax, R"("class": "CFormRelaxTask", "eulerElemList": "all")");
}

TEST(TaskFields, AreReadWithTheClassBeforeTheNumberToo) {
  auto const model = Read(
      ModelFile(",\n\"AnalysisTask\": [{\"class\": \"CZssTask\", \"n\": 4, \"name\": \"a\"}]"));
  ASSERT_TRUE(model.AnalysisTaskExist(4));
  EXPECT_EQ(model.AnalysisTask(4).Name(), L"a");
  EXPECT_EQ(model.AnalysisTask(4).Solver(), TaskSolver::Static);
}

TEST(TaskFaults, AreTold) {
  auto const fault = [](std::string const& task) {
    auto const found = FaultOf(ModelFile(",\n\"AnalysisTask\": [" + task + "]"));
    return found ? found->Place().pointer + ": " + found->Text() : std::string();
  };
  EXPECT_EQ(fault(R"({"n": 1})"), "/AnalysisTask/0: missing key \"class\"");
  EXPECT_EQ(fault(R"({"class": "CZssTask"})"), "/AnalysisTask/0: missing key \"n\"");
  EXPECT_EQ(fault(R"({"n": 1, "name": "a", "class": "CZssTask"})"),
            "/AnalysisTask/0/name: expected key \"class\" before \"name\"");
  EXPECT_EQ(fault(R"({"n": 1, "class": "CTask"})"),
            "/AnalysisTask/0/class: \"CTask\" is no class of tasks");
  EXPECT_EQ(fault(R"({"n": 1, "class": "CEnvelopeTask", "pDelta": "A1"})"),
            "/AnalysisTask/0/pDelta: unknown key \"pDelta\"");
  EXPECT_EQ(fault(R"({"n": 1, "class": "CZssTask", "class": "CZssTask"})"),
            "/AnalysisTask/0/class: repeated key \"class\"");
  EXPECT_EQ(fault(R"({"n": 1, "class": "CZssTask", "name": "a", "name": "b"})"),
            "/AnalysisTask/0/name: repeated key \"name\"");
  EXPECT_EQ(fault(R"({"n": 1, "class": "CZssTask"}, {"n": 1, "class": "CZssTask"})"),
            "/AnalysisTask/1/n: number 1 occurs twice, first in AnalysisTask");
  EXPECT_NE(fault(R"({"n": 0, "class": "CZssTask"})"), "");
  EXPECT_NE(fault(R"({"n": 1, "class": "CZssTask", "solution": 8})"), "");
  EXPECT_NE(fault(R"({"n": 1, "class": "CZssTask", "geoExclude": "1 to"})"), "");
}

TEST(OneOffFields, OfSpecAndRaftAreWritten) {
  CZelData model;
  Data::CSpec spec;
  spec.SetCountry(Data::CCountry(80));
  spec.SetZElevation(1200.5);
  spec.SetStructType(StrType::PlaneXZ);
  model.SetSpec(spec);
  Data::CRaftSpec raft;
  raft.SetTopLevel(-1.5);
  model.SetRaftSpec(raft);
  EXPECT_EQ(Entries(model),
            ",\n  \"Spec\": {\"country\": {\"code\": 80}, \"zElevation\": 1200.5, "
            "\"structType\": 1},\n  \"RaftSpec\": {\"topLevel\": -1.5}");
  EXPECT_TRUE(IsUnchanged(Read(WriteModelText(model)), model));
}

}  // namespace
}  // namespace Tarvex::Workbench::CaseCodecsTest
