#pragma once

// A started station on which the command picker is opened.

#include <gtest/gtest.h>

#include "authoring/CommandCatalogue.h"
#include "authoring/CommandPicker.h"
#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "language/CommandNames.h"
#include "language/CompilePass.h"
#include "station/Station.h"

namespace glidetrak {

class PickerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    station.Start();
    station.EnterProgramMode();
  }

  /// Opens the picker and puts the mark on that name, without a blank.
  void Mark(const QString& sName) {
    ShowCommandPicker();
    const QStringList aNames = lstProgCommands.List;
    for (int i = 0; i < aNames.size(); ++i) {
      if (aNames[i].trimmed() == sName) lstProgCommands.ListIndex = i;
    }
  }

  /// The name goes into the program.
  void Insert(const QString& sName) {
    Mark(sName);
    btnSelectComSel.Click();
  }

  Station station;
};

}  // namespace glidetrak
