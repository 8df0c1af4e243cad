#include "configs/dds_field.h"

namespace trv5 {
namespace {

constexpr const char* kTable = "Elenco_Memo";
constexpr const char* kField = "DDS";
constexpr const char* kZero = "UPDATE Elenco_Memo SET DDS = 0";

// One text for all that can happen.
void tellFailure(Shell& shell, const std::exception& error) {
  shell.message({.text = "Attenzione, probabilmente il campo è già stato inserito", .reason = error.what()});
}

}  // namespace

bool TableExists(const std::filesystem::path& file, std::string_view table) {
  try {
    return Database(file, FileKind::Main, "").hasTable(table);
  } catch (const std::exception&) {
    return false;
  }
}

bool FieldExists(const std::filesystem::path& file, std::string_view table, std::string_view field) {
  if (!TableExists(file, table)) return false;
  try {
    return Database(file, FileKind::Main, "").hasField(table, field);
  } catch (const std::exception&) {
    return false;
  }
}

FunzioniAggiuntive::FunzioniAggiuntive(Program& program)
    : Form(program.shell, "FunzioniAggiuntive", "Funzionalità aggiuntive"),
      Command3(*this, "Command3", "Verifica esistenza DDS"),
      Command1(*this, "Command1", "AGGIUNGE CAMPO DDS ALLE TABELLE"),
      Command2(*this, "Command2", "AZZERA CONTENUTO CAMPO DDS"),
      List1(*this, "List1"),
      m_program(program) {
  Command3.onEvent([this] { VerificaCampo(); });
  Command1.onEvent([this] { AggiungeCampo(); });
  Command2.onEvent([this] { AzzeraCampo(); });
}

void FunzioniAggiuntive::load() {
  VerificaCampo();
}

void FunzioniAggiuntive::VerificaCampo() {
  List1.clear();
  const bool there = FieldExists(m_program.PercorsoDbParametri, kTable, kField);
  List1.add(there ? "Il campo DDS esiste" : "Il campo DDS non esiste, lo si deve aggiungere");
}

void FunzioniAggiuntive::AggiungeCampo() {
  try {
    m_program.DbParametri.reset();
    m_program.DbParametri = std::make_unique<Database>(m_program.PercorsoDbParametri, FileKind::Main);
    Database& database = *m_program.DbParametri;
    Database::Transaction transaction(database);
    database.execute("ALTER TABLE Elenco_Memo ADD COLUMN DDS INTEGER");
    database.execute(kZero);
    transaction.commit();
    m_program.DbParametri.reset();
  } catch (const std::exception& error) {
    return tellFailure(shell(), error);
  }
  shell().message({.text = "Il campo è stato inserito nella tabella. Chiudere il programma e riavviarlo."});
  List1.add("Il campo DDS è stato aggiunto");
}

void FunzioniAggiuntive::AzzeraCampo() {
  try {
    Database& database = m_program.mainDatabase();
    Database::Transaction transaction(database);
    database.execute(kZero);
    transaction.commit();
  } catch (const std::exception& error) {
    return tellFailure(shell(), error);
  }
  shell().message({.text = "Il campo è stato popolato con valore zero "});
  List1.add("Il campo DDS è stato popolato con valori zero");
}

}  // namespace trv5
