#include "architecture/SourceRules.h"

#include <QRegularExpression>
#include <functional>
#include <map>

namespace glidetrak {

namespace {

/// A room's floor in the tower.
const std::map<QString, int> Floors{
    {"platform", 0}, {"form", 1},  {"common", 2},   {"strings", 3},
    {"hardware", 4}, {"track", 5}, {"language", 6}, {"authoring", 7},
    {"programs", 8}, {"shell", 9}, {"view", 10},    {"main.cpp", 11},
};

/// What stands beside the tower: the string tables, included by their path from src/.
const QString sDataFolder = "../data/";

QString RoomOf(const QString& sPath) {
  return sPath.section(u'/', 0, 0);
}

bool IsView(const SourceFile& file) {
  return RoomOf(file.sPath) == "view";
}

/// Calls `visit` with each line and its number, from 1.
void EachLine(const QString& sText, const std::function<void(const QString&, int)>& visit) {
  int iLine = 0;
  for (const QString& sLine : sText.split(u'\n')) visit(sLine, ++iLine);
}

/// Calls `visit` with the name in each include line of that kind of quotes.
void EachInclude(const QString& sText, const QString& sPattern,
                 const std::function<void(const QString&, int)>& visit) {
  const QRegularExpression include("^\\s*#\\s*include\\s*" + sPattern);
  EachLine(sText, [&](const QString& sLine, int iLine) {
    const QRegularExpressionMatch match = include.match(sLine);
    if (match.hasMatch()) visit(match.captured(1), iLine);
  });
}

QString At(const SourceFile& file, int iLine, const QString& sWhat) {
  return QString("%1:%2: %3").arg(file.sPath).arg(iLine).arg(sWhat);
}

/// What is wrong with that include, or "".
QString RoomFault(const QString& sRoom, const QString& sIncluded) {
  const QString sOther = RoomOf(sIncluded);
  if (sOther == sRoom || sIncluded.startsWith(sDataFolder)) return {};
  if (!Floors.contains(sOther)) return sIncluded + " is in no room";
  if (Floors.at(sOther) < Floors.at(sRoom)) return {};
  return sRoom + " includes " + sIncluded + ", which is not below it";
}

}  // namespace

QStringList RoomViolations(const SourceFile& file) {
  const QString sRoom = RoomOf(file.sPath);
  if (!Floors.contains(sRoom)) return {At(file, 1, "the file is in no room")};
  QStringList aFaults;
  EachInclude(file.sText, "\"([^\"]+)\"", [&](const QString& sIncluded, int iLine) {
    const QString sFault = RoomFault(sRoom, sIncluded);
    if (!sFault.isEmpty()) aFaults.append(At(file, iLine, sFault));
  });
  return aFaults;
}

QStringList WindowHeaderViolations(const SourceFile& file, const WindowHeaders& headers) {
  QStringList aFaults;
  if (IsView(file)) return aFaults;
  EachInclude(file.sText, "[<\"]([^>\"]+)[>\"]", [&](const QString& sIncluded, int iLine) {
    const bool bStartsApplication = file.sPath == "main.cpp" && sIncluded == "QApplication";
    if (bStartsApplication || !headers.contains(sIncluded)) return;
    aFaults.append(At(file, iLine, sIncluded + " belongs to the view"));
  });
  return aFaults;
}

QStringList TrimmingViolations(const SourceFile& file) {
  QStringList aFaults;
  if (IsView(file) || RoomOf(file.sPath) == "platform") return aFaults;
  EachLine(file.sText, [&](const QString& sLine, int iLine) {
    const bool bTrims = sLine.contains("trimmed(") || sLine.contains("simplified(");
    if (bTrims) aFaults.append(At(file, iLine, "trims more than blanks"));
  });
  return aFaults;
}

QStringList LengthViolations(const SourceFile& file) {
  QStringList aFaults;
  EachLine(file.sText, [&](const QString& sLine, int iLine) {
    if (sLine.size() <= iMostColumns) return;
    aFaults.append(At(file, iLine, QString("%1 columns").arg(sLine.size())));
  });
  const qsizetype iLines = file.sText.count(u'\n');
  if (iLines > iMostLines) aFaults.append(At(file, 1, QString("%1 lines").arg(iLines)));
  return aFaults;
}

}  // namespace glidetrak
