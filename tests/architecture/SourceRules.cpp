#include "architecture/SourceRules.h"

#include <QRegularExpression>
#include <functional>
#include <map>

namespace glidetrak {

namespace {

/// The rooms that each room may include beside itself, with blanks between. The view knows the form
/// and nothing of what the station does with it.
const std::map<QString, QString> MayInclude{
    {"platform", ""},
    {"form", "platform"},
    {"common", "platform form"},
    {"strings", "platform form common"},
    {"hardware", "platform form common strings"},
    {"track", "platform form common strings hardware"},
    {"language", "platform form common strings hardware track"},
    {"authoring", "platform form common strings hardware track language"},
    {"programs", "platform form common strings hardware track language authoring"},
    {"shell", "platform form common strings hardware track language authoring programs"},
    {"view", "platform form common strings"},
    {"main.cpp",
     "platform form common strings hardware track language authoring programs shell view"},
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
  if (!MayInclude.contains(sOther)) return sIncluded + " is in no room";
  if (MayInclude.at(sRoom).split(u' ').contains(sOther)) return {};
  return sRoom + " includes " + sIncluded + ", which is not below it";
}

/// A path without its ending.
QString ModuleOf(const QString& sPath) {
  return sPath.section(u'.', 0, 0);
}

/// By module the modules that it includes.
using Arrows = std::map<QString, std::set<QString>>;

Arrows ReadArrows(const std::vector<SourceFile>& aFiles) {
  Arrows arrows;
  for (const SourceFile& file : aFiles) {
    const QString sModule = ModuleOf(file.sPath);
    EachInclude(file.sText, "\"([^\"]+)\"", [&](const QString& sIncluded, int) {
      if (ModuleOf(sIncluded) != sModule) arrows[sModule].insert(ModuleOf(sIncluded));
    });
  }
  return arrows;
}

/// Follows the arrows from a module; aRoad is the way to it, `seen` what was followed before.
void FollowArrows(const Arrows& arrows, const QString& sModule, QStringList& aRoad,
                  std::set<QString>& seen, QStringList& aCircles) {
  if (const qsizetype iStart = aRoad.indexOf(sModule); iStart >= 0) {
    aCircles.append((aRoad.mid(iStart) + QStringList{sModule}).join(" -> "));
    return;
  }
  if (!seen.insert(sModule).second || !arrows.contains(sModule)) return;
  aRoad.append(sModule);
  for (const QString& sNext : arrows.at(sModule)) {
    FollowArrows(arrows, sNext, aRoad, seen, aCircles);
  }
  aRoad.removeLast();
}

}  // namespace

QStringList Circles(const std::vector<SourceFile>& aFiles) {
  const Arrows arrows = ReadArrows(aFiles);
  QStringList aCircles;
  QStringList aRoad;
  std::set<QString> seen;
  for (const auto& [sModule, aNext] : arrows) FollowArrows(arrows, sModule, aRoad, seen, aCircles);
  return aCircles;
}

QStringList RoomViolations(const SourceFile& file) {
  const QString sRoom = RoomOf(file.sPath);
  if (!MayInclude.contains(sRoom)) return {At(file, 1, "the file is in no room")};
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

std::set<QString> DeclaredNames(const QString& sHeader) {
  static const QRegularExpression declaration("^inline \\w+\\s+(\\w+)(\\[\\d+\\])?;",
                                              QRegularExpression::MultilineOption);
  std::set<QString> names;
  for (auto match = declaration.globalMatch(sHeader); match.hasNext();) {
    names.insert(match.next().captured(1));
  }
  return names;
}

QStringList ControlNameViolations(const SourceFile& file, const std::set<QString>& controls) {
  static const QRegularExpression word("\\w+");
  QStringList aFaults;
  if (!IsView(file)) return aFaults;
  EachLine(file.sText, [&](const QString& sLine, int iLine) {
    for (auto match = word.globalMatch(sLine); match.hasNext();) {
      const QString sWord = match.next().captured().section(u'_', 0, 0);
      if (controls.contains(sWord)) aFaults.append(At(file, iLine, "the view names " + sWord));
    }
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
