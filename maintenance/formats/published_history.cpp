#include "maintenance/formats/published_history.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace trv5 {
namespace {

// Codes of the publisher by wheel index; Roma and the national wheel differ from the program's own.
constexpr std::array<std::string_view, kWheels> kCodes = {"BA", "CA", "FI", "GE", "MI", "NA",
                                                          "PA", "RM", "TO", "VE", "RN"};
constexpr std::size_t kFields = 2 + kPositions;
using Numbers = std::array<std::uint8_t, kPositions>;

// A piece of the file in a message: short, and nothing in it that a terminal would take for an order.
std::string quoted(std::string_view piece) {
  constexpr std::size_t kLongest = 20;
  std::string text = "\"";
  for (const char c : piece.substr(0, kLongest)) text += c >= ' ' && c <= '~' ? c : '?';
  return text + (piece.size() > kLongest ? "...\"" : "\"");
}

// `text` as a number of `shortest` to `longest` digits and nothing else.
std::optional<int> digits(std::string_view text, std::size_t shortest, std::size_t longest) {
  if (text.size() < shortest || text.size() > longest) return {};
  int value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return {};
    value = value * 10 + (c - '0');
  }
  return value;
}

std::optional<Day> dayOfField(std::string_view text) {
  if (text.size() != 10 || text[4] != '/' || text[7] != '/') return {};
  const auto year = digits(text.substr(0, 4), 4, 4);
  const auto month = digits(text.substr(5, 2), 2, 2);
  const auto day = digits(text.substr(8, 2), 2, 2);
  if (!year || !month || !day || *year == 0) return {};
  return dayOf(*year, *month, *day);
}

class Reader {
 public:
  void line(std::string_view text) {
    ++m_line;
    if (text.find_first_not_of(" \t") == std::string_view::npos) return;
    std::string reason = read(text);
    if (!reason.empty() && ++m_history.faultCount <= kMostFaults)
      m_history.faults.push_back({m_line, std::move(reason)});
  }

  PublishedHistory finish() {
    std::sort(m_history.draws.begin(), m_history.draws.end(),
              [](const Draw& a, const Draw& b) { return a.day < b.day; });
    return std::move(m_history);
  }

 private:
  // Why the line can't be taken; empty when it could.
  std::string read(std::string_view text) {
    std::array<std::string_view, kFields> fields;
    const std::size_t count = splitInto(fields, text);
    if (count != kFields) return fmt::format("i campi sono {} invece di {}", count, kFields);

    const auto day = dayOfField(fields[0]);
    if (!day) return fmt::format("{} non è una data nella forma AAAA/MM/GG", quoted(fields[0]));
    const auto code = std::find(kCodes.begin(), kCodes.end(), fields[1]);
    if (code == kCodes.end()) return fmt::format("la ruota {} non esiste", quoted(fields[1]));

    Numbers numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const auto number = digits(fields[2 + i], 1, 2);
      if (!number || *number < 1 || *number > 90)
        return fmt::format("{} non è un numero da 1 a 90", quoted(fields[2 + i]));
      if (std::find(numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(i), *number) !=
          numbers.begin() + static_cast<std::ptrdiff_t>(i))
        return fmt::format("il numero {} è ripetuto", *number);
      numbers[i] = static_cast<std::uint8_t>(*number);
    }
    return store(*day, static_cast<std::size_t>(code - kCodes.begin()), numbers);
  }

  // Splits at the tabs; gives the number of fields that there are, of which only the first kFields are kept.
  static std::size_t splitInto(std::array<std::string_view, kFields>& fields, std::string_view text) {
    std::size_t count = 0;
    for (;;) {
      const std::size_t tab = text.find('\t');
      if (count < kFields) fields[count] = text.substr(0, tab);
      ++count;
      if (tab == std::string_view::npos) return count;
      text.remove_prefix(tab + 1);
    }
  }

  std::string store(Day day, std::size_t wheel, const Numbers& numbers) {
    if (m_current >= m_history.draws.size() || m_history.draws[m_current].day != day) {
      const auto [found, isNew] = m_drawOfDay.try_emplace(day.time_since_epoch().count(), m_history.draws.size());
      m_current = found->second;
      if (isNew) {
        m_history.draws.push_back({day, {}});
        m_firstLine.emplace_back();
      }
    }
    Numbers& held = m_history.draws[m_current].numbers[wheel];
    int& firstLine = m_firstLine[m_current][wheel];
    if (firstLine == 0) {
      held = numbers;
      firstLine = m_line;
    } else if (held != numbers) {
      return fmt::format("la ruota {} ha altri numeri alla riga {}, per la stessa data", kCodes[wheel], firstLine);
    }
    return {};
  }

  PublishedHistory m_history;
  std::vector<std::array<int, kWheels>> m_firstLine;     // of each draw and wheel, 0 = none yet
  std::unordered_map<int, std::size_t> m_drawOfDay;      // place in draws, by days since 1970
  std::size_t m_current = static_cast<std::size_t>(-1);  // the draw of the line before: most lines follow in order
  int m_line = 0;
};

}  // namespace

PublishedHistory readPublishedHistory(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
  Reader reader;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    reader.line(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return reader.finish();
}

}  // namespace trv5
