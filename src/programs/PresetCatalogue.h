#pragma once

// The pre-sets: example programs that the configuration file lists and start-up reads into memory.
// No file is touched after start-up, and a pre-set has no file as far as Save is concerned.

#include <QString>
#include <vector>

namespace glidetrak {

struct PresetRecord {
  QString sFileName;     ///< in the folder Examples
  QString sTitle;        ///< of the list entry
  QString sProgramText;  ///< empty if the file is missing
  QString sHelp;         ///< kept because the configuration file carries it; nothing shows it
};

/// Indexes 0 to the count; 0 stays empty and is never used. Filled once, by
/// LoadPresetCatalogue.
inline std::vector<PresetRecord> Presets;

/// Reads the catalogue and every pre-set's text, and fills the list. Reports nothing.
void LoadPresetCatalogue();

/// Lists the pre-sets whose text is more than blanks, in their order, and selects the first.
void RefreshPresetList();

/// The text of a file in Examples; "" when it is missing or cannot be read.
QString ReadPresetText(const QString& sFileName);

/// Replaces the program by a pre-set's text, after the question about unsaved changes. An index out
/// of range leaves the editor empty. Nothing while a program runs.
void LoadPreset(qint16 iIndex);

void HidePresetList();

/// Shows or hides what stands in the program box.
void SetProgramBoxVisible(bool bShow);

/// Loads by the entry's position plus one and not by its item data, so that behind a missing file
/// every entry loads another pre-set than it names. Deliberate.
void cmbExamples_Click();
void cmbExamples_LostFocus();
void cmdShowExamples_Click();

}  // namespace glidetrak
