// transcript [--times] [--select] [--limit N] FILE.GTP

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "transcript/Transcript.h"

namespace {

enum ExitStatus { exitDone = 0, exitUnreadable = 2, exitHang = 3, exitLimit = 4 };

void WriteLine(const QByteArray& line) {
  std::printf("%s\n", line.constData());
}

/// Ends a program that hangs without pumping events: the virtual clock has stood still for 5 s.
void WatchForHang(const std::atomic<qint64>& lClock) {
  std::thread([&lClock] {
    qint64 lSeen = lClock;
    for (int i = 0; i < 50; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      if (lClock != lSeen) i = 0;
      lSeen = lClock;
    }
    WriteLine("hang");
    std::fflush(stdout);
    std::_Exit(exitHang);
  }).detach();
}

/// A pipe or a device would not come to an end: what is no regular file cannot be read.
bool ReadWhole(const QString& sPath, QByteArray& bytes) {
  if (!QFileInfo(sPath).isFile()) return false;
  QFile file(sPath);
  if (!file.open(QIODevice::ReadOnly)) return false;
  bytes = file.readAll();
  return file.error() == QFileDevice::NoError;
}

int Fail(const QString& sMessage) {
  std::fprintf(stderr, "transcript: %s\n", qPrintable(sMessage));
  return exitUnreadable;
}

/// The file's own ending replaced by .expect.
QString ExpectPath(const QString& sPath) {
  return sPath.left(sPath.lastIndexOf(u'.')) + ".expect";
}

int RunTranscript(const QByteArray& program, const glidetrak::Script& script,
                  glidetrak::TranscriptOptions options) {
  static std::atomic<qint64> lClock = 0;
  glidetrak::Transcript transcript(options, WriteLine);
  transcript.CountPumps(&lClock);
  WatchForHang(lClock);
  try {
    transcript.Run(program, script);
    return exitDone;
  } catch (const glidetrak::LimitReached&) {
    WriteLine("limit");
    return exitLimit;
  }
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOption({"times", "Precede each line with the virtual millisecond."});
  parser.addOption({"select", "Tell of the editor's selection."});
  parser.addOption({"limit", "Cut the transcript after N virtual milliseconds.", "N", "600000"});
  parser.addPositionalArgument("FILE.GTP", "The Control Program to run.");
  parser.process(application);
  if (parser.positionalArguments().size() != 1) return Fail("one file is wanted");

  const QString sPath = parser.positionalArguments().constFirst();
  QByteArray program;
  if (!ReadWhole(sPath, program)) return Fail("cannot read " + sPath);
  QByteArray expect;
  ReadWhole(ExpectPath(sPath), expect);
  const glidetrak::Script script = glidetrak::ReadScript(program, expect);
  if (!script.sError.isEmpty()) return Fail("cannot understand ;! " + script.sError);
  return RunTranscript(
      program, script,
      {parser.isSet("times"), parser.isSet("select"), parser.value("limit").toLongLong()});
}
