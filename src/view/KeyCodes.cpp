#include "view/KeyCodes.h"

#include "common/UnicodeFunctions.h"

namespace glidetrak {

namespace {

struct KeyRow {
  int iKey;   ///< Qt::Key
  int iCode;  ///< virtual key code
};

constexpr KeyRow MainKeys[] = {
    {Qt::Key_Backspace, 8},   {Qt::Key_Tab, 9},    {Qt::Key_Backtab, 9}, {Qt::Key_Clear, 12},
    {Qt::Key_Return, 13},     {Qt::Key_Enter, 13}, {Qt::Key_Shift, 16},  {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},        {Qt::Key_AltGr, 18}, {Qt::Key_Pause, 19},  {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},     {Qt::Key_Space, 32}, {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},        {Qt::Key_Home, 36},  {Qt::Key_Left, 37},   {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},      {Qt::Key_Down, 40},  {Qt::Key_Print, 44},  {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},     {Qt::Key_Meta, 91},  {Qt::Key_Menu, 93},   {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145}};

constexpr KeyRow PadKeys[] = {{Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
                              {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111}};

/// Keys that bear signs, by either of their two signs on a United States keyboard. The digits stand
/// here by their shifted signs, for systems that do not tell which key was pressed.
constexpr KeyRow SignKeys[] = {
    {Qt::Key_ParenRight, 48},   {Qt::Key_Exclam, 49},        {Qt::Key_At, 50},
    {Qt::Key_NumberSign, 51},   {Qt::Key_Dollar, 52},        {Qt::Key_Percent, 53},
    {Qt::Key_AsciiCircum, 54},  {Qt::Key_Ampersand, 55},     {Qt::Key_Asterisk, 56},
    {Qt::Key_ParenLeft, 57},    {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},         {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},        {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},      {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},    {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219}, {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},         {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},  {Qt::Key_QuoteDbl, 222}};

template <size_t iRows>
int FindCode(const KeyRow (&rows)[iRows], int iKey) {
  for (const KeyRow& row : rows) {
    if (row.iKey == iKey) return row.iCode;
  }
  return 0;
}

/// The key's place on the keyboard, where the system tells it: the row of digits lies at 10 to 19,
/// the letters in three rows below. 0 for any other place.
int CodeByPlace(quint32 lScanCode) {
  if (lScanCode >= 10 && lScanCode <= 18) return '1' + static_cast<int>(lScanCode - 10);
  return lScanCode == 19 ? '0' : 0;
}

/// For a keyboard whose letters are not Latin: what the key bears on a Latin one.
int LetterByPlace(quint32 lScanCode) {
  constexpr struct {
    quint32 lFirst;
    QLatin1String letters;
  } Rows[] = {{24, QLatin1String("QWERTYUIOP")},
              {38, QLatin1String("ASDFGHJKL")},
              {52, QLatin1String("ZXCVBNM")}};
  for (const auto& row : Rows) {
    const qsizetype iPlace = static_cast<qsizetype>(lScanCode) - row.lFirst;
    if (iPlace >= 0 && iPlace < row.letters.size()) return row.letters[iPlace].unicode();
  }
  return 0;
}

int PadCode(int iKey) {
  if (iKey >= Qt::Key_0 && iKey <= Qt::Key_9) return 96 + iKey - Qt::Key_0;
  return FindCode(PadKeys, iKey);
}

int MainCode(int iKey, quint32 lScanCode) {
  if (iKey >= Qt::Key_A && iKey <= Qt::Key_Z) return iKey;
  if (iKey >= Qt::Key_F1 && iKey <= Qt::Key_F24) return 112 + iKey - Qt::Key_F1;
  if (const int iCode = FindCode(MainKeys, iKey)) return iCode;
  if (const int iCode = CodeByPlace(lScanCode)) return iCode;
  if (iKey >= Qt::Key_0 && iKey <= Qt::Key_9) return iKey;
  if (const int iCode = FindCode(SignKeys, iKey)) return iCode;
  return LetterByPlace(lScanCode);
}

}  // namespace

int VirtualKeyCode(const QKeyEvent& event) {
#ifdef Q_OS_WIN
  // The system's own, but for an event that did not come from a keyboard.
  if (event.nativeVirtualKey() != 0) return static_cast<int>(event.nativeVirtualKey());
#endif
  if (event.modifiers() & Qt::KeypadModifier) {
    if (const int iCode = PadCode(event.key())) return iCode;
  }
  return MainCode(event.key(), event.nativeScanCode());
}

int CharacterCode(const QKeyEvent& event) {
  const QString sText = event.text();
  if (sText.size() != 1 || event.key() == Qt::Key_Delete) return 0;
  return CharCode(sText.front());
}

}  // namespace glidetrak
