// What a rigid link holds of the nodes that it constrains.
#pragma once

#include <algorithm>
#include <array>

#include "store/numeric/vbool6.h"

namespace Tarvex::Data {

/// How the motion of a constrained node follows that of the primary node: one bit a pair of a
/// direction of the constrained node and one of the primary node that moves it. Any sum of bits is
/// a type. Bit by bit, from 1:
///
///                       moved by the primary node's
///   constrained   along x            along y            along z
///     X           X         1        YY        2        ZZ        4
///     Y           XX        8        Y        16        ZZ       32
///     Z           XX       64        YY      128        Z       256
///     XX, YY, ZZ  XX      512        YY     1024        ZZ     2048
///
/// The numbers are part of model files: never change one.
enum class LinkType : int {
  Inert = 0,          ///< holds nothing
  Diaphragm = 53,     ///< X and Y follow as in a stiff disc in the xy plane
  DiaphragmYZ = 344,  ///< the same in the yz plane
  DiaphragmZX = 387,  ///< the same in the zx plane
  Pinned = 511,       ///< the translations follow, rotations are free
  All = 4095,         ///< all six directions follow
};

namespace LinkTypes {

inline constexpr int kHighest = 4095;

/// Whether a link is none of the named ones.
constexpr bool IsCustom(LinkType type) {
  constexpr std::array kNamed{LinkType::Inert,       LinkType::Diaphragm, LinkType::DiaphragmYZ,
                              LinkType::DiaphragmZX, LinkType::Pinned,    LinkType::All};
  return std::find(kNamed.begin(), kNamed.end(), type) == kNamed.end();
}

/// The directions of a constrained node that follow anything of the primary node.
constexpr Vbool6 ConstrainedDof(LinkType type) {
  auto const has = [bits = static_cast<int>(type)](int mask) { return (bits & mask) != 0; };
  return {has(1 | 2 | 4), has(8 | 16 | 32), has(64 | 128 | 256), has(512), has(1024), has(2048)};
}

/// Whether a link holds all translations alone. A diaphragm holds no rotation either, but is no
/// pin: its disc turns its nodes about it.
constexpr bool IsPin(LinkType type) { return type == LinkType::Pinned; }

}  // namespace LinkTypes
}  // namespace Tarvex::Data
