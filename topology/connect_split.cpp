// How connected lines are cut, and their ends moved.
#include <cmath>
#include <stdexcept>

#include "store/model/zel_data.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tarvex/data_mgr.h"
#include "tarvex/split_connect.h"

namespace Tarvex {

int CConnect1dEl::SetCoor(int node, Vec3<double> point) {
  if (!m_model.NodeExist(node)) {
    node = m_model.HighestNode() + 1;
    m_model.SetNode(node, Data::CNode());
  }
  m_model.SetNodeCoor(node, point);
  return node;
}

int CConnect1dEl::DoSplit(int node, int entity, double length, double /*ratio*/, double position) {
  if (m_entType != SelElement && m_entType != SelMember) throw std::out_of_range("bad entity type");
  SEntRef const ref(m_entType, entity);
  if (!m_model.EntIs1D(ref)) return 0;
  if (std::abs(position) < m_endTol) {
    m_model.SetEntTopo(ref, 0, node);
    return 0;
  }
  if (std::abs(position - length) < m_endTol) {
    m_model.SetEntTopo(ref, 1, node);
    return 0;
  }
  return m_entType == SelElement ? SplitElement(node, entity) : SplitMember(node, entity);
}

int CConnect1dEl::SplitElement(int node, int n) {
  int const highest = m_model.HighestElem();
  for (int end = 0; end < 2; ++end) {
    auto piece = m_model.Elem(n);
    piece.SetTopo(end, node);
    auto offset = piece.Offset();
    offset.SetX(end, 0);
    piece.SetOffset(offset);
    piece.SetConnect(end, CElemConnect());
    m_model.SetElem(highest + end + 1, piece);
    m_set.AddTo(highest + end + 1);
  }
  if (m_replaceElemRef) {
    CDataMgr::NumberLists const pieces{{n, {highest + 1, highest + 2}}};
    CDataMgr const manager(m_model);
    if (!manager.MapBeamLoading(m_entType, pieces)) m_allLoadsMapped = false;
    manager.ReplaceElemRef(pieces, false);
  }
  m_model.BlankElem(n, 1);
  m_set.RemoveFrom(n);
  return highest + 2;
}

int CConnect1dEl::SplitMember(int node, int n) {
  int const highest = m_model.HighestMember();
  for (int end = 0; end < 2; ++end) {
    auto piece = m_model.Member(n);
    auto topology = piece.Topo();
    if (topology.NumItem() != 2 || topology.NumTopo() != 2) return 0;
    topology.SetItem(end, node);
    piece.SetTopo(topology);
    auto offset = piece.Offset();
    offset.SetX(end, 0);
    piece.SetOffset(offset);
    int const other = end == 0 ? 1 : 0;
    piece.SetEndRelease(end, piece.EndRelease(other));
    piece.SetEndRestraint(end, piece.EndRestraint(other));
    m_model.SetMember(highest + end + 1, piece);
    m_set.AddTo(highest + end + 1);
  }
  m_model.BlankMember(n, 1);
  m_set.RemoveFrom(n);
  return highest + 2;
}

}  // namespace Tarvex
