#include "architecture/WriterRules.h"

#include <QRegularExpression>
#include <algorithm>
#include <functional>

#include "architecture/Writers.h"

namespace glidetrak {

namespace {

/// The text without comments and without what stands in quotes, line by line as before.
QString Code(QString sText) {
  static const QRegularExpression quoted("//[^\n]*|\"(?:\\\\.|[^\"\\\\\n])*\"");
  return sText.replace(quoted, "\"\"");
}

/// What stands in parentheses, which may hold others, two deep.
QString Parentheses() {
  QString sInside = "[^()]*";
  for (int i = 0; i < 2; ++i) sInside = "[^()]*(?:\\(" + sInside + "\\)[^()]*)*";
  return "\\(" + sInside + "\\)";
}

/// A variable where it is not a member of something else, or one element of it.
QString Variable(const QString& sName) {
  return "(?<![\\w.>])" + sName + "\\b(?:\\[[^\\]]*\\]|\\.(?:at|back|front)" + Parentheses() + ")?";
}

/// Calls that hand the variable over where a procedure takes a reference.
QString HandedOver(const QString& sVariable, const ReferenceTakers& takers) {
  const QString sArgument = "[^;{},()]*(?:\\([^()]*\\)[^;{},()]*)*,";
  QStringList aWays;
  for (const auto& [iPlace, names] : takers) {
    aWays.append(QString("\\b(?:%1)\\((?:%2){%3}\\s*%4\\s*[,)]")
                     .arg(QStringList(names.begin(), names.end()).join(u'|'), sArgument)
                     .arg(iPlace)
                     .arg(sVariable));
  }
  return aWays.join(u'|');
}

/// Every way of writing to the variable that the rule knows. A declaration is none: that is another
/// variable of the same name.
QRegularExpression WriteTo(const QString& sName, const ReferenceTakers& takers) {
  const QString sVariable = Variable(sName);
  QStringList aWays{
      "(?<!bool |qint16 |qint32 |QString )" + sVariable +
          "(?:\\.\\w+)?\\s*(?:=(?!=)|[-+*/%&|^]=|<<=|>>=|\\+\\+|--)",
      "(?:\\+\\+|--)\\s*" + sVariable,
      sVariable +
          "\\.(?:append|assign|chop|clear|emplace_back|erase|fill|insert|pop_back|"
          "prepend|push_back|remove|replace|resize|setBinding|setValue|swap|truncate)\\(",
      "(?:[(,={\\[?:;]|\\breturn)\\s*&" + sVariable,
      "(?<!const )(?<![\\w:<>])[\\w:<>]+&\\s*\\w+\\s*[=:{(]\\s*" + sVariable,
      "\\bstd::(?:exchange|swap|move|tie|ref)\\(\\s*" + sVariable,
      "\\bQScopedValueRollback(?:<[^>]*>)?\\s+\\w+\\(\\s*" + sVariable,
  };
  if (!takers.empty()) aWays.append(HandedOver(sVariable, takers));
  return QRegularExpression(aWays.join(u'|'));
}

bool MayWrite(const SharedVariable& variable, const QString& sPath) {
  const QStringList aWriters = QString(variable.sWriters).split(u' ');
  return std::any_of(aWriters.begin(), aWriters.end(), [&](const QString& sWriter) {
    return QRegularExpression::fromWildcard(sWriter).match(sPath).hasMatch();
  });
}

/// A variable at the beginning of a line of a header that everybody who includes it shares.
const QRegularExpression& Declaration() {
  static const QRegularExpression declaration(
      "^inline (?!const)[^()\n=;]*?(\\w+)(?:\\[\\w*\\])?(?:\\{[^\n]*\\})?(?: = [^\n]*)?;",
      QRegularExpression::MultilineOption);
  return declaration;
}

/// The forms' controls are the form's own.
QStringList DeclaredVariables(const SourceFile& file) {
  QStringList aNames;
  if (!file.sPath.endsWith(".h") || file.sPath.startsWith("form/")) return aNames;
  const QString sCode = Code(file.sText);
  for (const auto& match : Declaration().globalMatch(sCode)) aNames.append(match.captured(1));
  return aNames;
}

/// The numbers of the lines with a match, without a declaration.
std::vector<int> Lines(const QString& sCode, const QRegularExpression& write) {
  std::vector<int> aLines;
  for (const auto& match : write.globalMatch(sCode)) {
    const qsizetype iPlace = match.capturedEnd() - 1;
    const qsizetype iLineStart = sCode.lastIndexOf(u'\n', iPlace - 1) + 1;
    if (sCode.mid(iLineStart).startsWith("inline ")) continue;
    aLines.push_back(static_cast<int>(sCode.left(iPlace).count(u'\n')) + 1);
  }
  return aLines;
}

/// Calls `visit` with each write: the variable, the file's path and the line.
void EachWrite(std::vector<SourceFile> aFiles, const ReferenceTakers& takers,
               const std::function<void(const SharedVariable&, const QString&, int)>& visit) {
  for (SourceFile& file : aFiles) file.sText = Code(file.sText);
  for (const SharedVariable& variable : SharedVariables) {
    const QRegularExpression write = WriteTo(variable.sName, takers);
    for (const SourceFile& file : aFiles) {
      if (!file.sText.contains(variable.sName)) continue;
      for (const int iLine : Lines(file.sText, write)) visit(variable, file.sPath, iLine);
    }
  }
}

}  // namespace

void CollectTakers(const QString& sText, ReferenceTakers& takers) {
  static const QRegularExpression procedure("\\b(\\w+)\\(([^();]*)\\)");
  static const QRegularExpression reference("^\\s*(?!const )[\\w:<>]+&\\s*\\w+$");
  for (const auto& match : procedure.globalMatch(Code(sText))) {
    const QStringList aParameters = match.captured(2).split(u',');
    for (int i = 0; i < aParameters.size(); ++i) {
      if (reference.match(aParameters[i]).hasMatch()) takers[i].insert(match.captured(1));
    }
  }
}

QStringList WriterViolations(const std::vector<SourceFile>& aFiles, const ReferenceTakers& takers) {
  QStringList aFaults;
  EachWrite(aFiles, takers, [&](const SharedVariable& variable, const QString& sPath, int iLine) {
    if (MayWrite(variable, sPath)) return;
    aFaults.append(QString("src/%1:%2: is no writer of %3")
                       .arg(sPath)
                       .arg(iLine)
                       .arg(QString(variable.sName)));
  });
  return aFaults;
}

QStringList UnlistedVariables(const SourceFile& file) {
  QStringList aFaults;
  for (const QString& sName : DeclaredVariables(file)) {
    const bool bListed =
        std::any_of(std::begin(SharedVariables), std::end(SharedVariables),
                    [&](const SharedVariable& variable) { return sName == variable.sName; });
    if (!bListed) aFaults.append(file.sPath + ": " + sName + " has no row of writers");
  }
  return aFaults;
}

QStringList IdleWriters(const std::vector<SourceFile>& aFiles, const ReferenceTakers& takers) {
  std::map<QString, QStringList> writing;  // paths by variable
  EachWrite(aFiles, takers, [&](const SharedVariable& variable, const QString& sPath, int) {
    writing[variable.sName].append(sPath);
  });
  QStringList aFaults;
  for (const SharedVariable& variable : SharedVariables) {
    for (const QString& sWriter : QString(variable.sWriters).split(u' ')) {
      const auto pattern = QRegularExpression::fromWildcard(sWriter);
      const bool bWrites = writing[variable.sName].indexOf(pattern) >= 0;
      if (!bWrites) aFaults.append(sWriter + " writes no " + variable.sName);
    }
  }
  return aFaults;
}

}  // namespace glidetrak
