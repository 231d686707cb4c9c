#pragma once

// Runs one Control Program in virtual time and writes down what an onlooker sees and the rig
// receives.

#include <QByteArray>
#include <QProperty>
#include <atomic>
#include <functional>
#include <vector>

#include "transcript/Script.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {

struct TranscriptOptions {
  bool bTimes = false;      ///< each line preceded by the virtual millisecond and a tab
  bool bSelect = false;     ///< lines for the editor's selection
  qint64 lLimit = 600'000;  ///< virtual milliseconds after which the transcript is cut
};

/// Unwinds a transcript that passed its limit.
struct LimitReached {};

class Transcript {
 public:
  /// `write` gets each line, without a line end.
  Transcript(TranscriptOptions options, std::function<void(const QByteArray&)> write);

  /// Adds 1 at every pump and every pass of a wait, for whoever watches for a hang.
  void CountPumps(std::atomic<qint64>* pCount) { m_platform.pPasses = pCount; }

  /// Starts the station, loads the program and carries out the script. Throws LimitReached.
  void Run(const QByteArray& program, const Script& script);

 private:
  void Prepare(const Script& script);
  void LoadProgram(const QByteArray& program);
  void Watch();
  void WatchMessagePanel();
  void WatchCaller(Event<>& click);
  void Schedule(const Script& script);
  void CarryOut(const Instruction& instruction);
  void RunToEnd();
  void Write(const QByteArray& line);
  void WriteEnd();

  TranscriptOptions m_options;
  std::function<void(const QByteArray&)> m_write;
  VirtualPlatform m_platform;
  std::vector<QPropertyNotifier> m_aNotifiers;
  qint64 m_lZero = 0;  ///< the clock at time 0
  size_t m_iLeft = 0;  ///< instructions not yet carried out
};

}  // namespace glidetrak
