#pragma once

namespace trv5 {

class Archivio;

/// Connects the operations of the tab Copie: the copies of the archive, and the look at the archive itself.
void connectCopiesTab(Archivio& a);

}  // namespace trv5
