#include "workbench/commands/shape_warnings.h"

#include <algorithm>
#include <set>

#include "store/model/list_expansion.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/element.h"
#include "store/record/face_loads.h"
#include "workbench/commands/shaped_loads.h"

namespace Tarvex::Workbench {
namespace {

/// The parents that loads of a table are on which can be mapped and pass a test.
template <class Load, class Visit>
void ForEachLoaded(std::vector<Load> const& loads, CZelData const& model, NumberLists const& pieces,
                   Visit&& visit) {
  int n = 0;
  for (auto const& load : loads) {
    ++n;
    auto const& list = load.LoadedEntities();
    if (list.TypeOf() != SelElement || !list.IsPlain()) continue;
    for (int const number : Util::MakeSet(list, model, true))
      if (auto const found = pieces.find(number); found != pieces.end())
        visit(n, load, found->first);
  }
}

class ShapeWarnings {
 public:
  ShapeWarnings(CZelData const& model, NumberLists const& pieces, CommandResult& result)
      : m_model(model), m_pieces(pieces), m_result(result) {}

  void Solids() {
    std::set<int> seen;
    ForEachLoaded(m_model.BodyFaceLoad(), m_model, m_pieces, [&](int n, auto const& load, int) {
      if (load.TypeOf() != Data::CBodyFaceLoad::Load3D::PerCorner || !seen.insert(n).second) return;
      Warn("corner-pressure", "BodyFaceLoad", n,
           "BodyFaceLoad " + std::to_string(n) +
               " has values by corner: those of the pieces are taken at their first four nodes, "
               "not on the face, and give other forces");
    });
  }

  void Backwards() {
    std::set<int> parents;
    ForEachLoaded(m_model.BeamLoad(), m_model, m_pieces, [&](int, auto const& load, int parent) {
      if (load.TypeOf() == Data::CBeamLoad::LoadType::Point) parents.insert(parent);
    });
    ForEachLoaded(m_model.BeamDist(), m_model, m_pieces,
                  [&](int, auto const&, int parent) { parents.insert(parent); });
    for (int const parent : parents)
      for (int const piece : m_pieces.at(parent))
        if (RunsAgainst(parent, piece))
          Warn("runs-backwards", "Elem", piece,
               "element " + std::to_string(piece) + " runs against element " +
                   std::to_string(parent) + " and takes no point loads and distortions of it");
  }

  void Panels() {
    for (auto const& [old, now] : m_pieces)
      if (m_model.LoadPanelExist(old))
        m_result.undone.push_back({"LoadPanel", old, "loads of load panels are not mapped"});
    std::set<int> seen;
    auto const panelsAlone = [&](char const* table) {
      return [this, table, &seen](int n, auto const& load, int) {
        if (LeavesPanelsAlone(load.LoadedEntities()) && seen.insert(n).second)
          Warn("panels-alone", table, n,
               std::string(table) + " " + std::to_string(n) +
                   " goes: its list names load panels alone");
      };
    };
    ForEachLoaded(m_model.FaceLoad(), m_model, m_pieces, panelsAlone("FaceLoad"));
    seen.clear();
    ForEachLoaded(m_model.FaceThermalLoad(), m_model, m_pieces, panelsAlone("FaceThermalLoad"));
  }

 private:
  void Warn(char const* code, char const* table, int n, std::string const& text) {
    m_result.warnings.push_back({code, table, n, text});
    m_result.lookAt = true;
  }

  bool RunsAgainst(int parent, int piece) const {
    auto const chord = [&](int n) {
      auto const& line = m_model.Elem(n);
      return m_model.NodeCoor(line.Topo(1)) - m_model.NodeCoor(line.Topo(0));
    };
    auto const isLine = [&](int n) {
      return m_model.ElemExist(n) && m_model.Elem(n).Is1D() &&
             m_model.NodeExist(m_model.Elem(n).Topo(0)) &&
             m_model.NodeExist(m_model.Elem(n).Topo(1));
    };
    return isLine(parent) && isLine(piece) && Dot(chord(parent), chord(piece)) < 0;
  }

  /// Whether mapping leaves nothing but load panels on a list, of which at least one is a piece.
  bool LeavesPanelsAlone(Data::CEntList const& list) const {
    bool any = false;
    for (int const number : Util::MakeSet(list, m_model, true)) {
      auto const found = m_pieces.find(number);
      if (m_model.LoadPanelExist(number)) continue;
      if (found == m_pieces.end()) return false;
      for (int const piece : found->second) {
        if (!m_model.LoadPanelExist(piece)) return false;
        any = true;
      }
    }
    return any;
  }

  CZelData const& m_model;
  NumberLists const& m_pieces;
  CommandResult& m_result;
};

}  // namespace

void WarnOfShapes(CZelData const& model, NumberLists const& pieces, CommandResult& result) {
  ShapeWarnings warnings(model, pieces, result);
  warnings.Solids();
  warnings.Backwards();
  warnings.Panels();
}

}  // namespace Tarvex::Workbench
