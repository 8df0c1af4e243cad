#include "maintenance/mini_list.h"

#include <algorithm>
#include <optional>
#include <string>

#include "core/text.h"

namespace trv5 {
namespace {

constexpr std::string_view kHeading = "|1|2|3|4|5";

struct Panel {
  Scroll& scroller;
  Label &index, &date, &progressives;
  GridControl& numbers;
};

void writeCodes(Grid& numbers) {
  numbers.setRows(kWheels + 1);
  for (int wheel = 0; wheel < kWheels; ++wheel)
    numbers.setText(wheel + 1, 0, CodiciRuote[static_cast<std::size_t>(wheel)]);
}

void whiten(Grid& numbers) {
  const Grid::Batch batch(numbers);
  for (int row = 1; row < numbers.rows(); ++row)
    for (int column = 1; column < numbers.columns(); ++column) numbers.setBack(row, column, kWhite);
}

// The archive may have grown since the panel was last moved.
void moveTo(MiniList& list, int draw) {
  if (list.hs1.maximum() < list.archive.UltimaEstrazione()) list.hs1.setMaximum(list.archive.UltimaEstrazione());
  list.hs1.set(draw);
}

void show(const Archive& archive, const Panel& panel) {
  if (panel.scroller.maximum() != archive.UltimaEstrazione()) panel.scroller.setMaximum(archive.UltimaEstrazione());
  const int draw = panel.scroller.value();
  panel.index.setText(std::to_string(draw));
  panel.date.setText(archive.DateEstrazioni(draw));
  panel.progressives.setText("PM=" + std::to_string(archive.ProgMese(draw)) +
                             "   PA=" + std::to_string(archive.ProgAnno(draw)));
  const Grid::Batch batch(panel.numbers);
  whiten(panel.numbers);
  for (int wheel = 0; wheel < kWheels; ++wheel)
    for (int p = 1; p <= kPositions; ++p) panel.numbers.setNumber(wheel + 1, p, archive.NumeriEstratti(draw, wheel, p));
}

}  // namespace

MiniList::MiniList(Program& program) : MiniList(program.archive, program.shell) {}

MiniList::MiniList(const Archive& draws, Shell& shell)
    : Form(shell, "Estrazioni_minielenco", "Mini elenco", kHelpContext),
      archive(draws),
      hs1(*this, "hs1", 1, 1),
      Label2(*this, "Label2"),
      Label1(*this, "Label1"),
      Label3(*this, "Label3"),
      fG2(*this, "fG2", kHeading),
      Command81(*this, "Command81", "", "Cancella i segni"),
      Hs2(*this, "Hs2", 1, 1),
      Label5(*this, "Label5"),
      Label6(*this, "Label6"),
      Label4(*this, "Label4"),
      fG3(*this, "fG3", kHeading),
      Command1(*this, "Command1", "", "Cancella i segni"),
      Command56(*this, "Command56", "Ultima estrazione"),
      Command42(*this, "Command42", {0, 1}) {
  Command42[0].setCaption("Ricerca per numero indice");
  Command42[1].setCaption("Cerca estrazione per data");
  hs1.onEvent([this] { MostraEstrazioneSinistra(*this); });
  Hs2.onEvent([this] { MostraEstrazioneDestra(*this); });
  fG2.onCellClick([this](int row, int column) { SegnaNumero(*this, row, column); });
  Command81.onEvent([this] { whiten(fG2); });
  Command1.onEvent([this] { whiten(fG3); });
  Command56.onEvent([this] { moveTo(*this, archive.UltimaEstrazione()); });
  Command42[0].onEvent([this] { CercaPerIndice(*this); });
  Command42[1].onEvent([this] { CercaPerData(*this); });
}

void MiniList::load() {
  writeCodes(fG2);
  writeCodes(fG3);
  for (int row = 1; row < fG2.rows(); ++row) fG2.setBold(row, 0);
  for (Scroll* const scroller : {&hs1, &Hs2}) {
    scroller->setMaximum(archive.UltimaEstrazione());
    scroller->set(archive.UltimaEstrazione());
  }
  // An archive of one draw moves no scroll bar.
  MostraEstrazioneSinistra(*this);
  MostraEstrazioneDestra(*this);
}

void MostraEstrazioneSinistra(MiniList& list) {
  show(list.archive, {list.hs1, list.Label2, list.Label1, list.Label3, list.fG2});
}

void MostraEstrazioneDestra(MiniList& list) {
  show(list.archive, {list.Hs2, list.Label5, list.Label6, list.Label4, list.fG3});
}

void MostraElementi(MiniList& list, const MarkedDraw& first, const std::optional<MarkedDraw>& second) {
  const auto mark = [](const MarkedDraw& element, Grid& numbers) {
    for (int p = 1; p <= kPositions; ++p)
      if (element.positions[static_cast<std::size_t>(p)]) numbers.setBack(element.wheel + 1, p, Verde);
  };
  // The archive may have grown since the list was last moved.
  for (Scroll* const scroller : {&list.hs1, &list.Hs2})
    if (scroller->maximum() < list.archive.UltimaEstrazione()) scroller->setMaximum(list.archive.UltimaEstrazione());
  list.hs1.set(first.draw);
  whiten(list.fG2);  // a scroll bar that stands there already whitens nothing
  whiten(list.fG3);
  mark(first, list.fG2);
  if (!second) return;
  list.Hs2.set(second->draw);
  whiten(list.fG3);
  mark(*second, list.fG3);
}

void SegnaNumero(MiniList& list, int row, int column) {
  if (row < 1 || column < 1) return;
  list.fG2.setBack(row, column, list.fG2.back(row, column) == Verde ? kWhite : Verde);
}

void CercaPerIndice(MiniList& list) {
  const std::optional<std::string> answer =
      list.shell().input({.text = "Inserire il n° indice dell'archivio modello.", .title = "Scelta estrazione"});
  if (!answer) return;
  const int draw = numberOf(*answer);
  if (draw >= 1 && draw <= list.archive.UltimaEstrazione()) moveTo(list, draw);
}

void CercaPerData(MiniList& list) {
  const std::optional<std::string> date =
      list.shell().input({.text = "Data ?", .title = "Ricerca per data GG/MM/AAAA", .placeholder = "GG/MM/AAAA"});
  if (!date || date->empty()) return;
  const int entries = std::min(list.archive.UltimaEstrazione(), list.archive.NumModello());
  for (int i = 1; i <= entries; ++i) {
    if (list.archive.DateEstrazioni(list.archive.IndiciModello(i)) != *date) continue;
    // The place in the model archive, not the draw that stands there: the same where the model begins at draw 1.
    return moveTo(list, i);
  }
  list.shell().message({.text = "Data non trovata", .title = "Cerca data"});
}

}  // namespace trv5
