#pragma once

// A machine that is about to start the station, and notes what it is asked.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "common/UserPaths.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "station/NamedRow.h"
#include "station/Print.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {

class NotingPlatform : public VirtualPlatform {
 public:
  NotingPlatform() {
    rig.OnEnumerate = [this] { Call("HidDevices"); };
  }

  /// Names of the calls below that fail.
  std::set<std::string> aFailing;
  std::vector<QString> aRead;     ///< "U name" or "M name"
  std::vector<QString> aWritten;  ///< the same and "=value"
  QString sTitleAtActivation;

  QString ExecutableFolder() override {
    Call("ExecutableFolder");
    return VirtualPlatform::ExecutableFolder();
  }
  void SetCurrentFolder(const QString& sPath) override {
    Call("SetCurrentFolder");
    VirtualPlatform::SetCurrentFolder(sPath);
  }
  bool TakeSingleInstance() override {
    Call("TakeSingleInstance");
    return VirtualPlatform::TakeSingleInstance();
  }
  void ActivateOtherCopy() override {
    sTitleAtActivation = application.Title;
    VirtualPlatform::ActivateOtherCopy();
  }
  std::optional<PixelRect> NearestMonitor() override {
    Call("NearestMonitor");
    return VirtualPlatform::NearestMonitor();
  }
  std::optional<PixelRect> NormalRect() override {
    Call("NormalRect");
    return VirtualPlatform::NormalRect();
  }
  QString ReadSetting(Scope scope, const QString& sKey, const QString& sName) override {
    aRead.push_back(Mark(scope) + sName);
    Call("ReadSetting");
    return VirtualPlatform::ReadSetting(scope, sKey, sName);
  }
  bool WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                    const QString& sValue) override {
    aWritten.push_back(Mark(scope) + sName + "=" + sValue);
    Call("WriteSetting");
    return VirtualPlatform::WriteSetting(scope, sKey, sName, sValue);
  }

 private:
  static QString Mark(Scope scope) { return scope == Scope::User ? "U " : "M "; }
  void Call(const std::string& sName) const {
    if (aFailing.count(sName) > 0) throw RuntimeError(Fault::PlatformCall);
  }
};

class StartUpTest : public ::testing::Test {
 protected:
  void Start(const QString& sCommandLine = {}) {
    WireEvents();
    Form_Load(sCommandLine);
  }

  /// A value of the window's placement, as text.
  void Store(Scope scope, const QString& sName, const QString& sValue) {
    const QString sKey = "SOFTWARE\\TORVANE\\GLIDETRAK\\POSITION\\";
    platform.aSettings[static_cast<int>(scope)].insert(sKey + sName.toUpper(), sValue);
  }

  NotingPlatform platform;
};

}  // namespace glidetrak
