// The rest of what the machine answers without a window.

#include "platform/linux/LinuxMachine.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include "platform/NativeFolder.h"

namespace glidetrak {

namespace {

class LinuxMachineTest : public ::testing::Test {
 protected:
  void SetUp() override { qputenv("XDG_CONFIG_HOME", folder.Path().toUtf8()); }

  void NameDocuments(const QString& sPath) {
    folder.AddFile("user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"" + sPath.toUtf8() + "\"\n");
  }

  NativeFolder folder;
  LinuxMachine machine;
};

TEST_F(LinuxMachineTest, DocumentsFolderIsTheUsersOwn) {
  QDir(folder.Path()).mkdir("Papers");
  NameDocuments(folder.Path("Papers"));
  EXPECT_EQ(machine.DocumentsFolder(), folder.StationPath("Papers"));
}

TEST_F(LinuxMachineTest, DocumentsFolderThatIsNotThereIsTheHomeFolder) {
  folder.AddFile("A file");
  QDir(folder.Path()).mkdir("Home");
  qputenv("HOME", folder.Path("Home").toUtf8());
  for (const char* sName : {"Nothing", "A file"}) {
    NameDocuments(folder.Path(sName));
    EXPECT_EQ(machine.DocumentsFolder(), folder.StationPath("Home")) << sName;
  }
}

TEST_F(LinuxMachineTest, DocumentsFolderIsNotKnownWithoutAHome) {
  NameDocuments(folder.Path("Nothing"));
  qputenv("HOME", folder.Path("Nothing either").toUtf8());
  EXPECT_EQ(FaultOf([&] { machine.DocumentsFolder(); }), Fault::PlatformCall);
  qunsetenv("HOME");
  EXPECT_EQ(FaultOf([&] { machine.DocumentsFolder(); }), Fault::PlatformCall);
}

TEST_F(LinuxMachineTest, ConfigurationIsReadFromItsFile) {
  folder.AddFile("Tv_Glidetrak.ini", "[S]\r\nK=v\r\n");
  EXPECT_EQ(machine.ConfigurationValue("s", "k", folder.StationPath("TV_GLIDETRAK.INI")), "v");
  EXPECT_EQ(FaultOf([&] { machine.ConfigurationValue("s", "k", folder.StationPath("X")); }),
            Fault::FileNotFound);
}

TEST_F(LinuxMachineTest, ConfigurationIsReadAgainWhenItChanged) {
  const QString sFile = folder.StationPath("A.INI");
  folder.AddFile("A.INI", "[S]\r\nK=v\r\n");
  folder.AddFile("B.INI", "[S]\r\nK=other\r\n");
  EXPECT_EQ(machine.ConfigurationValue("S", "K", sFile), "v");
  EXPECT_EQ(machine.ConfigurationValue("S", "K", folder.StationPath("B.INI")), "other");
  EXPECT_EQ(machine.ConfigurationValue("S", "K", sFile), "v");
  folder.AddFile("A.INI", "[S]\r\nK=another\r\n");
  EXPECT_EQ(machine.ConfigurationValue("S", "K", sFile), "another");
  QFile::remove(folder.Path("A.INI"));
  EXPECT_EQ(FaultOf([&] { machine.ConfigurationValue("S", "K", sFile); }), Fault::FileNotFound);
}

TEST_F(LinuxMachineTest, ConfigurationThatIsNoFileCannotBeRead) {
  QDir(folder.Path()).mkdir("Folder");
  mkfifo(folder.Path("Pipe").toUtf8().constData(), 0600);
  for (const char* sName : {"Folder", "Pipe"}) {
    const auto read = [&] { machine.ConfigurationValue("S", "K", folder.StationPath(sName)); };
    EXPECT_EQ(FaultOf(read), Fault::FileAccess) << sName;
    EXPECT_EQ(FaultOf(read), Fault::FileAccess) << sName;
  }
}

TEST_F(LinuxMachineTest, EndOfProcessIsAtOnce) {
  EXPECT_EXIT(machine.EndProcess(), ::testing::ExitedWithCode(0), "");
}

TEST_F(LinuxMachineTest, CounterNeverGoesBack) {
  const qint32 lFirst = machine.GetTickCount();
  EXPECT_GE(machine.GetTickCount() - lFirst, 0);
}

TEST_F(LinuxMachineTest, LongTimeHasHoursMinutesAndSecondsAndNoZone) {
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  qputenv("LC_ALL", "C");
  const QRegularExpression form("^\\d{1,2}:\\d\\d:\\d\\d\\W(AM|PM)$");
  EXPECT_TRUE(form.match(machine.LongTime()).hasMatch()) << machine.LongTime().toStdString();
}

TEST_F(LinuxMachineTest, LibraryThatIsNotThereIsAFailedCall) {
  int iCount = 0;
  QCoreApplication application(iCount, nullptr);
  EXPECT_EQ(FaultOf([&] { machine.CallTrackport("LPTAvailable", {}); }), Fault::PlatformCall);
}

}  // namespace

}  // namespace glidetrak
