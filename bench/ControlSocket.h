#pragma once

// The way from a shell to a running model: a Unix socket that whoever holds the model serves. One
// connection carries one command line (RigCommands.h, at most 255 bytes and a line feed) and one
// answer, "ok" or "error: <reason>" on the first line and the command's own lines behind it; then
// the server hangs up.
//
// The first holder of a model has the socket. A second one beside it gets none; a socket that a
// dead process left behind is taken over.

#include <string>
#include <thread>

#include "bench/FileDescriptor.h"
#include "bench/LiveRig.h"

namespace glidetrak::bench {

/// Where the socket stands: the environment's GLIDETRAK_BENCH_SOCKET, else a file in
/// XDG_RUNTIME_DIR, else one in a folder of mode 0700 under /tmp, which is made when missing.
/// Throws std::runtime_error when that folder exists and is not this user's own.
std::string ControlSocketPath();

class ControlSocket {
 public:
  /// Serves the rig from a thread of its own until destroyed. Throws std::runtime_error when the
  /// socket cannot be had.
  ControlSocket(LiveRig& rig, std::string sPath);
  ~ControlSocket();
  ControlSocket(const ControlSocket&) = delete;
  ControlSocket& operator=(const ControlSocket&) = delete;

 private:
  void Serve();
  void AnswerOne();

  LiveRig& m_rig;
  std::string m_sPath;
  FileDescriptor m_listener;
  FileDescriptor m_stop;  ///< becomes readable when the thread is to end
  std::thread m_thread;
};

/// The answer to a command, without its first line. Throws std::runtime_error with a text for the
/// user when nobody serves the socket or the command was refused.
std::string AskRig(const std::string& sPath, const std::string& sLine);

}  // namespace glidetrak::bench
