#include "platform/windows/WindowsInstance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <optional>

#include "platform/windows/Api.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

class Instance : public testing::Test {
 protected:
  bool WaitForCalls(int iWanted) {
    QElapsedTimer clock;
    clock.start();
    while (m_iCalls < iWanted && clock.elapsed() < 5000) QCoreApplication::processEvents();
    return m_iCalls == iWanted;
  }

  int m_iArguments = 1;
  char m_name[8] = "station";
  char* m_aArguments[2] = {m_name, nullptr};
  QCoreApplication m_application{m_iArguments, m_aArguments};
  const QString m_sName =
      "Local\\Glidetrak-instance-test-" + QString::number(GetCurrentProcessId());
  int m_iCalls = 0;
};

TEST_F(Instance, IsTakenOnceUntilItsCopyIsGone) {
  std::optional<WindowsInstance> first(m_sName);
  EXPECT_TRUE(first->Take());
  EXPECT_FALSE(WindowsInstance(m_sName).Take());
  EXPECT_FALSE(WindowsInstance(m_sName).Take());
  first.reset();
  EXPECT_TRUE(WindowsInstance(m_sName).Take());
}

TEST_F(Instance, OfAnotherUserIsAnother) {
  WindowsInstance first(m_sName);
  EXPECT_TRUE(first.Take());
  EXPECT_TRUE(WindowsInstance(m_sName + "-other").Take());
}

TEST_F(Instance, ComesForwardWhenALaterCopyAsks) {
  WindowsInstance first(m_sName);
  first.SetActivation([this] { ++m_iCalls; });
  ASSERT_TRUE(first.Take());
  WindowsInstance second(m_sName);
  ASSERT_FALSE(second.Take());
  second.ActivateOther();
  EXPECT_EQ(m_iCalls, 0);
  EXPECT_TRUE(WaitForCalls(1));
  second.ActivateOther();
  EXPECT_TRUE(WaitForCalls(2));
}

/// Nobody answers here: the first copy has no event loop that runs meanwhile.
TEST_F(Instance, IsNotWaitedForWhenItHangsOrIsGone) {
  WindowsInstance first(m_sName);
  ASSERT_TRUE(first.Take());
  for (int i = 0; i < 100; ++i) WindowsInstance(m_sName).ActivateOther();
  WindowsInstance(m_sName + "-none").ActivateOther();
}

TEST_F(Instance, BearsTheUsersId) {
  EXPECT_TRUE(UsersInstanceName().startsWith("Global\\Glidetrak-S-1-"))
      << UsersInstanceName().toStdString();
}

}  // namespace
}  // namespace glidetrak
