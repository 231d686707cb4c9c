#include "authoring/CommandCatalogue.h"

#include <array>

#include "form/frmGlidetrak.h"
#include "language/CommandNames.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

/// An example has up to three lines; idNoText stands for none.
struct HelpRow {
  Keyword keyword;
  TextId idFormat;
  TextId idDescription;
  TextId aExample[3];
};

/// In the order of CommandNameRows. ENDIF has the example of IF, and LIGHT_SENSOR pairs the test
/// for ON with a text about the night: both deliberate.
constexpr std::array HelpRows{
    HelpRow{Keyword::AirportCall,
            idFormatAirportCall,
            idDescribeAirportCall,
            {idExampleAirportCall1, idExampleAirportCall2, idExampleEndIf}},
    HelpRow{Keyword::Backward, idFormatBackward, idDescribeBackward, {idExampleBackward}},
    HelpRow{Keyword::Beep, idFormatBeep, idDescribeBeep, {idExampleBeep}},
    HelpRow{Keyword::Break, idFormatBreak, idDescribeBreak, {idExampleBreak}},
    HelpRow{Keyword::CityCall,
            idFormatCityCall,
            idDescribeCityCall,
            {idExampleCityCall1, idExampleCityCall2, idExampleEndIf}},
    HelpRow{Keyword::EndIf,
            idFormatEndIf,
            idDescribeEndIf,
            {idExampleIf, idExampleNight, idExampleEndIf}},
    HelpRow{Keyword::Forward, idFormatForward, idDescribeForward, {idExampleForward}},
    HelpRow{Keyword::Get, idFormatGet, idDescribeGet, {idExampleGet}},
    HelpRow{Keyword::Goto, idFormatGoto, idDescribeGoto, {idExampleGoto}},
    HelpRow{Keyword::Halt, idFormatHalt, idDescribeHalt, {idExampleHalt}},
    HelpRow{Keyword::If, idFormatIf, idDescribeIf, {idExampleIf, idExampleNight, idExampleEndIf}},
    HelpRow{Keyword::Label, idFormatLabel, idDescribeLabel, {idExampleLabel}},
    HelpRow{Keyword::Let, idFormatLet, idDescribeLet, {idExampleLet}},
    HelpRow{Keyword::LightSensor,
            idFormatLightSensor,
            idDescribeLightSensor,
            {idExampleLightSensor, idExampleNight, idExampleEndIf}},
    HelpRow{Keyword::Power, idFormatPower, idDescribePower, {idExamplePower}},
    HelpRow{Keyword::Print,
            idFormatPrint,
            idDescribePrint,
            {idExamplePrint1, idExamplePrint2, idExamplePrint3}},
    HelpRow{Keyword::SoundSensor,
            idFormatSoundSensor,
            idDescribeSoundSensor,
            {idExampleSoundSensor1, idExampleSoundSensor2, idExampleEndIf}},
    HelpRow{Keyword::StartButton,
            idFormatStartButton,
            idDescribeStartButton,
            {idExampleStartButton1, idExampleStartButton2, idExampleEndIf}},
    HelpRow{Keyword::TimeGateA,
            idFormatTimeGateA,
            idDescribeTimeGateA,
            {idExampleTimeGateA1, idExampleTimeGateA2, idExampleEndIf}},
    HelpRow{Keyword::TimeGateB,
            idFormatTimeGateB,
            idDescribeTimeGateB,
            {idExampleTimeGateB1, idExampleTimeGateB2, idExampleEndIf}},
    HelpRow{Keyword::TimeReset, idFormatTimeReset, idDescribeTimeReset, {idExampleTimeReset}},
    HelpRow{Keyword::Wait, idFormatWait, idDescribeWait, {idExampleWait}},
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
  for (const TextId id : row.aExample) {
    if (id != idNoText) aLines.append(LoadText(id));
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
                      LoadText(row.idDescription), LoadText(row.idFormat), ExampleText(row),
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
