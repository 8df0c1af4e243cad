#include "maintenance/copy_first.h"

#include <fcntl.h>
#include <unistd.h>

#include "core/errors.h"
#include "maintenance/archivio.h"

namespace trv5 {
namespace {

bool canBeWritten(const Database& archive) {
  const auto allowed = [](const std::filesystem::path& path) {
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
  };
  return !archive.readOnly() && allowed(archive.path()) && allowed(archive.path().parent_path());
}

}  // namespace

bool CopiaPrima(Archivio& a, BackupReason reason, const std::filesystem::path& spared) {
  Database& archive = a.program.archiveToWrite();
  if (!canBeWritten(archive)) return true;
  { const Database::Transaction tried(archive); }
  try {
    makeBackup(archive, reason, a.shell().now(), spared);
    return true;
  } catch (const UserError& error) {
    if (a.shell().confirm({.text = "Non è stato possibile fare prima una copia dell'archivio. Proseguire senza?",
                           .title = "Copia dell'archivio",
                           .icon = Icon::Exclamation,
                           .reason = error.what()}))
      return true;
  }
  a.shell().status("L'archivio è rimasto com'era: manca la copia da fare prima");
  return false;
}

}  // namespace trv5
