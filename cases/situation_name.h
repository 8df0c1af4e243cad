#pragma once

#include <string>

#include "method/detection.h"

namespace trv5 {

/// A situation in a few words: "Numeri 7-17-77-90 a FI", "Somma 45 su 2 ruote", "Mensile U a BA".
std::string situationName(const Situation& situation);

}  // namespace trv5
