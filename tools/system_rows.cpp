#include "tools/system_rows.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <climits>
#include <set>

#include "core/text.h"

namespace trv5 {
namespace {

// How often groups of numbers (pairs, triples) stand together in a row: the rarest and the most frequent group.
struct Range {
  int least = INT_MAX, most = 0;
  void take(int count) {
    least = std::min(least, count);
    most = std::max(most, count);
  }
};

// How often, by the places of the numbers in `used`; `i * size + j` with i < j.
Range pairRange(const SystemRows& places, std::size_t size) {
  std::vector<int> counts(size * size);
  for (const std::vector<int>& row : places)
    for (std::size_t a = 0; a < row.size(); ++a)
      for (std::size_t b = a + 1; b < row.size(); ++b)
        ++counts[static_cast<std::size_t>(row[a]) * size + static_cast<std::size_t>(row[b])];
  Range range;
  for (std::size_t i = 0; i < size; ++i)
    for (std::size_t j = i + 1; j < size; ++j) range.take(counts[i * size + j]);
  return range;
}

Range tripleRange(const SystemRows& places, std::size_t size) {
  std::vector<int> counts(size * size * size);
  const auto at = [size](std::size_t i, std::size_t j, std::size_t k) { return (i * size + j) * size + k; };
  for (const std::vector<int>& row : places)
    for (std::size_t a = 0; a < row.size(); ++a)
      for (std::size_t b = a + 1; b < row.size(); ++b)
        for (std::size_t c = b + 1; c < row.size(); ++c)
          ++counts[at(static_cast<std::size_t>(row[a]), static_cast<std::size_t>(row[b]),
                      static_cast<std::size_t>(row[c]))];
  Range range;
  for (std::size_t i = 0; i < size; ++i)
    for (std::size_t j = i + 1; j < size; ++j)
      for (std::size_t k = j + 1; k < size; ++k) range.take(counts[at(i, j, k)]);
  return range;
}

std::string often(const char* group, const Range& range) {
  const std::string count = range.most == 1 ? "una volta" : fmt::format("{} volte", range.most);
  return fmt::format("{} {} {}", group, range.least == range.most ? "esattamente" : "al massimo", count);
}

// How many rows following each other hold each number once, 0 when the rows don't go in such rounds.
std::size_t roundOf(const SystemRows& places, std::size_t size) {
  const std::size_t width = places.front().size(), rows = size / width;
  if (size % width != 0 || places.size() % rows != 0 || places.size() == rows) return 0;
  for (std::size_t first = 0; first < places.size(); first += rows) {
    std::set<int> seen;
    for (std::size_t row = first; row < first + rows; ++row) seen.insert(places[row].begin(), places[row].end());
    if (seen.size() != size) return 0;
  }
  return rows;
}

std::string count(std::size_t n, const char* one, const char* many) {
  return fmt::format("{} {}", n, n == 1 ? one : many);
}

}  // namespace

std::vector<int> numbersOfMarks(std::string_view marks) {
  const std::string text = asciiText(marks);
  std::vector<int> numbers;
  for (std::size_t k = 0; k < std::min<std::size_t>(text.size(), 90); ++k)
    if (text[k] == 'X') numbers.push_back(static_cast<int>(k) + 1);
  return numbers;
}

std::vector<int> usedNumbers(const SystemRows& rows) {
  std::array<bool, 91> used{};
  for (const std::vector<int>& row : rows)
    for (const int n : row)
      if (n >= 1 && n <= 90) used[static_cast<std::size_t>(n)] = true;
  std::vector<int> numbers;
  for (int n = 1; n <= 90; ++n)
    if (used[static_cast<std::size_t>(n)]) numbers.push_back(n);
  return numbers;
}

std::vector<std::vector<std::optional<int>>> rewritten(const SystemRows& rows, const std::vector<int>& used,
                                                       const std::vector<int>& chosen, int width) {
  std::vector<std::vector<std::optional<int>>> result;
  for (const std::vector<int>& row : rows) {
    auto& cells = result.emplace_back(static_cast<std::size_t>(std::max(0, width)));
    for (std::size_t k = 0; k < std::min(cells.size(), row.size()); ++k) {
      const auto found = std::find(used.begin(), used.end(), row[k]);
      if (found == used.end()) continue;
      const auto place = static_cast<std::size_t>(found - used.begin());
      cells[k] = place < chosen.size() ? chosen[place] : 0;
    }
  }
  return result;
}

std::string promiseOf(const SystemRows& rows) {
  const std::vector<int> used = usedNumbers(rows);
  SystemRows places;  // rows without numbers promise nothing
  for (const std::vector<int>& row : rows) {
    std::vector<int> own;
    for (const int n : row)
      if (const auto found = std::find(used.begin(), used.end(), n); found != used.end())
        own.push_back(static_cast<int>(found - used.begin()));
    if (!own.empty()) places.push_back(std::move(own));
  }
  if (places.empty()) return "";
  const auto [narrow, wide] = std::minmax_element(places.begin(), places.end(),
                                                  [](const auto& a, const auto& b) { return a.size() < b.size(); });
  const bool even = narrow->size() == wide->size();
  std::string text = fmt::format(
      "{}, {}, {} a riga", count(used.size(), "numero", "numeri"), count(places.size(), "riga", "righe"),
      even ? count(wide->size(), "numero", "numeri") : fmt::format("da {} a {} numeri", narrow->size(), wide->size()));
  if (wide->size() < 2) return text + ".";
  const Range pairs = pairRange(places, used.size());
  text += ": ";
  if (pairs.most > 1 && wide->size() > 2)
    if (const Range triples = tripleRange(places, used.size()); triples.most == 1)
      text += often("ogni terna", triples) + ", ";
  text += often("ogni coppia", pairs);
  if (const std::size_t round = even ? roundOf(places, used.size()) : 0; round > 0)
    text += fmt::format("; in giri di {}, ognuno con tutti i numeri", count(round, "riga", "righe"));
  return text + ".";
}

}  // namespace trv5
