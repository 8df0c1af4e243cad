#pragma once

namespace trv5 {

class Archivio;

/// "Carica calendario": the draws of the year of `Combo1` in `Fg1`, by month and day; its last draw is selected, and
/// the grid gets the focus.
void CaricaCalendario(Archivio& a);

/// Double click on `Fg1`: the draw of that day, in the boxes, the month calendar and `Text1`; a day without a draw does
/// nothing.
void ScegliDalCalendario(Archivio& a, int row, int column);

/// Change of the month calendar: its date in `Text1`.
void RiportaData(Archivio& a);

/// "Imposta data": the date of `Text1` into the month calendar. A text that is no date of the calendar leaves it.
void ImpostaData(Archivio& a);

/// "Imposta data odierna".
void ImpostaDataOdierna(Archivio& a);

/// The years of `Combo1`, the last one chosen.
void CaricaAnni(Archivio& a);

}  // namespace trv5
