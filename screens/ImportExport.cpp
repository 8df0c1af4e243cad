#include "screens/ImportExport.h"

#include <QVBoxLayout>

#include "screens/kit/theme.h"

namespace trv5 {
namespace {

const QString kFileCaption = QStringLiteral("File di destinnazione (deve essere il file Mdb specifico)");

QLabel* wrapped(QLabel* label) {
  label->setWordWrap(true);
  return label;
}

QWidget* padded(const std::vector<Piece>& pieces) {
  QWidget* const page = holding(column(pieces));
  padAsPage(*page);
  return page;
}

ElidedLabel* pathOf(Kit& kit, const char* name) {
  ElidedLabel* const path = kit.path(name);
  path->setAccessibleName(kFileCaption);
  return path;
}

QListWidget* logOf(Kit& kit, const char* name, const QString& spoken) {
  QListWidget* const log = kit.lines(name, 4);
  log->setAccessibleName(spoken);
  return log;
}

QWidget* exportTab(Kit& kit) {
  GridView* const saved = kit.grid("Fg1", {.name = QStringLiteral("Configurazioni da esportare"),
                                           .samples = {{}, QStringLiteral("8888"), QString(40, u'n')}});
  return padded(
      {row({kit.button("Command1", {.icon = "reload", .mnemonic = 'L'}), Piece::gap()}),
       {saved, 2},
       row({kit.button("Command2", {.icon = "folder", .mnemonic = 'S'}), Piece::gap()}),
       Kit::text(kFileCaption, Type::Hint),
       pathOf(kit, "Label1"),
       row({Piece::gap(), kit.button("Command3", {.kind = ButtonKind::Primary, .icon = "exchange", .mnemonic = 'E'})}),
       logOf(kit, "List1", QStringLiteral("Passi dell'esportazione"))});
}

QWidget* importTab(Kit& kit) {
  QLineEdit* const name = kit.edit("Txt_Denominazione");
  name->setAccessibleName(QStringLiteral("Denominazione"));
  QLabel* const meaning = wrapped(Kit::text(
      QStringLiteral("Se lo sfondo è di colore rosso la denominazione è già presente nel database di destinazione. "
                     "Modificare la denominazione"),
      Type::Hint));
  return padded(
      {row({kit.button("Command4", {.icon = "folder", .mnemonic = 'F'}), Piece::gap()}),
       Kit::text(kFileCaption, Type::Hint),
       pathOf(kit, "Label4"),
       row({{name, 1},
            kit.button("Command5", {.kind = ButtonKind::Quiet, .icon = "reload", .iconOnly = true}),
            {meaning, 1}}),
       row({Piece::gap(), kit.button("Command6", {.kind = ButtonKind::Primary, .icon = "exchange", .mnemonic = 'I'})}),
       {logOf(kit, "List2", QStringLiteral("Passi dell'importazione")), 1}});
}

QWidget* remarksTab(Kit& kit) {
  const QString remarks[] = {
      QStringLiteral("Il file di scambio è un file Mdb specifico, di nome \"TRV5_Export.mdb\": contiene una sola "
                     "configurazione per volta, e ogni esportazione sostituisce quella di prima."),
      QStringLiteral("Potete rinominarlo a vostra discrezione ma dovete lasciare la stessa estensione .Mdb"),
      QStringLiteral("Chi lo riceve lo sceglie nella scheda Importazione, cambia la denominazione se lo sfondo è "
                     "rosso, importa, e preme ELENCO per vedere la nuova riga.")};
  std::vector<Piece> pieces;
  for (const QString& remark : remarks) pieces.emplace_back(wrapped(Kit::text(remark)));
  pieces.emplace_back(row({kit.button("Cmd_CreaVuoto", {.icon = "file", .mnemonic = 'C'}), Piece::gap()}));
  pieces.emplace_back(Piece::gap());
  return padded(pieces);
}

}  // namespace

ImportExportScreen::ImportExportScreen(ImportExport& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  auto* const panel = new Panel;
  panel->setBare();
  panel->body()->addWidget(kit.tabs("SSTab1", {exportTab(kit), importTab(kit), remarksTab(kit)}));
  layout->addWidget(panel);
}

}  // namespace trv5
