#include "programs/ProgramFiles.h"

#include <QRandomGenerator>

#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "platform/Platform.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

constexpr int iExtensionLength = 4;  ///< with its point
const char* const sProgramExtension = ".GTP";

QByteArray ReadThroughSlot(const QString& sPath) {
  if (bFileSlotOpen) throw RuntimeError(Fault::FileSlotInUse);
  return pMachine->ReadFile(sPath);
}

bool IsProgramName(const QString& sPath) {
  return UpperCase(sPath.right(3)) == u"GTP";
}

void TakeProgram(const QString& sPath, const QString& sText) {
  ResetProgramState();
  txtProgram.SetText(sText);
  txtProgram.Refresh();
  sProgramFile = IsProgramName(sPath) ? sPath : sGetNextFreeRTPFile(sPath);
  ShowFileInTitle(sProgramFile);
}

/// A name that nothing was tested for, when the search for a free one failed.
QString RandomName(const QString& sBase) {
  const int iNumber = QRandomGenerator::global()->bounded(1000, 10000);
  return TrimBlanks(sBase) + QString::number(iNumber) + sProgramExtension;
}

QString FreeName(const QString& sBase) {
  QString sCandidate = sBase + sProgramExtension;
  for (qint32 n = 1; FileExists(sCandidate); ++n) {
    sCandidate = sBase + QString::number(n) + sProgramExtension;
  }
  return sCandidate;
}

}  // namespace

void LoadProgramFile(const QString& sPath, bool& bSuccess) {
  bSuccess = false;
  SkipOnError([&] {
    screen.MousePointer = ptrHourglass;
    if (!FileExists(sPath)) return;
    TakeProgram(sPath, FromCodePage(ReadThroughSlot(sPath)));
    screen.MousePointer = ptrDefault;
    bSuccess = true;
  });
}

QString ResolveFileArgument(const QString& sText) {
  if (!UpperCase(sText).contains(".GTP")) return {};
  QString sPath = sText;
  sPath.remove(u'"');
  return FileExists(sPath) ? sPath : QString();
}

bool FileExists(const QString& sPath) {
  try {
    return (pMachine->FileAttributes(sPath) & attrFolder) == 0;
  } catch (const RuntimeError&) {
    return false;
  }
}

QString sGetNextFreeRTPFile(const QString& sPath) {
  if (sPath.size() < iExtensionLength) return RandomName({});
  return FreeName(sPath.chopped(iExtensionLength));
}

void ShowFileInTitle(const QString& sPath) {
  const QString sName = sPath.mid(sPath.lastIndexOf(u'\\') + 1);
  frmGlidetrak.Caption = UpperCase(sName) + " : " + LoadText(80);
}

}  // namespace glidetrak
