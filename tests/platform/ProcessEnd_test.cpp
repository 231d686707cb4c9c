// The handlers of the signals that ask for an end. What happens on the other roads shows only when
// a process is gone, and is tested with the station itself.

#include "platform/ProcessEnd.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cerrno>
#include <csignal>

namespace glidetrak {
namespace {

class Termination : public testing::Test {
 protected:
  Termination() {
    WatchProcessEnd({[this] { ++m_iEnds; }, [] {}, [] {}});
  }

  int m_iArguments = 1;
  char m_name[8] = "station";
  char* m_aArguments[2] = {m_name, nullptr};
  QCoreApplication m_application{m_iArguments, m_aArguments};
  int m_iEnds = 0;
};

TEST_F(Termination, ComesFromTheEventLoopAndOnce) {
  raise(SIGTERM);
  raise(SIGINT);
  EXPECT_EQ(m_iEnds, 0);
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  EXPECT_EQ(m_iEnds, 1);
}

/// So many that the way to the event loop is full, which is an error of the handler's own.
TEST_F(Termination, LeavesTheInterruptedCodesErrorAsItWasAndNeverWaits) {
  errno = ENOENT;
  for (int i = 0; i < 5000; ++i) raise(SIGTERM);
  EXPECT_EQ(errno, ENOENT);
}

}  // namespace
}  // namespace glidetrak
