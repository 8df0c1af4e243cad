#include "tools/orthogonal_systems.h"

#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "core/errors.h"
#include "tools/system_rows.h"
#include "tools/system_store.h"

namespace trv5 {
namespace {

// Places for numbers in a row where no system asks for more.
constexpr int kShownPlaces = 12, kRewrittenPlaces = 6;

// A grid that has room for so many numbers in a row, and nothing below its heading.
void emptyRows(Grid& grid, int places) {
  grid.cutToHeading();
  grid.setColumns(places + 1);
}

SystemRows storedRows(const Grid& FGSv1) {
  SystemRows rows;
  for (int row = 1; row < FGSv1.rows(); ++row) rows.push_back(numbersOfMarks(FGSv1.text(row, 3)));
  return rows;
}

std::vector<int> numbersFrom(const Grid& grid, int row, int firstColumn) {
  std::vector<int> numbers;
  for (int column = firstColumn; column < grid.columns() && !grid.text(row, column).empty(); ++column)
    numbers.push_back(grid.number(row, column));
  return numbers;
}

SystemRows shownRows(const Grid& FgSy) {
  SystemRows rows;
  for (int row = 1; row < FgSy.rows(); ++row) rows.push_back(numbersFrom(FgSy, row, 1));
  return rows;
}

std::vector<int> pickedNumbers(const Grid& Fg99x) {
  std::vector<int> numbers;
  for (int row = 0; row < Fg99x.rows(); ++row)
    for (int column = 0; column < Fg99x.columns(); ++column)
      if (Fg99x.back(row, column) == Giallo) numbers.push_back(Fg99x.number(row, column));
  return numbers;
}

// The rows of `FGSv1` into `FgSy`, which has room for 99 of them.
void showRows(const Grid& FGSv1, Grid& FgSy) {
  for (int row = 1; row < FGSv1.rows(); ++row) {
    if (row >= FgSy.rows())
      throw UserError(fmt::format("Il sistema ha più di {} righe.", SistemiOrtogonali::kMostRows));
    FgSy.setText(row, 0, FGSv1.text(row, 1));
    const std::vector<int> numbers = numbersOfMarks(FGSv1.text(row, 3));
    const int width = static_cast<int>(numbers.size());
    if (width >= FgSy.columns()) FgSy.setColumns(width + 1);
    for (int k = 0; k < width; ++k) FgSy.setNumber(row, k + 1, numbers[static_cast<std::size_t>(k)]);
  }
}

void load(SistemiOrtogonali& form, int row) {
  const Grid::Batch batch(form.FgSy);
  emptyRows(form.FgSy, kShownPlaces);
  form.FgSy.setRows(SistemiOrtogonali::kMostRows + 1);
  // One more than there is room for tells that there are too many.
  fillSystemRows(form.database(), form.FgSistemi.text(row, 1), SistemiOrtogonali::kMostRows + 1, form.FGSv1);
  showRows(form.FGSv1, form.FgSy);
  PreparaNumeri(form);
}

void tellRewritten(SistemiOrtogonali& form, int numbers, int picked) {
  const int rows = form.fG88.dataRows(), lacking = numbers - picked;
  form.shell().status(
      lacking <= 0   ? fmt::format("SOSTITUISCI: {} righe con i {} numeri scelti", rows, picked)
      : lacking == 1 ? fmt::format("SOSTITUISCI: {} righe, manca un numero: al suo posto c'è 0", rows)
                     : fmt::format("SOSTITUISCI: {} righe, mancano {} numeri: al loro posto c'è 0", rows, lacking));
}

}  // namespace

SistemiOrtogonali::SistemiOrtogonali(Program& program)
    : Form(program.shell, "SistemiOrtogonali", "Sistemi ortogonali", kHelpContext),
      FgSy(*this, "FgSy", std::string(kShownPlaces, '|')),
      fG88(*this, "fG88", std::string(kRewrittenPlaces, '|')),
      m_program(program) {
  FgSistemi.setEmptyText("Nessun sistema");
  FgSy.setEmptyText("Fai doppio clic su un sistema");
  fG88.setEmptyText("Scegli i numeri e premi SOSTITUISCI");
  Command44.setToolTip("La tabella si copia dal suo menu (tasto destro), o con Ctrl+Maiusc+C");
  Command12.onEvent([this] { CaricaElencoSistemi(*this); });
  FgSistemi.onCellClick([this](int row, int) { MostraPromessa(*this, row); });
  FgSistemi.onCellDoubleClick([this](int row, int) { CaricaSistema(*this, row); });
  Command34.onEvent([this] { PreparaNumeri(*this); });
  Fg99x.onCellClick([this](int row, int column) { ScegliNumero(*this, row, column); });
  Command36.onEvent([this] { SostituisciNumeri(*this); });
  Command9.onEvent([this] { StampaFormazioni(*this); });
}

void SistemiOrtogonali::load() {
  for (int n = 0; n < 90; ++n) Fg99x.setNumber(n / 15, n % 15, n + 1);
  CaricaElencoSistemi(*this);
}

void CaricaElencoSistemi(SistemiOrtogonali& form) {
  fillSystems(form.database(), form.FgSistemi);
  for (const int column : {1, 3}) form.FgSistemi.setColumnHidden(column);
  form.LblPromessa.setText("");
}

void MostraPromessa(SistemiOrtogonali& form, int row) {
  if (row < 1) return;
  try {
    Grid rows = form.FGSv1;
    fillSystemRows(form.database(), form.FgSistemi.text(row, 1), SistemiOrtogonali::kMostRows + 1, rows);
    form.LblPromessa.setText(promiseOf(storedRows(rows)));
  } catch (const std::exception&) {
    form.LblPromessa.setText("");  // the double click says what is wrong with it
  }
}

void CaricaSistema(SistemiOrtogonali& form, int row) {
  if (row < 1) return;
  form.LblSistema.setText(form.FgSistemi.text(row, 2));
  try {
    load(form, row);
  } catch (const std::exception& error) {
    form.shell().message({.text = "errore", .reason = error.what()});
  }
  form.LblPromessa.setText(promiseOf(storedRows(form.FGSv1)));
}

void PreparaNumeri(SistemiOrtogonali& form) {
  const Grid::Batch numbers(form.Fg99), pad(form.Fg99x), result(form.fG88);
  form.Fg99.cutToHeading();
  for (const int n : usedNumbers(shownRows(form.FgSy))) form.Fg99.setNumber(form.Fg99.appendRow(), 0, n);
  for (int row = 0; row < form.Fg99x.rows(); ++row)
    for (int column = 0; column < form.Fg99x.columns(); ++column) form.Fg99x.setBack(row, column, kWhite);
  form.Label20.setText("0");
  emptyRows(form.fG88, kRewrittenPlaces);
}

void ScegliNumero(SistemiOrtogonali& form, int row, int column) {
  const auto picked = [&form] { return static_cast<int>(pickedNumbers(form.Fg99x).size()); };
  const int wanted = form.Fg99.dataRows();
  if (form.Fg99x.back(row, column) == Giallo)
    form.Fg99x.setBack(row, column, kWhite);
  else if (picked() < wanted)
    form.Fg99x.setBack(row, column, Giallo);
  form.Label20.setText(std::to_string(picked()));
  form.Label20.setBack(picked() == wanted ? Verde : Giallo);
}

void SostituisciNumeri(SistemiOrtogonali& form) {
  Grid &Fg99 = form.Fg99, &fG88 = form.fG88;
  const Grid::Batch numbers(Fg99), result(fG88);
  const std::vector<int> picked = pickedNumbers(form.Fg99x);
  std::vector<int> used;
  for (int row = 1; row < Fg99.rows(); ++row) {
    const auto i = static_cast<std::size_t>(row - 1);
    used.push_back(Fg99.number(row, 0));
    Fg99.setText(row, 1, i < picked.size() ? std::to_string(picked[i]) : "");
  }
  emptyRows(fG88, kRewrittenPlaces);
  const int system = form.FgSistemi.current();
  if (system < 1) return form.shell().status("SOSTITUISCI: scegli prima un sistema nell'elenco");
  SystemRows rows = shownRows(form.FgSy);
  std::erase_if(rows, [](const std::vector<int>& row) { return row.empty(); });
  const int width = std::min(form.FgSistemi.number(system, 3), form.FgSy.columns() - 1);
  if (width > kRewrittenPlaces) fG88.setColumns(width + 1);
  for (const auto& cells : rewritten(rows, used, picked, width)) {
    const int row = fG88.appendRow();
    fG88.setNumber(row, 0, row);
    for (int k = 0; k < width; ++k)
      if (const std::optional<int>& cell = cells[static_cast<std::size_t>(k)]) fG88.setNumber(row, k + 1, *cell);
  }
  tellRewritten(form, static_cast<int>(used.size()), static_cast<int>(picked.size()));
}

void StampaFormazioni(SistemiOrtogonali& form) {
  std::vector<std::string> header;
  if (form.FgSy.hasData()) header.push_back(form.LblSistema.text());
  std::string chosen;
  for (int row = 1; row < form.Fg99.rows(); ++row)
    if (const std::string& number = form.Fg99.text(row, 1); !number.empty())
      chosen += (chosen.empty() ? "Numeri: " : ", ") + number;
  if (!chosen.empty()) header.push_back(chosen);
  // Free places are of the screen, not of the paper.
  Grid printed = form.fG88;
  int places = 0;
  for (int row = 1; row < printed.rows(); ++row)
    places = std::max(places, static_cast<int>(numbersFrom(printed, row, 1).size()));
  if (places > 0) printed.setColumns(places + 1);
  form.shell().print(printed, {.title = "Sviluppo sistema selezionato",
                               .header = header,
                               .landscape = false,
                               .horizontalMargin = 400,
                               .verticalMargin = 400});
}

}  // namespace trv5
