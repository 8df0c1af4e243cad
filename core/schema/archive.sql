-- The archive of draws. The date is ISO text, so that it sorts by itself. A wheel's text is five two-digit numbers
-- joined by "-" where it is well-formed; entry by hand may store anything. NULL: the wheel wasn't drawn. The "+0 days"
-- makes the date function look whether the month has that day.

CREATE TABLE EstrazioniLotto (
  DataEstrazione TEXT NOT NULL CHECK (DataEstrazione LIKE '____-__-__' AND DataEstrazione IS date(DataEstrazione, '+0 days')),
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
  datareg TEXT CHECK (datareg IS NULL OR datareg LIKE '____-__-__' AND datareg IS date(datareg, '+0 days')),
  orareg TEXT CHECK (orareg IS NULL OR orareg LIKE '__:__:__' AND orareg IS time(orareg))
) STRICT;
CREATE UNIQUE INDEX "PrimaryKey" ON EstrazioniLotto (DataEstrazione);

CREATE VIEW Query_AAMMGG AS
SELECT
  CAST(substr(DataEstrazione, 1, 4) AS INTEGER) AS A,
  CAST(substr(DataEstrazione, 6, 2) AS INTEGER) AS M,
  CAST(substr(DataEstrazione, 9, 2) AS INTEGER) AS G,
  DataEstrazione
FROM EstrazioniLotto;
