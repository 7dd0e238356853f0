#include "store/record/analysis_task.h"

#include <typeinfo>

namespace Tarvex::Zel {

CAnalysisTask::~CAnalysisTask() = default;

std::unique_ptr<CAnalysisTask> CAnalysisTask::Clone() const {
  return std::unique_ptr<CAnalysisTask>(new CAnalysisTask(*this));
}

std::string_view CAnalysisTask::ClassName() const { return kClass; }

bool CAnalysisTask::IsEqual(CAnalysisTask const& other) const {
  return typeid(other) == typeid(CAnalysisTask) && Same(*this, other);
}

bool CAnalysisTask::IsStatic() const {
  return Solution(AnalSoln::Static) || Solution(AnalSoln::StaticPDelta) ||
         Solution(AnalSoln::StaticNonLinear);
}

bool CAnalysisTask::IsPDelta() const {
  return Solution(AnalSoln::StaticPDelta) || Solution(AnalSoln::ModalPDelta);
}

bool CAnalysisTask::IsEigenDynamic() const {
  return Solution(AnalSoln::Modal) || Solution(AnalSoln::ModalPDelta);
}

bool CAnalysisTask::IsResponseSpectrum() const {
  return Solution(AnalSoln::ResponseSpectrum) || Solution(AnalSoln::ResponseSpectrumPseudoStatic);
}

}  // namespace Tarvex::Zel
