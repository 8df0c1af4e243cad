#pragma once

#include <string>
#include <string_view>

#include "method/table.h"

namespace trv5 {

// What more than one operation says in the status line where it can't act.

inline constexpr const char* kNoCases = "Nessun caso: prima ricava l'elenco delle estrazioni";

/// `of`: what the row is of, with its preposition: "della ricerca".
inline std::string chooseRowFirst(std::string_view of) {
  return std::string("Scegli prima una riga ").append(of);
}
inline std::string chooseRowFirst(Table table) {
  return chooseRowFirst(std::string("di ").append(traitsOf(table).caption));
}

inline std::string noFormulas(Table table) {
  return std::string("Nessuna formula in ").append(traitsOf(table).caption).append(": aggiungi prima una previsione");
}

}  // namespace trv5
