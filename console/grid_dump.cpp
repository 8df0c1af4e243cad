#include "console/grid_dump.h"

#include <fmt/format.h>

#include <iterator>
#include <nlohmann/json.hpp>

namespace trv5 {
namespace {

void appendText(std::string& out, const std::string& text) {
  for (const unsigned char c : text) {
    if (c < 0x20 || c > 0x7E || c == '"' || c == '\\') {
      out += nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
      return;
    }
  }
  out += '"';
  out += text;
  out += '"';
}

// One field that lists something; `each` calls its argument before every entry, which puts the comma.
template <class Each>
void appendList(std::string& out, const char* name, Each each) {
  fmt::format_to(std::back_inserter(out), ",\"{}\":[", name);
  bool first = true;
  each([&] {
    if (!first) out += ',';
    first = false;
  });
  out += ']';
}

template <class Wanted>
void appendColours(std::string& out, const char* name, const Grid& grid, Wanted wanted) {
  appendList(out, name, [&](auto separate) {
    for (int row = 0; row < grid.rows(); ++row)
      for (int column = 0; column < grid.columns(); ++column)
        if (const auto colour = wanted(grid.at(row, column))) {
          separate();
          fmt::format_to(std::back_inserter(out), "[{},{},\"{:06X}\"]", row, column, *colour);
        }
  });
}

void appendIndices(std::string& out, const char* name, const std::set<int>& indices) {
  appendList(out, name, [&](auto separate) {
    for (const int index : indices) {
      separate();
      fmt::format_to(std::back_inserter(out), "{}", index);
    }
  });
}

}  // namespace

std::string dumpFields(const Grid& grid) {
  std::string out = "\"rows\":[";
  for (int row = 0; row < grid.rows(); ++row) {
    out += row > 0 ? ",[" : "[";
    for (int column = 0; column < grid.columns(); ++column) {
      if (column > 0) out += ',';
      appendText(out, grid.text(row, column));
    }
    out += ']';
  }
  out += ']';
  using Colour = std::optional<Rgb>;
  appendColours(out, "back", grid, [](const Cell& cell) { return cell.back == kWhite ? Colour() : cell.back; });
  appendColours(out, "fore", grid, [](const Cell& cell) { return cell.fore == kBlack ? Colour() : cell.fore; });
  appendList(out, "bold", [&](auto separate) {
    for (int row = 0; row < grid.rows(); ++row)
      for (int column = 0; column < grid.columns(); ++column)
        if (grid.at(row, column).bold) {
          separate();
          fmt::format_to(std::back_inserter(out), "[{},{}]", row, column);
        }
  });
  appendList(out, "bars", [&](auto separate) {
    for (const auto& [place, bar] : grid.bars()) {
      separate();
      fmt::format_to(std::back_inserter(out), "[{},{},{},\"{:06X}\"]", place.first, place.second, bar.percent,
                     bar.colour);
    }
  });
  appendIndices(out, "hidden_rows", grid.hiddenRows());
  appendIndices(out, "hidden_cols", grid.hiddenColumns());
  fmt::format_to(std::back_inserter(out), ",\"current\":{}", grid.current());
  return out;
}

}  // namespace trv5
