#pragma once

namespace trv5 {

class Archivio;

// What all tabs of the archive's screen share: the archive read again, and shown.

/// Reads the whole archive again after a change: draws in memory, list and status block of the shell, the list of the
/// screen. Throws what the load throws; the archive in memory then stays as it was.
void RicaricaArchivio(Archivio& a);

/// Number of draws and last date, on the screen and in the shell, and the scroller at the last draw, which is shown
/// also when the scroller stood there.
void AggiornaMaschera(Archivio& a);

/// Change of `HScrestrazione`: index, date, progressives and numbers of its draw. An archive without draws shows the
/// empty draw 0.
void MostraEstrazione(Archivio& a);

/// The scroller at a draw, which is shown also when the scroller stood there.
void VaiEstrazione(Archivio& a, int draw);

}  // namespace trv5
