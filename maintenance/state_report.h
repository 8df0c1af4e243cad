#pragma once

#include <string>

namespace trv5 {

class Archivio;

/// What one sends when asking for help: version, archive, what the check found, copies; no draws and no methods. Lines
/// end in CR LF.
std::string stateReport(const Archivio& a);

}  // namespace trv5
