#include "bench/memory_count.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

bool counting = false;
long long held = 0;
long long most = 0;

void* Counted(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  if (counting) {
    held += static_cast<long long>(malloc_usable_size(memory));
    most = std::max(most, held);
  }
  return memory;
}

void Free(void* memory) {
  if (counting) held -= static_cast<long long>(malloc_usable_size(memory));
  std::free(memory);
}

}  // namespace

// In the place of those of the standard library, for the libraries that the program loads, too; the
// forms for arrays and the ones that give null call these.
void* operator new(std::size_t size) { return Counted(std::malloc(size)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  auto const step = static_cast<std::size_t>(alignment);
  return Counted(std::aligned_alloc(step, (size + step - 1) / step * step));
}
void operator delete(void* memory) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { Free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { Free(memory); }

namespace Tarvex::Bench {

MemoryCount::MemoryCount() {
  held = 0;
  most = 0;
  counting = true;
}
MemoryCount::~MemoryCount() { counting = false; }
long long MemoryCount::Held() const { return held; }
long long MemoryCount::Most() const { return most; }

}  // namespace Tarvex::Bench
