// One copy a user, in a run-time folder of the test's own.

#include "platform/linux/LinuxInstance.h"

#include <QCoreApplication>

#include "platform/NativeFolder.h"

namespace glidetrak {

namespace {

class LinuxInstanceTest : public ::testing::Test {
 protected:
  void SetUp() override { qputenv("XDG_RUNTIME_DIR", folder.Path().toUtf8()); }

  NativeFolder folder;
  int iCount = 0;
  QCoreApplication application{iCount, nullptr};
};

TEST_F(LinuxInstanceTest, SecondCopyKnowsItself) {
  LinuxInstance first, second;
  EXPECT_TRUE(first.Take());
  EXPECT_FALSE(second.Take());
}

TEST_F(LinuxInstanceTest, NextCopyIsTheFirstOnceTheFirstIsGone) {
  {
    LinuxInstance first;
    ASSERT_TRUE(first.Take());
  }
  LinuxInstance next;
  EXPECT_TRUE(next.Take());
}

TEST_F(LinuxInstanceTest, SecondCopyAsksTheFirstToComeForward) {
  int iActivated = 0;
  LinuxInstance first, second;
  first.SetActivation([&] { ++iActivated; });
  ASSERT_TRUE(first.Take());
  ASSERT_FALSE(second.Take());
  second.ActivateOther();
  for (int i = 0; i < 100 && iActivated == 0; ++i) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  }
  EXPECT_EQ(iActivated, 1);
}

TEST_F(LinuxInstanceTest, AskingNobodyComesBack) {
  LinuxInstance alone;
  alone.ActivateOther();
  EXPECT_TRUE(alone.Take());
}

TEST_F(LinuxInstanceTest, SocketOfACopyThatCrashedIsNoHindrance) {
  folder.AddFile("glidetrak.socket", "left behind");
  int iActivated = 0;
  LinuxInstance first, second;
  first.SetActivation([&] { ++iActivated; });
  EXPECT_TRUE(first.Take());
  second.ActivateOther();
  for (int i = 0; i < 100 && iActivated == 0; ++i) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  }
  EXPECT_EQ(iActivated, 1);
}

}  // namespace

}  // namespace glidetrak
