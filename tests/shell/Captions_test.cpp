// Every caption and tool tip of the main window, in both languages.

#include "shell/Captions.h"

#include <gtest/gtest.h>

#include "shell/CaptionTexts.h"
#include "station/Station.h"

namespace glidetrak {
namespace {

class Captions : public ::testing::Test {
 protected:
  /// What the captions hold before they are loaded: something else than any text of the store.
  static void Smear() {
    for (const CaptionText& row : CaptionTexts) {
      *const_cast<QProperty<QString>*>(row.pProperty) = "?";
    }
  }

  void LoadIn(int iLanguage) {
    SetUILanguage(static_cast<qint16>(iLanguage));
    Smear();
    LoadCaptions();
  }

  VirtualPlatform platform;
};

TEST_F(Captions, AreEnglish) {
  LoadIn(iEnglish);
  for (const CaptionText& row : CaptionTexts) {
    EXPECT_EQ(row.pProperty->value(), row.sEnglish) << row.iText;
  }
}

TEST_F(Captions, AreSpanish) {
  LoadIn(iSpanish);
  for (const CaptionText& row : CaptionTexts) {
    EXPECT_EQ(row.pProperty->value(), LoadTextFor(row.iText, iSpanish)) << row.iText;
  }
}

TEST_F(Captions, LeaveSomeToolTipsBlank) {
  LoadIn(iEnglish);
  for (const Control* pControl : std::initializer_list<const Control*>{
           &picTogTimer, &picTogImpact, &btnTmrReset, &imgLever, &btnEmergency, &btnRstStop}) {
    EXPECT_EQ(pControl->ToolTipText, "");
  }
}

TEST_F(Captions, EmptyThePanesOfThePicker) {
  lblHELPFormat.Caption = "old";
  lblCompDesc.Caption = "old";
  txtHELPExample.SetText("old");
  LoadCaptions();
  EXPECT_EQ(lblHELPFormat.Caption, "");
  EXPECT_EQ(lblCompDesc.Caption, "");
  EXPECT_EQ(txtHELPExample.Text(), "");
}

TEST_F(Captions, TellTheVersion) {
  LoadCaptions();
  EXPECT_EQ(lblDebugAppVer.Caption, "v3.0.0");
}

TEST_F(Captions, LeaveTheDebugAndMessagePanelsInEnglish) {
  LoadIn(iSpanish);
  EXPECT_EQ(lblMsgTitle.Caption, "Message");
  EXPECT_EQ(lblInputTitle.Caption, "INPUTS");
  EXPECT_EQ(lblOutputTitle.Caption, "OUTPUTS");
  EXPECT_EQ(chkTiming.Caption, "Timing:");
  EXPECT_EQ(chkAnalog.Caption, "Impact:");
  EXPECT_EQ(optDirection[1].Caption, "Forward");
  EXPECT_EQ(lblInput[3].Caption, "PA3");
  EXPECT_EQ(lblOutput[3].Caption, "PB3");
}

}  // namespace
}  // namespace glidetrak
