#pragma once

// The command catalogue: every command and sensor name with format, description and example. The
// names are the rows of CommandNameRows (language/CommandNames); here stands the help of each.

#include <QString>
#include <vector>

namespace glidetrak {

struct CommandHelp {
  QString sDescription;
  QString sFormat;
  QString sExample;  ///< lines joined by CR LF; trimmed only when shown
};

/// The entry of list position i stands at i + 1; index 0 stays empty. Written by
/// BuildCommandCatalogue and AddCatalogueEntry alone, once, at start-up.
inline std::vector<CommandHelp> CommandHelpTable;

/// Fills lstProgCommands, CommandNameTable and CommandHelpTable from the keywords and the strings.
void BuildCommandCatalogue();

/// Adds one entry behind the last of all three; CommandNameTable has room for one more than the
/// rows.
void AddCatalogueEntry(const QString& sText, const QString& sDescription, const QString& sFormat,
                       const QString& sExample, bool bIsSensor);

}  // namespace glidetrak
