#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/database_files.h"
#include "core/program.h"
#include "provision/old_file.h"

namespace trv5 {

/// What an old file was turned into.
struct Converted {
  FileKind kind = FileKind::Archive;
  std::size_t draws = 0;
  std::string first = {}, last = {};  ///< dates of the first and last draw, "GG/MM/AAAA"
  std::size_t configurations = 0;
  std::vector<std::string> refused = {};   ///< configurations that couldn't be taken over, each with its reason
  std::vector<std::string> doubtful = {};  ///< wheels that don't hold five different numbers, taken over as they are

  /// In a sentence: "archivio con 60 estrazioni, dal 04/12/2004 al 30/06/2005".
  std::string description() const;
  /// What the user should look at, a line each, the first hundred of a kind; "" when there is nothing.
  std::string notes() const;
};

/// The draws of a table `EstrazioniLotto`, sorted by date. Columns that it lacks (the Nazionale of older archives) are
/// not drawn. Throws UserError naming the row of a date that is none or stands twice.
std::vector<RegisteredDraw> oldDraws(const OldTable& table);

/// The configurations of `Elenco_Memo` and `Elenco_Dett`; columns unknown to this program are left out.
std::vector<ConfigurationRows> oldConfigurations(const OldTable& heads, const OldTable& details);

/// The parameters of the program with the values of an old `ParametriProgramma`. The path of the archive isn't taken
/// over: it leads to another machine or to an old file.
std::vector<ParameterRow> oldParameters(const OldTable& table, std::vector<ParameterRow> shipped);

/// Makes a new archive or main database out of an old one, which is never written; whole or not at all. With `wanted`
/// a file of the other kind is refused. Throws UserError.
Converted convertOldFile(const std::filesystem::path& old, const std::filesystem::path& fresh, Existing existing,
                         std::optional<FileKind> wanted = std::nullopt, const ProcessLimits& limits = {});

/// For the program's own choice of an archive.
OldFiles oldFilesReader();

}  // namespace trv5
