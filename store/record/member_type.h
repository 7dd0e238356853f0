// Kinds of members and what they are analysed as.
#pragma once

#include <compare>

#include "store/export.h"
#include "store/record/element_shape.h"

namespace Tarvex {

/// What a member is to the designer. The numbers are part of model files: never change one.
enum class MembType : int {
  Generic = 0,  ///< 1D, 2D or 3D by its topology
  Beam = 1,
  Column = 2,
  Brace = 3,
  Slab = 4,
  Wall = 5,
  VoidCutter = 6,  ///< cuts a hole into the members that it lies in
  Solid = 13,
};

/// What is the same for all members of a type.
struct MembTypeRow {
  MembType type = MembType::Generic;
  int dimension = 0;  ///< 1 to 3; 0 where the topology tells
  bool voidCutter = false;
};

/// The row of a type; that of a generic member for a type that is not known.
TARVEX_STORE_EXPORT MembTypeRow const& MembTypeOf(MembType type);

namespace Member {

/// What elements a 2D member becomes.
enum class AnalysisOrder : int { Linear = 0, Quadratic = 1, RigidDiaphragm = 2, LoadPanels = 3 };

/// What elements a member becomes.
struct analysisTypes {  // NOLINT: its name
  ElementType element1D = ElementType::Beam;
  AnalysisOrder order = AnalysisOrder::Linear;

  friend bool operator==(analysisTypes const&, analysisTypes const&) = default;
};

}  // namespace Member
}  // namespace Tarvex
