// INI files as text, however they are built.

#include "platform/ConfigurationText.h"

#include <gtest/gtest.h>

#include <optional>

#include "station/Print.h"

namespace glidetrak {

namespace {

struct TextRow {
  const char* sText;
  const char* sValue;  ///< of key K in section S; null for none
};

void Expect(const TextRow& row) {
  std::optional<QByteArray> wanted;
  if (row.sValue != nullptr) wanted = row.sValue;
  EXPECT_EQ(ConfigurationText(row.sText).Value("S", "K"), wanted) << row.sText;
}

TEST(ConfigurationText, KeyIsFoundInItsSection) {
  const TextRow rows[] = {
      {"[S]\r\nK=v\r\n", "v"},
      {"[S]\nK=v\n", "v"},
      {"[S]\rK=v\r", "v"},
      {"[S]\r\nK=v", "v"},
      {"[T]\r\nK=w\r\n[S]\r\nK=v", "v"},
      {"[s]\r\nk=v\r\n", "v"},
      {"[S]\r\nK=v\r\nK=w\r\n", "v"},
      {"\r\n\r\n[S]\r\n\r\nK=v", "v"},
      {"[S]\r\nkk=w\r\nK=v", "v"},
      {"[S]\r\nK=a=b", "a=b"},
      {"[S]\r\n;K=w\r\nK=v", "v"},
      {"[S]\r\nK\r\nK=v", "v"},
      {"  [S]\r\nK=v", "v"},
      {"[ S ]\r\nK=v", "v"},
      {"[S] rest\r\nK=v", "v"},
  };
  for (const TextRow& row : rows) Expect(row);
}

TEST(ConfigurationText, BlanksAndOnePairOfQuotesGo) {
  const TextRow rows[] = {
      {"[S]\r\n  K  =  v  \r\n", "v"},
      {"[S]\r\n\tK\t=\tv\t\r\n", "v"},
      {"[S]\r\nK=a b", "a b"},
      {"[S]\r\nK=\"v\"", "v"},
      {"[S]\r\nK='v'", "v"},
      {"[S]\r\nK=\" v \"", " v "},
      {"[S]\r\nK=\"\"v\"\"", "\"v\""},
      {"[S]\r\nK=\"v", "\"v"},
      {"[S]\r\nK='v\"", "'v\""},
      {"[S]\r\nK=\"\"", ""},
      {"[S]\r\nK=\"", "\""},
      {"[S]\r\nK=", ""},
      {"[S]\r\nK=   ", ""},
  };
  for (const TextRow& row : rows) Expect(row);
}

TEST(ConfigurationText, KeyElsewhereIsNone) {
  const TextRow rows[] = {
      {"", nullptr},
      {"K=v\r\n", nullptr},
      {"[T]\r\nK=v\r\n", nullptr},
      {"K=v\r\n[S]\r\n", nullptr},
      {"[S]\r\n[T]\r\nK=v\r\n", nullptr},
      {"[S]\r\nL=v\r\n", nullptr},
      {"[S]\r\nK\r\n", nullptr},
      {"[S]\r\n=v\r\n", nullptr},
      {"[S2]\r\nK=v\r\n", nullptr},
      {"S\r\nK=v\r\n", nullptr},
  };
  for (const TextRow& row : rows) Expect(row);
}

TEST(ConfigurationText, MarkAheadOfTheTextIsNoPartOfIt) {
  const TextRow rows[] = {
      {"\xEF\xBB\xBF[S]\r\nK=v\r\n", "v"},
      {"\xEF\xBB\xBF\r\n[S]\r\nK=v\r\n", "v"},
      {"\xEF\xBB\xBF", nullptr},
      {"\xEF\xBB[S]\r\nK=v\r\n", nullptr},
      {"[S]\r\n\xEF\xBB\xBFK=v\r\n", nullptr},
  };
  for (const TextRow& row : rows) Expect(row);
}

TEST(ConfigurationText, ZeroBytesAreBytesLikeOthers) {
  QByteArray text = "#junk#\r\n[S]\r\n###\r\nK=v#w\r\n";
  text.replace('#', '\0');
  EXPECT_EQ(ConfigurationText(text).Value("S", "K"), QByteArray("v\0w", 3));
}

TEST(ConfigurationText, LongLinesAreTakenWhole) {
  const QByteArray value(60000, 'x');
  EXPECT_EQ(ConfigurationText("[S]\r\nK=" + value + "\r\n").Value("S", "K"), value);
  EXPECT_EQ(ConfigurationText(value + "\r\n[S]\r\nK=v\r\n").Value("S", "K"), "v");
}

TEST(ConfigurationText, TenMegabytesAreReadToTheirEnd) {
  QByteArray text;
  while (text.size() < 10'000'000) text += "[Other section]\r\nK=not this one\r\n; a comment\r\n";
  EXPECT_EQ(ConfigurationText(text).Value("S", "K"), std::nullopt);
  EXPECT_EQ(ConfigurationText(text + "[S]\r\nK=v").Value("S", "K"), "v");
}

TEST(ConfigurationText, ValueKeepsTheBytesOfTheCodePage) {
  EXPECT_EQ(ConfigurationText("[S]\r\nK=\xA1HOLA\x80!\r\n").Value("S", "K"), "\xA1HOLA\x80!");
}

}  // namespace

}  // namespace glidetrak
