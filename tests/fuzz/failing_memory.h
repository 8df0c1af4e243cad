#pragma once

namespace trv5 {

/// Lets the `n`-th request for memory from now on fail once, n from 1, as long as this lives: of the program's own
/// (`operator new`) and of the database library's, counted together. One at a time.
class FailingMemory {
 public:
  explicit FailingMemory(long n);
  ~FailingMemory();
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;

  /// True once a request has failed.
  bool failed() const;
  /// All requests so far.
  long requests() const;
};

}  // namespace trv5
