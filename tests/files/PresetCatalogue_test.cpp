// What start-up reads of the pre-sets.

#include "files/PresetTest.h"

namespace glidetrak {

namespace {

struct CountRow : NamedRow {
  const char* sConfiguration;
  size_t iPresets;
};

class Count : public PresetTest, public ::testing::WithParamInterface<CountRow> {};

TEST_P(Count, IsThatOfTheConfiguration) {
  AddConfiguration(GetParam().sConfiguration);
  AddExample("EXAMPLE1.GTP", "ONE");
  station.Start();
  EXPECT_EQ(Presets.size(), GetParam().iPresets + 1);
  EXPECT_EQ(cmbExamples.List.value().size(), GetParam().iPresets > 0 ? 1 : 0);
  EXPECT_EQ(txtProgram.Text(), GetParam().iPresets > 0 ? "ONE" : "");
  EXPECT_TRUE(platform.aBoxes.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Presets, Count,
    ::testing::Values(CountRow{"KeyAbsent", "[MiscSettings]\r\nSWFILE=x\r\n", 0},
                      CountRow{"SectionAbsent", "[Other]\r\nHW_EXAMPLES=2\r\n", 0},
                      CountRow{"FileEmpty", "", 0},
                      CountRow{"Zero", "[MiscSettings]\r\nHW_EXAMPLES=0\r\n", 0},
                      CountRow{"Negative", "[MiscSettings]\r\nHW_EXAMPLES=-1\r\n", 0},
                      CountRow{"BeyondSixteenBits", "[MiscSettings]\r\nHW_EXAMPLES=70000\r\n", 0},
                      CountRow{"NoNumber", "[MiscSettings]\r\nHW_EXAMPLES=x\r\n", 0},
                      CountRow{"NoText", "[MiscSettings]\r\nHW_EXAMPLES=\r\n", 0},
                      CountRow{"One", "[MiscSettings]\r\nHW_EXAMPLES=1\r\n", 1},
                      CountRow{"MoreThanFiles", "[MiscSettings]\r\nHW_EXAMPLES=12\r\n", 12},
                      CountRow{"OtherCase", "[miscsettings]\r\nhw_examples = 2\r\n", 2}),
    RowName());

TEST_F(PresetTest, NoConfigurationGivesAnEmptyListAndAnEmptyEditor) {
  AddExample("EXAMPLE1.GTP", "ONE");
  station.Start();
  EXPECT_EQ(cmbExamples.List.value(), QStringList());
  EXPECT_EQ(cmbExamples.ListIndex, -1);
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_TRUE(platform.aBoxes.empty());
}

TEST_F(PresetTest, RecordHoldsWhatItsSectionSays) {
  AddConfiguration(
      "[MiscSettings]\r\nHW_EXAMPLES=1\r\n"
      "[HW_PRESET1]\r\nFILENAME=TRIP.ANY\r\nTITLE=First trip\r\nHELP=Goes there.\r\n");
  AddExample("TRIP.ANY", "FORWARD");
  station.Start();
  const PresetRecord& preset = Presets.at(1);
  EXPECT_EQ(preset.sFileName, "TRIP.ANY");
  EXPECT_EQ(preset.sTitle, "First trip");
  EXPECT_EQ(preset.sHelp, "Goes there.");
  EXPECT_EQ(preset.sProgramText, "FORWARD");
  EXPECT_EQ(Presets.at(0).sTitle, "");
}

TEST_F(PresetTest, MissingSectionTakesTheDefaults) {
  AddConfiguration("[MiscSettings]\r\nHW_EXAMPLES=3\r\n[HW_PRESET1]\r\nTITLE=First\r\n");
  station.Start();
  EXPECT_EQ(Presets.at(1).sTitle, "First");
  EXPECT_EQ(Presets.at(1).sFileName, "EXAMPLE1.GTP");
  EXPECT_EQ(Presets.at(2).sTitle, "EXAMPLE2");
  EXPECT_EQ(Presets.at(2).sFileName, "EXAMPLE2.GTP");
  EXPECT_EQ(Presets.at(2).sHelp, "EXAMPLE2");
}

TEST_F(PresetTest, SectionNumbersHaveNoLeadingZeros) {
  AddConfiguration("[MiscSettings]\r\nHW_EXAMPLES=10\r\n[HW_PRESET10]\r\nTITLE=Ten\r\n");
  station.Start();
  EXPECT_EQ(Presets.at(10).sTitle, "Ten");
}

TEST_F(PresetTest, ListKeepsTheOrderOfTheNumbersAndTakesTheFirst) {
  AddThree();
  AddConfiguration(
      "[MiscSettings]\r\nHW_EXAMPLES=3\r\n[HW_PRESET1]\r\nTITLE=Z\r\n[HW_PRESET3]\r\nTITLE=A\r\n");
  station.Start();
  EXPECT_EQ(cmbExamples.List.value(), QStringList({"Z", "EXAMPLE2", "A"}));
  EXPECT_EQ(cmbExamples.ItemData, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(cmbExamples.ListIndex, 0);
}

TEST_F(PresetTest, MissingFileIsLeftOutOfTheList) {
  AddThree();
  platform.DeleteFile("\\STATION\\Examples\\EXAMPLE2.GTP");
  station.Start();
  EXPECT_EQ(cmbExamples.List.value(), QStringList({"EXAMPLE1", "EXAMPLE3"}));
  EXPECT_EQ(cmbExamples.ItemData, (std::vector<int>{1, 3}));
  EXPECT_EQ(Presets.at(2).sProgramText, "");
}

struct BlankRow : NamedRow {
  QByteArray text;
  bool bListed;
};

class BlankFile : public PresetTest, public ::testing::WithParamInterface<BlankRow> {};

TEST_P(BlankFile, IsLeftOutWhenItHoldsBlanksAlone) {
  AddThree();
  AddExample("EXAMPLE2.GTP", GetParam().text);
  station.Start();
  EXPECT_EQ(cmbExamples.List.value().contains("EXAMPLE2"), GetParam().bListed);
}

INSTANTIATE_TEST_SUITE_P(Presets, BlankFile,
                         ::testing::Values(BlankRow{"NoBytes", "", false},
                                           BlankRow{"Blanks", "   ", false},
                                           BlankRow{"BlanksAndLineEnd", "  \r\n ", true},
                                           BlankRow{"LineEndAlone", "\r\n", true},
                                           BlankRow{"Tab", "\t", true},
                                           BlankRow{"NoBreakSpace", "\xA0", true}),
                         RowName());

TEST_F(PresetTest, UnreadableFileIsAnEmptyTextWithoutAMessage) {
  AddThree();
  platform.aUnreadable = {"\\STATION\\EXAMPLES\\EXAMPLE1.GTP"};
  station.Start();
  EXPECT_EQ(Presets.at(1).sProgramText, "");
  EXPECT_EQ(cmbExamples.List.value(), QStringList({"EXAMPLE2", "EXAMPLE3"}));
  EXPECT_TRUE(platform.aBoxes.empty());
}

TEST_F(PresetTest, TextIsReadInTheCodePage) {
  AddThree();
  AddExample("EXAMPLE1.GTP", "\xA1HOLA! \x80\r\n");
  station.Start();
  EXPECT_EQ(Presets.at(1).sProgramText, u"\u00A1HOLA! \u20AC\r\n"_qs);
}

TEST_F(PresetTest, FilesAreReadBesideTheLanguagesConfiguration) {
  AddThree();
  platform.AddFile("\\STATION\\Language\\0C0A\\TV_GLIDETRAK.INI",
                   "[MiscSettings]\r\nHW_EXAMPLES=1\r\n");
  platform.AddFile("\\STATION\\Language\\0C0A\\Examples\\EXAMPLE1.GTP", "UNO");
  station.Start(RigLink::None, "/LC=0C0A");
  EXPECT_EQ(Presets.size(), 2U);
  EXPECT_EQ(txtProgram.Text(), "UNO");
}

TEST_F(PresetTest, FileThatChangesAfterStartUpIsNotSeen) {
  AddThree();
  station.Start();
  AddExample("EXAMPLE2.GTP", "CHANGED");
  Choose(1);
  EXPECT_EQ(txtProgram.Text(), "TWO");
}

}  // namespace

}  // namespace glidetrak
