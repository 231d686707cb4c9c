#include "player/ProgramWriter.h"

#include <QStringList>

namespace glidetrak {

namespace {

constexpr const char* sensors[] = {"START_BUTTON", "CITY_CALL",   "AIRPORT_CALL", "LIGHT_SENSOR",
                                   "TIME_GATE_A",  "TIME_GATE_B", "SOUND_SENSOR"};

constexpr const char* plainStatements[] = {"FORWARD", "BACKWARD",       "HALT",  "TIME_RESET",
                                           "BEEP",    "PRINT \"HI\",A", "PRINT", "GET B",
                                           "",        ": REMARK"};

constexpr const char* faultyStatements[] = {
    "BREAK",     "XYZZY", "POWER 16", "POWER -1",      "POWER 99999", "WAIT 0",
    "GOTO LOST", "IF A",  "GET",      "LET PB9=ON",    "LET PB6=OF",  "IF PA3=MAYBE",
    "LET A=B/0", "ENDIF", "LET A=$",  "LET A=32000*9", "LABEL A",     "IF CITY_CALL"};

QString Variable(Dice& dice) {
  return QString(QChar(static_cast<char16_t>(u'A' + dice.Between(0, 25))));
}

QString Operand(Dice& dice) {
  return dice.OnceIn(2) ? Variable(dice) : QString::number(dice.Between(0, 300));
}

QString Expression(Dice& dice) {
  constexpr const char* operators[] = {"+", "-", "*", "/"};
  QString sText = Operand(dice);
  for (int i = dice.Between(0, 2); i > 0; --i) sText += dice.OneOf(operators) + Operand(dice);
  return sText;
}

QString State(Dice& dice) {
  return dice.OnceIn(2) ? "ON" : "OFF";
}

QString Condition(Dice& dice) {
  constexpr const char* comparisons[] = {"=", "<", ">", "<>", "<=", ">="};
  switch (dice.Between(1, 3)) {
    case 1:
      return dice.OneOf(sensors) + ("=" + State(dice));
    case 2:
      return QString("PA%1=%2").arg(dice.Between(0, 7)).arg(State(dice));
    default:
      return Variable(dice) + dice.OneOf(comparisons) + Expression(dice);
  }
}

QString Statement(Dice& dice, bool bPowerBits) {
  switch (dice.Between(1, 9)) {
    case 1:
    case 2:
    case 3:
      return QString("POWER %1").arg(dice.Between(0, 15));
    case 4:
      return QString("WAIT %1").arg(dice.OnceIn(20) ? 3000 : dice.Between(1, 250));
    case 5:
      return QString("LET PB%1=%2").arg(dice.Between(bPowerBits ? 0 : 4, 7)).arg(State(dice));
    case 6:
      return QString("LET %1=%2").arg(Variable(dice), Expression(dice));
    case 7:
      return dice.OnceIn(4) ? dice.OneOf(faultyStatements) : "HALT";
    default:
      return dice.OneOf(plainStatements);
  }
}

void WriteIf(Dice& dice, QStringList& aLines, bool bPowerBits) {
  aLines.append("IF " + Condition(dice));
  aLines.append(Statement(dice, bPowerBits));
  aLines.append("ENDIF");
}

}  // namespace

QString WriteProgram(Dice& dice, bool bPowerBits) {
  QStringList aLines;
  const bool bLoop = dice.OnceIn(3);
  if (bLoop) aLines.append("LABEL A1");
  for (int i = dice.Between(1, 6); i > 0; --i) {
    if (dice.OnceIn(4)) {
      WriteIf(dice, aLines, bPowerBits);
    } else {
      aLines.append(Statement(dice, bPowerBits));
    }
  }
  if (bLoop) aLines.append("GOTO A1");
  return aLines.join("\r\n");
}

}  // namespace glidetrak
