#include "cases/selections.h"

#include <algorithm>
#include <array>
#include <string>

#include "cases/case_list.h"
#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/hit_rows.h"
#include "cases/read_selections.h"
#include "core/text.h"

namespace trv5 {
namespace {

std::vector<std::string> numbers(int from, int to) {
  std::vector<std::string> items;
  for (int n = from; n <= to; ++n) items.push_back(std::to_string(n));
  return items;
}

std::vector<std::string> withFirst(std::string first, std::vector<std::string> items) {
  items.insert(items.begin(), std::move(first));
  return items;
}

void fill(Combo& combo, std::vector<std::string> items, int selected) {
  combo.setItems(std::move(items));
  combo.select(selected);
}

void fillLists(Workbench& w) {
  fill(w.ComboFiltro, {"Mensile", "Numeri", "Distanza", "Differenza", "Somma", "Ciclo", "Num Pari"}, 0);
  fill(w.ComboPar, withFirst("U", numbers(1, 31)), -1);
  fill(w.ComboR1, {CodiciRuote.begin(), CodiciRuote.begin() + kWheels}, 0);
  fill(w.ComboNC, numbers(1, 50), 9);
  fill(w.ComboQNu, numbers(1, 5), 0);
  fill(w.ComboColpi, numbers(1, 20), 9);
  fill(w.ComboEle, {"50", "100"}, 0);
  fill(w.ComboRetro, numbers(0, 10), 0);
  fill(w.ComboQNR1, numbers(1, 5), 0);
  fill(w.ComboQNR2, numbers(1, 5), 0);
  fill(w.ComboValF, numbers(0, 9), 0);
  fill(w.ComboSorte, numbers(1, 5), 0);
  fill(w.ComboDelta, numbers(0, 5), 0);
  fill(w.Combo1R_1N, {"", "C91", "CAD", "DEC", "DIAM", "DIDE", "D x U", "FIG", "VERT"}, 0);
  // The empty item stands for the first operator.
  fill(w.ComboOrdine, {"Rarità", "Casi coperti"}, 0);
  fill(w.Combo1R_2N, {"", "N1 + N2", "N1 - N2", "N2 - N1", "N1 X N2", "D1 e U2", "D2 e U1"}, 0);
}

template <class Columns>
void hideColumns(Grid& grid, const Columns& columns) {
  for (const int column : columns) grid.setColumnHidden(column);
}

void hideWorkingColumns(Workbench& w) {
  hideColumns(w.FgF, hiddenRankingColumns());
  for (const TableTraits& table : kTables) {
    hideColumns(w.formulas(table.table), hiddenTableColumns());
    hideColumns(w.hits(table.table), kHiddenHitColumns);
  }
  hideColumns(w.FgZZ, kHiddenHitColumns);
  hideColumns(w.FgZ100, kHiddenHitColumns);
  hideColumns(w.FgEv, kHiddenCaseColumns);
  hideColumns(w.FgSSS, std::array{3, 4});
  hideColumns(w.Fg15, std::array{4, 5});
  hideColumns(w.FgRagg, std::array{2});
}

void paintAll(Grid& grid, Rgb colour) {
  const Grid::Batch batch(grid);
  for (int row = 0; row < grid.rows(); ++row)
    for (int column = 0; column < grid.columns(); ++column) grid.setBack(row, column, colour);
}

void toggle(Grid& grid, int row, int column, Rgb chosen) {
  if (row < 0 || row >= grid.rows() || column < 0 || column >= grid.columns()) return;
  grid.setBack(row, column, grid.back(row, column) == chosen ? kWhite : chosen);
}

void fillSelectionGrids(Workbench& w) {
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    w.FgRG.setText(0, wheel, CodiciRuote[static_cast<std::size_t>(wheel)]);
    w.FgRR.setText(0, wheel, CodiciRuote[static_cast<std::size_t>(wheel)]);
  }
  w.FgRG.setBack(0, 0, Verde);
  for (int n = 1; n <= kMostNumber; ++n) w.FgNu.setText((n - 1) / 10, (n - 1) % 10, twoDigits(n));
}

void fillStatisticsCaptions(Workbench& w) {
  const char* const statistics[] = {"Sez", "N°C", "Cop", "Pos", "Neg", "InG", "1", "2", "3", "4", "5"};
  for (int row = 0; row < 11; ++row) w.Fg_Stat.setText(row, 0, statistics[row]);
  const char* const bars[] = {"Casi Coperti", "Negativi", "In corso"};
  for (int row = 0; row < 3; ++row) w.Fg_Graf.setText(row, 0, bars[row]);
  const int widths[] = {1500, 800, 4000};
  for (int column = 0; column < 3; ++column) w.Fg_Graf.setWidth(column, widths[column]);
}

void captionArrays(Workbench& w) {
  w.Label1[0].setText("Gioco");
  w.Label1[0].setToolTip(
      "Rende bianche le ruote di gioco; restano in gioco quelle di prima fino alla prossima rilevazione o al prossimo "
      "clic su una ruota");
  for (const auto& [position, label] : w.LblPN) {
    label->setText(std::to_string(position));
    label->setBack(kWhite);
  }
  const std::pair<int, const char*> sorti[] = {{1, "1"}, {2, "2"}, {3, "3"}, {6, "L"}};
  for (const auto& [index, caption] : sorti) {
    w.Cmd_LaSorte[index].setCaption(caption);
    w.Cmd_LaSorte[index].setToolTip("Aggiunge previsione");
  }
  const std::pair<int, const char*> filters[] = {{0, "L"}, {1, "1"}, {2, "2"}, {3, "3"}};
  for (const auto& [index, caption] : filters) w.Ch_FF[index].setCaption(caption);
  const char* const delays[] = {"720", "360", "180"};
  for (int i = 0; i < 3; ++i) w.OptionRit[i].setCaption(delays[i]);
  w.OptionRit[0].set(true);
}

// What to press where there is nothing to see yet.
void tellEmptyGrids(Workbench& w) {
  w.Fg11.setEmptyText("Nessuna formula: scegli una riga della ricerca e premi 1");
  w.Fg22.setEmptyText("Nessuna formula: scegli una riga della ricerca e premi 2");
  w.Fg33.setEmptyText("Nessuna formula: scegli una riga della ricerca e premi 3");
  w.Fg00.setEmptyText("Nessuna formula: scegli una riga della ricerca e premi L");
  for (GridControl* hits : {&w.FgZ1, &w.FgZ2, &w.FgZ3, &w.FgZ0})
    hits->setEmptyText("Nessuna verifica: premi Verifica tutte le righe");
  w.FgZZ.setEmptyText("Scegli le sorti e premi RIEPILOGO");
  w.Fg15.setEmptyText("Compare dopo una verifica");
  w.FgGioco.setEmptyText("Fai clic su un caso a sinistra");
  w.FgRagg.setEmptyText("Premi Esegue procedura");
  w.FgConv.setEmptyText("Premi AMBATE, AMBO o TERNO");
  w.FgRit.setEmptyText("Premi RITARDI o PRESENZE");
  w.FgPir1.setEmptyText("Premi ELENCO");
}

void emptyResults(Workbench& w) {
  w.FgIC.setEmptyText("Premi Elenco previsioni in corso");
  for (Grid* grid : {&w.FgF.grid(), &w.Fg11.grid(), &w.Fg22.grid(), &w.Fg33.grid(), &w.Fg00.grid(), &w.FgZ0.grid(),
                     &w.FgZ1.grid(), &w.FgZ2.grid(), &w.FgZ3.grid(), &w.FgZZ.grid(), &w.FgRit.grid(), &w.FgEv.grid(),
                     &w.Fg15.grid(), &w.FgGioco.grid(), &w.FgIC.grid()})
    grid->cutToHeading();
  w.FgEv.setEmptyText("Nessun caso: scegli una situazione e premi RICAVA ELENCO ESTRAZIONI");
  w.FgF.setEmptyText("Nessuna ricerca: prima ricava l'elenco delle estrazioni");
  w.origins.marks = {};
  w.ComboFix.select(0);
  w.Ch_analisi2ruote.set(false);
  w.Label5.setText("");
  w.FgSSS.clearTexts();
  for (int row = 0; row < w.Fg_Stat.rows(); ++row) w.Fg_Stat.setText(row, 1, "");
  for (int row = 0; row < w.Fg_Graf.rows(); ++row) {
    w.Fg_Graf.setText(row, 1, "");
    w.Fg_Graf.setText(row, 2, "");
  }
  w.Fg_Graf.clearBars();
}

void takeMonthly(Workbench& w) {
  w.ComboPar.select(w.archive.ProgMese(w.EstrazioneRiferimento));
}

}  // namespace

void ApreBanco(Workbench& w) {
  captionArrays(w);
  tellEmptyGrids(w);
  fillStatisticsCaptions(w);
  fill(w.ComboFix, withFirst("", numbers(1, kMostNumber)), 0);
  emptyResults(w);
  w.SSTab3.set(0);
  CambiaTabPrevisioni(w);
  w.hooks.extractTriples();
  hideWorkingColumns(w);
  fillLists(w);
  w.Colpi = w.ComboColpi.number();
  w.FgF.setChoices(20, {"", "1", "2", "3", "4", "5"});
  fillSelectionGrids(w);
  RicavaRuoteGioco(w);
  w.hs1.setMaximum(w.archive.UltimaEstrazione());
  w.hs1.set(w.archive.UltimaEstrazione());
  CambiaEstrazioneRiferimento(w);  // an archive of one draw moves no scroll bar
  takeMonthly(w);
  w.hooks.listConfigurations();
  w.history.start();
}

void RicavaRuoteGioco(Workbench& w) {
  w.RuoteGioco = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (w.FgRG.back(0, wheel) == Verde) w.RuoteGioco |= 1U << wheel;
}

void SegueArchivio(Workbench& w) {
  w.hs1.setMaximum(w.archive.UltimaEstrazione());
  CambiaEstrazioneRiferimento(w);
}

void CambiaEstrazioneRiferimento(Workbench& w) {
  if (w.hs1.maximum() != w.archive.UltimaEstrazione()) w.hs1.setMaximum(w.archive.UltimaEstrazione());
  const int draw = std::min(w.hs1.value(), w.archive.UltimaEstrazione());  // none in an archive without draws
  w.EstrazioneRiferimento = draw;
  w.LabelRifE.setText(std::to_string(draw) + " " + w.archive.DateEstrazioni(draw) + "  M-" +
                      std::to_string(w.archive.ProgMese(draw)));
}

void CambiaTabPrevisioni(Workbench& w) {
  constexpr std::pair<int, Table> tableOfTab[] = {
      {0, Table::Ambate}, {1, Table::Ambi}, {2, Table::Terni}, {4, Table::Lunghetta}};
  for (const auto& [code, button] : w.Cmd_LaSorte) button->setBack(Giallo);
  for (const auto& [tab, table] : tableOfTab) {
    if (tab != w.SSTab3.index()) continue;
    for (const auto& [code, button] : w.Cmd_LaSorte) button->setEnabled(code == traitsOf(table).code);
    w.Cmd_LaSorte[traitsOf(table).code].setBack(Verde);
  }
}

void NuovaConfigurazioneReset(Workbench& w) {
  emptyResults(w);
  w.shell().status("Nuova configurazione: elenchi e tabelle vuoti");
}

void RiportaNumeri(Workbench& w) {
  std::string text;
  int k = 0, chosen = 0;
  for (int row = 0; row < w.FgNu.rows(); ++row) {
    for (int column = 0; column < w.FgNu.columns(); ++column) {
      ++k;
      if (w.FgNu.back(row, column) == Ciano) {
        ++chosen;
        if (!text.empty()) text += '-';
        text += w.FgNu.text(row, column);
      }
      w.FgNu.setText(row, column, twoDigits(k));
    }
  }
  w.TxtNumeri.set(text);
  w.ComboFiltro.select(1);
  w.shell().status(chosen > 0 ? "Numeri riportati: " + std::to_string(chosen) : "Nessun numero selezionato");
}

void SelezionaPerProprieta(Workbench& w, const NumberTable& property) {
  paintAll(w.FgNu, kWhite);
  const Grid::Batch batch(w.FgNu);
  int chosen = 0;
  for (int n = 1; n <= kMostNumber; ++n) {
    if (property[static_cast<std::size_t>(n)] != w.ComboValF.index()) continue;
    w.FgNu.setBack((n - 1) / 10, (n - 1) % 10, Ciano);
    ++chosen;
  }
  w.shell().status(chosen > 0 ? "Numeri selezionati: " + std::to_string(chosen)
                              : "Nessun numero ha valore " + w.ComboValF.text());
}

void DeselezionaNumeri(Workbench& w) {
  paintAll(w.FgNu, kWhite);
  w.shell().status("Nessun numero selezionato");
}

void SettaEstrazioneMensile(Workbench& w) {
  takeMonthly(w);
  w.shell().status("Mensile: " + w.ComboPar.text() + ", come l'estrazione di riferimento");
}

void MostraAiuto(Workbench& w) {
  constexpr int kHelpContext = 290;
  w.setHelpContext(kHelpContext);
  w.shell().help(kHelpContext);
}

void connectSelections(Workbench& w) {
  w.hs1.onEvent([&w] { CambiaEstrazioneRiferimento(w); });
  w.LblUltima.onEvent([&w] { VaiUltimaEstrazione(w); });
  w.SSTab3.onEvent([&w] { CambiaTabPrevisioni(w); });
  w.ComboFiltro.onEvent([&w] { MarcaSelezioniLette(w); });
  w.Ch_analisi2ruote.onEvent([&w] { MarcaSelezioniLette(w); });
  w.ComboSorte.onEvent([&w] { w.Sorte = w.ComboSorte.index() + 1; });
  w.FgNu.onCellClick([&w](int row, int column) { toggle(w.FgNu, row, column, Ciano); });
  w.FgRR.onCellClick([&w](int row, int column) { toggle(w.FgRR, row, column, Verde); });
  w.FgRG.onCellClick([&w](int row, int column) {
    toggle(w.FgRG, row, column, Verde);
    RicavaRuoteGioco(w);
  });
  for (const auto& [position, label] : w.LblPN) {
    label->onEvent([&w, &own = *label] {
      own.setBack(own.back() == Verde ? kWhite : Verde);
      for (const auto& [p, l] : w.LblPN) w.PosizioniScelte[static_cast<std::size_t>(p)] = l->back() == Verde;
    });
  }
  w.Label17.onEvent([&w] {
    paintAll(w.FgRG, Verde);
    RicavaRuoteGioco(w);
  });
  w.Label18.onEvent([&w] {
    paintAll(w.FgRG, kWhite);
    RicavaRuoteGioco(w);
  });
  w.Label4.onEvent([&w] { paintAll(w.FgRR, Verde); });
  w.Label19.onEvent([&w] { paintAll(w.FgRR, kWhite); });
  // The wheels of play follow at the next detection only.
  w.Label1[0].onEvent([&w] { paintAll(w.FgRG, kWhite); });
  w.TxtNumeri.onDoubleClick([&w] { w.TxtNumeri.set(""); });
  w.Txt_Denominazione.onDoubleClick([&w] { w.Txt_Denominazione.set(""); });
}

}  // namespace trv5
