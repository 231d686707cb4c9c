// Values of an INI file.

#include "platform/ConfigurationText.h"

#include <gtest/gtest.h>

#include "station/Print.h"

namespace glidetrak {
namespace {

const QByteArray Text =
    "Outside=0\r\n"
    "[MiscSettings]\r\n"
    "HW_EXAMPLES=12\r\n"
    "  SWFILE  =  glidetrak.swf  \r\n"
    "Quoted=\"a b \"\r\n"
    "Single='x'\r\n"
    "HalfQuoted=\"a b\r\n"
    "Equals=a=b\r\n"
    "Empty=\r\n"
    "Twice=first\r\n"
    "Twice=second\r\n"
    "NoValue\r\n"
    "[ Other ]\r\n"
    "HW_EXAMPLES=1\r\n"
    "Only=2\r\n"
    "[MiscSettings]\r\n"
    "Late=3";

struct ValueRow {
  const char* sSection;
  const char* sKey;
  const char* sValue;
};

const ValueRow ValueRows[] = {
    {"MiscSettings", "HW_EXAMPLES", "12"},
    {"MISCSETTINGS", "hw_examples", "12"},
    {"MiscSettings", "SWFILE", "glidetrak.swf"},
    {"MiscSettings", "Quoted", "a b "},
    {"MiscSettings", "Single", "x"},
    {"MiscSettings", "HalfQuoted", "\"a b"},
    {"MiscSettings", "Equals", "a=b"},
    {"MiscSettings", "Empty", ""},
    {"MiscSettings", "Twice", "first"},
    {"Other", "Only", "2"},
    {"Other", "HW_EXAMPLES", "1"},
};

TEST(ConfigurationText, GivesTheFirstValueOfItsKeyInItsSection) {
  for (const ValueRow& row : ValueRows) {
    const auto value = FindConfigurationString(Text, row.sSection, row.sKey);
    ASSERT_TRUE(value.has_value()) << row.sKey;
    EXPECT_EQ(*value, row.sValue) << row.sKey;
  }
}

const ValueRow MissingRows[] = {
    {"MiscSettings", "Outside", ""}, {"", "Outside", ""},          {"MiscSettings", "NoValue", ""},
    {"MiscSettings", "Only", ""},    {"MiscSettings", "Late", ""}, {"Nowhere", "HW_EXAMPLES", ""},
    {"MiscSettings", "HW", ""},
};

TEST(ConfigurationText, GivesNothingForAKeyThatIsNotThere) {
  for (const ValueRow& row : MissingRows) {
    EXPECT_FALSE(FindConfigurationString(Text, row.sSection, row.sKey).has_value()) << row.sKey;
  }
  EXPECT_FALSE(FindConfigurationString("", "A", "B").has_value());
}

TEST(ConfigurationText, ReadsEveryKindOfLineEnd) {
  for (const char* sLineEnd : {"\r\n", "\n", "\r"}) {
    const QByteArray text = QByteArray("[A]") + sLineEnd + "B=1" + sLineEnd + "C=2";
    EXPECT_EQ(FindConfigurationString(text, "A", "B"), QByteArray("1"));
    EXPECT_EQ(FindConfigurationString(text, "A", "C"), QByteArray("2"));
  }
}

TEST(ConfigurationText, KeepsEachByteOfAValue) {
  EXPECT_EQ(FindConfigurationString("[A]\nB=\xF1\x80\x81", "A", "B"), QByteArray("\xF1\x80\x81"));
}

}  // namespace
}  // namespace glidetrak
