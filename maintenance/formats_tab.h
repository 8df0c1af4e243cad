#pragma once

namespace trv5 {

class Archivio;

/// Connects the operations of the tab Salvataggi: the files for other programs, the defaults, the settings.
void connectFormatsTab(Archivio& archivio);

/// The settings of the tab, from the parameters.
void MostraImpostazioni(Archivio& archivio);

}  // namespace trv5
