#pragma once

// The settings store: the registry. The station is a 32-bit process, so that 64-bit Windows keeps
// the machine's values for it under HKEY_LOCAL_MACHINE\\Software\\WOW6432Node.

#include <optional>

#include "platform/Platform.h"

namespace glidetrak {

class WindowsSettings {
 public:
  explicit WindowsSettings(Scope scope) : m_scope(scope) {}

  // As in Machine. A value of another type than the one that is asked for counts as missing.
  QString Text(const QString& sKey, const QString& sName);
  std::optional<qint32> Number(const QString& sKey, const QString& sName);
  bool Write(const QString& sKey, const QString& sName, const QString& sValue);

 private:
  Scope m_scope;
};

}  // namespace glidetrak
