#include "engine/result_forms.h"

#include "cases/hit_rows.h"
#include "engine/table_tools.h"

namespace trv5 {
namespace {

constexpr std::string_view kOutcomeHeading =
    "  |Config|Config|Rilev|Data Rilev|S |Colpo|1|2|3|4|5|6|7|8|9|10|Sorte|Colpo|Ruota";

}  // namespace

ElencoRiscontri::ElencoRiscontri(Shell& shell)
    : Form(shell, "ElencoRiscontri", "Elenco"),
      Fg1(*this, "Fg1", kHitHeading),
      Stampa_Fg1(*this, "Stampa_Fg1", "Stampa"),
      Pulisce_Fg1(*this, "Pulisce_Fg1", "Pulisce celle esiti"),
      Copia_Fg1(*this, "Copia_Fg1", "Copia tabella") {
  Stampa_Fg1.onEvent([this] { StampaTabella(Fg1); });
  Pulisce_Fg1.onEvent([this] { PulisceCelleEsiti(Fg1); });
  Copia_Fg1.onEvent([this] { CopiaTabella(Fg1); });
}

Speciale::Speciale(Shell& shell)
    : Form(shell, "Speciale", "Sfaldamenti configurazioni"), Fg1(*this, "Fg1", kOutcomeHeading) {
  Fg1.setColumnHidden(2);
  Fg1.setColumnHidden(6);
}

}  // namespace trv5
