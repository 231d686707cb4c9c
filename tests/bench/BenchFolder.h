#pragma once

// A folder of a test's own with a control socket in it, for this process and the ones it starts.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

namespace glidetrak::bench {

class BenchFolder : public testing::Test {
 protected:
  BenchFolder() {
    std::string sPattern = testing::TempDir() + "glidetrak-bench-XXXXXX";
    m_folder = mkdtemp(sPattern.data());
    setenv("GLIDETRAK_BENCH_SOCKET", SocketPath().c_str(), 1);
  }
  ~BenchFolder() override { std::filesystem::remove_all(m_folder); }

  std::string SocketPath() const { return (m_folder / "rig.socket").string(); }

  std::filesystem::path m_folder;
};

/// Waits up to 10 s, far beyond what anything here takes, for the condition.
template <typename Condition>
bool WaitFor(Condition condition) {
  for (int i = 0; i < 1000; ++i) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

/// What a command printed, both streams as one, and its exit code.
struct ShellResult {
  std::string sText;
  int iExitCode = -1;
};

inline ShellResult Shell(const std::string& sCommand) {
  ShellResult result;
  FILE* pPipe = popen((sCommand + " 2>&1").c_str(), "r");
  char aPiece[256];
  while (std::fgets(aPiece, sizeof aPiece, pPipe) != nullptr) result.sText += aPiece;
  const int iStatus = pclose(pPipe);
  result.iExitCode = WIFEXITED(iStatus) ? WEXITSTATUS(iStatus) : -1;
  return result;
}

}  // namespace glidetrak::bench
