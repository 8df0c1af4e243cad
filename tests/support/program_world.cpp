#include "support/program_world.h"

#include <stdexcept>

#include "core/verifica_archivio.h"

namespace trv5 {

ProgramWorld::ProgramWorld() {
  shell.addScreen("INIZIO", [this] {
    auto screen = std::make_unique<Inizio>(*program);
    screen->load();
    m_inizio = screen.get();
    return screen;
  });
  shell.addScreen("Container", [this] {
    auto screen = std::make_unique<Container>(*program);
    screen->load();
    m_container = screen.get();
    return screen;
  });
  shell.addScreen("VerificaArchivio", [this] {
    auto screen = std::make_unique<VerificaArchivio>(*program);
    screen->load();
    return screen;
  });
}

void ProgramWorld::makeMain(const std::vector<ParameterRow>& parameters) {
  createMainDatabase(folder / "DbTRV5.mdb", {.parameters = parameters, .systems = {}}, Existing::Replace);
}

void ProgramWorld::makeMainFor(const std::filesystem::path& archive) {
  makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = archive.string()},
            {.Parametro = "EstrazioneIniziale", .Valore1 = "1"},
            {.Parametro = "IndirizzoInternet", .Valore1 = "https://example.org/estrazioni.txt"}});
}

std::filesystem::path ProgramWorld::makeArchive(const std::vector<DrawRow>& rows, const std::string& name) {
  createArchive(folder / name, rows, Existing::Replace);
  return folder / name;
}

void ProgramWorld::makeBoth(const std::vector<DrawRow>& rows) {
  makeMainFor(makeArchive(rows));
}

Inizio& ProgramWorld::start() {
  shell.forgetScreens();
  m_inizio = nullptr;
  m_container = nullptr;
  program.reset();
  program = std::make_unique<Program>(shell, folder.path(), model, userFolder / "trv5");
  program->screenExists = [this](std::string_view name) { return shell.hasScreen(name); };
  shell.show("INIZIO");
  return *m_inizio;
}

Container& ProgramWorld::startAndProceed() {
  start().Command2.press();
  if (m_container == nullptr) throw std::runtime_error("PROCEDI failed: " + shell.lastBox().text);
  return *m_container;
}

}  // namespace trv5
