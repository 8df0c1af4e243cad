#include "screens/shell/run_place.h"

#include <QCoreApplication>

namespace trv5 {

std::filesystem::path programFolder() {
  return QCoreApplication::applicationDirPath().toStdU16String();
}

std::filesystem::path shippedModel() {
  return programFolder().parent_path() / "share" / "trv5" / "DbTRV5.mdb";
}

}  // namespace trv5
