#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "maintenance/archive_check.h"
#include "maintenance/mending.h"

namespace trv5 {

class Archivio;

/// The right side of the tab Copie: what is to be looked at in the archive.
class CheckTab {
 public:
  /// `reload`: reads the archive again under all screens.
  CheckTab(Archivio& archivio, std::function<void()> reload);

  /// Connects the controls.
  void connect(const std::shared_ptr<CheckTab>& self);
  /// "Verifica archivio": a row for each finding, one "in ordine" for each check without. An archive in memory that is
  /// no longer the one of the file is read again.
  void ControllaArchivio();
  /// Once more where there is a list and draws have changed since; without a word.
  void refresh();

 private:
  struct Look;
  Look look() const;
  void show(const Look& look, double seconds);
  int drawOf(const ArchiveFinding& finding) const;
  void MostraRilievo(int row);
  void Accetta();
  void RipristinaEstrazione();
  const Mend* chosenMend() const;
  void enableButtons();
  std::size_t found() const;

  Archivio& a;
  std::function<void()> m_reload;
  std::shared_ptr<void> m_reloads;           // told of each
  bool m_stale = false;                      // draws have changed since the look
  std::vector<ArchiveFinding> m_findings;    // of the rows of `Fg_Controllo`
  std::vector<std::optional<Mend>> m_mends;  // for each of them
};

}  // namespace trv5
