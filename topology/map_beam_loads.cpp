// Loads of lines given to the pieces that lie along them.
#include <algorithm>
#include <array>

#include "store/geometry/axis_trans.h"
#include "store/model/undo_step.h"
#include "tarvex/data_mgr.h"
#include "topology/load_sheet.h"

namespace Tarvex {
namespace {

using LoadType = Data::CBeamLoad::LoadType;

/// How far a piece may reach over an end of its parent and still count as part of it, model length
/// units.
constexpr double kReach = 1e-4;

/// A position along a line as a length: a negative one is minus a fraction of the line.
double LengthAt(double position, double length) {
  return position < 0 ? -length * position : position;
}

/// Whether a load at a point belongs to a sub-element. Its end belongs to it and its start does
/// not, but for the start of the line.
bool TakesPoint(double start, double end, double at) {
  return (start == 0 && at == 0) || (start < at && at <= end);
}

/// How many of the values, and whether the positions, of a type of load are read.
struct BeamTypeRow {
  LoadType type;
  int values;
  int positions;
};
constexpr std::array kBeamTypes{
    BeamTypeRow{LoadType::Point, 1, 1},     BeamTypeRow{LoadType::Uniform, 1, 0},
    BeamTypeRow{LoadType::Linear, 2, 0},    BeamTypeRow{LoadType::Patch, 2, 2},
    BeamTypeRow{LoadType::Trilinear, 2, 2},
};

bool IsFiniteLoad(Data::CBeamLoad const& load) {
  auto const row = std::find_if(kBeamTypes.begin(), kBeamTypes.end(),
                                [&](auto const& each) { return each.type == load.TypeOf(); });
  if (row == kBeamTypes.end()) return true;
  for (int i = 0; i < row->positions; ++i)
    if (!std::isfinite(load.Pos(i))) return false;
  return HasFiniteValues(load, row->values);
}

}  // namespace

struct CDataMgr::LineSheets {
  LoadSheet<BeamLoads> loads;
  LoadSheet<BeamDists> dists;
};

bool CDataMgr::MapBeamLoading(SelType kind, NumberLists const& pieces) const {
  CUndoStep step(m_model, false);
  LineSheets sheets{{m_model, pieces, LoadsOf::Lines, kind},
                    {m_model, pieces, LoadsOf::Lines, kind}};
  bool all = true;
  for (auto const& [parent, subs] : pieces) {
    for (int const sub : subs)
      if (!MapBeamLoading(kind, parent, sub, sheets)) all = false;
    UnMapBeamLoading(parent, sheets);
  }
  sheets.loads.Store();
  sheets.dists.Store();
  step.Accept();
  return all;
}

double CDataMgr::ElemSubElemPos(SelType kind, int parent, int sub, double& start,
                                double& end) const {
  SEntRef const line(kind, parent);
  double const length = m_model.EntLen(line, EntAt::Ends);
  auto const endOf = [&](SEntRef ref, int place) {
    auto const at = m_model.Node(m_model.EntTopo(ref, place)).Position();
    return m_model.EntIsOffset(ref) ? at + m_model.EntOffset(ref, place) : at;
  };
  auto const a = endOf(line, 0);
  auto const b = endOf(line, 1);
  auto const frame = m_model.EntDC(line);
  Util::CAxisTrans along;
  along.Assign(a, frame.AxisVec(Direction::X), frame.AxisVec(Direction::Y));
  double deviation = 0;
  auto const place = [&](Vec3<double> const& point) {
    if (Length(point - a) < kZeroLength) return 0.0;
    if (Length(point - b) < kZeroLength) return length;
    auto const local = along.Global2User(point);
    deviation = std::max(deviation, std::hypot(local.y, local.z));
    return local.x;
  };
  start = place(endOf({kind, sub}, 0));
  end = place(endOf({kind, sub}, 1));
  return deviation;
}

/// What is told of one sub-element to the mapping of each load.
struct CDataMgr::BeamPiece {
  LineSheets& sheets;
  SelType kind;
  int sub;
  double length;  ///< of the parent, model length units
  double start;   ///< along the parent
  double end;
  bool finite;
};

bool CDataMgr::MapBeamLoading(SelType kind, int parent, int sub, LineSheets& sheets) const {
  BeamPiece piece{sheets, kind, sub, 0, 0, 0, true};
  for (auto const ref : {SEntRef(kind, parent), SEntRef(kind, sub)})
    for (int const place : {0, 1})
      if (!FinitePosition(m_model, m_model.EntTopo(ref, place))) piece.finite = false;
  if (piece.finite) {
    piece.length = kind == SelElement ? m_model.ElemLen(parent, EntAt::Ends)
                                      : m_model.MemberLen(parent, EntAt::Ends);
    if (std::abs(piece.length) < kZeroLength) return true;
    ElemSubElemPos(kind, parent, sub, piece.start, piece.end);
    piece.finite = std::isfinite(piece.length + piece.start + piece.end);
    if (std::abs(piece.end - piece.start) < kZeroLength) return true;
  }
  bool all = !sheets.loads.IsOnIndirect(parent) && !sheets.dists.IsOnIndirect(parent);
  for (int const n : sheets.loads.On(parent))
    if (!MapBeamLoad(n, piece)) all = false;
  for (int const n : sheets.dists.On(parent))
    if (!MapBeamDist(n, piece)) all = false;
  return all;
}

bool CDataMgr::MapBeamLoad(int n, BeamPiece const& piece) const {
  auto load = m_model.BeamLoad(n);
  auto const type = load.TypeOf();
  bool const member = piece.kind == SelMember;
  if (member && type != LoadType::Uniform) return false;
  if (!piece.finite || !IsFiniteLoad(load)) return false;
  bool const within = piece.start > -kReach && piece.end < piece.length + kReach;
  auto const writePart = [&](int section) {
    MapBeamPatchLoad(load, piece.sub, piece.length, piece.start, piece.end, section);
  };
  switch (type) {
    case LoadType::Point: {
      double const at = LengthAt(load.Pos(0), piece.length);
      if (!TakesPoint(piece.start, piece.end, at)) break;
      load.SetPos(0, at - piece.start);
      BeamLoads::AppendOn(m_model, piece.sub, load);
      break;
    }
    case LoadType::Uniform:
      if (within)
        piece.sheets.loads.AddTo(n, piece.sub);
      else if (member)
        return false;
      else
        writePart(0);
      break;
    case LoadType::Linear:
      if (within)
        AppendLinear(load, piece);
      else
        writePart(0);
      break;
    case LoadType::Patch:
      writePart(0);
      break;
    case LoadType::Trilinear:
      for (int const section : {0, 1, 2}) writePart(section);
      break;
  }
  return true;
}

void CDataMgr::AppendLinear(Data::CBeamLoad const& load, BeamPiece const& piece) const {
  auto const at = [&](double x) {
    double const share = x / piece.length;
    return (1 - share) * load.Value(0) + share * load.Value(1);
  };
  auto part = load;
  part.SetValue(0, at(piece.start));
  part.SetValue(1, at(piece.end));
  if (HasFiniteValues(part, 2)) BeamLoads::AppendOn(m_model, piece.sub, part);
}

bool CDataMgr::MapBeamDist(int n, BeamPiece const& piece) const {
  auto load = m_model.BeamDist(n);
  if (piece.kind == SelMember) return false;
  if (!piece.finite || !std::isfinite(load.Pos()) || !std::isfinite(load.Value())) return false;
  double const at = LengthAt(load.Pos(), piece.length);
  if (!TakesPoint(piece.start, piece.end, at)) return true;
  load.SetPos(at - piece.start);
  BeamDists::AppendOn(m_model, piece.sub, load);
  return true;
}

void CDataMgr::UnMapBeamLoading(int parent, LineSheets& sheets) const {
  sheets.loads.TakeOff(parent);
  sheets.dists.TakeOff(parent);
}

}  // namespace Tarvex
