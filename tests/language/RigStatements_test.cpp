// What POWER, the port bits and the sensor tests make of their text.

#include "language/RigStatements.h"

#include "language/LanguageTest.h"
#include "language/LetAndIf.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class PowerStatement : public LanguageTest {
 protected:
  void SetUp() override {
    LanguageTest::SetUp();
    SetPower(3);
  }
};

struct LevelRow {
  const char* sText;
  qint16 iLevel;
};

/// Halves go to the even neighbour.
const LevelRow LevelRows[] = {
    {"POWER10", 10},   {"POWER15", 15}, {"POWER0", 0},        {"POWER", 0},    {"POWERA", 0},
    {"POWERX5", 0},    {"POWER2.5", 2}, {"POWER3.5", 4},      {"POWER0.5", 0}, {"POWER-0.5", 0},
    {"POWER15.4", 15}, {"POWER7UP", 7}, {"POWER1POWER2", 12}, {"POWER+5", 5},  {"POWER1E1", 1},
};

TEST_F(PowerStatement, TakesTheNumberAtItsHeadForTheLevel) {
  for (const LevelRow& row : LevelRows) {
    SetPower(3);
    EXPECT_TRUE(ExecutePower(row.sText)) << row.sText;
    EXPECT_EQ(iPower, row.iLevel) << row.sText;
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

TEST_F(PowerStatement, RefusesALevelOutOfRangeAndLeavesThePower) {
  for (const char* sText :
       {"POWER16", "POWER15.5", "POWER-1", "POWER-0.6", "POWER32767", "POWER-32768"}) {
    station.Forget();
    EXPECT_FALSE(ExecutePower(sText)) << sText;
    EXPECT_EQ(station.BoxTexts(), QStringList(English(509))) << sText;
    EXPECT_EQ(iPower, 3) << sText;
    ExpectProgramErrorBoxes();
  }
}

TEST_F(PowerStatement, RaisesAnErrorForANumberBeyondSixteenBits) {
  for (const char* sText : {"POWER32768", "POWER99999", "POWER-32769"}) {
    EXPECT_THROW(ExecutePower(sText), RuntimeError) << sText;
    EXPECT_EQ(iPower, 3) << sText;
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

class PortBit : public LanguageTest {};

TEST_F(PortBit, TakesOnOrOffAsAWholeInALet) {
  for (const char* sText : {"PB1==ON", "PB1=", "PB1=1", "PB1=OF", "PB1=ONN", "PB1=XON"}) {
    station.Forget();
    EXPECT_FALSE(ExecuteLet(sText, true)) << sText;
    EXPECT_EQ(station.BoxTexts(), QStringList(English(510))) << sText;
    EXPECT_EQ(lOutputImage, 16) << sText;
    ExpectProgramErrorBoxes();
  }
}

class InputTest : public LanguageTest {
 protected:
  void SetUp() override {
    LanguageTest::SetUp();
    Compile("IF A=1\r\nENDIF");
  }

  /// Whether an IF with that text holds under that input byte.
  bool Holds(const QString& sText, qint32 lInput) {
    lInputImage = lInput;
    lCurrentLine = 0;
    bInIfBlock = false;
    EXPECT_TRUE(ExecuteIf(sText)) << sText.toStdString();
    EXPECT_EQ(bInIfBlock, bIfCondition) << sText.toStdString();
    EXPECT_EQ(lCurrentLine, bIfCondition ? 0 : 1) << sText.toStdString();
    return bIfCondition;
  }
};

struct InputRow {
  QString sName;
  int iBit;
};

const InputRow InputRows[] = {
    {"START_BUTTON", 0}, {"CITY_CALL", 1},   {"AIRPORT_CALL", 2}, {"LIGHT_SENSOR", 3},
    {"TIME_GATE_A", 4},  {"TIME_GATE_B", 5}, {"SOUND_SENSOR", 6}, {"PA0", 0},
    {"PA1", 1},          {"PA2", 2},         {"PA3", 3},          {"PA4", 4},
    {"PA5", 5},          {"PA6", 6},         {"PA7", 7},
};

TEST_F(InputTest, LooksAtTheBitOfItsNameAlone) {
  for (const InputRow& row : InputRows) {
    SCOPED_TRACE(row.sName.toStdString());
    const qint32 lAlone = 1 << row.iBit;
    EXPECT_TRUE(Holds(row.sName + "=ON", lAlone));
    EXPECT_FALSE(Holds(row.sName + "=ON", 255 - lAlone));
    EXPECT_TRUE(Holds(row.sName + "=OFF", 255 - lAlone));
    EXPECT_FALSE(Holds(row.sName + "=OFF", lAlone));
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

struct FormRow {
  const char* sText;
  qint32 lInput;
  bool bHolds;
};

/// ON is looked for first and anywhere, inside the name of a second sensor too. Of two sensors the
/// order of the station counts.
const FormRow FormRows[] = {
    {"START_BUTTON==ON", 1, true},
    {"ON=START_BUTTON", 1, true},
    {"START_BUTTON>=ON", 1, true},
    {"START_BUTTON=XOFFY", 0, true},
    {"START_BUTTON=OFFON", 1, true},
    {"START_BUTTON=ONOFF", 1, true},
    {"START_BUTTON,START_BUTTON=OFF", 1, false},
    {"CITY_CALL,START_BUTTON=ON", 2, false},
    {"START_BUTTON,TIME_GATE_A=OFF", 0x11, true},
};

TEST_F(InputTest, PassesOverJunkBesideASensorAndItsState) {
  for (const FormRow& row : FormRows) {
    EXPECT_EQ(Holds(row.sText, row.lInput), row.bHolds) << row.sText;
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

const char* const NoForms[] = {
    "CITY_CALL",
    "CITY_CALLON",
    "CITY_CALL=",
    "CITY_CALL<>ON",
    "CITY_CALL=1",
    "DOOR_OPEN=ON",
    "TIME_GATE_A=TIME_GATE_B",
    "PA3=",
    "PA3<>ON",
    "PA3=ONN",
    "PA3==ON",
};

TEST_F(InputTest, RefusesAnyOtherForm) {
  for (const char* sText : NoForms) {
    bInIfBlock = false;
    station.Forget();
    EXPECT_FALSE(ExecuteIf(sText)) << sText;
    EXPECT_EQ(station.BoxTexts(), QStringList(English(503))) << sText;
    ExpectProgramErrorBoxes();
  }
}

}  // namespace
}  // namespace glidetrak
