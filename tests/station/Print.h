#pragma once

// How GoogleTest writes Qt's texts in a failed comparison.

#include <QByteArray>
#include <QString>
#include <ostream>

inline void PrintTo(const QString& sText, std::ostream* pStream) {
  *pStream << '"' << sText.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* pStream) {
  *pStream << '"' << bytes.toStdString() << "\" (" << bytes.toHex(' ').toStdString() << ')';
}
