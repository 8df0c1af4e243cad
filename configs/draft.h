#pragma once

#include <filesystem>
#include <optional>

#include "cases/workbench.h"

namespace trv5 {

/// The work that stood on the workbench when the program ended, kept beside the main database as an export file of one
/// configuration. What a configuration doesn't keep stands in rows of table 0: the name of a control and its value.
std::filesystem::path draftFile(const Workbench& w);

/// Writes the draft, in place of the one before; an empty workbench (no case, no formula) leaves that. Throws
/// UserError.
void keepDraft(const Workbench& w);

/// When the draft was written, local time; nothing when there is none.
std::optional<DateTime> draftTime(const Workbench& w);

/// Where a draft is there: the button that takes it up says from when it is, and the status bar offers it.
void offerDraft(Workbench& w);

/// "Riprendi il lavoro del ..": the workbench as the draft tells, its cases and verifications worked out anew.
void RiprendiLavoro(Workbench& w);

}  // namespace trv5
