#include "support/plain_followup.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <initializer_list>
#include <vector>

#include "core/text.h"

namespace trv5 {
namespace {

constexpr std::string_view kSpeciale =
    "  |Config|Config|Rilev|Data Rilev|S |Colpo|1|2|3|4|5|6|7|8|9|10|Sorte|Colpo|Ruota";

std::vector<std::string> sortedPieces(const std::string& cell) {
  std::vector<std::string> pieces;
  for (std::size_t at = 0; at < cell.size(); at += 3) pieces.push_back(cell.substr(at, 2));
  std::stable_sort(pieces.begin(), pieces.end(),
                   [](const std::string& a, const std::string& b) { return numberOf(a) < numberOf(b); });
  return pieces;
}

void fill(Grid& grid, const std::vector<std::string>& pieces) {
  grid.setRows(1);
  for (const std::string& piece : pieces) grid.setText(grid.appendRow(), 0, piece);
}

}  // namespace

PlainFollowup::PlainFollowup(const Workbench& w)
    : PlainWorkbench(w),
      sorteText(w.ComboSorte.text()),
      delta(w.ComboDelta.index()),
      span(w.OptionRit[0].checked()   ? 720
           : w.OptionRit[1].checked() ? 360
                                      : 180),
      coverage(w.Ch_coperture.checked()),
      ticked{w.Ch_FF[0].checked(), w.Ch_FF[1].checked(), w.Ch_FF[2].checked(), w.Ch_FF[3].checked()},
      FgIC(grids.at("FgIC")),
      FgGioco(grids.at("FgGioco")),
      FgRagg(grids.at("FgRagg")),
      FgConv(grids.at("FgConv")),
      FgRit(grids.at("FgRit")),
      FgPir1(grids.at("FgPir1")),
      speciale(kSpeciale),
      FgS{w.FgS1.grid(), w.FgS2.grid(), w.FgS3.grid(), w.FgS4.grid(), w.FgS5.grid(), w.FgS6.grid()} {
  speciale.setColumnHidden(2);
  speciale.setColumnHidden(6);
}

void PlainFollowup::clickFg15(int row) {
  FgGioco.setRows(1);
  std::array<std::vector<std::string>, 7> s;
  if (row >= 1 && row < Fg15.rows())
    for (int column = 1; column <= 6; ++column)
      s[static_cast<std::size_t>(column)] = sortedPieces(Fg15.text(row, column));
  for (std::size_t i = 0; i < FgS.size(); ++i) fill(FgS[i], s[i + 1]);
  const auto add = [this](const std::string& kind, const std::vector<std::string>& numbers) {
    const int at = FgGioco.appendRow();
    FgGioco.setText(at, 0, kind);
    for (std::size_t i = 0; i < numbers.size() && i < 10; ++i) FgGioco.setText(at, static_cast<int>(i) + 1, numbers[i]);
  };
  for (const auto& a : s[1]) add("1", {a});
  if (!s[2].empty())
    for (const auto& a : s[1])
      for (const auto& b : s[2]) add("2", {a, b});
  if (!s[3].empty())
    for (const auto& a : s[1])
      for (const auto& b : s[2])
        for (const auto& c : s[3]) add("3", {a, b, c});
  if (!s[6].empty()) add("LU", s[6]);
  for (int at = 1; at < FgGioco.rows(); ++at) {
    FgGioco.setBack(at, 0, 0xFFFF00);
    FgGioco.setBold(at, 0);
  }
}

void PlainFollowup::Command35() {
  std::string wheels;
  for (int w = 0; w <= 10; ++w)
    if (FgRG.back(0, w) == 0x00FF00) wheels += (wheels.empty() ? "" : "-") + FgRG.text(0, w);
  FgIC.setRows(1);
  for (int i = 1; i < FgEv.rows(); ++i) {
    if (FgEv.back(i, 1) != 0x00FFFF) continue;
    Fg15.setCurrent(FgEv.number(i, 0));
    clickFg15(Fg15.current());
    for (int k = 1; k < FgGioco.rows(); ++k) {
      const int at = FgIC.appendRow();
      FgIC.setText(at, 13, FgEv.text(i, 2));
      FgIC.setText(at, 14, wheels);
      FgIC.setText(at, 0, FgEv.text(i, 1));
      FgIC.setText(at, 1, FgGioco.text(k, 0) == "LU" ? sorteText + "L" : FgGioco.text(k, 0));
      FgIC.setText(at, 2,
                   std::to_string(state.EstrazioneRiferimento - FgEv.number(i, 1)) + "/" + std::to_string(state.Colpi));
      for (int j = 1; j < FgGioco.columns(); ++j)
        if (!FgGioco.text(k, j).empty()) FgIC.setText(at, j + 2, FgGioco.text(k, j));
    }
  }
  if (FgIC.rows() < 2) return;
  for (int at = 1; at < FgIC.rows(); ++at) {
    for (int column = 3; column <= FgIC.columns() - 2; ++column) FgIC.setFore(at, column, 0xFF0000);
    FgIC.setBack(at, 1, 0xFFFF80);
  }
  FgIC.setMerged({13, 14});
}

void PlainFollowup::setRuoteGioco() {
  state.RuoteGioco = 0;
  for (int w = 0; w <= 10; ++w)
    if (FgRG.back(0, w) == 0x00FF00) state.RuoteGioco |= 1U << w;
}

void PlainFollowup::Command102() {
  if (FgIC.rows() < 2) return;
  setRuoteGioco();
  for (int i = 1; i < FgIC.rows(); ++i) {
    std::array<bool, 100> present{};
    for (int column = 3; column <= 12; ++column)
      if (FgIC.number(i, column) > 0) present[static_cast<std::size_t>(FgIC.number(i, column))] = true;
    const int c = FgIC.number(i, 0), q = numberOf(FgIC.text(i, 1).substr(0, 1));
    for (int d = c + 1; d <= c + state.Colpi && d <= archive.UltimaEstrazione(); ++d)
      for (int w = 0; w <= 10; ++w) {
        if (!holds(state.RuoteGioco, w)) continue;
        int n = 0;
        for (int k = 1; k <= 5; ++k)
          if (const int drawn = archive.number(d, w, k); drawn > 0 && present[static_cast<std::size_t>(drawn)]) ++n;
        if (n >= q) FgIC.setBack(i, 0, 0x00FF00);
      }
  }
  proseguiCasiAperti();
}

void PlainFollowup::filter(const std::string& kind) {
  for (int i = 1; i < FgIC.rows(); ++i) {
    const std::string& text = FgIC.text(i, 1);
    FgIC.setRowHidden(i, kind == "L" ? text.substr(text.size() - 1) != "L" : text != kind);
  }
}

void PlainFollowup::Command62() {
  for (int i = 1; i < FgIC.rows(); ++i) FgIC.setRowHidden(i, true);
  for (int i = 1; i < FgIC.rows(); ++i) {
    const std::string& text = FgIC.text(i, 1);
    for (int q = 1; q <= 3; ++q)
      if (text == std::to_string(q) && ticked[q]) FgIC.setRowHidden(i, false);
    if (text.back() == 'L' && ticked[0]) FgIC.setRowHidden(i, false);
  }
}

void PlainFollowup::Command63() {
  for (int i = 1; i < FgEv.rows(); ++i)
    if (FgEv.back(i, 1) == 0x00FFFF && i < Fg15.rows()) Fg15.setBack(i, 0, 0x00FFFF);
}

void PlainFollowup::gather(int row) {
  for (int i = 1; i < FgIC.rows(); ++i) {
    const int at = FgRagg.appendRow();
    FgRagg.setText(at, 1, FgPir1.text(row, 1));
    FgRagg.setText(at, 2, FgPir1.text(row, 2));
    FgRagg.setText(at, 3, FgIC.text(i, 0));
    FgRagg.setText(at, 4, FgIC.text(i, 13));
    FgRagg.setText(at, 5, FgIC.text(i, 1).size() > 1 ? sorteText : FgIC.text(i, 1));
    FgRagg.setText(at, 6, FgIC.text(i, 2));
    for (int column = 3; column <= 12; ++column) FgRagg.setText(at, column + 4, FgIC.text(i, column));
    for (int w = 0; w <= 10; ++w) {
      FgRagg.setBack(at, 17 + w, FgRG.back(0, w));
      if (FgRG.back(0, w) == 0x00FF00) FgRagg.setText(at, 17 + w, "X");
    }
  }
  for (int at = 1; at < FgRagg.rows(); ++at) {
    FgRagg.setBack(at, 3, 0x80FF80);
    FgRagg.setBack(at, 4, 0x80FF80);
    FgRagg.setBack(at, 6, 0xFFFF80);
    for (int column = 7; column <= 16; ++column) FgRagg.setBold(at, column);
    FgRagg.setBold(at, 5);
    FgRagg.setFore(at, 5, 0xFF0000);
  }
  if (FgRagg.rows() > 1) FgRagg.setMerged({1, 2});
}

void PlainFollowup::Command117() {
  constexpr std::array<Rgb, 6> colours = {0, 0x80FF80, 0xFFFF00, 0xFFC080, 0xC0C0FF, 0xFF80FF};
  speciale.setRows(1);
  for (int i = 1; i < FgRagg.rows(); ++i) {
    std::array<bool, 100> present{};
    for (int column = 7; column <= 16; ++column) present[static_cast<std::size_t>(FgRagg.number(i, column))] = true;
    const int c = FgRagg.number(i, 3), s = FgRagg.number(i, 5);
    for (int d = c + 1; d <= c + state.Colpi && d <= archive.UltimaEstrazione(); ++d)
      for (int k = 17; k <= 27; ++k) {
        if (FgRagg.text(i, k) != "X") continue;
        std::array<bool, 100> drawn{};
        int m = 0;
        for (int p = 1; p <= 5; ++p) {
          const int n = archive.number(d, k - 17, p);
          if (n == 0) continue;
          drawn[static_cast<std::size_t>(n)] = true;
          if (present[static_cast<std::size_t>(n)]) ++m;
        }
        if (m < s) continue;
        FgRagg.setBack(i, k, 0x00FFFF);
        const int at = speciale.appendRow();
        for (int column = 1; column <= 16; ++column) {
          speciale.setText(at, column, FgRagg.text(i, column));
          const int n = column < 7 ? 0 : FgRagg.number(i, column);
          if (n > 0 && drawn[static_cast<std::size_t>(n)])
            speciale.setBack(at, column, colours[static_cast<std::size_t>(m)]);
        }
        speciale.setNumber(at, 17, m);
        speciale.setNumber(at, 18, d - c);
        speciale.setText(at, 19, CodiciRuote[static_cast<std::size_t>(k - 17)]);
      }
  }
  if (speciale.rows() < 2) return;
  for (int at = 1; at < speciale.rows(); ++at) {
    speciale.setBold(at, 17);
    speciale.setBold(at, 19);
    speciale.setBack(at, 18, 0xFFFFC0);
    speciale.setBack(at, 19, 0xFFFFC0);
    speciale.setBack(at, 3, 0xFFE0C0);
    speciale.setBack(at, 4, 0xFFE0C0);
  }
  speciale.setMerged({1, 3, 4});
}

void PlainFollowup::Command114(int sorte) {
  FgConv.setRows(1);
  FgConv.setRows(91);
  for (int n = 1; n <= 90; ++n) FgConv.setNumber(n, 0, n);
  for (int i = 1; i < FgRagg.rows(); ++i) {
    if (FgRagg.number(i, 5) != sorte) continue;
    for (int column = 7; column <= (sorte == 1 ? 7 : 16); ++column) {
      const int n = FgRagg.number(i, column);
      if (n < 1 || n > 90) continue;
      for (int k = 17; k <= 27; ++k)
        if (FgRagg.text(i, k) == "X") FgConv.setNumber(n, k - 16, FgConv.number(n, k - 16) + 1);
    }
  }
  state.SorteConvergenze = sorte;
}

void PlainFollowup::startFgRit() {
  setRuoteGioco();
  for (auto& wheel : table) std::fill(std::begin(wheel), std::end(wheel), 0);
  FgRit.setRows(1);
  FgRit.setRows(91);
  for (int n = 1; n <= 90; ++n) FgRit.setNumber(n, 0, n);
}

void PlainFollowup::writeFgRit() {
  for (int n = 1; n <= 90; ++n)
    for (int w = 0; w <= 10; ++w) FgRit.setNumber(n, w + 1, table[w][n]);
}

void PlainFollowup::closeFgRit() {
  for (int n = 1; n <= 90; ++n) {
    for (int w = 0; w <= 10; ++w)
      if (holds(state.RuoteGioco, w)) FgRit.setBack(n, w + 1, 0xFFFF80);
    FgRit.setBold(n, 0);
  }
}

void PlainFollowup::Command9() {
  startFgRit();
  for (int n = 1; n <= 90; ++n)
    for (int w = 0; w <= 10; ++w) {
      bool found = false;
      for (int d = state.EstrazioneRiferimento; d >= 1 && !found; --d)
        for (int k = 1; k <= 5 && !found; ++k)
          if (archive.number(d, w, k) == n) {
            table[w][n] = state.EstrazioneRiferimento - d;
            found = true;
          }
    }
  writeFgRit();
  closeFgRit();
}

void PlainFollowup::Command88() {
  startFgRit();
  for (int d = std::max(1, state.EstrazioneRiferimento - (span - 1)); d <= state.EstrazioneRiferimento; ++d)
    for (int w = 0; w <= 10; ++w)
      for (int k = 1; k <= 5; ++k) ++table[w][archive.number(d, w, k)];
  writeFgRit();
  closeFgRit();
}

void PlainFollowup::Command76() {
  startFgRit();
  std::vector<std::array<std::array<int, 91>, 11>> cases;
  for (int i = 1; i < FgEv.rows(); ++i) {
    cases.push_back({});
    const int c = FgEv.number(i, 1);
    for (int d = c + 1; d <= c + state.Colpi && d <= state.EstrazioneRiferimento; ++d)
      for (int w = 0; w <= 10; ++w)
        for (int k = 1; k <= 5; ++k) {
          const int n = archive.number(d, w, k);
          ++table[w][n];
          ++cases.back()[static_cast<std::size_t>(w)][static_cast<std::size_t>(n)];
        }
  }
  if (!coverage) {
    writeFgRit();
    return closeFgRit();
  }
  for (int n = 1; n <= 90; ++n) {
    int any = 0;
    std::array<int, 11> count{};
    for (const auto& one : cases) {
      bool found = false;
      for (std::size_t w = 0; w <= 10; ++w) {
        if (one[w][static_cast<std::size_t>(n)] == 0) continue;
        ++count[w];
        found = found || holds(state.RuoteGioco, static_cast<int>(w));
      }
      any += found;
    }
    for (int w = 0; w <= 10; ++w) FgRit.setNumber(n, w + 1, count[static_cast<std::size_t>(w)]);
    FgRit.setNumber(n, 12, any);
    FgRit.setBack(n, 12, 0xFFC080);
    FgRit.setBold(n, 12);
    FgRit.setFore(n, 12, 0x0000FF);
  }
  closeFgRit();
}

void PlainFollowup::Command104() {
  if (FgGioco.rows() < 2) return;
  std::array<bool, 100> flagged{};
  for (int i = 1; i < FgGioco.rows(); ++i)
    for (int column = 1; column < FgGioco.columns(); ++column)
      flagged[static_cast<std::size_t>(FgGioco.number(i, column))] = true;
  for (int n = 1; n < FgRit.rows(); ++n) FgRit.setRowHidden(n, !flagged[static_cast<std::size_t>(n)]);
}

void PlainFollowup::search(int wheels) {
  Command9();
  std::array<int, 12> delay{};
  const auto mark = [&](int n, std::initializer_list<int> columns) {
    int low = 100000, high = -1;
    for (const int c : columns) {
      low = std::min(low, delay[static_cast<std::size_t>(c)]);
      high = std::max(high, delay[static_cast<std::size_t>(c)]);
    }
    if (high - low != delta) return;
    for (const int c : columns) FgRit.setBack(n, c, 0xFFC080);
  };
  for (int n = 1; n <= 90; ++n) {
    for (int c = 1; c <= 11; ++c) delay[static_cast<std::size_t>(c)] = FgRit.number(n, c);
    for (int c1 = 1; c1 <= 12 - wheels; ++c1)
      for (int c2 = c1 + 1; c2 <= 13 - wheels; ++c2) {
        if (wheels == 2) mark(n, {c1, c2});
        for (int c3 = c2 + 1; wheels > 2 && c3 <= 14 - wheels; ++c3) {
          if (wheels == 3) mark(n, {c1, c2, c3});
          for (int c4 = c3 + 1; wheels > 3 && c4 <= 11; ++c4) mark(n, {c1, c2, c3, c4});
        }
      }
  }
}

}  // namespace trv5
