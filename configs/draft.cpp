#include "configs/draft.h"

#include <fmt/format.h>
#include <sys/stat.h>

#include <algorithm>
#include <ctime>

#include "configs/configuration_store.h"
#include "configs/configurations.h"
#include "configs/exchange.h"
#include "configs/workbench_configuration.h"
#include "core/database_files.h"
#include "core/file_writer.h"

namespace trv5 {
namespace {

constexpr const char* kUnnamed = "Bozza";
constexpr int kControlTable = 0;  // no table of formulas: a reload passes its rows over
// Lists of the searches, and those in which a text can be typed.
constexpr auto kLists = {&Workbench::ComboNC,    &Workbench::ComboColpi, &Workbench::ComboEle,
                         &Workbench::Combo1R_1N, &Workbench::Combo1R_2N, &Workbench::ComboFix};
constexpr auto kBoxes = {&Workbench::ChFix1R, &Workbench::Ch_Scoperti, &Workbench::ChVerifica, &Workbench::Ch_ultima,
                         &Workbench::ChA,     &Workbench::ChB,         &Workbench::ChC,        &Workbench::Ch1esito};

bool isEmpty(const Workbench& w) {
  return !w.FgEv.hasData() &&
         std::none_of(kTables.begin(), kTables.end(), [&](const auto& t) { return w.formulas(t.table).hasData(); });
}

Configuration draftOf(const Workbench& w) {
  Configuration draft = captureConfiguration(w);
  for (Field& field : draft.head)
    if (field.name == "Denominazione" && w.Txt_Denominazione.text().empty()) field.value = std::string(kUnnamed);
  int place = 0;
  const auto keep = [&](const Control& control, const std::string& value) {
    ConfigurationRow& row = draft.rows.emplace_back();
    row.grid = kControlTable;
    row.row = ++place;
    row.cells[0] = control.name();
    row.cells[1] = value;
  };
  for (const auto list : kLists) keep(w.*list, (w.*list).text());
  for (const auto box : kBoxes) keep(w.*box, (w.*box).checked() ? "1" : "0");
  return draft;
}

void layControls(Workbench& w, const std::vector<ConfigurationRow>& rows) {
  for (const ConfigurationRow& row : rows) {
    if (row.grid != kControlTable) continue;
    for (const auto list : kLists)
      if (Combo& combo = w.*list; combo.name() == row.cells[0]) combo.type(row.cells[1]);
    for (const auto box : kBoxes)
      if (Check& check = w.*box; check.name() == row.cells[0]) check.set(row.cells[1] == "1");
  }
}

}  // namespace

std::filesystem::path draftFile(const Workbench& w) {
  return w.hooks.folder() / "Bozza.mdb";
}

void keepDraft(const Workbench& w) {
  if (isEmpty(w)) return;
  const std::filesystem::path file = draftFile(w), fresh = file.string() + ".nuova";
  createExportFile(fresh, Existing::Replace, "");
  {
    Database database(fresh, FileKind::Export);
    saveConfiguration(database, draftOf(w));
  }
  takePlace(fresh, file);
}

std::optional<DateTime> draftTime(const Workbench& w) {
  struct stat status {};
  if (stat(draftFile(w).c_str(), &status) != 0) return std::nullopt;
  struct tm local {};
  localtime_r(&status.st_mtime, &local);
  return DateTime{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

void offerDraft(Workbench& w) {
  const auto written = draftTime(w);
  Button& button = w.button("Cmd_Riprendi");
  button.setEnabled(written.has_value());
  if (!written) return;
  button.setCaption(fmt::format("Riprendi il lavoro del {:02}/{:02}/{:04} {:02}:{:02}", written->day, written->month,
                                written->year, written->hour, written->minute));
  w.shell().offer(&button);
}

void RiprendiLavoro(Workbench& w) {
  const auto file = openExportFile(draftFile(w));
  const ExportedRows texts = readExportFile(*file);
  const Configuration draft = importedConfiguration(
      texts, texts.head.rows.empty() ? "" : texts.head.rows.front()[texts.head.column("Denominazione")]);
  w.button("Command41").press();
  disponeConfigurazione(w, draft.head, [&] {
    layControls(w, draft.rows);
    return texts.rows;
  });
  if (w.Txt_Denominazione.text() == kUnnamed) w.Txt_Denominazione.set("");
  w.shell().status("Lavoro ripreso");
}

}  // namespace trv5
