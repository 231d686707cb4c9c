#pragma once

// A station with a catalogue of pre-sets beside its executable.

#include <gtest/gtest.h>

#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "programs/FileMenu.h"
#include "programs/PresetCatalogue.h"
#include "programs/ProgramFiles.h"
#include "station/NamedRow.h"
#include "station/Station.h"

namespace glidetrak {

class PresetTest : public ::testing::Test {
 protected:
  void AddConfiguration(const QByteArray& text) {
    platform.AddFile("\\STATION\\TV_GLIDETRAK.INI", text);
  }

  void AddExample(const QString& sName, const QByteArray& text) {
    platform.AddFile("\\STATION\\Examples\\" + sName, text);
  }

  /// Three pre-sets without sections of their own; the texts are ONE, TWO and THREE.
  void AddThree() {
    AddConfiguration("[MiscSettings]\r\nHW_EXAMPLES=3\r\n");
    AddExample("EXAMPLE1.GTP", "ONE");
    AddExample("EXAMPLE2.GTP", "TWO");
    AddExample("EXAMPLE3.GTP", "THREE");
  }

  /// The user's choice in the list.
  void Choose(int iEntry) {
    cmbExamples.ListIndex = iEntry;
    cmbExamples.Click();
  }

  void Type(const QString& sText) { txtProgram.UserEdit(0, 0, sText); }

  Station station;
  VirtualPlatform& platform = station.platform;
};

}  // namespace glidetrak
