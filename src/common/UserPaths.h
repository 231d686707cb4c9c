#pragma once

// The folders of the station. All end in a backslash.

#include <QString>

namespace glidetrak {

/// Folder of the executable. Set by start-up.
inline QString sAppPath;

/// "" or Language\hhhh\, relative to sAppPath. Set by start-up.
inline QString sLanguageFolder;

/// Where the file dialogs open: the documents folder, then the folder of the last Open.
inline QString sUserFolder;

/// Index of the interface language as text; "0" is United States English. Set by start-up.
inline QString sLanguageIndex = "0";

/// The folder with a backslash at its end.
QString WithBackslash(const QString& sFolder);

/// The user's documents folder; a backslash alone when it is not known.
QString GetDocumentsFolder();

/// The folder of the configuration file and of Examples.
QString DataFolder();

/// The configuration file's path.
QString ConfigurationFile();

constexpr const char* sConfigurationName = "TV_GLIDETRAK.INI";

}  // namespace glidetrak
