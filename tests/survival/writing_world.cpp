#include "survival/writing_world.h"

#include <algorithm>
#include <cstdlib>

#include "core/archive_load.h"
#include "core/verifica_archivio.h"
#include "maintenance/update_samples.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

bool isScratch(const std::string& path) {
  const std::string name = fs::path(path).filename().string();
  const auto ends = [&](std::string_view end) { return name.ends_with(end); };
  return name.front() == '.' || ends("-journal") || ends(".nuova");
}

FileKind kindOf(const std::string& name) {
  if (name.starts_with("DbTRV5")) return FileKind::Main;
  return name.starts_with("Archivio") ? FileKind::Archive : FileKind::Export;
}

std::string rowsOf(const Database& database) {
  std::string all;
  for (const auto& table : readRows(database.prepare("SELECT name, sql FROM sqlite_schema ORDER BY name")).rows) {
    if (table[0] == "sqlite_sequence") continue;  // the highest key given so far
    all += "\n== " + table[0] + ": " + table[1] + "\n";
    if (!database.hasTable(table[0]) || table[0] == "Protezione") continue;  // a password's hash differs each time
    for (const auto& row : readRows(database.prepare("SELECT * FROM \"" + table[0] + "\" ORDER BY 1")).rows) {
      for (const std::string& cell : row) all += cell + "|";
      all += "\n";
    }
  }
  return all;
}

std::string contentOf(const fs::path& file) {
  const std::string bytes = readBytes(file);
  if (!bytes.starts_with("SQLite format 3")) return bytes;
  const Database database(file, kindOf(file.filename().string()));
  database.checkIntegrity();
  return rowsOf(database);
}

}  // namespace

WritingWorld::WritingWorld() {
  shell.addScreen("archivio", [this] {
    auto screen = std::make_unique<Archivio>(*program);
    screen->load();
    return screen;
  });
  std::string text;
  std::mt19937 rng(3);
  std::vector<DrawRow> draws = randomRows(rng, 100);
  for (std::size_t i = 0; i < draws.size(); ++i) {
    draws[i].date = dateOfDraw(static_cast<int>(1000 + i));
    for (std::string& wheel : draws[i].wheels)
      if (wheel.empty()) wheel = wheelText(randomWheel(rng));
    text += updateLine(draws[i]) + "\r\n";
  }
  writeBytes(updateFile(), text);
}

Archivio& WritingWorld::archivio() {
  return dynamic_cast<Archivio&>(shell.show("archivio"));
}

void WritingWorld::guarded(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const UserError& error) {
    m_errors.emplace_back(error.what());
  } catch (const std::exception& error) {
    m_errors.push_back(std::string("no error for a user: ") + error.what());
  }
}

std::vector<std::string> WritingWorld::told() {
  std::vector<std::string> all = std::exchange(m_errors, {});
  for (; m_toldBoxes < shell.shown.size(); ++m_toldBoxes) {
    const ShownBox& box = shell.shown[m_toldBoxes];
    if (box.kind != ShownBox::Kind::Message && box.kind != ShownBox::Kind::Confirm) continue;
    all.push_back(box.text);
    const std::string& reason = shell.reasons.at(m_toldReasons++);
    if (box.text.find("non può essere") == std::string::npos) all.push_back(reason);
  }
  for (; m_toldStatus < shell.statusTexts.size(); ++m_toldStatus) all.push_back(shell.statusTexts[m_toldStatus]);
  std::erase(all, "");
  return all;
}

void WritingWorld::end() {
  bench.reset();
  shell.forgetScreens();
  program.reset();
}

Contents contentsOf(const fs::path& folder) {
  Contents contents;
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = fs::relative(entry.path(), folder).string();
    if (entry.is_regular_file() && !isScratch(name)) names.push_back(name);
  }
  for (const std::string& name : names) contents[name] = contentOf(folder / name);
  return contents;
}

AllowedStates::State AllowedStates::stateOf(const fs::path& folder) {
  Contents contents = contentsOf(folder);  // takes back what a killed writer left
  return {imageOf(folder), std::move(contents)};
}

// A file that is the same byte by byte, and has no journal beside it, needs no second look.
std::string AllowedStates::content(const fs::path& file) const {
  const std::string name = file.filename().string(), bytes = readBytes(file);
  if (!fs::exists(file.string() + "-journal"))
    for (const State* state : {&m_before, &m_after})
      if (const auto known = state->image.find(name); known != state->image.end() && known->second == bytes)
        return state->contents.at(name);
  return contentOf(file);
}

std::string AllowedStates::fault(const fs::path& folder, bool ended) const {
  std::set<std::string> names;
  for (const Contents* contents : {&m_before.contents, &m_after.contents})
    for (const auto& [name, content] : *contents) names.insert(name);
  for (const auto& [name, bytes] : imageOf(folder))
    if (!isScratch(name)) names.insert(name);
  const auto in = [](const State& state, const std::string& name) {
    const auto found = state.contents.find(name);
    return found == state.contents.end() ? std::string() : found->second;
  };
  bool changed = false;
  std::set<std::string> missing;  // copies that the operation makes before anything else
  for (const std::string& name : names) {
    std::string now;
    try {
      if (fs::exists(folder / name)) now = content(folder / name);
    } catch (const std::exception& error) {
      return name + ": " + error.what();
    }
    const std::string before = in(m_before, name), after = in(m_after, name);
    const bool copy = folderOf(name) == "copie";
    if (copy && before.empty() && now.empty()) missing.insert(name);
    if (!copy && now != before) changed = true;
    if (now == after) continue;
    if (copy && after.empty() && now == before) continue;  // one that makes room may do so later
    if (ended) return name + " isn't as the operation left it";
    if (now != before && m_between.count(now) == 0) return name + " is neither as before nor as after";
  }
  return changed && !missing.empty() ? *missing.begin() + " was to be there before anything changed" : "";
}

int asked(const char* variable, int usual) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? usual : std::max(1, std::atoi(text));
}

std::ostream& operator<<(std::ostream& out, const WritingOperation& operation) {
  return out << operation.name;
}

}  // namespace trv5
