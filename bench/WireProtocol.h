#pragma once

// What is said on the wire, version 1. Both kinds of message may follow each other on one
// connection; each is answered before the next is looked at.
//
//   greeting    The client's first words are "glidetrak-bench 1" and a line feed. The server
//   answers
//               with its own greeting, whatever it was sent, and hangs up when the two differ: the
//               greeting keeps its form in every version.
//   exchange    Two bytes, for the library: an act (RigAct) and the byte that is written, 0 for
//               the other acts. Two bytes come back: the act, and what was asked for or 0.
//   command     A line for people (RigCommands.h), at most 255 bytes and a line feed. "ok N" and a
//               line feed come back and then N bytes of text; or "error: ", a reason and a line
//               feed.
//
// The server hangs up after anything else. Whatever was sent whole is carried out in its order,
// also when the client has not waited for the answer: a byte that is on the wire is written.

#include <chrono>
#include <cstddef>
#include <string>

namespace glidetrak::bench {

constexpr int iWireVersion = 1;
constexpr size_t iLongestLine = 256;  ///< bytes, the line feed counted
constexpr size_t iExchangeBytes = 2;

/// The most that the library waits for one exchange, connecting included (WireConnection::Allow):
/// ten ticks of the station.
constexpr std::chrono::milliseconds exchangeTime{50};

/// The most that a command waits.
constexpr std::chrono::milliseconds commandTime{2000};

/// Every value is below that of a printable character, and so no command begins with it.
enum class RigAct : char {
  AskAdapter = 1,  ///< answered by 1 when the adapter is on its port
  ReadInputs = 2,  ///< answered by the input byte
  ReadAnalog = 3,  ///< answered by the accelerometer's value
  WriteByte = 4,   ///< answered by 0
};

inline std::string Greeting(int iVersion = iWireVersion) {
  return "glidetrak-bench " + std::to_string(iVersion) + "\n";
}

}  // namespace glidetrak::bench
