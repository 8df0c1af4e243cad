#include "maintenance/mending.h"

#include <algorithm>
#include <map>
#include <string>

#include "core/archive_load.h"
#include "core/draw_sums.h"
#include "core/errors.h"

namespace trv5 {
namespace {

// A draw to be mended.
struct Broken {
  const DrawRow* now = nullptr;        // null: it is gone
  std::optional<std::int64_t> wanted;  // the sum that the mend has to have
  std::optional<Mend> mend;
};

using BrokenDraws = std::map<std::string, Broken>;  // by date

bool isMendable(const ArchiveFinding& finding) {
  return !finding.date.empty() && (finding.check == ArchiveCheck::Sums || finding.check == ArchiveCheck::WheelTexts ||
                                   finding.check == ArchiveCheck::RepeatedNumbers);
}

BrokenDraws brokenDraws(const std::vector<ArchiveFinding>& findings, const Database& archive,
                        const std::vector<DrawRow>& rows) {
  BrokenDraws broken;
  for (const ArchiveFinding& finding : findings)
    if (isMendable(finding)) broken[finding.date];
  for (const DrawRow& row : rows)
    if (const auto found = broken.find(row.date); found != broken.end()) found->second.now = &row;
  for (auto& [date, draw] : broken) {
    const std::optional<std::int64_t> kept = keptSumOf(archive, date);
    if (kept && (draw.now == nullptr || sumOfDraw(*draw.now) != *kept)) draw.wanted = kept;
  }
  return broken;
}

bool mends(const DrawRow& row, const Broken& broken) {
  if (!isWhole(row)) return false;
  const std::int64_t sum = sumOfDraw(row);
  if (broken.wanted) return sum == *broken.wanted && (broken.now == nullptr || broken.now->wheels != row.wheels);
  return broken.now != nullptr && broken.now->wheels != row.wheels;
}

void lookInto(const Backup& copy, BrokenDraws& broken) {
  const Database source(copy.file, FileKind::Archive);
  const std::vector<DrawRow> rows = readDraws(source);
  const std::vector<DrawDifference> unlike = differencesFromSums(source, rows);
  for (const DrawRow& row : rows) {
    const auto found = broken.find(row.date);
    if (found == broken.end() || found->second.mend || !mends(row, found->second)) continue;
    if (std::none_of(unlike.begin(), unlike.end(), [&](const DrawDifference& d) { return d.now.date == row.date; }))
      found->second.mend = Mend{row, copy.file};
  }
}

}  // namespace

std::vector<std::optional<Mend>> mendsOf(const std::vector<ArchiveFinding>& findings, const Database& archive,
                                         const std::vector<DrawRow>& rows, const std::vector<Backup>& copies) {
  BrokenDraws broken = brokenDraws(findings, archive, rows);
  for (const Backup& copy : copies) {
    if (std::all_of(broken.begin(), broken.end(), [](const auto& draw) { return draw.second.mend.has_value(); })) break;
    try {
      lookInto(copy, broken);
    } catch (const UserError&) {
      continue;
    }
  }
  std::vector<std::optional<Mend>> all;
  for (const ArchiveFinding& finding : findings)
    all.push_back(isMendable(finding) ? broken[finding.date].mend : std::nullopt);
  return all;
}

}  // namespace trv5
