#pragma once

#include <QTemporaryFile>

namespace trv5 {

/// Tells Qt, before the application is made, to show windows on no display: on screens large enough for every picture,
/// one for each scale. Must live until the application is made.
class OffscreenPlatform {
 public:
  OffscreenPlatform();

 private:
  QTemporaryFile m_screens;  // the platform wants the description of its screens as a file of the disk
};

}  // namespace trv5
