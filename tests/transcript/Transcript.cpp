#include "transcript/Transcript.h"

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "form/ControlTable.h"
#include "form/frmGlidetrak.h"
#include "language/RunState.h"
#include "language/Variables.h"
#include "programs/ProgramFiles.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "strings/LanguageFunctions.h"
#include "track/ModeAndDirection.h"
#include "transcript/Clicks.h"

namespace glidetrak {

namespace {

const char* const sProgramPath = "\\PROGRAM.GTP";
constexpr int iSettlingTime = 100;  ///< ms between the load and time 0
constexpr int iTail = 200;          ///< ms after the last instruction and the end of the program

QByteArray Quoted(const QString& sText) {
  QByteArray quoted = "\"";
  for (const QChar character : sText) {
    const char16_t c = character.unicode();
    if (c == '"' || c == '\\') {
      quoted += '\\';
      quoted += static_cast<char>(c);
    } else if (c == '\r') {
      quoted += "\\r";
    } else if (c == '\n') {
      quoted += "\\n";
    } else if (c >= 0x20 && c < 0x7F) {
      quoted += static_cast<char>(c);
    } else {
      quoted += "\\u" + QByteArray::number(c, 16).rightJustified(4, '0');
    }
  }
  return quoted + '"';
}

const char* IconName(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Exclamation:
      return "exclamation";
    case BoxIcon::Information:
      return "information";
    case BoxIcon::Warning:
      return "warning";
    case BoxIcon::Question:
      return "question";
  }
  return "";
}

QByteArray VariablesLine() {
  QByteArray line = "vars";
  for (int i = 1; i <= iVariableSlots; ++i) {
    const qint16 iValue = iVariables[static_cast<size_t>(i)];
    if (iValue == 0) continue;
    line += ' ' + QByteArray(1, static_cast<char>(i + 64)) + '=' + QByteArray::number(iValue);
  }
  return line;
}

int CharacterOf(const QString& sOperand) {
  return sOperand == "SPACE" ? ' ' : CharCode(sOperand.at(0));
}

}  // namespace

Transcript::Transcript(TranscriptOptions options, std::function<void(const QByteArray&)> write)
    : m_options(options), m_write(std::move(write)) {}

void Transcript::Run(const QByteArray& program, const Script& script) {
  Prepare(script);
  LoadProgram(program);
  m_platform.RunFor(iSettlingTime);
  m_lZero = m_platform.lNow;
  Watch();
  Schedule(script);
  RunToEnd();
}

/// What holds from before the station's start.
void Transcript::Prepare(const Script& script) {
  QString sLink = "parallel";
  for (const Instruction& instruction : script.aInstructions) {
    if (instruction.sVerb == "link") sLink = instruction.sOperand;
    if (instruction.sVerb == "language") {
      SetUILanguage(static_cast<qint16>(instruction.sOperand.toInt(nullptr, 16)));
    }
  }
  if (sLink == "parallel") m_platform.rig.AttachParallel();
  if (sLink == "usb") m_platform.rig.AttachUsb();
}

void Transcript::LoadProgram(const QByteArray& program) {
  m_platform.AddFile(sProgramPath, program);
  WireEvents();
  Form_Load({});
  bool bSuccess = false;
  LoadProgramFile(sProgramPath, bSuccess);
  iControlMode = modeProgram;
  SetControlStates();
  bProgramDirty = false;
}

void Transcript::Watch() {
  m_platform.OnBox = [this](const VirtualBox& box) {
    Write(QByteArray("box ") + IconName(box.icon) + ' ' + Quoted(box.sTitle) + ' ' +
          Quoted(box.sText));
    if (box.buttons == BoxButtons::YesNo) {
      Write(box.answer == BoxAnswer::Yes ? "answer yes" : "answer no");
    }
  };
  m_platform.OnBeep = [this] { Write("beep"); };
  m_platform.rig.OnWrite = [this](qint32 lByte) { Write("out " + QByteArray::number(lByte)); };
  m_platform.OnPump = [this] {
    if (m_platform.lNow - m_lZero > m_options.lLimit) throw LimitReached();
  };
  if (m_options.bSelect) {
    txtProgram.SelectionSet = [this](int iStart, int iLength) {
      Write("select " + QByteArray::number(iStart) + ' ' + QByteArray::number(iLength));
    };
  }
  WatchMessagePanel();
  m_aNotifiers.push_back(bProgramRunning.addNotifier([this] {
    if (bProgramRunning) Write("start");
  }));
  for (Event<>* pClick :
       {&cmdRunProgram.Click, &MNURUN.Click, &cmdSingleStep.Click, &MNUSTEPFORWARD.Click}) {
    WatchCaller(*pClick);
  }
}

void Transcript::WatchMessagePanel() {
  const auto show = [this] { Write("message " + Quoted(lblMessage.Caption)); };
  m_aNotifiers.push_back(pnlMessage.Visible.addNotifier([this, show] {
    if (pnlMessage.Visible) {
      show();
    } else {
      Write("message off");
    }
  }));
  m_aNotifiers.push_back(lblMessage.Caption.addNotifier([show] {
    if (pnlMessage.Visible) show();
  }));
}

/// A call that is refused because a program already runs prints nothing.
void Transcript::WatchCaller(Event<>& click) {
  const auto original = click.Function();
  click = [this, original] {
    const bool bRefused = bProgramRunning;
    original();
    if (!bRefused) WriteEnd();
  };
}

void Transcript::Schedule(const Script& script) {
  m_iLeft = script.aInstructions.size();
  for (const Instruction& instruction : script.aInstructions) {
    m_platform.At(m_lZero + instruction.lTime, [this, instruction] {
      --m_iLeft;
      CarryOut(instruction);
    });
  }
}

void Transcript::CarryOut(const Instruction& instruction) {
  const QString& sVerb = instruction.sVerb;
  const bool bByHand = sVerb == "click" || sVerb == "keydown" || sVerb == "keypress";
  if (bByHand && m_platform.iOpenBoxes > 0) return;  // lost, as behind any modal box
  if (sVerb == "click") ClickControl(instruction.sOperand);
  if (sVerb == "keydown") {
    int iKeyCode = instruction.sOperand.toInt();
    frmGlidetrak.KeyDown(iKeyCode);
  }
  if (sVerb == "keypress") {
    int iCharCode = CharacterOf(instruction.sOperand);
    frmGlidetrak.KeyPress(iCharCode);
  }
  if (sVerb == "answer") {
    m_platform.defaultAnswer = instruction.sOperand == "no" ? BoxAnswer::No : BoxAnswer::Yes;
  }
  if (sVerb == "input") m_platform.rig.lInput = instruction.sOperand.toInt(nullptr, 0);
  if (sVerb == "analog") m_platform.rig.lAnalog = instruction.sOperand.toInt(nullptr, 0);
  if (sVerb == "boxes") m_platform.iBoxMilliseconds = instruction.sOperand.toInt();
}

void Transcript::RunToEnd() {
  m_platform.RunDueActions();
  for (int i = 0; i < iTail; ++i) {
    if (m_iLeft > 0 || bProgramRunning) i = 0;
    m_platform.PumpEvents();
  }
}

void Transcript::Write(const QByteArray& line) {
  if (!m_options.bTimes) return m_write(line);
  m_write(QByteArray::number(m_platform.lNow - m_lZero) + '\t' + line);
}

void Transcript::WriteEnd() {
  Write("end line=" + QByteArray::number(lCurrentLine));
  Write(VariablesLine());
}

}  // namespace glidetrak
