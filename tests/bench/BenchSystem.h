#pragma once

// What the tests of the bench rig ask of the system, with one source file for each
// (BenchSystemUnix.cpp, BenchSystemWindows.cpp).

#include <memory>
#include <string>
#include <vector>

namespace glidetrak::bench {

/// The name of a place that nobody else uses, in which a rig can be served.
std::string MakePlace();
void RemovePlace(const std::string& sName);

/// Sets a variable of the environment for this process and the ones it starts.
void SetVariable(const char* sName, const std::string& sValue);

/// What a program printed, both streams as one and lines ended by a line feed, and its exit code.
struct ProgramResult {
  std::string sText;
  int iExitCode = -1;  ///< -1 when it was killed
};

/// A program that was started, and is killed when this goes before it has ended.
class Program {
 public:
  Program(const std::string& sPath, const std::vector<std::string>& aArguments);
  ~Program();
  Program(Program&& other) noexcept;

  /// As its user would: by a termination signal, or by Ctrl+C at its console.
  void AskToEnd() const;
  void Kill() const;

  /// Has it stand still, and go on.
  void Stop() const;
  void GoOn() const;

  /// The system's number for it.
  int Id() const;

  bool HasEnded() const;

  /// Waits for its end. What it prints must be less than the system holds, 4 KiB.
  ProgramResult Finish();

 private:
  struct System;
  std::unique_ptr<System> m_system;
};

/// A library that is loaded while this lives.
class LoadedLibrary {
 public:
  explicit LoadedLibrary(const char* sPath);
  ~LoadedLibrary();
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;

  /// Null when it has no such operation.
  void* Find(const char* sOperation) const;

 private:
  void* m_pLibrary;
};

}  // namespace glidetrak::bench
