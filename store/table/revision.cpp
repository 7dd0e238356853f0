#include "store/table/revision.h"

#include <atomic>

namespace Tarvex {

std::uint64_t NextRevision() {
  static std::atomic<std::uint64_t> last{0};
  return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

}  // namespace Tarvex
