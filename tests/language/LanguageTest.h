#pragma once

// What the tests of the language share.

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/Expressions.h"
#include "language/RunState.h"
#include "language/Variables.h"
#include "station/Station.h"
#include "strings/ResourceText.h"

namespace glidetrak {

/// A started station in Program mode, with a rig on the parallel link.
class LanguageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    station.Start(RigLink::Parallel);
    station.EnterProgramMode();
  }

  /// A new text in the editor, compiled; what the compile gave.
  bool Compile(const QString& sText) {
    station.SetProgram(sText);
    bNeedCompile = true;
    return CompileProgram();
  }

  /// Boxes have been shown, each with the language's title and that icon, and they leave the editor
  /// to be seen.
  void ExpectProgramErrorBoxes(BoxIcon icon = BoxIcon::Exclamation) {
    EXPECT_FALSE(station.platform.aBoxes.empty());
    for (const VirtualBox& box : station.platform.aBoxes) {
      EXPECT_EQ(box.sTitle, "Control Program Error");
      EXPECT_EQ(box.icon, icon);
      EXPECT_EQ(box.buttons, BoxButtons::Ok);
      EXPECT_EQ(box.place, BoxPlace::TopBand);
    }
  }

  Station station;
};

inline qint16& Variable(char cLetter) {
  return iVariables[static_cast<size_t>(cLetter - 64)];
}

/// Where the editor's selection stands.
struct Selection {
  int iStart, iLength;
  bool operator==(const Selection&) const = default;
};

inline Selection SelectionNow() {
  return {txtProgram.SelStart(), txtProgram.SelLength()};
}

inline void PrintTo(const Selection& selection, std::ostream* pStream) {
  *pStream << '(' << selection.iStart << ", " << selection.iLength << ')';
}

}  // namespace glidetrak
