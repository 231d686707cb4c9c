#include "language/ResolveGoto.h"

#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/Keywords.h"
#include "language/RunState.h"
#include "platform/Platform.h"
#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

LineResult ReportMissingLabel(const QString& sName) {
  txtProgram.Visible = true;
  txtFocusGrab.SetFocus();
  ShowMessage(LoadText(idLabelMissingHead) + LowerCase(sName) + LoadText(idLabelMissingTail),
              Word(Keyword::Goto), BoxIcon::Exclamation, BoxPlace::TopBand);
  bProgramRunning = false;
  return LineResult::Stopped;
}

LineResult FindLabel(const QString& sName) {
  for (int i = 1; i < iNextLabel; ++i) {
    const LabelEntry& label = LabelTable.at(static_cast<size_t>(i));
    if (label.sName != sName) continue;
    LineTable.at(static_cast<size_t>(lCurrentLine)).lTargetLine = label.lLine;
    return bMotorOn ? LineResult::MotorOn : LineResult::Done;
  }
  return ReportMissingLabel(sName);
}

LineResult ResolveLine() {
  const QString sText = SelectProgramLine(lCurrentLine);
  if (!bProgramRunning) return LineResult::Stopped;
  const qsizetype iGoto = sText.indexOf(Word(Keyword::Goto));
  if (sText.isEmpty() || sText.startsWith(Word(Keyword::Print)) || iGoto < 0) {
    return LineResult::Empty;
  }
  return FindLabel(sText.mid(iGoto + Word(Keyword::Goto).size()));
}

}  // namespace

LineResult ResolveGotoLine(qint32 /*lIndex*/) {
  try {
    return ResolveLine();
  } catch (const RuntimeError&) {
    bProgramRunning = false;
    return LineResult::Stopped;
  }
}

}  // namespace glidetrak
