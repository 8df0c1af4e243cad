#include "core/archive.h"

#include <atomic>
#include <functional>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "core/text.h"

namespace trv5 {
namespace {

constexpr std::size_t kSlots =
    Archive::kMaxDraws + 2;  // one beyond the last draw: "the next draw" of the last is empty

// Of the draws up to each one, 0..`count`.
std::vector<std::uint64_t> digestsOf(const std::vector<std::uint8_t>& numbers, const std::vector<std::string>& dates,
                                     std::size_t count) {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;  // spreads the bits of each sum over the word
  std::vector<std::uint64_t> digests = {0};
  digests.reserve(count + 1);
  for (std::size_t draw = 1; draw <= count; ++draw) {
    const std::string_view drawn(reinterpret_cast<const char*>(&numbers[draw * Archive::kDrawBytes]),
                                 Archive::kDrawBytes);
    std::uint64_t digest = digests.back();
    for (const std::string_view part : {drawn, std::string_view(dates[draw])})
      digest = (digest + std::hash<std::string_view>()(part)) * kOdd + 1;
    digests.push_back(digest);
  }
  return digests;
}

}  // namespace

Archive::Archive()
    : m_shown(kSlots * kDrawBytes), m_numbers(kSlots * kDrawBytes), m_dates(kSlots), m_month(kSlots), m_year(kSlots) {}

void Archive::loadNumbers(const std::vector<DrawRow>& rows) {
  if (rows.size() > kMaxDraws) throw std::length_error("more than 9999 draws");
  std::vector<std::uint8_t> shown(kSlots * kDrawBytes);
  std::vector<std::string> dates(kSlots);
  std::size_t at = kDrawBytes;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    dates[i + 1] = rows[i].date;
    for (const std::string& wheel : rows[i].wheels) {
      // Places count characters: well-formed texts, 14 bytes, have one byte each.
      const std::string counted = wheel.size() > 14 ? asciiText(wheel) : std::string();
      const std::string_view text = counted.empty() ? std::string_view(wheel) : std::string_view(counted);
      for (std::size_t position = 0; position < kPositions; ++position, ++at)
        if (text.size() > position * 3) shown[at] = static_cast<std::uint8_t>(numberOf(text.substr(position * 3, 2)));
    }
  }
  static std::atomic<std::uint64_t> loads = 0;
  const bool same = m_stamp != 0 && m_count == static_cast<int>(rows.size()) && shown == m_shown && dates == m_dates;
  if (!same) {
    m_stamp = ++loads;
    m_digests = digestsOf(shown, dates, rows.size());
  }
  m_shown = std::move(shown);
  m_dates = std::move(dates);
  m_numbers = m_shown;
  for (std::uint8_t& n : m_numbers)
    if (n > 90) n = 0;
  m_repeats = false;
  for (std::size_t wheel = 0; wheel < m_numbers.size(); wheel += kPositions)
    for (std::size_t a = wheel; a < wheel + kPositions && !m_repeats; ++a)
      for (std::size_t b = a + 1; b < wheel + kPositions; ++b)
        if (m_numbers[a] != 0 && m_numbers[a] == m_numbers[b]) m_repeats = true;
  m_count = static_cast<int>(rows.size());
}

void Archive::countProgressives() {
  m_month.assign(kSlots, 0);
  m_year.assign(kSlots, 0);
  std::string_view month, year;
  std::int16_t inMonth = 0, inYear = 0;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(m_count); ++i) {
    const std::string_view date = m_dates[i];
    const std::string_view itsMonth = date.size() >= 5 ? date.substr(3, 2) : std::string_view();
    const std::string_view itsYear = date.size() >= 10 ? date.substr(6, 4) : std::string_view();
    if (i == 1 || itsMonth != month) inMonth = 0;
    if (i == 1 || itsYear != year) inYear = 0;
    month = itsMonth;
    year = itsYear;
    m_month[i] = ++inMonth;
    m_year[i] = ++inYear;
  }
}

void Archive::setModelFrom(int first) {
  if (first < 0 || first > m_count || m_count == 0) throw std::out_of_range("the model archive would be empty");
  m_last = m_count;
  m_model.clear();
  for (int i = first; i <= m_count; ++i) m_model.push_back(i);
}

void Archive::blankModel() {
  m_last = m_count;
  m_model.assign(static_cast<std::size_t>(m_count), 0);
}

void Archive::setWholeModel() {
  for (std::size_t i = 0; i < m_model.size(); ++i) m_model[i] = static_cast<int>(i) + 1;
}

}  // namespace trv5
