#include "screens/EvoluzioneGrafica.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "cases/case_map.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

constexpr int kUnitsPerPixel = 15;  // the grids' own unit is a twentieth of a point
constexpr int kLeastColumn = 3, kLeastRow = 8, kMostRow = 24;

}  // namespace

EvoluzioneGraficaScreen::EvoluzioneGraficaScreen(EvoluzioneGrafica& form)
    : Screen(form),
      m_form(form),
      m_map(kit.grid("Fg1",
                     {.name = QStringLiteral("Mappa dei casi"),
                      .samples = {QStringLiteral("88")},
                      .even = true,
                      .evenFrom = 1,
                      .minColumn = kLeastColumn,
                      .minRow = kLeastRow,
                      .maxRow = kMostRow,
                      .toolTip = [&form](int row, int column) { return qs(mapCellText(form.Fg1, row, column)); }})) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->addWidget(m_map);
  connect(&m_map->gridModel(), &GridModel::synced, this, &EvoluzioneGraficaScreen::followMap);
  QScrollBar* const bar = m_map->horizontalScrollBar();
  connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) { m_newest = value == bar->maximum(); });
  connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int maximum) {
    if (m_newest) bar->setValue(maximum);
  });
}

QSize EvoluzioneGraficaScreen::sizeHint() const {
  const Grid& map = m_form.Fg1;
  const int told = (map.cellSize() + kUnitsPerPixel / 2) / kUnitsPerPixel;
  const int column = std::max(told, kLeastColumn), row = std::clamp(told, kLeastRow, kMostRow);
  const int unit = Theme::current().unit(), bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const int around = 2 * unit + 2 * m_map->frameWidth() + bar;
  const QSize cells(m_map->columnWidth(0) + std::max(0, map.columns() - 1) * column,
                    m_map->horizontalHeader()->height() + map.dataRows() * row);
  // A title and some draws are always read.
  const QFontMetrics metrics(Theme::current().base());
  const QSize least(60 * metrics.horizontalAdvance(u'8'), 12 * metrics.height());
  return (cells + QSize(around, around)).expandedTo(least);
}

// A new map opens like the first one.
void EvoluzioneGraficaScreen::followMap() {
  const Grid& map = m_form.Fg1;
  if (m_rows == map.rows() && m_columns == map.columns() && m_cellSize == map.cellSize()) return;
  m_rows = map.rows();
  m_columns = map.columns();
  m_cellSize = map.cellSize();
  m_newest = true;
  m_map->scrollToTop();
  Q_EMIT naturalSizeChanged();
  m_map->horizontalScrollBar()->setValue(m_map->horizontalScrollBar()->maximum());
}

}  // namespace trv5
