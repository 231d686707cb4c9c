#pragma once

// The folders of the station, in its own way of writing paths, and the index of its language.

#include <QString>

namespace glidetrak {

/// Folder of the executable, with a backslash at its end; "" until start-up sets it, and when the
/// machine does not tell.
inline QString sAppPath;

/// "" or Language\hhhh\, hhhh being the language code in hex, relative to sAppPath. Set by start-up
/// alone; "" too where that folder has no configuration file.
inline QString sLanguageFolder;

/// Where the file dialogs open: start-up sets it to GetDocumentsFolder, each Open that chose a file
/// to that file's folder. "" or blanks mean the documents folder.
inline QString sUserFolder;

/// Index of the interface language as text; "0" is United States English. Start-up sets it to the
/// system's, /LANG to the text behind it, whatever that is, /LC to that of its code; start-up
/// takes one that has no texts back to "0".
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
