#pragma once

// A folder of a test's own in which a rig can be served, for this process and the ones it starts.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include "bench/LiveRig.h"
#include "bench/RigConversation.h"
#include "bench/Wire.h"

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

/// A server that serves from a thread of its own until it goes.
class ServedWire {
 public:
  ServedWire(const std::string& sName,
             std::function<std::unique_ptr<Conversation>()> newConversation)
      : m_server(sName), m_thread([this, newConversation = std::move(newConversation)] {
          m_server.Serve(newConversation);
        }) {}
  ~ServedWire() {
    m_server.End();
    m_thread.join();
  }
  ServedWire(const ServedWire&) = delete;
  ServedWire& operator=(const ServedWire&) = delete;

 private:
  WireServer m_server;
  std::thread m_thread;
};

/// A rig that is served.
class ServedRig {
 public:
  explicit ServedRig(const std::string& sName)
      : m_wire(sName, [this] { return std::make_unique<RigConversation>(m_rig); }) {}

  double Position() {
    return m_rig.With([](TrackModel& model) { return model.Position(); });
  }
  int Sensors() {
    return m_rig.With([](TrackModel& model) { return model.Sensors(); });
  }

 private:
  LiveRig m_rig;
  ServedWire m_wire;
};

/// A connection that has sent that and stays open, and may wait for two seconds more.
inline WireConnection Talk(const std::string& sName, const std::string& sText) {
  WireConnection connection;
  connection.Allow(std::chrono::seconds(2));
  EXPECT_TRUE(connection.Connect(sName));
  EXPECT_TRUE(connection.Send(sText));
  connection.Allow(std::chrono::seconds(2));
  return connection;
}

/// All that comes within that time, or up to where the other side hangs up.
inline std::string Hear(WireConnection& connection, std::chrono::milliseconds time) {
  std::string sText;
  char aPiece[512];
  connection.Allow(time);
  while (const size_t iCount = connection.Receive(aPiece, sizeof aPiece)) {
    sText.append(aPiece, iCount);
  }
  return sText;
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

/// What a command printed, both streams as one, and its exit code.
struct ShellResult {
  std::string sText;
  int iExitCode = -1;
};

inline ShellResult Shell(const std::string& sCommand) {
  ShellResult result;
  FILE* pPipe = popen(("exec 2>&1; " + sCommand).c_str(), "r");
  char aPiece[256];
  while (std::fgets(aPiece, sizeof aPiece, pPipe) != nullptr) result.sText += aPiece;
  const int iStatus = pclose(pPipe);
  result.iExitCode = WIFEXITED(iStatus) ? WEXITSTATUS(iStatus) : -1;
  return result;
}

}  // namespace glidetrak::bench
