#pragma once

// The rules that the sources are held against, applied to the text of one file at a time, so that
// they can be tried on a planted violation as well.

#include <QString>
#include <QStringList>
#include <set>
#include <vector>

namespace glidetrak {

/// One source file: its path below src/, with slashes, and its text.
struct SourceFile {
  QString sPath;
  QString sText;
};

/// The header names that may be included by the view alone, e.g. QWidget or QtGui/QPainter.
using WindowHeaders = std::set<QString>;

// Each rule gives its violations as "path:line: what is wrong", none for a file that keeps it.

/// A room includes itself and those below it that its row names, never one beside or above.
QStringList RoomViolations(const SourceFile& file);

/// A header and the source of its name are one module; inside a room too no arrow comes back to
/// where it began. One line for each circle found, its modules in their order.
QStringList Circles(const std::vector<SourceFile>& aFiles);

/// Nobody but the view knows a window toolkit; main.cpp may start the application.
QStringList WindowHeaderViolations(const SourceFile& file, const WindowHeaders& headers);

/// Every name that a header declares with "inline Kind name" or "inline Kind name[n]".
std::set<QString> DeclaredNames(const QString& sHeader);

/// The view singles out no control by its name, in code, in a text or in a comment: what it needs
/// to know of one is told by the form's table.
QStringList ControlNameViolations(const SourceFile& file, const std::set<QString>& controls);

/// Trimming goes through TrimBlanks, which takes blanks only.
QStringList TrimmingViolations(const SourceFile& file);

constexpr int iMostLines = 500;
constexpr int iMostColumns = 100;

QStringList LengthViolations(const SourceFile& file);

}  // namespace glidetrak
