-- The archive of draws. The date is ISO text, so that it sorts by itself. A wheel's text is five two-digit numbers
-- joined by "-" where it is well-formed; entry by hand may store anything. NULL: the wheel wasn't drawn.

CREATE TABLE EstrazioniLotto (
  DataEstrazione TEXT NOT NULL CHECK (DataEstrazione IS date(DataEstrazione)),
  Ba TEXT,
  Ca TEXT,
  Fi TEXT,
  Ge TEXT,
  Mi TEXT,
  Na TEXT,
  Pa TEXT,
  Ro TEXT,
  "To" TEXT,
  Ve TEXT,
  Nz TEXT,
  datareg TEXT CHECK (datareg IS date(datareg)),
  orareg TEXT CHECK (orareg IS time(orareg))
) STRICT;
CREATE UNIQUE INDEX "PrimaryKey" ON EstrazioniLotto (DataEstrazione);

CREATE VIEW Query_AAMMGG AS
SELECT
  CAST(substr(DataEstrazione, 1, 4) AS INTEGER) AS A,
  CAST(substr(DataEstrazione, 6, 2) AS INTEGER) AS M,
  CAST(substr(DataEstrazione, 9, 2) AS INTEGER) AS G,
  DataEstrazione
FROM EstrazioniLotto;
