#include "renumber/reference_rows.h"

#include <array>

#include "renumber/reference_rewriter.h"

namespace Tarvex {
namespace {

using Id = CModule::ModuleId;
using Rewriter = ReferenceRewriter;

/// One step of the rewriting, and the schemes without which it has nothing to do.
struct ReferenceRow {
  bool (*applies)(RenumberRun const&);
  bool (Rewriter::*rewrite)();
};

bool Always(RenumberRun const&) { return true; }

template <Id... Modules>
bool WhenAny(RenumberRun const& run) {
  return run.schemes.HasAny(Modules...);
}

/// Topology is rewritten unless the tool has done so itself.
bool MovesNodes(RenumberRun const& run) { return run.Has(CModule::Node) && !run.refOnly; }

bool WhenElementsChange(RenumberRun const& run) {
  return MovesNodes(run) || run.properties || run.Has(CModule::Member);
}

bool WhenMembersChange(RenumberRun const& run) { return MovesNodes(run) || run.properties; }

constexpr auto kAxis = CModule::Axis;
constexpr auto kNode = CModule::Node;
constexpr auto kElem = CModule::Elem;
constexpr auto kStage = CModule::AnalStage;

// In this order.
constexpr std::array kReferenceRows{
    ReferenceRow{&WhenAny<kAxis>, &Rewriter::GridPlanes},
    ReferenceRow{&WhenAny<kElem>, &Rewriter::GridSurfaces},
    ReferenceRow{&WhenAny<kAxis>, &Rewriter::Nodes},
    ReferenceRow{&WhenElementsChange, &Rewriter::Elements},
    ReferenceRow{&WhenElementsChange, &Rewriter::LoadPanels},
    ReferenceRow{&WhenMembersChange, &Rewriter::Members},
    ReferenceRow{
        &WhenAny<CModule::MatSteel, CModule::MatConcrete, CModule::MatFrp, CModule::MatAluminium,
                 CModule::MatTimber, CModule::MatGlass, CModule::MatAnal>,
        &Rewriter::Sections},
    ReferenceRow{&WhenAny<kAxis, CModule::MatCurve, CModule::MatMatrix>, &Rewriter::Springs},
    ReferenceRow{&WhenAny<kAxis, CModule::MatSteel, CModule::MatConcrete, CModule::MatFrp,
                          CModule::MatAluminium, CModule::MatTimber, CModule::MatGlass,
                          CModule::MatFabric, CModule::MatAnal>,
                 &Rewriter::Plates},
    ReferenceRow{&WhenAny<kNode, kStage>, &Rewriter::Restraints},
    ReferenceRow{&WhenAny<kNode, kStage, CModule::Member>, &Rewriter::Rigids},
    ReferenceRow{&WhenAny<kNode, kStage>, &Rewriter::Joints},
    ReferenceRow{&WhenAny<kNode, kStage>, &Rewriter::Equations},
    ReferenceRow{&WhenAny<kElem, kNode, kStage>, &Rewriter::TiedInterfaces},
    ReferenceRow{&WhenAny<kAxis, kNode>, &Rewriter::NodeLoads},
    ReferenceRow{&WhenAny<kAxis, kElem>, &Rewriter::BeamLoads},
    ReferenceRow{&WhenAny<kElem>, &Rewriter::OtherBeamLoads},
    ReferenceRow{&WhenAny<kAxis, kElem>, &Rewriter::FaceAndEdgeLoads},
    ReferenceRow{&WhenAny<kElem>, &Rewriter::OtherFaceLoads},
    ReferenceRow{&WhenAny<kAxis, kElem>, &Rewriter::BodyFaceLoads},
    ReferenceRow{&WhenAny<kElem>, &Rewriter::BodyThermalLoads},
    ReferenceRow{&WhenAny<kAxis, CModule::GridSurface>, &Rewriter::GridPointLoads},
    ReferenceRow{&WhenAny<kAxis, CModule::GridSurface, CModule::Polyline>,
                 &Rewriter::GridShapeLoads},
    ReferenceRow{&WhenAny<kElem, kNode>, &Rewriter::GravityLoads},
    ReferenceRow{&WhenAny<kNode>, &Rewriter::Interactions},
    ReferenceRow{&WhenAny<kNode>, &Rewriter::InfluenceNodes},
    ReferenceRow{&WhenAny<kElem>, &Rewriter::InfluenceBeams},
    ReferenceRow{&WhenAny<kElem>, &Rewriter::Stages},
    ReferenceRow{&WhenAny<kStage>, &Rewriter::StageProperties},
    ReferenceRow{&WhenAny<kStage>, &Rewriter::StageMaterials},
    ReferenceRow{&WhenAny<kAxis, kElem, kNode>, &Rewriter::Tasks},
    ReferenceRow{&WhenAny<CModule::LoadCaseTitle, CModule::AnalysisTask, CModule::AnalysisCase,
                          CModule::CombinationCase>,
                 &Rewriter::Cases},
    ReferenceRow{&Always, &Rewriter::SavedLists},
    ReferenceRow{&WhenAny<kAxis, kNode, kElem>, &Rewriter::Assemblies},
    ReferenceRow{&Always, &Rewriter::GraphicViews},
    ReferenceRow{&Always, &Rewriter::OutputViews},
};

}  // namespace

bool RewriteReferences(RenumberRun const& run, std::function<void()> const& adjustCases) {
  ReferenceRewriter rewriter(run, adjustCases);
  for (auto const& row : kReferenceRows)
    if (row.applies(run) && !(rewriter.*row.rewrite)()) return false;
  return true;
}

}  // namespace Tarvex
