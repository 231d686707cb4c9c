#pragma once

// The command line.

#include <QString>

namespace glidetrak {

/// The Control Program file named on the command line, or "". Written by ParseCommandLine, as the
/// two below it.
inline QString sCommandLineFile;

/// /SIMSTART was there, and the value of /UNITS. Read by nobody.
inline bool bSimStart = false;
inline QString sUnits = "0";

/// Reads the switches out of the raw text behind the program's name, and the file from what is
/// left. Everything is taken in upper case. The cuts are blind: a path that holds /H loses those
/// two characters. Deliberate.
void ParseCommandLine(const QString& sCommandLine);

/// The value behind /LANG or /UNITS, meant as ='value', and the text that the caller cuts out with
/// the switch. Any other form swallows the rest of the line, and then nothing is cut.
void ParseParameterValue(const QString& sText, QString& sValue, QString& sRawText);

}  // namespace glidetrak
