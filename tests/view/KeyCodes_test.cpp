// The key and character codes that the station reads out of a key event.

#include "view/KeyCodes.h"

#include <gtest/gtest.h>

#include "station/Print.h"

namespace glidetrak {
namespace {

constexpr Qt::KeyboardModifier NoKeys = Qt::NoModifier;

struct CodeRow {
  int iKey;
  Qt::KeyboardModifiers modifiers;
  int iCode;
};

const CodeRow CodeRows[] = {
    {Qt::Key_A, NoKeys, 65},
    {Qt::Key_Z, Qt::ShiftModifier, 90},
    {Qt::Key_0, NoKeys, 48},
    {Qt::Key_9, NoKeys, 57},
    {Qt::Key_Exclam, Qt::ShiftModifier, 49},
    {Qt::Key_ParenRight, Qt::ShiftModifier, 48},
    {Qt::Key_0, Qt::KeypadModifier, 96},
    {Qt::Key_1, Qt::KeypadModifier, 97},
    {Qt::Key_9, Qt::KeypadModifier, 105},
    {Qt::Key_Asterisk, Qt::KeypadModifier, 106},
    {Qt::Key_Plus, Qt::KeypadModifier, 107},
    {Qt::Key_Minus, Qt::KeypadModifier, 109},
    {Qt::Key_Period, Qt::KeypadModifier, 110},
    {Qt::Key_Slash, Qt::KeypadModifier, 111},
    {Qt::Key_Enter, Qt::KeypadModifier, 13},
    {Qt::Key_Home, Qt::KeypadModifier, 36},
    {Qt::Key_Delete, Qt::KeypadModifier, 46},
    {Qt::Key_F1, NoKeys, 112},
    {Qt::Key_F11, NoKeys, 122},
    {Qt::Key_F12, NoKeys, 123},
    {Qt::Key_Space, NoKeys, 32},
    {Qt::Key_Return, NoKeys, 13},
    {Qt::Key_Escape, NoKeys, 27},
    {Qt::Key_Tab, NoKeys, 9},
    {Qt::Key_Backtab, Qt::ShiftModifier, 9},
    {Qt::Key_Backspace, NoKeys, 8},
    {Qt::Key_PageUp, NoKeys, 33},
    {Qt::Key_PageDown, NoKeys, 34},
    {Qt::Key_End, NoKeys, 35},
    {Qt::Key_Home, NoKeys, 36},
    {Qt::Key_Left, NoKeys, 37},
    {Qt::Key_Up, NoKeys, 38},
    {Qt::Key_Right, NoKeys, 39},
    {Qt::Key_Down, NoKeys, 40},
    {Qt::Key_Insert, NoKeys, 45},
    {Qt::Key_Delete, NoKeys, 46},
    {Qt::Key_Shift, Qt::ShiftModifier, 16},
    {Qt::Key_Control, Qt::ControlModifier, 17},
    {Qt::Key_Alt, Qt::AltModifier, 18},
    {Qt::Key_Semicolon, NoKeys, 186},
    {Qt::Key_Plus, Qt::ShiftModifier, 187},
    {Qt::Key_Comma, NoKeys, 188},
    {Qt::Key_Minus, NoKeys, 189},
    {Qt::Key_Period, NoKeys, 190},
    {Qt::Key_Slash, NoKeys, 191},
    {Qt::Key_BracketLeft, NoKeys, 219},
    {Qt::Key_QuoteDbl, Qt::ShiftModifier, 222},
    {Qt::Key_Ntilde, NoKeys, 0},
};

TEST(KeyCodes, AreThoseOfTheKeysWhateverTheyPrint) {
  for (const CodeRow& row : CodeRows) {
    const QKeyEvent event(QEvent::KeyPress, row.iKey, row.modifiers);
    EXPECT_EQ(VirtualKeyCode(event), row.iCode) << std::hex << row.iKey;
  }
}

struct PlaceRow {
  quint32 lScanCode;
  int iKey;
  int iCode;
};

/// Where the system tells the place of a key, the row of digits stays one whatever is printed on
/// it, and the letters of another alphabet are those of a Latin keyboard.
const PlaceRow PlaceRows[] = {
    {10, Qt::Key_Exclam, 49},   {10, Qt::Key_Ampersand, 49},
    {11, Qt::Key_QuoteDbl, 50}, {18, Qt::Key_ParenLeft, 57},
    {19, Qt::Key_Equal, 48},    {16, Qt::Key_Slash, 55},
    {19, Qt::Key_Agrave, 48},   {24, Qt::Key_A, 65},
    {24, 0x0419, 81},           {38, 0x0424, 65},
    {46, 0x0414, 76},           {58, 0x042C, 77},
    {47, Qt::Key_Ntilde, 0},    {58, Qt::Key_Comma, 188},
    {65, Qt::Key_Space, 32},
};

TEST(KeyCodes, FollowThePlaceOnTheKeyboardWhereItIsTold) {
  for (const PlaceRow& row : PlaceRows) {
    const QKeyEvent event(QEvent::KeyPress, row.iKey, NoKeys, row.lScanCode, 0, 0);
    EXPECT_EQ(VirtualKeyCode(event), row.iCode) << row.lScanCode << ' ' << std::hex << row.iKey;
  }
}

struct CharacterRow {
  int iKey;
  QString sText;
  int iCode;
};

const CharacterRow CharacterRows[] = {
    {Qt::Key_A, "a", 97},
    {Qt::Key_A, "A", 65},
    {Qt::Key_Space, " ", 32},
    {Qt::Key_Return, "\r", 13},
    {Qt::Key_Backspace, "\b", 8},
    {Qt::Key_Escape, "\x1b", 27},
    {Qt::Key_Delete, "\x7f", 0},
    {Qt::Key_F1, "", 0},
    {Qt::Key_Left, "", 0},
    {Qt::Key_Eacute, QString::fromUtf8("é"), 0xE9},
    {Qt::Key_unknown, QString::fromUtf8("€"), 0x80},
    {Qt::Key_unknown, QString::fromUtf8("я"), 63},
    {Qt::Key_unknown, "ab", 0},
};

TEST(KeyCodes, AreThoseOfTheCodePageForCharacters) {
  for (const CharacterRow& row : CharacterRows) {
    const QKeyEvent event(QEvent::KeyPress, row.iKey, NoKeys, row.sText);
    EXPECT_EQ(CharacterCode(event), row.iCode) << row.sText.toStdString();
  }
}

}  // namespace
}  // namespace glidetrak
