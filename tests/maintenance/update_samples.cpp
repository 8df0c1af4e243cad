#include "maintenance/update_samples.h"

#include <algorithm>

#include "core/dates.h"
#include "support/archive_builder.h"

namespace trv5 {
namespace {

// The lines of the text, each a list of characters.
std::vector<std::vector<std::string>> linesOf(const std::string& text) {
  std::vector<std::vector<std::string>> lines(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') {
      lines.emplace_back();
    } else if ((static_cast<unsigned char>(text[i]) & 0xC0) == 0x80 && !lines.back().empty()) {
      lines.back().back() += text[i];
    } else {
      lines.back().push_back(std::string(1, text[i]));
    }
  }
  if (lines.back().empty()) lines.pop_back();
  for (auto& line : lines)
    if (!line.empty() && line.back() == "\r") line.pop_back();
  return lines;
}

// A line about a draw of the archive, or about one that it lacks.
std::string randomLine(std::mt19937& rng, const std::vector<DrawRow>& stored, bool nonsense) {
  DrawRow row = stored[rng() % stored.size()];
  const auto kind = rng() % 10;
  if (kind < 2)
    for (std::string& wheel : row.wheels)
      if (wheel.empty()) wheel = "00-00-00-00-00";
  if (kind == 2 || kind == 3) row.date[0] = row.date[0] == '2' ? '1' : '2';
  if (kind == 4) row.wheels[rng() % 11] = wheelText(randomWheel(rng));
  if (kind == 5) row.wheels[rng() % 11][0] = ' ';
  if (nonsense && rng() % 4 == 0) row.date = rng() % 2 == 0 ? "31/02/2020" : "data errat";
  std::string line = updateLine(row);
  if (kind == 6) line.resize(1 + rng() % (line.size() - 1));
  if (kind == 7) line += "  e altro ancora";
  if (kind == 8) line = std::string(rng() % 20, ' ');
  return line;
}

std::string utf16(const std::string& ascii) {
  std::string bytes = "\xFF\xFE";
  for (const char c : ascii) bytes += std::string{c, '\0'};
  return bytes;
}

}  // namespace

std::string randomUpdateBytes(std::mt19937& rng, const std::vector<DrawRow>& stored) {
  const bool nonsense = rng() % 8 == 0;
  const std::string end = rng() % 2 == 0 ? "\n" : "\r\n";
  std::string text;
  for (auto lines = rng() % 12; lines > 0; --lines) {
    text += randomLine(rng, stored, nonsense);
    if (lines > 1 || rng() % 2 == 0) text += rng() % 8 == 0 ? "\n" : end;
  }
  switch (rng() % 8) {
    case 0:
      return "\xEF\xBB\xBF" + text;
    case 1:
      return utf16(text);
    case 2:
      if (!text.empty()) text[rng() % text.size()] = '\xE8';
      return text;
    default:
      return text;
  }
}

std::string updateLine(const DrawRow& row) {
  std::string line = row.date;
  for (const std::string& wheel : row.wheels) line += " " + wheel;
  return line + " pr";
}

bool sameDraws(const std::vector<DrawRow>& a, const std::vector<DrawRow>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const DrawRow& x, const DrawRow& y) { return x.date == y.date && x.wheels == y.wheels; });
}

std::vector<DrawRow> plainUpdateRows(const std::string& text) {
  std::vector<DrawRow> rows;
  for (const auto& line : linesOf(text)) {
    bool blank = true;
    DrawRow row;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (line[i] != " " && line[i] != "\t") blank = false;
      if (i < 10) row.date += line[i];
      if (i < 11 || i > 174) continue;
      const std::size_t wheel = (i - 11) / 15, place = (i - 11) % 15;
      if (place < 14) row.wheels[wheel] += line[i];
    }
    if (!blank) rows.push_back(row);
  }
  return rows;
}

UpdateCheck plainUpdateCheck(const std::vector<DrawRow>& rows, const std::vector<DrawRow>& archive) {
  UpdateCheck check;
  check.marks.resize(rows.size());
  int errors = 0;
  for (std::size_t i = rows.size(); i-- > 0;) {
    if (!dayOfText(rows[i].date)) {
      check.stoppedAt = i;
      return check;
    }
    const DrawRow* found = nullptr;
    for (const DrawRow& draw : archive)
      if (draw.date == rows[i].date) found = &draw;
    if (found == nullptr) {
      check.marks[i].missing = true;
      check.lines.push_back("Manca estrazione del: " + rows[i].date);
      continue;
    }
    int count = 0;
    for (std::size_t wheel = 0; wheel < 11; ++wheel) {
      if (found->wheels[wheel].empty() || found->wheels[wheel] != rows[i].wheels[wheel]) continue;
      check.marks[i].agrees[wheel] = true;
      ++count;
    }
    if (count == 11) continue;
    check.marks[i].wrong = true;
    check.lines.push_back("Errori Estrazione del " + rows[i].date);
    ++errors;
  }
  if (errors == 0 && !rows.empty()) check.lines.emplace_back("Nessuna anomalia rilevata");
  return check;
}

}  // namespace trv5
