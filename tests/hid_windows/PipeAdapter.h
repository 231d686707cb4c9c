#pragma once

// The rig's USB adapter as a named pipe: each client is an open handle of the device, each message
// a report with its id first. An input report goes to every open handle. A client whose queue is
// full misses it. The adapter takes a report only when it reads it: without that a write goes on.

#include <array>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "bench/LiveRig.h"
#include "bench/PipeAct.h"
#include "bench/RigProtocol.h"
#include "hid_windows/HidSystem.h"

namespace glidetrak {

enum class AdapterFault {
  None,
  Silent,  ///< takes reports and answers none
  Late,    ///< answers each report only after a while
  Vanish,  ///< is gone as soon as it has taken a report
  Deaf,    ///< takes no reports
};

class PipeAdapter {
 public:
  /// A path that no other adapter of this machine has; sWord is a part of it.
  static std::wstring NewPath(const std::wstring& sWord = L"adapter");

  PipeAdapter(bench::LiveRig& rig, std::wstring sPath, HidTold told);
  ~PipeAdapter() { Unplug(); }
  PipeAdapter(const PipeAdapter&) = delete;
  PipeAdapter& operator=(const PipeAdapter&) = delete;

  /// Before the next Plug: it can be opened without rights alone, as a device that somebody else
  /// has to themselves.
  void Lock() { m_iAccess = PIPE_ACCESS_INBOUND; }

  void Plug();
  void Unplug();

  /// From now on; Late answers after iDelay ms.
  void SetFault(AdapterFault fault, int iDelay = 0);

  /// An input report, its id first, to whoever has the device open.
  void Send(const bench::ReportBytes& report);

  /// The output reports that it took, their ids first.
  std::vector<bench::ReportBytes> Reports() const;
  /// Those that the system has closed are counted until the adapter has noticed.
  size_t OpenHandles() const;
  bool IsPlugged() const;

  const std::wstring sPath;
  HidTold told;  ///< changed between acts of the station alone

 private:
  /// An instance of the pipe, at which one handle is open or may be opened.
  struct Client {
    bench::SystemHandle pipe;
    bool bOpen = false;
    std::array<char, 4096> aBytes{};
    bench::PipeAct act{};  ///< waits for the opening, then for a report; goes first
  };

  void Refill();
  void Serve();
  bool ServeClient(Client& client);
  void Take(const bench::ReportBytes& report);

  bench::LiveRig& m_rig;
  DWORD m_iAccess = PIPE_ACCESS_DUPLEX;
  bench::SystemHandle m_wake;
  mutable std::recursive_mutex m_mutex;
  std::vector<std::unique_ptr<Client>> m_aClients;
  std::vector<bench::ReportBytes> m_aReports;
  AdapterFault m_fault = AdapterFault::None;
  DWORD m_iDelay = 0;  ///< ms
  bool m_bPlugged = false;
  std::thread m_thread;
};

}  // namespace glidetrak
