// Every source of the station keeps the rules. SOURCE_FOLDER and WINDOW_HEADER_FOLDERS come from
// the build.

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <functional>
#include <vector>

#include "architecture/SourceRules.h"
#include "architecture/WriterRules.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

std::vector<SourceFile> ReadSources() {
  const QDir folder(SOURCE_FOLDER);
  std::vector<SourceFile> aFiles;
  QDirIterator walk(folder.path(), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    QFile file(walk.next());
    if (!file.open(QIODevice::ReadOnly)) ADD_FAILURE() << file.fileName().toStdString();
    aFiles.push_back({folder.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll())});
  }
  return aFiles;
}

/// Each header of a toolkit folder, with and without the folder's name.
WindowHeaders ReadWindowHeaders() {
  WindowHeaders headers;
  for (const QString& sFolder : QString(WINDOW_HEADER_FOLDERS).split(u':')) {
    const QDir folder(sFolder);
    for (const QString& sHeader : folder.entryList(QDir::Files)) {
      headers.insert(sHeader);
      headers.insert(folder.dirName() + u'/' + sHeader);
    }
  }
  return headers;
}

void ExpectEveryFileKeeps(const std::function<QStringList(const SourceFile&)>& rule) {
  for (const SourceFile& file : ReadSources()) {
    for (const QString& sFault : rule(file)) ADD_FAILURE() << "src/" << sFault.toStdString();
  }
}

TEST(Sources, AreFoundInEveryRoom) {
  std::set<QString> rooms;
  for (const SourceFile& file : ReadSources()) rooms.insert(file.sPath.section(u'/', 0, 0));
  for (const char* sRoom : {"platform", "form", "common", "strings", "hardware", "track",
                            "language", "authoring", "programs", "shell", "view", "main.cpp"}) {
    EXPECT_TRUE(rooms.contains(sRoom)) << sRoom;
  }
}

TEST(Sources, IncludeOnlyRoomsBelowThem) {
  ExpectEveryFileKeeps(RoomViolations);
}

TEST(Sources, IncludeOneAnotherInNoCircle) {
  EXPECT_EQ(Circles(ReadSources()), QStringList());
}

ReferenceTakers ReadTakers(const std::vector<SourceFile>& aFiles) {
  ReferenceTakers takers;
  for (const SourceFile& file : aFiles) CollectTakers(file.sText, takers);
  return takers;
}

TEST(Sources, LeaveASharedVariableToItsWriters) {
  const std::vector<SourceFile> aFiles = ReadSources();
  EXPECT_EQ(WriterViolations(aFiles, ReadTakers(aFiles)), QStringList());
}

TEST(Sources, ShareNoVariableWithoutARowOfWriters) {
  ExpectEveryFileKeeps(UnlistedVariables);
}

TEST(Sources, AreNamedAsWritersOnlyWhereTheyWrite) {
  const std::vector<SourceFile> aFiles = ReadSources();
  EXPECT_EQ(IdleWriters(aFiles, ReadTakers(aFiles)), QStringList());
}

TEST(Sources, WindowHeadersAreKnown) {
  const WindowHeaders headers = ReadWindowHeaders();
  for (const char* sHeader :
       {"QWidget", "QtWidgets/QWidget", "qwidget.h", "QPainter", "QtGui/QPainter"}) {
    EXPECT_TRUE(headers.contains(sHeader)) << sHeader;
  }
}

TEST(Sources, LeaveTheWindowToolkitToTheView) {
  const WindowHeaders headers = ReadWindowHeaders();
  ExpectEveryFileKeeps([&](const auto& file) { return WindowHeaderViolations(file, headers); });
}

/// The controls of both forms. The forms themselves, the screen and the application are no
/// controls.
std::set<QString> ReadControlNames() {
  std::set<QString> names;
  for (const SourceFile& file : ReadSources()) {
    if (file.sPath == "form/frmGlidetrak.h" || file.sPath == "form/frmAbout.h") {
      names.merge(DeclaredNames(file.sText));
    }
  }
  for (const char* sName : {"frmGlidetrak", "frmAbout", "screen", "application"}) {
    EXPECT_EQ(names.erase(sName), 1U) << sName;
  }
  return names;
}

TEST(Sources, NameNoControlInTheView) {
  const std::set<QString> controls = ReadControlNames();
  EXPECT_EQ(controls.size(), 92U + 14U + 10U);
  ExpectEveryFileKeeps([&](const auto& file) { return ControlNameViolations(file, controls); });
}

TEST(Sources, TrimBlanksOnly) {
  ExpectEveryFileKeeps(TrimmingViolations);
}

TEST(Sources, KeepLinesAndFilesShort) {
  ExpectEveryFileKeeps(LengthViolations);
}

}  // namespace
}  // namespace glidetrak
