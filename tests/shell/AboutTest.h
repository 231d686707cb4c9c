#pragma once

// A station whose About form notes how it is shown.

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "shell/AboutBox.h"
#include "station/Station.h"

namespace glidetrak {

class AboutTest : public ::testing::Test {
 protected:
  AboutTest() {
    frmAbout.Show = [this] { Shown("show"); };
    frmAbout.ShowModal = [this] { Shown("modal"); };
    frmAbout.SetFocus = [this] { aCalls.push_back("focus"); };
    frmAbout.Refresh = [this] { aCalls.push_back("refresh"); };
    frmGlidetrak.SetFocus = [this] { aCalls.push_back("main focus"); };
    frmAbout.Unload = [this] {
      aCalls.push_back("unload");
      frmAbout.Visible = false;
      frmAbout.FormUnload();
    };
  }

  void Shown(const char* sHow) {
    aCalls.push_back(sHow);
    lShown = station.platform.lNow;
    frmAbout.Visible = true;
  }

  /// Lets time go by until that many milliseconds after the box was loaded.
  void RunTo(qint64 lAfterLoad) {
    station.platform.RunFor(static_cast<int>(lLoaded + lAfterLoad - station.platform.lNow));
  }

  void ExpectCentred() {
    EXPECT_FLOAT_EQ(frmAbout.Left, (frmGlidetrak.Width - frmAbout.Width) / 2 + frmGlidetrak.Left);
    EXPECT_FLOAT_EQ(frmAbout.Top, (frmGlidetrak.Height - frmAbout.Height) / 2 + frmGlidetrak.Top);
  }

  using Calls = std::vector<std::string>;

  Station station;
  Calls aCalls;
  qint64 lLoaded = 0;  ///< when tmrUpdate was started
  qint64 lShown = 0;
  QPropertyNotifier loaded = tmrUpdate.Enabled.addNotifier([this] {
    if (tmrUpdate.Enabled) lLoaded = station.platform.lNow;
  });
};

}  // namespace glidetrak
