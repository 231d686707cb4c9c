// The two tables of the numbered string store.

#include "strings/ResourceStrings.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <vector>

#include "common/UnicodeFunctions.h"
#include "station/Print.h"
#include "strings/TextPairs.h"

namespace glidetrak {
namespace {

/// Beyond every id of the store.
constexpr int iLastTried = 1000;

std::vector<int> IdsOf(int iLanguage) {
  std::vector<int> aIds;
  for (int i = -1; i <= iLastTried; ++i) {
    if (!LoadTextFor(i, iLanguage).isEmpty()) aIds.push_back(i);
  }
  return aIds;
}

TEST(StringStore, HoldsEveryRowInBothLanguagesAndNoOther) {
  std::vector<int> aExpected;
  for (const TextPair& row : TextPairs) {
    aExpected.push_back(row.iId);
    EXPECT_EQ(LoadTextFor(row.iId, iEnglish), row.sEnglish) << row.iId;
    EXPECT_EQ(LoadTextFor(row.iId, iSpanish), row.sSpanish) << row.iId;
  }
  EXPECT_EQ(aExpected.size(), 212U);
  EXPECT_EQ(IdsOf(iEnglish), aExpected);
  EXPECT_EQ(IdsOf(iSpanish), aExpected);
}

QString LeadingBlanks(const QString& sText) {
  return sText.left(sText.indexOf(TrimBlanks(sText)));
}

QString TrailingBlanks(const QString& sText) {
  return sText.mid(LeadingBlanks(sText).size() + TrimBlanks(sText).size());
}

/// The three titles of the debug text, padded so that the values behind them stand in one column.
bool IsPaddedTitle(int iId) {
  return iId >= 54 && iId <= 56;
}

TEST(StringStore, KeepsBlanksAtBothEndsInBothLanguages) {
  for (const int iId : IdsOf(iEnglish)) {
    if (IsPaddedTitle(iId)) continue;
    const QString sEnglish = LoadTextFor(iId, iEnglish);
    const QString sSpanish = LoadTextFor(iId, iSpanish);
    EXPECT_EQ(LeadingBlanks(sSpanish), LeadingBlanks(sEnglish)) << iId;
    EXPECT_EQ(TrailingBlanks(sSpanish), TrailingBlanks(sEnglish)) << iId;
  }
}

TEST(StringStore, PadsTheDebugTitlesToOneWidth) {
  for (const int iLanguage : {iEnglish, iSpanish}) {
    for (const int iId : {54, 55, 56}) EXPECT_EQ(LoadTextFor(iId, iLanguage).size(), 10) << iId;
  }
}

/// How often the pattern stands in the text of that id.
qsizetype Count(int iId, int iLanguage, const QString& sPattern) {
  return LoadTextFor(iId, iLanguage).count(QRegularExpression(sPattern));
}

/// Double quotes, an access key, placeholders, and single quotes that enclose or join something
/// (not the apostrophe inside a word).
const char* const Marks[] = {"\"", "&", "\\[[^\\]]+\\]", "<[^>]+>", "(?<!\\w)'|'(?!\\w)"};

TEST(StringStore, KeepsQuotesAndPlaceholdersInBothLanguages) {
  for (const int iId : IdsOf(iEnglish)) {
    for (const char* sMark : Marks) {
      EXPECT_EQ(Count(iId, iSpanish, sMark), Count(iId, iEnglish, sMark)) << iId << ' ' << sMark;
    }
  }
}

TEST(StringStore, StaysWithinTheCodePage) {
  for (const int iId : IdsOf(iSpanish)) {
    const QString sText = LoadTextFor(iId, iSpanish);
    EXPECT_EQ(FromCodePage(ToCodePage(sText)), sText) << iId;
  }
}

TEST(StringStore, HasNoDefaultRowForAnyOtherId) {
  for (const int iId : {-32768, -1, 0, 5, 263, 424, 854, 32767}) {
    EXPECT_EQ(LoadTextFor(iId, iEnglish), "") << iId;
    EXPECT_EQ(LoadDefaultText(iId), "") << iId;
  }
}

TEST(StringStore, HasNoTextInAnyOtherLanguage) {
  for (const int iLanguage : {0, 1031, 1036, 1049, 1087, 2057, 2070, 1034, -1}) {
    EXPECT_EQ(LoadTextFor(80, iLanguage), "") << iLanguage;
  }
}

TEST(StringStore, GivesADefaultRowInTheFirstLanguageThatHasOne) {
  EXPECT_EQ(LoadDefaultText(80), "Glidetrak Control");
}

}  // namespace
}  // namespace glidetrak
