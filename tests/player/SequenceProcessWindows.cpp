#include <QCoreApplication>
#include <QProcess>
#include <cstdlib>

#include "platform/windows/Api.h"
#include "player/SequenceProcess.h"

namespace glidetrak {

namespace {

constexpr int iLongestSequence = 20'000;  ///< real milliseconds

/// Set in a process that is to play one sequence: the sequence.
const char* const sChild = "GLIDETRAK_PLAYER_CHILD";

}  // namespace

/// This program once more, which comes here again and plays in place of starting another.
std::string InProcessOfItsOwn(quint64 lSeed, bool (*play)(quint64)) {
  if (qEnvironmentVariableIsSet(sChild)) std::_Exit(play(qgetenv(sChild).toULongLong()) ? 0 : 1);
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(sChild, QString::number(lSeed));
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  wchar_t aProgram[MAX_PATH];
  GetModuleFileNameW(nullptr, aProgram, MAX_PATH);
  process.start(QString::fromWCharArray(aProgram), {});
  if (!process.waitForFinished(iLongestSequence)) return "not at its end in time";
  if (process.exitStatus() != QProcess::NormalExit) return "ended by a crash";
  return process.exitCode() == 0 ? "" : "something did not hold, see above";
}

}  // namespace glidetrak
