-- The sum of each draw of EstrazioniLotto, written together with it: tells what was changed, added or lost by damage or
-- by another program. An archive without this table gets it at the first write.
CREATE TABLE VerificaEstrazioni (
  DataEstrazione TEXT NOT NULL PRIMARY KEY,
  Somma INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
