#include "screens/workbench_sorte_tab.h"

#include "screens/theme.h"

namespace trv5 {
namespace {

// A formula is read best in a table no wider than this many figures.
constexpr int kFormulaFigures = 69;

std::vector<QString> formulaSamples() {
  const QString two = QStringLiteral("88"), wheel = QStringLiteral("MI"), none;
  return {two,
          none,
          wheel,
          two,
          none,
          wheel,
          two,
          none,
          wheel,
          two,
          QStringLiteral("N1 X N2"),
          two,
          QStringLiteral("888"),
          two,
          none,
          none,
          none,
          QStringLiteral("DIAM")};
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

QWidget* leftAndRight(QLayout* left, QLayout* right) {
  QWidget* const first = holding(left);
  QWidget* const both = holding(row({{first, 1}, Piece::space(), {holding(right), 0}}));
  withTheme(*both, [first] {
    first->setMaximumWidth(kFormulaFigures * QFontMetrics(Theme::current().base()).horizontalAdvance(u'8'));
  });
  return both;
}

QWidget* sorteTab(Workbench& w, const SorteTab& names, QLayout* above) {
  Kit kit(w);
  const auto quiet = [&kit](const char* name, const char* icon) {
    return kit.button(name, {.kind = Kind::Quiet, .icon = icon});
  };
  std::vector<QWidget*> verify = {kit.button(names.verifyAll, {.kind = Kind::Primary})};
  if (names.verifyRow != nullptr) verify.push_back(kit.button(names.verifyRow));
  verify.push_back(kit.button(names.beyondLimit));

  std::vector<Piece> edit = {quiet(names.remove, "trash"), quiet(names.clear, "broom"), Piece::gap()};
  if (names.rowWheels != nullptr) edit.emplace_back(kit.check(names.rowWheels));

  std::vector<Piece> left;
  if (above != nullptr) left.emplace_back(above);
  GridView* const formulas = kit.grid(names.formulas, {.samples = formulaSamples(), .freePlaces = names.places});
  left.insert(left.end(), {{formulas, 1}, flow(verify), row(edit)});

  std::vector<QWidget*> utilities = {quiet(names.print, "print"), quiet(names.copy, "copy"),
                                     quiet(names.clean, "broom")};
  if (names.extended != nullptr) utilities.push_back(kit.button(names.extended, {.icon = "columns"}));
  GridView* const hits = kit.grid(names.hits, {.samples = hitSamples()});
  return leftAndRight(column(left), column({{hits, 1}, flow(utilities)}));
}

}  // namespace trv5
