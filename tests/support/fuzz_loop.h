#pragma once

#include <functional>
#include <string>
#include <vector>

namespace trv5 {

/// One reader of bytes from outside, as the fuzz loop drives it.
struct FuzzTarget {
  const char* name;  ///< of its folder in tests/data/fuzz
  int inputs;        ///< of a usual run
  /// The bytes of an input; the same number gives the same bytes.
  std::function<std::string(int input)> make;
  /// Takes the bytes; what is wrong with the way in which they were taken, "" when nothing is. Tells whether they were
  /// refused.
  std::function<std::string(const std::string& bytes, bool& refused)> faultOf;
};

/// What is wrong with the way in which a target takes these bytes, or with the time that it needs for them.
std::string faultOf(const FuzzTarget& target, const std::string& bytes, bool& refused);

/// Feeds the target's inputs: as many as TRV5_FUZZ_INPUTS says, from that of TRV5_FUZZ_FROM on, else the usual ones,
/// and more of them until as many seconds of processor time have passed as TRV5_FUZZ_SECONDS says. The first fault
/// fails the test, which names the input and where its bytes are kept; a sanitizer's last words name it too.
void feed(const FuzzTarget& target);

/// Feeds the inputs kept in tests/data/fuzz: those that were once taken wrongly, or that are taken rightly by a rule
/// easily lost. `data`: the folder of the tests' data.
void feedKept(const FuzzTarget& target, const std::string& data);

}  // namespace trv5
