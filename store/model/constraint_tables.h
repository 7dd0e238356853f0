// Tables of constraints, of what structure and soil share, and of influences.
//
// All are positional: the number of a record is its place from 1, and Highest... is how many there
// are. Set... takes a number up to Highest... + 1 (std::out_of_range otherwise); Delete... closes
// up, so a walk that deletes goes downwards, and Delete...(0, 1) empties a table. A call that
// changes one field of a record throws std::out_of_range for a missing one.
#pragma once

#include <vector>

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/text/cstring.h"

namespace Tarvex {

class ModelCore;
namespace Data {
class CConstraintEqn;
class CEntList;
class CGenRest;
class CInfluenceBeam;
class CInfluenceNode;
class CJoint;
class CPileInteraction;
class CRaftInteraction;
class CRigid;
class CTiedInterface;
}  // namespace Data

/// Constraints of a model.
class TARVEX_STORE_EXPORT ConstraintTables {
 public:
  // General restraints.
  bool GenRestExist(int n) const;
  Data::CGenRest const& GenRest(int n) const;
  std::vector<Data::CGenRest> const& GenRest() const;
  int HighestGenRest() const;
  void SetGenRest(int n, Data::CGenRest const& restraint, SidMode sid = SidMode::Keep);
  void DeleteGenRest(int first, int count);
  /// Replaces the list of nodes.
  void SetGenRestNodes(int n, Data::CEntList const& list);

  // Rigid constraints.
  bool RigidExist(int n) const;
  Data::CRigid const& Rigid(int n) const;
  std::vector<Data::CRigid> const& Rigid() const;
  int HighestRigid() const;
  void SetRigid(int n, Data::CRigid const& rigid, SidMode sid = SidMode::Keep);
  void DeleteRigid(int first, int count);
  /// Replaces the list of nodes.
  void SetRigidConstrainedNodes(int n, Data::CEntList const& list);

  // Joints.
  bool JointExist(int n) const;
  Data::CJoint const& Joint(int n) const;
  std::vector<Data::CJoint> const& Joint() const;
  int HighestJoint() const;
  void SetJoint(int n, Data::CJoint const& joint, SidMode sid = SidMode::Keep);
  void DeleteJoint(int first, int count);
  void SetJointPrimaryNode(int n, int node);
  void SetJointConstrainedNode(int n, int node);

  // Constraint equations.
  bool ConstraintEqnExist(int n) const;
  Data::CConstraintEqn const& ConstraintEqn(int n) const;
  std::vector<Data::CConstraintEqn> const& ConstraintEqn() const;
  int HighestConstraintEqn() const;
  void SetConstraintEqn(int n, Data::CConstraintEqn const& equation, SidMode sid = SidMode::Keep);
  void DeleteConstraintEqn(int first, int count);
  void SetConstraintEqnSid(int n, CString const& sid);

  // Tied interfaces.
  bool TiedInterfaceExist(int n) const;
  Data::CTiedInterface const& TiedInterface(int n) const;
  std::vector<Data::CTiedInterface> const& TiedInterface() const;
  int HighestTiedInterface() const;
  void SetTiedInterface(int n, Data::CTiedInterface const& tied, SidMode sid = SidMode::Keep);
  void DeleteTiedInterface(int first, int count);

  // Raft interactions.
  bool RaftInteractionExist(int n) const;
  Data::CRaftInteraction const& RaftInteraction(int n) const;
  std::vector<Data::CRaftInteraction> const& RaftInteraction() const;
  int HighestRaftInteraction() const;
  void SetRaftInteraction(int n, Data::CRaftInteraction const& interaction,
                          SidMode sid = SidMode::Keep);
  void DeleteRaftInteraction(int first, int count);
  void SetRaftInteractionSid(int n, CString const& sid);

  // Pile interactions.
  bool PileInteractionExist(int n) const;
  Data::CPileInteraction const& PileInteraction(int n) const;
  std::vector<Data::CPileInteraction> const& PileInteraction() const;
  int HighestPileInteraction() const;
  void SetPileInteraction(int n, Data::CPileInteraction const& interaction,
                          SidMode sid = SidMode::Keep);
  void DeletePileInteraction(int first, int count);

  // Nodes of influences.
  bool InfluenceNodeExist(int n) const;
  Data::CInfluenceNode const& InfluenceNode(int n) const;
  std::vector<Data::CInfluenceNode> const& InfluenceNode() const;
  int HighestInfluenceNode() const;
  void SetInfluenceNode(int n, Data::CInfluenceNode const& influence, SidMode sid = SidMode::Keep);
  void DeleteInfluenceNode(int first, int count);

  // Elements of influences.
  bool InfluenceBeamExist(int n) const;
  Data::CInfluenceBeam const& InfluenceBeam(int n) const;
  std::vector<Data::CInfluenceBeam> const& InfluenceBeam() const;
  int HighestInfluenceBeam() const;
  void SetInfluenceBeam(int n, Data::CInfluenceBeam const& influence, SidMode sid = SidMode::Keep);
  void DeleteInfluenceBeam(int first, int count);

 protected:
  explicit ConstraintTables(ModelCore& core) : m_core(core) {}
  ~ConstraintTables() = default;
  ConstraintTables(ConstraintTables const&) = delete;
  ConstraintTables& operator=(ConstraintTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
