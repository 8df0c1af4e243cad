// What the user does with a whole grid: copy, export, print, fit.
#include <fmt/format.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QStandardPaths>
#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "core/file_writer.h"
#include "core/grid_text.h"
#include "core/text.h"
#include "engine/table_tools.h"
#include "screens/kit/grid_export.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/icons.h"
#include "screens/kit/screen.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

void tellExported(const GridControl& grid, const std::filesystem::path& file) {
  const int rows = static_cast<int>(visibleRows(grid).size()) - grid.headingRows();
  grid.form().shell().status("Esportato " + file.filename().string() + ": " + counted(rows, "riga", "righe"));
}

}  // namespace

std::vector<std::pair<int, int>> GridView::chosenCells() const {
  std::vector<std::pair<int, int>> cells;
  for (const QModelIndex& index : selectedIndexes()) cells.emplace_back(m_model->gridRow(index.row()), index.column());
  if (cells.empty() && currentIndex().isValid())
    cells.emplace_back(m_model->gridRow(currentIndex().row()), currentIndex().column());
  return cells;
}

// What leaves the view in colours looks as it does on screen.
Grid GridView::drawnGrid() const {
  Grid drawn = m_grid;
  for (int row = 0; m_look.colours && row < drawn.rows(); ++row)
    for (int column = 0; column < drawn.columns(); ++column) drawn.setCell(row, column, drawnCell(row, column));
  return drawn;
}

void GridView::copySelection() {
  sync();
  Shell& shell = m_grid.form().shell();
  const std::vector<std::pair<int, int>> cells = chosenCells();
  if (cells.empty()) return shell.status("Nessuna cella scelta da copiare");
  auto* const copied = new QMimeData;
  copied->setText(qs(cellsText(m_grid, cells)));
  copied->setHtml(qs(cellsHtml(drawnGrid(), cells)));
  QApplication::clipboard()->setMimeData(copied);
  shell.status("Copiate: " + counted(static_cast<int>(cells.size()), "cella", "celle"));
}

void GridView::copyTable() {
  m_grid.form().perform([this] { CopiaTabella(m_grid); });
}

void GridView::exportCsv() {
  m_grid.form().perform([this] {
    const auto file = m_grid.form().shell().chooseSave(exportBox("Esporta CSV", "*.csv", "csv"));
    if (!file) return;
    writeFile(*file, csvText(m_grid));
    tellExported(m_grid, *file);
  });
}

void GridView::exportXlsx() {
  m_grid.form().perform([this] {
    const auto file = m_grid.form().shell().chooseSave(exportBox("Esporta XLSX", "*.xlsx", "xlsx"));
    if (!file) return;
    writeXlsx(*file, drawnGrid(), accessibleName().toStdString());
    tellExported(m_grid, *file);
  });
}

void GridView::printTable() {
  sync();
  m_grid.form().perform([this] {
    Grid printed = drawnGrid();
    // Columns that are folded away, being empty, would be room wasted on paper.
    for (int column = 0; column < printed.columns(); ++column)
      if (isColumnHidden(column)) printed.setColumnHidden(column);
    m_grid.form().shell().print(printed, {.title = m_grid.form().title(), .header = printHeader()});
  });
}

std::vector<std::string> GridView::printHeader() const {
  for (const QWidget* widget = parentWidget(); widget != nullptr; widget = widget->parentWidget())
    if (const auto* const screen = qobject_cast<const Screen*>(widget)) return screen->printHeader(m_grid);
  return {};
}

FileBox GridView::exportBox(const char* title, const char* filter, const char* extension) const {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  // "Esiti: ambate" of today: "Esiti ambate 2026-08-22.csv".
  const DateTime now = m_grid.form().shell().now();
  const std::string name = fmt::format("{} {:04}-{:02}-{:02}.{}", accessibleName().remove(u':').toStdString(), now.year,
                                       now.month, now.day, extension);
  return {
      .title = title, .folder = folder.toStdString(), .filter = filter, .defaultExtension = extension, .name = name};
}

int GridView::fittedWidth(int column, const std::vector<int>& rows) const {
  const QFontMetrics cells(m_cellFont), bold(m_strongFont), headings(m_headingFont);
  int width = cells.horizontalAdvance(u'8');
  std::size_t longest = 0;
  std::unordered_set<std::string_view> measured;  // measuring a text costs far more than looking for it
  for (const int row : rows) {
    const Cell& cell = m_grid.at(row, column);
    // A text that is clearly shorter than the longest so far can't be wider.
    if (cell.text.size() * 2 < longest) continue;
    longest = std::max(longest, cell.text.size());
    const bool heading = row < m_grid.headingRows();
    if (!heading && !cell.bold && !measured.insert(cell.text).second) continue;
    const QFontMetrics& metrics = heading ? headings : cell.bold ? bold : cells;
    width = std::max(width, metrics.horizontalAdvance(qs(cell.text).trimmed()));
  }
  return width + padding();
}

void GridView::fitColumns() {
  sync();
  const std::vector<int> rows = visibleRows(m_grid);
  for (const int column : visibleColumns(m_grid))
    if (!isColumnHidden(column)) m_userWidths[column] = fittedWidth(column, rows);
  layoutColumns();
}

void GridView::fitAsAsked() {
  if (!m_look.fitsFill) return fitColumns();
  m_userWidths.clear();
  const std::vector<int> rows = visibleRows(m_grid);
  for (const int column : visibleColumns(m_grid)) m_gridWidths[column] = fittedWidth(column, rows);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  const auto add = [&](const char* name, const QString& text, const QKeySequence& key, void (GridView::*run)()) {
    QAction* const action = menu.addAction(icon(QLatin1String(name)), text, this, run);
    action->setShortcut(key);
  };
  add("copy", QStringLiteral("Copia"), QKeySequence::Copy, &GridView::copySelection);
  add("copy", QStringLiteral("Copia tabella"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), &GridView::copyTable);
  menu.addSeparator();
  add("download", QStringLiteral("Esporta CSV.."), {}, &GridView::exportCsv);
  add("download", QStringLiteral("Esporta XLSX.."), {}, &GridView::exportXlsx);
  add("print", QStringLiteral("Stampa.."), QKeySequence::Print, &GridView::printTable);
  menu.addSeparator();
  add("columns", QStringLiteral("Adatta colonne"), {}, &GridView::fitColumns);
  menu.exec(event->globalPos());
}

}  // namespace trv5
