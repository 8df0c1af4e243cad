-- The salted hash of the file's password. A file without this table opens with any.
CREATE TABLE Protezione (Impronta TEXT NOT NULL) STRICT;
