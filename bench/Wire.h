#pragma once

// The wire between a served rig and those who speak to it, as bytes and nothing more. What the
// bytes mean stands in WireProtocol.h; how they travel stands in one source file for each system
// (WireUnix.cpp: a Unix socket; WireWindows.cpp: a named pipe).
//
// Everything has a limit: a connection is told how long it may wait, and a server never waits for
// one client. Only the user whose rig it is, and on Unix root, are listened to.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace glidetrak::bench {

/// Where the rig of this user is served: the environment's GLIDETRAK_BENCH_SOCKET, else a place of
/// the system. On Windows the name of a pipe of this machine, "\\.\pipe\..." in UTF-8. Throws
/// std::runtime_error when that place belongs to somebody else or cannot be told.
std::string WireName();

/// The client's end. Holds no memory, so that it can be left as it is when a process ends.
class WireConnection {
 public:
  WireConnection() = default;
  ~WireConnection() { Close(); }
  WireConnection(WireConnection&& other) noexcept
      : m_file(std::exchange(other.m_file, iNone)), m_left(other.m_left) {}
  WireConnection& operator=(WireConnection&& other) noexcept {
    std::swap(m_file, other.m_file);
    std::swap(m_left, other.m_left);
    return *this;
  }

  /// All acts from now on may wait that long together; without a word they do not wait at all. It
  /// is counted in steps of 10 ms: a machine on which everything stood still for a while takes one
  /// step away, so that the other side has its time to answer behind that.
  void Allow(std::chrono::microseconds time) { m_left = time; }

  /// False when nobody takes the connection. A connection that was open is closed first.
  bool Connect(const std::string& sName);

  /// False when not all of it could be handed over.
  bool Send(std::string_view bytes);

  /// Between 1 and iMost bytes; 0 when the other side has gone or the time is up.
  size_t Receive(char* pBytes, size_t iMost);

  void Close();

 private:
  static constexpr std::intptr_t iNone = -1;

  std::intptr_t m_file = iNone;         ///< the system's own name for it
  std::chrono::microseconds m_left{0};  ///< that may still be waited
};

/// What a server does next with a client.
enum class Turn {
  Wait,    ///< no whole message is there yet
  Answer,  ///< one was taken, and there may be another
  HangUp,  ///< nothing more is taken; what was answered is still sent
};

/// One client's talk with the server.
class Conversation {
 public:
  virtual ~Conversation() = default;

  /// Takes one message off the front of what was received and adds its answer to sAnswer.
  virtual Turn Take(std::string& sReceived, std::string& sAnswer) = 0;
};

constexpr size_t iMostUnread =
    512;  ///< bytes of a client that a server holds; no message is longer
constexpr size_t iMostClients = 32;

/// The server's end. When there are too many clients one goes who had no answer beyond its first (a
/// greeting), else any; among these the one that has been silent longest.
class WireServer {
 public:
  /// Takes the place; clients can connect from now on. Throws std::runtime_error with a text for
  /// the user when another rig is served there, when something else stands there, which is left
  /// alone, or when the place cannot be had.
  explicit WireServer(const std::string& sName);
  ~WireServer();
  WireServer(const WireServer&) = delete;
  WireServer& operator=(const WireServer&) = delete;

  /// Serves until End. Clients that do not read, or send no whole message, keep nobody waiting.
  void Serve(const std::function<std::unique_ptr<Conversation>()>& newConversation);

  /// From any thread or signal handler, before or during Serve.
  void End() noexcept;

 private:
  struct System;
  std::unique_ptr<System> m_system;
};

}  // namespace glidetrak::bench
