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
      },
      shippedSystems(),
  };
}

}  // namespace trv5
