#include "screens/workbench/sorte_tab.h"

#include <QEvent>
#include <algorithm>
#include <string_view>

#include "engine/colouring.h"
#include "screens/kit/theme.h"
#include "screens/workbench/formula_samples.h"

namespace trv5 {
namespace {

// A formula is read best in a table no wider than this many figures.
constexpr int kFormulaFigures = 69;

class TwoColumns : public QWidget {
 public:
  TwoColumns(QWidget* left, QWidget* right, GridView* grid) : m_left(left), m_right(right), m_grid(grid) {
    left->setParent(this);
    right->setParent(this);
  }

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    const QSize left = m_left->minimumSizeHint(), right = m_right->minimumSizeHint();
    // Of a page that isn't in sight the widths are those of another time.
    if (!isVisible()) return {left.width() + gap() + right.width(), std::max(left.height(), right.height())};
    const auto height = [](const QWidget& column, int least) {
      return std::max(least, column.layout()->minimumHeightForWidth(column.width()));  // with its wrapped rows
    };
    return {left.width() + gap() + right.width(),
            std::max(height(*m_left, left.height()), height(*m_right, right.height()))};
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) {
      place();
      updateGeometry();
    }
    return QWidget::event(event);
  }

 private:
  static int gap() { return 2 * Theme::current().unit(); }

  void place() {
    const int most = kFormulaFigures * QFontMetrics(Theme::current().base()).horizontalAdvance(u'8');
    const int least = m_left->minimumSizeHint().width();
    const int left = std::clamp(width() - gap() - m_grid->sizeHint().width(), least, std::max(least, most));
    m_left->setGeometry(0, 0, left, height());
    m_right->setGeometry(left + gap(), 0, width() - gap() - left, height());
  }

  QWidget *m_left, *m_right;
  GridView* m_grid;
};

// How the hits stand; where a row may be verified by itself, also whose they are.
QWidget* stateOf(Kit& kit, const SorteTab& names) {
  StateMark* const mark = kit.stateMark(names.hits);
  if (names.verifyRow == nullptr) {
    mark->takeRest();
    return mark;
  }
  return new NoteAndMark(kit.note("LblRigaProvata", Qt::ElideLeft, Qt::AlignRight), mark);
}

}  // namespace

std::vector<QString> hitSamples() {
  const QString two = QStringLiteral("88"), draw = QStringLiteral("8888"), date = QStringLiteral("88/88/8888"), none;
  std::vector<QString> samples = {two, draw, date, two};
  samples.insert(samples.end(), 9, none);
  samples.insert(samples.end(), {QStringLiteral("MI"), two, draw, date});
  samples.insert(samples.end(), kPositions, two);
  return samples;
}

QWidget* leftAndRight(QLayout* left, QLayout* right, GridView* grid) {
  return holding(column({{new TwoColumns(holding(left), holding(right), grid), 1}}));
}

QWidget* sorteTab(Workbench& w, const SorteTab& names, QLayout* above) {
  Kit kit(w);
  const auto quiet = [&kit](const char* name, const char* icon) {
    return kit.button(name, {.kind = ButtonKind::Quiet, .icon = icon});
  };
  const auto named = [&names](const char* what) {
    return QStringLiteral("%1: %2").arg(QLatin1String(what), QLatin1String(names.sorte));
  };
  std::vector<QWidget*> verify = {kit.button(names.verifyAll, {.kind = ButtonKind::Primary})};
  if (names.verifyRow != nullptr) verify.push_back(kit.button(names.verifyRow));
  verify.push_back(kit.button(names.beyondLimit));

  std::vector<QWidget*> wheels;
  if (names.rowWheels != nullptr) wheels.push_back(kit.check(names.rowWheels));
  QLayout* const edit = flow({quiet(names.remove, "trash"), quiet(names.clear, "broom")}, wheels);

  std::vector<Piece> left;
  if (above != nullptr) left.emplace_back(above);
  // A row just added and one that a recount has restored are drawn alike.
  const bool numbered = std::string_view(names.formulas) == w.Fg00.name();
  const auto colours = [numbered](int column) {
    Cell drawn = formulaColours(column);
    drawn.bold = drawn.bold || (numbered && column == 0);
    return drawn;
  };
  GridView* const formulas = kit.grid(names.formulas, {.name = named("Formule"),
                                                       .samples = formulaSamples(),
                                                       .freePlaces = names.places,
                                                       .tight = true,
                                                       .colours = colours});
  left.insert(left.end(), {{formulas, 1}, flow(verify), edit});

  std::vector<QWidget*> utilities = {quiet(names.print, "print"), quiet(names.copy, "copy"),
                                     quiet(names.clean, "broom")};
  if (names.extended != nullptr) utilities.push_back(kit.button(names.extended, {.icon = "columns"}));
  GridView* const hits = kit.grid(names.hits, {.name = named("Esiti"), .samples = hitSamples()});
  QWidget* const state = stateOf(kit, names);
  QBoxLayout* const below = row({{holding(flow(utilities)), 0}, {state, 1}});
  below->setSpacing(0);  // what is free lies between them
  return leftAndRight(column(left), column({{hits, 1}, below}), hits);
}

}  // namespace trv5
