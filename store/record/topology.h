// What elements and load panels have in common.
#pragma once

#include <boost/container/small_vector.hpp>
#include <span>

#include "store/record/field.h"

namespace Tarvex::Data {

/// Node numbers of an entity, in order; up to eight cost no allocation.
class TopoVector : public boost::container::small_vector<int, 8> {
 public:
  using small_vector::small_vector;
  operator std::span<int const>() const { return {data(), size()}; }  // NOLINT: reading view
};

/// The member, and which of its replicas, that an element was made from; member 0 for none.
struct ParentMember {
  int member = 0;
  int replica = 0;

  friend bool operator==(ParentMember const&, ParentMember const&) = default;
  static constexpr auto Fields() {
    return MakeRows(Reference<ParentMember, CModule::Member>("member", &ParentMember::member),
                    Plain<ParentMember>("replica", &ParentMember::replica));
  }
};

}  // namespace Tarvex::Data
