#include "chance/workers.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace trv5 {

int doAll(int count, const Workers& workers, const std::function<Work()>& makeWork) {
  if (count <= 0) return 0;
  std::atomic<int> next = 0;
  std::atomic<bool> failed = false;
  std::vector<std::uint8_t> done(static_cast<std::size_t>(count));
  std::mutex mutex;
  std::exception_ptr failure;
  const auto work = [&] {
    try {
      const Work piece = makeWork();
      while (!workers.stop.stop_requested() && !failed) {
        const int index = next.fetch_add(1, std::memory_order_relaxed);
        if (index >= count) return;
        piece(index);
        done[static_cast<std::size_t>(index)] = 1;
      }
    } catch (...) {
      const std::scoped_lock lock(mutex);
      if (!failure) failure = std::current_exception();
      failed = true;
    }
  };
  const int wanted = workers.threads > 0 ? workers.threads : static_cast<int>(std::thread::hardware_concurrency());
  {
    std::vector<std::jthread> others;
    for (int i = 1; i < std::min(wanted, count); ++i) others.emplace_back(work);
    work();
  }
  if (failure) std::rethrow_exception(failure);
  return static_cast<int>(std::find(done.begin(), done.end(), 0) - done.begin());
}

}  // namespace trv5
