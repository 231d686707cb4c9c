#include "hardware/AdapterLayer.h"

#include <utility>

#include "common/DelayMilliseconds.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "common/Version.h"
#include "form/frmGlidetrak.h"
#include "hardware/Declares.h"
#include "hardware/USBIntegration.h"
#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"

namespace glidetrak {

namespace {

constexpr int iPorts = 3;
constexpr int iAttempts = 10;          ///< the attempt that is not made any more
constexpr qint32 lRigPresent = 0x80;   ///< bit 7 of the parallel input byte
constexpr qint32 lShutDownWait = 200;  ///< milliseconds

bool OpenPort(qint32 lPort) {
  lPortAddress = LPTAddress(lPort);
  if (IsAdapterConnected(lPortAddress) == 0) return false;
  lPortHandle = OpenLPT(lPort);
  bLinkUp = true;
  return true;
}

bool OpenFirstPort() {
  const qint32 lMask = LPTAvailable();
  for (int n = 0; lMask > 0 && n < iPorts; ++n) {
    if ((lMask & (1 << n)) != 0 && OpenPort(n + 1)) return true;
  }
  return false;
}

bool FindAdapter() {
  bUsbLink = UsbOpenAdapter();
  if (bUsbLink) return true;
  if (OpenFirstPort()) return true;
  bLinkUp = false;
  return false;
}

void ReadParallel(bool& bFail, qint32& lValue) {
  bFail = false;
  for (int iAttempt = 1; iAttempt < iAttempts; ++iAttempt) {
    lValue = ReadAdapter(lPortAddress);
    if ((lValue & lRigPresent) != 0) return;
  }
  bFail = true;
}

/// A retry is under way: its message box may stand open.
bool bInRetry = false;

void TryHardware(bool& bResult) {
  bUsbLink = false;
  if (UsbOpenAdapter()) {
    bUsbLink = true;
    bLinkUp = true;
    bResult = true;
    return;
  }
  if (!DetectAdapter()) return;
  WriteAdapter(lPortAddress, 0);
  bool bFail = false;
  qint32 lValue = 0;
  ReadInputPort(bFail, lValue);
  bResult = !bFail;
}

void ReleaseParallel() {
  SkipOnError([] { WriteAdapter(lPortAddress, 0); });
  SkipOnError([] { SetStrobe(lPortAddress); });
  SkipOnError([] { CloseLPT(lPortHandle); });
}

/// The rig gets one last byte, by whatever road; true for the first who asks, while there is a rig.
bool OweLastByte() {
  return bLinkUp && !std::exchange(bRigLetGo, true);
}

/// The last byte alone, on USB by the road given.
void WriteLastByte(void (*usbRoad)()) {
  if (!OweLastByte()) return;
  SkipOnError([usbRoad] {
    if (bUsbLink) {
      usbRoad();
    } else {
      WriteAdapter(lPortAddress, 0);
    }
  });
}

void ReleaseRig() {
  if (!OweLastByte()) return;
  if (bUsbLink) {
    UsbWriteOutput(0);
    UsbCloseAdapter();
  } else {
    ReleaseParallel();
  }
}

}  // namespace

bool CheckHardware() {
  bool bResult = false;
  SkipOnError([&] { TryHardware(bResult); });
  return bResult;
}

bool DetectAdapter() {
  try {
    return FindAdapter();
  } catch (const RuntimeError&) {
    ShowMessage(idUnableToCommunicate, idHardwareCommunication, BoxIcon::Warning);
    bLinkUp = false;
    return false;
  }
}

void ReadInputPort(bool& bFail, qint32& lValue) {
  if (bUsbLink) {
    lValue = UsbReadInput();
    return;
  }
  try {
    ReadParallel(bFail, lValue);
  } catch (const RuntimeError&) {
    lValue = 0;
    bFail = true;
  }
}

qint32 ReadAnalogPort() {
  if (!bUsbLink) return ReadAtoD(lPortAddress);
  iUsbAnalog = static_cast<qint16>(UsbReadAnalog() >> 4);
  return iUsbAnalog;
}

void WriteOutputPort() {
  if (bUsbLink) {
    UsbWriteOutput(static_cast<quint8>(lOutputImage));
  } else {
    WriteAdapter(lPortAddress, lOutputImage);
  }
}

void ShowLinkState() {
  if (bLinkUp == bLinkUpShown) return;
  lblHWState.Caption = LoadText(bLinkUp ? idInterfaceDetected : idInterfaceNotDetected);
  bLinkUpShown = bLinkUp;
  tmrReconnect.Enabled = !bLinkUp;
}

void HandleLinkLost() {
  Q_ASSERT(!bUsbLink);  // a read on USB never fails
  bLinkUp = false;
  ShowLinkState();
  tmrReconnect.Enabled = true;
  if (bLinkMessageShown) return;
  ShowMessage(LoadText(idCommunicationNotAvailable), sFileDescription, BoxIcon::Warning);
  bLinkMessageShown = true;
}

void tmrReconnect_Timer() {
  if (bInRetry) return;
  bInRetry = true;
  CheckHardware();
  ShowLinkState();
  bInRetry = false;
}

void ShutDownHardware() {
  tmrSystem.Enabled = false;
  ReleaseRig();
  bShuttingDown = true;
  DelayMilliseconds(Pump::Yes, lShutDownWait, Tick::Suspended);
}

void StopRigAtEnd() {
  WriteLastByte([] { UsbWriteOutput(0); });
}

void StopRigInCrash() {
  WriteLastByte(UsbWriteZeroInCrash);
}

}  // namespace glidetrak
