#pragma once

#include <string>

#include "cases/workbench.h"

namespace trv5 {

// What each result was made from, noted by the operation that makes it, and whether that still stands on the screen.

/// After a detection: the cases come from the situation chosen now, and bear no marks yet.
void noteCases(Workbench& w);

/// After a verification of a table up to the reference draw, or beyond it to the end of the archive.
void noteHits(Workbench& w, Table table, bool beyondLimit = false);

/// After a row alone has been verified into `FgZ1`.
void noteTriedRow(Workbench& w, const FormulaRow& row);

/// The marks in a column of `FgEv` from S1 on come from these too.
void noteMarks(Workbench& w, int column, const std::vector<Origin>& from);
/// The elaboration of the lunghetta marks cases of its own.
void noteElaboration(Workbench& w);

/// After `FgSSS` has counted the marks.
void noteTotals(Workbench& w);

/// After `Fg_Stat` has been filled from what a grid shows.
void noteStatistics(Workbench& w, const GridControl& from);

/// After the hits of the chosen tables have been joined in `FgZZ`.
void noteSummary(Workbench& w);

/// After `Fg15` and `NumeriInGioco` have been worked out; the open cases are marked together with it.
void noteNumbersInPlay(Workbench& w);

/// After the live forecasts have been listed from `Fg15`.
void noteForecasts(Workbench& w);

/// After hits up to the end of the archive have been added below those of `FgZ1`.
void noteAddedHits(Workbench& w);

/// After all saved methods have been run into `FgRagg`, and after `FgConv` has counted that.
void noteGrouping(Workbench& w);
void noteConvergences(Workbench& w);

/// After `FgRit` has been filled; `ofCases`: from what was drawn after the cases.
void noteDelays(Workbench& w, bool ofCases);

/// What an operation would find chosen now.
Origin chosenNow(const Workbench& w);

/// After a test forward has gone through all cases of a situation: whatever is found on them later is known already.
void noteSeenCases(Workbench& w, const Situation& situation);

/// What the hits of a verification of that table would be made from now.
Origin verificationOrigin(const Workbench& w, Table table, bool beyondLimit = false);

/// The labels that tell how the results stand: "non aggiornato" with the reason in the tooltip where one no longer fits
/// what it was made from, whose hits `FgZ1` shows, where the ranking comes from, how far back the reference draw lies.
void MostraStati(Workbench& w);

/// Adds these labels to the workbench and keeps them true after every operation.
void connectResultStates(Workbench& w);

}  // namespace trv5
