#pragma once

// The station's own HID class and adapter layer on the system's calls, with devices of the test's
// own behind them.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <chrono>
#include <list>
#include <thread>
#include <vector>

#include "hardware/USBIntegration.h"
#include "hardware/clsUSBHID.h"
#include "hid_windows/PipeAdapter.h"
#include "platform/HidapiHid.h"
#include "station/Station.h"

namespace glidetrak {

constexpr int iLongestExchange = 1500;  ///< ms: the read's 1000 and what a busy machine adds
constexpr int iAtOnce = 700;            ///< ms: well below a time-out

inline QByteArray SetOutput(char cByte, int iLength = 19) {
  QByteArray data(iLength, '\0');
  data[0] = 4;
  data[1] = 1;
  data[16] = cByte;
  return data;
}

/// Waits up to 10 s, far beyond what anything here takes, for the condition.
template <typename Condition>
bool WaitFor(Condition condition) {
  for (int i = 0; i < 1000; ++i) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

/// What was asked of a handle of a device, and with which rights it had been opened.
struct Asked {
  std::wstring sPath;
  HidQuestion question;
  ACCESS_MASK iRights;

  bool MayExchange() const { return (iRights & (FILE_READ_DATA | FILE_WRITE_DATA)) != 0; }
};

/// The devices of this machine, as the two libraries tell of them. Stands before anything that has
/// to do with HID devices, since what is loaded first stays.
class Devices : public HidSystem {
 public:
  Devices();
  ~Devices();

  PipeAdapter& Add(HidTold told = {}, const std::wstring& sWord = L"adapter");

  /// One that stands in another process: it is at that path, and told of as the rig is.
  void AddAt(const std::wstring& sPath) {
    aAdapters.emplace_back(rig, sPath, HidTold{});
    aMorePaths.push_back(sPath);
  }

  ULONG Paths(wchar_t* pPaths, ULONG iMost) override;
  const HidTold* Ask(HANDLE device, HidQuestion question) override;

  std::list<PipeAdapter> aAdapters;
  std::vector<std::wstring> aMorePaths;  ///< listed too, behind those that are plugged
  bool bLengthsHidden = false;           ///< from who has no right to the reports
  std::vector<Asked> aAsked;
  bench::LiveRig rig;

 private:
  void Register(HidSystem* pSystem);
};

/// Boxes and the form stand on the virtual platform; the HID devices are the real ones.
class StationHid : public testing::Test {
 protected:
  StationHid();
  ~StationHid() override;

  PipeAdapter& Plug(HidTold told = {}, const std::wstring& sWord = L"adapter");

  /// The same, and m_hid has it open.
  void PlugAndOpen(HidTold told = {});

  PipeAdapter& Adapter() { return m_system.aAdapters.front(); }

  /// The openings with rights to exchange reports that have been made.
  int Openings() const;

  int Power() {
    return m_system.rig.With([](bench::TrackModel& model) { return model.Power(); });
  }

  Devices m_system;
  Station m_station;
  HidapiHid m_devices;
  clsUSBHID m_hid;
};

}  // namespace glidetrak
