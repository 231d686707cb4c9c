// The settings store: a file a scope, in folders of the test's own.

#include "platform/linux/LinuxSettings.h"

#include <sys/stat.h>
#include <unistd.h>

#include <optional>

#include "platform/NativeFolder.h"

namespace glidetrak {

namespace {

const QString sPosition = "Software\\Torvane\\Glidetrak\\Position";
const QString sTorvane = "Software\\Torvane";

class LinuxSettingsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_CONFIG_HOME", user.Path().toUtf8());
    qputenv("XDG_CONFIG_DIRS", machine.Path().toUtf8());
  }

  static QString Read(Scope scope, const QString& sName) {
    return LinuxSettings(scope).Text(sPosition, sName);
  }
  static bool Write(Scope scope, const QString& sName, const QString& sValue) {
    return LinuxSettings(scope).Write(sPosition, sName, sValue);
  }
  void Store(const NativeFolder& folder, const QByteArray& text) {
    folder.AddFile("Torvane/Glidetrak.conf", text);
  }

  NativeFolder user, machine;
};

TEST_F(LinuxSettingsTest, MissingFileKeyOrNameIsEmpty) {
  EXPECT_EQ(Read(Scope::User, "Left"), "");
  Store(user, "[Position]\nTop=1\n[Other]\nLeft=2\n");
  EXPECT_EQ(Read(Scope::User, "Left"), "");
}

TEST_F(LinuxSettingsTest, ScopesAreTwoFiles) {
  EXPECT_TRUE(Write(Scope::User, "Left", "300"));
  EXPECT_TRUE(Write(Scope::Machine, "Left", "-450"));
  EXPECT_EQ(Read(Scope::User, "Left"), "300");
  EXPECT_EQ(Read(Scope::Machine, "Left"), "-450");
  EXPECT_TRUE(user.Bytes("Torvane/Glidetrak.conf").contains("[Position]\nLeft=300\n"));
  EXPECT_TRUE(machine.Bytes("Torvane/Glidetrak.conf").contains("Left=-450"));
}

/// Desktops put folders of the user's own ahead of the machine's.
TEST_F(LinuxSettingsTest, MachinesFolderIsTheLastOfItsList) {
  const NativeFolder desktop;
  qputenv("XDG_CONFIG_DIRS", (desktop.Path() + ':' + machine.Path()).toUtf8());
  Store(desktop, "[Position]\nLeft=1\n");
  Store(machine, "[Position]\nLeft=2\n");
  EXPECT_EQ(Read(Scope::Machine, "Left"), "2");
}

TEST_F(LinuxSettingsTest, MachinesFolderIsTheUsualOneWhereverTheListNamesIt) {
  const struct {
    const char* sFolders;
    const char* sFile;
  } rows[] = {
      {"/etc/xdg", "/etc/xdg/Torvane/Glidetrak.conf"},
      {"/etc/xdg:/opt/a/etc/xdg", "/etc/xdg/Torvane/Glidetrak.conf"},
      {"/opt/a/etc/xdg:/etc/xdg/:/opt/b", "/etc/xdg/Torvane/Glidetrak.conf"},
      {"/opt/a:/opt/b", "/opt/b/Torvane/Glidetrak.conf"},
      {"", "/etc/xdg/Torvane/Glidetrak.conf"},
  };
  for (const auto& row : rows) {
    qputenv("XDG_CONFIG_DIRS", row.sFolders);
    EXPECT_EQ(SettingsFile(Scope::Machine), row.sFile) << row.sFolders;
  }
}

TEST_F(LinuxSettingsTest, UsersFolderIsNeverTheMachines) {
  qputenv("XDG_CONFIG_HOME", "/etc/xdg");
  EXPECT_EQ(SettingsFile(Scope::Machine), machine.Path("Torvane/Glidetrak.conf"));
}

TEST_F(LinuxSettingsTest, PipeInPlaceOfTheFileHoldsNothingUp) {
  QDir(user.Path()).mkdir("Torvane");
  ASSERT_EQ(mkfifo(qPrintable(user.Path("Torvane/Glidetrak.conf")), 0600), 0);
  alarm(10);  // ends a process that waits for the other end
  EXPECT_EQ(Read(Scope::User, "Left"), "");
  EXPECT_FALSE(Write(Scope::User, "Left", "300"));
  EXPECT_EQ(LinuxSettings(Scope::User).Number(sTorvane, "UILanguage"), std::nullopt);
  alarm(0);
}

TEST_F(LinuxSettingsTest, ScopesDoNotFallBackOnEachOther) {
  Write(Scope::Machine, "Left", "300");
  EXPECT_EQ(Read(Scope::User, "Left"), "");
  Write(Scope::User, "Top", "300");
  EXPECT_EQ(Read(Scope::Machine, "Top"), "");
}

TEST_F(LinuxSettingsTest, NamesMatchWithoutRegardToCase) {
  Write(Scope::User, "Left", "300");
  for (const char* sName : {"left", "LEFT", "Left"}) EXPECT_EQ(Read(Scope::User, sName), "300");
}

TEST_F(LinuxSettingsTest, WriteInAnotherCaseReplacesTheValue) {
  Write(Scope::User, "Left", "300");
  Write(Scope::User, "left", "450");
  EXPECT_EQ(Read(Scope::User, "LEFT"), "450");
  EXPECT_EQ(user.Bytes("Torvane/Glidetrak.conf").toLower().count("left="), 1);
}

TEST_F(LinuxSettingsTest, AnyTextComesBackAsItWas) {
  for (const QString& sText : {QString("1,5"), QString("a, b,c"), QString(","), QString("a;b"),
                               QString(" 300 "), QString("\"x\""), QString("a\\b"), QString("%41"),
                               QString("@x"), u"\u00F1\u20AC"_qs, QString("")}) {
    EXPECT_TRUE(Write(Scope::User, "Left", sText));
    EXPECT_EQ(Read(Scope::User, "Left"), sText);
  }
}

TEST_F(LinuxSettingsTest, TextWithCommasWrittenByHandIsOneText) {
  Store(user, "[Position]\nLeft=1,5\nTop=\"1,5\"\n");
  EXPECT_EQ(Read(Scope::User, "Left"), "1,5");
  EXPECT_EQ(Read(Scope::User, "Top"), "1,5");
}

struct NumberRow {
  const char* sText;
  std::optional<qint32> number;
};

TEST_F(LinuxSettingsTest, NumberIsADwordAndNothingElse) {
  const NumberRow rows[] = {
      {"dword:0000040a", 0x40A},
      {"dword:00000C0A", 0xC0A},
      {"DWORD:0000040A", 0x40A},
      {"dword:00000000", 0},
      {"dword:ffffffff", -1},
      {"dword:409", 0x409},
      {"1034", std::nullopt},
      {"", std::nullopt},
      {"dword:", std::nullopt},
      {"dword:xyz", std::nullopt},
      {"dword:1ffffffff", std::nullopt},
      {"0x40A", std::nullopt},
  };
  QByteArray text = "[Torvane]\n";
  int iName = 0;
  for (const NumberRow& row : rows) {
    text += "Value" + QByteArray::number(iName++) + "=" + row.sText + "\n";
  }
  Store(user, text);
  iName = 0;
  for (const NumberRow& row : rows) {
    const QString sName = "value" + QString::number(iName++);
    EXPECT_EQ(LinuxSettings(Scope::User).Number(sTorvane, sName), row.number) << row.sText;
  }
}

TEST_F(LinuxSettingsTest, MissingNumberIsNone) {
  EXPECT_EQ(LinuxSettings(Scope::Machine).Number(sTorvane, "UILanguage"), std::nullopt);
}

TEST_F(LinuxSettingsTest, WriteThatDoesNotReachTheStoreIsFalse) {
  qputenv("XDG_CONFIG_DIRS", "/dev/null/nowhere");
  EXPECT_FALSE(Write(Scope::Machine, "Left", "300"));
  EXPECT_EQ(Read(Scope::Machine, "Left"), "");
  EXPECT_TRUE(Write(Scope::User, "Left", "300"));
}

TEST_F(LinuxSettingsTest, FileThatIsNoSettingsFileIsEmpty) {
  Store(user, QByteArray("\1\2[[[===\n\n]]\nLeft"));
  EXPECT_EQ(Read(Scope::User, "Left"), "");
}

}  // namespace

}  // namespace glidetrak
