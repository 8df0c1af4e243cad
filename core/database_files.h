#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/archive.h"
#include "core/database.h"
#include "core/draw_writer.h"
#include "core/file_writer.h"

namespace trv5 {

/// A row of `ParametriProgramma`.
struct ParameterRow {
  std::string Parametro, Valore1 = {}, Valore2 = {};
};

/// A ready-made betting system: rows of numbers 1..90 over an abstract set of numbers.
struct OrthogonalSystem {
  std::string Denominazione;
  int sviluppo = 0;  ///< how many numbers a row holds
  int Numeri = 0;    ///< how many numbers the system uses; the order of the list
  std::vector<std::vector<int>> rows;
};

/// A saved configuration as the rows of `Elenco_Memo` and `Elenco_Dett`: fields by name, nothing for NULL. The rows
/// keep the keys that `head` and `details` name.
struct ConfigurationRows {
  using Fields = std::vector<std::pair<std::string_view, std::optional<std::string>>>;

  std::string name;
  Fields head;
  std::vector<Fields> details;
};

/// What the shipped main database is filled with.
struct MainContents {
  std::vector<ParameterRow> parameters;
  std::vector<OrthogonalSystem> systems;
  std::vector<ConfigurationRows> configurations = {};
};

/// A draw and when it was written into the archive it comes from.
struct RegisteredDraw {
  DrawRow row;
  Registration registered;
};

// The files appear complete or not at all. An empty password makes a file that opens with any. Failures throw UserError
// and name the file.

/// Returns the configurations that the tables don't admit, each with its name and the reason; the others are in.
std::vector<std::string> createMainDatabase(const std::filesystem::path& file, const MainContents& contents,
                                            Existing existing, std::string_view password = programPassword());
/// An archive of these draws, in any order; "" stands for a wheel without numbers and becomes NULL.
void createArchive(const std::filesystem::path& file, const std::vector<DrawRow>& rows, Existing existing,
                   std::string_view password = programPassword());
/// The same of draws that keep the moment of their first writing.
void createRegisteredArchive(const std::filesystem::path& file, const std::vector<RegisteredDraw>& draws,
                             Existing existing, std::string_view password = programPassword());
void createExportFile(const std::filesystem::path& file, Existing existing,
                      std::string_view password = programPassword());

}  // namespace trv5
