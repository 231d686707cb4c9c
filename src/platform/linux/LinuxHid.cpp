#include "platform/linux/LinuxHid.h"

#include <QFile>
#include <algorithm>

#include "platform/linux/ReportDescriptor.h"

namespace glidetrak {

namespace {

/// The descriptor stands beside the hidraw node in sysfs.
ReportLayout ReadLayout(const QByteArray& path) {
  const QByteArray node = path.mid(path.lastIndexOf('/') + 1);
  QFile file(QString::fromLocal8Bit("/sys/class/hidraw/" + node + "/device/report_descriptor"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return ParseReportDescriptor(file.readAll());
}

}  // namespace

LinuxHid::~LinuxHid() {
  for (const auto& [lHandle, device] : m_aDevices) hid_close(device.pDevice);
}

std::vector<QByteArray> LinuxHid::Paths() {
  std::vector<QByteArray> aPaths;
  hid_device_info* pFirst = hid_enumerate(0, 0);
  for (const hid_device_info* pInfo = pFirst; pInfo != nullptr; pInfo = pInfo->next) {
    const QByteArray path = pInfo->path;
    // A device with several usages is listed once for each.
    if (std::find(aPaths.begin(), aPaths.end(), path) == aPaths.end()) aPaths.push_back(path);
  }
  hid_free_enumeration(pFirst);
  return aPaths;
}

qint32 LinuxHid::Open(const QByteArray& path) {
  hid_device* pDevice = hid_open_path(path.constData());
  if (pDevice == nullptr) return 0;
  const qint32 lHandle = m_lNextHandle++;
  m_aDevices[lHandle] = {pDevice, path, ReadLayout(path).bNumbered};
  return lHandle;
}

LinuxHid::Device* LinuxHid::Find(qint32 lHandle) {
  const auto found = m_aDevices.find(lHandle);
  return found == m_aDevices.end() ? nullptr : &found->second;
}

void LinuxHid::Close(qint32 lHandle) {
  const Device* pFound = Find(lHandle);
  if (pFound == nullptr) return;
  hid_close(pFound->pDevice);
  m_aDevices.erase(lHandle);
}

bool LinuxHid::Attributes(qint32 lHandle, HidAttributes& attributes) {
  const Device* pFound = Find(lHandle);
  const hid_device_info* pInfo = pFound == nullptr ? nullptr : hid_get_device_info(pFound->pDevice);
  if (pInfo == nullptr) return false;
  attributes = {static_cast<qint16>(pInfo->vendor_id), static_cast<qint16>(pInfo->product_id),
                static_cast<qint16>(pInfo->release_number)};
  return true;
}

bool LinuxHid::ReportLengths(qint32 lHandle, HidReportLengths& lengths) {
  const Device* pFound = Find(lHandle);
  if (pFound == nullptr) return false;
  lengths = ReadLayout(pFound->path).lengths;
  return true;
}

qint32 LinuxHid::Write(qint32 lHandle, const QByteArray& report) {
  const Device* pFound = Find(lHandle);
  if (pFound == nullptr) return 0;
  const auto* pData = reinterpret_cast<const unsigned char*>(report.constData());
  return std::max(0, hid_write(pFound->pDevice, pData, static_cast<size_t>(report.size())));
}

HidReadResult LinuxHid::Read(qint32 lHandle, qint32 lTimeOut, QByteArray& report) {
  const Device* pFound = Find(lHandle);
  if (pFound == nullptr) return HidReadResult::Failed;
  // Where reports are not numbered the wire carries no id, and its place stays 0.
  const qsizetype iSkip = pFound->bNumbered ? 0 : 1;
  auto* pData = reinterpret_cast<unsigned char*>(report.data()) + iSkip;
  const int iCount = hid_read_timeout(pFound->pDevice, pData,
                                      static_cast<size_t>(report.size() - iSkip), lTimeOut);
  if (iCount == 0) return HidReadResult::TimeOut;
  return iCount < 0 ? HidReadResult::Failed : HidReadResult::Success;
}

QString LinuxHid::ErrorText() {
  const wchar_t* pText = hid_error(nullptr);
  return pText == nullptr ? QString() : QString::fromWCharArray(pText);
}

}  // namespace glidetrak
