#include "common/Settings.h"

#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "platform/Platform.h"

namespace glidetrak {

namespace {

constexpr int iLongestValue = 511;

QString KeyPath(const QString& sSection) {
  return "Software\\Torvane\\Glidetrak\\" + sSection;
}

QString ReadScope(Scope scope, const QString& sSection, const QString& sName) {
  try {
    return pMachine->ReadSetting(scope, KeyPath(sSection), sName);
  } catch (const RuntimeError&) {
    return {};
  }
}

bool WriteScope(Scope scope, const QString& sSection, const QString& sName, const QString& sValue) {
  try {
    return pMachine->WriteSetting(scope, KeyPath(sSection), sName, sValue);
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace

QString GetRegistrySetting(const QString& sSection, const QString& sName,
                           const QString& /*sDefault*/) {
  const QString sValue = TrimBlanks(ReadScope(Scope::User, sSection, sName));
  return sValue.isEmpty() ? ReadScope(Scope::Machine, sSection, sName) : sValue;
}

bool SaveRegistrySetting(const QString& sSection, const QString& sName, const QString& sValue) {
  return WriteScope(Scope::Machine, sSection, sName, sValue) ||
         WriteScope(Scope::User, sSection, sName, sValue);
}

QString GetIniString(const QString& sSection, const QString& sKey, const QString& sDefault,
                     const QString& sPath) {
  QString sValue = sDefault;
  SkipOnError([&] {
    const auto value = pMachine->ConfigurationValue(sSection, sKey, sPath);
    if (value) sValue = FromCodePage(*value);
  });
  return sValue.left(iLongestValue);
}

}  // namespace glidetrak
