#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include "platform/Suspend.h"
#include "platform/windows/Api.h"

namespace glidetrak {
namespace {

void Tell(UINT lMessage, WPARAM lWhat) {
  MSG message{};
  message.message = lMessage;
  message.wParam = lWhat;
  qintptr lResult = 0;
  QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &message,
                                                          &lResult);
}

TEST(Suspend, IsToldWhenTheMachineIsAboutToSleepAndNotWhenItWakes) {
  int iArguments = 1;
  char name[] = "station";
  char* aArguments[] = {name, nullptr};
  const QCoreApplication application(iArguments, aArguments);
  int iSuspends = 0;
  OnSuspend([&] { ++iSuspends; });
  Tell(WM_POWERBROADCAST, PBT_APMPOWERSTATUSCHANGE);
  EXPECT_EQ(iSuspends, 0);
  Tell(WM_POWERBROADCAST, PBT_APMSUSPEND);
  EXPECT_EQ(iSuspends, 1);
  Tell(WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC);
  EXPECT_EQ(iSuspends, 1);
}

}  // namespace
}  // namespace glidetrak
