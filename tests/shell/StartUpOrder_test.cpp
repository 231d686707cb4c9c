// The order of start-up as the forms and the rig show it, and steps that fail.

#include "shell/StartUpTest.h"

namespace glidetrak {

namespace {

using Names = std::vector<std::string>;

/// Notes the first change of each thing that it watches.
class Onlooker {
 public:
  template <class Value>
  void Watch(const std::string& sName, QProperty<Value>& property) {
    m_aNotifiers.push_back(property.addNotifier([this, sName] { Note(sName); }));
  }
  void Note(const std::string& sName) {
    if (std::find(aNames.begin(), aNames.end(), sName) == aNames.end()) aNames.push_back(sName);
  }

  Names aNames;

 private:
  std::vector<QPropertyNotifier> m_aNotifiers;
};

TEST_F(StartUpTest, GoesInItsOrder) {
  platform.rig.AttachParallel();
  platform.AddFile("\\STATION\\TV_GLIDETRAK.INI", "[MiscSettings]\r\nHW_EXAMPLES=1\r\n");
  platform.AddFile("\\STATION\\Examples\\EXAMPLE1.GTP", "HALT");
  Onlooker onlooker;
  onlooker.Watch("hand cursor", frmGlidetrak.MouseIcon);
  onlooker.Watch("pre-sets", cmbExamples.List);
  onlooker.Watch("link", lblHWState.Caption);
  onlooker.Watch("hourglass", screen.MousePointer);
  onlooker.Watch("captions", MNURUN.Caption);
  onlooker.Watch("catalogue", lstProgCommands.List);
  onlooker.Watch("placement", frmGlidetrak.Height);
  onlooker.Watch("program box", lblExamples.Visible);
  lblExamples.Visible = false;
  onlooker.aNames.clear();
  onlooker.Watch("tick interval", tmrSystem.Interval);
  onlooker.Watch("window", frmGlidetrak.Visible);
  onlooker.Watch("start-up box", frmAbout.Visible);
  platform.rig.OnWrite = [&](qint32 lByte) { onlooker.Note(lByte == 16 ? "forward" : "adapter"); };
  txtProgram.TextSet = [&] { onlooker.Note("program"); };
  Start();
  EXPECT_EQ(onlooker.aNames, (Names{"hand cursor", "pre-sets", "adapter", "link", "hourglass",
                                    "captions", "catalogue", "forward", "placement", "program",
                                    "program box", "tick interval", "window", "start-up box"}));
}

TEST_F(StartUpTest, AsksForThePlacementInItsOrderTheUserAheadOfTheMachine) {
  Start();
  EXPECT_EQ(platform.aRead,
            (std::vector<QString>{"U Height", "M Height", "U width", "M width", "U left", "M left",
                                  "U Top", "M Top", "U State", "M State"}));
}

TEST_F(StartUpTest, SixControlsAndTheFormWearTheHand) {
  Start();
  for (const Control* pControl :
       std::initializer_list<Control*>{&frmGlidetrak, &imgLever, &picTogTimer, &picTogImpact,
                                       &btnEmergency, &btnRstStop, &btnTmrReset}) {
    EXPECT_EQ(pControl->MouseIcon.value(), PictureId::HandCursor);
  }
}

TEST_F(StartUpTest, WritesTheDirectionToTheRigByItself) {
  platform.rig.AttachParallel();
  Start();
  std::vector<qint32> aBytes;
  for (const WrittenByte& written : platform.rig.aWritten) aBytes.push_back(written.lByte);
  ASSERT_GE(aBytes.size(), 2U);
  EXPECT_EQ(aBytes.front(), 0);  // the opened adapter's
  EXPECT_EQ(aBytes[1], 16);
  EXPECT_EQ(aBytes.back(), 16);
}

class FailingStep : public StartUpTest, public ::testing::WithParamInterface<NamedRow> {};

TEST_P(FailingStep, IsPassedOver) {
  platform.aFailing = {GetParam().sName};
  platform.sDocuments.reset();
  Start("/DEBUGMODE");
  EXPECT_TRUE(frmGlidetrak.Visible);
  EXPECT_TRUE(frmAbout.Visible);
  EXPECT_TRUE(tmrSystem.Enabled);
  EXPECT_EQ(tmrSystem.Interval, 25);
  EXPECT_TRUE(bDebugMode);
  EXPECT_FALSE(bLoading);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_EQ(MNURUN.Caption.value().isEmpty(), false);
  EXPECT_TRUE(platform.aBoxes.empty());
}

INSTANTIATE_TEST_SUITE_P(StartUp, FailingStep,
                         ::testing::Values(NamedRow{"ExecutableFolder"},
                                           NamedRow{"SetCurrentFolder"},
                                           NamedRow{"TakeSingleInstance"},
                                           NamedRow{"NearestMonitor"}, NamedRow{"HidDevices"},
                                           NamedRow{"ReadSetting"}),
                         RowName());

}  // namespace

}  // namespace glidetrak
