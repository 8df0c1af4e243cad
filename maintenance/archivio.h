#pragma once

#include "core/controls.h"
#include "core/program.h"
#include "maintenance/entry_boxes.h"

namespace trv5 {

/// The screen on which the archive of draws is kept: entry, correction and search by hand, the list of all draws, the
/// update from a published file, the files for other programs. Here are the controls of all its tabs; their operations
/// stand with their subjects, connected by one function a tab.
class Archivio : public Form {
 public:
  static constexpr int kHelpContext = 230;
  /// The tabs of `SSTab1`.
  enum Tab { kGestione = 0, kElenco = 1, kAggiornamenti = 2, kSalvataggi = 3, kCopie = 4 };

  explicit Archivio(Program& program);

  Program& program;

  Tabs SSTab1{*this,
              "SSTab1",
              {{kGestione, "Gestione estrazioni"},
               {kElenco, "Elenco estrazioni"},
               {kAggiornamenti, "Aggiornamenti"},
               {kSalvataggi, "Salvataggi"},
               {kCopie, "Copie"}}};
  // The help pages of the screen: entry, correction, update, formats.
  Button CmDHelp{*this, "CmDHelp", "Help in linea", "Help in linea: gestione dell'archivio"},
      Command22{*this, "Command22", "Help in linea", "Help in linea: correzione di un'estrazione"},
      Command23{*this, "Command23", "Help in linea", "Help in linea: aggiornamento dell'archivio"},
      Command25{*this, "Command25", "Help in linea", "Help in linea: formati di salvataggio"};

  // Gestione estrazioni, the draw shown.
  Label pAN_DC{*this, "pAN_DC", "", "Scelta dell'estrazione per numero indice"};  ///< its index; a click asks for one
  Label LBLESTRAZIONE{*this, "LBLESTRAZIONE"};  ///< its date, the key of correction and deletion
  Label LabelPM{*this, "LabelPM"}, LabelPA{*this, "LabelPA"};
  Scroll HScrestrazione{*this, "HScrestrazione", 1, 1};  ///< 1..`NumEstrazioni`
  EntryBoxes txtin{*this};                               ///< its numbers, and those of a new draw
  Label Lbl_Controllo{*this, "Lbl_Controllo"};           ///< what the boxes lack, while they are written
  Button Command59{*this, "Command59", "Ricerca per data"}, Command42{*this, "Command42", "Ricerca per numero indice"},
      Command4{*this, "Command4", "Vai ultima estrazione"};
  Button Command3{*this, "Command3", "MODIFICA ESTRAZIONE"}, Command2{*this, "Command2", "ELIMINA ESTRAZIONE"};
  Button Command1{*this, "Command1", "AZZERA GRID "}, Command12{*this, "Command12", "INCOLLA ESTRAZIONE"},
      Command8{*this, "Command8", "SALVA ESTRAZIONE"};
  Text Text3{*this, "Text3"};  ///< what was pasted last; not shown
  // The date of a new draw, and the state of the archive.
  Calendar MonthView1{*this, "MonthView1"};
  Label Label2{*this, "Label2"}, LBLAGGIORNATO{*this, "LBLAGGIORNATO"};
  Text Text1{*this, "Text1"};
  Button Command6{*this, "Command6", "Imposta data"}, Command9{*this, "Command9", "Imposta data odierna"};
  Label Label5{*this, "Label5"};  ///< the default address as it was when the screen was opened
  Button Command5{*this, "Command5", "COLLEGA AL SITO"};
  // The calendar of a year.
  Combo Combo1{*this, "Combo1"};
  Button Command24{*this, "Command24", "Carica calendario"};
  Check Check2{*this, "Check2", "Sigla giorno settimana"};
  GridControl Fg1{*this, "Fg1", "|A|M"};

  // Elenco estrazioni.
  Button Command14{*this, "Command14", "Vai alla prima estrazione"},
      Command13{*this, "Command13", "Vai ultima estrazione"}, Command11{*this, "Command11", "Selezione estrazione"};
  Label Label9{*this, "Label9"};  ///< number of draws
  GridControl FgDB{*this, "FgDB", "|Data|BA|CA|FI|GE|MI|NA|PA|RO|TO|VE|NZ"};

  // Aggiornamenti.
  Button Command18{*this, "Command18", "CONTROLLO AGGIORNAMENTI"}, Command21{*this, "Command21", "AGGIORNA DA FILE"},
      Command27{*this, "Command27", "SCARICO FILE"}, Command28{*this, "Command28", "AGGIORNAMENTO"};
  Check Check3{*this, "Check3", "Corregge estrazioni errate"};
  GridControl FgImporta{*this, "FgImporta", "|Data|BA|CA|FI|GE|MI|NA|PA|RO|TO|VE|NZ"};
  LineList List4{*this, "List4"};  ///< what the check and the update found
  // In the menu "Altro".
  Button Cmd_Storico{*this, "Cmd_Storico", "Confronta con lo storico pubblicato"},
      Command19{*this, "Command19", "Scarica dal server FTP"},
      Command20{*this, "Command20", "Scarica con il programma di navigazione"},
      Command26{*this, "Command26", "Annulla lo scarico in corso"};
  Label Lbl_Server{*this, "Lbl_Server"};  ///< where the file comes from, or where that is set

  // Salvataggi.
  Button Command10{*this, "Command10", "SALVA IN FORMATO BRENTARA 3 (Dati.iii)"},
      Command35{*this, "Command35", "RENDE PREDEFINITA"}, Command7{*this, "Command7", "SALVA IN FORMATO RUOTAFAST"},
      Command34{*this, "Command34", "SALVA NAZIONALE FORMATO TESTO"};
  Label Label13{*this, "Label13"};  ///< path of the last "Dati.iii"
  Check Check1{*this, "Check1",
               "Aggiunge estrazione del 10-06-1961 (necessaria per compatibilità metodi creati con Formulon 2.0"};
  Text Text2{*this, "Text2"};  ///< the default internet address, to be changed
  Button Command16{*this, "Command16", "Incolla contenuto appunti"}, Command15{*this, "Command15", "RENDE PREDEFINITO"};
  // Settings of the export and of the update, and what keeps them.
  Text Txt_CartellaRuotafast{*this, "Txt_CartellaRuotafast"}, Txt_ServerWeb{*this, "Txt_ServerWeb"},
      Txt_ServerFtp{*this, "Txt_ServerFtp"};
  Button Cmd_Impostazioni{*this, "Cmd_Impostazioni", "Memorizza le impostazioni"};

  // Copie.
  GridControl Fg_Copie{*this, "Fg_Copie", "Copia del|Motivo|Estrazioni|Fino al|Rispetto a oggi"};
  Button Cmd_EsportaStato{*this, "Cmd_EsportaStato", "Esporta lo stato",
                          "Scrive in un testo versione, controllo e copie, da mandare a chi aiuta"},
      Cmd_Ripristina{*this, "Cmd_Ripristina", "Ripristina la copia",
                     "Rimette la copia scelta al posto dell'archivio, dopo averne fatta una di com'è oggi"},
      Cmd_VerificaCopia{*this, "Cmd_VerificaCopia", "Verifica la copia",
                        "Dice se la copia scelta si lascia leggere per intero"};
  Label Lbl_CartellaCopie{*this, "Lbl_CartellaCopie"};
  GridControl Fg_Controllo{*this, "Fg_Controllo", "Controllo|N° estr|Data|Che cosa"};
  Button Cmd_VerificaArchivio{*this, "Cmd_VerificaArchivio", "Verifica archivio",
                              "Guarda tutte le estrazioni del file e ne elenca quello che non torna"},
      Cmd_Accetta{*this, "Cmd_Accetta", "Accetta"},
      Cmd_RipristinaEstrazione{*this, "Cmd_RipristinaEstrazione", "Ripristina l'estrazione"},
      Copia_Fg_Controllo{*this, "Copia_Fg_Controllo", "Copia tabella"};
  Label Lbl_EsitoControllo{*this, "Lbl_EsitoControllo"};

  /// Run once when the screen is made.
  void load();
};

}  // namespace trv5
