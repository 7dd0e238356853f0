// Reaches private members of a class, for rules that nothing public leads to. Names in an explicit
// instantiation are not checked for access, so it may hand a pointer to the member out.
#pragma once

#include <vector>

#include "tarvex/data_mgr.h"
#include "tarvex/split_connect.h"

namespace Tarvex::Testing {

template <class Tag, typename Tag::Pointer pointer>
struct Reached {
  friend typename Tag::Pointer Reach(Tag) { return pointer; }
};

struct OneFaceLoad {
  using Pointer = void (CDataMgr::*)(int, int, std::vector<int> const&) const;
  friend Pointer Reach(OneFaceLoad);
};
template struct Reached<OneFaceLoad, &CDataMgr::MapFaceLoading>;

struct AttachedElements {
  using Pointer = int (CDataMgr::*)(int, std::vector<int> const&) const;
  friend Pointer Reach(AttachedElements);
};
template struct Reached<AttachedElements, &CDataMgr::NumElemAttached>;

struct PieceDeviation {
  using Pointer = double (CDataMgr::*)(SelType, int, int, double&, double&) const;
  friend Pointer Reach(PieceDeviation);
};
template struct Reached<PieceDeviation, &CDataMgr::ElemSubElemPos>;

struct NodeMover {
  using Pointer = int (CConnect1dEl::*)(int, Vec3<double>);
  friend Pointer Reach(NodeMover);
};
template struct Reached<NodeMover, &CConnect1dEl::SetCoor>;

/// Calls a private member of a manager.
template <class Tag, class... Arguments>
auto CallPrivate(Tag tag, CDataMgr const& manager, Arguments&&... arguments) {
  return (manager.*Reach(tag))(std::forward<Arguments>(arguments)...);
}

}  // namespace Tarvex::Testing
