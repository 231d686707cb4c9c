// Whatever ends the process, the rig's last byte is 0. The rig is a library that writes each call
// down, so that it can be asked when the station is gone.

#include <gtest/gtest.h>

#include <csignal>

#include "RecordedStation.h"

namespace glidetrak {

namespace {

/// The rig was driving, and the one byte behind that is the last.
void ExpectOneZeroAtTheEnd(const RecordedStation& station) {
  const QList<int> aBytes = station.Bytes();
  ASSERT_GE(aBytes.size(), 2);
  EXPECT_EQ(aBytes.last(), 0);
  EXPECT_GT(aBytes[aBytes.size() - 2], 0x10) << "one zero and no second one";
}

class OrderlySignal : public testing::TestWithParam<int> {};
class KillingSignal : public testing::TestWithParam<int> {};
class LibraryMood : public testing::TestWithParam<const char*> {};
class OpenBox : public testing::TestWithParam<const char*> {};
class ProbeRoad : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(OrderlySignal, EndsTheStationInOrder) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.Send(GetParam());
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_TRUE(station.EndedByItself());
  ExpectOneZeroAtTheEnd(station);
  EXPECT_TRUE(station.Read("record").contains("CloseLPT"));
}

INSTANTIATE_TEST_SUITE_P(Ends, OrderlySignal, testing::Values(SIGTERM, SIGHUP, SIGINT, SIGQUIT));

TEST_P(KillingSignal, LeavesZeroAndKillsAllTheSame) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.Send(GetParam());
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_EQ(station.KilledBy(), GetParam());
  ExpectOneZeroAtTheEnd(station);
}

INSTANTIATE_TEST_SUITE_P(Ends, KillingSignal, testing::Values(SIGSEGV, SIGABRT, SIGUSR1, SIGALRM));

TEST_P(LibraryMood, ThatKillsTheStationStillLeavesZero) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  const QByteArray mood = GetParam();
  station.SetMood(mood);
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_EQ(station.KilledBy(), mood == "throw" ? SIGABRT : SIGSEGV);
  ExpectOneZeroAtTheEnd(station);
}

INSTANTIATE_TEST_SUITE_P(Ends, LibraryMood, testing::Values("crash", "stack", "throw"));

TEST(Ends, ALibraryThatHangsInTheLastWriteHoldsADyingStationUpForASecond) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.SetMood("hang");
  EXPECT_FALSE(station.WaitForEnd(700));
  EXPECT_TRUE(station.WaitForEnd(3000));
  EXPECT_EQ(station.KilledBy(), SIGSEGV);
}

TEST(Ends, ABrokenPipeIsNoEnd) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.Send(SIGPIPE);
  EXPECT_FALSE(station.WaitForEnd(500));
}

TEST(Ends, TheDisplaysEndLeavesZero) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.KillDisplay();
  EXPECT_TRUE(station.WaitForEnd());
  ExpectOneZeroAtTheEnd(station);
}

TEST(Ends, ATerminationTogetherWithTheDisplaysEndLeavesZero) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.KillDisplay();
  station.Send(SIGTERM);
  EXPECT_TRUE(station.WaitForEnd());
  ExpectOneZeroAtTheEnd(station);
}

TEST(Ends, AWindowKilledByForceLeavesZero) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.KillWindow();
  EXPECT_TRUE(station.WaitForEnd());
  ExpectOneZeroAtTheEnd(station);
}

/// Each box is led to by keys: what drives is the lever, or the program behind an error's box.
TEST_P(OpenBox, IsNoHindranceToATermination) {
  const QString sTitle = GetParam();
  RecordedStation station;
  ASSERT_TRUE(station.Launch({station.WriteProgram("wrong.gtp", "POWER 9\r\nNONSENSE\r\n")}));
  ASSERT_TRUE(station.CloseStartupBox());
  if (sTitle == "Control Program Error") {
    station.Click(placeProgram);
    station.Click(placeRun);
  } else {
    station.Drag(placeLeverFoot, placeLeverHigh);
    if (sTitle == "Close Software") station.AskToLeave();
    if (sTitle == "Open Program") station.ChooseFileEntry(entryOpen);
  }
  ASSERT_TRUE(station.HasWindow("^" + sTitle + "$"));
  ASSERT_GT(station.LastByte(), 0x10);
  station.Send(SIGTERM);
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_TRUE(station.EndedByItself());
  ExpectOneZeroAtTheEnd(station);
}

INSTANTIATE_TEST_SUITE_P(Ends, OpenBox,
                         testing::Values("Close Software", "Open Program",
                                         "Control Program Error"));

/// Its link check writes the told 0; that it is refused writes nothing more, also not when it is
/// killed in its box.
TEST(Ends, ASecondCopyWritesTheZeroOfItsLinkCheckAndNoMore) {
  for (const bool bKilled : {false, true}) {
    RecordedStation station;
    ASSERT_TRUE(station.Drive());
    QProcess second;
    ASSERT_TRUE(station.StartSecondCopy(second));
    const qint64 lSecond = second.processId();
    ASSERT_TRUE(WaitUntil([&] { return station.Bytes(lSecond).size() == 1; }));
    Wait(700);  // its box is open by now
    if (bKilled) {
      kill(static_cast<pid_t>(lSecond), SIGTERM);
    } else {
      station.Key("F12");
      station.Key("Return");
    }
    EXPECT_TRUE(second.waitForFinished(5000));
    EXPECT_EQ(station.Bytes(lSecond), QList<int>{0});
    EXPECT_TRUE(station.IsRunning());
  }
}

TEST_P(ProbeRoad, LeavesZero) {
  RecordedStation station;
  const QString sRoad = GetParam();
  QProcess probe;
  probe.setProcessEnvironment(station.Environment());
  probe.start(GLIDETRAK_ENDS_FOLDER "/end_probe", {sRoad});
  ASSERT_TRUE(probe.waitForStarted());
  const qint64 lPid = probe.processId();
  ASSERT_TRUE(probe.waitForFinished(5000));
  EXPECT_EQ(station.Bytes(lPid), QList<int>({0, 0x1F, 0}));
  const bool bThrown = sRoad == "throw";
  EXPECT_EQ(probe.exitStatus(), bThrown ? QProcess::CrashExit : QProcess::NormalExit);
  EXPECT_EQ(probe.exitCode(), bThrown ? SIGABRT : sRoad == "exit" ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Ends, ProbeRoad, testing::Values("quit", "exit", "throw"));

}  // namespace glidetrak
