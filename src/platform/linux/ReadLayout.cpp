#include <QFile>

#include "platform/ReportLayout.h"
#include "platform/linux/ReportDescriptor.h"

namespace glidetrak {

/// The descriptor stands beside the hidraw node in sysfs; no device has an empty one.
std::optional<ReportLayout> ReadLayout(const QByteArray& path) {
  const QByteArray node = path.mid(path.lastIndexOf('/') + 1);
  QFile file(QString::fromLocal8Bit("/sys/class/hidraw/" + node + "/device/report_descriptor"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray descriptor = file.readAll();
  if (descriptor.isEmpty()) return {};
  return ParseReportDescriptor(descriptor);
}

}  // namespace glidetrak
