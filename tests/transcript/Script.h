#pragma once

// The script that a program test carries in its comments: lines that begin with ";!".

#include <QByteArray>
#include <QString>
#include <vector>

namespace glidetrak {

struct Instruction {
  qint64 lTime;   ///< virtual milliseconds since time 0
  QString sVerb;  ///< click, keydown, keypress, input, analog, link, answer, language, boxes
  QString sOperand;
};

struct Script {
  std::vector<Instruction> aInstructions;  ///< in the order of the file
  QString sError;                          ///< the first line that could not be read, or ""
};

/// Reads the script lines of a program and of its .expect file. A file with no click of any kind
/// gets a click on cmdRunProgram at time 0.
Script ReadScript(const QByteArray& program, const QByteArray& expect);

}  // namespace glidetrak
