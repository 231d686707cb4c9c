#include "hardware/clsUSBHID.h"

#include <algorithm>

namespace glidetrak {

clsUSBHID::~clsUSBHID() {
  CloseDevice();
}

bool clsUSBHID::bDeviceConnected() {
  OpenDevice();
  return m_bConnected;
}

bool clsUSBHID::WriteReport(const QByteArray& data) {
  OpenWhenNeeded();
  if (!m_bConnected) return false;
  if (m_capabilities.iOutput == 0 || data.isEmpty()) return false;
  if (data.size() > m_capabilities.iOutput - 1) return false;
  QByteArray report(m_capabilities.iOutput, '\0');
  std::copy(data.begin(), data.end(), report.begin() + 1);
  if (m_lReadHandle != 0) pHid->DropInput(m_lReadHandle);
  const qint32 lWritten = pHid->Write(m_lHIDhandle, report);
  RecordLastError();
  return lWritten != 0;
}

void clsUSBHID::WriteInCrash(std::span<const char> report) {
  if (m_lHIDhandle == 0 || m_capabilities.iOutput > report.size()) return;
  pHid->Write(m_lHIDhandle, QByteArray::fromRawData(report.data(), m_capabilities.iOutput));
}

std::optional<QByteArray> clsUSBHID::ReadReport() {
  OpenWhenNeeded();
  if (!m_bConnected) return {};
  if (m_lReadHandle == 0 || m_capabilities.iInput == 0) return {};
  QByteArray report(m_capabilities.iInput, '\0');
  const HidReadResult result = pHid->Read(m_lReadHandle, lReadTimeOut, report);
  RecordLastError();
  switch (result) {
    case HidReadResult::Success:
      return report.mid(1);
    case HidReadResult::TimeOut:
      CloseDevice();
      return {};
    case HidReadResult::Failed:
      m_bConnected = false;  // the handles stay open until the next OpenDevice
      return {};
  }
  return {};
}

void clsUSBHID::OpenWhenNeeded() {
  if (!m_bConnected || !m_bLengthsKnown) OpenDevice();
  Q_ASSERT(m_bConnected == (m_lHIDhandle != 0));
  Q_ASSERT(m_bConnected || m_lReadHandle == 0);
}

void clsUSBHID::OpenDevice() {
  CloseDevice();
  // A device of somebody else's is not even opened: that alone may stir it.
  for (const HidListing& listing : pHid->Devices(iVendorID, iProductID)) {
    m_lHIDhandle = pHid->Open(listing.path);
    RecordLastError();
    if (AcceptDevice()) {
      LearnReportLengths();
      m_lReadHandle = pHid->Open(listing.path);
      RecordLastError();
      return;
    }
    CloseDevice();
  }
}

/// The first device that matches wins. The ids are looked at once more: the path may have passed to
/// another device since it was listed.
bool clsUSBHID::AcceptDevice() {
  HidAttributes attributes;
  if (m_lHIDhandle == 0 || !pHid->Attributes(m_lHIDhandle, attributes)) return false;
  const bool bVersionFits =
      iVersionNumber == iAnyVersion || iVersionNumber == attributes.iVersionNumber;
  m_bConnected =
      attributes.iVendorID == iVendorID && attributes.iProductID == iProductID && bVersionFits;
  if (m_bConnected) iVersionNumber = attributes.iVersionNumber;
  return m_bConnected;
}

/// Lengths that cannot be learnt this time leave those of an earlier opening in force.
void clsUSBHID::LearnReportLengths() {
  if (pHid->ReportLengths(m_lHIDhandle, m_capabilities)) m_bLengthsKnown = true;
  RecordLastError();
}

void clsUSBHID::CloseDevice() {
  for (qint32* pHandle : {&m_lHIDhandle, &m_lReadHandle}) {
    if (*pHandle != 0) pHid->Close(*pHandle);
    *pHandle = 0;
  }
  m_bConnected = false;
}

void clsUSBHID::RecordLastError() {
  m_sLastError = pHid->ErrorText();
}

}  // namespace glidetrak
