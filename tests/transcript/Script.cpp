#include "transcript/Script.h"

#include <QSet>
#include <QStringList>
#include <algorithm>

#include "common/UnicodeFunctions.h"

namespace glidetrak {

namespace {

const QByteArray kMark = ";!";

bool IsKnown(const QString& sVerb) {
  static const QSet<QString> verbs{"click", "keydown", "keypress", "input", "analog",
                                   "link",  "answer",  "language", "boxes"};
  return verbs.contains(sVerb);
}

/// at TIME VERB OPERAND
bool ReadInstruction(const QString& sLine, Instruction& instruction) {
  const QStringList aWords = sLine.split(u' ', Qt::SkipEmptyParts);
  if (aWords.size() != 4 || aWords[0] != "at" || !IsKnown(aWords[2])) return false;
  bool bOk = false;
  instruction = {aWords[1].toLongLong(&bOk), aWords[2], aWords[3]};
  return bOk;
}

void ReadLines(const QByteArray& text, Script& script) {
  for (const QByteArray& line : text.split('\n')) {
    if (!line.startsWith(kMark)) continue;
    const QString sLine = FromCodePage(line.mid(kMark.size())).trimmed();
    Instruction instruction;
    if (ReadInstruction(sLine, instruction)) {
      script.aInstructions.push_back(instruction);
    } else if (script.sError.isEmpty()) {
      script.sError = sLine;
    }
  }
}

bool HasClick(const Script& script) {
  return std::any_of(script.aInstructions.begin(), script.aInstructions.end(),
                     [](const Instruction& i) { return i.sVerb == "click"; });
}

}  // namespace

Script ReadScript(const QByteArray& program, const QByteArray& expect) {
  Script script;
  ReadLines(program, script);
  ReadLines(expect, script);
  if (!HasClick(script)) script.aInstructions.push_back({0, "click", "cmdRunProgram"});
  return script;
}

}  // namespace glidetrak
