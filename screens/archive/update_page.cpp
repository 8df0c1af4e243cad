#include "screens/archive/update_page.h"

#include <QMenu>
#include <QStyle>

#include "maintenance/update_grid.h"
#include "screens/kit/kit.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// What isn't needed every day, and has no place of its own.
QToolButton* otherCommands(Archivio& form) {
  auto* const button = new QToolButton;
  button->setText(QStringLiteral("Altro"));
  button->setAccessibleName(button->text());
  dress(*button, {.icon = "more"});
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setFocusPolicy(Qt::StrongFocus);
  auto* const menu = new QMenu(button);
  QObject::connect(menu, &QMenu::aboutToShow, menu, [&form, menu] {
    menu->clear();
    for (Button* const command : {&form.Cmd_Storico, &form.Command20, &form.Command19, &form.Command26}) {
      QAction* const entry = menu->addAction(qs(command->caption()), menu, [command] { command->press(); });
      entry->setEnabled(command->enabled());
    }
  });
  button->setMenu(menu);
  return button;
}

QWidget* note(const char* text) {
  QLabel* const label = Kit::text(QString::fromUtf8(text), Type::Small);
  label->setWordWrap(true);
  return label;
}

QWidget* colourNote(Rgb colour, const char* text) {
  auto* const label = new ClickLabel;
  label->setProperty("type", QLatin1String("small"));
  label->setText(QString::fromUtf8(text));
  label->setSwatch(colour);
  label->setFocusPolicy(Qt::NoFocus);
  return label;
}

QWidget* notes() {
  return holding(column(
      {colourNote(AranciaMedio, "Lo sfondo arancione nella colonna della data identifica le estrazioni da importare"),
       colourNote(Rosso,
                  "La data in rosso e lo sfondo di una ruota bianco identifica una estrazione  con errori in quella "
                  "ruota"),
       note("L'aggiornamento automatico non è un servizio garantito"),
       note("Di norma, se non ci sono impedimenti, l'aggiornamento dovrebbe essere disponibile il giorno successivo "
            "all'ultima estrazione"),
       note("Inoltre la disponibilità non è immediata ma potrebbe richiedere qualche giorno dopo l'ultima estrazione "
            "effettuata. "),
       note("Il controllo viene effettuato nelle ultime 100 estrazioni. Per l'archivio completo contattare il "
            "programmatore")}));
}

// Of the two stages the one that comes next is the primary button: a row that is marked waits for the second.
void leadToNextStage(const Archivio& form, QPushButton& check, QPushButton& update, const GridView& rows) {
  const auto lead = [&form, &check, &update] {
    const bool marked = hasUpdateMarks(form.FgImporta);
    dress(check, {.kind = marked ? ButtonKind::Secondary : ButtonKind::Primary, .icon = "download"});
    dress(update, {.kind = marked ? ButtonKind::Primary : ButtonKind::Secondary, .icon = "save"});
    for (QPushButton* const button : {&check, &update}) {
      button->style()->unpolish(button);
      button->setFont({});  // the bold type of the primary one would stay
      button->style()->polish(button);
    }
  };
  QObject::connect(rows.model(), &QAbstractItemModel::dataChanged, &update, lead);
  QObject::connect(rows.model(), &QAbstractItemModel::rowsRemoved, &update, lead);
  lead();
}

}  // namespace

QWidget* archiveUpdatePage(Archivio& form) {
  Kit kit(form);
  std::vector<QString> samples = {QString(), QStringLiteral("88/88/8888")};
  samples.resize(2 + kWheels, QStringLiteral("88-88-88-88-88"));
  QPushButton* const check = kit.button("Command18", {.icon = "download", .mnemonic = 'T'});
  QPushButton* const update = kit.button("Command28", {.icon = "save"});
  QLayout* const commands = row(
      {check, kit.button("Command21", {.icon = "folder", .mnemonic = 'F'}),
       kit.button("Command27", {.icon = "download"}), Piece::space(), kit.check("Check3"), update, Piece::gap(),
       otherCommands(form), kit.button("Command23", {.kind = ButtonKind::Quiet, .icon = "help", .iconOnly = true})});
  GridView* const rows = kit.grid("FgImporta", {.name = QStringLiteral("Estrazioni del file"),
                                                .samples = samples,
                                                .folded = {0},
                                                .fitsFill = true,
                                                .evenFrom = 2,
                                                .atEnd = true});
  leadToNextStage(form, *check, *update, *rows);
  QLabel* const server = kit.label("Lbl_Server", Type::Small);
  server->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  QWidget* const found = holding(
      column({Kit::text(QStringLiteral("Elenco estrazioni mancanti"), Type::Title), {kit.lines("List4", 6), 1}}));
  QWidget* const page = holding(column({commands, server, {row({{rows, 3}, {found, 1}}), 1}, notes()}));
  padAsPage(*page);
  return page;
}

}  // namespace trv5
