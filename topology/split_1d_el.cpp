#include <cmath>
#include <stdexcept>

#include "store/geometry/axis_trans.h"
#include "store/model/get_node_at.h"
#include "store/model/zel_data.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tarvex/data_mgr.h"
#include "tarvex/split_connect.h"

namespace Tarvex {

CSplit1dEl::CSplit1dEl(CZelData& model) : m_model(model) {}
CSplit1dEl::CSplit1dEl(CSplit1dEl const&) = default;
CSplit1dEl::CSplit1dEl(CSplit1dEl&&) noexcept = default;
CSplit1dEl::~CSplit1dEl() = default;

bool CSplit1dEl::Do(SEntRef entity, double position, bool extend, std::vector<int>& created) {
  m_allLoadsMapped = true;
  m_someSplitsSkipped = false;
  created.clear();
  switch (entity.type) {
    case SelElement:
      return SplitElement(entity.num, position, extend, created);
    case SelMember:
      return SplitMember(entity.num, position, extend, created);
    default:
      throw std::out_of_range("bad entity type");
  }
}

bool CSplit1dEl::IsAtEnd(SEntRef line, double length, double position) {
  if (std::abs(position) < kZeroLength)
    m_splitNode = m_model.EntTopo(line, 0);
  else if (std::abs(position - length) < kZeroLength)
    m_splitNode = m_model.EntTopo(line, 1);
  else
    return false;
  return true;
}

void CSplit1dEl::FindSplitNode(SEntRef line, double position) {
  auto const start = m_model.NodeCoor(m_model.EntTopo(line, 0));
  auto const end = m_model.NodeCoor(m_model.EntTopo(line, 1));
  m_splitNode = ZelUtil::GetNodeAt(m_model, start + position * Unit(end - start),
                                   m_useCoincidenceTol ? m_coincidenceTol : 0.0, CString(L""));
}

bool CSplit1dEl::SplitElement(int n, double position, bool extend, std::vector<int>& created) {
  auto const old = m_model.Elem(n);
  SEntRef const line(SelElement, n);
  double const length = m_model.ElemLen(n, EntAt::Nodes);
  if (!std::isfinite(length + position) || std::abs(length) < kZeroLength) return false;
  if (IsAtEnd(line, length, position)) return true;
  bool const offset = old.IsOffset();
  if (offset) m_model.SetElemOffset(n, Data::COffset(0, 0, 0, 0));
  FindSplitNode(line, position);
  if (offset) {
    Util::CAxisTrans along;
    along.Assign(m_model.ElemDC(n, EntAt::Ends, -1), m_model.NodeCoor(old.Topo(0)));
    double const at = along.Global2User(m_model.NodeCoor(m_splitNode)).x;
    double const x1 = old.Offset().Vector(0).x;
    double const x2 = old.Offset().Vector(1).x;
    if (m_coincidenceTol + x1 > at || at > x2 + length - m_coincidenceTol) {
      m_someSplitsSkipped = true;
      return false;
    }
  }
  if (position >= 0 && position <= length) {
    Cut(n, created, old);
    return true;
  }
  if (!extend) return true;
  auto added = old;
  added.Lock(false);
  if (position < 0) {
    added.SetTopo(0, m_splitNode);
    added.SetTopo(1, added.Topo(0));  // so both ends are on the split node
  } else {
    added.SetTopo(0, added.Topo(1));
    added.SetTopo(1, m_splitNode);
  }
  int const number = m_model.HighestElem() + 1;
  m_model.SetElem(number, added);
  created = {n, number};
  return true;
}

void CSplit1dEl::Cut(int n, std::vector<int>& created, Data::CElement const& old) {
  int const first = m_model.HighestElem() + 1;
  int const second = first + 1;
  auto const store = [&](int number, int newEnd) {
    auto piece = old;
    piece.Lock(false);
    piece.SetTopo(newEnd, m_splitNode);
    piece.SetConnect(newEnd, CElemConnect());
    m_model.SetElem(number, piece);
  };
  store(first, 1);
  store(second, 0);
  created = {second, first};
  if (m_replaceElemRef) {
    CDataMgr::NumberLists const pieces{{n, {first, second}}};
    CDataMgr const manager(m_model);
    if (!manager.MapBeamLoading(SelElement, pieces)) m_allLoadsMapped = false;
    manager.ReplaceElemRef(pieces, false);
  }
  m_model.BlankElem(n, 1);
}

bool CSplit1dEl::SplitMember(int n, double position, bool extend, std::vector<int>& created) {
  auto const old = m_model.Member(n);
  SEntRef const line(SelMember, n);
  double const length = m_model.MemberLen(n, EntAt::Nodes);
  if (!std::isfinite(length + position) || std::abs(length) < kZeroLength) return false;
  if (IsAtEnd(line, length, position)) return true;
  FindSplitNode(line, position);
  if (!extend || (position >= 0 && position <= length)) return true;
  int const number = m_model.HighestMember() + 1;
  m_model.SetMember(number, old);
  m_model.LockMember(number, false);
  m_model.SetEntTopo({SelMember, number}, position < 0 ? 0 : 1, m_splitNode);
  created = {n, number};
  return true;
}

}  // namespace Tarvex
