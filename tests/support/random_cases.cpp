#include "tests/support/random_cases.h"

#include "store/record/axis.h"
#include "store/record/cases.h"
#include "store/record/element.h"
#include "store/record/load_case_title.h"
#include "store/record/mat_anal.h"
#include "store/record/node.h"
#include "store/record/res_spectrum.h"
#include "store/record/results.h"
#include "store/record/section.h"
#include "store/record/stages.h"
#include "store/record/task_slot.h"
#include "tests/support/random_grids.h"

namespace Tarvex::Testing {
namespace {

/// Adds to one model. Where several numbers are drawn they stand in statements of their own.
class CaseMaker {
 public:
  CaseMaker(CZelData& model, Random& random) : m_model(model), m_random(random) {}

  void AddAll() {
    ForNumbers(4, [&](int n) { m_model.SetLoadCaseTitle(n, Title()); });
    AddStages();
    ForNumbers(3, [&](int n) { m_model.SetAnalysisTask(n, *PlainTask()); });
    m_model.SetAnalysisTask(8, *StaticTask());
    m_model.SetAnalysisTask(9, *SpectrumTask());
    m_model.SetAnalysisTask(10, *EnvelopeTask());
    m_model.SetAnalysisTask(12, *RelaxTask());
    ForNumbers(4, [&](int n) { m_model.SetAnalysisCase(n, AnalysisCase()); });
    NameCasesInTasks();
    ForNumbers(4, [&](int n) { m_model.SetCombinationCase(n, Combination()); });
    ForNumbers(2, [&](int n) { m_model.SetCaseDescription(n, Description()); });
    ForNumbers(2, [&](int n) { m_model.SetDesignTask(n, Named<CDesignTask>()); });
    AddResults();
    SetOneOffs();
  }

 private:
  template <class Store>
  void ForNumbers(int most, Store&& store) {
    for (int const n : m_random.Numbers(m_random.Int(1, most))) store(n);
  }
  bool Changed() { return Changes(m_random); }
  template <class Record>
  Record Named() {
    Record record;
    FillNamed(record, m_random);
    return record;
  }
  template <class Table>
  int Existing(Table const& table) {
    std::vector<int> numbers;
    for (auto const& [n, record] : table) numbers.push_back(static_cast<int>(n));
    return m_random.Of(numbers);
  }
  CString Cases() {
    return m_random.Of<CString>({L"L1", L"1.2L1 + 1.5L2", L"A1 + A4", L"(1.35 or 1)C2 + 0.3A3",
                                 L"SRSS(C1,C2)", L"C1abs", L"none", L"L<deleted case>"});
  }
  Data::CEntList Elements() {
    return {SelElement, m_random.Of<CString>({L"1 to 4", L"all", L"PB1", L"2 5 \"roof\""})};
  }

  Data::CLoadCaseTitle Title() {
    auto title = Named<Data::CLoadCaseTitle>();
    if (Changed())
      title.SetType(m_random.Of<CaseType>({CaseType::Imposed, CaseType::SeismicStatic}));
    if (Changed()) title.SetSource(m_random.Int(2, 5));
    if (Changed()) title.SetCategory(m_random.Int(1, 8));
    if (Changed()) title.SetPermanentMode(m_random.Int(1, 2));
    if (Changed()) title.SetDirection(m_random.Int(1, 3));
    return title;
  }

  void AddStages() {
    for (int const n : {1, 3}) AddStage(n);
    for (int const n : {2, 4})
      if (m_random.Percent(50)) AddStage(n);
    ForNumbers(2, [&](int n) {
      Data::CAnalStageProp record(Existing(m_model.AnalStage()), PropertyType::Section,
                                  Existing(m_model.Section()), Existing(m_model.Section()));
      if (Changed()) record.SetSid(RandomText(m_random));
      if (Changed()) record = Data::CAnalStageProp(1, PropertyType::None, 3, 4);
      m_model.SetAnalStageProp(n, record);
    });
    ForNumbers(2, [&](int n) {
      int const stage = Existing(m_model.AnalStage());
      int const original = Existing(m_model.MatAnal());
      Data::CAnalStageMat record(stage, original, Existing(m_model.MatAnal()));
      if (Changed()) record.SetSid(RandomText(m_random));
      m_model.SetAnalStageMat(n, record);
    });
  }
  void AddStage(int n) {
    auto stage = Named<Data::CAnalStage>();
    if (!Changed()) stage.SetStageElem(Elements());
    m_model.SetAnalStage(n, stage);
  }

  // Tasks. Their cases come once there are some.

  template <class Task>
  std::unique_ptr<Task> NewTask() {
    auto task = std::make_unique<Task>();
    FillNamed(*task, m_random);
    if (Changed()) task->SetStatus(TaskStatus::Done);
    if (Changed()) task->SetStage(Existing(m_model.AnalStage()));
    return task;
  }
  template <class Task>
  std::unique_ptr<Task> NewTask(AnalSoln solution) {
    auto task = NewTask<Task>();
    if (Changed()) task->SetSolution(solution);
    return task;
  }
  std::unique_ptr<Zel::CAnalysisTask> PlainTask() {
    return NewTask<Zel::CAnalysisTask>(AnalSoln::StaticNonLinear);
  }
  std::unique_ptr<CZssTask> StaticTask() {
    auto task = NewTask<CZssTask>(AnalSoln::ModalPDelta);
    if (Changed()) task->SetPDelta(Cases());
    if (Changed()) task->SetPDeltaAnalysis(true);
    if (Changed()) task->SetPDeltaEffects(true);
    if (Changed()) task->SetPrestress(Cases());
    if (Changed()) task->SetAdditionalMass(true);
    if (Changed()) task->SetMassCase(Cases());
    if (Changed()) task->SetMassDirection(Direction::X);
    if (Changed()) task->SetMassScale(m_random.Real(0.1, 2));
    if (Changed()) task->SetMassOption(Data::CSpec::MassOp::Ignored);
    ModalParams modal;
    if (Changed()) modal.firstMode = m_random.Int(2, 5);
    if (Changed()) modal.numModes = m_random.Int(2, 50);
    if (Changed()) modal.shift = m_random.Real(0.1, 100);
    task->SetModalParameters(modal);
    if (Changed()) task->SetGeoExclude(Elements());
    return task;
  }
  std::unique_ptr<CZdSpecTask> SpectrumTask() {
    auto task = NewTask<CZdSpecTask>(AnalSoln::ResponseSpectrumPseudoStatic);
    if (Changed()) task->SetTask(Existing(m_model.AnalysisTask()));
    if (Changed()) task->SetLoad(Cases());
    if (Changed()) task->SetSource(m_random.Int(2, 5));
    if (Changed()) task->SetSpectrum(Direction::Y, Existing(m_model.ResSpectrum()));
    for (int i = Changed() ? m_random.Int(1, 3) : 0; i > 0; --i) {
      int const axis = Changed() ? Existing(m_model.Axis()) : 0;
      int const node = Existing(m_model.Node());
      task->SetRelDisp(task->NumRelDisp(), CRelDisp(axis, node, Existing(m_model.Node())));
    }
    return task;
  }
  std::unique_ptr<CEnvelopeTask> EnvelopeTask() {
    auto task = NewTask<CEnvelopeTask>(AnalSoln::Static);
    if (Changed()) task->SetDesc(Cases(), &m_model);
    return task;
  }
  std::unique_ptr<CFormRelaxTask> RelaxTask() {
    auto task = NewTask<CFormRelaxTask>(AnalSoln::Static);
    if (Changed()) task->SetEulerElemList(Elements());
    return task;
  }
  void NameCasesInTasks() {
    std::vector<int> tasks;
    for (auto const& [n, slot] : m_model.AnalysisTask()) tasks.push_back(static_cast<int>(n));
    for (int const n : tasks) {
      if (!Changed()) continue;
      auto task = m_model.AnalysisTask(n).Clone();
      task->SetCases({Existing(m_model.AnalysisCases()), Existing(m_model.AnalysisCases())});
      m_model.SetAnalysisTask(n, *task);
    }
  }

  Zel::CAnalysisCase AnalysisCase() {
    auto record = Named<Zel::CAnalysisCase>();
    if (!Changed()) record.SetDescription(Cases());
    if (!Changed()) record.SetTask(Existing(m_model.AnalysisTask()));
    if (Changed()) record.SetModeDirection(m_random.Int(1, 3));
    return record;
  }
  Data::CCombinationCase Combination() {
    auto record = Named<Data::CCombinationCase>();
    if (!Changed()) record.SetDescription(Data::CCombCaseDesc(Cases()));
    if (Changed()) record.SetIsUsed(false);
    return record;
  }
  Data::CCaseDescription Description() {
    auto record = Named<Data::CCaseDescription>();
    if (!Changed()) record.SetDescription(Cases());
    return record;
  }

  Vec3<double> Action() {
    double const x = m_random.Real(-9, 9);
    double const y = m_random.Real(-9, 9);
    return {x, y, m_random.Real(-9, 9)};
  }
  SCaseRef CaseWithResults() {
    bool const analysis = m_random.Percent(50);
    int const permutation = Changed() ? m_random.Int(1, 3) : 0;
    if (analysis) return {CaseOp::Analysis, Existing(m_model.AnalysisCases()), permutation};
    return {CaseOp::Combination, Existing(m_model.CombinationCase()), permutation};
  }
  void AddResults() {
    std::vector<int> elements;
    for (auto const& [n, element] : m_model.Elem()) elements.push_back(static_cast<int>(n));
    for (int i = m_random.Int(1, 4); i > 0; --i) {
      int const n = m_random.Of(elements);
      m_model.SetForce(n, CaseWithResults(), m_random.Int(0, 1), Action());
      m_model.SetMoment(n, CaseWithResults(), m_random.Int(0, 1), Action());
      auto record = m_model.ElemResult(n);
      if (Changed()) record.SetSid(RandomText(m_random));
      m_model.SetElemResult(n, record);
    }
    ForNumbers(2, [&](int n) {
      Data::CCaseResult record(CaseWithResults());
      if (Changed()) record.SetSid(RandomText(m_random));
      if (Changed()) record.SetMass(m_random.Int(0, 3), m_random.Real(1, 1000));
      if (Changed()) record.SetPeriod(m_random.Int(1, 3), m_random.Real(0.1, 3));
      if (Changed()) record.SetBaseShear(m_random.Int(0, 3), m_random.Real(1, 1000));
      m_model.SetCaseResult(n, record);
    });
  }

  void SetOneOffs() {
    auto spec = m_model.Spec();
    if (Changed()) spec.SetCountry(Data::CCountry(m_random.Of<int>({80, 106, 169, 214})));
    if (Changed()) spec.SetZElevation(m_random.Real(-10, 3000));
    if (Changed()) spec.SetStructType(StrType::PlaneXZ);
    m_model.SetSpec(spec);
    Data::CRaftSpec raft;
    if (Changed()) raft.SetTopLevel(m_random.Real(-10, 10));
    m_model.SetRaftSpec(raft);
  }

  CZelData& m_model;
  Random& m_random;
};

}  // namespace

void AddRandomCases(CZelData& model, Random& random) { CaseMaker(model, random).AddAll(); }

}  // namespace Tarvex::Testing
