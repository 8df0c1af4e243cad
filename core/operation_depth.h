#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace trv5 {

/// How many operations are at work, one inside the other. Operations nest across forms (one may open another screen and
/// drive it), so all forms of a program share one.
class OperationDepth {
 public:
  bool running() const { return m_depth > 0; }
  /// An operation runs another one.
  bool nested() const { return m_depth > 1; }

  /// One operation, as long as this lives.
  class Step {
   public:
    explicit Step(OperationDepth& depth) : m_depth(depth) { ++m_depth.m_depth; }
    ~Step() { --m_depth.m_depth; }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

   private:
    OperationDepth& m_depth;
  };

  /// Runs `then` after each outermost operation, and after each change by the user that no operation follows, as long
  /// as the returned handle lives. It looks at what stands there now, and runs no operation.
  [[nodiscard]] std::shared_ptr<void> whenSettled(std::function<void()> then) {
    auto kept = std::make_shared<std::function<void()>>(std::move(then));
    m_settled.push_back(kept);
    return kept;
  }

  /// The outermost operation is over.
  void settle() {
    std::erase_if(m_settled, [](const auto& entry) { return entry.expired(); });
    for (std::size_t i = 0; i < m_settled.size(); ++i)
      if (const auto then = m_settled[i].lock()) (*then)();
  }

 private:
  int m_depth = 0;
  std::vector<std::weak_ptr<std::function<void()>>> m_settled;
};

}  // namespace trv5
