#pragma once

// Start-up is the loading of the main form, shut-down its unloading.

#include <QString>

namespace glidetrak {

/// The Control Program file named on the command line, or "".
inline QString sCommandLineFile;

/// The ordered start-up; a step that fails is passed over. sCommandLine is the raw text behind the
/// program's name.
void Form_Load(const QString& sCommandLine);

/// Hands the rig its zero byte and ends the process at once.
void Form_Unload();

/// Reads the command line, in upper case: a file path is passed on so.
void ParseCommandLine(const QString& sCommandLine);

}  // namespace glidetrak
