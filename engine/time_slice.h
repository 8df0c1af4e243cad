#pragma once

#include <chrono>

namespace trv5 {

/// A moment of work between two events of the user: long runs go on piece by piece as long as it lasts. What comes out
/// never hangs on it, only how much of it comes at once.
class TimeSlice {
 public:
  bool over() const { return std::chrono::steady_clock::now() - m_begin > std::chrono::milliseconds(25); }

 private:
  std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
};

/// Replicas drawn before it is looked at again.
inline constexpr int kReplicasOfPiece = 16;

}  // namespace trv5
