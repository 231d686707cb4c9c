// Puts the pieces together.

#include <QApplication>

#include "form/DesignState.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "platform/HidapiHid.h"
#include "platform/ProcessEnd.h"
#include "platform/Suspend.h"
#include "platform/ThisMachine.h"
#include "shell/Closing.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "view/MainWindow.h"
#include "view/View.h"
#include "view/ViewDesktop.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  glidetrak::ThisMachine machine;
  glidetrak::HidapiHid hid;
  glidetrak::ViewDesktop desktop;
  glidetrak::pMachine = &machine;
  glidetrak::pHid = &hid;
  glidetrak::pDesktop = &desktop;

  machine.SetActivation([] { glidetrak::MainWindow()->ComeForward(); });

  glidetrak::WatchProcessEnd({[] { glidetrak::frmGlidetrak.FormUnload(); }, glidetrak::StopRigAtEnd,
                              glidetrak::StopRigInCrash});

  glidetrak::ResetForms();
  glidetrak::WireEvents();
  glidetrak::BuildView();
  glidetrak::Form_Load(machine.CommandLine());
  glidetrak::OnSuspend(glidetrak::Form_Suspend);
  QApplication::exec();
  machine.EndProcess();
}
