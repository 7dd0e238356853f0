// References of stages, tasks, saved lists, assemblies and views.
#include "renumber/reference_rewriter.h"
#include "store/record/assembly.h"
#include "store/record/stages.h"
#include "store/record/task_slot.h"
#include "store/record/views.h"

namespace Tarvex {

bool ReferenceRewriter::Stages() {
  Each(RewrittenTable<Data::CAnalStage>{&CZelData::AnalStage, &CZelData::SetAnalStage},
       [&](auto& stage) { stage.SetStageElem(List(stage.StageElem())); });
  return true;
}

bool ReferenceRewriter::Tasks() {
  auto& model = m_run.model;
  auto const& tasks = model.AnalysisTask();
  for (int n = tasks.Next(0); n != 0; n = tasks.Next(n)) {
    auto const task = tasks.Find(n)->Get().Clone();
    if (task->IsPDelta() || task->IsModalBuckling()) {
      if (auto* const own = dynamic_cast<CZssTask*>(task.get()))
        own->SetGeoExclude(List(own->GeoExclude()));
    } else if (task->Solution(AnalSoln::ResponseSpectrum) ||
               task->Solution(AnalSoln::ResponseSpectrumPseudoStatic)) {
      if (auto* const own = dynamic_cast<CZdSpecTask*>(task.get()))
        for (int i = 0; i < own->NumRelDisp(); ++i) {
          auto displacement = own->RelDisp(i);
          for (int const end : {1, 2})
            displacement.SetNode(end, Map(CModule::Node, displacement.Node(end)));
          MapAxis(displacement);
          own->SetRelDisp(i, displacement);
        }
    } else if (task->Solution(AnalSoln::FormRelaxation)) {
      if (auto* const own = dynamic_cast<CFormRelaxTask*>(task.get()))
        own->SetEulerElemList(List(own->GetEulerElemList()));
    }
    if (!(*task == tasks.Find(n)->Get())) model.SetAnalysisTask(n, *task);
  }
  return true;
}

bool ReferenceRewriter::SavedLists() {
  Each(RewrittenTable<Data::CEntList>{&CZelData::List, &CZelData::SetList},
       [&](Data::CEntList& list) {
         if (list.TypeOf() != SelCase) list = List(list);
       });
  return true;
}

bool ReferenceRewriter::Assemblies() {
  constexpr int kNodes = 3;
  Each(RewrittenTable<Data::CAssembly>{&CZelData::Assembly, &CZelData::SetAssembly},
       [&](Data::CAssembly& assembly) {
         assembly.SetEntities(List(assembly.Entities()));
         for (int i = 0; i < kNodes; ++i)
           if (assembly.Topo(i) != 0) assembly.SetTopo(i, Map(CModule::Node, assembly.Topo(i)));
         assembly.SetIntTopo(List(assembly.IntTopo()));
         if (assembly.Definition() == Data::CAssembly::kByStoreys)
           assembly.SetStorey(List(assembly.Storey()));
       });
  return true;
}

bool ReferenceRewriter::GraphicViews() {
  Each(RewrittenTable<Data::CGrView>{&CZelData::GrView, &CZelData::SetGrView},
       [&](Data::CGrView& view) {
         view.SetNodes(List(view.Nodes()));
         view.SetElements(List(view.Elements()));
         view.SetMembers(List(view.Members()));
         view.SetHiLiteElements(List(view.HiLiteElements()));
         view.SetHiLiteMembers(List(view.HiLiteMembers()));
         for (int i = 0; i < view.NumGrData(); ++i) {
           auto data = view.GrData(i);
           MapAxis(data);
           view.SetGrData(i, data);
         }
       });
  return true;
}

bool ReferenceRewriter::OutputViews() {
  Each(RewrittenTable<Data::COpView>{&CZelData::OpView, &CZelData::SetOpView},
       [&](Data::COpView& view) {
         view.SetNodes(List(view.Nodes()));
         view.SetElements(List(view.Elements()));
         view.SetMembers(List(view.Members()));
         MapAxis(view);
         for (int i = 0; i < view.NumOpData(); ++i) {
           auto data = view.OpData(i);
           MapAxis(data);
           view.SetOpData(i, data);
         }
       });
  return true;
}

}  // namespace Tarvex
