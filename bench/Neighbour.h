#pragma once

// A program that is started beside the rig, with one source file for each system.

#include <memory>
#include <string>
#include <vector>

namespace glidetrak::bench {

/// A program out of this program's own folder, which it has for its working folder. It lives on
/// when this goes.
class Neighbour {
 public:
  /// Throws std::system_error when it cannot be started.
  Neighbour(const std::string& sName, const std::vector<std::string>& aArguments);
  ~Neighbour();
  Neighbour(const Neighbour&) = delete;
  Neighbour& operator=(const Neighbour&) = delete;

  /// Waits for its end. Its exit code; 1 when it did not end by itself. To be called once.
  int Wait();

 private:
  struct System;
  std::unique_ptr<System> m_system;
};

}  // namespace glidetrak::bench
