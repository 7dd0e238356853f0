// Reaches private members of a class, for rules that nothing public leads to. Names in an explicit
// instantiation are not checked for access, so it may hand a pointer to the member out.
#pragma once

namespace Tarvex::Testing {

/// What a tag reaches: struct Tag { using Pointer = int (C::*)(int) const; friend Pointer
/// Reach(Tag); }; template struct Reached<Tag, &C::Hidden>;
template <class Tag, typename Tag::Pointer pointer>
struct Reached {
  friend typename Tag::Pointer Reach(Tag) { return pointer; }
};

}  // namespace Tarvex::Testing
