#pragma once

// INI files as text.

#include <QByteArray>
#include <QHash>
#include <QString>
#include <optional>
#include <utility>

namespace glidetrak {

/// The values of an INI file's bytes. Section and key match without regard to case and the first
/// that matches counts, so that a section that comes again is passed over. Blanks around names and
/// value go, and so do one pair of quotes around the value and a byte order mark ahead of the text.
/// Line ends are CR LF, LF or CR.
class ConfigurationText {
 public:
  explicit ConfigurationText(const QByteArray& bytes = {});

  /// The value of a key in a section; nothing when it is not there.
  std::optional<QByteArray> Value(const QString& sSection, const QString& sKey) const;

 private:
  /// By section and key, both case folded.
  QHash<std::pair<QString, QString>, QByteArray> m_aValues;
};

}  // namespace glidetrak
