#include "screens/workbench/statistics.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>
#include <array>

#include "screens/kit/bindings.h"
#include "screens/kit/kit.h"
#include "screens/kit/theme.h"
#include "screens/workbench/luck_line.h"

namespace trv5 {
namespace {

// What the captions of Fg_Stat stand for, by row.
constexpr std::array kMeaning = {"Sezione dell'ultima verifica",
                                 "Numero dei casi",
                                 "Casi coperti",
                                 "Esiti positivi",
                                 "Casi negativi",
                                 "Casi in gioco",
                                 "Esiti con 1 numero",
                                 "Esiti con 2 numeri",
                                 "Esiti con 3 numeri",
                                 "Esiti con 4 numeri",
                                 "Esiti con 5 numeri"};

struct Meaning {
  Rgb colour;
  const char* text;
};
constexpr Meaning kLegend[] = {{Verde, "scelto, caso coperto, numero uscito"},
                               {VerdeMedio, "riga con esito"},
                               {0xFFC080, "caso senza esito"},
                               {Ciano, "numero scelto, caso in corso"},
                               {0xC0C0FF, "altro esito dello stesso caso"}};

// Shows where there is room for all of it.
class Legend : public QWidget {
 public:
  explicit Legend(QWidget* lines) : m_lines(lines) { lines->setParent(this); }
  QSize sizeHint() const override { return m_lines->sizeHint(); }
  QSize minimumSizeHint() const override { return {m_lines->minimumSizeHint().width(), 0}; }

 protected:
  void resizeEvent(QResizeEvent*) override {
    m_lines->setGeometry(rect());
    m_lines->setVisible(height() >= m_lines->sizeHint().height());
  }

 private:
  QWidget* m_lines;
};

QWidget* legend() {
  std::vector<Piece> lines;
  for (const Meaning& entry : kLegend) {
    auto* const line = new ClickLabel;
    line->setSwatch(entry.colour);
    line->setText(QString::fromUtf8(entry.text));
    line->setProperty("type", QStringLiteral("small"));
    line->setFocusPolicy(Qt::NoFocus);
    line->unsetCursor();
    lines.emplace_back(line);
  }
  lines.push_back(Piece::gap());
  QBoxLayout* const all = column(lines);
  all->setSpacing(0);
  return new Legend(holding(all));
}

}  // namespace

WorkbenchStatistics::WorkbenchStatistics(Workbench& w, QWidget* parent)
    : Panel({}, parent),
      m_counts(nullptr),
      m_bars(nullptr),
      m_countsHolder(nullptr),
      m_legend(legend()),
      m_state(nullptr),
      m_luck(nullptr),
      m_title(Kit::text(QStringLiteral("Statistiche"), Type::Title)),
      m_grid(new QGridLayout) {
  Kit kit(w);
  m_counts = kit.grid("Fg_Stat", {.name = QStringLiteral("Statistiche")});
  m_bars = kit.grid("Fg_Graf", {.name = QStringLiteral("Grafico delle statistiche")});
  // The mark and what luck has to say share their place: statistics that are marked say nothing of luck.
  m_state = kit.stateMark("Fg_Stat");
  m_state->takeRest();  // its word must not widen the panel: a larger font and back would leave it wide
  auto* const expected = new FigureNote;
  bind(*expected, w.LblAttesi);
  m_luck = new LuckLine(expected, kit.note("LblBilancio", Qt::ElideRight));
  m_countsHolder = holding(column({{m_counts, 1000}, Piece::gap()}));
  for (QWidget* const part : {static_cast<QWidget*>(m_title), m_legend}) part->setParent(this);
  body()->addLayout(m_grid, 1);
  arrange();
  connect(&Theme::current(), &Theme::changed, this, &WorkbenchStatistics::arrange);
}

void WorkbenchStatistics::setWide(bool wide, bool longBars) {
  if (m_wide == wide && m_longBars == longBars) return;
  m_wide = wide;
  m_longBars = longBars;
  arrange();
}

void WorkbenchStatistics::arrange() {
  for (QWidget* const part : {static_cast<QWidget*>(m_title), m_countsHolder, static_cast<QWidget*>(m_bars),
                              static_cast<QWidget*>(m_state), static_cast<QWidget*>(m_luck), m_legend})
    m_grid->removeWidget(part);
  // Where it is narrow the two grids fill it to its edges: no panel around them.
  setProperty("panel", m_wide);
  style()->unpolish(this);
  style()->polish(this);
  if (!m_wide) setFrameShape(QFrame::NoFrame);  // which the style sheet gives, but doesn't take back
  m_title->setVisible(m_wide);
  m_legend->setVisible(m_wide);
  m_luck->setTwoLines(m_wide);
  m_luck->raise();
  const int line = QFontMetrics(Theme::current().base()).height();
  const auto meaning = [](int row, int) { return QString::fromUtf8(kMeaning[static_cast<std::size_t>(row)]); };

  GridLook counts = {.name = QStringLiteral("Statistiche"),
                     .samples = {QStringLiteral("InG"), QStringLiteral("8888")},
                     .toolTip = meaning};
  GridLook bars = {.name = QStringLiteral("Grafico delle statistiche")};
  if (!m_longBars) bars.samples = {QStringLiteral("Casi Coperti"), QStringLiteral("88"), QStringLiteral("8888.88")};
  // In a low window the rows draw together down to the letters of a line, which leave some of it free, so that the rest
  // of the road has its rows too.
  counts.minRow = bars.minRow = line * 8 / 9;
  counts.maxRow = bars.maxRow = Theme::current().row();
  counts.whole = bars.whole = true;
  if (m_wide) {
    counts.maxRow = line * 7 / 4;
    bars.minRow = line * 3 / 2;
    bars.maxRow = line * 54 / 19;
    m_grid->addWidget(m_title, 0, 0, 1, 2);
    m_grid->addWidget(m_countsHolder, 1, 0, 3, 1);
    m_grid->addWidget(m_bars, 1, 1);
    m_grid->addWidget(m_luck, 2, 1);
    m_grid->addWidget(m_state, 2, 1, Qt::AlignTop);
    m_grid->addWidget(m_legend, 3, 1);
  } else {
    bars.tight = true;
    m_grid->addWidget(m_countsHolder, 0, 0);
    m_grid->addWidget(m_bars, 1, 0);
    m_grid->addWidget(m_luck, 2, 0);
    m_grid->addWidget(m_state, 2, 0);
  }
  m_grid->setRowStretch(0, m_wide ? 0 : m_counts->grid().rows());
  m_grid->setRowStretch(1, m_bars->grid().rows());
  m_grid->setRowStretch(3, m_wide ? 1 : 0);
  m_grid->setColumnStretch(1, m_wide ? 1 : 0);
  m_counts->setMaximumWidth(m_wide ? 18 * QFontMetrics(Theme::current().base()).horizontalAdvance(u'8')
                                   : QWIDGETSIZE_MAX);
  m_counts->setLook(counts);
  m_bars->setLook(bars);
}

}  // namespace trv5
