#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/archive.h"
#include "core/database.h"
#include "core/draw_sums.h"
#include "core/notice.h"
#include "core/parameters.h"
#include "core/shell.h"

namespace trv5 {

class Container;

/// Major, minor and revision of the program, joined by ".".
std::string_view programVersion();

/// The folder of the user's data: XDG_DATA_HOME/trv5, or ~/.local/share/trv5.
std::filesystem::path userDataFolder();

/// Reading of files in the format of older installations. Empty functions: this program can't.
struct OldFiles {
  /// True for such a file.
  std::function<bool(const std::filesystem::path& file)> recognised;
  /// Makes a new archive out of an old one and tells what became of it; throws UserError.
  struct Outcome {
    std::string description;  ///< "archivio con 60 estrazioni, dal .. al .."
    std::string notes;        ///< what the user should look at, "" for nothing
  };
  std::function<Outcome(const std::filesystem::path& old, const std::filesystem::path& fresh)> convertArchive;
};

/// The state of one run, from the start screen to the end. The archive in memory is replaced as a whole by each reload;
/// the object stays, so references to it hold.
struct Program {
  /// `folder`: where the program lies, or where it is told to look. `model`: the shipped main database, empty where
  /// there is none. `userFolder`: takes the place of `folder` when that holds no main database.
  Program(Shell& shell, std::filesystem::path folder, std::filesystem::path model = {},
          std::filesystem::path userFolder = userDataFolder());
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Shell& shell;
  /// The program's folder: the one of the main database, of the trace of the chosen archive, and where file dialogs
  /// start. Settled by openMainDatabase().
  std::filesystem::path folder;
  std::filesystem::path model, userFolder;
  /// Tells which screens this program has; the shell disables the buttons of the others. Empty: it has all of them.
  std::function<bool(std::string_view screen)> screenExists;
  OldFiles oldFiles;

  std::filesystem::path PercorsoDbParametri, PercorsoDbArchivio;
  /// Open for the whole run. `DbArchivio` stays the one of the start when another archive is chosen later.
  std::unique_ptr<Database> DbParametri, DbArchivio;

  Archive archive;
  /// Where the draws in memory come from; empty before the first load.
  std::filesystem::path loadedArchive;
  /// Sent at the end of each reload: draws have come, gone or changed.
  Notice archiveReloaded;
  /// Draws of the archive in memory that aren't as they were written, and whether the user has looked at them.
  std::vector<DrawDifference> drawDifferences;
  bool differencesSeen = false;

  std::string IndirizzoInternet;   ///< where published draws are; unread, kept for their update
  int EstrazioneIniziale = 0;      ///< the first draw of the model archive
  Container* container = nullptr;  ///< the shell while it is open

  /// Finds the main database, makes it from the model at the first use of the user's folder, opens it and looks that
  /// its tables are there. Throws UserError.
  void openMainDatabase();
  /// The main database; throws UserError when it isn't open.
  Database& mainDatabase() const;
  Parameters parameters() const { return Parameters(mainDatabase()); }

  /// True when another archive has been chosen since the start: the draws in memory aren't those of `DbArchivio`.
  bool otherArchiveChosen() const;
  /// The archive to write to. Throws UserError when that isn't the one whose draws are in memory: another archive has
  /// been chosen since the start.
  Database& archiveToWrite() const;

  void closeDatabases();
};

/// What the program says when the archive isn't the one it should be.
inline constexpr std::string_view kOtherArchive =
    "Attenzione, probabilmente è stato selezionato un altro archivio. Chiudere il programma e riavviarlo";

}  // namespace trv5
