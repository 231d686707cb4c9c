#pragma once

// The client's side of the wire's protocol: the library's exchanges and a person's commands.

#include <optional>
#include <string>

#include "bench/Wire.h"
#include "bench/WireProtocol.h"

namespace glidetrak::bench {

/// The library's way to the rig.
///
///   Unused    nothing was asked yet
///   Open      there is a connection
///   Lost      an exchange has failed; everything is answered at once, by nothing
///
///   Unused -> Open or Lost    [Exchange]
///   Open -> Lost              [Exchange, when no answer comes within exchangeTime]
///   any -> Open or Lost       [StartAgain]
///
/// It starts no thread, touches no signal and needs no destruction.
class RigClient {
 public:
  /// The rig's answer, 0 to 255; nothing when there is none.
  std::optional<int> Exchange(RigAct act, int iByte = 0);

  /// An exchange on a connection of its own, which takes the place of the present one.
  std::optional<int> StartAgain(RigAct act);

 private:
  enum class State { Unused, Open, Lost };

  bool Open();
  std::optional<int> Ask(RigAct act, int iByte);

  WireConnection m_connection;
  State m_state = State::Unused;
};

/// The answer to a command of RigCommands.h. Throws std::runtime_error with a text for the user
/// when none comes within commandTime, when the rig speaks another version or when it refuses.
std::string AskRig(const std::string& sName, const std::string& sLine);

}  // namespace glidetrak::bench
