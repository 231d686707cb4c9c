// Tests that draw need an application object around them.

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
#ifndef _WIN32
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  // The same dates and sizes on every machine.
  qputenv("LC_ALL", "C.UTF-8");
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
