// Kinds of selections and references to single things of a model.
#pragma once

#include <compare>

#include "store/export.h"
#include "store/select/module_id.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// Kind of the numbers in a list or set.
enum SelType : int {
  SelNone = 0,     ///< numbers that are no entities, such as stages or properties
  SelNode = 1,     ///< nodes
  SelElement = 2,  ///< elements and load panels: they share their numbers
  SelMember = 3,   ///< members
  SelCase = 4,     ///< load, analysis, combination and task cases
  SelOther = 5,    ///< reserved
};

/// Display word of a kind: "node", "element", "member", "case"; empty for the others.
TARVEX_STORE_EXPORT CString SelTypeLabel(SelType kind);

/// Table of a kind: nodes, elements and members have one, the others give CModule::None.
TARVEX_STORE_EXPORT CModule::ModuleId EntModId(SelType kind);

/// Reference to one entity.
struct SEntRef {
  SEntRef() = default;
  SEntRef(SelType kind, int number) : type(kind), num(number) {}

  SelType Type() const { return type; }
  int Number() const { return num; }
  friend auto operator<=>(SEntRef const&, SEntRef const&) = default;

  SelType type = SelNone;
  int num = 0;
};

/// Kind of a case; the values are bits so that several can be asked for at once.
enum class CaseOp : int {
  None = 0,
  Load = 1,         ///< "L" in case descriptions
  Analysis = 2,     ///< "A"
  Combination = 4,  ///< "C"
  Task = 64,        ///< "T"
};

/// Reference to one case and, where a combination has several, one of its permutations.
struct SCaseRef {
  SCaseRef() = default;
  SCaseRef(CaseOp kind, int number, int permutationNumber = 0)
      : type(kind), num(number), permutation(permutationNumber) {}

  CaseOp CaseType() const { return type; }
  int Case() const { return num; }
  int Permutation() const { return permutation; }
  friend auto operator<=>(SCaseRef const&, SCaseRef const&) = default;

  CaseOp type = CaseOp::None;
  int num = 0;
  int permutation = 0;
};

}  // namespace Tarvex
