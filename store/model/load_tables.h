// Tables of loads on nodes and entities.
//
// All are positional: the number of a record is its place from 1, and Highest... is how many there
// are. Set... takes a number up to Highest... + 1 (std::out_of_range otherwise); Delete... closes
// up, so a walk that deletes goes downwards, and Delete...(0, 1) empties a table. A call that
// changes one field of a record throws std::out_of_range for a missing one.
#pragma once

#include <vector>

#include "store/export.h"
#include "store/model/query_types.h"

namespace Tarvex {

class ModelCore;
namespace Data {
class CAxialLoad;
class CBeamDist;
class CBeamLoad;
class CBeamThermalLoad;
class CBodyFaceLoad;
class CBodyThermalLoad;
class CEdgeLoad;
class CEntList;
class CFaceLoad;
class CFaceThermalLoad;
class CGravityLoad;
class CInPlaneLoad;
class CNodeLoad;
}  // namespace Data

/// Loads on nodes and entities.
class TARVEX_STORE_EXPORT LoadTables {
 public:
  // Node loads (135).
  bool NodeLoadExist(int n) const;
  Data::CNodeLoad const& NodeLoad(int n) const;
  std::vector<Data::CNodeLoad> const& NodeLoad() const;
  int HighestNodeLoad() const;
  void SetNodeLoad(int n, Data::CNodeLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteNodeLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetNodeLoadItem(int n, Data::CEntList const& list);

  // Applied displacements (136).
  bool AppliedDisplacementExist(int n) const;
  Data::CNodeLoad const& AppliedDisplacement(int n) const;
  std::vector<Data::CNodeLoad> const& AppliedDisplacement() const;
  int HighestAppliedDisplacement() const;
  void SetAppliedDisplacement(int n, Data::CNodeLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteAppliedDisplacement(int first, int count);
  /// Replaces what the load acts on.
  void SetAppliedDisplacementItem(int n, Data::CEntList const& list);

  // Settlements (137).
  bool SettlementExist(int n) const;
  Data::CNodeLoad const& Settlement(int n) const;
  std::vector<Data::CNodeLoad> const& Settlement() const;
  int HighestSettlement() const;
  void SetSettlement(int n, Data::CNodeLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteSettlement(int first, int count);
  /// Replaces what the load acts on.
  void SetSettlementItem(int n, Data::CEntList const& list);

  // Beam loads (140).
  bool BeamLoadExist(int n) const;
  Data::CBeamLoad const& BeamLoad(int n) const;
  std::vector<Data::CBeamLoad> const& BeamLoad() const;
  int HighestBeamLoad() const;
  void SetBeamLoad(int n, Data::CBeamLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteBeamLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetBeamLoadItem(int n, Data::CEntList const& list);

  // Axial loads (142).
  bool AxialLoadExist(int n) const;
  Data::CAxialLoad const& AxialLoad(int n) const;
  std::vector<Data::CAxialLoad> const& AxialLoad() const;
  int HighestAxialLoad() const;
  void SetAxialLoad(int n, Data::CAxialLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteAxialLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetAxialLoadItem(int n, Data::CEntList const& list);

  // Distortions of lines (143).
  bool BeamDistExist(int n) const;
  Data::CBeamDist const& BeamDist(int n) const;
  std::vector<Data::CBeamDist> const& BeamDist() const;
  int HighestBeamDist() const;
  void SetBeamDist(int n, Data::CBeamDist const& load, SidMode sid = SidMode::Keep);
  void DeleteBeamDist(int first, int count);
  /// Replaces what the load acts on.
  void SetBeamDistItem(int n, Data::CEntList const& list);

  // Temperatures of lines (144).
  bool BeamThermalLoadExist(int n) const;
  Data::CBeamThermalLoad const& BeamThermalLoad(int n) const;
  std::vector<Data::CBeamThermalLoad> const& BeamThermalLoad() const;
  int HighestBeamThermalLoad() const;
  void SetBeamThermalLoad(int n, Data::CBeamThermalLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteBeamThermalLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetBeamThermalLoadItem(int n, Data::CEntList const& list);

  // Face loads (150).
  bool FaceLoadExist(int n) const;
  Data::CFaceLoad const& FaceLoad(int n) const;
  std::vector<Data::CFaceLoad> const& FaceLoad() const;
  int HighestFaceLoad() const;
  void SetFaceLoad(int n, Data::CFaceLoad const& load, SidMode sid = SidMode::Keep);
  /// The flag is without effect.
  void SetFaceLoad(int n, Data::CFaceLoad const& load, bool flag, SidMode sid = SidMode::Keep);
  void DeleteFaceLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetFaceLoadItem(int n, Data::CEntList const& list);

  // Edge loads (151).
  bool EdgeLoadExist(int n) const;
  Data::CEdgeLoad const& EdgeLoad(int n) const;
  std::vector<Data::CEdgeLoad> const& EdgeLoad() const;
  int HighestEdgeLoad() const;
  void SetEdgeLoad(int n, Data::CEdgeLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteEdgeLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetEdgeLoadItem(int n, Data::CEntList const& list);

  // Loads in the plane of plates (152).
  bool InPlaneLoadExist(int n) const;
  Data::CInPlaneLoad const& InPlaneLoad(int n) const;
  std::vector<Data::CInPlaneLoad> const& InPlaneLoad() const;
  int HighestInPlaneLoad() const;
  void SetInPlaneLoad(int n, Data::CInPlaneLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteInPlaneLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetInPlaneLoadItem(int n, Data::CEntList const& list);

  // Temperatures of plates (153).
  bool FaceThermalLoadExist(int n) const;
  Data::CFaceThermalLoad const& FaceThermalLoad(int n) const;
  std::vector<Data::CFaceThermalLoad> const& FaceThermalLoad() const;
  int HighestFaceThermalLoad() const;
  void SetFaceThermalLoad(int n, Data::CFaceThermalLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteFaceThermalLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetFaceThermalLoadItem(int n, Data::CEntList const& list);

  // Loads on the faces of solids (155).
  bool BodyFaceLoadExist(int n) const;
  Data::CBodyFaceLoad const& BodyFaceLoad(int n) const;
  std::vector<Data::CBodyFaceLoad> const& BodyFaceLoad() const;
  int HighestBodyFaceLoad() const;
  void SetBodyFaceLoad(int n, Data::CBodyFaceLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteBodyFaceLoad(int first, int count);

  // Temperatures of solids (156).
  bool BodyThermalLoadExist(int n) const;
  Data::CBodyThermalLoad const& BodyThermalLoad(int n) const;
  std::vector<Data::CBodyThermalLoad> const& BodyThermalLoad() const;
  int HighestBodyThermalLoad() const;
  void SetBodyThermalLoad(int n, Data::CBodyThermalLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteBodyThermalLoad(int first, int count);

  // Gravity loads (170).
  bool GravityLoadExist(int n) const;
  Data::CGravityLoad const& GravityLoad(int n) const;
  std::vector<Data::CGravityLoad> const& GravityLoad() const;
  int HighestGravityLoad() const;
  void SetGravityLoad(int n, Data::CGravityLoad const& load, SidMode sid = SidMode::Keep);
  void DeleteGravityLoad(int first, int count);
  /// Replaces what the load acts on.
  void SetGravityLoadEntities(int n, Data::CEntList const& list);
  /// Replaces the list of nodes.
  void SetGravityLoadNodes(int n, Data::CEntList const& list);

 protected:
  explicit LoadTables(ModelCore& core) : m_core(core) {}
  ~LoadTables() = default;
  LoadTables(LoadTables const&) = delete;
  LoadTables& operator=(LoadTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
