// Lessons 1 to 5: messages, loops, keys and lamps. Nothing moves.

#include "language/Variables.h"
#include "lessons/Languages.h"

namespace glidetrak {

namespace {

class FirstLessons : public LessonTest {
 protected:
  qint16 Variable(char cLetter) const { return iVariables[static_cast<size_t>(cLetter - 64)]; }

  void AnswerAt(qint64 lTime, const char* sKeys) {
    for (; *sKeys != '\0'; ++sKeys, lTime += 1000) KeyAt(lTime, *sKeys);
  }
};

INSTANTIATE_TEST_SUITE_P(Lessons, FirstLessons, BothLanguages(), LanguageName);

TEST_P(FirstLessons, OneShowsTwoMessages) {
  Begin(1);
  Run(7000);
  ExpectMessages({{Say("HELLO, EVERYBODY!", "¡HOLA A TODOS!"), 3000},
                  {Say("WELCOME TO THE TRACK", "BIENVENIDOS A LA VÍA"), 3000}});
  ExpectNoDrive();
}

TEST_P(FirstLessons, TwoCountsToTen) {
  Begin(2);
  Run(10000);
  std::vector<ExpectedMessage> aExpected;
  for (int i = 1; i <= 10; ++i) {
    aExpected.push_back({Say("I COUNT:\n", "VOY CONTANDO:\n") + QString::number(i), 500});
  }
  aExpected.push_back({Say("DONE!", "¡YA ESTÁ!"), 2000});
  ExpectMessages(aExpected);
  EXPECT_EQ(Variable('C'), 11);
  ExpectNoDrive();
}

TEST_P(FirstLessons, ThreeShowsTheSquares) {
  Begin(3);
  Run(20000);
  std::vector<ExpectedMessage> aExpected{
      {Say("SQUARES\nFROM 1 TO 10", "CUADRADOS\nDEL 1 AL 10"), 2000}};
  for (int i = 1; i <= 10; ++i) {
    aExpected.push_back({QString("%1 X %1 = %2").arg(i).arg(i * i), 1500});
  }
  ExpectMessages(aExpected);
  EXPECT_EQ(Variable('N'), 11);
  EXPECT_EQ(Variable('S'), 100);
  ExpectNoDrive();
}

TEST_P(FirstLessons, FourCountsTheRightAnswers) {
  Begin(4);
  AnswerAt(1000, "758");
  Run(3000 + 8000);
  EXPECT_EQ(aBeeps.size(), 3U);
  ASSERT_EQ(aMessages.size(), 5U);
  EXPECT_EQ(aMessages[0].sText, "3 + 4 = ?");
  EXPECT_GE(aMessages[1].lTime, 1000);
  EXPECT_EQ(aMessages[3].sText, Say("RIGHT ANSWERS:\n3", "ACIERTOS:\n3"));
  EXPECT_EQ(aMessages[4].sText, Say("FULL MARKS!", "¡PLENO DE ACIERTOS!"));
  EXPECT_NEAR(LengthOf(aMessages[3].sText), 3000, 150);
  EXPECT_NEAR(LengthOf(aMessages[4].sText), 3000, 150);
  ExpectNoDrive();
}

TEST_P(FirstLessons, FourLeavesAWrongAnswerOut) {
  Begin(4);
  AnswerAt(1000, "748");
  Run(3000 + 8000);
  EXPECT_EQ(aBeeps.size(), 2U);
  ASSERT_EQ(aMessages.size(), 4U);
  EXPECT_EQ(aMessages[3].sText, Say("RIGHT ANSWERS:\n2", "ACIERTOS:\n2"));
}

TEST_P(FirstLessons, FourWaitsForItsKeys) {
  Begin(4);
  RunUntilStopped(20000);
  ExpectMessages({{"3 + 4 = ?", 0}});
}

/// The output byte that stands at that time.
int ByteAt(const std::vector<SeenByte>& aBytes, qint64 lTime) {
  int iByte = 16;
  for (const SeenByte& seen : aBytes) {
    if (seen.lTime <= lTime) iByte = seen.iByte;
  }
  return iByte;
}

TEST_P(FirstLessons, FiveRunsTheTrafficLightThreeTimes) {
  Begin(5);
  Run(24000);
  const ExpectedMessage red{Say("RED: STOP", "ROJO: ALTO"), 3000};
  const ExpectedMessage green{Say("GREEN: GO", "VERDE: ADELANTE"), 3000};
  const ExpectedMessage amber{Say("AMBER: BRAKE", "ÁMBAR: FRENA"), 1000};
  ExpectMessages({red, green, amber, red, green, amber, red, green, amber});
  const int aLamps[] = {48, 144, 80};
  for (size_t i = 0; i < aMessages.size(); ++i) {
    EXPECT_EQ(ByteAt(aBytes, aMessages[i].lTime + 500), aLamps[i % 3]) << i;
  }
  EXPECT_EQ(aBytes.back().iByte, 16);
  ExpectNoDrive();
}

}  // namespace

}  // namespace glidetrak
