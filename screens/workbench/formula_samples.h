#pragma once

#include <QString>
#include <vector>

namespace trv5 {

/// The widest text of each column of a formula row, as far as the alteration: what the tables of formulas and the list
/// of candidates are laid out for.
inline std::vector<QString> formulaSamples() {
  const QString two = QStringLiteral("88"), wheel = QStringLiteral("MI"), none;
  std::vector<QString> samples = {two};
  for (int element = 0; element < 3; ++element) samples.insert(samples.end(), {none, wheel, two});
  samples.insert(samples.end(), {QStringLiteral("N1 X N2"), two, QStringLiteral("888"), two, none, none, none,
                                 QStringLiteral("DIAM")});
  return samples;
}

}  // namespace trv5
