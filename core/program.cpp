#include "core/program.h"

#include <fmt/format.h>

#include <cstdlib>

#include "core/errors.h"
#include "core/file_writer.h"
#include "version.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMainFile = "DbTRV5.mdb";

bool isThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(file, error);
}

// The user's own copy, which the program may write to wherever it is installed.
void copyModel(const fs::path& model, const fs::path& target) {
  std::error_code error;
  fs::create_directories(target.parent_path(), error);
  if (error)
    throw UserError(fmt::format("La cartella \"{}\" non può essere creata: {}.", target.parent_path().string(),
                                reasonOf(error.value())));
  writeFile(target, readFile(model), Existing::Refuse);
}

}  // namespace

std::string_view programVersion() {
  return kVersion;
}

fs::path userDataFolder() {
  // A relative XDG_DATA_HOME is to be ignored, says its standard.
  if (const char* const data = std::getenv("XDG_DATA_HOME"); data != nullptr && fs::path(data).is_absolute())
    return fs::path(data) / "trv5";
  const char* const home = std::getenv("HOME");
  return fs::path(home == nullptr ? "/" : home) / ".local" / "share" / "trv5";
}

Program::Program(Shell& theShell, fs::path theFolder, fs::path theModel, fs::path theUserFolder)
    : shell(theShell), folder(std::move(theFolder)), model(std::move(theModel)), userFolder(std::move(theUserFolder)) {}

Program::~Program() = default;

void Program::openMainDatabase() {
  if (!isThere(folder / kMainFile)) {
    const fs::path own = userFolder / kMainFile;
    if (!isThere(own) && !model.empty() && isThere(model)) copyModel(model, own);
    // With nothing in the user's folder either, the error names the place where the file is expected first.
    if (isThere(own)) folder = userFolder;
  }
  PercorsoDbParametri = folder / kMainFile;
  DbParametri = std::make_unique<Database>(PercorsoDbParametri, FileKind::Main);
  for (const char* table :
       {"ParametriProgramma", "Salvataggi", "Configurazioni", "Confignumeri", "Elenco_memo", "Elenco_dett"}) {
    if (DbParametri->hasTable(table)) continue;
    DbParametri.reset();
    throw UserError(
        fmt::format("Il file \"{}\" non può essere usato: manca la tabella {}.", PercorsoDbParametri.string(), table));
  }
  DbParametri->requireTable("ParametriProgramma", {"Parametro", "Valore1", "Valore2"});
}

Database& Program::mainDatabase() const {
  if (DbParametri == nullptr) throw UserError("Il database principale non è aperto.");
  return *DbParametri;
}

bool Program::otherArchiveChosen() const {
  if (DbArchivio == nullptr || loadedArchive.empty()) return false;
  std::error_code error;
  const bool same = fs::equivalent(DbArchivio->path(), loadedArchive, error);
  // One that has gone meanwhile is told by its name.
  return error ? DbArchivio->path() != fs::absolute(loadedArchive) : !same;
}

Database& Program::archiveToWrite() const {
  std::error_code error;
  if (DbArchivio == nullptr || !DbArchivio->stillInPlace() ||
      !fs::equivalent(DbArchivio->path(), loadedArchive, error) || error)
    throw UserError(std::string(kOtherArchive));
  return *DbArchivio;
}

void Program::closeDatabases() {
  DbArchivio.reset();
  DbParametri.reset();
}

}  // namespace trv5
