#pragma once

namespace trv5 {

class Archivio;

/// "Ricerca per data": the scroller by a date of the model archive. It gets the place in the model archive and not the
/// draw that stands there: the same where the model begins at draw 1.
void RicercaPerData(Archivio& a);

/// "Ricerca per numero indice": the scroller by an index from 20 on.
void RicercaPerIndice(Archivio& a);

/// Click on `pAN_DC`: the scroller by any index; one that the archive lacks leaves it where it stood.
void ChiediIndice(Archivio& a);

/// "Vai ultima estrazione".
void VaiUltimaEstrazione(Archivio& a);

}  // namespace trv5
