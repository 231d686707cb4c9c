#include "hardware/USBIntegration.h"

#include <array>
#include <memory>

#include "hardware/clsUSBHID.h"

namespace glidetrak {

namespace {

constexpr qint16 iAdapterVendorID = 3326;
constexpr qint16 iAdapterProductID = 70;

constexpr int iSetOutputLength = 19;
constexpr int iOutputByteIndex = 16;
constexpr int iDigitalIndex = 2;
constexpr int iAnalogIndex = 3;

/// Set output with the byte 0 behind its report id, filled up to the longest report that a device
/// can declare: it stands ready for a moment in which no memory can be had.
constexpr std::array<char, 0xFFFF> aZeroReport{0, 4, 1};

/// The one device object; null before the first open and after the close.
std::unique_ptr<clsUSBHID> pAdapter;

quint8 ReadStateByte(int iIndex) {
  if (pAdapter == nullptr) return 0;
  pAdapter->WriteReport(QByteArray("\x03\x00\x00", 3));
  const std::optional<QByteArray> reply = pAdapter->ReadReport();
  if (!reply || iIndex >= reply->size()) return 0;
  return static_cast<quint8>(reply->at(iIndex));
}

}  // namespace

bool UsbOpenAdapter() {
  pAdapter.reset();
  pAdapter = std::make_unique<clsUSBHID>();
  pAdapter->iVendorID = iAdapterVendorID;
  pAdapter->iProductID = iAdapterProductID;
  pAdapter->iVersionNumber = iAnyVersion;
  return pAdapter->bDeviceConnected();
}

bool UsbWriteOutput(quint8 iByte) {
  if (pAdapter == nullptr) return false;
  QByteArray data(iSetOutputLength, '\0');
  data[0] = 4;
  data[1] = 1;
  data[iOutputByteIndex] = static_cast<char>(iByte);
  const bool bWritten = pAdapter->WriteReport(data);
  pAdapter->ReadReport();
  return bWritten;
}

quint8 UsbReadInput() {
  return ReadStateByte(iDigitalIndex);
}

quint8 UsbReadAnalog() {
  return ReadStateByte(iAnalogIndex);
}

void UsbWriteZeroInCrash() {
  if (pAdapter != nullptr) pAdapter->WriteInCrash(aZeroReport);
}

void UsbCloseAdapter() {
  pAdapter.reset();
}

}  // namespace glidetrak
