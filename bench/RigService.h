#pragma once

// A rig that this process serves until it is told to end.

#include <functional>
#include <string>

#include "bench/EndOnRequest.h"
#include "bench/LiveRig.h"
#include "bench/Wire.h"

namespace glidetrak::bench {

class RigService {
 public:
  /// Takes the place of this user's rig. Throws as WireName and WireServer do.
  RigService() : m_server(m_sName), m_end(m_server) {}

  /// Says where the rig is on the standard output, and then serves it. afterCommand, when there is
  /// one, is called after each command.
  void Serve(const std::function<void()>& afterCommand = {});

  /// Ends Serve, from any thread.
  void End() { m_server.End(); }

  LiveRig& Rig() { return m_rig; }

  /// Serves a rig on a HID device too. Throws std::system_error when there is none to be had, and
  /// std::runtime_error on a system that offers none.
  static void ServeOnHid();

 private:
  const std::string m_sName = WireName();
  LiveRig m_rig;
  WireServer m_server;
  const EndOnRequest m_end;
};

}  // namespace glidetrak::bench
