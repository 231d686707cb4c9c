#pragma once

// What PRINT and WAIT make of the text behind them.

#include <QString>

namespace glidetrak {

/// The message of a PRINT, from the text behind the keyword.
QString BuildPrintMessage(const QString& sText);

/// The time of a WAIT, 1 to 32000 ms, from the first run of digits. False for anything else, after
/// message 508 unless the text is empty or beyond 32 bits; out of range lMilliseconds is 32000.
bool ParseWaitTime(const QString& sText, qint32& lMilliseconds);

}  // namespace glidetrak
