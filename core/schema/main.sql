-- The main database. Names of indices are unique in a whole file here, so "Primarykey" belongs to the one table that is
-- sought by a text; the keys of the other tables are their row numbers, which need no index of their own.

CREATE TABLE ParametriProgramma (
  Parametro TEXT NOT NULL COLLATE NOCASE CHECK (Parametro <> ''),
  Valore1 TEXT,
  Valore2 TEXT
) STRICT;
CREATE UNIQUE INDEX "Primarykey" ON ParametriProgramma (Parametro);

-- Part of the file since its first version; no operation reads or writes them.
CREATE TABLE Salvataggi (Id INTEGER PRIMARY KEY, Descrizione TEXT) STRICT;
CREATE TABLE Configurazioni (Id INTEGER PRIMARY KEY, Descrizione TEXT) STRICT;
CREATE TABLE Confignumeri (Id INTEGER PRIMARY KEY, Descrizione TEXT) STRICT;

CREATE TABLE Sist_Ortogonali (
  IdOrto INTEGER PRIMARY KEY,
  Denominazione TEXT NOT NULL,
  sviluppo INTEGER NOT NULL CHECK (sviluppo BETWEEN 1 AND 90),
  Numeri INTEGER NOT NULL CHECK (Numeri BETWEEN 1 AND 90)
) STRICT;

-- Num: character k is "X" when the number k belongs to the row.
CREATE TABLE Sist_OrtoSv (
  RifOrto INTEGER NOT NULL REFERENCES Sist_Ortogonali (IdOrto) ON DELETE CASCADE,
  NuRiga INTEGER NOT NULL,
  Qn INTEGER,
  Num TEXT NOT NULL CHECK (length(Num) = 90)
) STRICT;
CREATE INDEX Index_RifOrto ON Sist_OrtoSv (RifOrto, NuRiga);
