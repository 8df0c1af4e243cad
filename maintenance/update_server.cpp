#include "maintenance/update_server.h"

#include "core/text.h"

namespace trv5 {
namespace {

constexpr std::string_view kUpdateFile = "/archiviobrentara/archiviobrentara2023.txt";
constexpr std::string_view kFtpFile = "/Estr_agg.txt";
constexpr std::string_view kScheme = "://";

// Without blanks and without slashes at its end.
std::string hostOf(const Program& program, std::string_view parameter) {
  const std::string value = program.parameters().Valore1(parameter).value_or("");
  std::string_view host = trimmed(value);
  while (!host.empty() && host.back() == '/') host.remove_suffix(1);
  return std::string(host);
}

std::string addressOn(const Program& program, std::string_view parameter, std::string_view path) {
  const std::string host = hostOf(program, parameter);
  if (host.empty())
    throw UserError("L'indirizzo del server " + std::string(parameter == kWebHost ? "web" : "FTP") +
                    " non è impostato: si scrive nella scheda Salvataggi, riquadro Impostazioni.");
  return host + std::string(path);
}

std::string ftpAddressOf(const Program& program, std::string_view path) {
  const std::string address = addressOn(program, kFtpHost, path);
  return address.find(kScheme) == std::string::npos ? "ftp://" + address : address;
}

}  // namespace

std::string webAddress(const Program& program) {
  return addressOn(program, kWebHost, kUpdateFile);
}

std::string ftpAddress(const Program& program) {
  return ftpAddressOf(program, kUpdateFile);
}

std::string ftpCopyAddress(const Program& program) {
  return ftpAddressOf(program, kFtpFile);
}

std::string serverText(const Program& program) {
  return hostOf(program, kWebHost).empty()
             ? "Il server web delle estrazioni si imposta nella scheda Salvataggi, riquadro Impostazioni."
             : "File degli aggiornamenti: " + webAddress(program);
}

const Database& archiveToRead(const Program& program) {
  if (program.DbArchivio == nullptr) throw UserError(std::string(kOtherArchive));
  return *program.DbArchivio;
}

}  // namespace trv5
