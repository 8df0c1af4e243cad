#pragma once

#include <array>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "core/archive.h"

namespace trv5 {

/// The numbers of some wheels by their code: {{"BA", {5, 71, 13, 90, 2}}, {"NZ", {..}}}.
using WheelNumbers = std::map<std::string, std::array<int, 5>>;

/// "05-71-13-90-02", as a wheel stands in the archive.
std::string wheelText(const std::array<int, 5>& numbers);

/// One draw of the archive; the wheels that aren't named weren't drawn.
DrawRow drawOf(const std::string& date, const WheelNumbers& wheels);

/// Date of the draw `drawIndex` (from 1) of archives made without dates: 07/01/1939 and every fourth day after it, on
/// the true calendar.
std::string dateOfDraw(int drawIndex);

/// An archive as it stands after PROCEDI with these draws: progressives counted, the model archive from draw 1 on.
Archive archiveOfRows(const std::vector<DrawRow>& rows);
/// The same with the dates of dateOfDraw: archiveOf({{{"BA", {1, 2, 3, 4, 5}}}, {}}) has two draws, the second empty.
Archive archiveOf(const std::vector<WheelNumbers>& draws);

/// Five different numbers of 1..90.
std::array<int, 5> randomWheel(std::mt19937& rng);
/// Random rows: NZ only in the newer half, about one of the other wheels in twenty not drawn.
std::vector<DrawRow> randomRows(std::mt19937& rng, int draws);
/// An archive of randomRows.
Archive randomArchive(std::mt19937& rng, int draws = 400);

}  // namespace trv5
