#pragma once

#include "maintenance/archivio.h"

class QWidget;

namespace trv5 {

/// The tab "Salvataggi".
QWidget* archiveFormatsPage(Archivio& form);

}  // namespace trv5
