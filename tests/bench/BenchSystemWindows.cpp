#include <gtest/gtest.h>

#include <algorithm>

#include "BenchSystemWindows.h"

// Not in the system's headers: they stop and continue all threads of a process.
extern "C" {
NTSYSAPI LONG NTAPI NtSuspendProcess(HANDLE process);
NTSYSAPI LONG NTAPI NtResumeProcess(HANDLE process);
}

namespace glidetrak::bench {

namespace {

constexpr DWORD iKilled = 0xDEAD;  ///< the exit code of what was killed

std::string CommandLine(const std::string& sPath, const std::vector<std::string>& aArguments) {
  std::string sLine = "\"" + sPath + "\"";
  for (const std::string& sWord : aArguments) sLine += " " + sWord;
  return sLine;
}

}  // namespace

void SendConsoleEvent(const Program& program, DWORD iEvent) {
  const SystemHandle process(
      OpenProcess(PROCESS_ALL_ACCESS, FALSE, static_cast<DWORD>(program.Id())));
  void* pRoutine =
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernelbase"), "CtrlRoutine"));
  ASSERT_NE(pRoutine, nullptr);
  const SystemHandle thread(CreateRemoteThread(process.Get(), nullptr, 0,
                                               reinterpret_cast<LPTHREAD_START_ROUTINE>(pRoutine),
                                               reinterpret_cast<void*>(iEvent), 0, nullptr));
  EXPECT_TRUE(thread.IsOpen());
}

std::string MakePlace() {
  static int iPlace = 0;
  return "\\\\.\\pipe\\glidetrak-bench-test-" + std::to_string(GetCurrentProcessId()) + "-" +
         std::to_string(++iPlace);
}

/// A pipe goes by itself.
void RemovePlace(const std::string&) {}

void SetVariable(const char* sName, const std::string& sValue) {
  SetEnvironmentVariableA(sName, sValue.c_str());
}

struct Program::System {
  SystemHandle process;
  DWORD iId = 0;
  SystemHandle output;
};

Program::Program(const std::string& sPath, const std::vector<std::string>& aArguments)
    : m_system(std::make_unique<System>()) {
  HANDLE output = nullptr;
  HANDLE input = nullptr;
  EXPECT_NE(CreatePipe(&output, &input, nullptr, 0), 0);
  m_system->output = SystemHandle(output);
  const SystemHandle inputEnd(input);
  SetHandleInformation(input, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  start.hStdOutput = input;
  start.hStdError = input;
  PROCESS_INFORMATION process{};
  std::string sLine = CommandLine(sPath, aArguments);
  EXPECT_NE(CreateProcessA(nullptr, sLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                           &start, &process),
            0);
  CloseHandle(process.hThread);
  m_system->process = SystemHandle(process.hProcess);
  m_system->iId = process.dwProcessId;
}

Program::Program(Program&& other) noexcept = default;

Program::~Program() {
  if (!m_system || HasEnded()) return;
  Kill();
  WaitForSingleObject(m_system->process.Get(), INFINITE);
}

void Program::AskToEnd() const {
  SendConsoleEvent(*this, CTRL_C_EVENT);
}

void Program::Kill() const {
  TerminateProcess(m_system->process.Get(), iKilled);
}

void Program::Stop() const {
  EXPECT_EQ(NtSuspendProcess(m_system->process.Get()), 0);
}

void Program::GoOn() const {
  EXPECT_EQ(NtResumeProcess(m_system->process.Get()), 0);
}

int Program::Id() const {
  return static_cast<int>(m_system->iId);
}

bool Program::HasEnded() const {
  return WaitForSingleObject(m_system->process.Get(), 0) == WAIT_OBJECT_0;
}

ProgramResult Program::Finish() {
  ProgramResult result;
  WaitForSingleObject(m_system->process.Get(), INFINITE);
  DWORD iExitCode = 0;
  GetExitCodeProcess(m_system->process.Get(), &iExitCode);
  if (iExitCode != iKilled) result.iExitCode = static_cast<int>(iExitCode);
  char aPiece[256];
  DWORD iCount = 0;
  while (ReadFile(m_system->output.Get(), aPiece, sizeof aPiece, &iCount, nullptr) != 0) {
    result.sText.append(aPiece, iCount);
  }
  std::erase(result.sText, '\r');
  return result;
}

LoadedLibrary::LoadedLibrary(const char* sPath) : m_pLibrary(LoadLibraryA(sPath)) {
  EXPECT_NE(m_pLibrary, nullptr) << GetLastError();
}

LoadedLibrary::~LoadedLibrary() {
  FreeLibrary(static_cast<HMODULE>(m_pLibrary));
}

void* LoadedLibrary::Find(const char* sOperation) const {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(m_pLibrary), sOperation));
}

}  // namespace glidetrak::bench
