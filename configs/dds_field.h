#pragma once

#include <filesystem>
#include <string_view>

#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

/// True when the file has that table. It is opened without the password, on purpose: of a protected file this says no,
/// whatever it holds. Any error says no.
bool TableExists(const std::filesystem::path& file, std::string_view table);

/// True when that table of the file has that field; opened as TableExists does.
bool FieldExists(const std::filesystem::path& file, std::string_view table, std::string_view field);

/// Brings the table of an older main database up to date: the field DDS of `Elenco_Memo`.
class FunzioniAggiuntive : public Form {
 public:
  explicit FunzioniAggiuntive(Program& program);

  /// Run once when the screen is made: tells whether the field is there.
  void load();

  Button Command3, Command1, Command2;
  LineList List1;

 private:
  void VerificaCampo();
  /// The main database stays closed afterwards: the program must be started again.
  void AggiungeCampo();
  void AzzeraCampo();

  Program& m_program;
};

}  // namespace trv5
