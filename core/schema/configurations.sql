-- The saved configurations, in the main database and in an export file. A configuration's rows go with it.

-- The lists are stored by the position of their item, -1 for a typed text; the strings of chosen cells are always full
-- length, whatever characters they hold.
CREATE TABLE Elenco_Memo (
  Id_Config INTEGER PRIMARY KEY AUTOINCREMENT,
  Denominazione TEXT NOT NULL COLLATE NOCASE CHECK (length(Denominazione) <= 100),
  Estrazione INTEGER,
  NumCasi INTEGER,
  RuotaP INTEGER,
  Mensile INTEGER,
  Tiporilevazione INTEGER,
  Parametro TEXT,
  Qn INTEGER,
  Colpi INTEGER,
  Elenco INTEGER,
  DDS INTEGER,
  Posizioni TEXT CHECK (length(Posizioni) = 5),
  RuoteGioco TEXT CHECK (length(RuoteGioco) = 11),
  Analisi INTEGER,
  Ruoterilevazione TEXT CHECK (length(Ruoterilevazione) = 11),
  Retro INTEGER,
  Isotopi INTEGER,
  QNR1 INTEGER,
  QNR2 INTEGER,
  Sorte INTEGER,
  Fg0 INTEGER,
  Fg1 INTEGER,
  fG2 INTEGER,
  fG3 INTEGER
) STRICT;
CREATE UNIQUE INDEX Index_denominazione ON Elenco_Memo (Denominazione);

CREATE TABLE Elenco_Dett (
  Id_Dett INTEGER PRIMARY KEY AUTOINCREMENT,
  Rif_Memo INTEGER NOT NULL REFERENCES Elenco_Memo (Id_Config) ON DELETE CASCADE,
  Grid INTEGER NOT NULL,
  Riga INTEGER NOT NULL CHECK (Riga >= 1),
  R1 TEXT,
  Ru1 TEXT,
  P1 TEXT,
  R2 TEXT,
  Ru2 TEXT,
  P2 TEXT,
  R3 TEXT,
  Ru3 TEXT,
  P3 TEXT,
  Operatore TEXT,
  Fix TEXT,
  Pres TEXT,
  CC TEXT,
  Nr TEXT,
  Qn TEXT,
  Formula TEXT,
  Alterazione TEXT,
  Ruota TEXT,
  Ruote TEXT,
  Ritardo TEXT
) STRICT;
CREATE INDEX Index_Rif_Memo ON Elenco_Dett (Rif_Memo);
