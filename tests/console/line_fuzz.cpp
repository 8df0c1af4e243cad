#include "console/line_fuzz.h"

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>

#include "support/mutation.h"

namespace trv5 {
namespace {

using nlohmann::json;

// Beside the method that the demonstration plays: the other screens, and the lines that it has no use for.
constexpr const char* kMoreLines = R"(["controls", "Sommativi1"]
["memory"]
["set", "Sommativi1", "Txt_Denominazione", "Metodo"]
["set", "Sommativi1", "SSTab3", 9]
["click", "Sommativi1", "Command4"]
["click", "Sommativi1", "Cmd_Elenco"]
["cell", "Sommativi1", "FgPir1", 1, 1, "dblclick"]
["answer", "yes"]
["click", "Sommativi1", "Command54"]
["click", "Sommativi1", "Cmd_Annulla"]
["key", "Sommativi1", "TxtNumeri", "Ctrl+z"]
["key", "Sommativi1", "FgNu", "Down"]
["key", "Sommativi1", "Command44", "Enter"]
["dblclick", "Sommativi1", "TxtNumeri"]
["list", "Sommativi1", "ComboPar"]
["edit", "Sommativi1", "Fg11", 1, 1, "1"]
["focus"]
["screens"]
["answer", "text", "41"]
["click", "Sommativi1", "Command42_0"]
["answer", "file", "stampa.pdf"]
["click", "Sommativi1", "Stampa_FgZ1"]
["shot", "Sommativi1", "foto.png", {"width": 640, "height": 480}]
["click", "Container", "Command1"]
["set", "archivio", "MonthView1", "22/08/2026"]
["clipboard", "05-17-33-64-90 01-02-03-04-05"]
["click", "archivio", "Command12"]
["set", "archivio", "txtin_3", "90"]
["click", "archivio", "Command8"]
["set", "archivio", "SSTab1", 1]
["cell", "archivio", "FgDB", 3, 1, "click"]
["dump", "archivio", "FgDB"]
["set", "archivio", "HScrestrazione", 3]
["click", "Container", "Command2"]
["answer", "file", "scambio.mdb"]
["click", "ImportExport", "Cmd_CreaVuoto"]
["click", "Container", "Command5"]
["set", "Estrazioni_minielenco", "hs1", 5]
["click", "Container", "Command6"]
["cell", "SistemiOrtogonali", "Fg99x", 1, 1, "click"]
["click", "Container", "Command7"]
["cell", "DiDiSO", "Fg5", 90, 2, "click"]
["click", "Container", "Command3"]
["click", "Container", "Command33"]
["get", "Help", "pagina"]
["get", "Sommativi1", ""]
["get", "archivio", "LBLAGGIORNATO"]
["clock", "22/08/2026 10:42:07"]
["messages"]
["start", "."]
["click", "INIZIO", "Command2"]
["click", "Container", "Command4"]
["quit"]
)";

void addLines(std::istream& text, std::vector<std::string>& lines) {
  for (std::string line; std::getline(text, line);) {
    if (line.empty() || line.front() != '[') continue;
    // Pictures take long, and a name with a folder may become one at the root.
    if (line.find("immagini/") == std::string::npos) lines.push_back(line);
  }
}

std::string invalidText(std::mt19937& rng) {
  const char* const texts[] = {"\xC3",
                               "\xED\xA0\x80",
                               "\xF4\x90\x80\x80",
                               "\xFF\xFE",
                               "a\xE8"
                               "b",
                               "\xC0\xAF"};
  return std::string("[\"set\",\"Sommativi1\",\"TxtNumeri\",\"") + texts[rng() % std::size(texts)] + "\"]";
}

std::string longLine(std::mt19937& rng) {
  const std::size_t length = std::size_t{1} << (10 + rng() % 11);
  const char* const controls[] = {"TxtNumeri", "Txt_Denominazione", "ComboNC", "Combo1R_1N", "manca"};
  if (rng() % 4 == 0) return std::string(length, static_cast<char>('[' + rng() % 3));
  return json::array({"set", "Sommativi1", controls[rng() % std::size(controls)], std::string(length, '7')}).dump();
}

std::string nested(std::mt19937& rng) {
  const std::size_t depth = std::size_t{1} << (4 + rng() % 14);
  const char* const open = rng() % 2 == 0 ? "[" : "{\"a\":";
  const char close = *open == '[' ? ']' : '}';
  std::string line = "[\"set\",\"Sommativi1\",\"ComboNC\",";
  for (std::size_t i = 0; i < depth; ++i) line += open;
  line += "1";
  return line + std::string(rng() % 3 == 0 ? depth / 2 : depth, close) + "]";
}

json oddValue(std::mt19937& rng) {
  static const json values[] = {nullptr,
                                true,
                                false,
                                0,
                                -1,
                                1,
                                2147483647,
                                2147483648,
                                -2147483649,
                                4294967297,
                                18446744073709551615U,
                                1e300,
                                -0.0,
                                0.5,
                                "",
                                " ",
                                "manca",
                                "Sommativi1",
                                "FgEv",
                                "ComboNC",
                                "click",
                                "dblclick",
                                "yes",
                                "Ctrl+",
                                "F99",
                                json::array(),
                                json::object(),
                                json::array({1, "a"}),
                                json{{"width", -5}},
                                json{{"scale", 3}},
                                json{{"points", 1e9}},
                                json{{"points", -3}},
                                json{{"width", 70000}},
                                "31/02/2026",
                                "99/99/9999 99:99:99"};
  return values[rng() % std::size(values)];
}

std::string wrongArguments(const std::vector<std::string>& lines, const std::string& line, std::mt19937& rng) {
  json parsed = json::parse(line);
  for (auto changes = 1 + rng() % 3; changes > 0; --changes) {
    const std::size_t at = rng() % (parsed.size() + 1);
    const json other = json::parse(lines[rng() % lines.size()]);
    if (at == parsed.size())
      parsed.push_back(oddValue(rng));
    else if (const auto kind = rng() % 4; kind == 0)
      parsed.erase(at);
    else if (kind == 1 && at < other.size())
      parsed[at] = other[at];
    else
      parsed[at] = oddValue(rng);
  }
  return parsed.dump();
}

// Texts that lead out of the folder: "shot", "start" and "answer" would write there.
bool leavesTheFolder(const std::string& line) {
  return line.find("\"/") != std::string::npos || line.find("..") != std::string::npos ||
         line.find("\"~") != std::string::npos || line.find("\\") != std::string::npos;
}

}  // namespace

const std::vector<std::string>& walkedLines() {
  static const std::vector<std::string> lines = [] {
    std::vector<std::string> all;
    std::ifstream method(TRV5_METHOD);
    addLines(method, all);
    std::istringstream more(kMoreLines);
    addLines(more, all);
    return all;
  }();
  return lines;
}

std::string wrongLine(const std::vector<std::string>& lines, const std::string& line, std::mt19937& rng) {
  for (;;) {
    const auto kind = rng() % 100;
    std::string wrong;
    if (kind < 2)
      wrong = nested(rng);
    else if (kind < 4)
      wrong = longLine(rng);
    else if (kind < 6)
      wrong = invalidText(rng);
    else if (kind < 55)
      wrong = wrongArguments(lines, line, rng);
    else
      wrong = mutated({line, line, lines[rng() % lines.size()]}, rng);
    if (!leavesTheFolder(wrong)) return wrong;
  }
}

}  // namespace trv5
