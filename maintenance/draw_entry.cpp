#include "maintenance/draw_entry.h"

#include <fmt/format.h>

#include <algorithm>
#include <exception>

#include "core/dates.h"
#include "core/errors.h"
#include "core/text.h"
#include "maintenance/archive_state.h"
#include "maintenance/archivio.h"
#include "maintenance/copy_first.h"

namespace trv5 {
namespace {

DrawRow rowOfBoxes(Archivio& a, std::string date) {
  a.txtin.settle();
  const auto texts = a.txtin.texts();
  DrawRow row{std::move(date), {}};
  for (int wheel = 0; wheel < kWheels; ++wheel)
    row.wheels[static_cast<std::size_t>(wheel)] = wheelOfBoxes(texts, wheel);
  return row;
}

void requireArchiveOfTheStart(const Archivio& a) {
  if (a.program.otherArchiveChosen()) throw UserError(std::string(kOtherArchive));
}

// One text for whatever went wrong, worded for the likeliest cause; the true one stands below it.
void tellFailure(Shell& shell, const std::exception& error) {
  shell.message({.text = "Attenzione probabilmente hai inserito una data già memorizzata...",
                 .title = "Anomalia archivio",
                 .icon = Icon::Critical,
                 .reason = error.what()});
}

// False when the archive has no draw of that date.
bool correctDraw(Archivio& a, const DrawRow& row) {
  if (!dayOfText(row.date)) return false;
  DrawWriter writer(a.program.archiveToWrite());
  if (!writer.correct(row, registrationNow(a.shell()))) return false;
  writer.commit();
  return true;
}

bool deleteDraw(Archivio& a, const std::string& date) {
  if (!dayOfText(date)) return false;
  return deleteDraw(a.program.archiveToWrite(), date);
}

}  // namespace

Registration registrationNow(Shell& shell) {
  const DateTime now = shell.now();
  return {fmt::format("{:02}/{:02}/{:04}", now.day, now.month, now.year), timeText(now)};
}

void SalvaEstrazione(Archivio& a) {
  const std::string title = "Salvataggio estrazione";
  const std::string& date = a.MonthView1.date();
  if (!a.shell().confirm({.text = fmt::format("Confermi il salvataggio dell'estrazione del {} ?", date),
                          .title = title,
                          .icon = Icon::Question}))
    return;
  requireArchiveOfTheStart(a);
  try {
    if (!CopiaPrima(a, BackupReason::Aggiornamento)) return;
    {
      DrawWriter writer(a.program.archiveToWrite());
      writer.add(rowOfBoxes(a, date), registrationNow(a.shell()));
      writer.commit();
    }
    a.shell().message({.text = "Dati salvati correttamente. Ricarico archivio.", .title = title});
    const int before = a.program.archive.NumEstrazioni();
    RicaricaArchivio(a);
    if (const int now = a.program.archive.NumEstrazioni(); now > before) {
      a.HScrestrazione.setMaximum(now);
      a.HScrestrazione.set(now);
    }
    AggiornaMaschera(a);
    a.FgImporta.cutToHeading();
  } catch (const std::exception& error) {
    tellFailure(a.shell(), error);
  }
}

void ModificaEstrazione(Archivio& a) {
  const int shown = a.HScrestrazione.value();
  const std::string date = a.LBLESTRAZIONE.text();
  if (!a.shell().confirm({.text = fmt::format("Confermi la modifica dell'estrazione del {} ?  La modifica è relativa "
                                              "agli estratti e viene mantenuta la stessa data.",
                                              date),
                          .title = "Salvataggio estrazione",
                          .icon = Icon::Question}))
    return;
  requireArchiveOfTheStart(a);
  try {
    if (!CopiaPrima(a, BackupReason::Correzione)) return;
    if (correctDraw(a, rowOfBoxes(a, date))) {
      a.shell().message({.text = "Modifica effettuata. Ricarico archivio."});
      RicaricaArchivio(a);
      AggiornaMaschera(a);
    } else {
      a.shell().message({.text = "Elemento non trovato. Possibile anomalia"});
    }
    VaiEstrazione(a, shown);
    if (dayOfText(a.LBLESTRAZIONE.text())) a.MonthView1.show(a.LBLESTRAZIONE.text());  // `Text1` stays as it is
    a.FgImporta.cutToHeading();
  } catch (const std::exception& error) {
    tellFailure(a.shell(), error);
  }
}

void EliminaEstrazione(Archivio& a) {
  const std::string date = a.LBLESTRAZIONE.text();
  if (!a.shell().confirm({.text = fmt::format("Attenzione: sarà eliminata l'estrazione del {}.  Confermi ?", date),
                          .title = "Eliminazione record",
                          .icon = Icon::Question}))
    return;
  requireArchiveOfTheStart(a);
  if (!CopiaPrima(a, BackupReason::Cancellazione)) return;
  if (!deleteDraw(a, date)) return;
  a.shell().message(
      {.text = "Estrazione cancellata. L'archivio verrà ricaricato.", .title = "Sistemazione Archivio estrazioni"});
  RicaricaArchivio(a);
  AggiornaMaschera(a);
}

std::array<int, EntryBoxes::kBoxes> numbersInText(std::string_view text) {
  constexpr int kTooHigh = 1000;
  std::array<int, EntryBoxes::kBoxes> numbers{};
  std::size_t found = 0;
  bool inNumber = false;
  for (const char c : text) {
    const bool digit = c >= '0' && c <= '9';
    if (!digit && inNumber) ++found;
    if (found == numbers.size()) break;
    if (digit) numbers[found] = std::min(kTooHigh, numbers[found] * 10 + (c - '0'));
    inNumber = digit;
  }
  return numbers;
}

void IncollaEstrazione(Archivio& a) {
  a.Text3.set(a.shell().clipboard() + " ");
  int box = 0;
  for (const int number : numbersInText(a.Text3.text())) a.txtin[++box].set(twoDigits(number));
}

}  // namespace trv5
