// The panel's keys, its mouse moves and its buttons' pictures.

#include "authoring/CatalogueTexts.h"
#include "authoring/PickerTest.h"

namespace glidetrak {

namespace {

class PickerEvents : public PickerTest {
 protected:
  void SetUp() override {
    PickerTest::SetUp();
    ShowCommandPicker();
  }

  /// Puts the mark on an entry whose help is not shown yet.
  void MoveMark(int iEntry) {
    lstProgCommands.ListIndex = 0;
    ShowCommandHelp(0);
    lstProgCommands.ListIndex = iEntry;
  }

  bool ShowsHelpOf(int iEntry) const {
    return lblHELPFormat.Caption.value() == aCatalogue[iEntry].sFormat;
  }

  void MakeHot() {
    btnSelectComSel.Picture = PictureId::DiagBtnWF;
    btnCloseComSel.Picture = PictureId::DiagBtnWF;
  }

  void ExpectPictures(PictureId select, PictureId close) {
    EXPECT_EQ(btnSelectComSel.Picture.value(), select);
    EXPECT_EQ(btnCloseComSel.Picture.value(), close);
  }
};

TEST_F(PickerEvents, HelpFollowsTheMark) {
  int iKey = 40;
  const std::function<void()> aEvents[] = {
      [&] { lstProgCommands.KeyPress(iKey); },
      [&] { lstProgCommands.KeyUp(iKey); },
      [] { lstProgCommands.MouseDown(mouseLeft, 1, 1); },
      [] { lstProgCommands.MouseMove(0, 1, 1); },
      [] { pnlCommandSel.MouseMove(0, 1, 1); },
      [&] { txtHELPExample.KeyUp(iKey); },
      [] { txtHELPExample.MouseUp(mouseLeft, 1, 1); },
  };
  int iEvent = 0;
  for (const auto& event : aEvents) {
    MoveMark(5);
    ASSERT_FALSE(ShowsHelpOf(5));
    event();
    EXPECT_TRUE(ShowsHelpOf(5)) << "event " << iEvent++;
    EXPECT_EQ(iKey, 40);
  }
}

TEST_F(PickerEvents, HelpOfNoMarkIsAnEmptyDescription) {
  lstProgCommands.ListIndex = -1;
  lstProgCommands.MouseMove(0, 1, 1);
  EXPECT_EQ(lblCompDesc.Caption.value(), "");
}

TEST_F(PickerEvents, ButtonUnderTheMouseIsHot) {
  btnSelectComSel.MouseMove(0, 1, 1);
  ExpectPictures(PictureId::DiagBtnWF, PictureId::DiagBtn);
  btnCloseComSel.MouseMove(0, 1, 1);
  ExpectPictures(PictureId::DiagBtn, PictureId::DiagBtnWF);
}

TEST_F(PickerEvents, ButtonsArePlainEverywhereElseOnThePanel) {
  for (const Control* pControl : std::initializer_list<const Control*>{
           &lstProgCommands, &pnlCommandSel, &fraHelp, &imgAddCmdClose, &lblCommandSelListTitle,
           &lblCompDesc, &lblHELPDescTitle, &lblHELPExampleTitle, &lblHELPFormat,
           &lblHELPFormatTitle, &txtHELPExample}) {
    MakeHot();
    pControl->MouseMove(0, 1, 1);
    ExpectPictures(PictureId::DiagBtn, PictureId::DiagBtn);
  }
}

TEST_F(PickerEvents, ClickOnTheTitleMakesTheButtonsPlain) {
  MakeHot();
  CommandSelTitle.Click();
  ExpectPictures(PictureId::DiagBtn, PictureId::DiagBtn);
}

TEST_F(PickerEvents, ExampleSwallowsEveryKeyThatWouldChangeIt) {
  for (int iCode = 0; iCode < 256; ++iCode) {
    const bool bSwallowed = iCode == 8 || iCode == 9 || iCode == 27 || iCode > 31;
    int iDown = iCode, iPress = iCode;
    txtHELPExample.KeyDown(iDown);
    txtHELPExample.KeyPress(iPress);
    EXPECT_EQ(iDown, bSwallowed ? 0 : iCode);
    EXPECT_EQ(iPress, bSwallowed ? 0 : iCode);
  }
}

TEST_F(PickerEvents, ExampleThatChangesAllTheSameIsPutBack) {
  lstProgCommands.ListIndex = 5;
  ShowCommandHelp(5);
  const QString sExample = txtHELPExample.Text();
  txtHELPExample.UserEdit(0, 3, "pasted");
  EXPECT_EQ(txtHELPExample.Text(), sExample);
}

}  // namespace

}  // namespace glidetrak
