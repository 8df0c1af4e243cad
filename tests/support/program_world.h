#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/container.h"
#include "core/database_files.h"
#include "core/inizio.h"
#include "core/program.h"
#include "support/archive_builder.h"
#include "support/fake_shell.h"
#include "support/temp_folder.h"

namespace trv5 {

/// A whole installation in a folder of its own: the program's folder with its main database, archives beside it, a user
/// who answers from a queue, and a run of the program with the screens INIZIO and Container.
class ProgramWorld {
 public:
  ProgramWorld();
  /// The screens go first: they speak to the program.
  ~ProgramWorld() { shell.forgetScreens(); }
  ProgramWorld(const ProgramWorld&) = delete;
  ProgramWorld& operator=(const ProgramWorld&) = delete;

  /// Writes DbTRV5.mdb with these parameters.
  void makeMain(const std::vector<ParameterRow>& parameters);
  /// Writes DbTRV5.mdb with `PercorsoArchivio`, `EstrazioneIniziale` 1 and `IndirizzoInternet`.
  void makeMainFor(const std::filesystem::path& archive);
  /// Writes an archive into the folder and returns its path.
  std::filesystem::path makeArchive(const std::vector<DrawRow>& rows, const std::string& name = "Archivio.mdb");
  /// A main database set to an archive of these draws.
  void makeBoth(const std::vector<DrawRow>& rows);

  /// Starts a run: the load of INIZIO. Ends the run before, if any, but not what the user saw.
  Inizio& start();
  /// start() and PROCEDI.
  Container& startAndProceed();

  Inizio& inizio() { return *m_inizio; }
  Container& container() { return *m_container; }

  TempFolder folder;      ///< the program's folder
  TempFolder userFolder;  ///< holds the user's data folder
  std::filesystem::path model;
  FakeShell shell;
  std::unique_ptr<Program> program;

 private:
  Inizio* m_inizio = nullptr;
  Container* m_container = nullptr;
};

}  // namespace trv5
