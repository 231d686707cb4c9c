// Timers on the system's clock. Only orders of firing are looked at, and times from below.

#include <QElapsedTimer>
#include <QTimer>

#include "view/ViewDesktop.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Timers : public ViewTest {
 protected:
  Timers() {
    tmrReconnect.Fired = [this] { ++m_iFired; };
  }
  bool WaitForFirings(int iFirings) {
    return QTest::qWaitFor([&] { return m_iFired >= iFirings; }, 5000);
  }
  static QTimer* Clock(const char* sName) { return MainWindow()->findChild<QTimer*>(sName); }
  int m_iFired = 0;
};

TEST_F(Timers, FireAgainAndAgainWhileEnabled) {
  tmrReconnect.Interval = 5;
  QElapsedTimer clock;
  clock.start();
  tmrReconnect.Enabled = true;
  EXPECT_TRUE(WaitForFirings(4));
  EXPECT_GE(clock.elapsed(), 20);
}

TEST_F(Timers, ADisabledOneDoesNotFire) {
  tmrReconnect.Interval = 1;
  QTest::qWait(20);
  EXPECT_EQ(m_iFired, 0);
  tmrReconnect.Enabled = true;
  EXPECT_TRUE(WaitForFirings(1));
  tmrReconnect.Enabled = false;
  const int iFired = m_iFired;
  QTest::qWait(20);
  EXPECT_EQ(m_iFired, iFired);
}

TEST_F(Timers, AreExact) {
  EXPECT_EQ(Clock("tmrSystem")->timerType(), Qt::PreciseTimer);
}

TEST_F(Timers, ANewIntervalStartsAnew) {
  tmrReconnect.Enabled = true;
  EXPECT_EQ(Clock("tmrReconnect")->interval(), 5000);
  tmrReconnect.Interval = 5;
  EXPECT_TRUE(WaitForFirings(1));
}

TEST_F(Timers, AnIntervalWithoutEnablingStartsNothing) {
  tmrReconnect.Interval = 1;
  EXPECT_FALSE(Clock("tmrReconnect")->isActive());
}

TEST_F(Timers, EnablingAnEnabledOneDoesNotStartAnew) {
  tmrReconnect.Interval = 60;
  tmrReconnect.Enabled = true;
  const int iBefore = Clock("tmrReconnect")->remainingTime();
  QTest::qWait(5);
  tmrReconnect.Enabled = true;
  tmrReconnect.Interval = 60;
  EXPECT_LT(Clock("tmrReconnect")->remainingTime(), iBefore);
}

TEST_F(Timers, FireInsideTheirOwnHandlerThatPumps) {
  int iDepth = 0;
  int iDeepest = 0;
  tmrReconnect.Fired = [&] {
    iDeepest = std::max(iDeepest, ++iDepth);
    EXPECT_TRUE(iDepth == 3 || QTest::qWaitFor([&] { return iDeepest == 3; }, 2000));
    --iDepth;
  };
  tmrReconnect.Interval = 2;
  tmrReconnect.Enabled = true;
  EXPECT_TRUE(QTest::qWaitFor([&] { return iDeepest == 3; }, 5000));
}

TEST_F(Timers, MayDisableThemselves) {
  tmrReconnect.Fired = [this] {
    ++m_iFired;
    tmrReconnect.Enabled = false;
  };
  tmrReconnect.Interval = 1;
  tmrReconnect.Enabled = true;
  EXPECT_TRUE(WaitForFirings(1));
  QTest::qWait(20);
  EXPECT_EQ(m_iFired, 1);
}

TEST_F(Timers, FireUnderAnOpenBox) {
  ViewDesktop desktop;
  tmrReconnect.Interval = 5;
  tmrReconnect.Fired = [this] {
    if (++m_iFired == 3) QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
  };
  tmrReconnect.Enabled = true;
  desktop.ShowBox("text", "title", BoxIcon::Information, BoxButtons::Ok);
  EXPECT_GE(m_iFired, 3);
}

}  // namespace
}  // namespace glidetrak
