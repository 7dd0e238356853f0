// References and loads when nodes and elements are replaced or copied: what a tool that changes
// topology calls so that the rest of the model stays true.
//
//   Tarvex::CDataMgr manager(model);
//   std::map<int, std::vector<int>> const pieces{{7, {8, 9}}};  // element 7 was cut into 8 and 9
//   bool const all = manager.MapBeamLoading(SelElement, pieces);
//   manager.ReplaceElemRef(pieces, false);
//   model.BlankElem(7, 1);
//
// Old and new entities exist while loads are mapped; the old ones are removed afterwards. Each
// operation is one undo step. The loads of an element are mapped or follow the references, never
// both: ReplaceElemRef with true takes the lists of all loads along as they are.
#pragma once

#include <map>
#include <vector>

#include "store/geometry/shape.h"
#include "store/select/reference.h"
#include "store/select/set.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;
namespace Data {
class CBeamLoad;
class CEntList;
}  // namespace Data

/// Keeps references and loads of a model true. Holds the model by reference, and nothing of a run
/// but scratch.
class TARVEX_EXPORT CDataMgr {
 public:
  /// Old number to new numbers, in order. A list takes all of them; what refers to one entity alone
  /// takes the last, and stays as it is when there is none.
  using NumberLists = std::map<int, std::vector<int>>;
  /// Old number to the number of its copy.
  using NumberMap = std::map<int, int>;

  explicit CDataMgr(CZelData& model);
  CDataMgr(CDataMgr const&);
  CDataMgr(CDataMgr&&) noexcept;
  ~CDataMgr();

  // References. The result says whether any record was changed or made. None of them fails.

  /// Puts new nodes in the place of old ones: in the topology and orientation of elements and
  /// members, in lists of nodes, restraints, joints, rigid constraints, equations and loads on
  /// nodes. A list that names nothing any more goes with the record that holds it. A rigid
  /// constraint changes its primary node only when its list changes too. Load panels keep theirs.
  /// @param entities false leaves elements and members alone.
  bool ReplaceNodeRef(NumberLists const& numbers, bool entities) const;
  /// Puts the copies of nodes beside the nodes. Joints with both nodes copied, rigid constraints
  /// with two nodes copied and equations with any are made anew for the copies; lists gain them.
  /// Lists of gravity loads gain them whatever the flags.
  /// @param lists saved lists @param restraints general restraints @param constraints joints, rigid
  /// constraints, equations @param loads loads on nodes, displacements, settlements
  bool CopyNodeRef(NumberMap const& copies, bool lists, bool restraints, bool constraints,
                   bool loads) const;
  /// Puts new elements in the place of old ones in lists of elements, grid surfaces, stages,
  /// assemblies, tied interfaces and loads. An empty list goes with its record, but for those of
  /// surfaces, stages and assemblies.
  /// @param mapped false leaves those loads alone that depend on the shape of the element and have
  /// a mapping of their own: beam loads, distortions, edge, face and face thermal loads.
  bool ReplaceElemRef(NumberLists const& numbers, bool mapped) const;
  /// Puts the copies of elements beside the elements: lists gain them, tied interfaces are made
  /// anew for them. Assemblies are left alone.
  /// @param lists saved lists @param tied tied interfaces @param loads grid surfaces, stages, loads
  bool CopyElemRef(NumberMap const& copies, bool lists, bool tied, bool loads) const;

  // Loads. The result is false when a load could not be mapped: one on a list that is more than
  // plain numbers, one that is not uniform on a member, a uniform one where a piece reaches beyond
  // its member, one with a co-ordinate or value that is not finite, one that is not uniform where a
  // piece is a load panel. The first keeps its list; any other is taken from the parent all the
  // same. What is lost without a word: a point load or distortion where its piece runs against the
  // parent or none lies under it, loads by corner or edge where the pieces do not fit the parent,
  // and a load whose list names nothing but load panels in the end.

  /// Gives beam loads and distortions of lines to the pieces that lie along them.
  /// @param kind SelElement, or SelMember: members take uniform loads only.
  bool MapBeamLoading(SelType kind, NumberLists const& pieces) const;
  /// Gives face, edge and face thermal loads of plates to the pieces that fill them. Pressures and
  /// temperatures by corner become those of a polynomial through the corners of the parent. Pieces
  /// run about their normal as the parent does.
  bool Map2DLoading(NumberLists const& pieces) const;
  /// Gives loads on faces and temperatures of solids to the pieces that fill them.
  bool Map3DLoading(NumberLists const& pieces) const;

 private:
  using Numbers = std::vector<int>;

  /// Loads and distortions by the parents that they were on at the beginning: what a mapping adds
  /// is not mapped again, and a load that goes changes no number that is still looked for.
  struct LineSheets;
  bool MapBeamLoading(SelType kind, int parent, int sub, LineSheets& sheets) const;
  /// A sub-element along its parent, for the mapping of one load.
  struct BeamPiece;
  bool MapBeamLoad(int n, BeamPiece const& piece) const;
  void AppendLinear(Data::CBeamLoad const& load, BeamPiece const& piece) const;
  bool MapBeamDist(int n, BeamPiece const& piece) const;
  /// Writes what of one straight part of a load lies on a sub-element. @param length of the parent
  /// @param start, end of the sub-element along it @param section of a tri-linear load: 0 its rise,
  /// 1 its middle, 2 its fall; 0 for any other
  void MapBeamPatchLoad(Data::CBeamLoad const& load, int sub, double length, double start,
                        double end, int section) const;
  /// Takes a parent off its loads; one that is on nothing any more goes.
  void UnMapBeamLoading(int parent, LineSheets& sheets) const;
  /// Where the ends of a sub-element lie along its parent, model length units. @return how far they
  /// lie off its axis at most.
  double ElemSubElemPos(SelType kind, int parent, int sub, double& start, double& end) const;

  bool MapEdgeLoading(NumberLists const& pieces) const;
  bool MapFaceLoading(NumberLists const& pieces) const;
  bool MapFaceThermalLoadLoading(NumberLists const& pieces) const;
  bool Map3dFaceLoading(NumberLists const& pieces) const;
  bool MapBodyThermalLoadLoading(NumberLists const& pieces) const;
  bool MapEdgeLoading(int parent, int sub) const;
  /// Throws std::runtime_error "this function is only intended for element loads".
  void MapFaceLoading(int load, int parent, Numbers const& subs) const;
  bool MapFaceThermalLoadLoading(int parent, int sub) const;
  bool Map3dFaceLoading(int parent, int sub) const;
  bool LiesOnFace(int parent, int sub, int face) const;
  bool MapBodyThermalLoadLoading(int parent, int sub) const;
  /// The same on the loads of a table, of which many parents are mapped.
  template <class Loads>
  bool MapEdgeLoading(Loads& loads, int parent, int sub) const;
  template <class Loads>
  bool MapFaceThermalLoadLoading(Loads& loads, int parent, int sub) const;
  template <class Loads>
  bool Map3dFaceLoading(Loads& loads, int parent, int sub) const;
  template <class Loads>
  bool MapBodyThermalLoadLoading(Loads& loads, int parent, int sub) const;
  void UnMapEdgeLoading(int parent) const;
  void UnMapFaceLoading(int parent) const;
  void UnMapFaceThermalLoadLoading(int parent) const;
  void UnMap3dFaceLoading(int parent) const;
  void UnMapBodyThermalLoadLoading(int parent) const;

  /// Finds the nodes along each edge of a parent, by the outline of its pieces.
  void BuildEdgeChains(int parent, Numbers const& subs) const;
  /// The node behind a node along the outline of the pieces, -1 for none. Passes the piece over
  /// that gave the one before.
  int NextEdgeNode(int parent, int node, Numbers const& subs) const;
  /// Whether exactly one side of the pieces joins two nodes.
  bool ExternalEdge(int a, int b, Numbers const& subs) const;
  /// The number of pieces that have a node as a corner.
  int NumElemAttached(int node, Numbers const& subs) const;
  /// The edge, from 1, of a piece that lies on an edge, from 1, of the parent, and between which
  /// fractions of it; -1 for none.
  int ElemIncludedOnEdge(int sub, int edge, double& start, double& end) const;
  bool FindRST(std::vector<Vec3<double>> nodes, Vec3<double> point, Vec3<double>& rst) const;
  Util::CShape GetShapeOfElement(int element) const;

  CZelData& m_model;
  // Scratch of the mapping of edge loads, for the parent under treatment.
  mutable std::vector<Numbers> m_edgeChains;
  mutable int m_lastElement = 0;
};

}  // namespace Tarvex
