#include "platform/windows/WindowsSettings.h"

#include <gtest/gtest.h>

#include "platform/windows/Api.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

const wchar_t* const sRoot = L"Software\\Glidetrak-settings-test";
const char* const sKey = "Software\\Glidetrak-settings-test\\Position";
const wchar_t* const sWideKey = L"Software\\Glidetrak-settings-test\\Position";

class WindowsSettingsTest : public testing::Test {
 protected:
  WindowsSettingsTest() { Clear(); }
  ~WindowsSettingsTest() override { Clear(); }

  static void Clear() {
    RegDeleteTreeW(HKEY_CURRENT_USER, sRoot);
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, sRoot);
  }

  static void Set(HKEY root, const wchar_t* sName, DWORD lType, const void* pValue, DWORD lBytes) {
    ASSERT_EQ(RegSetKeyValueW(root, sWideKey, sName, lType, pValue, lBytes), ERROR_SUCCESS);
  }

  WindowsSettings m_user{Scope::User};
  WindowsSettings m_machine{Scope::Machine};
};

TEST_F(WindowsSettingsTest, KeepATextInEitherScope) {
  EXPECT_TRUE(m_user.Write(sKey, "Left", "-120"));
  EXPECT_TRUE(m_machine.Write(sKey, "Left", "240"));
  EXPECT_EQ(m_user.Text(sKey, "Left"), "-120");
  EXPECT_EQ(m_machine.Text(sKey, "Left"), "240");
  EXPECT_TRUE(m_user.Write(sKey, "Left", "7"));
  EXPECT_EQ(m_user.Text(sKey, "Left"), "7");
}

TEST_F(WindowsSettingsTest, AreWrittenAsTexts) {
  m_user.Write(sKey, "State", "2");
  DWORD lType = 0;
  ASSERT_EQ(
      RegGetValueW(HKEY_CURRENT_USER, sWideKey, L"State", RRF_RT_ANY, &lType, nullptr, nullptr),
      ERROR_SUCCESS);
  EXPECT_EQ(lType, DWORD{REG_SZ});
}

TEST_F(WindowsSettingsTest, MatchNamesWithoutRegardToCase) {
  m_user.Write(sKey, "Width", "12000");
  EXPECT_EQ(m_user.Text(sKey, "width"), "12000");
}

TEST_F(WindowsSettingsTest, ThatAreMissingAreEmpty) {
  EXPECT_EQ(m_user.Text(sKey, "Left"), "");
  EXPECT_EQ(m_user.Number(sKey, "Left"), std::nullopt);
  m_user.Write(sKey, "Top", "");
  EXPECT_EQ(m_user.Text(sKey, "Top"), "");
}

TEST_F(WindowsSettingsTest, TellANumberOfTheNumberTypeAlone) {
  const DWORD lSpanish = 0x0C0A;
  const qint64 lWide = 1;
  Set(HKEY_LOCAL_MACHINE, L"UILanguage", REG_DWORD, &lSpanish, sizeof lSpanish);
  Set(HKEY_LOCAL_MACHINE, L"Wide", REG_QWORD, &lWide, sizeof lWide);
  Set(HKEY_LOCAL_MACHINE, L"Bytes", REG_BINARY, &lSpanish, sizeof lSpanish);
  m_machine.Write(sKey, "Text", "3082");
  EXPECT_EQ(m_machine.Number(sKey, "UILanguage"), 0x0C0A);
  for (const char* sName : {"Wide", "Bytes", "Text"}) {
    EXPECT_EQ(m_machine.Number(sKey, sName), std::nullopt) << sName;
  }
}

TEST_F(WindowsSettingsTest, TellATextOfTheTextTypesAlone) {
  const DWORD lNumber = 12;
  Set(HKEY_CURRENT_USER, L"Left", REG_DWORD, &lNumber, sizeof lNumber);
  Set(HKEY_CURRENT_USER, L"Top", REG_BINARY, &lNumber, sizeof lNumber);
  Set(HKEY_CURRENT_USER, L"Width", REG_EXPAND_SZ, L"%PATH%", sizeof L"%PATH%");
  EXPECT_EQ(m_user.Text(sKey, "Left"), "");
  EXPECT_EQ(m_user.Text(sKey, "Top"), "");
  EXPECT_EQ(m_user.Text(sKey, "Width"), "%PATH%");
}

TEST_F(WindowsSettingsTest, EndATextThatWasStoredWithoutAnEnd) {
  Set(HKEY_CURRENT_USER, L"Left", REG_SZ, L"123", 3 * sizeof(wchar_t));
  EXPECT_EQ(m_user.Text(sKey, "Left"), "123");
}

TEST_F(WindowsSettingsTest, CountAsWrittenOnlyWhenTheStoreTookThem) {
  EXPECT_FALSE(m_user.Write(QString(300, u'x'), "Left", "1"));
}

}  // namespace
}  // namespace glidetrak
