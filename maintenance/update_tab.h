#pragma once

#include "maintenance/transfer.h"

namespace trv5 {

class Archivio;

/// Connects the operations of the tab Aggiornamenti. They have two stages that the user starts apart: one fills
/// `FgImporta` and marks it, the other writes by the marks. Nothing but the texts and colours of the grid passes from
/// one to the other.
///
/// Marks: a date on orange is missing in the archive; a date in red and bold is there with a wheel that differs; a
/// wheel on green agrees.
void connectUpdateTab(Archivio& archivio, BeginTransfer begin = {});

/// Where the update comes from, or where that is told, as the tab shows it.
void MostraServer(Archivio& archivio);

}  // namespace trv5
