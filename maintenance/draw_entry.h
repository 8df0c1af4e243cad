#pragma once

#include <array>
#include <string_view>

#include "core/draw_writer.h"
#include "core/shell.h"
#include "maintenance/entry_boxes.h"

namespace trv5 {

class Archivio;

/// The stamp of a draw written now.
Registration registrationNow(Shell& shell);

/// SALVA ESTRAZIONE: the boxes as a new draw of the calendar's date. The numbers aren't tested.
void SalvaEstrazione(Archivio& a);

/// MODIFICA ESTRAZIONE: the boxes as the numbers of the draw shown, which keeps its date.
void ModificaEstrazione(Archivio& a);

/// ELIMINA ESTRAZIONE: takes the draw shown out of the archive; one that isn't there any more is passed over.
void EliminaEstrazione(Archivio& a);

/// INCOLLA ESTRAZIONE: the numbers of the clipboard into the boxes.
void IncollaEstrazione(Archivio& a);

/// The numbers in a text, one for each run of digits, the first 55; 0 for those that are missing. Runs of digits that
/// are no small number give 1000 at most.
std::array<int, EntryBoxes::kBoxes> numbersInText(std::string_view text);

}  // namespace trv5
