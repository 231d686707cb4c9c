#include "programs/ProgramFiles.h"

#include <QRandomGenerator>

#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "common/UserPaths.h"
#include "form/frmGlidetrak.h"
#include "platform/Platform.h"
#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"

namespace glidetrak {

namespace {

constexpr int iExtensionLength = 4;  ///< with its point
const char* const sProgramExtension = ".GTP";

bool IsProgramName(const QString& sPath) {
  return UpperCase(sPath.right(3)) == u"GTP";
}

QString NameOfPath(const QString& sPath) {
  return sPath.mid(sPath.lastIndexOf(u'\\') + 1);
}

void TakeProgram(const QString& sPath, const QString& sText) {
  ResetProgramState();
  txtProgram.SetText(sText);
  txtProgram.Refresh();
  sProgramFile = IsProgramName(sPath) ? sPath : sGetNextFreeRTPFile(sPath);
  ShowFileInTitle(NameOfPath(sProgramFile));
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

/// The deletion comes ahead of the test of the slot: the old file is gone even when the slot stands
/// open. Deliberate.
void WriteThroughSlot(const QString& sPath, const QString& sText) {
  if (FileExists(sPath)) pMachine->DeleteFile(sPath);
  if (bFileSlotOpen) throw RuntimeError(Fault::FileSlotInUse);
  try {
    pMachine->WriteFile(sPath, ToCodePage(sText));
  } catch (const RuntimeError& error) {
    bFileSlotOpen = error.fault() == Fault::WriteBroken;
    throw;
  }
}

}  // namespace

QByteArray ReadThroughSlot(const QString& sPath) {
  if (bFileSlotOpen) throw RuntimeError(Fault::FileSlotInUse);
  return pMachine->ReadFile(sPath);
}

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

void WriteProgramFile(const QString& sPath, const QString& sText, bool& bSuccess) {
  bSuccess = false;
  SkipOnError([&] {
    WriteThroughSlot(sPath, sText);
    bProgramDirty = false;
    bSuccess = true;
  });
}

QString ResolveFileArgument(const QString& sText) {
  if (!UpperCase(sText).contains(sProgramExtension)) return {};
  QString sPath = sText;
  sPath.remove(u'"');
  return FileExists(sPath) ? sPath : QString();
}

QString sGetNextFreeRTPFile(const QString& sPath) {
  if (sPath.size() < iExtensionLength) return RandomName({});
  return FreeName(sPath.chopped(iExtensionLength));
}

QString GetFolderOfPath(const QString& sPath) {
  const qsizetype iNul = sPath.indexOf(QChar(u'\0'));
  if (iNul >= 0) return WithBackslash(sPath.left(iNul));
  const qsizetype iBackslash = sPath.lastIndexOf(u'\\');
  return WithBackslash(iBackslash >= 0 ? sPath.left(iBackslash + 1) : sPath.left(2));
}

bool FileExists(const QString& sPath) {
  try {
    return (pMachine->FileAttributes(sPath) & attrFolder) == 0;
  } catch (const RuntimeError&) {
    return false;
  }
}

int IsFileReadOnly(const QString& sPath) {
  try {
    if ((pMachine->FileAttributes(sPath) & attrReadOnly) == 0) return 0;
    ShowMessage(idSaveReadOnly, idSaveProgram, BoxIcon::Exclamation);
    return 1;
  } catch (const RuntimeError&) {
    return 2;
  }
}

void ShowFileInTitle(const QString& sName) {
  frmGlidetrak.Caption = UpperCase(sName) + " : " + LoadText(idProgramName);
}

void ShowPlainTitle() {
  frmGlidetrak.Caption = LoadText(idProgramName);
}

}  // namespace glidetrak
