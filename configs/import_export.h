#pragma once

#include <filesystem>

#include "configs/exchange.h"
#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

/// Hands one configuration to another installation, or takes one from it, by an export file.
class ImportExport : public Form {
 public:
  explicit ImportExport(Program& program);

  /// Run once when the screen is made: the list of the configurations.
  void load();

  Tabs SSTab1;
  // Esportazione.
  GridControl Fg1;
  LineList List1;
  Label Label1;  ///< path of the file to write to
  Button Command1, Command2, Command3;
  // Importazione.
  Label Label4;            ///< path of the file to read
  Text Txt_Denominazione;  ///< the name under which the configuration is added
  LineList List2;
  Button Command4, Command5, Command6;
  GridControl fG2, Fg11;  ///< the two tables of the file, as the preview read them; without a place on screen
  // Avvertenze.
  Button Cmd_CreaVuoto;

 private:
  void Elenca();
  void SelezionaDestinazione();
  void Esporta();
  void SelezionaFile();
  void MostraAnteprima();
  void ColoraDenominazione();
  void Importa();
  void CreaVuoto();
  bool chooses(Label& path, const char* title);
  /// Opens an export file; the main database itself is refused.
  std::unique_ptr<Database> openFile(const std::filesystem::path& file) const;

  Program& m_program;
};

}  // namespace trv5
