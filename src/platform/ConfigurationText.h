#pragma once

// INI files as text.

#include <QByteArray>
#include <QString>
#include <optional>

namespace glidetrak {

/// The value of a key in a section of an INI file's bytes: section and key match without regard to
/// case, the first that matches counts, blanks around names and value go, and so does one pair of
/// quotes around the value. Line ends are CR LF, LF or CR.
std::optional<QByteArray> FindConfigurationString(const QByteArray& bytes, const QString& sSection,
                                                  const QString& sKey);

}  // namespace glidetrak
