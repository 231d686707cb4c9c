// The settings store in its two scopes, in folders of the test's own.

#include "platform/linux/LinuxSettings.h"

#include <gtest/gtest.h>

#include "platform/TemporaryFolder.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

const char* const sPosition = "Software\\Torvane\\Glidetrak\\Position";
const char* const sTorvane = "Software\\Torvane";

class Settings : public ::testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_CONFIG_HOME", folder.Native("user").toLocal8Bit());
    qputenv("XDG_CONFIG_DIRS", folder.Native("machine").toLocal8Bit());
  }

  void StoreUser(const QByteArray& bytes) { folder.AddFile("user/Torvane/Glidetrak.conf", bytes); }

  TemporaryFolder folder;
};

TEST_F(Settings, KeepWhatIsWrittenScopeByScope) {
  EXPECT_TRUE(LinuxSettings(Scope::User).Write(sPosition, "Left", "120"));
  EXPECT_TRUE(LinuxSettings(Scope::Machine).Write(sPosition, "Left", "-15"));
  EXPECT_EQ(LinuxSettings(Scope::User).Text(sPosition, "Left"), "120");
  EXPECT_EQ(LinuxSettings(Scope::Machine).Text(sPosition, "Left"), "-15");
}

TEST_F(Settings, StandInOneFileAScope) {
  LinuxSettings(Scope::User).Write(sPosition, "Left", "120");
  LinuxSettings(Scope::Machine).Write(sPosition, "Top", "30");
  EXPECT_TRUE(QFile::exists(folder.Native("user/Torvane/Glidetrak.conf")));
  EXPECT_TRUE(QFile::exists(folder.Native("machine/Torvane/Glidetrak.conf")));
}

TEST_F(Settings, DoNotReachFromOneScopeIntoTheOther) {
  LinuxSettings(Scope::Machine).Write(sPosition, "Left", "-15");
  EXPECT_EQ(LinuxSettings(Scope::User).Text(sPosition, "Left"), "");
}

TEST_F(Settings, MatchNamesWithoutRegardToCase) {
  LinuxSettings(Scope::User).Write(sPosition, "Left", "120");
  LinuxSettings(Scope::User).Write(sPosition, "LEFT", "130");
  EXPECT_EQ(LinuxSettings(Scope::User).Text(sPosition, "left"), "130");
}

TEST_F(Settings, AreEmptyWhereNothingIsStored) {
  EXPECT_EQ(LinuxSettings(Scope::User).Text(sPosition, "Left"), "");
  EXPECT_EQ(LinuxSettings(Scope::User).Number(sTorvane, "UILanguage"), std::nullopt);
}

TEST_F(Settings, KeepTextsWithCommasAndBlanks) {
  for (const char* sText : {"a,b", "a, b ,c", " 7 ", "1,5", "=;#", "Ñandú"}) {
    LinuxSettings(Scope::User).Write(sPosition, "Left", sText);
    EXPECT_EQ(LinuxSettings(Scope::User).Text(sPosition, "Left"), sText);
  }
}

struct NumberRow {
  const char* sStored;
  std::optional<qint32> lNumber;
};

const NumberRow NumberRows[] = {
    {"dword:00000c0a", 3082},
    {"dword:0000040A", 1034},
    {"DWORD:00000c0a", 3082},
    {"dword:0", 0},
    {"dword:ffffffff", -1},
    {"3082", std::nullopt},
    {"0x0c0a", std::nullopt},
    {"dword:", std::nullopt},
    {"dword:zz", std::nullopt},
    {"", std::nullopt},
    {"dword:100000000", std::nullopt},
};

TEST_F(Settings, AreNumbersOnlyWhereTheyAreMarkedSo) {
  QByteArray file = "[Torvane]\n";
  for (size_t i = 0; i < std::size(NumberRows); ++i) {
    file += 'N' + QByteArray::number(i) + '=' + NumberRows[i].sStored + '\n';
  }
  StoreUser(file);
  for (size_t i = 0; i < std::size(NumberRows); ++i) {
    EXPECT_EQ(LinuxSettings(Scope::User).Number(sTorvane, QString("N%1").arg(i)),
              NumberRows[i].lNumber)
        << NumberRows[i].sStored;
  }
}

TEST_F(Settings, TellWhenAWriteDidNotReachTheStore) {
  folder.AddFile("machine");  // a file where the folder should be
  EXPECT_FALSE(LinuxSettings(Scope::Machine).Write(sPosition, "Left", "120"));
}

}  // namespace
}  // namespace glidetrak
