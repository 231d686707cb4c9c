// The two scopes of the settings, the configuration's keys, the documents folder.

#include "common/Settings.h"

#include "shell/StartUpTest.h"

namespace glidetrak {

namespace {

TEST_F(StartUpTest, ReadingAsksTheUserFirstAndDropsTheDefault) {
  const struct {
    const char *sUser, *sMachine, *sResult;
  } rows[] = {{"5", "7", "5"}, {"", "7", "7"}, {"  ", "7", "7"}, {"5", "", "5"}, {"", "", ""}};
  for (const auto& row : rows) {
    Store(Scope::User, "Left", row.sUser);
    Store(Scope::Machine, "Left", row.sMachine);
    EXPECT_EQ(GetRegistrySetting("Position", "left", "99"), row.sResult);
  }
}

TEST_F(StartUpTest, ReadingThatFailsIsEmpty) {
  Store(Scope::User, "Left", "5");
  platform.aFailing = {"ReadSetting"};
  EXPECT_EQ(GetRegistrySetting("Position", "Left", "99"), "");
}

TEST_F(StartUpTest, WritingAsksTheMachineFirst) {
  const struct {
    bool bUser, bMachine, bResult;
    const char *sUser, *sMachine;
  } rows[] = {{true, true, true, "", "5"},
              {false, true, true, "", "5"},
              {true, false, true, "5", ""},
              {false, false, false, "", ""}};
  const QString sKey = "SOFTWARE\\TORVANE\\GLIDETRAK\\POSITION\\LEFT";
  for (const auto& row : rows) {
    for (auto& settings : platform.aSettings) settings.clear();
    platform.bScopeWritable[static_cast<int>(Scope::User)] = row.bUser;
    platform.bScopeWritable[static_cast<int>(Scope::Machine)] = row.bMachine;
    EXPECT_EQ(SaveRegistrySetting("Position", "Left", "5"), row.bResult);
    EXPECT_EQ(platform.aSettings[static_cast<int>(Scope::User)].value(sKey), row.sUser);
    EXPECT_EQ(platform.aSettings[static_cast<int>(Scope::Machine)].value(sKey), row.sMachine);
  }
}

TEST_F(StartUpTest, WritingThatFailsOnBothIsFalseAndSilent) {
  platform.aFailing = {"WriteSetting"};
  EXPECT_FALSE(SaveRegistrySetting("Position", "Left", "5"));
  EXPECT_EQ(platform.aWritten, (std::vector<QString>{"M Left=5", "U Left=5"}));
}

TEST_F(StartUpTest, UsersOldValueStillWinsOverAFreshMachineValue) {
  Store(Scope::User, "Left", "5");
  SaveRegistrySetting("Position", "Left", "7");
  EXPECT_EQ(GetRegistrySetting("Position", "Left", ""), "5");
}

TEST_F(StartUpTest, ConfigurationValueIsCutAt511Characters) {
  const struct {
    int iLength, iResult;
  } rows[] = {{0, 0}, {1, 1}, {510, 510}, {511, 511}, {512, 511}, {5000, 511}};
  for (const auto& row : rows) {
    platform.AddFile("\\C.INI", "[S]\r\nK=" + QByteArray(row.iLength, 'x') + "\r\n");
    EXPECT_EQ(GetIniString("S", "K", "default", "\\C.INI"), QString(row.iResult, u'x'));
  }
}

TEST_F(StartUpTest, ConfigurationKeyThatIsMissingTakesItsDefault) {
  platform.AddFile("\\C.INI", "[S]\r\nK=value\r\n");
  EXPECT_EQ(GetIniString("S", "K", "default", "\\C.INI"), "value");
  EXPECT_EQ(GetIniString("s", "k", "default", "\\c.ini"), "value");
  EXPECT_EQ(GetIniString("S", "L", "default", "\\C.INI"), "default");
  EXPECT_EQ(GetIniString("T", "K", "default", "\\C.INI"), "default");
  EXPECT_EQ(GetIniString("S", "K", "default", "\\NOTHING.INI"), "default");
}

TEST_F(StartUpTest, ConfigurationThatCannotBeReadYieldsTheDefaults) {
  platform.AddFile("\\C.INI", "[S]\r\nK=value\r\n");
  platform.aUnreadable = {"\\C.INI"};
  EXPECT_EQ(GetIniString("S", "K", "default", "\\C.INI"), "default");
}

TEST_F(StartUpTest, DocumentsFolderEndsInABackslash) {
  const struct {
    std::optional<QString> sFolder;
    const char* sResult;
  } rows[] = {{"\\DOCS", "\\DOCS\\"},
              {"\\DOCS\\", "\\DOCS\\"},
              {QString("\\DOCS") + QChar(u'\0') + "REST", "\\DOCS\\"},
              {"", "\\"},
              {std::nullopt, "\\"}};
  for (const auto& row : rows) {
    platform.sDocuments = row.sFolder;
    EXPECT_EQ(GetDocumentsFolder(), row.sResult);
  }
}

}  // namespace

}  // namespace glidetrak
