#include "survival/power_cut.h"

#include <algorithm>
#include <set>
#include <utility>

namespace trv5 {
namespace {

using Kind = DiskEvent::Kind;
constexpr std::size_t kSector = 512;

class Cut {
 public:
  Cut(const DiskLog& log, std::size_t at, std::mt19937& rng)
      : m_log(log),
        m_at(at),
        m_rng(rng),
        m_kept(rng() % 3 == 0 ? rng() % 101 : rng() % 2 * 90 + 5),
        m_rubbish(rng() % 2) {
    for (const auto& [name, file] : log.files) m_bytes[file] = log.before.at(name);
    m_names = log.files;
    for (const auto& [name, file] : log.files) m_folders.insert(folderOf(name));
    m_folders.insert("");
    for (std::size_t i = 0; i < std::min(at, log.events.size()); ++i) {
      if (log.events[i].kind == Kind::Sync) m_synced[log.events[i].file] = i;
      if (log.events[i].kind == Kind::SyncFolder) m_folderSynced[log.events[i].name] = i;
    }
  }

  DiskImage image() {
    for (std::size_t i = 0; i < m_log.events.size() && i <= m_at; ++i) apply(m_log.events[i], i);
    DiskImage image;
    for (const auto& [name, file] : m_names)
      if (m_folders.count(folderOf(name)) > 0) image[name] = m_bytes[file];
    return image;
  }

 private:
  bool chance() { return m_rng() % 100 < m_kept; }
  bool keeps(bool synced) { return synced || chance(); }
  bool isSynced(const DiskEvent& event, std::size_t i) const {
    const auto synced = m_synced.find(event.file);
    return synced != m_synced.end() && i < synced->second;
  }

  // True when the names of its folder have been synced since.
  bool isNamed(const DiskEvent& event, std::size_t i) const {
    const auto synced = m_folderSynced.find(folderOf(event.name));
    return synced != m_folderSynced.end() && i < synced->second;
  }

  void apply(const DiskEvent& event, std::size_t i) {
    const bool named = isNamed(event, i);
    switch (event.kind) {
      case Kind::Write:
        write(m_bytes[event.file], event, isSynced(event, i));
        break;
      case Kind::Truncate:
        if (keeps(isSynced(event, i))) grow(m_bytes[event.file], event.at);
        break;
      case Kind::Create:
        if (keeps(named)) m_names[event.name] = event.file;
        break;
      case Kind::Delete:
        if (keeps(named)) m_names.erase(event.name);
        break;
      case Kind::Rename:
        if (!keeps(named)) break;
        m_names.erase(event.formerName);
        m_names[event.name] = event.file;
        break;
      case Kind::MakeFolder:
        if (keeps(named)) m_folders.insert(event.name);
        break;
      case Kind::Sync:
      case Kind::SyncFolder:
        break;
    }
  }

  void write(std::string& bytes, const DiskEvent& event, bool synced) {
    for (std::size_t from = 0; from < event.bytes.size();) {
      const std::size_t place = event.at + from;
      const std::size_t count = std::min(event.bytes.size() - from, kSector - place % kSector);
      if (keeps(synced)) {
        if (bytes.size() < place + count) grow(bytes, place + count);
        bytes.replace(place, count, event.bytes, from, count);
      }
      from += count;
    }
  }

  // To that length, up or down.
  void grow(std::string& bytes, std::size_t length) {
    const std::size_t before = bytes.size();
    bytes.resize(length, '\0');
    for (std::size_t i = before; m_rubbish && i < length; ++i) bytes[i] = static_cast<char>(m_rng());
  }

  const DiskLog& m_log;
  std::size_t m_at;
  std::mt19937& m_rng;
  unsigned m_kept;  // of a hundred pieces that weren't synced, how many arrive
  bool m_rubbish;
  std::map<int, std::string> m_bytes;
  std::map<std::string, int> m_names;
  std::set<std::string> m_folders;
  std::map<int, std::size_t> m_synced;                // file: its last sync
  std::map<std::string, std::size_t> m_folderSynced;  // folder: its last sync
};

}  // namespace

DiskImage imageAfterCut(const DiskLog& log, std::size_t at, std::mt19937& rng) {
  return Cut(log, at, rng).image();
}

DiskLog withoutSyncs(DiskLog log) {
  std::erase_if(log.events,
                [](const DiskEvent& event) { return event.kind == Kind::Sync || event.kind == Kind::SyncFolder; });
  return log;
}

}  // namespace trv5
