#include "support/archive_builder.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace trv5 {

std::string wheelText(const std::array<int, 5>& n) {
  return fmt::format("{:02}-{:02}-{:02}-{:02}-{:02}", n[0], n[1], n[2], n[3], n[4]);
}

DrawRow drawOf(const std::string& date, const WheelNumbers& wheels) {
  DrawRow row;
  row.date = date;
  for (const auto& [code, numbers] : wheels) {
    const int wheel = wheelOfCode(code);
    if (wheel < 0) throw std::invalid_argument("no wheel of code " + code);
    row.wheels[static_cast<std::size_t>(wheel)] = wheelText(numbers);
  }
  return row;
}

std::string dateOfDraw(int drawIndex) {
  using namespace std::chrono;
  const year_month_day date{sys_days{year{1939} / January / 7} + days{4 * (drawIndex - 1)}};
  return fmt::format("{:02}/{:02}/{:04}", static_cast<unsigned>(date.day()), static_cast<unsigned>(date.month()),
                     static_cast<int>(date.year()));
}

Archive archiveOfRows(const std::vector<DrawRow>& rows) {
  Archive archive;
  archive.loadNumbers(rows);
  archive.countProgressives();
  if (!rows.empty()) archive.setModelFrom(1);
  return archive;
}

Archive archiveOf(const std::vector<WheelNumbers>& draws) {
  std::vector<DrawRow> rows;
  for (const WheelNumbers& draw : draws) rows.push_back(drawOf(dateOfDraw(static_cast<int>(rows.size()) + 1), draw));
  return archiveOfRows(rows);
}

std::array<int, 5> randomWheel(std::mt19937& rng) {
  std::array<int, 5> numbers{};
  for (std::size_t i = 0; i < numbers.size();) {
    const int n = static_cast<int>(rng() % 90) + 1;
    if (std::find(numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(i), n) ==
        numbers.begin() + static_cast<std::ptrdiff_t>(i))
      numbers[i++] = n;
  }
  return numbers;
}

std::vector<DrawRow> randomRows(std::mt19937& rng, int draws) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= draws; ++draw) {
    DrawRow& row = rows.emplace_back();
    row.date = dateOfDraw(draw);
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const bool drawn = wheel == kNational ? draw > draws / 2 : rng() % 20 != 0;
      if (drawn) row.wheels[static_cast<std::size_t>(wheel)] = wheelText(randomWheel(rng));
    }
  }
  return rows;
}

Archive randomArchive(std::mt19937& rng, int draws) {
  return archiveOfRows(randomRows(rng, draws));
}

}  // namespace trv5
