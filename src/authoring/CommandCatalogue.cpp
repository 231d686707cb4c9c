// The catalogue: the help of each row of CommandNameRows.

#include <array>

#include "authoring/CommandPicker.h"
#include "form/frmGlidetrak.h"
#include "language/CommandNames.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

/// String ids; an example has up to three lines, 0 for none.
struct HelpRow {
  Keyword keyword;
  int iFormat;
  int iDescription;
  int aExample[3];
};

/// In the order of CommandNameRows. ENDIF has the example of IF, and LIGHT_SENSOR pairs the test
/// for ON with a text about the night: both deliberate.
constexpr std::array HelpRows{
    HelpRow{Keyword::AirportCall, 455, 454, {456, 457, 421}},
    HelpRow{Keyword::Backward, 444, 443, {445}},
    HelpRow{Keyword::Beep, 432, 431, {433}},
    HelpRow{Keyword::Break, 406, 405, {407}},
    HelpRow{Keyword::CityCall, 451, 450, {452, 453, 421}},
    HelpRow{Keyword::EndIf, 423, 422, {419, 420, 421}},
    HelpRow{Keyword::Forward, 441, 440, {442}},
    HelpRow{Keyword::Get, 429, 428, {430}},
    HelpRow{Keyword::Goto, 412, 411, {413}},
    HelpRow{Keyword::Halt, 438, 437, {439}},
    HelpRow{Keyword::If, 418, 417, {419, 420, 421}},
    HelpRow{Keyword::Label, 409, 408, {410}},
    HelpRow{Keyword::Let, 415, 414, {416}},
    HelpRow{Keyword::LightSensor, 459, 458, {460, 420, 421}},
    HelpRow{Keyword::Power, 435, 434, {436}},
    HelpRow{Keyword::Print, 401, 400, {402, 403, 404}},
    HelpRow{Keyword::SoundSensor, 473, 472, {474, 475, 421}},
    HelpRow{Keyword::StartButton, 447, 446, {448, 449, 421}},
    HelpRow{Keyword::TimeGateA, 462, 461, {463, 464, 421}},
    HelpRow{Keyword::TimeGateB, 466, 465, {467, 468, 421}},
    HelpRow{Keyword::TimeReset, 470, 469, {471}},
    HelpRow{Keyword::Wait, 426, 425, {427}},
};

constexpr bool InStep() {
  if (HelpRows.size() != CommandNameRows.size()) return false;
  for (size_t i = 0; i < HelpRows.size(); ++i) {
    if (HelpRows[i].keyword != CommandNameRows[i].keyword) return false;
  }
  return true;
}
static_assert(InStep(), "the help belongs to the names row by row");

QString ExampleText(const HelpRow& row) {
  QStringList aLines;
  for (const int iLine : row.aExample) {
    if (iLine != 0) aLines.append(LoadText(iLine));
  }
  return aLines.join("\r\n");
}

}  // namespace

void BuildCommandCatalogue() {
  lstProgCommands.List = QStringList();
  CommandHelpTable.assign(1, {});
  for (size_t i = 0; i < HelpRows.size(); ++i) {
    const HelpRow& row = HelpRows[i];
    const CommandNameRow& name = CommandNameRows[i];
    AddCatalogueEntry(Word(name.keyword) + (name.bTakesArgument ? " " : ""),
                      LoadText(row.iDescription), LoadText(row.iFormat), ExampleText(row),
                      name.bIsSensor);
  }
}

void AddCatalogueEntry(const QString& sText, const QString& sDescription, const QString& sFormat,
                       const QString& sExample, bool bIsSensor) {
  QStringList aList = lstProgCommands.List;
  CommandNameTable.at(static_cast<size_t>(aList.size())) = {sText, bIsSensor};
  CommandHelpTable.push_back({sDescription, sFormat, sExample});
  aList.append(sText);
  lstProgCommands.List = aList;
}

}  // namespace glidetrak
