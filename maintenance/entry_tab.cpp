#include "maintenance/entry_tab.h"

#include <string>

#include "core/archive_load.h"
#include "core/errors.h"
#include "maintenance/archive_state.h"
#include "maintenance/archivio.h"
#include "maintenance/draw_entry.h"
#include "maintenance/draw_list.h"
#include "maintenance/draw_search.h"
#include "maintenance/entry_calendar.h"

namespace trv5 {
namespace {

void connectHelp(Archivio& a) {
  const auto opens = [&a](Button& button, int context) {
    button.onEvent([&a, context] {
      a.setHelpContext(context);
      a.shell().help(context);
    });
  };
  opens(a.CmDHelp, Archivio::kHelpContext);
  opens(a.Command22, Archivio::kHelpContext + 10);
  opens(a.Command23, Archivio::kHelpContext + 20);
  opens(a.Command25, Archivio::kHelpContext + 30);
}

void connectCalendars(Archivio& a) {
  a.MonthView1.onEvent([&a] { RiportaData(a); });
  a.Command6.onEvent([&a] { ImpostaData(a); });
  a.Command9.onEvent([&a] { ImpostaDataOdierna(a); });
  for (Control* const control :
       {static_cast<Control*>(&a.Command24), static_cast<Control*>(&a.Combo1), static_cast<Control*>(&a.Check2)})
    control->onEvent([&a] { CaricaCalendario(a); });
  a.Fg1.onCellDoubleClick([&a](int row, int column) { ScegliDalCalendario(a, row, column); });
}

void connectList(Archivio& a) {
  a.FgDB.onCellClick([&a](int row, int) { EvidenziaRiga(a, row); });
  a.FgDB.onKey([&a](const Key& key) {
    if (key.code != Key::Code::Enter || key.control || key.alt) return false;
    SelezionaEstrazione(a);
    return true;
  });
  a.Command11.onEvent([&a] { SelezionaEstrazione(a); });
  a.Command13.onEvent([&a] { a.FgDB.scrollTo(a.FgDB.rows() - 1); });
  a.Command14.onEvent([&a] { a.FgDB.scrollTo(1); });
}

void readTable(Archivio& a) {
  try {
    CaricaTabellaArchivio(a.program, a.FgDB);
    a.Label9.setText(std::to_string(a.program.archive.NumEstrazioni()));
  } catch (const UserError& error) {
    a.shell().message(
        {.text = error.what(), .title = error.title(), .icon = Icon::Critical, .reason = error.details()});
  }
}

}  // namespace

void connectEntry(Archivio& a) {
  a.HScrestrazione.onEvent([&a] { MostraEstrazione(a); });
  a.pAN_DC.onEvent([&a] { ChiediIndice(a); });
  a.txtin.changed = [&a] { a.Lbl_Controllo.setText(remarkOnBoxes(a.txtin.texts())); };
  a.Command59.onEvent([&a] { RicercaPerData(a); });
  a.Command42.onEvent([&a] { RicercaPerIndice(a); });
  a.Command4.onEvent([&a] { VaiUltimaEstrazione(a); });
  a.Command8.onEvent([&a] { SalvaEstrazione(a); });
  a.Command3.onEvent([&a] { ModificaEstrazione(a); });
  a.Command2.onEvent([&a] { EliminaEstrazione(a); });
  a.Command12.onEvent([&a] { IncollaEstrazione(a); });
  a.Command1.onEvent([&a] { a.txtin.clear(); });
  a.Command5.onEvent([&a] { a.shell().openAddress(a.Label5.text()); });
  connectCalendars(a);
  connectList(a);
  connectHelp(a);
}

void ApreArchivio(Archivio& a) {
  const Parameters parameters = a.program.parameters();
  a.SSTab1.set(Archivio::kGestione);
  const std::string address = parameters.Valore1("Indirizzointernet").value_or("");
  a.Label5.setText(address);
  a.Text2.set(address);
  AggiornaMaschera(a);
  readTable(a);
  VaiEstrazione(a, a.program.archive.NumEstrazioni());
  ImpostaDataOdierna(a);
  CaricaAnni(a);
  if (const auto path = parameters.Valore1("PercorsoDati.iii")) a.Label13.setText(*path);
}

}  // namespace trv5
