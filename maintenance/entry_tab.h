#pragma once

namespace trv5 {

class Archivio;

/// Connects the operations of the tabs "Gestione estrazioni" and "Elenco estrazioni".
void connectEntry(Archivio& a);

/// The opening of the screen. An archive that can't be read is told in a box, and the screen shows the draws in memory.
void ApreArchivio(Archivio& a);

}  // namespace trv5
