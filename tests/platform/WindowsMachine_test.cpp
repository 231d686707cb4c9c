#include "platform/windows/WindowsMachine.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <set>

#include "platform/WindowsFolder.h"

namespace glidetrak {
namespace {

TEST(WindowsMachineTest, CountsSingleMilliseconds) {
  WindowsMachine machine;
  std::set<qint32> values;
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < 200) values.insert(machine.GetTickCount());
  EXPECT_GT(values.size(), 40U) << "a clock of 16 ms shows 13";
}

TEST(WindowsMachineTest, KnowsItsFolderAndTheUsers) {
  WindowsMachine machine;
  EXPECT_TRUE(QFile::exists(machine.ExecutableFolder() + "\\platform_tests.exe"));
  EXPECT_TRUE(machine.DocumentsFolder().contains(":\\")) << machine.DocumentsFolder().toStdString();
}

TEST(WindowsMachineTest, TellsTheTimeWithSecondsAndWithoutAZone) {
  WindowsMachine machine;
  const QRegularExpression time("^\\d{1,2}\\D\\d{2}\\D\\d{2}( \\w\\.?\\w\\.?)?$");
  EXPECT_TRUE(time.match(machine.LongTime()).hasMatch()) << machine.LongTime().toStdString();
}

TEST(WindowsMachineTest, TellsTheUsersLanguageAsACode) {
  WindowsMachine machine;
  EXPECT_EQ(machine.UserDefaultLanguage(), 0x0409) << "the tests run with English settings";
}

TEST(WindowsMachineTest, GoesIntoAFolderThatIsThere) {
  WindowsMachine machine;
  const QString sHere = QDir::currentPath();
  const WindowsFolder folder;
  machine.SetCurrentFolder(folder.Path());
  EXPECT_EQ(QDir(QDir::currentPath()), QDir(folder.Path()));
  EXPECT_EQ(FaultOf([&] { machine.SetCurrentFolder(folder.Path("none")); }), Fault::FileAccess);
  QDir::setCurrent(sHere);
}

TEST(WindowsMachineTest, ReadsAChangedConfigurationFileAgain) {
  WindowsMachine machine;
  const WindowsFolder folder;
  const QString sPath = folder.Path("TV.INI");
  folder.AddFile("TV.INI", "[S]\r\nKey=1\r\n");
  EXPECT_EQ(machine.ConfigurationValue("s", "KEY", sPath), "1");
  folder.AddFile("TV.INI", "[S]\r\nKey=longer\r\n");
  EXPECT_EQ(machine.ConfigurationValue("S", "Key", sPath), "longer");
  EXPECT_EQ(FaultOf([&] { machine.ConfigurationValue("S", "Key", folder.Path("NO.INI")); }),
            Fault::FileNotFound);
}

TEST(WindowsMachineTest, CallsNothingWithoutTheLibrary) {
  WindowsMachine machine;
  EXPECT_EQ(FaultOf([&] { machine.CallTrackport("LPTAvailable", {}); }), Fault::PlatformCall);
}

}  // namespace
}  // namespace glidetrak
