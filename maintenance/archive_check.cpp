#include "maintenance/archive_check.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <unordered_map>

#include "core/text.h"
#include "core/wheels.h"
#include "maintenance/draw_days.h"

namespace trv5 {
namespace {

using Findings = std::vector<ArchiveFinding>;

// The numbers of a wheel's text, 0 for what can't be one.
std::array<int, kPositions> numbersOf(std::string_view wheel) {
  std::array<int, kPositions> numbers{};
  for (std::size_t p = 0; p < numbers.size(); ++p)
    if (wheel.size() >= p * 3 + 2) numbers[p] = numberOf(wheel.substr(p * 3, 2));
  return numbers;
}

constexpr std::string_view kNotDrawn = "00-00-00-00-00";

// Five numbers of two digits of 1..90, joined by "-"; they may repeat, which is another finding.
bool isWellFormed(std::string_view wheel) {
  if (wheel.size() != 14) return false;
  for (std::size_t at = 0; at < wheel.size(); ++at) {
    const bool digit = wheel[at] >= '0' && wheel[at] <= '9';
    if (at % 3 == 2 ? wheel[at] != '-' : !digit) return false;
  }
  const auto numbers = numbersOf(wheel);
  return std::all_of(numbers.begin(), numbers.end(), [](int n) { return n >= 1 && n <= 90; });
}

// Each of these gives its findings in the order of the draws.

Findings findInSums(const std::vector<DrawRow>& rows, const std::vector<DrawDifference>& differences) {
  Findings found;
  std::unordered_map<std::string_view, int> indices;
  for (std::size_t i = 0; i < rows.size(); ++i) indices.emplace(rows[i].date, static_cast<int>(i) + 1);
  for (const DrawDifference& difference : differences) {
    const auto index = indices.find(difference.now.date);
    const char* text = "cambiata fuori dal programma";
    if (difference.kind == DrawDifference::Kind::Missing) text = "tolta fuori dal programma";
    if (difference.kind == DrawDifference::Kind::Added) text = "scritta fuori dal programma";
    found.push_back({ArchiveCheck::Sums, index == indices.end() ? 0 : index->second, difference.now.date, text});
  }
  return found;
}

// One finding a wheel; `look` gives "" where there is nothing to tell.
template <typename Look>
Findings findInWheels(const std::vector<DrawRow>& rows, ArchiveCheck check, Look look) {
  Findings found;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t wheel = 0; wheel < rows[i].wheels.size(); ++wheel) {
      if (rows[i].wheels[wheel].empty()) continue;
      const std::string text = look(rows[i].wheels[wheel]);
      if (!text.empty())
        found.push_back(
            {check, static_cast<int>(i) + 1, rows[i].date, fmt::format("{}: {}", CodiciRuote[wheel], text)});
    }
  }
  return found;
}

std::string malformed(const std::string& wheel) {
  return isWellFormed(wheel) || wheel == kNotDrawn ? "" : fmt::format("\"{}\"", wheel);
}

std::string repeated(const std::string& wheel) {
  if (!isWellFormed(wheel)) return "";
  std::map<int, int> times;
  for (const int number : numbersOf(wheel)) ++times[number];
  std::string text;
  for (const auto& [number, count] : times)
    if (count > 1)
      text +=
          fmt::format("{}{} {} volte", text.empty() ? "" : ", ", number, count == 2 ? "due" : std::to_string(count));
  return text;
}

Findings findInDates(const std::vector<DrawRow>& rows, Day today) {
  Findings found;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto day = dayOfText(rows[i].date);
    if (!day)
      found.push_back({ArchiveCheck::Dates, static_cast<int>(i) + 1, rows[i].date, "non è una data"});
    else if (*day > today)
      found.push_back({ArchiveCheck::Dates, static_cast<int>(i) + 1, rows[i].date, "è dopo la data di oggi"});
  }
  return found;
}

constexpr std::string_view kWeekdays[] = {"domenica", "lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato"};

std::string missingText(const std::vector<Day>& missing) {
  const Day first = missing.front();
  if (missing.size() == 1) return fmt::format("manca {} {}", kWeekdays[weekdayOf(first) - 1], dateText(first));
  return fmt::format("mancano {} estrazioni, dal {} al {}", missing.size(), dateText(first), dateText(missing.back()));
}

// The days of draws between the first and the last draw of the archive that it does not have, a finding a gap.
Findings findGaps(const std::vector<DrawRow>& rows) {
  Findings found;
  const std::vector<Day> expected = drawDays();
  std::optional<Day> last;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::optional<Day> day = dayOfText(rows[i].date);
    if (!day) continue;  // another finding
    if (last) {
      const auto from = std::upper_bound(expected.begin(), expected.end(), *last);
      const auto to = std::lower_bound(from, expected.end(), *day);
      if (from != to)
        found.push_back({ArchiveCheck::Calendar, static_cast<int>(i) + 1, rows[i].date, missingText({from, to})});
    }
    last = day;
  }
  return found;
}

}  // namespace

std::string_view nameOf(ArchiveCheck check) {
  constexpr std::string_view kNames[] = {"Integrità", "Somme di controllo", "Testi delle ruote",
                                         "Date",      "Numeri ripetuti",    "Calendario"};
  return kNames[static_cast<std::size_t>(check)];
}

bool isWhole(const DrawRow& row) {
  return std::all_of(row.wheels.begin(), row.wheels.end(), [](const std::string& wheel) {
    return wheel.empty() || (malformed(wheel).empty() && repeated(wheel).empty());
  });
}

std::vector<ArchiveFinding> findingsOf(const std::vector<DrawRow>& rows, const std::vector<DrawDifference>& differences,
                                       Day today) {
  Findings all;
  const auto take = [&all](const Findings& found) { all.insert(all.end(), found.rbegin(), found.rend()); };
  take(findInSums(rows, differences));
  take(findInWheels(rows, ArchiveCheck::WheelTexts, malformed));
  take(findInDates(rows, today));
  take(findInWheels(rows, ArchiveCheck::RepeatedNumbers, repeated));
  take(findGaps(rows));
  return all;
}

}  // namespace trv5
