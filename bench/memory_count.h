// Memory that a workload takes.
#pragma once

namespace Tarvex::Bench {

/// Counts what operator new hands out and takes back from here on, as the heap rounds it. One at a
/// time, of a program that allocates in one thread; not beside a clock, which it slows.
class MemoryCount {
 public:
  MemoryCount();
  ~MemoryCount();
  MemoryCount(MemoryCount const&) = delete;
  MemoryCount& operator=(MemoryCount const&) = delete;

  /// Bytes held now beyond those at the start, and the most that were at any time.
  long long Held() const;
  long long Most() const;
};

}  // namespace Tarvex::Bench
