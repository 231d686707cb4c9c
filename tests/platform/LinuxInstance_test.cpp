// One copy per user.

#include "platform/linux/LinuxInstance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include "platform/TemporaryFolder.h"

namespace glidetrak {
namespace {

class Instance : public ::testing::Test {
 protected:
  void SetUp() override { qputenv("XDG_RUNTIME_DIR", folder.Native("").toLocal8Bit()); }

  TemporaryFolder folder;
  int iArguments = 0;
  QCoreApplication application{iArguments, nullptr};
};

TEST_F(Instance, IsTheFirstOnlyWhileThereIsNoOther) {
  auto first = std::make_unique<LinuxInstance>();
  EXPECT_TRUE(first->Take());
  EXPECT_FALSE(LinuxInstance().Take());
  first.reset();
  EXPECT_TRUE(LinuxInstance().Take());
}

TEST_F(Instance, ComesForwardWhenALaterCopyAsks) {
  LinuxInstance first;
  int iActivated = 0;
  first.SetActivation([&] { ++iActivated; });
  ASSERT_TRUE(first.Take());
  LinuxInstance second;
  EXPECT_FALSE(second.Take());
  second.ActivateOther();
  QElapsedTimer elapsed;
  elapsed.start();
  while (iActivated == 0 && elapsed.elapsed() < 5000) QCoreApplication::processEvents();
  EXPECT_EQ(iActivated, 1);
}

TEST_F(Instance, DoesNotHangOnACopyThatIsGone) {
  LinuxInstance instance;
  QElapsedTimer elapsed;
  elapsed.start();
  instance.ActivateOther();
  EXPECT_LT(elapsed.elapsed(), 5000);
}

}  // namespace
}  // namespace glidetrak
