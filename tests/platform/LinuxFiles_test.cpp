// Files as Linux answers for them, and the clock.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QThread>
#include <functional>
#include <optional>

#include "platform/TemporaryFolder.h"
#include "platform/linux/LinuxMachine.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

class Files : public ::testing::Test {
 protected:
  /// The fault that the step raised, nothing if it raised none.
  static std::optional<Fault> FaultOf(const std::function<void()>& step) {
    try {
      step();
    } catch (const RuntimeError& error) {
      return error.fault();
    }
    return {};
  }

  void MakePipe(const QString& sName) {
    ASSERT_EQ(mkfifo(folder.Native(sName).toLocal8Bit().constData(), 0600), 0);
  }

  TemporaryFolder folder;
  LinuxMachine machine;
};

TEST_F(Files, AreReadWhole) {
  QByteArray bytes;
  for (int i = 0; i < 256; ++i) bytes.append(static_cast<char>(i));
  folder.AddFile("Plan.gtp", bytes);
  EXPECT_EQ(machine.ReadFile(folder.Station("PLAN.GTP")), bytes);
  folder.AddFile("Empty.gtp");
  EXPECT_EQ(machine.ReadFile(folder.Station("Empty.gtp")), "");
}

TEST_F(Files, ThatAreNotThereAreNotFound) {
  const QString sPath = folder.Station("Nowhere.gtp");
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(sPath); }), Fault::FileNotFound);
  EXPECT_EQ(FaultOf([&] { machine.FileAttributes(sPath); }), Fault::FileNotFound);
  EXPECT_EQ(FaultOf([&] { machine.DeleteFile(sPath); }), Fault::FileNotFound);
}

TEST_F(Files, ThatAreFoldersOrPipesCannotBeRead) {
  MakePipe("Pipe.gtp");
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(folder.Station("Pipe.gtp")); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(folder.Station("")); }), Fault::FileAccess);
}

struct AttributeRow {
  QFile::Permissions permissions;
  int iAttributes;
};

const AttributeRow AttributeRows[] = {
    {QFile::ReadOwner | QFile::WriteOwner, 0},
    {QFile::ReadOwner, attrReadOnly},
    {QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther, attrReadOnly},
};

TEST_F(Files, WithoutAnyWriteBitAreReadOnly) {
  folder.AddFile("Plan.gtp");
  for (const AttributeRow& row : AttributeRows) {
    QFile::setPermissions(folder.Native("Plan.gtp"), row.permissions);
    EXPECT_EQ(machine.FileAttributes(folder.Station("Plan.gtp")), row.iAttributes);
  }
}

TEST_F(Files, TellAFolder) {
  EXPECT_EQ(machine.FileAttributes(folder.Station("")), attrFolder);
}

TEST_F(Files, AreWrittenWholeAndReplaced) {
  const QString sPath = folder.Station("New.gtp");
  machine.WriteFile(sPath, "a longer text");
  machine.WriteFile(sPath, "short");
  EXPECT_EQ(machine.ReadFile(sPath), "short");
}

TEST_F(Files, KeepTheirSpellingWhenTheyAreDeletedAndWrittenAnew) {
  folder.AddFile("Plan.gtp", "old");
  const QString sPath = folder.Station("PLAN.GTP");
  machine.FileAttributes(sPath);
  machine.DeleteFile(sPath);
  machine.WriteFile(sPath, "new");
  EXPECT_EQ(QDir(folder.Native("")).entryList(QDir::Files), QStringList("Plan.gtp"));
}

TEST_F(Files, AreNotWrittenIntoAFolderThatIsNotThere) {
  EXPECT_EQ(FaultOf([&] { machine.WriteFile(folder.Station("Nowhere\\A.gtp"), "x"); }),
            Fault::FileAccess);
}

TEST_F(Files, GiveTheValuesOfAConfiguration) {
  folder.AddFile("Tv_Glidetrak.ini", "[MiscSettings]\nHW_EXAMPLES=3\n");
  const QString sPath = folder.Station("TV_GLIDETRAK.INI");
  EXPECT_EQ(machine.ConfigurationValue("MiscSettings", "HW_EXAMPLES", sPath), QByteArray("3"));
  EXPECT_EQ(machine.ConfigurationValue("MiscSettings", "SWFILE", sPath), std::nullopt);
}

TEST_F(Files, OfALibraryThatIsNotThereFailTheCall) {
  EXPECT_EQ(FaultOf([&] { machine.CallTrackport("LPTAvailable", {}); }), Fault::PlatformCall);
}

TEST(Clock, CountsMillisecondsForward) {
  LinuxMachine machine;
  const qint32 lStart = machine.GetTickCount();
  QThread::msleep(20);
  const qint32 lElapsed = machine.GetTickCount() - lStart;
  EXPECT_GE(lElapsed, 19);
}

}  // namespace
}  // namespace glidetrak
