#include "provision/shipped_contents.h"

#include "provision/orthogonal_systems.h"

namespace trv5 {

MainContents shippedContents(const std::string& archive) {
  return {
      {
          {"PercorsoArchivio", archive},
          {"Ruote", "01234567890"},
          {"RuotaPrincipale", "0"},
          {"EstrazioneIniziale", "1"},
          {"IndirizzoInternet", "https://example.org/estrazioni"},
          {"PercorsoDati.iii"},
          {"PercorsoRuotafast", "/BRNT3"},
          {"HostWebAggiornamento"},
          {"HostFtpAggiornamento"},
          // What the game pays, gross and in stakes (law 311 of 2004, paragraph 491), and what is withheld in percent.
          {"VincitaEstratto", "11,232"},
          {"VincitaAmbo", "250"},
          {"VincitaTerno", "4500"},
          {"VincitaQuaterna", "120000"},
          {"VincitaCinquina", "6000000"},
          {"RitenutaVincite", "8"},
      },
      shippedSystems(),
  };
}

}  // namespace trv5
