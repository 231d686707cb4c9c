#pragma once

// The little that the station keeps, and the configuration file that it only reads.

#include <QString>

namespace glidetrak {

/// A value of the program's settings, the user's own first, then the machine's; "" when neither has
/// it. The default is taken and never used: a value that is not stored is "", whatever the caller
/// names. Deliberate; a first start opens at the smallest size because of it.
QString GetRegistrySetting(const QString& sSection, const QString& sName, const QString& sDefault);

/// Writes the machine's value, and the user's only if the machine's cannot be written: the opposite
/// order of reading, deliberately. True when the last attempt succeeded.
bool SaveRegistrySetting(const QString& sSection, const QString& sName, const QString& sValue);

/// A key of an INI file; at most 511 characters of it.
QString GetIniString(const QString& sSection, const QString& sKey, const QString& sDefault,
                     const QString& sPath);

}  // namespace glidetrak
