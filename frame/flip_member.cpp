// Reversing one member.
#include "frame/negated.h"
#include "store/model/zel_data.h"
#include "store/record/member.h"
#include "tarvex/orientation.h"

namespace Tarvex {
namespace {

using Data::CMember;

void ExchangeEnds(CMember& member) {
  auto const restraint = member.EndRestraint(0);
  member.SetEndRestraint(0, member.EndRestraint(1));
  member.SetEndRestraint(1, restraint);
  auto const release = member.EndRelease(0);
  member.SetEndRelease(0, member.EndRelease(1));
  member.SetEndRelease(1, release);
}

/// The offset of the reversed member: automatic and axial offsets change ends, and the sideways one
/// whose axis turns round changes its sign.
Data::COffset Reversed(Data::COffset const& old, bool vertical) {
  Data::COffset offset(0, 0, 0, 0);
  offset.SetAuto(0, old.AutomaticOffset(1));
  offset.SetAuto(1, old.AutomaticOffset(0));
  offset.SetAxial(0, old.X_user(1));
  offset.SetAxial(1, old.X_user(0));
  offset.SetY(vertical ? old.Y() : Negated(old.Y()));
  offset.SetZ(vertical ? Negated(old.Z()) : old.Z());
  return offset;
}

}  // namespace

bool FlipMember(CZelData& model, int n) {
  if (!model.MemberExist(n) || !model.Member(n).Is1D()) return false;
  CMember copy(model.Member(n));
  auto topology = copy.Topo();
  if (!topology.Reverse()) return false;
  copy.SetTopo(topology);
  ExchangeEnds(copy);
  copy.SetOffset(Reversed(copy.Offset(), model.MemberIsVertical(n, EntAt::Nodes)));
  model.SetMember(n, copy);
  return true;
}

}  // namespace Tarvex
