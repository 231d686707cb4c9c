// Tells the running station what a Windows machine would: tell-station WHAT, with WHAT
//   query      the user's session is about to end; prints "agrees" or "refuses"
//   over       the session ends now, whoever refuses
//   suspend    the machine goes to sleep
//   crash      a thread of the station runs to where no code is
//   terminate  the process is ended without its knowledge
// Status 1 when there is no station.

#include <windows.h>

#include <tlhelp32.h>

#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

namespace {

constexpr UINT iPatience = 30000;  ///< milliseconds for questions that a user answers meanwhile

DWORD StationNumber() {
  const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof entry;
  DWORD lStation = 0;
  for (BOOL bMore = Process32FirstW(processes, &entry); bMore;
       bMore = Process32NextW(processes, &entry)) {
    if (std::wcscmp(entry.szExeFile, L"glidetrak.exe") == 0) lStation = entry.th32ProcessID;
  }
  CloseHandle(processes);
  return lStation;
}

struct Search {
  DWORD lProcess;
  std::vector<HWND> aWindows;
};

BOOL CALLBACK TakeWindow(HWND window, LPARAM search) {
  auto* pSearch = reinterpret_cast<Search*>(search);
  DWORD lProcess = 0;
  GetWindowThreadProcessId(window, &lProcess);
  if (lProcess == pSearch->lProcess) pSearch->aWindows.push_back(window);
  return TRUE;
}

/// Whether every window of the station answers other than 0.
bool TellWindows(DWORD lStation, UINT iMessage, WPARAM wParam, LPARAM lParam) {
  Search search{lStation, {}};
  EnumWindows(TakeWindow, reinterpret_cast<LPARAM>(&search));
  for (const HWND window : search.aWindows) {
    DWORD_PTR lAnswer = 1;
    SendMessageTimeoutW(window, iMessage, wParam, lParam, SMTO_NORMAL, iPatience, &lAnswer);
    if (lAnswer == 0) return false;
  }
  return true;
}

void Query(DWORD lStation) {
  const bool bAgrees = TellWindows(lStation, WM_QUERYENDSESSION, 0, ENDSESSION_LOGOFF);
  std::puts(bAgrees ? "agrees" : "refuses");
}

void Crash(DWORD lStation) {
  const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, lStation);
  CloseHandle(CreateRemoteThread(process, nullptr, 0, nullptr, nullptr, 0, nullptr));
  CloseHandle(process);
}

void Terminate(DWORD lStation) {
  const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, lStation);
  TerminateProcess(process, 1);
  CloseHandle(process);
}

}  // namespace

int main(int iCount, char** aArguments) {
  const std::string sWhat = iCount == 2 ? aArguments[1] : "";
  const DWORD lStation = StationNumber();
  if (lStation == 0) return 1;
  if (sWhat == "query") Query(lStation);
  if (sWhat == "over") TellWindows(lStation, WM_ENDSESSION, TRUE, ENDSESSION_LOGOFF);
  if (sWhat == "suspend") TellWindows(lStation, WM_POWERBROADCAST, PBT_APMSUSPEND, 0);
  if (sWhat == "crash") Crash(lStation);
  if (sWhat == "terminate") Terminate(lStation);
}
