// The catalogue's rows.

#include "authoring/CatalogueTexts.h"
#include "authoring/PickerTest.h"

namespace glidetrak {

namespace {

constexpr int iEntries = 22;

TEST_F(PickerTest, ListHoldsTheTwentyTwoNamesInTheirOrder) {
  const QStringList aNames = lstProgCommands.List;
  ASSERT_EQ(aNames.size(), iEntries);
  for (int i = 0; i < iEntries; ++i) {
    EXPECT_EQ(aNames[i], aCatalogue[i].sName + QString(aCatalogue[i].bTakesArgument ? " " : ""));
  }
}

TEST_F(PickerTest, NameTableStandsBesideTheList) {
  for (size_t i = 0; i < iEntries; ++i) {
    EXPECT_EQ(CommandNameTable.at(i).sName, lstProgCommands.List.value()[static_cast<int>(i)]);
    EXPECT_EQ(CommandNameTable.at(i).bIsSensor, aCatalogue[i].bIsSensor) << aCatalogue[i].sName;
  }
  EXPECT_EQ(CommandNameTable.at(iEntries).sName, "");
}

TEST_F(PickerTest, HelpTableStandsOneBehind) {
  ASSERT_EQ(CommandHelpTable.size(), size_t{iEntries} + 1);
  EXPECT_EQ(CommandHelpTable[0].sFormat, "");
  for (size_t i = 0; i < iEntries; ++i) {
    const CommandHelp& help = CommandHelpTable[i + 1];
    EXPECT_EQ(help.sFormat, aCatalogue[i].sFormat);
    EXPECT_EQ(help.sDescription, aCatalogue[i].sDescription);
    EXPECT_EQ(help.sExample, aCatalogue[i].sExample);
  }
}

TEST_F(PickerTest, HelpPanesShowTheEntrysTextsWithTheExampleTrimmed) {
  for (qint16 i = 0; i < iEntries; ++i) {
    lstProgCommands.ListIndex = i;
    ShowCommandHelp(i);
    EXPECT_EQ(lblHELPFormat.Caption.value(), aCatalogue[i].sFormat);
    EXPECT_EQ(lblCompDesc.Caption.value(), aCatalogue[i].sDescription);
    EXPECT_EQ(txtHELPExample.Text(), QString(aCatalogue[i].sExample).trimmed());
    EXPECT_TRUE(lblHELPExampleTitle.Visible);
    EXPECT_TRUE(txtHELPExample.Visible);
  }
}

TEST_F(PickerTest, HelpOfNoEntryEmptiesTheDescriptionAlone) {
  lstProgCommands.ListIndex = 3;
  ShowCommandHelp(3);
  EXPECT_EQ(lblCompDesc.Caption.value(), aCatalogue[3].sDescription);
  ShowCommandHelp(-1);
  EXPECT_EQ(lblCompDesc.Caption.value(), "");
  EXPECT_EQ(lblHELPFormat.Caption.value(), aCatalogue[3].sFormat);
  EXPECT_EQ(txtHELPExample.Text(), aCatalogue[3].sExample);
}

TEST_F(PickerTest, HelpWithoutAnExampleHidesThePane) {
  AddCatalogueEntry("NEW", "what", "how", "   ", false);
  lstProgCommands.ListIndex = iEntries;
  ShowCommandHelp(iEntries);
  EXPECT_FALSE(lblHELPExampleTitle.Visible);
  EXPECT_FALSE(txtHELPExample.Visible);
  EXPECT_EQ(lblHELPFormat.Caption.value(), "how");
  lstProgCommands.ListIndex = 0;
  ShowCommandHelp(0);
  EXPECT_TRUE(txtHELPExample.Visible);
}

TEST_F(PickerTest, BuildingAgainGivesTheSameCatalogue) {
  BuildCommandCatalogue();
  EXPECT_EQ(lstProgCommands.List.value().size(), iEntries);
  EXPECT_EQ(CommandHelpTable.size(), size_t{iEntries} + 1);
}

struct TextRow {
  QString sSeen;
  const char* sWanted;
};

TEST_F(PickerTest, PanelHasItsTexts) {
  const char* const sClose =
      "Click here to close the Command selection window without making a selection.";
  const TextRow rows[] = {
      {CommandSelTitle.Caption, "Command Selection"},
      {lblCommandSelListTitle.Caption, "Commands"},
      {lstProgCommands.ToolTipText, "The list of available Program commands."},
      {btnSelectComSel.Caption, "Select"},
      {btnSelectComSel.ToolTipText, "Select the Command to be added to your program"},
      {btnCloseComSel.Caption, "Close"},
      {btnCloseComSel.ToolTipText, sClose},
      {imgAddCmdClose.ToolTipText, sClose},
      {lblHELPFormatTitle.Caption, "Format: "},
      {lblHELPFormat.ToolTipText, "The format of the command selected in the list above."},
      {lblHELPDescTitle.Caption, "Description: "},
      {lblCompDesc.ToolTipText, "The description of the command selected in the list above."},
      {lblHELPExampleTitle.Caption, "Example: "},
      {txtHELPExample.ToolTipText,
       "An example of how the command selected in the list above would be used."},
      {cmdProgCommands.Caption, "Commands..."},
      {MNUCommands.Caption, "Commands..."},
  };
  for (const TextRow& row : rows) EXPECT_EQ(row.sSeen, row.sWanted);
}

}  // namespace

}  // namespace glidetrak
