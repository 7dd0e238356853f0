// One straight part of a load along a line, on a piece of the line.
#include <array>
#include <optional>

#include "tarvex/data_mgr.h"
#include "topology/load_table.h"

namespace Tarvex {
namespace {

using Data::CBeamLoad;
using PartType = CBeamLoad::LoadType;

/// Position of the second end of a line: minus the whole of it.
constexpr double kSecondEnd = -1;

/// A straight part of a load, from (a, va) to (b, vb) along the parent.
struct LoadPart {
  double a;
  double va;
  double b;
  double vb;
};

/// Positions as they stand in the load.
std::optional<LoadPart> PartOf(CBeamLoad const& load, int section) {
  double const v0 = load.Value(0);
  double const v1 = load.Value(1);
  double const p0 = load.Pos(0);
  double const p1 = load.Pos(1);
  switch (load.TypeOf()) {
    case PartType::Uniform:
      return LoadPart{0, v0, kSecondEnd, v0};
    case PartType::Linear:
      return LoadPart{0, v0, kSecondEnd, v1};
    case PartType::Patch:
      return LoadPart{p0, v0, p1, v1};
    case PartType::Trilinear:
      return std::array{LoadPart{0, 0, p0, v0}, LoadPart{p0, v0, p1, v1},
                        LoadPart{p1, v1, kSecondEnd, 0}}[static_cast<std::size_t>(section)];
    default:
      return std::nullopt;
  }
}

/// The straight line through a part, by its values at both ends of the parent.
class LoadLine {
 public:
  LoadLine(LoadPart const& part, double length) : m_length(length) {
    double const ra = part.a / length;
    double const rb = part.b / length;
    double const d = rb * (1 - ra) - (1 - rb) * ra;  // 0 for a part without length
    m_first = (rb * part.va - ra * part.vb) / d;
    m_last = ((1 - ra) * part.vb - (1 - rb) * part.va) / d;
  }
  double At(double x) const { return (1 - x / m_length) * m_first + x / m_length * m_last; }

 private:
  double m_length;
  double m_first;
  double m_last;
};

/// What of a part lies on the piece from start to end.
struct PieceLoad {
  PartType type;
  std::array<double, 2> values;
  std::array<double, 2> positions;
};

PieceLoad LoadOnPiece(LoadPart const& part, LoadLine const& line, double start, double end) {
  auto const [a, va, b, vb] = part;
  if (start >= a && b >= end)
    return {PartType::Linear, {line.At(start), line.At(end)}, {0, kSecondEnd}};
  if (a >= start && end >= b) return {PartType::Patch, {va, vb}, {a - start, b - start}};
  if (a >= start) return {PartType::Patch, {va, line.At(end)}, {a - start, kSecondEnd}};
  return {PartType::Patch, {line.At(start), vb}, {0, b - start}};
}

}  // namespace

void CDataMgr::MapBeamPatchLoad(CBeamLoad const& load, int sub, double length, double start,
                                double end, int section) const {
  auto part = PartOf(load, section);
  if (!part) return;
  for (double* position : {&part->a, &part->b})
    if (*position < 0) *position *= -length;
  if (start > end) {
    part = LoadPart{length - part->b, part->vb, length - part->a, part->va};
    start = length - start;
    end = length - end;
  }
  if (part->a >= end || start >= part->b) return;
  auto const piece = LoadOnPiece(*part, LoadLine(*part, length), start, end);
  auto written = load;
  written.SetType(piece.type);
  for (int i = 0; i < 2; ++i) {
    auto const at = static_cast<std::size_t>(i);
    written.SetValue(i, piece.values[at]);
    written.SetPos(i, piece.positions[at]);
  }
  if (HasFiniteValues(written, 2)) BeamLoads::AppendOn(m_model, sub, written);
}

}  // namespace Tarvex
