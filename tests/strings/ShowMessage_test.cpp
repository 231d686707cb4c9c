// Modal boxes by string id.

#include "strings/ShowMessage.h"

#include <gtest/gtest.h>

#include "station/Print.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {
namespace {

class Messages : public ::testing::Test {
 protected:
  VirtualPlatform platform;
};

TEST_F(Messages, TakeTextAndTitleByTheirIds) {
  ShowMessage(idUnrecognized, idProgramError, BoxIcon::Exclamation);
  ASSERT_EQ(platform.aBoxes.size(), 1U);
  const VirtualBox& box = platform.aBoxes[0];
  EXPECT_EQ(box.sText, "Unrecognized Command or expression");
  EXPECT_EQ(box.sTitle, "Control Program Error");
  EXPECT_EQ(box.icon, BoxIcon::Exclamation);
  EXPECT_EQ(box.buttons, BoxButtons::Ok);
}

TEST_F(Messages, TakeATextOfTheirOwn) {
  ShowMessage(QString("A\r\nB"), "T", BoxIcon::Warning);
  ASSERT_EQ(platform.aBoxes.size(), 1U);
  EXPECT_EQ(platform.aBoxes[0].sText, "A\r\nB");
  EXPECT_EQ(platform.aBoxes[0].sTitle, "T");
  EXPECT_EQ(platform.aBoxes[0].icon, BoxIcon::Warning);
}

TEST_F(Messages, AskWithYesAndNo) {
  platform.aAnswers = {BoxAnswer::No, BoxAnswer::Yes};
  EXPECT_FALSE(AskYesNo("Sure?", "T"));
  EXPECT_TRUE(AskYesNo("Sure?", "T"));
  EXPECT_EQ(platform.aBoxes[0].buttons, BoxButtons::YesNo);
  EXPECT_EQ(platform.aBoxes[0].icon, BoxIcon::Question);
}

}  // namespace
}  // namespace glidetrak
