#pragma once

// Start-up is the loading of the main form.

#include <QString>

namespace glidetrak {

/// Value of the key SWFILE of the configuration. Written once by Form_Load, read by nobody.
inline QString sSimulationFile;

/// The ordered start-up. Each step that fails is passed over and the next one runs; nothing is told
/// to the user but what the steps themselves tell. sCommandLine is the raw text behind the
/// program's name.
void Form_Load(const QString& sCommandLine);

/// Ends a second copy of the program: tells the user, brings the first one forward, ends.
void CheckSingleInstance();

}  // namespace glidetrak
