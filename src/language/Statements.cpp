#include "language/Statements.h"

#include <array>

#include "common/DelayMilliseconds.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "language/CommandNames.h"
#include "language/CompilePass.h"
#include "language/LetAndIf.h"
#include "language/ProgramError.h"
#include "language/RigStatements.h"
#include "language/RunState.h"
#include "language/StatementArguments.h"
#include "language/Variables.h"
#include "platform/Platform.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

/// A statement gets the whole line; false takes the stop path.
using Statement = bool (*)(const QString& sText);

QString WithoutKeyword(QString sText, Keyword keyword) {
  return TrimBlanks(sText.remove(Word(keyword)));
}

bool ExecutePrint(const QString& sText) {
  const QString sMessage = BuildPrintMessage(sText.mid(Word(Keyword::Print).size()));
  lblMessage.Caption = sMessage;
  pnlMessage.Visible = !sMessage.isEmpty();
  return true;
}

bool ExecuteIfLine(const QString& sText) {
  return ExecuteIf(sText.mid(Word(Keyword::If).size()));
}

bool ExecuteBreak(const QString&) {
  return false;
}

bool ExecuteLabel(const QString&) {
  return true;
}

bool ExecuteGoto(const QString&) {
  bInIfBlock = false;
  bIfCondition = true;
  lCurrentLine = LineTable.at(static_cast<size_t>(lCurrentLine)).lTargetLine;
  return true;
}

bool ExecuteLetLine(const QString& sText) {
  return ExecuteLet(WithoutKeyword(sText, Keyword::Let), true);
}

bool ExecuteWait(const QString& sText) {
  qint32 lMilliseconds = 0;
  if (!ParseWaitTime(WithoutKeyword(sText, Keyword::Wait), lMilliseconds))
    return FailWith(idInvalidWait);
  DelayMilliseconds(Pump::Yes, lMilliseconds, Tick::LeftOn);
  pnlMessage.Visible = false;
  return true;
}

/// Spins on the event pump alone. A stop leaves the key empty, which the caller meets as an error.
void WaitForKey() {
  while (sKeyPressed.isEmpty() && bProgramRunning) pDesktop->PumpEvents();
}

/// A digit counts as its number, any other key as its character code.
qint16 KeyValue() {
  if (sKeyPressed.isEmpty()) throw RuntimeError(Fault::BadBound);
  const QChar key = sKeyPressed[0];
  if (sKeyPressed.size() == 1 && IsDigit(key)) return static_cast<qint16>(key.digitValue());
  return static_cast<qint16>(CharCode(key));
}

bool ExecuteGet(const QString& sText) {
  const qsizetype iArgument = Word(Keyword::Get).size();
  sKeyPressed.clear();
  if (sText.size() <= iArgument) return FailWith(idInvalidGet, BoxIcon::Information);
  const int iSlot = SlotOf(CharCode(sText[iArgument]));
  WaitForKey();
  StoreVariable(iSlot, KeyValue());
  pnlMessage.Visible = false;
  return true;
}

bool ExecuteBeep(const QString&) {
  pDesktop->Beep();
  return true;
}

bool ExecuteEndIf(const QString&) {
  bInIfBlock = false;
  return true;
}

struct StatementRow {
  Keyword keyword;
  Statement statement;
};

constexpr std::array StatementRows{
    StatementRow{Keyword::Print, ExecutePrint},
    StatementRow{Keyword::If, ExecuteIfLine},
    StatementRow{Keyword::Break, ExecuteBreak},
    StatementRow{Keyword::Label, ExecuteLabel},
    StatementRow{Keyword::Goto, ExecuteGoto},
    StatementRow{Keyword::Let, ExecuteLetLine},
    StatementRow{Keyword::Wait, ExecuteWait},
    StatementRow{Keyword::Get, ExecuteGet},
    StatementRow{Keyword::Beep, ExecuteBeep},
    StatementRow{Keyword::Forward, ExecuteForward},
    StatementRow{Keyword::Backward, ExecuteBackward},
    StatementRow{Keyword::Power, ExecutePower},
    StatementRow{Keyword::Halt, ExecuteHalt},
    StatementRow{Keyword::TimeReset, ExecuteTimeReset},
    StatementRow{Keyword::EndIf, ExecuteEndIf},
};

bool Dispatch(const QString& sKeyword, const QString& sText) {
  for (const StatementRow& row : StatementRows) {
    if (!sKeyword.isEmpty() && sKeyword == Word(row.keyword)) return row.statement(sText);
  }
  return FailWith(idUnrecognized);
}

/// A message stays up across these three and goes at any other statement.
bool KeepsMessage(const QString& sKeyword) {
  return sKeyword == Word(Keyword::Wait) || sKeyword == Word(Keyword::Print) ||
         sKeyword == Word(Keyword::Get);
}

/// The editor comes back when the caller finishes.
LineResult Stop() {
  bProgramRunning = false;
  pnlMessage.Visible = false;
  txtProgram.Enabled = false;
  return LineResult::Stopped;
}

LineResult ExecuteLine(bool bTracing) {
  const QString sText = SelectProgramLine(lCurrentLine);
  if (!bProgramRunning) return Stop();
  if (sText.isEmpty()) return LineResult::Empty;
  const QString sKeyword = FindCommandKeyword(sText);
  if (!KeepsMessage(sKeyword)) pnlMessage.Visible = false;
  if (!Dispatch(sKeyword, sText)) return Stop();
  return bMotorOn && !bTracing ? LineResult::MotorOn : LineResult::Done;
}

}  // namespace

LineResult ExecuteProgramLine(bool bTracing) {
  try {
    return ExecuteLine(bTracing);
  } catch (const RuntimeError&) {
    return Stop();
  }
}

QString SelectProgramLine(qint32 lIndex) {
  if (lIndex < 0 || lIndex >= static_cast<qint32>(LineTable.size())) return {};
  const ProgramLine& line = LineTable[static_cast<size_t>(lIndex)];
  txtProgram.Select(line.lStartOffset, line.lLength);
  return line.sText;
}

QString FindCommandKeyword(const QString& sText) {
  for (const CommandName& name : CommandNameTable) {
    QString sWord = UpperCase(TrimBlanks(name.sName));
    if (!name.bIsSensor && !sWord.isEmpty() && sText.startsWith(sWord)) return sWord;
  }
  SkipOnError([&] { ExecuteLet(sText, false); });
  return {};
}

}  // namespace glidetrak
