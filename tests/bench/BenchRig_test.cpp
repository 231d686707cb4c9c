// The program bench-rig as a person at the bench meets it.

#include <algorithm>

#include "BenchRigFixture.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {
namespace {

TEST_F(BenchRig, ShowsTheState) {
  const Program rig = Serve();
  const ProgramResult result = Run("state");
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText,
            "position 100 mm\nspeed 0 mm/s\npower 0\ndirection backward\ninputs LIGHT_SENSOR\n"
            "analog 0\nplugged yes\nattached yes\n");
}

TEST_F(BenchRig, ActsSilently) {
  ServedRig rig(Place());
  const ProgramResult result = Run("press START_BUTTON 60000");
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText, "");
  EXPECT_EQ(rig.Sensors(), 0x09);
}

TEST_F(BenchRig, SaysThatNoRigAnswers) {
  const ProgramResult result = Run("state");
  EXPECT_EQ(result.iExitCode, 1);
  EXPECT_EQ(result.sText, "bench-rig: no rig answers at " + Place() + "\n");
}

TEST_F(BenchRig, ShowsItsUsage) {
  for (const char* sArguments : {"", "fly", "press", "place 5000", "hid now", "serve it"}) {
    const ProgramResult result = Run(sArguments);
    EXPECT_EQ(result.iExitCode, 2) << sArguments;
    EXPECT_EQ(result.sText.rfind("usage: bench-rig COMMAND\n", 0), 0u) << sArguments;
  }
}

TEST_F(BenchRig, GivesWayToARigThatIsServed) {
  const ServedRig rig(Place());
  const ProgramResult result = Run("serve");
  EXPECT_EQ(result.iExitCode, 1);
  EXPECT_EQ(result.sText, Refusal());
}

TEST_F(BenchRig, SaysWhereItServesAndEndsInOrderWhenItIsAsked) {
  Program rig = Serve();
  rig.AskToEnd();
  ASSERT_TRUE(WaitFor([&] { return rig.HasEnded(); }));
  const ProgramResult result = rig.Finish();
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText, "serving a rig at " + Place() + "\n");
  EXPECT_FALSE(WireConnection().Connect(Place()));
}

/// The program is bench-rig itself, which a rig answers.
TEST_F(BenchRig, IsARigAsLongAsAProgramOfItsFolderRuns) {
  const ProgramResult result = Run("run " BENCH_RIG_NAME " place 300");
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText, "serving a rig at " + Place() + "\n");
  EXPECT_FALSE(WireConnection().Connect(Place()));
  EXPECT_EQ(Run("run " BENCH_RIG_NAME " fly").iExitCode, 2) << "the program's own exit code";
  EXPECT_EQ(Run("run no-such-program").iExitCode, 1);
}

TEST_F(BenchRig, LeavesARigThatWasServedBeforeToTheProgramAndTheNext) {
  ServedRig rig(Place());
  EXPECT_EQ(Run("run " BENCH_RIG_NAME " press START_BUTTON 60000").sText, "");
  EXPECT_EQ(rig.Sensors(), 0x09);
}

TEST_F(BenchRig, StartersAtOnceEndAsOneRigAndOneMessageEach) {
  std::vector<Program> aRigs;
  for (int i = 0; i < 8; ++i) aRigs.push_back(Start("serve"));
  const auto Ended = [](const Program& rig) { return rig.HasEnded(); };
  ASSERT_TRUE(WaitFor([&] { return std::count_if(aRigs.begin(), aRigs.end(), Ended) == 7; }));
  for (Program& rig : aRigs) {
    const bool bServes = !rig.HasEnded();
    if (bServes) {
      EXPECT_TRUE(WaitFor([&] { return WireConnection().Connect(Place()); }));
      rig.AskToEnd();
    }
    const ProgramResult result = rig.Finish();
    EXPECT_EQ(result.iExitCode, bServes ? 0 : 1);
    EXPECT_EQ(result.sText, bServes ? "serving a rig at " + Place() + "\n" : Refusal());
  }
}

TEST_F(BenchRig, AKilledRigLeavesItsPlaceToTheNext) {
  { const Program killed = Serve(); }
  const Program next = Serve();
  EXPECT_EQ(Run("place 300").iExitCode, 0);
}

/// A station that drove a rig notices only later that there is none any more.
TEST_F(BenchRig, AClientOfAKilledRigKeepsNobodyFromServing) {
  RigClient client;
  {
    const Program killed = Serve();
    ASSERT_EQ(client.StartAgain(RigAct::AskAdapter), 1);
  }
  Program next = Start("serve");
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_EQ(client.Exchange(RigAct::ReadInputs), std::nullopt);
  EXPECT_TRUE(WaitFor([&] { return client.StartAgain(RigAct::AskAdapter) == 1; }));
}

/// Long enough for the tenth command to hang where connecting has no limit.
TEST_F(BenchRig, AStoppedRigIsToldByEveryCommandAndGoesOnWhenItIsContinued) {
  const Program rig = Serve();
  rig.Stop();
  std::vector<Program> aCommands;
  for (int i = 0; i < 30; ++i) aCommands.push_back(Start("state"));
  for (Program& command : aCommands) {
    const ProgramResult result = command.Finish();
    EXPECT_EQ(result.iExitCode, 1);
    EXPECT_EQ(result.sText.rfind("bench-rig: ", 0), 0u) << result.sText;
  }
  const ProgramResult second = Run("serve");
  EXPECT_EQ(second.sText, Refusal()) << "it is stopped, and there";
  rig.GoOn();
  EXPECT_TRUE(WaitFor([&] { return Run("place 300").iExitCode == 0; }));
}

TEST_F(BenchRig, TheVehicleMovesOnWhileItsRigIsStopped) {
  const Program rig = Serve();
  RigClient client;
  ASSERT_EQ(client.Exchange(RigAct::WriteByte, 0x1F), 0);
  rig.Stop();
  std::this_thread::sleep_for(std::chrono::milliseconds(1500));
  rig.GoOn();
  int iPosition = 0;
  ASSERT_EQ(std::sscanf(AskRig(Place(), "state").c_str(), "position %d", &iPosition), 1);
  EXPECT_GT(iPosition, 400) << "1.5 s of full power";
}

TEST_F(BenchRig, AByteThatOnlyTheWireHeldIsNeverCarriedOutBehindALaterOne) {
  const Program rig = Serve();
  RigClient client;
  ASSERT_EQ(client.StartAgain(RigAct::AskAdapter), 1);
  rig.Stop();
  EXPECT_EQ(client.Exchange(RigAct::WriteByte, 0x1F), std::nullopt);
  rig.GoOn();
  ASSERT_TRUE(WaitFor([&] { return client.StartAgain(RigAct::AskAdapter) == 1; }));
  ASSERT_EQ(client.Exchange(RigAct::WriteByte, 0), 0);
  const std::string sLog = AskRig(Place(), "log");
  EXPECT_NE(sLog.find(" 0x1F power 15 forward\n2: "), std::string::npos) << sLog;
  EXPECT_NE(sLog.find(" 0x00 power 0 backward\n"), std::string::npos) << sLog;
}

}  // namespace
}  // namespace glidetrak::bench
