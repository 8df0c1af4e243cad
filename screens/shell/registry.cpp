#include "screens/shell/registry.h"

#include "cases/print_header.h"
#include "cases/selections.h"
#include "configs/dds_field.h"
#include "configs/draft.h"
#include "configs/import_export.h"
#include "core/container.h"
#include "core/inizio.h"
#include "core/verifica_archivio.h"
#include "desk/equip_workbench.h"
#include "engine/caso.h"
#include "screens/Caso.h"
#include "screens/DiDiSO.h"
#include "screens/ElencoRiscontri.h"
#include "screens/Estrazioni_minielenco.h"
#include "screens/EvoluzioneGrafica.h"
#include "screens/FunzioniAggiuntive.h"
#include "screens/INIZIO.h"
#include "screens/ImportExport.h"
#include "screens/ProvaAvanti.h"
#include "screens/SistemiOrtogonali.h"
#include "screens/Speciale.h"
#include "screens/VerificaArchivio.h"
#include "screens/archivio.h"
#include "screens/shell/Container.h"
#include "screens/workbench/Sommativi1.h"

namespace trv5 {
namespace {

// `FormType` made of the program, shown by `WidgetType`.
template <class FormType, class WidgetType>
ScreenEntry entry(std::string name, Place place, QSize size = {}) {
  return {.name = std::move(name),
          .place = place,
          .size = size,
          .makeForm = [](Program& program) { return std::make_unique<FormType>(program); },
          .makeWidget = [](Form& form) { return new WidgetType(static_cast<FormType&>(form)); }};
}

ScreenEntry atRight(ScreenEntry made) {
  made.atRight = true;
  return made;
}

template <class FormType>
ScreenEntry loaded(ScreenEntry made) {
  made.load = [](Form& form) { static_cast<FormType&>(form).load(); };
  return made;
}

ScreenEntry workbench() {
  ScreenEntry made = {.name = "Sommativi1",
                      .makeForm = [](Program& program) { return makeWorkbench(program); },
                      .makeWidget = [](Form& form) { return new Sommativi1Screen(static_cast<Workbench&>(form)); },
                      .load = [](Form& form) { ApreBanco(static_cast<Workbench&>(form)); },
                      .end = [](Form& form) { keepDraft(static_cast<Workbench&>(form)); },
                      .work = [](const Form& form) { return methodName(static_cast<const Workbench&>(form)); }};
  return made;
}

}  // namespace

std::vector<ScreenEntry> allScreens() {
  return {
      loaded<Inizio>(entry<Inizio, InizioScreen>("INIZIO", Place::Window, {860, 400})),
      loaded<Container>(entry<Container, ContainerScreen>("Container", Place::Window, {1920, 1080})),
      workbench(),
      loaded<Archivio>(entry<Archivio, ArchivioScreen>("archivio", Place::Fills)),
      atRight(loaded<MiniList>(
          entry<MiniList, EstrazioniMinielencoScreen>("Estrazioni_minielenco", Place::Framed, {660, 490}))),
      loaded<DiDiSO>(entry<DiDiSO, DiDiSOScreen>("DiDiSO", Place::Fills)),
      loaded<SistemiOrtogonali>(entry<SistemiOrtogonali, SistemiOrtogonaliScreen>("SistemiOrtogonali", Place::Fills)),
      entry<ElencoRiscontri, ElencoRiscontriScreen>("ElencoRiscontri", Place::Framed, {760, 560}),
      entry<EvoluzioneGrafica, EvoluzioneGraficaScreen>("EvoluzioneGrafica", Place::Framed),
      entry<Caso, CasoScreen>("Caso", Place::Framed, {760, 560}),
      entry<Speciale, SpecialeScreen>("Speciale", Place::Framed, {900, 480}),
      loaded<ProvaAvanti>(entry<ProvaAvanti, ProvaAvantiScreen>("ProvaAvanti", Place::Framed, {900, 600})),
      loaded<ImportExport>(entry<ImportExport, ImportExportScreen>("ImportExport", Place::Framed, {760, 560})),
      loaded<FunzioniAggiuntive>(
          entry<FunzioniAggiuntive, FunzioniAggiuntiveScreen>("FunzioniAggiuntive", Place::Framed, {520, 320})),
      loaded<VerificaArchivio>(
          entry<VerificaArchivio, VerificaArchivioScreen>("VerificaArchivio", Place::Framed, {1200, 420})),
  };
}

}  // namespace trv5
