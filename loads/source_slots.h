// The kinds of action that have sources of their own, in the order in which they are combined.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "store/record/load_case_title.h"

namespace Tarvex {

/// One kind of action.
struct SourceSlot {
  CaseType type;    ///< whose text begins the names of its basic combinations
  wchar_t letter;   ///< behind the source in those names, 0 for none
  bool hasBasic;    ///< whether its sources get basic combinations
  bool isTrimmed;   ///< whether the end is taken off the texts of its sources
  int subdivision;  ///< category or direction of the titles that go here, 0 where none counts
};

inline constexpr std::size_t kNumSourceSlots = 23;
inline constexpr std::array<SourceSlot, kNumSourceSlots> kSourceSlots{{
    {CaseType::SelfWeight, 0, true, true, 0},
    {CaseType::Soil, 0, true, true, 0},
    {CaseType::PermanentEquivalent, 0, true, true, 0},
    {CaseType::Prestress, 0, true, true, 0},
    {CaseType::Imposed, L'A', true, true, 1},
    {CaseType::Imposed, L'B', true, true, 2},
    {CaseType::Imposed, L'C', true, true, 3},
    {CaseType::Imposed, L'D', true, true, 4},
    {CaseType::Imposed, L'E', true, true, 5},
    {CaseType::Imposed, L'F', true, true, 6},
    {CaseType::Imposed, L'G', true, true, 7},
    {CaseType::ImposedRoof, 0, true, true, 8},
    {CaseType::Wind, 0, true, true, 0},
    {CaseType::Snow, 0, true, true, 0},
    {CaseType::Rain, 0, true, true, 0},
    {CaseType::Thermal, 0, false, false, 0},
    {CaseType::VariableEquivalent, 0, false, true, 0},
    {CaseType::Accidental, 0, true, true, 0},
    {CaseType::SeismicResponse, L'x', true, true, 1},
    {CaseType::SeismicResponse, L'y', true, true, 2},
    {CaseType::SeismicResponse, L'z', true, true, 3},
    {CaseType::SeismicTorsion, L'x', true, true, 1},
    {CaseType::SeismicTorsion, L'y', true, true, 2},
}};

// Places in the table. Both types of imposed actions go to the slots by category.
inline constexpr std::size_t kImposedASlot = 4;
inline constexpr std::size_t kImposedHSlot = 11;
inline constexpr std::size_t kResponseXSlot = 18;
inline constexpr std::size_t kTorsionXSlot = 21;
inline constexpr std::size_t kTorsionYSlot = 22;

/// Whether a type is imposed, on floors or roofs.
inline bool IsImposed(CaseType type) {
  return type == CaseType::Imposed || type == CaseType::ImposedRoof;
}

/// The slot that the cases of a title go to; nothing for a title that is not combined.
inline std::optional<std::size_t> SlotOf(Data::CLoadCaseTitle const& title) {
  auto const type = title.TypeOf();
  bool const isImposed = IsImposed(type);
  bool const hasDirection = type == CaseType::SeismicResponse || type == CaseType::SeismicTorsion;
  int subdivision = 0;
  if (isImposed) subdivision = title.Category();
  if (hasDirection) subdivision = title.GetDirection();
  for (std::size_t slot = 0; slot < kNumSourceSlots; ++slot) {
    auto const& row = kSourceSlots[slot];
    bool const fits = isImposed ? IsImposed(row.type) : row.type == type;
    if (fits && row.subdivision == subdivision) return slot;
  }
  return std::nullopt;
}

}  // namespace Tarvex
