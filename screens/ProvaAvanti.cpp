#include "screens/ProvaAvanti.h"

#include <QVBoxLayout>

#include "screens/kit/paper_chart.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// A sentence, whose place stands from the beginning: a line, or more where it needs them.
QLabel* sentence(QLabel* label) {
  label->setWordWrap(true);
  withTheme(*label, [label] {
    label->ensurePolished();
    label->setMinimumHeight(label->fontMetrics().lineSpacing() + 1);  // as high as with a text
  });
  return label;
}

}  // namespace

ProvaAvantiScreen::ProvaAvantiScreen(ProvaAvanti& form)
    : Screen(form),
      m_form(form),
      m_chart(new PaperChart(QStringLiteral("Casi coperti in più o in meno del caso, prova dopo prova"))) {
  const auto quiet = [this](const char* name, const char* icon) {
    return kit.button(name, {.kind = ButtonKind::Quiet, .icon = icon});
  };
  auto* const layout = new QVBoxLayout(this);
  const int padding = 2 * Theme::current().unit();
  layout->setContentsMargins(padding, padding, padding, padding);
  layout->addLayout(row({{sentence(kit.label("LblRicerca", Type::Title)), 1},
                         quiet("Stampa_Fg_Prove", "print"),
                         quiet("Copia_Fg_Prove", "copy")}));
  layout->addWidget(sentence(kit.label("LblFrase", Type::Title)));
  layout->addWidget(sentence(kit.label("LblDettaglio", Type::Small)));

  m_chart->setEmptyText(QStringLiteral("Premi Prova"));
  GridView* const tests = kit.grid(
      "Fg_Prove",
      {.name = QStringLiteral("Prove"),
       .samples = {QStringLiteral("88/88/8888"), QStringLiteral("MI 2+MI 5"), QStringLiteral("88"),
                   QStringLiteral("88"), QStringLiteral("88"), QStringLiteral("88"), QStringLiteral("MI-MI-MI")}});
  layout->addLayout(row({{m_chart, 508}, {tests, 348}}), 1);

  layout->addLayout(row({Kit::captioned(QStringLiteral("&Casi da cui imparare"), kit.combo("ComboImpara")),
                         kit.label("LblVisti", Type::Small), Piece::gap(), kit.label("LblConto", Type::Small),
                         kit.button("Cmd_Ferma", {.icon = "stop", .mnemonic = 'F'}),
                         kit.button("Cmd_Prova", {.kind = ButtonKind::Primary, .icon = "play", .mnemonic = 'P'})}));
  m_figures = form.figuresChanged.subscribe([this] { showCurve(); });
  showCurve();
}

void ProvaAvantiScreen::showCurve() {
  const std::vector<ForwardTest>& tests = m_form.figures().tests;
  if (tests.empty()) return m_chart->clear();
  CurveChart curve{.points = {},
                   .ticks = {},
                   .curve = QStringLiteral("formula scelta"),
                   .expected = QStringLiteral("caso"),
                   .band = QStringLiteral("95 archivi sorteggiati su 100")};
  for (const ForwardTest& test : tests) curve.points.push_back({test.ahead, test.low, test.high});
  for (const ProvaAvanti::YearTick& tick : m_form.yearTicks())
    curve.ticks.push_back({tick.test, QString::fromStdString(tick.year)});
  m_chart->setCurve(std::move(curve));
}

}  // namespace trv5
