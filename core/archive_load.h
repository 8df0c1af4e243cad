#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/archive.h"
#include "core/draw_sums.h"

namespace trv5 {

class Database;
class Grid;
struct Program;

/// All draws of an archive in the order of their dates. `onRow` gets the number of the row, from 1, and the number of
/// all rows.
std::vector<DrawRow> readDraws(const Database& archive, const std::function<void(int row, int rows)>& onRow = {});

/// Fills a grid `FgDB`: row 0 the heading, draw I in row I, column 1 the date, column J wheel J - 2; column 0 is empty.
void fillFgDB(const std::vector<DrawRow>& rows, Grid& FgDB);

// Each load looks at the integrity of the whole file first, and keeps in `Program::drawDifferences` the draws that
// aren't as they were written.

/// The load of PROCEDI: reads the archive at `PercorsoDbArchivio`, counts the progressives and makes the model archive
/// from `EstrazioneIniziale` on. Throws on a failure of any kind and then leaves the archive in memory as it was.
std::vector<DrawRow> loadArchive(Program& program, const std::function<void(int row, int rows)>& onRow = {});

/// The full reload after a change of the archive: all arrays, the status block and the list of the shell. Its model
/// archive covers the whole archive, whatever `EstrazioneIniziale` says. At its end `archiveReloaded` is sent. Returns
/// the rows for a grid `FgDB`.
std::vector<DrawRow> CaricaArchivioExNovo(Program& program);

/// "7370 estrazioni", and what the user has to know of them: draws that aren't as they were written, wheels that aren't
/// five different numbers.
std::string describeArchive(const Program& program, const std::vector<DrawRow>& rows);

/// Keeps what a look at the archive has found in `Program::drawDifferences`; the shell shows how many.
void takeDifferences(Program& program, std::vector<DrawDifference> differences);

/// The lighter reload of the archive screen: numbers, dates, `NumEstrazioni` and the screen's `FgDB`; progressives,
/// `UltimaEstrazione` and the model archive stay as they were.
void CaricaTabellaArchivio(Program& program, Grid& FgDB);

}  // namespace trv5
