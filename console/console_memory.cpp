// How much memory the program has asked for and not given back. What the system counts for it is more: an allocator
// keeps what it may need again.
#include <malloc.h>

#include <cstddef>

#include "console/console.h"
#include "console/control_actions.h"

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // GCC has no header with it
#endif

namespace trv5 {
namespace {

std::size_t bytesInUse() {
#ifdef __SANITIZE_ADDRESS__
  return __sanitizer_get_current_allocated_bytes();
#else
  const auto heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
#endif
}

}  // namespace

std::string Console::memory(const Arguments&) {
  return answerFields({{"bytes", bytesInUse()}});
}

}  // namespace trv5
