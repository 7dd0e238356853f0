// Tables of loads on entities by the class of their records, so that what is alike in all mappings
// is written once.
#pragma once

#include <cmath>
#include <functional>
#include <optional>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/element.h"
#include "store/record/face_loads.h"
#include "store/record/node.h"
#include "store/record/variant_element.h"

namespace Tarvex {

/// The operations of one table.
template <
    class Record, Record const& (LoadTables::*read)(int) const, int (LoadTables::*highest)() const,
    void (LoadTables::*write)(int, Record const&, SidMode), void (LoadTables::*remove)(int, int)>
struct LoadTable {
  static int Highest(CZelData const& model) { return std::invoke(highest, model); }
  static Record const& Read(CZelData const& model, int n) { return std::invoke(read, model, n); }
  static void Write(CZelData& model, int n, Record const& load) {
    std::invoke(write, model, n, load, SidMode::Keep);
  }
  static void Delete(CZelData& model, int first, int count = 1) {
    std::invoke(remove, model, first, count);
  }

  /// Appends a load, on one element and nothing else.
  static void AppendOn(CZelData& model, int element, Record load) {
    Data::CEntList list(SelElement, L"");
    list.AddTo(element);
    load.SetLoadedEntities(list);
    Write(model, Highest(model) + 1, load);
  }
};

using BeamLoads = LoadTable<Data::CBeamLoad, &CZelData::BeamLoad, &CZelData::HighestBeamLoad,
                            &CZelData::SetBeamLoad, &CZelData::DeleteBeamLoad>;
using BeamDists = LoadTable<Data::CBeamDist, &CZelData::BeamDist, &CZelData::HighestBeamDist,
                            &CZelData::SetBeamDist, &CZelData::DeleteBeamDist>;
using EdgeLoads = LoadTable<Data::CEdgeLoad, &CZelData::EdgeLoad, &CZelData::HighestEdgeLoad,
                            &CZelData::SetEdgeLoad, &CZelData::DeleteEdgeLoad>;
using FaceLoads = LoadTable<Data::CFaceLoad, &CZelData::FaceLoad, &CZelData::HighestFaceLoad,
                            &CZelData::SetFaceLoad, &CZelData::DeleteFaceLoad>;
using FaceThermalLoads =
    LoadTable<Data::CFaceThermalLoad, &CZelData::FaceThermalLoad, &CZelData::HighestFaceThermalLoad,
              &CZelData::SetFaceThermalLoad, &CZelData::DeleteFaceThermalLoad>;
using BodyFaceLoads =
    LoadTable<Data::CBodyFaceLoad, &CZelData::BodyFaceLoad, &CZelData::HighestBodyFaceLoad,
              &CZelData::SetBodyFaceLoad, &CZelData::DeleteBodyFaceLoad>;
using BodyThermalLoads =
    LoadTable<Data::CBodyThermalLoad, &CZelData::BodyThermalLoad, &CZelData::HighestBodyThermalLoad,
              &CZelData::SetBodyThermalLoad, &CZelData::DeleteBodyThermalLoad>;

/// Whether the first so many values of a load are finite.
template <class Load>
bool HasFiniteValues(Load const& load, int count) {
  for (int i = 0; i < count; ++i)
    if (!std::isfinite(load.Value(i))) return false;
  return true;
}

/// Position of a node; empty when there is no such node or its place is not finite.
inline std::optional<Vec3<double>> FinitePosition(CZelData const& model, int node) {
  if (!model.NodeExist(node)) return std::nullopt;
  auto const& at = model.NodeCoor(node);
  bool const finite = std::isfinite(at.x) && std::isfinite(at.y) && std::isfinite(at.z);
  return finite ? std::optional(at) : std::nullopt;
}

/// Whether an element or load panel exists and all its nodes do, at finite places.
inline bool HasFinitePlace(CZelData const& model, int number) {
  auto const entity = model.VariantElement(number);
  if (!entity || entity->Topology().empty()) return false;
  for (int const node : entity->Topology())
    if (!FinitePosition(model, node)) return false;
  return true;
}

/// Whether an element exists and all its nodes do, at finite places.
inline bool HasFiniteNodes(CZelData const& model, int element) {
  return model.ElemExist(element) && HasFinitePlace(model, element);
}

/// Corners of a plate: all nodes, or the first half where there are more than four.
inline int NumCorner(Data::CElement const& element) {
  int const nodes = element.NumTopo();
  return nodes > 4 ? nodes / 2 : nodes;
}

}  // namespace Tarvex
