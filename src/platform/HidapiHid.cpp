#include "platform/HidapiHid.h"

#include <algorithm>

#include "platform/HidapiCalls.h"
#include "platform/ReportLayout.h"

namespace glidetrak {

HidapiHid::~HidapiHid() {
  for (const auto& [lHandle, device] : m_aDevices) hid_close(device.pDevice);
}

/// Listed by its ids: whatever is listed is asked for its texts on Windows.
std::vector<HidListing> HidapiHid::Devices(qint16 iVendorID, qint16 iProductID) {
  std::vector<HidListing> aDevices;
  hid_device_info* pFirst =
      hid_enumerate(static_cast<quint16>(iVendorID), static_cast<quint16>(iProductID));
  for (const hid_device_info* pInfo = pFirst; pInfo != nullptr; pInfo = pInfo->next) {
    // A device with several usages is listed once for each.
    const auto isThis = [pInfo](const HidListing& listing) { return listing.path == pInfo->path; };
    if (std::any_of(aDevices.begin(), aDevices.end(), isThis)) continue;
    aDevices.push_back({pInfo->path, static_cast<qint16>(pInfo->vendor_id),
                        static_cast<qint16>(pInfo->product_id)});
  }
  hid_free_enumeration(pFirst);
  return aDevices;
}

qint32 HidapiHid::Open(const QByteArray& path) {
  hid_device* pDevice = OpenForReports(path);
  if (pDevice == nullptr) return 0;
  const ReportLayout layout = ReadLayout(path).value_or(ReportLayout{});
  const qint32 lHandle = m_lNextHandle++;
  Device& device = m_aDevices[lHandle] = {pDevice, path, layout.bNumbered, {}};
  device.aSent.reserve(layout.lengths.iOutput);
  return lHandle;
}

HidapiHid::Device* HidapiHid::Find(qint32 lHandle) {
  const auto found = m_aDevices.find(lHandle);
  return found == m_aDevices.end() ? nullptr : &found->second;
}

void HidapiHid::Close(qint32 lHandle) {
  const Device* pFound = Find(lHandle);
  if (pFound == nullptr) return;
  hid_close(pFound->pDevice);
  m_aDevices.erase(lHandle);
}

bool HidapiHid::Attributes(qint32 lHandle, HidAttributes& attributes) {
  const Device* pFound = Find(lHandle);
  const hid_device_info* pInfo = pFound == nullptr ? nullptr : hid_get_device_info(pFound->pDevice);
  if (pInfo == nullptr) return false;
  attributes = {static_cast<qint16>(pInfo->vendor_id), static_cast<qint16>(pInfo->product_id),
                static_cast<qint16>(pInfo->release_number)};
  return true;
}

bool HidapiHid::ReportLengths(qint32 lHandle, HidReportLengths& lengths) {
  const Device* pFound = Find(lHandle);
  const std::optional<ReportLayout> layout = pFound ? ReadLayout(pFound->path) : std::nullopt;
  if (!layout) return false;
  lengths = layout->lengths;
  return true;
}

/// The kernel takes a report off the queue whole, however little of it is asked for. A queue that
/// is full drops what comes new, so that emptying it also makes room for the next answer.
void HidapiHid::DropInput(qint32 lHandle) {
  const Device* pFound = Find(lHandle);
  if (pFound == nullptr) return;
  unsigned char cFirst = 0;
  for (int i = 0; i < iMostDropped + iHeldBesideQueue; ++i) {
    if (hid_read_timeout(pFound->pDevice, &cFirst, 1, 0) <= 0) return;
  }
}

/// The report is copied to where it can stay. The room for it is there from the opening on: in a
/// process that crashes none can be had.
qint32 HidapiHid::Write(qint32 lHandle, const QByteArray& report) {
  Device* pFound = Find(lHandle);
  if (pFound == nullptr) return 0;
  pFound->aSent.assign(report.begin(), report.end());
  return SendReport(pFound->pDevice, pFound->aSent);
}

HidReadResult HidapiHid::Read(qint32 lHandle, qint32 lTimeOut, QByteArray& report) {
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

QString HidapiHid::ErrorText() {
  const wchar_t* pText = hid_error(nullptr);
  return pText == nullptr ? QString() : QString::fromWCharArray(pText);
}

}  // namespace glidetrak
