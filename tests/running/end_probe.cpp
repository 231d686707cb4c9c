// A process with the station's own watch over its end and nothing else of it: drives the rig, then
// ends by the road that its argument names. For the roads that the station itself has no door to.

#include <QCoreApplication>
#include <QTimer>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "platform/HidapiHid.h"
#include "platform/ProcessEnd.h"
#include "platform/ThisMachine.h"

namespace {

void LeaveBy(std::string_view sRoad) {
  if (sRoad == "throw") throw std::runtime_error("nobody catches this");
  if (sRoad == "exit") std::exit(1);
  QCoreApplication::quit();
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  glidetrak::ThisMachine machine;
  glidetrak::HidapiHid hid;
  glidetrak::pMachine = &machine;
  glidetrak::pHid = &hid;
  const std::string_view sRoad = argc > 1 ? argv[1] : "";
  glidetrak::WatchProcessEnd({[] {}, glidetrak::StopRigAtEnd, glidetrak::StopRigInCrash});
  if (!glidetrak::CheckHardware()) return 2;
  glidetrak::lOutputImage = 0x1F;
  glidetrak::WriteOutputPort();
  QTimer::singleShot(0, [sRoad] { LeaveBy(sRoad); });
  QCoreApplication::exec();
  machine.EndProcess();
}
