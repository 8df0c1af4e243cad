#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace trv5 {

/// Something that happened, told to all who asked, in the order in which they did.
class Notice {
 public:
  /// `told` runs at each notice for as long as what is returned lives.
  [[nodiscard]] std::shared_ptr<void> subscribe(std::function<void()> told) {
    auto kept = std::make_shared<std::function<void()>>(std::move(told));
    m_subscribers.push_back(kept);
    return kept;
  }

  void send() {
    std::erase_if(m_subscribers, [](const auto& subscriber) { return subscriber.expired(); });
    // Who hears it may open or close a screen that asked, too.
    for (const auto& subscriber : std::vector(m_subscribers))
      if (const auto told = subscriber.lock()) (*told)();
  }

 private:
  std::vector<std::weak_ptr<std::function<void()>>> m_subscribers;
};

}  // namespace trv5
