#pragma once

// The rig as a HID device that the kernel takes for real: its reports go through the system's whole
// HID stack and are answered here from the track model. A fault can be chosen that strikes at a
// given report.
//
//   Out       no device
//   In        the device is there and a thread answers its reports
//
//   Out -> In    [Plug]
//   In -> Out    [Unplug], or by itself when the fault Vanish strikes
//
// Needs /dev/uhid, which is root's. The device appears to programs a moment after Plug returns,
// since the kernel makes its node behind our back, and its user gets the node another moment later.
// The kernel passes a version on to nobody for a device without a bus, so programs that ask for it
// read 0 whatever iVersion says.

#include <atomic>
#include <chrono>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "bench/FileDescriptor.h"
#include "bench/LiveRig.h"
#include "bench/RigProtocol.h"

struct uhid_event;

namespace glidetrak::bench {

/// Lengths in data bytes, the report id not counted, 0 to 4095; 0 declares no such report.
struct UhidConfig {
  int iVendor = 0x0CFE;
  int iProduct = 0x0046;
  int iVersion = 0x0100;
  int iInputLength = 64;
  int iOutputLength = 64;
  int iUser = -1;  ///< to whom the node is given (DeviceNode.h); -1 leaves it as the kernel made it
};

enum class UhidFault {
  None,
  Silent,   ///< the report is carried out and not answered
  Late,     ///< the right answer, after the delay
  Garbage,  ///< an answer of the right length, all bytes iGarbage
  Short,    ///< only the first iShortLength data bytes of the right answer
  Vanish,   ///< the device goes instead of answering, after the delay
};

constexpr std::uint8_t iGarbage = 0xA5;
constexpr int iShortLength = 2;

constexpr size_t iKeptReports = 256;

/// What a device has seen since it was made.
struct UhidCounts {
  int iOpened = 0;                    ///< times that the first program opened it
  int iClosed = 0;                    ///< times that the last program closed it
  int iTaken = 0;                     ///< output reports taken, in all
  int iAnswers = 0;                   ///< input reports sent
  std::vector<ReportBytes> aReports;  ///< the last iKeptReports output reports, behind the id
};

class UhidDevice {
 public:
  explicit UhidDevice(LiveRig& rig, UhidConfig config = {}) : m_rig(rig), m_config(config) {}
  ~UhidDevice() { Unplug(); }
  UhidDevice(const UhidDevice&) = delete;
  UhidDevice& operator=(const UhidDevice&) = delete;

  /// Puts the device in; nothing when it is in. Throws std::system_error when the kernel refuses.
  void Plug();

  /// Takes the device out; nothing when it is out. Programs that hold it open see it gone.
  void Unplug();

  bool Plugged() const { return m_bIn; }

  /// The fault of all reports from now on, but for the next iAfter ones, which are answered well.
  /// iDelay in ms is for Late and Vanish.
  void SetFault(UhidFault fault, int iDelay = 0, int iAfter = 0);

  UhidCounts Counts() const;

 private:
  using Clock = std::chrono::steady_clock;

  /// Something to be done later: an answer to be sent, or without one the device to go.
  struct Deed {
    Clock::time_point due;
    ReportBytes answer;
  };

  void Create();
  void Serve();
  int WaitTime() const;
  void TakeEvent();
  void TakeReport(const uhid_event& event);
  void Refuse(const uhid_event& event);
  UhidFault FaultOfThisReport();
  void React(UhidFault fault, ReportBytes answer);
  void DoDueDeeds();
  void HandOverNode();
  void SendAnswer(const ReportBytes& answer);
  void Send(const uhid_event& event);
  void Vanish();
  template <typename Change>
  void Count(Change change);

  LiveRig& m_rig;
  const UhidConfig m_config;
  FileDescriptor m_device;
  FileDescriptor m_stop;  ///< becomes readable when the thread is to end
  std::thread m_thread;
  std::atomic<bool> m_bIn = false;
  std::deque<Deed> m_aDeeds;    ///< of the thread alone, in the order of their reports
  Clock::time_point m_nodeDue;  ///< until then the node is looked for; 0 when there is no need

  mutable std::mutex m_mutex;  ///< over all that follows
  UhidFault m_fault = UhidFault::None;
  int m_iDelay = 0;  ///< ms
  int m_iAfter = 0;  ///< reports that are still answered well
  UhidCounts m_counts;
};

}  // namespace glidetrak::bench
