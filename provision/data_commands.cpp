#include "provision/data_commands.h"

#include <fmt/format.h>

#include <algorithm>
#include <csignal>
#include <optional>
#include <string_view>

#include "core/database_files.h"
#include "maintenance/formats/compressed_text.h"
#include "maintenance/formats/published_history.h"
#include "provision/demo_archive.h"
#include "provision/old_conversion.h"
#include "provision/shipped_contents.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHelp = R"(trv5-data: prepara i file che servono a TRV5.

Uso:
  trv5-data modello FILE [--archivio PERCORSO]
      crea il database principale (DbTRV5.mdb), con i parametri e i sistemi
      ortogonali forniti; PERCORSO è l'archivio che il programma aprirà
  trv5-data demo FILE
      crea l'archivio dimostrativo: estrazioni simulate, sempre le stesse,
      nei veri giorni del Lotto dal 1939 al 2026
  trv5-data esporta-vuoto FILE
      crea un file di esportazione vuoto (TRV5_Export.mdb)
  trv5-data storico SORGENTE FILE
      crea un archivio dallo storico pubblicato delle estrazioni: un testo,
      anche compresso (gzip o zip), con una riga per ruota
          AAAA/MM/GG<TAB>RUOTA<TAB>n1<TAB>n2<TAB>n3<TAB>n4<TAB>n5
      ruote BA CA FI GE MI NA PA RM TO VE e RN per la Nazionale
  trv5-data converti VECCHIO FILE
      legge un archivio o un database principale nel formato Jet delle versioni
      precedenti (serve il pacchetto mdbtools) e ne fa uno nuovo: le estrazioni,
      o i parametri e le configurazioni. VECCHIO resta com'è
  trv5-data aiuto
      mostra questo testo (anche --help)

Opzioni:
  --sostituisci    prende il posto di un FILE che esiste già

Il FILE compare per intero o per niente. Se una riga dello storico è errata
sono elencate le prime cento errate, con il loro numero, e non viene scritto
nulla. Di una SORGENTE si leggono al massimo 64 MB, anche da un canale.
Stato di uscita: 0 se tutto è riuscito, 1 altrimenti.
)";

// What can't be understood in the arguments.
class UsageError : public UserError {
 public:
  using UserError::UserError;
};

struct Request {
  std::vector<std::string> words;  // the command and its files
  std::optional<std::string> archive;
  bool replace = false;
  bool help = false;
};

Request parse(const std::vector<std::string>& arguments) {
  Request request;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (*argument == "--help" || *argument == "-h") {
      request.help = true;
    } else if (*argument == "--sostituisci") {
      request.replace = true;
    } else if (*argument == "--archivio") {
      if (++argument == arguments.end()) throw UsageError("Dopo --archivio manca il percorso.");
      request.archive = *argument;
    } else if (argument->size() > 1 && argument->front() == '-') {
      throw UsageError(fmt::format("L'opzione \"{}\" non esiste.", *argument));
    } else {
      request.words.push_back(*argument);
    }
  }
  return request;
}

// While it lives a stop from outside waits, so that a file on its way is finished or cleared away.
class StopsHeld {
 public:
  StopsHeld() {
    sigset_t stops;
    sigemptyset(&stops);
    for (const int stop : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&stops, stop);
    sigprocmask(SIG_BLOCK, &stops, &m_before);
  }
  ~StopsHeld() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }
  StopsHeld(const StopsHeld&) = delete;
  StopsHeld& operator=(const StopsHeld&) = delete;

 private:
  sigset_t m_before;
};

// The file to make, refused before any work is done for it.
fs::path targetOf(const Request& request) {
  const std::string& name = request.words.back();
  if (name.empty()) throw UsageError("Il nome del file è vuoto.");
  std::error_code unknown;
  if (!request.replace && fs::exists(fs::symlink_status(name, unknown)))
    throw UserError(fmt::format("Il file \"{}\" esiste già: per sostituirlo serve --sostituisci.", name));
  return name;
}

Existing existing(const Request& request) {
  return request.replace ? Existing::Replace : Existing::Refuse;
}

std::string spanOf(const std::vector<Draw>& draws) {
  return fmt::format("dal {} al {}", dateText(draws.front().day), dateText(draws.back().day));
}

void writeArchive(const fs::path& file, const std::vector<Draw>& draws, Existing existing, std::string_view password) {
  std::vector<DrawRow> rows;
  rows.reserve(draws.size());
  for (const Draw& draw : draws) rows.push_back(rowOf(draw));
  const StopsHeld held;
  createArchive(file, rows, existing, password);
}

void makeModel(const Request& request, std::ostream& output) {
  const fs::path file = targetOf(request);
  const std::string& archive = request.archive.value_or("");
  // A full path: the program is started in other folders than this one.
  const MainContents contents = shippedContents(archive.empty() ? "" : fs::absolute(archive).string());
  const StopsHeld held;
  createMainDatabase(file, contents, existing(request));
  output << fmt::format("Creato \"{}\": database principale con {} parametri e {} sistemi ortogonali.\n", file.string(),
                        contents.parameters.size(), contents.systems.size());
}

void makeDemo(const Request& request, std::ostream& output) {
  const fs::path file = targetOf(request);
  const std::vector<Draw> draws = simulatedDraws();
  // Nothing in it needs a password; its salt would be the one thing that makes each file another.
  writeArchive(file, draws, existing(request), "");
  output << fmt::format("Creato \"{}\": archivio dimostrativo con {} estrazioni simulate, {}.\n", file.string(),
                        draws.size(), spanOf(draws));
}

void makeEmptyExport(const Request& request, std::ostream& output) {
  const fs::path file = targetOf(request);
  const StopsHeld held;
  createExportFile(file, existing(request));
  output << fmt::format("Creato \"{}\": file di esportazione vuoto.\n", file.string());
}

std::vector<Draw> readHistory(const std::string& source) {
  PublishedHistory history = readPublishedHistory(readCompressedText(source));
  if (!history.faults.empty()) {
    std::string text;
    for (const LineFault& fault : history.faults)
      text += fmt::format("{}, riga {}: {}\n", source, fault.line, fault.reason);
    const std::size_t count = history.faultCount;
    if (count > history.faults.size()) text += "..\n";
    throw UserError(text + (count == 1 ? "Una riga è errata" : fmt::format("Le righe errate sono {}", count)) +
                    ": non è stato scritto nulla.");
  }
  if (history.draws.empty()) throw UserError(fmt::format("Il file \"{}\" non contiene estrazioni.", source));
  if (history.draws.size() > Archive::kMaxDraws)
    throw UserError(fmt::format("Il file \"{}\" contiene {} estrazioni: un archivio ne tiene al massimo {}.", source,
                                history.draws.size(), Archive::kMaxDraws));
  return std::move(history.draws);
}

void makeArchiveOfHistory(const Request& request, std::ostream& output) {
  const std::string& source = request.words[1];
  const fs::path file = targetOf(request);
  std::error_code unknown;
  if (fs::equivalent(source, file, unknown))
    throw UserError(fmt::format("La sorgente e il file da creare sono lo stesso: \"{}\".", source));
  const std::vector<Draw> draws = readHistory(source);
  writeArchive(file, draws, existing(request), programPassword());
  output << fmt::format("Creato \"{}\": archivio con {} estrazioni, {}.\n", file.string(), draws.size(), spanOf(draws));
}

void convert(const Request& request, std::ostream& output) {
  const fs::path file = targetOf(request);
  const StopsHeld held;
  const Converted converted = convertOldFile(request.words[1], file, existing(request));
  output << fmt::format("Creato \"{}\": {}.\n", file.string(), converted.description()) << converted.notes();
}

struct Command {
  std::string_view name;
  std::size_t files;
  void (*run)(const Request&, std::ostream&);
};
constexpr Command kCommands[] = {{"modello", 1, makeModel},
                                 {"demo", 1, makeDemo},
                                 {"esporta-vuoto", 1, makeEmptyExport},
                                 {"storico", 2, makeArchiveOfHistory},
                                 {"converti", 2, convert}};

void run(const Request& request, std::ostream& output) {
  if (request.words.empty()) throw UsageError("Manca il comando.");
  const std::string& name = request.words.front();
  const auto command =
      std::find_if(std::begin(kCommands), std::end(kCommands), [&](const Command& c) { return c.name == name; });
  if (command == std::end(kCommands)) throw UsageError(fmt::format("Il comando \"{}\" non esiste.", name));
  const std::size_t files = request.words.size() - 1;
  if (files < command->files) throw UsageError(fmt::format("Al comando {} manca un file.", name));
  if (files > command->files)
    throw UsageError(fmt::format("Per il comando {} \"{}\" è di troppo.", name, request.words[command->files + 1]));
  if (request.archive && name != "modello") throw UsageError("L'opzione --archivio vale solo per il comando modello.");
  command->run(request, output);
}

}  // namespace

int runDataCommand(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
  try {
    const Request request = parse(arguments);
    if (request.help || request.words == std::vector<std::string>{"aiuto"}) {
      output << kHelp;
    } else {
      run(request, output);
    }
    output.flush();
    return output ? 0 : 1;
  } catch (const UsageError& error) {
    errors << error.what() << "\nPer l'elenco dei comandi: trv5-data aiuto\n";
  } catch (const UserError& error) {
    errors << error.what() << '\n';
    if (!error.details().empty()) errors << "Dettagli: " << error.details() << '\n';
  } catch (const std::exception& error) {
    errors << "Errore imprevisto: " << error.what() << '\n';
  }
  return 1;
}

}  // namespace trv5
