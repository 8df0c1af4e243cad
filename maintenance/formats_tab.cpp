#include "maintenance/formats_tab.h"

#include <fmt/format.h>

#include "core/file_writer.h"
#include "core/text.h"
#include "maintenance/archivio.h"
#include "maintenance/formats/exchange_files.h"
#include "maintenance/update_server.h"
#include "maintenance/update_tab.h"

namespace trv5 {
namespace {

constexpr std::string_view kDatiIiiPath = "PercorsoDati.iii", kAddress = "Indirizzointernet",
                           kRuotafastFolder = "PercorsoRuotafast";
constexpr const char* kRuotafastFile = "DATI32.III";

using Contents = std::string (*)(const Archive&, const OnDraw&);

void writeExchangeFile(Archivio& a, const std::filesystem::path& file, Contents contents) {
  const Archive& archive = a.program.archive;
  const auto onDraw = [&](int draw) {
    if (draw % 10 == 0) a.shell().progress(draw, archive.NumEstrazioni());
  };
  writeFile(file, contents(archive, onDraw));
  a.shell().status(fmt::format("Scritto \"{}\"", file.string()));
}

// A file that the user names. A failure ends it without a box, as users know it; the status line tells it.
bool writeChosenFile(Archivio& a, const FileBox& box, Contents contents, std::filesystem::path& written) {
  try {
    const auto file = a.shell().chooseSave(box);
    if (!file) return false;
    const Hourglass hourglass(a.shell());
    writeExchangeFile(a, *file, contents);
    written = *file;
    return true;
  } catch (const std::exception& error) {
    a.shell().status(error.what());
    return false;
  }
}

void SalvaDatiIii(Archivio& a) {
  const std::string& chosen = a.Label13.text();
  const FileBox box = {.title = "File di archivio (*.iii)",
                       .folder = chosen.empty() ? a.program.folder : std::filesystem::path(chosen),
                       .filter = "*.iii",
                       .defaultExtension = "iii"};
  std::filesystem::path written;
  if (writeChosenFile(a, box, datiIii, written)) a.Label13.setText(written.string());  // kept by RENDE PREDEFINITA only
}

void SalvaRuotafast(Archivio& a) {
  const Hourglass hourglass(a.shell());
  try {
    const std::filesystem::path folder = a.program.parameters().Valore1(kRuotafastFolder).value_or("");
    if (folder.empty()) throw UserError("La cartella di Ruotafast non è impostata.");
    writeExchangeFile(a, folder / kRuotafastFile, ruotafast);
  } catch (const std::exception& error) {
    a.shell().message({.text = "Attenzione Ruotafast non presente.", .reason = error.what()});
  }
}

void SalvaNazionale(Archivio& a) {
  std::filesystem::path written;
  writeChosenFile(
      a,
      {.title = "File di archivio (*.Txt)", .folder = a.program.folder, .filter = "*.Txt", .defaultExtension = "Txt"},
      nazionale, written);
}

// A parameter that the main database lacks isn't made, and nothing is said.
void RendePredefinito(Archivio& a, std::string_view parameter, const std::string& value) {
  if (a.program.parameters().setValore1(parameter, value))
    a.shell().message({.text = "Salvataggio effettuato", .title = "Salvataggio"});
}

struct Setting {
  std::string_view parameter;
  Text Archivio::*box;
};
constexpr Setting kSettings[] = {{kRuotafastFolder, &Archivio::Txt_CartellaRuotafast},
                                 {kWebHost, &Archivio::Txt_ServerWeb},
                                 {kFtpHost, &Archivio::Txt_ServerFtp}};

void MemorizzaImpostazioni(Archivio& a) {
  Database::Transaction transaction(a.program.mainDatabase());
  for (const Setting& setting : kSettings)
    a.program.parameters().put(setting.parameter, trimmed((a.*setting.box).text()));
  transaction.commit();
  MostraImpostazioni(a);
  a.shell().status("Impostazioni memorizzate");
}

}  // namespace

void MostraImpostazioni(Archivio& a) {
  for (const Setting& setting : kSettings)
    (a.*setting.box).set(a.program.parameters().Valore1(setting.parameter).value_or(""));
  MostraServer(a);
}

void connectFormatsTab(Archivio& a) {
  a.Command10.onEvent([&a] { SalvaDatiIii(a); });
  a.Command7.onEvent([&a] { SalvaRuotafast(a); });
  a.Command34.onEvent([&a] { SalvaNazionale(a); });
  a.Command35.onEvent([&a] { RendePredefinito(a, kDatiIiiPath, a.Label13.text()); });
  // `Label5` keeps the old address until the screen is opened again.
  a.Command15.onEvent([&a] { RendePredefinito(a, kAddress, a.Text2.text()); });
  a.Command16.onEvent([&a] { a.Text2.set(a.shell().clipboard()); });
  a.Text2.onDoubleClick([&a] { a.Text2.set(""); });
  a.Check1.setToolTip("Nessun file ne tiene conto");
  a.Cmd_Impostazioni.onEvent([&a] { MemorizzaImpostazioni(a); });
}

}  // namespace trv5
