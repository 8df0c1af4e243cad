#include "maintenance/mini_list.h"

#include "core/draw_panel.h"

namespace trv5 {
namespace {

DrawPanel leftPanel(MiniList& list) {
  return {list.hs1, list.Label2, list.Label1, list.Label3, list.fG2};
}

DrawPanel rightPanel(MiniList& list) {
  return {list.Hs2, list.Label5, list.Label6, list.Label4, list.fG3};
}

}  // namespace

MiniList::MiniList(Program& program) : MiniList(program.archive, program.shell) {
  keep(program.archiveReloaded.subscribe([this] { SegueArchivio(*this); }));
}

MiniList::MiniList(const Archive& draws, Shell& shell)
    : Form(shell, "Estrazioni_minielenco", "Mini elenco", kHelpContext),
      archive(draws),
      hs1(*this, "hs1", 1, 1),
      Label2(*this, "Label2"),
      Label1(*this, "Label1"),
      Label3(*this, "Label3"),
      fG2(*this, "fG2", kDrawHeading),
      Command81(*this, "Command81", "", "Cancella i segni"),
      Hs2(*this, "Hs2", 1, 1),
      Label5(*this, "Label5"),
      Label6(*this, "Label6"),
      Label4(*this, "Label4"),
      fG3(*this, "fG3", kDrawHeading),
      Command1(*this, "Command1", "", "Cancella i segni"),
      Command56(*this, "Command56", "Ultima estrazione"),
      Command42(*this, "Command42", {0, 1}) {
  Command42[0].setCaption("Ricerca per numero indice");
  Command42[1].setCaption("Cerca estrazione per data");
  hs1.onEvent([this] { MostraEstrazioneSinistra(*this); });
  Hs2.onEvent([this] { MostraEstrazioneDestra(*this); });
  fG2.onCellClick([this](int row, int column) { SegnaNumero(*this, row, column); });
  Command81.onEvent([this] { whitenNumbers(fG2); });
  Command1.onEvent([this] { whitenNumbers(fG3); });
  Command56.onEvent([this] { moveToDraw(hs1, archive, archive.UltimaEstrazione()); });
  Command42[0].onEvent([this] { CercaPerIndice(*this); });
  Command42[1].onEvent([this] { CercaPerData(*this); });
}

void MiniList::load() {
  writeWheelCodes(fG2);
  writeWheelCodes(fG3);
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
  showDraw(list.archive, leftPanel(list));
}

void MostraEstrazioneDestra(MiniList& list) {
  showDraw(list.archive, rightPanel(list));
}

void SegueArchivio(MiniList& list) {
  for (const DrawPanel& panel : {leftPanel(list), rightPanel(list)}) {
    const std::string before = panel.date.text();
    writeDraw(list.archive, panel);
    if (panel.date.text() != before) whitenNumbers(panel.numbers);
  }
}

void MostraElementi(MiniList& list, const MarkedDraw& first, const std::optional<MarkedDraw>& second) {
  const auto mark = [](const MarkedDraw& element, Grid& numbers) {
    for (int p = 1; p <= kPositions; ++p)
      if (element.positions[static_cast<std::size_t>(p)]) numbers.setBack(element.wheel + 1, p, Verde);
  };
  moveToDraw(list.hs1, list.archive, first.draw);
  whitenNumbers(list.fG2);  // a scroll bar that stands there already whitens nothing
  whitenNumbers(list.fG3);
  mark(first, list.fG2);
  if (!second) return;
  moveToDraw(list.Hs2, list.archive, second->draw);
  whitenNumbers(list.fG3);
  mark(*second, list.fG3);
}

void SegnaNumero(MiniList& list, int row, int column) {
  if (row < 1 || column < 1) return;
  list.fG2.setBack(row, column, list.fG2.back(row, column) == Verde ? kWhite : Verde);
}

void CercaPerIndice(MiniList& list) {
  if (const auto draw = askDrawByIndex(list.shell(), list.archive)) moveToDraw(list.hs1, list.archive, *draw);
}

void CercaPerData(MiniList& list) {
  if (const auto place = askDrawByDate(list.shell(), list.archive)) moveToDraw(list.hs1, list.archive, *place);
}

}  // namespace trv5
