#include "screens/workbench/cases.h"

#include <QHeaderView>
#include <algorithm>

#include "cases/case_rows.h"
#include "screens/kit/kit.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// The totals stand exactly under the columns of hits of the list of cases: one row more of it.
class CaseTotals : public QWidget {
 public:
  CaseTotals(Kit& kit, GridView& cases)
      : m_cases(cases),
        m_totals(*kit.grid("FgSSS", {.name = QStringLiteral("Totali dei casi"), .fixedHeight = true})),
        m_span(Kit::text(QStringLiteral("Estrazioni considerate"), Type::Hint)),
        m_spanValue(kit.label("Label5", Type::Title)),
        m_state(kit.stateMark("FgSSS")),
        m_hits(Kit::text(QStringLiteral("N° esiti"), Type::Small)),
        m_covered(Kit::text(QStringLiteral("Casi coperti"), Type::Small)) {
    for (QWidget* const part :
         {static_cast<QWidget*>(&m_totals), static_cast<QWidget*>(m_span), static_cast<QWidget*>(m_spanValue),
          static_cast<QWidget*>(m_state), static_cast<QWidget*>(m_hits), static_cast<QWidget*>(m_covered)})
      part->setParent(this);
    for (QLabel* const caption : {m_hits, m_covered}) caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_totals.setToolTip(QStringLiteral("Totali di S1, S2, S3 e LU"));
    connect(&cases, &GridView::columnsLaidOut, this, [this] { place(); });
    withTheme(*this, [this] {
      setFixedHeight(m_totals.sizeHint().height());
      updateGeometry();
    });
  }

  QSize minimumSizeHint() const override {
    const int span = QFontMetrics(Theme::current().title()).horizontalAdvance(QStringLiteral("88888"));
    return {
        m_span->sizeHint().width() + span + m_covered->sizeHint().width() + totalsWidth() + 4 * Theme::current().unit(),
        m_totals.sizeHint().height()};
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    place();
  }

 private:
  // The least that four figures in each of its columns take.
  int totalsWidth() const {
    int columns = 0;
    for (int column = 0; column < m_totals.grid().columns(); ++column) columns += !m_totals.grid().columnHidden(column);
    const int figures = QFontMetrics(Theme::current().base()).horizontalAdvance(QStringLiteral("8888"));
    return columns * (figures + 4) + 2 * m_totals.frameWidth();
  }

  void place() {
    const int first = case_column::kHits;
    int left = width(), right = 0;
    for (int column = 0; column < m_totals.grid().columns(); ++column) {
      const auto [x, width] = m_cases.columnSpan(first + column);
      if (m_totals.grid().columnHidden(column) || width == 0) continue;
      m_totals.horizontalHeader()->resizeSection(column, width);
      left = std::min(left, x);
      right = std::max(right, x + width);
    }
    if (left >= right) return;
    const int frame = m_totals.frameWidth();
    const int total = right - left + 2 * frame;
    // Out of sight while the list is scrolled to its first columns: then at the right edge.
    const int x = std::clamp(left - frame, 0, std::max(0, width() - total));
    m_totals.setGeometry(x, 0, total, height());
    const int gap = Theme::current().unit();
    const int row = m_totals.verticalHeader()->defaultSectionSize();
    const int caption = std::max(m_hits->sizeHint().width(), m_covered->sizeHint().width());
    m_hits->setGeometry(x - gap - caption, frame, caption, row);
    m_covered->setGeometry(x - gap - caption, frame + row, caption, row);
    placeSpan(x - 2 * gap - caption, row);
  }

  // What stands left of the captions. Without room for the mark beside the span the span takes the lower row.
  void placeSpan(int right, int row) {
    const int gap = Theme::current().unit(), frame = m_totals.frameWidth();
    const int span = m_span->sizeHint().width(), state = m_state->sizeHint().width();
    const int value = QFontMetrics(Theme::current().title()).horizontalAdvance(QStringLiteral("88888"));
    m_state->setGeometry(right - state, frame, state, row);
    const bool beside = span + gap + value + gap + state <= right;
    const int y = beside ? 0 : frame + row, high = beside ? height() : row;
    m_span->setGeometry(0, y, span, high);
    m_spanValue->setGeometry(span + gap, y, std::max(0, right - span - gap - (beside ? gap + state : 0)), high);
  }

  GridView& m_cases;
  GridView& m_totals;
  QLabel *m_span, *m_spanValue;
  StateMark* m_state;
  QLabel *m_hits, *m_covered;
};

std::vector<QString> caseSamples() {
  const QString number = QStringLiteral("88"), draw = QStringLiteral("8888"), date = QStringLiteral("88/88/8888");
  std::vector<QString> samples = {number};
  for (int element = 0; element < 2; ++element) {
    samples.insert(samples.end(), {draw, date, QStringLiteral("MI")});
    samples.insert(samples.end(), kPositions, number);
  }
  samples.insert(samples.end(), 6, draw);  // their totals have up to four figures
  return samples;
}

}  // namespace

WorkbenchCases::WorkbenchCases(Workbench& w, QWidget* parent) : QWidget(parent) {
  using namespace case_column;
  Kit kit(w);
  std::vector<int> secondElement;
  for (int column = kDraw2; column < kHits; ++column) secondElement.push_back(column);
  std::vector<int> hits;
  for (int column = kHits; column <= kLunghetta; ++column) hits.push_back(column);
  GridView* const cases = kit.grid("FgEv", {.name = QStringLiteral("Elenco dei casi"),
                                            .samples = caseSamples(),
                                            .folded = secondElement,
                                            .alike = hits,
                                            .restTo = kDate,
                                            .tight = true});
  // The list is seen or it is old: one place serves both.
  auto* const marks = new NoteAndMark(kit.note("LblVisti", Qt::ElideRight, Qt::AlignRight), kit.stateMark("FgEv"));
  marks->keepPlace();
  setLayout(column(
      {flow({kit.button("Command12", {.icon = "columns"}), kit.button("Command103", {.icon = "map", .iconOnly = true})},
            {marks, kit.button("Command27", {.kind = ButtonKind::Quiet, .icon = "broom"})}),
       {cases, 1},
       new CaseTotals(kit, *cases)}));
  setFocusProxy(cases);
}

}  // namespace trv5
