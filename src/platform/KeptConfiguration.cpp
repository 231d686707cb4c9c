#include "platform/KeptConfiguration.h"

#include <QFileInfo>

namespace glidetrak {

const ConfigurationText& KeptConfiguration::Read(Machine& machine, const QString& sPath) {
  const QFileInfo info(machine.NativePath(sPath));
  const Stamp stamp{info.filePath(), info.size(), info.lastModified()};
  if (stamp != m_stamp || !info.exists()) {
    m_text = ConfigurationText(machine.ReadFile(sPath));
    m_stamp = stamp;
  }
  return m_text;
}

}  // namespace glidetrak
