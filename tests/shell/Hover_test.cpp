// The hover pictures of the five program buttons, and who asks for them.

#include "shell/Hover.h"

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "shell/Events.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {

namespace {

struct ButtonRow {
  const char* sToken;
  ImageButton* pButton;
  PictureId rest, hot;
};

const ButtonRow aButtons[] = {
    {"CMD", &cmdProgCommands, PictureId::DefBtn, PictureId::DiagBtnWF},
    {"NEXT", &cmdSingleStep, PictureId::DefBtn, PictureId::DiagBtnWF},
    {"RUN", &cmdRunProgram, PictureId::DefBtnGo, PictureId::DiagBtnWF},
    {"STOP", &btnStopProg, PictureId::DefBtnStop, PictureId::DefBtnStopWF},
    {"SHOWEX", &cmdShowExamples, PictureId::DefBtn, PictureId::DiagBtnWF},
};

class HoverTest : public ::testing::Test {
 protected:
  void SetUp() override { WireEvents(); }

  void ExpectHot(const QString& sToken) {
    for (const ButtonRow& row : aButtons) {
      EXPECT_EQ(row.pButton->Picture.value(), sToken == row.sToken ? row.hot : row.rest)
          << row.sToken;
    }
  }

  VirtualPlatform platform;
};

TEST_F(HoverTest, TokenMakesItsOwnButtonHot) {
  for (const ButtonRow& row : aButtons) {
    SetHoverState(row.sToken);
    ExpectHot(row.sToken);
  }
}

TEST_F(HoverTest, CaseOfATokenDoesNotMatter) {
  for (const ButtonRow& row : aButtons) {
    SetHoverState(QString(row.sToken).toLower());
    ExpectHot(row.sToken);
  }
}

TEST_F(HoverTest, AnyOtherTokenPutsAllAtRest) {
  for (const char* sToken : {"", "OTHER", "RUN ", "RU"}) {
    SetHoverState("RUN");
    SetHoverState(sToken);
    ExpectHot("");
  }
}

struct CallerRow {
  const Control* pControl;
  const char* sToken;
  bool bWhileRunning;  ///< asks for its token while a program runs, too
};

const CallerRow aCallers[] = {
    {&btnStopProg, "STOP", true},        {&cmdProgCommands, "CMD", false},
    {&cmdSingleStep, "NEXT", false},     {&cmdRunProgram, "RUN", false},
    {&cmdShowExamples, "SHOWEX", false}, {&pnlProgramBox, "", true},
    {&imgProgBoxBack, "", false},        {&txtProgram, "", false},
};

/// Each caller is tried ahead of every picture that may be shown, its own and none among them.
TEST_F(HoverTest, MouseMovesAskForTheirTokens) {
  for (const CallerRow& row : aCallers) {
    for (const char* sBefore : {"", "CMD", "NEXT", "RUN", "STOP", "SHOWEX"}) {
      for (const bool bRunning : {false, true}) {
        SetHoverState(sBefore);
        bProgramRunning = bRunning;
        row.pControl->MouseMove(0, 1, 1);
        SCOPED_TRACE(testing::Message() << row.sToken << " after " << sBefore << ' ' << bRunning);
        ExpectHot(bRunning && !row.bWhileRunning ? sBefore : row.sToken);
      }
    }
  }
}

}  // namespace

}  // namespace glidetrak
