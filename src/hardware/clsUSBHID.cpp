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
  if (!m_bConnected) OpenDevice();
  if (!m_bConnected) return false;
  if (m_capabilities.iOutput == 0 || data.isEmpty()) return false;
  if (data.size() > m_capabilities.iOutput - 1) return false;
  QByteArray report(m_capabilities.iOutput, '\0');
  std::copy(data.begin(), data.end(), report.begin() + 1);
  const qint32 lWritten = pMachine->HidWrite(m_lHIDhandle, report);
  RecordLastError();
  return lWritten != 0;
}

void clsUSBHID::WriteInCrash(std::span<const char> report) {
  if (m_lHIDhandle == 0 || m_capabilities.iOutput > report.size()) return;
  pMachine->HidWrite(m_lHIDhandle, QByteArray::fromRawData(report.data(), m_capabilities.iOutput));
}

std::optional<QByteArray> clsUSBHID::ReadReport() {
  if (!m_bConnected) OpenDevice();
  if (!m_bConnected) return {};
  if (m_lReadHandle == 0 || m_capabilities.iInput == 0) return {};
  QByteArray report(m_capabilities.iInput, '\0');
  const HidReadResult result = pMachine->HidRead(m_lReadHandle, lReadTimeOut, report);
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

void clsUSBHID::OpenDevice() {
  CloseDevice();
  for (const QByteArray& path : pMachine->HidPaths()) {
    m_lHIDhandle = pMachine->HidOpen(path);
    RecordLastError();
    if (AcceptDevice()) {
      pMachine->GetHidReportLengths(m_lHIDhandle, m_capabilities);
      m_lReadHandle = pMachine->HidOpen(path);
      RecordLastError();
      return;
    }
    CloseDevice();
  }
}

/// The first device that matches wins.
bool clsUSBHID::AcceptDevice() {
  HidAttributes attributes;
  if (m_lHIDhandle == 0 || !pMachine->GetHidAttributes(m_lHIDhandle, attributes)) return false;
  const bool bVersionFits =
      iVersionNumber == iAnyVersion || iVersionNumber == attributes.iVersionNumber;
  m_bConnected =
      attributes.iVendorID == iVendorID && attributes.iProductID == iProductID && bVersionFits;
  if (m_bConnected) iVersionNumber = attributes.iVersionNumber;
  return m_bConnected;
}

void clsUSBHID::CloseDevice() {
  for (qint32* pHandle : {&m_lHIDhandle, &m_lReadHandle}) {
    if (*pHandle != 0) pMachine->HidClose(*pHandle);
    *pHandle = 0;
  }
  m_capabilities = {};
  m_bConnected = false;
}

void clsUSBHID::RecordLastError() {
  m_sLastError = pMachine->HidErrorText();
}

}  // namespace glidetrak
