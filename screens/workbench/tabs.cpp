#include "screens/workbench/tabs.h"

#include <QSplitter>
#include <algorithm>
#include <numeric>

#include "followup/grouping.h"
#include "screens/kit/icons.h"
#include "screens/kit/kit.h"
#include "screens/kit/page_pair.h"
#include "screens/kit/scroll_column.h"
#include "screens/kit/theme.h"
#include "screens/workbench/sorte_tab.h"

namespace trv5 {
namespace {

// A page holds its rows and the grid that takes the rest.
QWidget* pageOf(const std::vector<Piece>& pieces) {
  return holding(column(pieces));
}

std::vector<QString> repeated(std::vector<QString> first, int count, const QString& sample,
                              const std::vector<QString>& last = {}) {
  first.insert(first.end(), static_cast<std::size_t>(count), sample);
  first.insert(first.end(), last.begin(), last.end());
  return first;
}

QPushButton* quiet(Kit& kit, const char* name, const char* icon) {
  return kit.button(name, {.kind = ButtonKind::Quiet, .icon = icon});
}

// Widgets and their caption that stay together where a row wraps.
QWidget* group(const std::vector<Piece>& pieces) {
  return holding(row(pieces));
}

// A column that keeps the width of so many figures, or what it needs: which it knows only when it stands in its window,
// whose style makes the buttons wider.
class NarrowColumn : public QWidget {
 public:
  NarrowColumn(QWidget* contents, int figures) : m_figures(figures) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(contents);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    withTheme(*this, [this] { updateGeometry(); });
  }
  QSize sizeHint() const override { return {wanted(), QWidget::sizeHint().height()}; }
  QSize minimumSizeHint() const override { return {wanted(), QWidget::minimumSizeHint().height()}; }

 private:
  int wanted() const {
    const int told = m_figures * QFontMetrics(Theme::current().base()).horizontalAdvance(u'8');
    return std::max(told, QWidget::minimumSizeHint().width());
  }

  int m_figures;
};

QWidget* narrow(QWidget* column, int figures) {
  return new NarrowColumn(column, figures);
}

const QString kNumber = QStringLiteral("88");

}  // namespace

QWidget* summaryTab(Workbench& w) {
  Kit kit(w);
  // The grid has the whole tab for itself: wider columns share the room better than one wide last column.
  std::vector<QString> samples = hitSamples();
  for (QString& sample : samples)
    if (!sample.isEmpty()) sample.prepend(sample.size() < 5 ? QStringLiteral("888") : QString());
  return pageOf(
      {row({kit.check("ChA"), kit.check("ChB"), kit.check("ChC"), Piece::space(), separator(Qt::Vertical),
            Piece::space(), kit.check("Ch1esito"), Piece::gap(), kit.stateMark("FgZZ"),
            kit.button("Command86", {.kind = ButtonKind::Primary, .icon = "play"}), quiet(kit, "Command96", "print"),
            quiet(kit, "Command98", "copy"), quiet(kit, "Command97", "broom")}),
       {kit.grid("FgZZ", {.name = QStringLiteral("Riepilogo"), .samples = samples}), 1}});
}

QWidget* liveForecastsTab(Workbench& w) {
  Kit kit(w);
  std::vector<Piece> filters = {Kit::text(QStringLiteral("Filtra"), Type::Hint),
                                kit.joined({"Command50", "Command55", "Command60", "Command61"}, false)};
  for (const char* const name : {"Ch_FF_1", "Ch_FF_2", "Ch_FF_3", "Ch_FF_0"}) filters.emplace_back(kit.check(name));
  filters.emplace_back(kit.button("Command62"));
  StateMark* const state = kit.stateMark("FgIC");
  state->takeRest();
  std::vector<int> numbers(10);
  std::iota(numbers.begin(), numbers.end(), 3);
  GridView* const live =
      kit.grid("FgIC", {.name = QStringLiteral("Previsioni in corso"),
                        .samples = repeated({QStringLiteral("8888"), QStringLiteral("3L"), QStringLiteral("88/88")}, 10,
                                            kNumber, {QStringLiteral("88/88/8888"), QStringLiteral("MI-MI-MI-MI-MI")}),
                        .alike = numbers,
                        .fitsFill = true});
  return pageOf({flow({kit.button("Command35", {.kind = ButtonKind::Primary, .icon = "play"}), kit.button("Command102"),
                       group(filters)},
                      {state, group({quiet(kit, "Command38", "print"), quiet(kit, "Command93", "copy")})}),
                 {live, 1}});
}

QWidget* numbersInPlayTab(Workbench& w) {
  Kit kit(w);
  const QString numbers = QStringLiteral("88-88-88");
  GridView* const cases =
      kit.grid("Fg15", {.name = QStringLiteral("Numeri in gioco"),
                        .samples = {kNumber, numbers, numbers, numbers, {}, {}, QStringLiteral("88-88-88-88-88-88-88")},
                        .fitsFill = true});
  GridView* const forecasts =
      kit.grid("FgGioco", {.name = QStringLiteral("Previsioni del caso"),
                           .samples = repeated({QStringLiteral("LU")}, 10, QStringLiteral("88")),
                           .even = true,
                           .evenFrom = 1});
  return leftAndRight(column({{row({kit.button("Command63"), Piece::gap()})}, {cases, 1}}), column({{forecasts, 1}}),
                      forecasts);
}

QWidget* groupingTab(Workbench& w, PagePair*& sheets) {
  Kit kit(w);
  std::vector<QString> list = repeated({{},
                                        QStringLiteral("888"),
                                        {},
                                        QStringLiteral("8888"),
                                        QStringLiteral("88/88/8888"),
                                        QStringLiteral("3L"),
                                        kNumber},
                                       10, kNumber);
  list = repeated(list, kWheels, QStringLiteral("M"));
  GridView* const found = kit.grid("FgRagg", {.name = QStringLiteral("Raggruppamento"),
                                              .samples = list,
                                              .heavyAfter = {6, 16},
                                              .fitsFill = true,
                                              .restTo = 4,
                                              .tight = true});
  QWidget* const first = pageOf({{found, 1}});
  GridView* const counts = kit.grid(
      "FgConv", {.name = QStringLiteral("Convergenze"),
                 .samples = repeated({kNumber}, kWheels, kNumber),
                 .even = true,
                 .evenFrom = 1,
                 .toolTip = [&w](int gridRow, int column) { return qs(spiegaConvergenza(w, gridRow, column)); }});
  QWidget* const second = pageOf({{counts, 1}});
  first->setFocusProxy(found);
  second->setFocusProxy(counts);
  sheets =
      new PagePair(w.SSTab4, {first, second}, false,
                   {group({quiet(kit, "Command109", "print"), quiet(kit, "Command110", "copy")}),
                    group({kit.stateMark("FgConv"), kit.joined({"Command114", "Command115", "Command116"}, false)})});
  sheets->splitter()->setStretchFactor(0, 1);
  sheets->splitter()->setStretchFactor(1, 0);
  return pageOf({row({kit.button("Command106", {.kind = ButtonKind::Primary, .icon = "play"}),
                      Kit::text(QStringLiteral("Le configurazioni di tipo Ciclo, senza durata fissa, restano escluse"),
                                Type::Small),
                      Piece::gap(), kit.stateMark("FgRagg"), kit.label("Label7", Type::Title)}),
                 {sheets, 1}});
}

QWidget* informationTab(Workbench& w) {
  Kit kit(w);
  std::vector<Piece> spans;
  for (const char* const name : {"OptionRit_0", "OptionRit_1", "OptionRit_2"}) spans.emplace_back(kit.option(name));
  spans.insert(spans.end(), {Piece::gap(), kit.button("Command88")});
  const auto search = [&kit](const char* name) { return row({Piece::gap(), kit.button(name)}); };
  QBoxLayout* const searches =
      column({row({Kit::captioned(QStringLiteral("Delta"), kit.combo("ComboDelta", QStringLiteral("8"))), Piece::gap(),
                   kit.button("Command111")}),
              search("Command112"), search("Command113")});
  QWidget* const commands =
      pageOf({kit.button("Command9", {.kind = ButtonKind::Primary}), row(spans), kit.button("Command76"),
              row({kit.check("Ch_coperture"), Piece::gap(), kit.stateMark("FgRit")}), searches, Piece::gap(),
              row({kit.button("Command104"), Piece::gap(), quiet(kit, "Command89", "copy")})});
  // They belong together; and all of the column is in sight at 1366 x 768.
  withTheme(*commands, [searches] { searches->setSpacing(Theme::current().unit() / 2); });
  auto* const side = new ScrollColumn(narrow(commands, 33));
  side->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
  GridView* const values =
      kit.grid("FgRit", {.name = QStringLiteral("Ritardi e presenze"),
                         .samples = repeated({kNumber}, kWheels, QStringLiteral("8888"), {QStringLiteral("8888")}),
                         .even = true,
                         .evenFrom = 1});
  return holding(row({side, Piece::space(), {values, 1}}));
}

QWidget* configurationsTab(Workbench& w) {
  Kit kit(w);
  QLineEdit* const name = kit.edit("Txt_Denominazione", {}, true);
  name->setAccessibleName(QStringLiteral("Denominazione"));
  QLabel* const hint = Kit::text(
      QStringLiteral(
          "Doppio clic o Invio su una riga dell'elenco ricarica il metodo e lo verifica sull'archivio di oggi."),
      Type::Hint);
  hint->setWordWrap(true);
  QLineEdit* const filter = kit.edit("Txt_FiltroConfig", QString(26, u'n'), true);
  filter->setPlaceholderText(QStringLiteral("Filtra per denominazione"));
  filter->setAccessibleName(filter->placeholderText());
  filter->addAction(icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
  QWidget* const save = pageOf(
      {Kit::text(QStringLiteral("&Denominazione (Max 100 caratteri)"), Type::Hint, name), name,
       row({Piece::gap(), kit.button("Command4", {.kind = ButtonKind::Primary, .icon = "save"})}), hint, Piece::gap(),
       row({kit.button("Cmd_Riprendi", {.kind = ButtonKind::Quiet, .icon = "reload"}), Piece::gap()})});
  GridView* const saved =
      kit.grid("FgPir1", {.name = QStringLiteral("Configurazioni salvate"),
                          .samples = {{}, QStringLiteral("888"), QString(30, u'n'), QStringLiteral("8888")}});
  return holding(row({narrow(save, 58),
                      Piece::space(),
                      {column({row({kit.button("Cmd_Elenco", {.icon = "reload"}), filter, Piece::gap(),
                                    kit.button("Command54", {.kind = ButtonKind::Danger, .icon = "trash"})}),
                               {saved, 1}}),
                       1}}));
}

}  // namespace trv5
