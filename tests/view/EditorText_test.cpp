// Between the station's text and the document: positions both ways, substitutes, differences.

#include "view/EditorText.h"

#include <gtest/gtest.h>

#include "form/TextBox.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

const QString sNul = QString(QChar(0));

struct MapRow {
  QString sText;
  std::vector<int> aPositions;  ///< the document's position of each offset, the end included
};

const MapRow MapRows[] = {
    {"", {0}},
    {"AB", {0, 1, 2}},
    {"\r\n", {0, 0, 1}},
    {"A\r\nB", {0, 1, 1, 2, 3}},
    {"\r\n\r\n", {0, 0, 1, 1, 2}},
    {"A\nB\rC", {0, 1, 2, 3, 4, 5}},
    {"A\r\r\nB", {0, 1, 2, 2, 3, 4}},
    {"A\r\n\nB", {0, 1, 1, 2, 3, 4}},
};

TEST(EditorText, TurnsOffsetsIntoPositions) {
  for (const MapRow& row : MapRows) {
    TextBox box;
    box.SetText(row.sText);
    for (size_t i = 0; i < row.aPositions.size(); ++i) {
      EXPECT_EQ(DocumentPosition(box.LineStarts(), static_cast<int>(i)), row.aPositions[i])
          << row.sText.toStdString() << " at " << i;
    }
  }
}

/// Every position comes back as the first offset that maps to it: the end of a line, not its CR's
/// other side.
TEST(EditorText, TurnsPositionsIntoOffsets) {
  for (const MapRow& row : MapRows) {
    TextBox box;
    box.SetText(row.sText);
    for (int iPosition = 0; iPosition <= row.aPositions.back(); ++iPosition) {
      const auto first = std::ranges::find(row.aPositions, iPosition);
      EXPECT_EQ(StationOffset(box.LineStarts(), iPosition), first - row.aPositions.begin())
          << row.sText.toStdString() << " at " << iPosition;
    }
  }
}

TEST(EditorText, PlainCharactersShowThemselves) {
  for (const QChar c : QStringView(u"Az09 \t~\u00A0\u00A4\u00E9\u00FF\u20AC\u0153\u2022\uFFFD")) {
    EXPECT_EQ(Shown(c), c) << int{c.unicode()};
  }
}

TEST(EditorText, WhatTheDocumentWouldSwallowShowsASubstitute) {
  for (const char16_t c : {0x00, 0x01, 0x08, 0x0A, 0x0B, 0x0C, 0x0D, 0x1F, 0x7F, 0x81, 0x85, 0x9D,
                           0x2028, 0x2029, 0xFDD0, 0xFDD1, 0xFFFC}) {
    const QChar shown = Shown(QChar(c));
    EXPECT_NE(shown, QChar(c)) << int{c};
    EXPECT_EQ(Shown(shown), shown) << int{c};
  }
}

const QString DocumentTexts[] = {
    "",
    "A",
    "A\r\nB\r\n",
    "\r\n\r\n",
    "bare\nlf and bare\rcr",
    "\n\n\r\r",
    "A\r\r\n\nB",
    "tab\there",
    "nul" + sNul + "here" + sNul + sNul,
    QString::fromUtf8("nbsp\u00A0and\u2028separators\u2029here"),
    QString::fromUtf8("caf\u00E9 \u20AC \u0081\u00B6\uFFFD"),
    QString(QChar(0xFDD0)) + QChar(0xFFFC) + QChar(0x0B) + QChar(0x0C) + QChar(0x1A),
};

TEST(EditorText, GoesIntoADocumentAndBack) {
  for (const QString& sText : DocumentTexts) {
    QTextDocument document;
    QTextCursor cursor(&document);
    InsertShown(cursor, sText);
    TextBox box;
    box.SetText(sText);
    const int iLength = document.characterCount() - 1;
    EXPECT_EQ(iLength, sText.size() - box.LineCount() + 1) << sText.toStdString();
    EXPECT_EQ(document.blockCount(), box.LineCount()) << sText.toStdString();
    EXPECT_EQ(StationText(document, 0, iLength), sText);
  }
}

TEST(EditorText, APartComesBackAsThatPart) {
  const QString sText = "AB\r\n\n" + sNul + "C\r\n\rDE";
  QTextDocument document;
  QTextCursor cursor(&document);
  InsertShown(cursor, sText);
  TextBox box;
  box.SetText(sText);
  const int iLength = document.characterCount() - 1;
  for (int iFrom = 0; iFrom <= iLength; ++iFrom) {
    for (int iTo = iFrom; iTo <= iLength; ++iTo) {
      const int iStart = StationOffset(box.LineStarts(), iFrom);
      const int iEnd = StationOffset(box.LineStarts(), iTo);
      EXPECT_EQ(StationText(document, iFrom, iTo), sText.mid(iStart, iEnd - iStart))
          << iFrom << " to " << iTo;
    }
  }
}

struct LineEndRow {
  QString sText;
  QString sResult;
};

const LineEndRow LineEndRows[] = {
    {"", ""},
    {"A", "A"},
    {"A\nB", "A\r\nB"},
    {"A\rB", "A\r\nB"},
    {"A\r\nB", "A\r\nB"},
    {"\n\r", "\r\n\r\n"},
    {"\r\r\n", "\r\n\r\n"},
    {QString::fromUtf8("A\u2029B\u2028C"), "A\r\nB\r\nC"},
    {"A\tB" + sNul, "A\tB" + sNul},
};

TEST(EditorText, TextFromElsewhereGetsTheStationsLineEnds) {
  for (const LineEndRow& row : LineEndRows) EXPECT_EQ(WithLineEnds(row.sText), row.sResult);
}

struct DifferenceRow {
  QString sOld, sNew;
  int iStart, iRemoved;
  QString sInserted;
};

const DifferenceRow DifferenceRows[] = {
    {"", "", 0, 0, ""},         {"ABC", "ABC", 3, 0, ""},  {"", "X", 0, 0, "X"},
    {"ABC", "", 0, 3, ""},      {"ABC", "AXC", 1, 1, "X"}, {"AAA", "AA", 2, 1, ""},
    {"AA", "AAA", 2, 0, "A"},   {"ABAB", "AB", 2, 2, ""},  {"ABCD", "AXYD", 1, 2, "XY"},
    {"ABC", "ABCD", 3, 0, "D"}, {"BC", "ABC", 0, 0, "A"},
};

TEST(EditorText, DifferencesAreTheSmallestEdit) {
  for (const DifferenceRow& row : DifferenceRows) {
    const TextEdit edit = Difference(row.sOld, row.sNew);
    EXPECT_EQ(edit.iStart, row.iStart) << row.sOld.toStdString() << row.sNew.toStdString();
    EXPECT_EQ(edit.iRemoved, row.iRemoved) << row.sOld.toStdString() << row.sNew.toStdString();
    EXPECT_EQ(edit.sInserted, row.sInserted);
    QString sResult = row.sOld;
    EXPECT_EQ(sResult.replace(edit.iStart, edit.iRemoved, edit.sInserted), row.sNew);
  }
}

}  // namespace
}  // namespace glidetrak
