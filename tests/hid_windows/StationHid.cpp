#include "hid_windows/StationHid.h"

#include <winternl.h>

#include <algorithm>
#include <stdexcept>

namespace glidetrak {

namespace {

/// The two libraries that stand beside this program.
constexpr const wchar_t* aLibraries[] = {L"hid.dll", L"cfgmgr32.dll"};

/// The name by which the pipe was opened, without what stands before it.
std::wstring PipeName(HANDLE device) {
  struct {
    FILE_NAME_INFO info;
    wchar_t aRest[512];
  } name{};
  if (GetFileInformationByHandleEx(device, FileNameInfo, &name, sizeof name) == 0) return {};
  const wchar_t* pName = name.info.FileName;
  return {pName, pName + name.info.FileNameLength / sizeof(wchar_t)};
}

ACCESS_MASK Rights(HANDLE device) {
  PUBLIC_OBJECT_BASIC_INFORMATION information{};
  NtQueryObject(device, ObjectBasicInformation, &information, sizeof information, nullptr);
  return information.GrantedAccess;
}

}  // namespace

Devices::Devices() {
  Register(this);
}

Devices::~Devices() {
  Register(nullptr);
}

/// A system's own library in the place of ours would bring the devices of this machine.
void Devices::Register(HidSystem* pSystem) {
  for (const wchar_t* sLibrary : aLibraries) {
    const HMODULE library = LoadLibraryW(sLibrary);
    const FARPROC pCall = library == nullptr ? nullptr : GetProcAddress(library, sSetHidSystem);
    if (pCall == nullptr) throw std::runtime_error("the stand-ins are not what was loaded");
    reinterpret_cast<SetHidSystemCall>(reinterpret_cast<void*>(pCall))(pSystem);
  }
}

PipeAdapter& Devices::Add(HidTold told, const std::wstring& sWord) {
  return aAdapters.emplace_back(rig, PipeAdapter::NewPath(sWord), told);
}

ULONG Devices::Paths(wchar_t* pPaths, ULONG iMost) {
  std::wstring sAll;
  for (const PipeAdapter& adapter : aAdapters) {
    if (adapter.IsPlugged()) sAll += adapter.sPath + L'\0';
  }
  for (const std::wstring& sPath : aMorePaths) sAll += sPath + L'\0';
  sAll += L'\0';
  if (pPaths != nullptr && sAll.size() <= iMost) std::copy(sAll.begin(), sAll.end(), pPaths);
  return static_cast<ULONG>(sAll.size());
}

const HidTold* Devices::Ask(HANDLE device, HidQuestion question) {
  const std::wstring sName = PipeName(device);
  for (const PipeAdapter& adapter : aAdapters) {
    if (sName.empty() || !adapter.sPath.ends_with(sName)) continue;
    aAsked.push_back({adapter.sPath, question, Rights(device)});
    const bool bHidden = bLengthsHidden && question == HidQuestion::Capabilities;
    return bHidden && !aAsked.back().MayExchange() ? nullptr : &adapter.told;
  }
  ADD_FAILURE() << "somebody else's handle was asked";
  return nullptr;
}

StationHid::StationHid() {
  pHid = &m_devices;
}

StationHid::~StationHid() {
  UsbCloseAdapter();
  pHid = &m_station.rig;
}

PipeAdapter& StationHid::Plug(HidTold told, const std::wstring& sWord) {
  PipeAdapter& adapter = m_system.Add(told, sWord);
  adapter.Plug();
  return adapter;
}

void StationHid::PlugAndOpen(HidTold told) {
  Plug(told);
  m_hid.iProductID = 70;
  ASSERT_TRUE(m_hid.bDeviceConnected());
}

int StationHid::Openings() const {
  return static_cast<int>(std::count_if(
      m_system.aAsked.begin(), m_system.aAsked.end(),
      [](const Asked& asked) { return asked.question == HidQuestion::InputBuffers; }));
}

}  // namespace glidetrak
