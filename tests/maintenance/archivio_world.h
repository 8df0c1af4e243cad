#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "core/archive_load.h"
#include "maintenance/archivio.h"
#include "support/program_world.h"

namespace trv5 {

/// A run of the program with the archive's screen open.
struct ArchivioWorld : ProgramWorld {
  ArchivioWorld() {
    shell.addScreen("archivio", [this] {
      auto screen = std::make_unique<Archivio>(*program);
      screen->load();
      m_archivio = screen.get();
      return screen;
    });
  }

  /// Starts with an archive of these draws and opens the screen. What was shown on the way is forgotten.
  Archivio& openOn(const std::vector<DrawRow>& rows) {
    makeBoth(rows);
    return open();
  }
  /// The same with the files as they are.
  Archivio& open() {
    startAndProceed();
    shell.show("archivio");
    shell.shown.clear();
    return *m_archivio;
  }

  /// The draws as they stand in the file now.
  std::vector<DrawRow> stored() const {
    const Database file(program->PercorsoDbArchivio, FileKind::Archive);
    return readDraws(file);
  }
  /// The dates among them.
  std::vector<std::string> storedDates() const {
    std::vector<std::string> dates;
    for (const DrawRow& row : stored()) dates.push_back(row.date);
    return dates;
  }

 private:
  Archivio* m_archivio = nullptr;
};

inline std::vector<DrawRow> threeDraws() {
  return {drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}),
          drawOf("14/01/1939", {{"BA", {1, 2, 3, 4, 5}}, {"NZ", {6, 7, 8, 9, 10}}}),
          drawOf("04/02/1939", {{"BA", {90, 80, 70, 60, 50}}})};
}

/// The texts of all boxes, joined by blanks, "." for an empty one.
inline std::string boxesOf(const Archivio& a) {
  std::string all;
  for (const std::string& text : a.txtin.texts()) all += (all.empty() ? "" : " ") + (text.empty() ? "." : text);
  return all;
}

/// Types one number a box, from the first on, followed by Enter; returns the number of keys.
inline int typeDraw(Archivio& a, const std::vector<std::string>& numbers) {
  int keys = 0, box = 1;
  for (const std::string& number : numbers) {
    for (const char digit : number) {
      a.txtin[box].key({.text = std::string(1, digit)});
      ++keys;
    }
    a.txtin[box].key({.code = Key::Code::Enter});
    ++keys;
    box = box % EntryBoxes::kBoxes + 1;
  }
  return keys;
}

}  // namespace trv5
