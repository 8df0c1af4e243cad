#include "core/shell.h"

#include <fmt/format.h>

namespace trv5 {

std::string timeText(const DateTime& moment) {
  return fmt::format("{:02}:{:02}:{:02}", moment.hour, moment.minute, moment.second);
}

}  // namespace trv5
