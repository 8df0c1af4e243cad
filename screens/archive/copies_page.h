#pragma once

#include "maintenance/archivio.h"

class QWidget;

namespace trv5 {

/// The tab "Copie": the copies of the archive at the left, what the check of the archive found at the right.
QWidget* archiveCopiesPage(Archivio& form);

}  // namespace trv5
