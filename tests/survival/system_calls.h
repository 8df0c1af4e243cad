#pragma once

namespace trv5 {

class WatchedDisk;

/// The disk that the calls of the system are told to; null for none. The calls themselves are replaced in the whole
/// process, its shared libraries included: an executable's own functions come before those of any library.
WatchedDisk*& watchedDisk();

/// As long as this lives a sync of any file returns at once: for tests that open hundreds of databases, none of which
/// has to outlast them.
class FreeSyncs {
 public:
  FreeSyncs();
  ~FreeSyncs();
  FreeSyncs(const FreeSyncs&) = delete;
  FreeSyncs& operator=(const FreeSyncs&) = delete;
};

}  // namespace trv5
