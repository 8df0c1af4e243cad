#pragma once

namespace trv5 {

class Archivio;

/// Click on `FgDB`: its row in yellow, all others white.
void EvidenziaRiga(Archivio& a, int row);

/// "Selezione estrazione": the current row of `FgDB` as the draw shown, on the first tab. The number of the row is the
/// index of the draw.
void SelezionaEstrazione(Archivio& a);

}  // namespace trv5
