#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "configs/configuration_world.h"
#include "maintenance/archivio.h"

namespace trv5 {

/// A running program, and a folder for the files that are read.
class ReaderWorld : public ConfigurationWorld {
 public:
  ReaderWorld();
  Archivio& archivio();
  /// A file with these bytes, in place of the one before; nothing stands beside it.
  std::filesystem::path fileOf(const std::string& bytes, const std::string& name = "letto") const;

  TempFolder files;
};

/// A part of the program that takes bytes from outside.
struct FuzzedReader {
  const char* name;
  int inputs;  ///< of a usual run
  /// Whole inputs out of the data of the tests.
  std::vector<std::string> (*seeds)(ReaderWorld& world);
  /// Reads the bytes as the program does and goes on with what they hold. Throws UserError when it refuses them, and
  /// std::logic_error when what was read breaks a promise of the reader.
  void (*read)(ReaderWorld& world, const std::string& bytes);
};

const std::vector<FuzzedReader>& fuzzedReaders();
std::ostream& operator<<(std::ostream& out, const FuzzedReader& reader);
struct NameOfReader {
  template <class Tested>
  std::string operator()(const Tested& tested) const {
    return tested.param.name;
  }
};

}  // namespace trv5
