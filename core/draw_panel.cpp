#include "core/draw_panel.h"

#include <algorithm>
#include <string>

#include "core/text.h"

namespace trv5 {

void writeWheelCodes(Grid& numbers) {
  numbers.setRows(kWheels + 1);
  for (int wheel = 0; wheel < kWheels; ++wheel)
    numbers.setText(wheel + 1, 0, CodiciRuote[static_cast<std::size_t>(wheel)]);
}

void whitenNumbers(Grid& numbers) {
  const Grid::Batch batch(numbers);
  for (int row = 1; row < numbers.rows(); ++row)
    for (int column = 1; column < numbers.columns(); ++column) numbers.setBack(row, column, kWhite);
}

void moveToDraw(Scroll& scroller, const Archive& archive, int draw) {
  if (scroller.maximum() < archive.UltimaEstrazione()) scroller.setMaximum(archive.UltimaEstrazione());
  scroller.set(draw);
}

void writeDraw(const Archive& archive, const DrawPanel& panel) {
  if (panel.scroller.maximum() != archive.UltimaEstrazione()) panel.scroller.setMaximum(archive.UltimaEstrazione());
  const int draw = std::min(panel.scroller.value(), archive.UltimaEstrazione());  // none in an archive without draws
  panel.index.setText(std::to_string(draw));
  panel.date.setText(archive.DateEstrazioni(draw));
  panel.progressives.setText("PM=" + std::to_string(archive.ProgMese(draw)) +
                             "   PA=" + std::to_string(archive.ProgAnno(draw)));
  const Grid::Batch batch(panel.numbers);
  for (int wheel = 0; wheel < kWheels; ++wheel)
    for (int p = 1; p <= kPositions; ++p) panel.numbers.setNumber(wheel + 1, p, archive.NumeriEstratti(draw, wheel, p));
}

void showDraw(const Archive& archive, const DrawPanel& panel) {
  const Grid::Batch batch(panel.numbers);
  whitenNumbers(panel.numbers);
  writeDraw(archive, panel);
}

std::optional<int> askDrawByIndex(Shell& shell, const Archive& archive) {
  const std::optional<std::string> answer =
      shell.input({.text = "Inserire il n° indice dell'archivio modello.", .title = "Scelta estrazione"});
  const int draw = answer ? numberOf(*answer) : 0;
  return draw >= 1 && draw <= archive.UltimaEstrazione() ? std::optional(draw) : std::nullopt;
}

std::optional<int> askDrawByDate(Shell& shell, const Archive& archive) {
  const std::optional<std::string> date =
      shell.input({.text = "Data ?", .title = "Ricerca per data GG/MM/AAAA", .placeholder = "GG/MM/AAAA"});
  if (!date || date->empty()) return std::nullopt;
  const int entries = std::min(archive.UltimaEstrazione(), archive.NumModello());
  for (int i = 1; i <= entries; ++i)
    if (archive.DateEstrazioni(archive.IndiciModello(i)) == *date) return i;
  shell.message({.text = "Data non trovata", .title = "Cerca data"});
  return std::nullopt;
}

}  // namespace trv5
