#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace trv5 {

/// Rows of `ParametriProgramma` that tell where the update file is fetched.
inline constexpr std::string_view kWebHost = "HostWebAggiornamento", kFtpHost = "HostFtpAggiornamento";

// Addresses on the servers of the settings; they throw UserError where none is set.

/// The update file on the web server.
std::string webAddress(const Program& program);
/// The file of the same path on the ftp server.
std::string ftpAddress(const Program& program);
/// The file that is brought over from the ftp server.
std::string ftpCopyAddress(const Program& program);

/// The address of the update file, or where the server is told.
std::string serverText(const Program& program);

/// The archive to compare an update with: the one held open since the start. Throws UserError when there is none.
const Database& archiveToRead(const Program& program);

}  // namespace trv5
