// The text box: offsets, line counting, selection and the Change event.

#include "form/TextBox.h"

#include <gtest/gtest.h>

#include "station/Print.h"

namespace glidetrak {
namespace {

using Starts = std::vector<int>;

struct LineRow {
  QString sText;
  Starts aStarts;
};

const LineRow LineRows[] = {
    {"", {0}},
    {"A", {0}},
    {"A\r\n", {0, 3}},
    {"\r\n", {0, 2}},
    {"\r\n\r\n", {0, 2, 4}},
    {"AB\r\nC\r\nDEF", {0, 4, 7}},
    {"A\nB", {0}},
    {"A\rB", {0}},
    {"A\n\rB", {0}},
    {"\n", {0}},
    {"\nA\r\nB", {0, 4}},
    {"\n\r\n", {0, 3}},
    {"A\r\r\nB", {0, 4}},
    {"A\r\n\nB", {0, 3}},
    {QString::fromLatin1("A\0B", 3), {0}},
};

TEST(TextBoxLines, AreEndedByCrLfAlone) {
  for (const LineRow& row : LineRows) {
    TextBox box;
    box.SetText(row.sText);
    EXPECT_EQ(box.LineStarts(), row.aStarts) << row.sText.toStdString();
    EXPECT_EQ(box.LineCount(), static_cast<int>(row.aStarts.size())) << row.sText.toStdString();
  }
}

TEST(TextBoxLines, AreCountedAnewAfterEachKindOfEdit) {
  TextBox box;
  EXPECT_EQ(box.LineCount(), 1);
  box.SetText("A\r\nB");
  EXPECT_EQ(box.LineCount(), 2);
  box.UserEdit(4, 0, "\r\n");
  EXPECT_EQ(box.LineCount(), 3);
  box.Select(1, 2);
  box.ReplaceSelection("");
  EXPECT_EQ(box.LineStarts(), (Starts{0, 4}));
}

struct SelectRow {
  int iStart, iLength;
  int iExpectedStart, iExpectedLength;
  const char* sSelected;
};

const SelectRow SelectRows[] = {
    {0, 0, 0, 0, ""},    {0, 6, 0, 6, "AB\r\nCD"}, {2, 2, 2, 2, "\r\n"}, {4, 2, 4, 2, "CD"},
    {6, 0, 6, 0, ""},    {6, 5, 6, 0, ""},         {4, 99, 4, 2, "CD"},  {7, 1, 6, 0, ""},
    {-1, 2, 0, 2, "AB"}, {-9, -9, 0, 0, ""},       {3, -1, 3, 0, ""},    {99, 99, 6, 0, ""},
};

TEST(TextBoxSelection, IsCutToTheText) {
  TextBox box;
  box.SetText("AB\r\nCD");
  for (const SelectRow& row : SelectRows) {
    box.Select(row.iStart, row.iLength);
    EXPECT_EQ(box.SelStart(), row.iExpectedStart) << row.iStart << ',' << row.iLength;
    EXPECT_EQ(box.SelLength(), row.iExpectedLength) << row.iStart << ',' << row.iLength;
    EXPECT_EQ(box.SelText(), row.sSelected) << row.iStart << ',' << row.iLength;
  }
}

TEST(TextBoxSelection, IsTakenFromTheUserInTheSameWay) {
  TextBox box;
  box.SetText("ABC");
  box.UserSelect(2, 7);
  EXPECT_EQ(box.SelStart(), 2);
  EXPECT_EQ(box.SelLength(), 1);
}

TEST(TextBoxSelection, IsToldToTheViewAsItStands) {
  TextBox box;
  box.SetText("ABC");
  std::vector<std::pair<int, int>> aTold;
  box.SelectionSet = [&](int iStart, int iLength) { aTold.emplace_back(iStart, iLength); };
  box.Select(2, 7);
  box.UserSelect(0, 1);
  EXPECT_EQ(aTold, (std::vector<std::pair<int, int>>{{2, 1}}));
}

TEST(TextBoxSelection, GoesBackToTheStartWithANewText) {
  TextBox box;
  box.SetText("ABC");
  box.Select(1, 2);
  box.SetText("DEFG");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST(TextBoxReplace, PutsABareCaretBehindTheNewText) {
  TextBox box;
  box.SetText("ABCD");
  box.Select(1, 2);
  box.ReplaceSelection("xyz");
  EXPECT_EQ(box.Text(), "AxyzD");
  EXPECT_EQ(box.SelStart(), 4);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST(TextBoxReplace, InsertsAtABareCaret) {
  TextBox box;
  box.SetText("AB");
  box.Select(2, 0);
  box.ReplaceSelection("\r\n");
  EXPECT_EQ(box.Text(), "AB\r\n");
  EXPECT_EQ(box.SelStart(), 4);
}

TEST(TextBoxUserEdit, PutsTheCaretBehindWhatWasTyped) {
  TextBox box;
  box.SetText("ABCD");
  box.UserEdit(1, 2, "xyz");
  EXPECT_EQ(box.Text(), "AxyzD");
  EXPECT_EQ(box.SelStart(), 4);
  EXPECT_EQ(box.SelLength(), 0);
}

/// Counts the two notices of a text box.
struct Notices {
  int iChanges = 0;
  int iTextSets = 0;
  QStringList aReplacements;

  explicit Notices(TextBox& box) {
    box.Change = [this] { ++iChanges; };
    box.TextSet = [this] { ++iTextSets; };
    box.TextReplaced = [this](int iStart, const QString& sText) {
      aReplacements.append(QString("%1 %2").arg(iStart).arg(sText));
    };
  }
};

TEST(TextBoxChange, ComesWithEachNewText) {
  TextBox box;
  Notices notices(box);
  box.SetText("A");
  box.SetText("B");
  EXPECT_EQ(notices.iChanges, 2);
  EXPECT_EQ(notices.iTextSets, 2);
}

TEST(TextBoxChange, DoesNotComeWithAnEqualText) {
  TextBox box;
  box.SetText("A");
  Notices notices(box);
  box.SetText("A");
  EXPECT_EQ(notices.iChanges, 0);
  EXPECT_EQ(notices.iTextSets, 0);
}

TEST(TextBoxChange, DoesNotComeWhenAnEmptyBoxIsEmptied) {
  TextBox box;
  Notices notices(box);
  box.SetText("");
  EXPECT_EQ(notices.iChanges, 0);
}

TEST(TextBoxChange, DoesNotComeWithASelection) {
  TextBox box;
  box.SetText("ABC");
  Notices notices(box);
  box.Select(1, 1);
  box.UserSelect(0, 2);
  EXPECT_EQ(notices.iChanges, 0);
}

TEST(TextBoxChange, FindsTheNewTextInPlace) {
  TextBox box;
  QString sSeen;
  box.Change = [&] { sSeen = box.Text(); };
  box.SetText("NEW");
  EXPECT_EQ(sSeen, "NEW");
}

TEST(TextBoxChange, DoesNotSendTheUsersEditBackToTheView) {
  TextBox box;
  Notices notices(box);
  box.UserEdit(0, 0, "A");
  EXPECT_EQ(notices.iChanges, 1);
  EXPECT_EQ(notices.iTextSets, 0);
}

TEST(TextBoxChange, ComesWithAReplacedSelection) {
  TextBox box;
  box.SetText("ABC");
  box.Select(1, 1);
  Notices notices(box);
  box.ReplaceSelection("xy");
  EXPECT_EQ(notices.iChanges, 1);
  EXPECT_EQ(notices.iTextSets, 0);
  EXPECT_EQ(notices.aReplacements, QStringList{"1 xy"});
}

}  // namespace
}  // namespace glidetrak
