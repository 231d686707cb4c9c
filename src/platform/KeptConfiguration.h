#pragma once

// The configuration file on the disk.

#include <QDateTime>

#include "platform/ConfigurationText.h"
#include "platform/Platform.h"

namespace glidetrak {

/// The configuration file that was read last. The catalogue asks for up to 65,535 keys of one file:
/// it is read again only when it has changed.
class KeptConfiguration {
 public:
  /// The text of the file, given as a station path. Throws as Machine::ReadFile does.
  const ConfigurationText& Read(Machine& machine, const QString& sPath);

 private:
  /// By which a file is known to be the one that was read.
  struct Stamp {
    QString sNative;
    qint64 lSize = -1;
    QDateTime modified;
    bool operator==(const Stamp&) const = default;
  };

  ConfigurationText m_text;  ///< of the file of m_stamp
  Stamp m_stamp;
};

}  // namespace glidetrak
