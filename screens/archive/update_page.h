#pragma once

#include "maintenance/archivio.h"

class QWidget;

namespace trv5 {

/// The tab "Aggiornamenti".
QWidget* archiveUpdatePage(Archivio& form);

}  // namespace trv5
