#include "screens/archive/formats_page.h"

#include "screens/kit/kit.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

QLabel* remark(const char* text) {
  QLabel* const label = Kit::text(QString::fromUtf8(text), Type::Small);
  label->setWordWrap(true);
  return label;
}

QWidget* datiPanel(Kit& kit) {
  auto* const panel = new Panel(QStringLiteral("Dati.iii"));
  panel->body()->addLayout(row({kit.button("Command10", {.icon = "save"}), Piece::gap()}));
  panel->body()->addLayout(
      row({Kit::text(QStringLiteral("Percorso"), Type::Hint), {kit.path("Label13"), 1}, kit.button("Command35")}));
  panel->body()->addWidget(kit.check("Check1"));
  return panel;
}

QWidget* ruotafastPanel(Kit& kit) {
  auto* const panel = new Panel(QStringLiteral("Ruotafast"));
  panel->body()->addLayout(row({kit.button("Command7", {.icon = "save"}), Piece::gap()}));
  panel->body()->addWidget(
      remark("Attenzione, questo file deve essere obbligatoriamente salvato nella cartella C:/Brnt3/ ....."));
  return panel;
}

QWidget* nationalPanel(Kit& kit) {
  auto* const panel = new Panel(QStringLiteral("Nazionale"));
  panel->body()->addLayout(row({kit.button("Command34", {.icon = "save"}), Piece::gap()}));
  return panel;
}

QWidget* addressPanel(Kit& kit) {
  auto* const panel = new Panel(QStringLiteral("Indirizzo internet"));
  QLineEdit* const address = kit.edit("Text2");
  address->setAccessibleName(QStringLiteral("Indirizzo internet"));
  panel->body()->addWidget(address);
  panel->body()->addLayout(
      row({kit.button("Command16", {.icon = "clipboard"}), kit.button("Command15"), Piece::gap()}));
  panel->body()->addWidget(
      remark("Per modificare l'indirizzo internet predefinito, copiare l'indirizzo desiderato ed incollarlo in questa "
             "casella dopodichè usare il pulsante RENDE PREDEFINITO"));
  return panel;
}

QWidget* settingsPanel(Kit& kit) {
  auto* const panel = new Panel(QStringLiteral("Impostazioni"));
  for (const auto& [caption, name] : {std::pair("Cartella di Ruotafast", "Txt_CartellaRuotafast"),
                                      std::pair("Server web delle estrazioni", "Txt_ServerWeb"),
                                      std::pair("Server FTP delle estrazioni", "Txt_ServerFtp")}) {
    QLineEdit* const edit = kit.edit(name);
    panel->body()->addWidget(Kit::text(QString::fromUtf8(caption), Type::Hint, edit));
    edit->setAccessibleName(QString::fromUtf8(caption));
    panel->body()->addWidget(edit);
  }
  panel->body()->addLayout(row({kit.button("Cmd_Impostazioni"), Piece::gap()}));
  return panel;
}

}  // namespace

QWidget* archiveFormatsPage(Archivio& form) {
  Kit kit(form);
  QLayout* const files = column({datiPanel(kit), ruotafastPanel(kit), nationalPanel(kit), Piece::gap()});
  QLayout* const settings = column({addressPanel(kit), settingsPanel(kit), Piece::gap()});
  QLabel* const warning = remark(
      "Attenzione: questi due formati non prevedono i dati della ruota nazionale. Vengono salvate le estrazioni "
      "delle 10 ruote classiche.");
  QWidget* const page = holding(column(
      {row({{warning, 1}, kit.button("Command25", {.kind = ButtonKind::Quiet, .icon = "help", .iconOnly = true})}),
       {row({{files, 1}, {settings, 1}}), 1}}));
  padAsPage(*page);
  return page;
}

}  // namespace trv5
