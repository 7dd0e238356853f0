#include "store/record/tasks.h"

#include <gtest/gtest.h>

#include "store/record/task_slot.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::TasksTest {
namespace {

using Data::CEntList;
using Zel::CAnalysisTask;
using Zel::TaskSlot;

CEntList Elements(wchar_t const* text) { return {SelElement, CString(text)}; }

TEST(AnalysisTask, GivesBackWhatIsSet) {
  CAnalysisTask task(L"a", AnalSoln::Modal);
  EXPECT_EQ(task.Name(), L"a");
  EXPECT_EQ(task.Solver(), TaskSolver::None);
  EXPECT_TRUE(task.Cases().empty());
  EXPECT_EQ(task.Status(), TaskStatus::Undone);
  EXPECT_EQ(task.Stage(), 0);
  task.SetCases({4, 2});
  task.SetStatus(TaskStatus::Changed);
  task.SetStage(3);
  task.SetSolution(AnalSoln::StaticNonLinear);
  EXPECT_EQ(task.Cases(), (std::set{2, 4}));
  EXPECT_EQ(task.Status(), TaskStatus::Changed);
  EXPECT_EQ(task.Stage(), 3);
  EXPECT_EQ(task.Solution(), AnalSoln::StaticNonLinear);
}

TEST(AnalysisTask, TellsWhatItsSolutionIs) {
  struct Row {
    int solution;
    bool isStatic, isPDelta, isBuckling, isEigen, isResponse;
  };
  for (auto const& row :
       {Row{0, false, false, false, false, false}, Row{1, true, false, false, false, false},
        Row{2, false, false, false, true, false}, Row{3, false, false, true, false, false},
        Row{4, true, true, false, false, false}, Row{5, false, true, false, true, false},
        Row{6, false, false, false, false, true}, Row{7, true, false, false, false, false},
        Row{12, false, false, false, false, false}, Row{42, false, false, false, false, true}}) {
    SCOPED_TRACE(row.solution);
    auto const solution = static_cast<AnalSoln>(row.solution);
    CAnalysisTask const task(L"", solution);
    EXPECT_TRUE(task.Solution(solution));
    EXPECT_FALSE(task.Solution(static_cast<AnalSoln>(row.solution + 100)));
    EXPECT_EQ(task.IsStatic(), row.isStatic);
    EXPECT_EQ(task.IsPDelta(), row.isPDelta);
    EXPECT_EQ(task.IsModalBuckling(), row.isBuckling);
    EXPECT_EQ(task.IsEigenDynamic(), row.isEigen);
    EXPECT_EQ(task.IsResponseSpectrum(), row.isResponse);
  }
}

TEST(AnalysisTask, KeepsItsClassWhenItIsCloned) {
  CZdSpecTask task(L"a", AnalSoln::ResponseSpectrum);
  task.SetSource(7);
  CAnalysisTask const& base = task;
  auto const clone = base.Clone();
  auto const* spectrum = dynamic_cast<CZdSpecTask const*>(clone.get());
  ASSERT_NE(spectrum, nullptr);
  EXPECT_EQ(spectrum->Source(), 7);
  EXPECT_EQ(dynamic_cast<CZssTask const*>(clone.get()), nullptr);
  EXPECT_TRUE(*clone == base);
  clone->SetName(L"b");
  EXPECT_EQ(base.Name(), L"a");
  EXPECT_FALSE(*clone == base);
}

TEST(AnalysisTask, HasTheSolverOfItsClass) {
  EXPECT_EQ(static_cast<int>(CZssTask().Solver()), 1);
  EXPECT_EQ(static_cast<int>(CZdSpecTask().Solver()), 3);
  EXPECT_EQ(static_cast<int>(CEnvelopeTask().Solver()), 6);
  EXPECT_TRUE(CFormRelaxTask().Solution(static_cast<AnalSoln>(12)));
}

TEST(AnalysisTask, IsEqualToATaskOfItsOwnClassAlone) {
  CAnalysisTask const plain(L"", AnalSoln::Static);
  CZssTask const task(L"", AnalSoln::Static);
  EXPECT_FALSE(plain == task);
  EXPECT_FALSE(static_cast<CAnalysisTask const&>(task) == plain);
  EXPECT_TRUE(plain == CAnalysisTask(L"", AnalSoln::Static));
  EXPECT_FALSE(plain == CAnalysisTask(L"", AnalSoln::Modal));
}

TEST(ZssTask, GivesBackWhatIsSet) {
  CZssTask task(L"a", AnalSoln::StaticPDelta);
  EXPECT_FALSE(task.PDeltaAnalysis());
  EXPECT_FALSE(task.PDeltaEffects());
  EXPECT_FALSE(task.AdditionalMass());
  EXPECT_EQ(task.MassDirection(), Direction::Z);
  EXPECT_EQ(task.MassScale(), 1);
  EXPECT_EQ(static_cast<int>(task.MassOption()), 1);
  EXPECT_EQ(task.ModalParameters(), (ModalParams{1, 1, 0}));
  task.SetPDelta(L"L1");
  task.SetPDeltaAnalysis(true);
  EXPECT_FALSE(task.PDeltaEffects());
  task.SetPDeltaEffects(true);
  task.SetPrestress(L"L2");
  task.SetAdditionalMass(true);
  task.SetMassCase(L"L3");
  task.SetMassDirection(Direction::X);
  task.SetMassScale(0.3);
  task.SetMassOption(Data::CSpec::MassOp::Ignored);
  task.SetModalParameters({2, 10, 0.5});
  task.SetGeoExclude(Elements(L"4"));
  EXPECT_EQ(task.PDelta(), L"L1");
  EXPECT_TRUE(task.PDeltaAnalysis());
  EXPECT_TRUE(task.PDeltaEffects());
  EXPECT_EQ(task.Prestress(), L"L2");
  EXPECT_TRUE(task.AdditionalMass());
  EXPECT_EQ(task.MassCase(), L"L3");
  EXPECT_EQ(task.MassDirection(), Direction::X);
  EXPECT_EQ(task.MassScale(), 0.3);
  EXPECT_EQ(task.MassOption(), Data::CSpec::MassOp::Ignored);
  EXPECT_EQ(task.ModalParameters().firstMode, 2);
  EXPECT_EQ(task.ModalParameters().numModes, 10);
  EXPECT_EQ(task.ModalParameters().shift, 0.5);
  EXPECT_EQ(task.GeoExclude().String(false), L"4");
  EXPECT_THROW(task.SetGeoExclude(CEntList(SelNode, L"4")), std::invalid_argument);
}

TEST(ZssTask, TakesACaseOrCombinationForItsPDeltaCase) {
  struct Row {
    wchar_t const* text;
    int number;
  };
  for (auto const& [text, number] :
       {Row{L"A3", 3}, Row{L"C12", -12}, Row{L"", 0}, Row{L"none", 0}, Row{L"L3", 0}, Row{L"A", 0},
        Row{L"A0", 0}, Row{L"A-3", 0}, Row{L"1.2A3", 0}, Row{L"A3 + A4", 0}, Row{L"T3", 0}}) {
    CZssTask task;
    task.SetPDelta(text);
    EXPECT_EQ(task.PDeltaCase(), number) << CString(text).ToUtf8();
  }
}

TEST(ZdSpecTask, GivesBackWhatIsSet) {
  CZdSpecTask task;
  EXPECT_EQ(task.Solution(), AnalSoln::ResponseSpectrum);
  EXPECT_EQ(task.Task(), 0);
  EXPECT_EQ(task.Source(), 1);
  task.SetTask(3);
  task.SetLoad(L"L1");
  task.SetSource(4);
  task.SetSpectrum(Direction::X, 5);
  task.SetSpectrum(Direction::Z, 6);
  EXPECT_EQ(task.Task(), 3);
  EXPECT_EQ(task.Load(), L"L1");
  EXPECT_EQ(task.Source(), 4);
  EXPECT_EQ(task.Spectrum(Direction::X), 5);
  EXPECT_EQ(task.Spectrum(Direction::Y), 0);
  EXPECT_EQ(task.Spectrum(Direction::Z), 6);
  EXPECT_THROW(task.Spectrum(Direction::XX), std::out_of_range);
  EXPECT_THROW(task.SetSpectrum(Direction::ZZ, 1), std::out_of_range);
}

TEST(ZdSpecTask, HasNoRelativeDisplacementsAtFirst) {
  CZdSpecTask task;
  EXPECT_EQ(task.NumRelDisp(), 0);
  EXPECT_THROW(task.RelDisp(0), std::out_of_range);
  EXPECT_THROW(task.SetRelDisp(1, CRelDisp()), std::out_of_range);
  EXPECT_EQ(task.NumRelDisp(), 0);
  task.SetRelDisp(0, CRelDisp(1, 2, 3));
  task.SetRelDisp(1, CRelDisp(4, 5, 6));
  task.SetRelDisp(0, CRelDisp(7, 8, 9));
  ASSERT_EQ(task.NumRelDisp(), 2);
  EXPECT_EQ(task.RelDisp(0), CRelDisp(7, 8, 9));
  EXPECT_EQ(task.RelDisp(1), CRelDisp(4, 5, 6));
}

TEST(RelDisp, CountsItsNodesFromOne) {
  CRelDisp displacement;
  displacement.SetAxis(1);
  displacement.SetNode(1, 5);
  displacement.SetNode(2, 6);
  EXPECT_EQ(displacement, CRelDisp(1, 5, 6));
  EXPECT_EQ(displacement.Axis(), 1);
  EXPECT_EQ(displacement.Node(1), 5);
  EXPECT_EQ(displacement.Node(2), 6);
  EXPECT_THROW(displacement.Node(0), std::out_of_range);
  EXPECT_THROW(displacement.SetNode(3, 1), std::out_of_range);
}

TEST(EnvelopeTask, KeepsItsText) {
  CEnvelopeTask task(L"a");
  task.SetDesc(L"A1 to A5", nullptr);
  EXPECT_EQ(task.Desc(), L"A1 to A5");
}

TEST(FormRelaxTask, KeepsAListOfElements) {
  CFormRelaxTask task(L"a");
  task.SetEulerElemList(Elements(L"1 2"));
  EXPECT_EQ(task.GetEulerElemList().String(false), L"1 2");
  EXPECT_THROW(task.SetEulerElemList(CEntList(SelMember, L"1")), std::invalid_argument);
}

TEST(TaskSlot, HoldsACopyOfTheClassItWasGiven) {
  CZssTask task(L"a", AnalSoln::Static);
  TaskSlot const slot(task);
  task.SetName(L"b");
  EXPECT_EQ(slot.Get().Name(), L"a");
  EXPECT_NE(dynamic_cast<CZssTask const*>(&slot.Get()), nullptr);
  auto const copy = slot;
  EXPECT_EQ(copy.Pointer(), slot.Pointer());
  EXPECT_TRUE(copy == slot);
  EXPECT_TRUE(slot == TaskSlot(CZssTask(L"a", AnalSoln::Static)));
  EXPECT_FALSE(slot == TaskSlot(task));
  TaskSlot const numbered(task, 5, true);
  EXPECT_EQ(numbered.Number(), 5u);
}

TEST(VisitTask, GivesEachTaskAsItsClass) {
  std::string visited;
  auto const visit = [&]<class Task>(Task const&) { visited += std::string(Task::kClass) + " "; };
  VisitTask(CAnalysisTask(), visit);
  VisitTask(CZssTask(), visit);
  VisitTask(CZdSpecTask(), visit);
  VisitTask(CEnvelopeTask(), visit);
  VisitTask(CFormRelaxTask(), visit);
  EXPECT_EQ(visited, "CAnalysisTask CZssTask CZdSpecTask CEnvelopeTask CFormRelaxTask ");
}

TEST(Tasks, CompareEveryField) {
  Testing::ExpectStoredFields<CZssTask>(
      {{"name", [](auto& t) { t.SetName(L"a"); }},
       {"sid", [](auto& t) { t.SetSid(L"a"); }},
       {"colour", [](auto& t) { t.SetColour(1); }},
       {"solution", [](auto& t) { t.SetSolution(AnalSoln::Modal); }},
       {"status", [](auto& t) { t.SetStatus(TaskStatus::Done); }},
       {"stage", [](auto& t) { t.SetStage(1); }},
       {"cases", [](auto& t) { t.SetCases({1}); }},
       {"pDelta", [](auto& t) { t.SetPDelta(L"A1"); }},
       {"pDeltaAnalysis", [](auto& t) { t.SetPDeltaAnalysis(true); }},
       {"pDeltaEffects", [](auto& t) { t.SetPDeltaEffects(true); }},
       {"prestress", [](auto& t) { t.SetPrestress(L"L1"); }},
       {"additionalMass", [](auto& t) { t.SetAdditionalMass(true); }},
       {"massCase", [](auto& t) { t.SetMassCase(L"L1"); }},
       {"massDirection", [](auto& t) { t.SetMassDirection(Direction::X); }},
       {"massScale", [](auto& t) { t.SetMassScale(2); }},
       {"massOption", [](auto& t) { t.SetMassOption(Data::CSpec::MassOp::Ignored); }},
       {"modalParameters",
        [](auto& t) {
          t.SetModalParameters({1, 2, 0});
        }},
       {"geoExclude", [](auto& t) { t.SetGeoExclude(Elements(L"1")); }}});
  Testing::ExpectFields<ModalParams>({{"firstMode", [](auto& m) { m.firstMode = 2; }},
                                      {"numModes", [](auto& m) { m.numModes = 2; }},
                                      {"shift", [](auto& m) { m.shift = 2; }}});
  Testing::ExpectFields<CRelDisp>(
      {{"axis", [](auto& d) { d.SetAxis(1); }}, {"nodes", [](auto& d) { d.SetNode(2, 1); }}});
  Testing::ExpectStoredFields<CZdSpecTask>(
      {{"name", [](auto& t) { t.SetName(L"a"); }},
       {"sid", [](auto& t) { t.SetSid(L"a"); }},
       {"colour", [](auto& t) { t.SetColour(1); }},
       {"solution", [](auto& t) { t.SetSolution(AnalSoln::Modal); }},
       {"status", [](auto& t) { t.SetStatus(TaskStatus::Done); }},
       {"stage", [](auto& t) { t.SetStage(1); }},
       {"cases", [](auto& t) { t.SetCases({1}); }},
       {"task", [](auto& t) { t.SetTask(1); }},
       {"load", [](auto& t) { t.SetLoad(L"L1"); }},
       {"source", [](auto& t) { t.SetSource(2); }},
       {"spectrum", [](auto& t) { t.SetSpectrum(Direction::Y, 1); }},
       {"relDisp", [](auto& t) { t.SetRelDisp(0, CRelDisp()); }}});
  Testing::ExpectStoredFields<CEnvelopeTask>(
      {{"name", [](auto& t) { t.SetName(L"a"); }},
       {"sid", [](auto& t) { t.SetSid(L"a"); }},
       {"colour", [](auto& t) { t.SetColour(1); }},
       {"solution", [](auto& t) { t.SetSolution(AnalSoln::Modal); }},
       {"status", [](auto& t) { t.SetStatus(TaskStatus::Done); }},
       {"stage", [](auto& t) { t.SetStage(1); }},
       {"cases", [](auto& t) { t.SetCases({1}); }},
       {"desc", [](auto& t) { t.SetDesc(L"A1", nullptr); }}});
  Testing::ExpectStoredFields<CFormRelaxTask>(
      {{"name", [](auto& t) { t.SetName(L"a"); }},
       {"sid", [](auto& t) { t.SetSid(L"a"); }},
       {"colour", [](auto& t) { t.SetColour(1); }},
       {"solution", [](auto& t) { t.SetSolution(AnalSoln::Modal); }},
       {"status", [](auto& t) { t.SetStatus(TaskStatus::Done); }},
       {"stage", [](auto& t) { t.SetStage(1); }},
       {"cases", [](auto& t) { t.SetCases({1}); }},
       {"eulerElemList", [](auto& t) { t.SetEulerElemList(Elements(L"1")); }}});
  Testing::ExpectStoredFields<CDesignTask>({{"name", [](auto& t) { t.SetName(L"a"); }},
                                            {"sid", [](auto& t) { t.SetSid(L"a"); }},
                                            {"colour", [](auto& t) { t.SetColour(1); }}});
}

}  // namespace
}  // namespace Tarvex::TasksTest
