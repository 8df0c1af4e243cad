#pragma once

#include "maintenance/archivio.h"

class QWidget;

namespace trv5 {

/// The tab "Elenco estrazioni".
QWidget* archiveListPage(Archivio& form);

}  // namespace trv5
