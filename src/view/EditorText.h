#pragma once

// Between the station's text and the widget's document.
//
// The station counts both characters of a line end, CR LF; the document has one paragraph break
// there, and one character for each other character. Characters that the document would swallow or
// break at (a bare CR or LF, NUL and the other control characters, the Unicode separators) show as
// a substitute that remembers what it stands for, so that copying, undo and redo give the character
// back.

#include <QString>
#include <QTextCursor>
#include <QTextDocument>
#include <vector>

namespace glidetrak {

/// What the document shows for a character: itself, or its substitute.
QChar Shown(QChar character);

/// From an offset in the station's text to a position in the document and back, by halving.
/// `aStarts` are the offsets of the lines. An offset between CR and LF is the end of its line.
int DocumentPosition(const std::vector<int>& aStarts, int iOffset);
int StationOffset(const std::vector<int>& aStarts, int iPosition);

/// Puts a stretch of the station's text into the document, at the cursor.
void InsertShown(QTextCursor& cursor, QStringView sText);

/// What a stretch of the document means to the station.
QString StationText(const QTextDocument& document, int iFrom, int iTo);

/// A text from elsewhere with the station's line ends: CR, LF and CR LF all become CR LF, and so do
/// the Unicode separators.
QString WithLineEnds(QStringView sText);

/// The smallest edit that makes one text of the other.
struct TextEdit {
  int iStart;
  int iRemoved;
  QString sInserted;
};
TextEdit Difference(QStringView sOld, QStringView sNew);

}  // namespace glidetrak
