#pragma once

#include "maintenance/archivio.h"

class QWidget;

namespace trv5 {

/// The tab "Gestione estrazioni": a draw and its date, and the calendar of a year.
QWidget* archiveEntryPage(Archivio& form);

}  // namespace trv5
