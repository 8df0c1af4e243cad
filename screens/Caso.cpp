#include "screens/Caso.h"

#include <QVBoxLayout>
#include <algorithm>

#include "core/text.h"
#include "engine/luck_texts.h"
#include "screens/kit/paper_chart.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// A text of some lines whose room is always there, so that nothing moves when it comes.
QLabel* lines(QLabel* label, int count) {
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  withTheme(*label, [label, count] {
    label->ensurePolished();
    label->setFixedHeight(count * label->fontMetrics().lineSpacing() + 2);
  });
  return label;
}

}  // namespace

CasoScreen::CasoScreen(Caso& form)
    : Screen(form),
      m_form(form),
      m_chart(new PaperChart(QStringLiteral("Casi coperti dalla migliore formula di ogni archivio"))) {
  m_chart->setObjectName(QStringLiteral("Barre"));
  m_chart->setEmptyText(qs(form.Fg_Conti.emptyText()));
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(head());
  layout->addWidget(lines(kit.label("LblFrase", Type::Title), 2));
  layout->addWidget(lines(kit.label("LblSerie", Type::Small), 1));
  GridView* const counts = kit.grid("Fg_Conti", {.name = QStringLiteral("Merito del caso"),
                                                 .samples = {QStringLiteral("Almeno"), QStringLiteral("99.999"),
                                                             QStringLiteral("99.999,9"), QStringLiteral("100.000")},
                                                 .fitsFill = true});
  layout->addLayout(row({{m_chart, 436}, {counts, 280}}), 1);
  layout->addWidget(lines(kit.label("LblColonne", Type::Small), 2));
  layout->addWidget(lines(kit.label("LblFermi", Type::Small), 3));
  layout->addLayout(foot());
  withTheme(*this, [layout] {
    const int margin = Theme::current().unit() * 2;
    layout->setContentsMargins(margin, margin / 2, margin, margin / 2);
    layout->setSpacing(Theme::current().unit());
  });
  setFocusPolicy(Qt::ClickFocus);
  setFocusProxy(counts);
  m_form.barsChanged = [this] { showBars(); };
  showBars();
}

CasoScreen::~CasoScreen() {
  m_form.barsChanged = {};
}

QLayout* CasoScreen::head() {
  QLabel* const origin = kit.label("LblOrigine", Type::Title);
  origin->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return row({{origin, 1},
              kit.button("Stampa_Fg_Conti", {.kind = ButtonKind::Quiet, .icon = "print"}),
              kit.button("Copia_Fg_Conti", {.kind = ButtonKind::Quiet, .icon = "copy"})});
}

QLayout* CasoScreen::foot() {
  return row({Kit::captioned(QStringLiteral("&Repliche"), kit.combo("ComboRepliche", QStringLiteral("99.999"))),
              Kit::captioned(QStringLiteral("&Seme"), kit.edit("Txt_Seme", QStringLiteral("8888888888"))),
              kit.label("LblConto", Type::Small), Piece::gap(),
              kit.button("Cmd_Ferma", {.icon = "stop", .mnemonic = 'F'}),
              kit.button("Cmd_Sorteggia", {.kind = ButtonKind::Primary, .icon = "play", .mnemonic = 'o'})});
}

// From one count below the least that luck or the own search reaches to the most, the empty ones between them too.
void CasoScreen::showBars() {
  const Caso::Bars& bars = m_form.bars();
  if (bars.best == 0) return m_chart->clear();
  const std::vector<int>& replicas = bars.replicasByBest;
  const auto first = std::find_if(replicas.begin(), replicas.end(), [](int count) { return count > 0; });
  const int least = std::max(0, std::min(static_cast<int>(first - replicas.begin()), bars.best) - 1);
  const int most = std::max(static_cast<int>(replicas.size()) - 1, bars.best);
  BarChart chart{.bars = {}, .own = bars.best - least, .rare = bars.rare};
  for (int cases = least; cases <= most; ++cases) {
    const auto at = static_cast<std::size_t>(cases);
    const int count = at < replicas.size() ? replicas[at] : 0;
    chart.bars.push_back(
        {QString::number(cases), qs(thousands(count)), static_cast<double>(count), cases >= bars.best});
  }
  chart.ownText = QStringLiteral("la tua: ") + qs(counted(bars.best, "caso", "casi"));
  m_chart->setBars(std::move(chart));
}

std::vector<std::string> CasoScreen::printHeader(const GridControl& grid) const {
  std::vector<std::string> header = Screen::printHeader(grid);
  for (const Label* const label : {&m_form.LblOrigine, &m_form.LblFrase, &m_form.LblSerie, &m_form.LblFermi})
    if (!label->text().empty()) header.push_back(label->text());
  return header;
}

}  // namespace trv5
