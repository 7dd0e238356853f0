// Makes a test need symbols of the shared libraries.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>

namespace Tarvex::Testing {

/// Whether the pointer to a function or member is not null. It is read at run time, byte by byte,
/// so that no compiler can do without the symbol.
template <class Pointer>
bool IsLinked(Pointer pointer) {
  std::array<unsigned char, sizeof(Pointer)> bytes;
  std::memcpy(bytes.data(), &pointer, sizeof(Pointer));
  unsigned char volatile any = 0;
  for (unsigned char const volatile& byte : bytes) any = static_cast<unsigned char>(any | byte);
  return any != 0;
}

/// Whether all of them are.
template <class... Pointers>
bool AreLinked(Pointers... pointers) {
  return (IsLinked(pointers) && ...);
}

/// The member function of a signature, where several have the name.
template <class Signature, class Class>
constexpr auto Member(Signature Class::*member) {
  return member;
}

/// The function of a signature, where several have the name.
template <class Signature>
constexpr auto Function(Signature* function) {
  return function;
}

}  // namespace Tarvex::Testing
