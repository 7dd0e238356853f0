// Blocks: members that stand several times without being stored as often.
#pragma once

#include <vector>

#include "store/record/entity.h"

namespace Tarvex::Data {

/// One direction in which something is repeated.
struct ReplicaStep {
  int count = 0;          ///< how often beside the original
  Vec3<double> offset{};  ///< from one to the next, global, model length units

  friend bool operator==(ReplicaStep const& a, ReplicaStep const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<ReplicaStep>("count", &ReplicaStep::count),
                    Plain<ReplicaStep>("offset", &ReplicaStep::offset));
  }
};

/// How something is repeated: each step repeats all that the steps before it gave.
class TARVEX_STORE_EXPORT CReplica {
 public:
  CReplica() = default;
  /// Throws as SetSteps.
  explicit CReplica(std::vector<ReplicaStep> steps) { SetSteps(std::move(steps)); }

  std::vector<ReplicaStep> const& Steps() const { return m_steps; }
  /// Throws std::invalid_argument for a count below 0.
  void SetSteps(std::vector<ReplicaStep> steps);
  /// Offsets of all repetitions from the original, those of the first step changing fastest. The
  /// original's own place, offset 0, is not among them, nor a repetition that comes to stand there.
  std::vector<Vec3<double>> ExpandedOffsets() const;

  /// What makes this no record that a file may hold, empty when nothing does.
  CString Fault() const;

  friend bool operator==(CReplica const& a, CReplica const& b) { return Same(a, b); }
  static constexpr auto Fields() { return MakeRows(Plain<CReplica>("steps", &CReplica::m_steps)); }

 private:
  std::vector<ReplicaStep> m_steps;
};

/// A named group of members and how it is repeated.
class CBlock : public NamedEntity {
 public:
  CBlock() = default;
  CBlock(CString const& name, std::vector<int> members, CReplica replica)
      : NamedEntity(0, name), m_members(std::move(members)), m_replica(std::move(replica)) {}

  std::vector<int> const& Members() const { return m_members; }
  void SetMembers(std::vector<int> members) { m_members = std::move(members); }
  CReplica const& Replica() const { return m_replica; }
  void SetReplica(CReplica replica) { m_replica = std::move(replica); }

  friend bool operator==(CBlock const& a, CBlock const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CBlock>(),
                    MakeRows(Reference<CBlock, CModule::Member>("members", &CBlock::m_members),
                             Plain<CBlock>("replica", &CBlock::m_replica)));
  }

 private:
  std::vector<int> m_members;
  CReplica m_replica;
};

}  // namespace Tarvex::Data
