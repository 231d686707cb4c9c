// The keys of a running program.

#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

class Keys : public LanguageTest {
 protected:
  void SetUp() override {
    LanguageTest::SetUp();
    bProgramRunning = true;
  }

  /// What is left of the key after the event.
  static int Send(const KeyEvent& event, int iKey) {
    event(iKey);
    return iKey;
  }
};

const Control* const Sources[] = {&frmGlidetrak, &txtProgram, &txtFocusGrab};

struct CaptureRow {
  int iKey;
  QString sKeyPressed;
};

const CaptureRow CodeRows[] = {
    {48, "0"}, {53, "5"},  {57, "9"},  {65, "A"},  {90, "Z"},
    {97, "A"}, {105, "I"}, {112, "P"}, {122, "Z"},
};

TEST_F(Keys, AreCaughtByTheirCodesAndSwallowedWhereverTheFocusLies) {
  for (const Control* pSource : Sources) {
    for (const CaptureRow& row : CodeRows) {
      sKeyPressed.clear();
      EXPECT_EQ(Send(pSource->KeyDown, row.iKey), 0) << row.iKey;
      EXPECT_EQ(sKeyPressed, row.sKeyPressed) << row.iKey;
    }
  }
  EXPECT_TRUE(bProgramRunning);
}

TEST_F(Keys, OfAnyOtherCodeAreSwallowedAndIgnored) {
  for (const Control* pSource : Sources) {
    for (const int iKey : {8, 9, 13, 16, 27, 33, 46, 47, 58, 64, 91, 96, 123, 186, 222, 300}) {
      sKeyPressed = "old";
      EXPECT_EQ(Send(pSource->KeyDown, iKey), 0) << iKey;
      EXPECT_EQ(sKeyPressed, "old") << iKey;
    }
  }
  EXPECT_TRUE(bProgramRunning);
}

const CaptureRow CharacterRows[] = {
    {'a', "A"}, {'A', "A"},   {'7', "7"}, {'!', "!"}, {'"', "\""}, {'[', "["},
    {13, "\r"}, {27, "\x1B"}, {233, "É"}, {255, "Ÿ"}, {128, "€"},
};

TEST_F(Keys, ThatReachTheFormAreCaughtByTheirCharacters) {
  for (const CaptureRow& row : CharacterRows) {
    sKeyPressed.clear();
    EXPECT_EQ(Send(frmGlidetrak.KeyPress, row.iKey), 0) << row.iKey;
    EXPECT_EQ(sKeyPressed, row.sKeyPressed) << row.iKey;
  }
}

TEST_F(Keys, ThatReachATextBoxKeepTheirCharacters) {
  for (const Control* pSource : {Sources[1], Sources[2]}) {
    for (const CaptureRow& row : CharacterRows) {
      sKeyPressed = "old";
      EXPECT_EQ(Send(pSource->KeyPress, row.iKey), row.iKey);
      EXPECT_EQ(sKeyPressed, "old");
    }
  }
}

TEST_F(Keys, StopTheProgramWithSpaceInEachEvent) {
  for (const Control* pSource : Sources) {
    for (const KeyEvent* pEvent : {&pSource->KeyDown, &pSource->KeyPress}) {
      bProgramRunning = true;
      sKeyPressed = "old";
      EXPECT_EQ(Send(*pEvent, 32), 0);
      EXPECT_FALSE(bProgramRunning);
      EXPECT_EQ(sKeyPressed, "old");
    }
  }
}

TEST_F(Keys, SwallowTheReleaseOfSpaceAlone) {
  for (const Control* pSource : Sources) {
    EXPECT_EQ(Send(pSource->KeyUp, 32), 0);
    for (const int iKey : {13, 48, 65, 97}) EXPECT_EQ(Send(pSource->KeyUp, iKey), iKey);
  }
  EXPECT_TRUE(bProgramRunning);
}

TEST_F(Keys, PassUntouchedWhileNoProgramRuns) {
  bProgramRunning = false;
  sKeyPressed = "old";
  for (const Control* pSource : Sources) {
    for (const KeyEvent* pEvent : {&pSource->KeyDown, &pSource->KeyPress, &pSource->KeyUp}) {
      for (const int iKey : {8, 32, 48, 65, 97, 122, 255}) EXPECT_EQ(Send(*pEvent, iKey), iKey);
    }
  }
  EXPECT_EQ(sKeyPressed, "old");
}

}  // namespace
}  // namespace glidetrak
