#include "virtual/VirtualRig.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace glidetrak {

namespace {

constexpr qint32 lFirstAddress = 0x378;
constexpr qint32 lAddressStep = 0x100;
constexpr qint32 lPresentBit = 0x80;

/// Reports that a handle's input queue holds; what comes when it is full is lost. The kernel's ring
/// of 64 places holds one less.
constexpr size_t iQueuePlaces = 63;

qint32 PortOf(qint32 lAddress) {
  return (lAddress - lFirstAddress) / lAddressStep + 1;
}

QByteArray CallText(const QByteArray& operation, std::initializer_list<qint32> arguments) {
  QByteArray text = operation;
  for (const qint32 lArgument : arguments) text += ' ' + QByteArray::number(lArgument);
  return text;
}

}  // namespace

void VirtualRig::AttachParallel() {
  lAvailable = 1;
  aConnected[1] = true;
  bPresent = true;
}

void VirtualRig::AttachUsb() {
  aDevices.push_back({});
}

void VirtualRig::Detach() {
  lAvailable = 0;
  aConnected.clear();
  bPresent = false;
  for (VirtualHid& device : aDevices) device.mood = HidMood::Vanished;
}

void VirtualRig::Record(qint32 lByte) {
  aWritten.push_back({lByte, *m_pNow});
  if (OnWrite) OnWrite(lByte);
}

qint32 VirtualRig::Reading() {
  if (aReadings.empty()) return (lInput & ~lPresentBit) | (bPresent ? lPresentBit : 0);
  const qint32 lReading = aReadings.front();
  aReadings.pop_front();
  return lReading;
}

qint32 VirtualRig::Call(const QByteArray& operation, std::initializer_list<qint32> arguments) {
  if (!bLibraryThere || aMissingOperations.count(operation) > 0) {
    throw RuntimeError(Fault::PlatformCall);
  }
  aCalls.push_back(CallText(operation, arguments));
  const qint32 lFirst = arguments.size() > 0 ? *arguments.begin() : 0;
  if (operation == "LPTAvailable") return lAvailable;
  if (operation == "LPTAddress") return lFirstAddress + (lFirst - 1) * lAddressStep;
  if (operation == "IsAdapterConnected") return aConnected[PortOf(lFirst)] ? 1 : 0;
  if (operation == "OpenLPT") return 100 + lFirst;
  if (operation == "ReadAdapter") return Reading();
  if (operation == "ReadAtoD") return lAnalog;
  if (operation == "WriteAdapter") Record(arguments.begin()[1]);
  return 0;
}

std::vector<HidListing> VirtualRig::Devices(qint16 iVendorID, qint16 iProductID) {
  if (OnEnumerate) OnEnumerate();
  ++iEnumerations;
  std::vector<HidListing> aListed;
  for (const VirtualHid& device : aDevices) {
    const HidAttributes& told = device.attributes;
    if (device.mood == HidMood::Vanished) continue;
    if (told.iVendorID != iVendorID || told.iProductID != iProductID) continue;
    aListed.push_back({device.path, told.iVendorID, told.iProductID});
  }
  return aListed;
}

qint32 VirtualRig::Open(const QByteArray& path) {
  aOpenedPaths.push_back(path);
  if (OnOpen) OnOpen(path);
  if (MayOpen && !MayOpen()) return 0;
  const auto device = std::find_if(aDevices.begin(), aDevices.end(),
                                   [&](const VirtualHid& d) { return d.path == path; });
  if (device == aDevices.end()) return 0;
  if (device->mood == HidMood::Vanished || device->mood == HidMood::Locked) return 0;
  BringArrivals();  // what has arrived by now is not for the new handle
  const qint32 lHandle = m_lNextHandle++;
  m_aHandlePaths[lHandle] = path;
  aOpenHandles.insert(lHandle);
  ++iHandlesOpened;
  return lHandle;
}

void VirtualRig::Close(qint32 lHandle) {
  aOpenHandles.erase(lHandle);
  m_aQueues.erase(lHandle);
}

VirtualHid* VirtualRig::DeviceOf(qint32 lHandle) {
  if (aOpenHandles.count(lHandle) == 0) return nullptr;
  for (VirtualHid& device : aDevices) {
    if (device.path == m_aHandlePaths[lHandle] && device.mood != HidMood::Vanished) return &device;
  }
  return nullptr;
}

bool VirtualRig::Attributes(qint32 lHandle, HidAttributes& attributes) {
  const VirtualHid* pDevice = DeviceOf(lHandle);
  if (pDevice == nullptr) return false;
  attributes = pDevice->attributes;
  return true;
}

bool VirtualRig::ReportLengths(qint32 lHandle, HidReportLengths& lengths) {
  const VirtualHid* pDevice = DeviceOf(lHandle);
  if (pDevice == nullptr || !pDevice->bTellsLengths) return false;
  lengths = pDevice->lengths;
  return true;
}

QByteArray VirtualRig::Reply(const QByteArray& report) {
  QByteArray reply(5, '\0');
  if (report.at(1) == 4) Record(static_cast<quint8>(report.at(17)));
  if (report.at(1) == 3) {
    reply[3] = static_cast<char>(lInput);
    reply[4] = static_cast<char>(lAnalog << 4);
  }
  return reply;
}

/// Each open handle on the device gets the report, whoever asked for it.
void VirtualRig::Arrive(const QByteArray& path, const QByteArray& report) {
  for (const qint32 lHandle : aOpenHandles) {
    std::deque<QByteArray>& aQueue = m_aQueues[lHandle];
    if (m_aHandlePaths[lHandle] == path && aQueue.size() < iQueuePlaces) aQueue.push_back(report);
  }
}

void VirtualRig::BringArrivals() {
  while (!m_aArrivals.empty() && m_aArrivals.front().lTime <= *m_pNow) {
    const Arrival arrival = std::move(m_aArrivals.front());
    m_aArrivals.pop_front();
    Arrive(arrival.path, arrival.report);
  }
}

void VirtualRig::SendInput(const QByteArray& report) {
  for (const VirtualHid& device : aDevices) Arrive(device.path, report);
}

void VirtualRig::SendLater(const VirtualHid& device, const QByteArray& report) {
  const qint64 lTime = *m_pNow + device.lDelay;
  const auto behind = std::find_if(m_aArrivals.begin(), m_aArrivals.end(),
                                   [lTime](const Arrival& a) { return a.lTime > lTime; });
  m_aArrivals.insert(behind, {lTime, device.path, report});
}

void VirtualRig::DropInput(qint32 lHandle) {
  if (DeviceOf(lHandle) == nullptr) return;
  BringArrivals();
  std::deque<QByteArray>& aQueue = m_aQueues[lHandle];
  const size_t iDropped = std::min<size_t>(aQueue.size(), iMostDropped);
  aQueue.erase(aQueue.begin(), aQueue.begin() + static_cast<std::ptrdiff_t>(iDropped));
}

qint32 VirtualRig::Write(qint32 lHandle, const QByteArray& report) {
  aWriteHandles.push_back(lHandle);
  const VirtualHid* pDevice = DeviceOf(lHandle);
  if (pDevice == nullptr) return 0;
  aReports.push_back(report);
  const QByteArray reply = Reply(report);
  if (pDevice->mood == HidMood::Answers) SendLater(*pDevice, reply);
  return static_cast<qint32>(report.size());
}

/// Lets time go by until a report waits at the handle; false when the end came first.
bool VirtualRig::WaitForReport(qint32 lHandle, qint64 lEnd) {
  BringArrivals();
  while (m_aQueues[lHandle].empty() && *m_pNow < lEnd) {
    const bool bComes = !m_aArrivals.empty() && m_aArrivals.front().lTime <= lEnd;
    *m_pNow = bComes ? m_aArrivals.front().lTime : lEnd;
    BringArrivals();
  }
  return !m_aQueues[lHandle].empty();
}

HidReadResult VirtualRig::Read(qint32 lHandle, qint32 lTimeOut, QByteArray& report) {
  aReadHandles.push_back(lHandle);
  aReadTimeOuts.push_back(lTimeOut);
  aReadLengths.push_back(report.size());
  if (DeviceOf(lHandle) == nullptr) return HidReadResult::Failed;
  if (!WaitForReport(lHandle, *m_pNow + lTimeOut)) return HidReadResult::TimeOut;
  const QByteArray reply = m_aQueues[lHandle].front();
  m_aQueues[lHandle].pop_front();
  const qsizetype iCount = std::min(reply.size(), report.size());
  std::copy_n(reply.begin(), iCount, report.begin());
  if (OnReply) OnReply(report);
  return HidReadResult::Success;
}

}  // namespace glidetrak
