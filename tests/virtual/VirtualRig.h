#pragma once

// The rig's two adapters at the wire, in virtual time: what they answer, and a record of what was
// asked of them.

#include <QByteArray>
#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <vector>

#include "platform/Hid.h"

namespace glidetrak {

struct WrittenByte {
  qint32 lByte;
  qint64 lTime;
};

/// How a HID device behaves from now on.
enum class HidMood {
  Answers,
  Silent,    ///< takes reports and never answers
  Vanished,  ///< not listed, and open handles fail
  Locked,    ///< listed, cannot be opened
};

struct VirtualHid {
  QByteArray path = "/dev/hidraw0";
  HidAttributes attributes{3326, 70, 0x0100};
  HidReportLengths lengths{65, 65};
  HidMood mood = HidMood::Answers;
  qint32 lDelay = 0;          ///< milliseconds from a report to its answer
  bool bTellsLengths = true;  ///< its report lengths can be learnt
};

class VirtualRig : public Hid {
 public:
  /// The virtual clock, which a read that times out moves on.
  explicit VirtualRig(qint64* pNow) : m_pNow(pNow) {}

  // What the rig shows.
  qint32 lInput = 0;   ///< the input byte; the parallel link has a bit 7 of its own, bPresent
  qint32 lAnalog = 0;  ///< 0 to 15; on the parallel link handed over as it is

  // The parallel library.
  bool bLibraryThere = true;
  std::set<QByteArray> aMissingOperations;
  qint32 lAvailable = 0;              ///< the mask of LPTAvailable
  std::map<qint32, bool> aConnected;  ///< by port, 1 to 3
  std::deque<qint32> aReadings;       ///< of ReadAdapter ahead of everything else
  bool bPresent = false;              ///< bit 7 of the other readings
  std::vector<QByteArray> aCalls;     ///< each call: name and arguments, "ReadAtoD 888 50000"

  // The HID devices.
  std::vector<VirtualHid> aDevices;
  std::set<qint32> aOpenHandles;
  int iEnumerations = 0;
  int iHandlesOpened = 0;            ///< by the station and by whoever else calls Open
  std::vector<QByteArray> aReports;  ///< each output report, the report id first

  std::vector<QByteArray> aOpenedPaths;  ///< of each attempt to open
  std::vector<qint32> aWriteHandles;     ///< of each report written
  std::vector<qint32> aReadHandles;      ///< of each read
  std::vector<qint32> aReadTimeOuts;     ///< of each read, in milliseconds
  std::vector<qsizetype> aReadLengths;   ///< of each read's buffer

  /// Ahead of each search for devices and of each opening.
  std::function<void()> OnEnumerate;
  std::function<void(const QByteArray&)> OnOpen;
  /// False where a device cannot be opened this time; empty where all can.
  std::function<bool()> MayOpen;
  /// Changes an input report that a read has just brought; its first byte is the report id.
  std::function<void(QByteArray&)> OnReply;

  // What reached the rig.
  std::vector<WrittenByte> aWritten;
  std::function<void(qint32)> OnWrite;

  /// One port with an adapter on it, or one USB device, or nothing.
  void AttachParallel();
  void AttachUsb();
  void Detach();

  qint32 Call(const QByteArray& operation, std::initializer_list<qint32> arguments);

  /// The devices send a report for which nobody has asked; the report id first.
  void SendInput(const QByteArray& report);

  std::vector<HidListing> Devices(qint16 iVendorID, qint16 iProductID) override;
  qint32 Open(const QByteArray& path) override;
  void Close(qint32 lHandle) override;
  bool Attributes(qint32 lHandle, HidAttributes& attributes) override;
  bool ReportLengths(qint32 lHandle, HidReportLengths& lengths) override;
  void DropInput(qint32 lHandle) override;
  qint32 Write(qint32 lHandle, const QByteArray& report) override;
  HidReadResult Read(qint32 lHandle, qint32 lTimeOut, QByteArray& report) override;
  QString ErrorText() override { return {}; }

 private:
  void Record(qint32 lByte);
  qint32 Reading();
  VirtualHid* DeviceOf(qint32 lHandle);
  QByteArray Reply(const QByteArray& report);
  void Arrive(const QByteArray& path, const QByteArray& report);
  void BringArrivals();
  void SendLater(const VirtualHid& device, const QByteArray& report);
  bool WaitForReport(qint32 lHandle, qint64 lEnd);

  /// An input report on its way.
  struct Arrival {
    qint64 lTime;
    QByteArray path;  ///< of its device
    QByteArray report;
  };

  qint64* m_pNow;
  qint32 m_lNextHandle = 1;
  std::map<qint32, QByteArray> m_aHandlePaths;
  std::map<qint32, std::deque<QByteArray>> m_aQueues;  ///< by open handle
  std::deque<Arrival> m_aArrivals;                     ///< by time
};

}  // namespace glidetrak
