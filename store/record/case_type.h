// Kinds of action of load cases.
#pragma once

namespace Tarvex {

/// The kind of action that a load case stands for, by which load combinations take it up (EN 1990,
/// 4.1). The tens tell the group: 1 permanent, 2 prestress, 3 variable, 4 accidental, 5 seismic.
enum class CaseType : int {
  Undefined = 0,
  SelfWeight = 11,
  Soil = 12,
  PermanentEquivalent = 19,
  Prestress = 21,
  Imposed = 31,
  ImposedRoof = 32,
  Wind = 33,
  Snow = 34,
  Rain = 35,
  Thermal = 36,
  VariableEquivalent = 39,
  Accidental = 41,
  SeismicStatic = 51,
  SeismicResponse = 52,
  SeismicTorsion = 53,
};

}  // namespace Tarvex
