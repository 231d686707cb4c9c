#pragma once

// The rig's side of the wire's protocol: one for each client.

#include <functional>

#include "bench/LiveRig.h"
#include "bench/Wire.h"

namespace glidetrak::bench {

class RigConversation : public Conversation {
 public:
  /// afterCommand, when there is one, is called after each command line, before it is answered.
  explicit RigConversation(LiveRig& rig, std::function<void()> afterCommand = {})
      : m_rig(rig), m_afterCommand(std::move(afterCommand)) {}

  Turn Take(std::string& sReceived, std::string& sAnswer) override;

 private:
  Turn Greet(const std::string& sLine, std::string& sAnswer);
  Turn TakeExchange(std::string& sReceived, std::string& sAnswer);
  Turn TakeLine(std::string& sReceived, std::string& sAnswer);
  Turn CarryOut(const std::string& sLine, std::string& sAnswer);

  LiveRig& m_rig;
  std::function<void()> m_afterCommand;
  bool m_bGreeted = false;
};

/// Serves the rig until the server is told to end.
void ServeRig(LiveRig& rig, WireServer& server, const std::function<void()>& afterCommand = {});

}  // namespace glidetrak::bench
