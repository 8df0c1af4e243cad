#include "maintenance/update_samples.h"

#include <algorithm>

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

}  // namespace

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

}  // namespace trv5
