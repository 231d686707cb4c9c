// Puts the pieces together.

#include <QApplication>

#include "form/ControlTable.h"
#include "form/frmGlidetrak.h"
#include "platform/linux/LinuxMachine.h"
#include "platform/linux/LinuxSignals.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "view/MainWindow.h"
#include "view/View.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  glidetrak::LinuxMachine machine;
  glidetrak::ViewDesktop desktop;
  glidetrak::pMachine = &machine;
  glidetrak::pDesktop = &desktop;

  machine.SetActivation([] { glidetrak::MainWindow()->ComeForward(); });

  glidetrak::OnTermination([] { glidetrak::frmGlidetrak.FormUnload(); });

  glidetrak::ResetForms();
  glidetrak::WireEvents();
  glidetrak::BuildView();
  glidetrak::Form_Load(glidetrak::CommandLine(QApplication::arguments()));
  QApplication::exec();
  machine.EndProcess();
}
