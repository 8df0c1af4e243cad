#include "core/draw_sums.h"

#include <algorithm>
#include <unordered_map>

#include "core/archive_load.h"
#include "core/database.h"
#include "core/dates.h"
#include "core/draw_writer.h"

namespace trv5 {
namespace {

constexpr std::string_view kTable = "VerificaEstrazioni";

void mix(std::uint64_t& sum, std::uint8_t byte) {
  constexpr std::uint64_t kPrime = 0x100000001B3U;
  sum = (sum ^ byte) * kPrime;
}

// With its length ahead, so that nothing passes from one wheel to the next unseen.
void mix(std::uint64_t& sum, std::string_view text) {
  for (std::size_t length = text.size(), i = 0; i < 4; ++i, length >>= 8) mix(sum, static_cast<std::uint8_t>(length));
  for (const char c : text) mix(sum, static_cast<std::uint8_t>(c));
}

// Sorts as the date does.
std::string orderOf(const DrawDifference& difference) {
  const std::optional<Day> day = dayOfText(difference.now.date);
  return day ? isoText(*day) : difference.now.date;
}

bool isRegular(std::string_view wheel) {
  if (wheel.size() != 14) return false;
  std::array<bool, 91> seen{};
  for (std::size_t at = 0; at < wheel.size(); at += 3) {
    const char tens = wheel[at], units = wheel[at + 1];
    if (tens < '0' || tens > '9' || units < '0' || units > '9' || (at > 0 && wheel[at - 1] != '-')) return false;
    const auto number = static_cast<std::size_t>((tens - '0') * 10 + units - '0');
    if (number < 1 || number > 90 || seen[number]) return false;
    seen[number] = true;
  }
  return true;
}

}  // namespace

std::int64_t sumOfDraw(const DrawRow& row) {
  std::uint64_t sum = 0xCBF29CE484222325U;
  mix(sum, row.date);
  for (const std::string& wheel : row.wheels) mix(sum, wheel);
  return static_cast<std::int64_t>(sum);
}

std::optional<std::int64_t> keptSumOf(const Database& archive, std::string_view date) {
  const std::optional<Day> day = dayOfText(date);
  if (!day || !archive.hasTable(kTable)) return std::nullopt;
  archive.requireTable(kTable, {"DataEstrazione", "Somma"});
  Statement query = archive.prepare("SELECT Somma FROM VerificaEstrazioni WHERE DataEstrazione = ?");
  if (!query.bind(1, isoText(*day)).step()) return std::nullopt;
  return query.number(0);
}

std::vector<DrawDifference> differencesFromSums(const Database& archive, const std::vector<DrawRow>& rows) {
  using Kind = DrawDifference::Kind;
  std::vector<DrawDifference> differences;
  if (!archive.hasTable(kTable)) return differences;
  archive.requireTable(kTable, {"DataEstrazione", "Somma"});
  std::unordered_map<std::string, std::int64_t> sums;
  sums.reserve(rows.size());
  Statement query = archive.prepare("SELECT DataEstrazione, Somma FROM VerificaEstrazioni");
  while (query.step()) sums.emplace(dateTextOfIso(query.view(0)), query.number(1));
  for (const DrawRow& row : rows) {
    const auto sum = sums.find(row.date);
    if (sum == sums.end()) {
      differences.push_back({Kind::Added, row});
      continue;
    }
    if (sum->second != sumOfDraw(row)) differences.push_back({Kind::Changed, row});
    sums.erase(sum);  // a second row of the same day is one too many
  }
  for (const auto& [date, sum] : sums) differences.push_back({Kind::Missing, {date, {}}});
  std::stable_sort(differences.begin(), differences.end(),
                   [](const auto& a, const auto& b) { return orderOf(a) < orderOf(b); });
  return differences;
}

bool acceptDraws(Database& archive, const std::vector<DrawDifference>& seen) {
  DrawWriter writer(archive);
  if (differencesFromSums(archive, readDraws(archive)) != seen) return false;
  writer.writeAllSums();
  writer.commit();
  return true;
}

IrregularWheels irregularWheels(const std::vector<DrawRow>& rows) {
  IrregularWheels found;
  for (const DrawRow& row : rows)
    for (const std::string& wheel : row.wheels)
      if (!wheel.empty() && !isRegular(wheel) && ++found.count == 1) found.firstDate = row.date;
  return found;
}

}  // namespace trv5
