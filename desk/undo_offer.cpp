#include "desk/undo_offer.h"

#include <algorithm>
#include <string_view>

#include "desk/workbench_buttons.h"

namespace trv5 {
namespace {

// What empties something, and the line that says so in the status bar.
struct Emptying {
  std::string_view control;
  const char* line;
};
constexpr Emptying kEmptying[] = {
    {"Command41", "Nuova configurazione: tutti i risultati sono stati tolti"},
    {"Command27", "Segni delle verifiche cancellati"},
    {"Command8", "Numeri deselezionati"},
    {"Label1_0", "Ruote di gioco rese bianche"},
    {"Label18", "Ruote di gioco deselezionate"},
    {"Label19", "Ruote di rilevazione deselezionate"},
    {"TxtNumeri", "Numeri cancellati"},
    {"Txt_Denominazione", "Denominazione cancellata"},
    {"Command19", "Tabella delle ambate svuotata"},
    {"Nuova_Fg22", "Tabella degli ambi svuotata"},
    {"Nuova_Fg33", "Tabella dei terni svuotata"},
    {"Nuova_Fg00", "Tabella della lunghetta svuotata"},
    {"Command32", "Riga rimossa"},
    {"Rimuove_Fg22", "Riga rimossa"},
    {"Rimuove_Fg33", "Riga rimossa"},
    {"Rimuove_Fg00", "Riga rimossa"},
    {"Command75", "Celle degli esiti pulite"},
    {"Pulisce_FgZ2", "Celle degli esiti pulite"},
    {"Pulisce_FgZ3", "Celle degli esiti pulite"},
    {"Command97", "Celle degli esiti pulite"},
    {"Pulisce_FgZ0", "Celle degli esiti pulite"},
};

bool isSearch(std::string_view name) {
  for (const WorkbenchButtons& group : workbenchButtons()) {
    if (!std::string_view(group.place).starts_with("Ricerca, pagina")) continue;
    if (std::any_of(group.buttons.begin(), group.buttons.end(),
                    [&](const WorkbenchButton& row) { return name == row.name; }))
      return true;
  }
  return false;
}

// Searches and detections say themselves what they found: lost is what stood there before.
bool replaced(const Workbench& w, std::string_view name, const FormState& before) {
  if (name == "Command44" || name == "Command87" || name == "FgPir1") return gridIn(before, w.FgEv).dataRows() > 0;
  return isSearch(name) && gridIn(before, w.FgF).dataRows() > 0;
}

void offerAfter(Workbench& w, const Control& source, const FormState& before) {
  const Button& undo = w.button("Cmd_Annulla");
  const auto* const emptying = std::find_if(std::begin(kEmptying), std::end(kEmptying),
                                            [&](const Emptying& row) { return row.control == source.name(); });
  if (emptying != std::end(kEmptying)) {
    w.shell().status(emptying->line);
    w.shell().offer(&undo);
  } else if (replaced(w, source.name(), before)) {
    w.shell().offer(&undo);
  }
}

std::string tip(const char* what, const std::string& name) {
  return name.empty() ? std::string(what) + " l'ultima modifica" : std::string(what) + ": " + name;
}

}  // namespace

void connectUndo(Workbench& w) {
  Button &undo = w.button("Cmd_Annulla"), &redo = w.button("Cmd_Ripeti");
  undo.leaveOutOfState();
  redo.leaveOutOfState();
  w.FgPir1.leaveOutOfState();  // shows the database, where nothing is taken back
  w.history.changed = [&w, &undo, &redo] {
    undo.setEnabled(w.history.canUndo());
    redo.setEnabled(w.history.canRedo());
    undo.setToolTip(w.history.canUndo() ? tip("Annulla", w.history.undoName()) : "Niente da annullare");
    redo.setToolTip(w.history.canRedo() ? tip("Ripete", w.history.redoName()) : "Niente da ripetere");
  };
  w.history.recorded = [&w](const Control& source, const FormState& before) { offerAfter(w, source, before); };
}

}  // namespace trv5
