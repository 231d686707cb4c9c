#include "bench/Neighbour.h"

#include <system_error>

#include "bench/SystemHandle.h"

namespace glidetrak::bench {

namespace {

std::wstring OwnFolder() {
  std::wstring sPath(32768, 0);
  sPath.resize(GetModuleFileNameW(nullptr, sPath.data(), static_cast<DWORD>(sPath.size())));
  return sPath.substr(0, sPath.find_last_of(L'\\') + 1);
}

/// Arguments come in the code page of the system.
std::wstring Wide(const std::string& sText) {
  std::wstring sWide(sText.size(), 0);
  const int iLength = MultiByteToWideChar(CP_ACP, 0, sText.data(), static_cast<int>(sText.size()),
                                          sWide.data(), static_cast<int>(sWide.size()));
  sWide.resize(static_cast<size_t>(iLength));
  return sWide;
}

/// No argument holds a double quote: no name of a file does.
std::wstring CommandLine(const std::wstring& sPath, const std::vector<std::string>& aArguments) {
  std::wstring sLine = L'"' + sPath + L'"';
  for (const std::string& sWord : aArguments) sLine += L" \"" + Wide(sWord) + L'"';
  return sLine;
}

}  // namespace

struct Neighbour::System {
  SystemHandle process;
};

Neighbour::Neighbour(const std::string& sName, const std::vector<std::string>& aArguments)
    : m_system(std::make_unique<System>()) {
  const std::wstring sFolder = OwnFolder();
  const std::wstring sPath = sFolder + Wide(sName);
  std::wstring sLine = CommandLine(sPath, aArguments);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION started{};
  // What it prints goes where this program's goes.
  if (!CreateProcessW(sPath.c_str(), sLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                      sFolder.c_str(), &start, &started)) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), sName);
  }
  CloseHandle(started.hThread);
  m_system->process = SystemHandle(started.hProcess);
}

Neighbour::~Neighbour() = default;

int Neighbour::Wait() {
  WaitForSingleObject(m_system->process.Get(), INFINITE);
  DWORD lCode = 1;
  GetExitCodeProcess(m_system->process.Get(), &lCode);
  return static_cast<int>(lCode);
}

}  // namespace glidetrak::bench
