// What a model is made of. Internal to the store.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "store/model/child_index.h"
#include "store/model/list_cache.h"
#include "store/model/load_case_use.h"
#include "store/model/node_naming.h"
#include "store/model/stage_properties.h"
#include "store/model/zel_data.h"
#include "store/numeric/box.h"
#include "store/numeric/point_index.h"
#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/axis.h"
#include "store/record/beam_loads.h"
#include "store/record/block.h"
#include "store/record/body_loads.h"
#include "store/record/cases.h"
#include "store/record/constraint_eqn.h"
#include "store/record/element.h"
#include "store/record/ent_list.h"
#include "store/record/face_loads.h"
#include "store/record/form_props.h"
#include "store/record/grid_line.h"
#include "store/record/grid_loads.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/influences.h"
#include "store/record/interactions.h"
#include "store/record/joint.h"
#include "store/record/link_prop.h"
#include "store/record/load_case_title.h"
#include "store/record/load_panel.h"
#include "store/record/mass_prop.h"
#include "store/record/mat_anal.h"
#include "store/record/mat_tables.h"
#include "store/record/material.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "store/record/other_props.h"
#include "store/record/polyline.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/res_spectrum.h"
#include "store/record/restraints.h"
#include "store/record/results.h"
#include "store/record/rigid.h"
#include "store/record/section.h"
#include "store/record/soil.h"
#include "store/record/spec.h"
#include "store/record/spring_prop.h"
#include "store/record/stages.h"
#include "store/record/task_slot.h"
#include "store/record/views.h"
#include "store/table/history.h"
#include "store/table/paged_table.h"
#include "store/table/positional_table.h"

namespace Tarvex {

/// The state of a model: one value. Copying it costs the roots of the tables.
struct ModelState {
  PagedTable<Data::CNode> node;
  PagedTable<Data::CElement> elem;
  PagedTable<Data::LoadPanel> panel;
  PagedTable<Data::CMember> member;
  PagedTable<Data::CAxis> axis;
  PagedTable<Data::CGridPlane> gridPlane;
  PagedTable<Data::CGridSurface> gridSurface;
  PagedTable<Data::CGridLine> gridLine;
  PagedTable<Data::CPolyline> polyline;
  PagedTable<Data::CAlignment> alignment;
  PagedTable<Data::CEntList> list;
  PagedTable<Data::CBlock> block;
  PagedTable<Data::CAssembly> assembly;
  PagedTable<Data::CGrView> grView;
  PagedTable<Data::COpView> opView;
  PagedTable<Data::Design::CMatSteel> matSteel;
  PagedTable<Data::Design::CMatConc> matConcrete;
  PagedTable<Data::Design::CMatFrp> matFrp;
  PagedTable<Data::Design::CMatAlum> matAluminium;
  PagedTable<Data::Design::CMatTimber> matTimber;
  PagedTable<Data::Design::CMatGlass> matGlass;
  PagedTable<Data::Design::CMatFabric> matFabric;
  PagedTable<Data::Design::CMatRebar> matRebar;
  PagedTable<Data::CMatAnal> matAnal;
  PagedTable<Data::CTableT<double>> matCurve;
  PagedTable<Data::CMatMatrix> matMatrix;
  PagedTable<Data::CSection> section;
  PagedTable<Data::CSpringProp> springProp;
  PagedTable<Data::CMassProp> massProp;
  PagedTable<Data::CProp2D> prop2D;
  PagedTable<Data::CProp3D> prop3D;
  PagedTable<Data::CLinkProp> linkProp;
  PagedTable<Data::CDamperProp> damperProp;
  PagedTable<Data::CCableProp> cableProp;
  PagedTable<Data::CSpacerProp> spacerProp;
  PagedTable<Data::CForceDensity1D> forceDensity1D;
  PagedTable<Data::CSoapStress1D> soapStress1D;
  PagedTable<Data::CForceDensity2D> forceDensity2D;
  PagedTable<Data::CSoapStress2D> soapStress2D;
  PagedTable<Data::CRC2DProp> rc2DProp;
  PagedTable<Data::GeoSoilZone> soilZone;
  PagedTable<Data::GeoSoilProfile> soilProfile;
  PagedTable<Data::CResSpectrum> resSpectrum;
  PagedTable<Data::CLoadCaseTitle> loadCaseTitle;
  PagedTable<Data::CAnalStage> analStage;
  PagedTable<Data::CAnalStageProp> analStageProp;
  PagedTable<Data::CAnalStageMat> analStageMat;
  PagedTable<Zel::TaskSlot> analysisTask;
  PagedTable<Data::CCombinationCase> combinationCase;
  PagedTable<CDesignTask> designTask;
  PagedTable<Zel::CAnalysisCase> analysisCase;
  PagedTable<Data::CCaseDescription> caseDescription;
  PagedTable<Data::CElemResult> elemResult;
  PagedTable<Data::CCaseResult> caseResult;
  PositionalTable<Data::CNodeLoad> nodeLoad;
  PositionalTable<Data::CNodeLoad> appliedDisplacement;
  PositionalTable<Data::CNodeLoad> settlement;
  PositionalTable<Data::CBeamLoad> beamLoad;
  PositionalTable<Data::CAxialLoad> axialLoad;
  PositionalTable<Data::CBeamDist> beamDist;
  PositionalTable<Data::CBeamThermalLoad> beamThermalLoad;
  PositionalTable<Data::CFaceLoad> faceLoad;
  PositionalTable<Data::CEdgeLoad> edgeLoad;
  PositionalTable<Data::CInPlaneLoad> inPlaneLoad;
  PositionalTable<Data::CFaceThermalLoad> faceThermalLoad;
  PositionalTable<Data::CBodyFaceLoad> bodyFaceLoad;
  PositionalTable<Data::CBodyThermalLoad> bodyThermalLoad;
  PositionalTable<Data::CGridPointLoad> gridPointLoad;
  PositionalTable<Data::CGridLineLoad> gridLineLoad;
  PositionalTable<Data::CGridAreaLoad> gridAreaLoad;
  PositionalTable<Data::CGravityLoad> gravityLoad;
  PositionalTable<Data::CGenRest> genRest;
  PositionalTable<Data::CRigid> rigid;
  PositionalTable<Data::CJoint> joint;
  PositionalTable<Data::CConstraintEqn> constraintEqn;
  PositionalTable<Data::CTiedInterface> tiedInterface;
  PositionalTable<Data::CRaftInteraction> raftInteraction;
  PositionalTable<Data::CPileInteraction> pileInteraction;
  PositionalTable<Data::CInfluenceNode> influenceNode;
  PositionalTable<Data::CInfluenceBeam> influenceBeam;
  Data::CSpec spec;
  Data::CDefaults defaults;
  Data::CRaftSpec raftSpec;

  /// The nodes that restraints of lists hold, and the revisions that they were worked out from.
  struct Held {
    std::array<std::uint64_t, 5> marks{};
    std::vector<int> nodes;
  };
  std::shared_ptr<Held const> held;

  /// Attachments of nodes that topology names and that do not exist; shared between states.
  using Waiting = std::map<int, Data::NodeUseAccess::Pointer>;
  std::shared_ptr<Waiting> waiting;
  /// Whether the attachments in the node table follow all topology.
  bool useCurrent = true;
};

/// A model's state with what is derived from it.
class ModelCore {
 public:
  ModelState state;
  bool const* hold = nullptr;       ///< the model's rebuild hold
  CZelData const* model = nullptr;  ///< whose core it is
  bool rebuildAsked = false;        ///< FlagRebuild() since attachments were last built

  struct {
    std::uint64_t revision = ~std::uint64_t{0};  ///< of the node table that it was taken from
    Util::CBox3D box;
  } extents;

  /// The grid planes that are storeys, in the order of the storeys.
  struct {
    std::uint64_t revision = ~std::uint64_t{0};  ///< of the table of grid planes
    std::vector<int> planes;
  } storeys;

  /// The numbers in use in some tables, of the revisions that they were taken from.
  struct Existing {
    bool known = false;
    std::array<std::uint64_t, 2> revisions{};
    Intervals numbers;
  };
  Existing existingNodes;
  Existing existingElements;
  Existing existingElementsAndPanels;
  Existing existingMembers;
  ListCache lists;

  History<ModelState> history;
  std::vector<CModule::ModuleId> bulkModules;  ///< announced by AddBulkOperations

  /// Which members list an element.
  ChildIndex children;

  /// What names nodes beside topology.
  NodeNaming naming;

  /// Which load cases the loads belong to.
  LoadCaseUse loadCases;

  /// What properties and materials are in stages.
  StageProperties stageProperties;

  /// Where the nodes are; built by the first query and followed from then on.
  std::optional<Util::PointIndex> positions;

  /// Whether attachments wait for the end of a bulk change instead of following each store.
  bool IsHeld() const { return *hold; }
  bool DefersUse() const { return *hold || !bulkModules.empty(); }

  Util::PointIndex const& Positions();
  /// Follows a node that goes from one record to another; null where it comes or goes.
  void NodeMoved(int n, Data::CNode const* before, Data::CNode const* after);
  /// Puts another state in the place of the present one, with all that is derived from it.
  void Restore(ModelState other);
};

/// The store's own way to what a model is made of.
struct ModelAccess {
  /// What is derived may be brought up to date on a const model too.
  static ModelCore& Core(ModelBase const& model) { return *model.m_owned; }
};

}  // namespace Tarvex
