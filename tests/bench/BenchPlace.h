#pragma once

// A place of a test's own in which a rig can be served, for this process and the ones it starts.

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

#include "BenchSystem.h"
#include "bench/LiveRig.h"
#include "bench/RigConversation.h"
#include "bench/Wire.h"

namespace glidetrak::bench {

class BenchPlace : public testing::Test {
 protected:
  BenchPlace() { SetVariable("GLIDETRAK_BENCH_SOCKET", Place()); }
  ~BenchPlace() override { RemovePlace(m_sPlace); }

  const std::string& Place() const { return m_sPlace; }

 private:
  const std::string m_sPlace = MakePlace();
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

}  // namespace glidetrak::bench
