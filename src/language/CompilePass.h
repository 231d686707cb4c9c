#pragma once

// The compile pass turns the editor's text into LineTable and LabelTable. It is a line normaliser,
// not a parser: each line is upper-cased, loses its blanks and comments, IFs are paired with their
// ENDIFs and labels collected. Whatever else is wrong with a line is found when it is executed.

#include <QString>
#include <array>
#include <vector>

namespace glidetrak {

struct ProgramLine {
  qint32 lStartOffset = 0;  ///< 0-based offset of the line's first character in the editor
  qint32 lLength = 0;       ///< characters of the line without its CR LF
  QString sText;            ///< normalised; empty for a blank line or a mere comment
  /// On an IF line the index of its ENDIF, on a line with a GOTO that of the LABEL; else 0.
  qint32 lTargetLine = 0;
};

struct LabelEntry {
  QString sName;     ///< normalised, without the keyword; may be empty
  qint32 lLine = 0;  ///< index of the LABEL line
};

/// One record for each line of the editor and one more, which stays empty: Trace runs on to it.
/// Lives from one compile to the next.
inline std::vector<ProgramLine> LineTable;

/// Lines as the editor counts them: 1 for an empty text, one more for a final CR LF.
inline qint32 lLineCount = 0;

constexpr int iLabelSlots = 30;

/// Slots 1 to 30; slot 0 is never used. The same name may stand in two slots: the lower one wins.
inline std::array<LabelEntry, iLabelSlots + 1> LabelTable;

/// The next free slot, 1 when the table is empty.
inline qint16 iNextLabel = 1;

/// The editor's text differs from what was last compiled. Set by the editor's Change event and by
/// the choice of a pre-set, cleared by a good compile.
inline bool bNeedCompile = true;

/// Compiles unless nothing has changed since the last good compile. True when the tables may be
/// run; on false the one message has been shown and the line at fault is selected. The selection
/// is left on the last line that was looked at. Pumps nothing.
bool CompileProgram();

/// What is left of one line, trimmed and in capitals: control characters, blanks outside quotes, a
/// comment behind : or ; and THEN with all that follows it are gone. bEndsInQuotes tells whether a
/// quote stands open at the end; a quote counts from the 6th character on.
QString NormaliseLine(const QString& sLine, bool bIsPrint, bool& bEndsInQuotes);

}  // namespace glidetrak
