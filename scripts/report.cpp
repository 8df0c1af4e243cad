// Prints a run of trv5-console as a person reads it. Arguments: the script of lines that the console was given, the
// file of its answers. Lines of the script that begin with "#> " are printed as they stand, a table is printed for each
// dump, at most as many rows as the last "#rows N" before it says. Ends with 1 when a line failed or has no answer.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using nlohmann::json;
using CellPosition = std::pair<int, int>;

constexpr int kBarCharacters = 20;  // of a bar of 100 %

// Characters, not bytes: a continuation byte of UTF-8 takes no room.
std::size_t width(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string centred(const std::string& text, std::size_t room) {
  const std::size_t left = (room - width(text)) / 2;
  return std::string(left, ' ') + text + std::string(room - width(text) - left, ' ');
}

// Green cells, the covered cases and the numbers that came out, stand in brackets.
std::set<CellPosition> greenCells(const json& answer) {
  std::set<CellPosition> green;
  for (const json& cell : answer.value("back", json::array())) {
    if (cell.at(2) == "00FF00") green.emplace(cell.at(0), cell.at(1));
  }
  return green;
}

void printTable(const json& answer, int mostRows) {
  const auto rows = answer.at("rows").get<std::vector<std::vector<std::string>>>();
  const auto hiddenRows = answer.value("hidden_rows", std::set<int>());
  const auto hiddenColumns = answer.value("hidden_cols", std::set<int>());
  const std::set<CellPosition> green = greenCells(answer);
  std::vector<std::vector<std::string>> shown;
  int left = 0;
  for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
    if (hiddenRows.contains(r)) continue;
    if (static_cast<int>(shown.size()) > mostRows) {
      ++left;
      continue;
    }
    const auto& cells = rows[static_cast<std::size_t>(r)];
    std::vector<std::string>& line = shown.emplace_back();
    for (int c = 0; c < static_cast<int>(cells.size()); ++c) {
      if (hiddenColumns.contains(c)) continue;
      const std::string text = trimmed(cells[static_cast<std::size_t>(c)]);
      line.push_back(green.contains({r, c}) && !text.empty() ? '[' + text + ']' : text);
    }
  }
  for (const json& bar : answer.value("bars", json::array())) {
    const double percent = bar.at(2);
    const auto row = bar.at(0).get<std::size_t>();
    const auto filled = static_cast<std::size_t>(std::clamp(percent, 0.0, 100.0) * kBarCharacters / 100.0 + 0.5);
    if (row < shown.size()) shown[row].push_back(std::string(filled, '#') + std::string(kBarCharacters - filled, '.'));
  }

  std::vector<std::size_t> room;
  for (const auto& line : shown) {
    if (line.size() > room.size()) room.resize(line.size(), 0);
    for (std::size_t c = 0; c < line.size(); ++c) room[c] = std::max(room[c], width(line[c]));
  }
  for (const auto& line : shown) {
    std::string out = " ";
    for (std::size_t c = 0; c < line.size(); ++c) {
      if (room[c] > 0) out += ' ' + centred(line[c], room[c]);
    }
    out.erase(out.find_last_not_of(' ') + 1);
    std::cout << out << '\n';
  }
  if (left > 0) std::cout << "  .. e altre " << left << " righe\n";
}

void print(const json& line, const json& answer, int mostRows) {
  const std::string verb = line.at(0);
  if (verb == "dump") {
    printTable(answer, mostRows);
  } else if (verb == "get") {
    for (const char* const field : {"title", "text"}) {
      if (answer.contains(field)) std::cout << "  " << answer.at(field).get<std::string>() << '\n';
    }
  } else if (verb == "messages") {
    for (const json& box : answer.at("messages")) {
      std::cout << "  [" << box.at("title").get<std::string>() << "] " << box.at("text").get<std::string>() << '\n';
    }
  }
}

int report(const char* scriptPath, const char* answersPath) {
  std::ifstream script(scriptPath), answers(answersPath);
  if (!script || !answers) {
    std::cerr << "trv5-report: non si leggono " << scriptPath << " e " << answersPath << '\n';
    return EXIT_FAILURE;
  }
  int mostRows = 20, failed = 0;
  std::string line, answer;
  while (std::getline(script, line)) {
    if (line.starts_with("#> ") || line == "#>") {
      std::cout << (line.size() > 3 ? line.substr(3) : "") << '\n';
    } else if (line.starts_with("#rows ")) {
      mostRows = std::stoi(line.substr(6));
    }
    if (line.empty() || line.front() == '#') continue;
    if (!std::getline(answers, answer)) {
      std::cerr << "Nessuna risposta a " << line << '\n';
      return EXIT_FAILURE;
    }
    const json parsed = json::parse(answer);
    if (!parsed.at("ok").get<bool>()) {
      std::cerr << line << ": " << parsed.value("error", "") << '\n';
      ++failed;
      continue;
    }
    print(json::parse(line), parsed, mostRows);
  }
  return failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "Uso: trv5-report COPIONE RISPOSTE\n";
    return EXIT_FAILURE;
  }
  try {
    return report(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::cerr << "trv5-report: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
