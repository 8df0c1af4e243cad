// Each reader of the program with its seeds. One more reader is one more row.
#include "fuzz/readers.h"

#include <zlib.h>

#include <algorithm>
#include <stdexcept>

#include "configs/configurations.h"
#include "configs/draft.h"
#include "configs/exchange.h"
#include "core/archive_load.h"
#include "core/draw_sums.h"
#include "core/grid.h"
#include "core/text.h"
#include "maintenance/draw_entry.h"
#include "maintenance/formats/history_file.h"
#include "maintenance/formats/published_history.h"
#include "maintenance/formats/update_text.h"
#include "maintenance/update_check.h"
#include "maintenance/update_samples.h"

namespace trv5 {
namespace {

using Seeds = std::vector<std::string>;

void promise(bool kept, const char* what) {
  if (!kept) throw std::logic_error(what);
}

// A file of an update, and its check against the archive.

Seeds updateSeeds(ReaderWorld& world) {
  Seeds seeds;
  std::mt19937 rng(5);
  const std::vector<DrawRow> stored = readDraws(*world.program->DbArchivio);
  for (int i = 0; i < 20; ++i) seeds.push_back(randomUpdateBytes(rng, stored));
  return seeds;
}

void readUpdate(ReaderWorld& world, const std::string& bytes) {
  const std::string text = decodedText(bytes);
  promise(decodedText("\xEF\xBB\xBF" + text) == text, "decoded twice is decoded once");
  hasUpdateForm(text);
  const std::vector<DrawRow> rows = readUpdateText(text);
  for (const BlankCell blank : {BlankCell::Text, BlankCell::NotDrawn})
    promise(checkUpdate(*world.program->DbArchivio, rows, blank).marks.size() == rows.size(), "a mark a row");
}

// A draw pasted into the boxes.

Seeds pasteSeeds(ReaderWorld&) {
  std::string row, lines;
  for (int n = 1; n <= EntryBoxes::kBoxes; ++n) {
    row += std::to_string(n) + (n % 5 == 0 ? "  " : "-");
    lines += "Bari " + std::to_string(91 - n) + "\r\n";
  }
  return {row, lines, "05-17-33-64-90", "\t1.000 99 100 007", ""};
}

void paste(ReaderWorld& world, const std::string& bytes) {
  Archivio& a = world.archivio();
  world.shell.clipboardText = bytes;
  a.Command12.press();
  for (const std::string& text : a.txtin.texts())
    promise(text.empty() || numberOf(text) <= 90 || text == "99", "a box holds at most 90, or 99");
  remarkOnBoxes(a.txtin.texts());
  for (int wheel = 0; wheel < kWheels; ++wheel) wheelOfBoxes(a.txtin.texts(), wheel);
}

// The published history, plain and packed.

std::string publishedText() {
  std::string text;
  const char* const codes[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"};
  for (int draw = 0; draw < 4; ++draw)
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      text += "1939/01/" + std::to_string(10 + draw) + "\t" + codes[wheel];
      for (int n = 1; n <= 5; ++n) text += "\t" + std::to_string((draw * 17 + wheel * 5 + n) % 90 + 1);
      text += draw % 2 == 0 ? "\n" : "\r\n";
    }
  return text;
}

std::string gzipped(const std::string& text) {
  z_stream stream{};
  constexpr int kGzip = 16 + MAX_WBITS;
  deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, kGzip, 8, Z_DEFAULT_STRATEGY);
  std::string packed(deflateBound(&stream, text.size()) + 64, '\0');
  std::string whole = text;
  stream.next_in = reinterpret_cast<Bytef*>(whole.data());
  stream.avail_in = static_cast<uInt>(whole.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

// A zip archive of one stored file, its check sum and all.
std::string zipped(const std::string& text) {
  const auto put = [](std::string& out, std::size_t value, int bytes) {
    for (; bytes > 0; --bytes, value >>= 8) out += static_cast<char>(value & 0xFF);
  };
  const std::string name = "storico.txt";
  std::string common;
  put(common, 20, 2);
  for (int i = 0; i < 4; ++i) put(common, 0, 2);
  put(common, crc32(0, reinterpret_cast<const Bytef*>(text.data()), static_cast<uInt>(text.size())), 4);
  for (int i = 0; i < 2; ++i) put(common, text.size(), 4);
  put(common, name.size(), 2);
  put(common, 0, 2);
  const std::string head = "PK\x03\x04" + common + name + text;
  std::string directory = std::string("PK\x01\x02\x14", 5) + std::string(1, '\0') + common;
  put(directory, 0, 2);
  put(directory, 0, 2);
  put(directory, 0, 2);
  put(directory, 0, 4);
  put(directory, 0, 4);
  directory += name;
  std::string end = "PK\x05\x06";
  put(end, 0, 4);
  put(end, 1, 2);
  put(end, 1, 2);
  put(end, directory.size(), 4);
  put(end, head.size(), 4);
  put(end, 0, 2);
  return head + directory + end;
}

Seeds historySeeds(ReaderWorld&) {
  return {publishedText(), "\xEF\xBB\xBF" + publishedText().substr(0, 400), "1871/01/07\tBA\t58\t22\t47\t49\t69\n\n"};
}

Seeds packedSeeds(ReaderWorld&) {
  return {gzipped(publishedText()), gzipped(publishedText()) + gzipped("\n"), zipped(publishedText())};
}

void requireDraws(const std::vector<Draw>& draws) {
  for (std::size_t i = 0; i < draws.size(); ++i) {
    promise(i == 0 || draws[i - 1].day < draws[i].day, "the draws ascend");
    for (int wheel = 0; wheel < kWheels; ++wheel)
      for (const int number : draws[i].numbers[static_cast<std::size_t>(wheel)])
        promise(draws[i].drawn(wheel) ? number >= 1 && number <= 90 : number == 0, "a number is 1 to 90");
  }
}

void readHistory(ReaderWorld&, const std::string& bytes) {
  const PublishedHistory history = readPublishedHistory(bytes);
  promise(history.faults.size() == std::min(history.faultCount, kMostFaults), "faults are counted");
  if (history.faultCount == 0) requireDraws(history.draws);
}

void readPacked(ReaderWorld& world, const std::string& bytes) {
  requireDraws(readHistoryFile(world.fileOf(bytes)));
}

// The three kinds of database.

Seeds exchangeSeeds(ReaderWorld& world) {
  for (int i = 0; i < 5; ++i) WorkbenchWorld::addFormula(world.w().Fg11, {.elements = {{0, 1}, {3, 2}}, .fix = 7 + i});
  keepDraft(world.w());
  return {readBytes(draftFile(world.w()))};
}

void readExchange(ReaderWorld& world, const std::string& bytes) {
  const auto file = openExportFile(world.fileOf(bytes));
  const ExportedRows texts = readExportFile(*file);
  const Configuration read = importedConfiguration(texts, "importata");
  world.press("Command41");
  disponeConfigurazione(world.w(), read.head, [&] { return texts.rows; });
}

Seeds archiveSeeds(ReaderWorld& world) {
  createArchive(world.files / "seme", ReaderWorld::someRows(20), Existing::Replace, "");
  return {readBytes(world.files / "seme"), readBytes(world.program->PercorsoDbArchivio)};
}

void readArchive(ReaderWorld& world, const std::string& bytes) {
  const Database file(world.fileOf(bytes), FileKind::Archive);
  file.checkIntegrity();
  const std::vector<DrawRow> rows = readDraws(file);
  differencesFromSums(file, rows);
  Archive archive;
  archive.loadNumbers(rows);
  archive.countProgressives();
  archive.setModelFrom(1);
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw)
    for (int position = 1; position <= kPositions; ++position)
      promise(archive.NumeriEstratti(draw, 0, position) <= 99, "a number has two digits");
}

Seeds mainSeeds(ReaderWorld& world) {
  createMainDatabase(world.files / "seme",
                     {.parameters = {{.Parametro = "PercorsoArchivio", .Valore1 = "/manca.mdb"},
                                     {.Parametro = "EstrazioneIniziale", .Valore1 = "1"}},
                      .systems = {{.Denominazione = "S", .sviluppo = 2, .Numeri = 3, .rows = {{1, 2}, {2, 3}}}}},
                     Existing::Replace, "");
  return {readBytes(world.files / "seme"), readBytes(world.mainFile())};
}

void readMain(ReaderWorld& world, const std::string& bytes) {
  world.fileOf(bytes, "DbTRV5.mdb");
  Program program(world.shell, world.files.path(), {}, world.files / "nessuna");
  program.openMainDatabase();
  Grid FgP("|Parametro|Valore1|Valore2");
  fillParameters(program.mainDatabase(), FgP);
  program.parameters().Valore1("PercorsoArchivio");
  const QueryRows all = listConfigurations(program.mainDatabase());
  hasDenomination(program.mainDatabase(), "una");
  for (std::int64_t key = 0; key < 3; ++key) rowsOf(loadRows(program.mainDatabase(), key));
}

}  // namespace

ReaderWorld::ReaderWorld() {
  shell.addScreen("archivio", [this] {
    auto screen = std::make_unique<Archivio>(*program);
    screen->load();
    return screen;
  });
}

Archivio& ReaderWorld::archivio() {
  return dynamic_cast<Archivio&>(shell.show("archivio"));
}

std::filesystem::path ReaderWorld::fileOf(const std::string& bytes, const std::string& name) const {
  const std::filesystem::path file = files / name;
  std::filesystem::remove(file);  // written over, some disks would sync it
  writeBytes(file, bytes);
  return file;
}

const std::vector<FuzzedReader>& fuzzedReaders() {
  static const std::vector<FuzzedReader> all = {
      {"Aggiornamento", 1500, updateSeeds, readUpdate},        {"EstrazioneIncollata", 1500, pasteSeeds, paste},
      {"StoricoPubblicato", 20000, historySeeds, readHistory}, {"StoricoCompresso", 8000, packedSeeds, readPacked},
      {"FileDiScambio", 1000, exchangeSeeds, readExchange},    {"Archivio", 1000, archiveSeeds, readArchive},
      {"DatabasePrincipale", 1000, mainSeeds, readMain}};
  return all;
}

std::ostream& operator<<(std::ostream& out, const FuzzedReader& reader) {
  return out << reader.name;
}

}  // namespace trv5
