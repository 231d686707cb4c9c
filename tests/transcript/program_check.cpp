// program_check TRANSCRIPT FILE.GTP...: runs each program and holds its transcript against the
// lines that begin with ";>" in the file and in its .expect. Ends with 1 when one of them fails.

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <cstdio>

namespace {

constexpr int iLongestRun = 60'000;  ///< real milliseconds; a hang ends after 5000 of them

QByteArray ReadWhole(const QString& sPath) {
  QFile file(sPath);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int Fail(const QString& sMessage) {
  std::printf("%s\n", qPrintable(sMessage));
  return 1;
}

QStringList ExpectedLines(const QByteArray& text) {
  const QByteArray mark = ";>";
  QStringList aLines;
  for (const QByteArray& line : text.split('\n')) {
    if (line.startsWith(mark)) aLines += QString::fromLatin1(line.mid(mark.size())).trimmed();
  }
  return aLines;
}

/// A bare LF makes the rest of a file one comment line, which would show nothing.
bool HasBareLineFeed(QByteArray text) {
  return text.replace("\r\n", "").contains('\n');
}

void PrintLines(const char* sHead, const QStringList& aLines, qsizetype iMarked) {
  std::printf("%s\n", sHead);
  for (qsizetype i = 0; i < aLines.size(); ++i) {
    std::printf("%s %s\n", i == iMarked ? "->" : "  ", qPrintable(aLines[i]));
  }
}

int Compare(const QStringList& aExpected, const QStringList& aActual) {
  if (aExpected == aActual) return 0;
  qsizetype iFirst = 0;
  while (iFirst < aExpected.size() && iFirst < aActual.size() &&
         aExpected[iFirst] == aActual[iFirst]) {
    ++iFirst;
  }
  PrintLines("expected:", aExpected, iFirst);
  PrintLines("transcript:", aActual, iFirst);
  return 1;
}

QStringList RunTranscript(const QString& sTool, const QString& sFile) {
  QProcess process;
  process.start(sTool, {sFile});
  process.waitForFinished(iLongestRun);
  const QByteArray output = process.readAllStandardOutput().replace("\r\n", "\n");
  QStringList aLines = QString::fromLatin1(output).split(u'\n');
  aLines.removeLast();
  const QByteArray errors = process.readAllStandardError();
  if (!errors.isEmpty()) aLines += QString::fromLocal8Bit(errors);
  return aLines;
}

int Check(const QString& sTool, const QFileInfo& file) {
  const QByteArray program = ReadWhole(file.filePath());
  const QByteArray expect = ReadWhole(file.path() + '/' + file.completeBaseName() + ".expect");
  if (HasBareLineFeed(program) && !expect.startsWith("bare-lf")) return Fail("bare LF in the file");
  const QStringList aExpected = ExpectedLines(program) + ExpectedLines(expect);
  if (aExpected.isEmpty()) return Fail("no expectation in the file");
  return Compare(aExpected, RunTranscript(sTool, file.filePath()));
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QStringList aArguments = QCoreApplication::arguments();
  if (aArguments.size() < 3) return Fail("program_check TRANSCRIPT FILE.GTP...");
  int iResult = 0;
  for (const QString& sFile : aArguments.mid(2)) {
    if (Check(aArguments[1], QFileInfo(sFile)) == 0) continue;
    iResult = Fail("FAILED " + sFile);
  }
  return iResult;
}
