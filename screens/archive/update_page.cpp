#include "screens/archive/update_page.h"

#include <QMenu>

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
       note("CONTROLLO AGGIORNAMENTI scarica il file delle estrazioni e lo confronta con l'archivio. AGGIORNA DA FILE "
            "confronta un file del disco."),
       note("Nessuno dei due scrive nell'archivio: lo fa AGGIORNAMENTO, con le sole estrazioni segnate."),
       note("Le estrazioni errate si correggono solo con la casella Corregge estrazioni errate."),
       note("SCARICO FILE scarica il file senza confrontarlo.")}));
}

}  // namespace

QWidget* archiveUpdatePage(Archivio& form) {
  Kit kit(form);
  std::vector<QString> samples = {QString(), QStringLiteral("88/88/8888")};
  samples.resize(2 + kWheels, QStringLiteral("88-88-88-88-88"));
  QLayout* const commands = row(
      {kit.button("Command18", {.kind = ButtonKind::Primary, .icon = "download", .mnemonic = 'T'}),
       kit.button("Command21", {.icon = "folder", .mnemonic = 'F'}), kit.button("Command27", {.icon = "download"}),
       Piece::space(), kit.check("Check3"), kit.button("Command28", {.icon = "save"}), Piece::gap(),
       otherCommands(form), kit.button("Command23", {.kind = ButtonKind::Quiet, .icon = "help", .iconOnly = true})});
  GridView* const rows = kit.grid(
      "FgImporta", {.name = QStringLiteral("Estrazioni del file"), .samples = samples, .folded = {0}, .evenFrom = 2});
  QLabel* const server = kit.label("Lbl_Server", Type::Small);
  server->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  QWidget* const found = holding(
      column({Kit::text(QStringLiteral("Elenco estrazioni mancanti"), Type::Title), {kit.lines("List4", 6), 1}}));
  QWidget* const page = holding(column({commands, server, {row({{rows, 3}, {found, 1}}), 1}, notes()}));
  padAsPage(*page);
  return page;
}

}  // namespace trv5
