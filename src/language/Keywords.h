#pragma once

// The words of the language are data: they come from the string store, and the logic compares with
// KeywordTable. Both languages of the store hold the same words, so that a program is portable.

#include <QString>
#include <array>

namespace glidetrak {

/// In the order of their texts, from idWordPrint.
enum class Keyword {
  Print,
  Break,
  Label,
  Goto,
  Let,
  If,
  Then,
  EndIf,
  Wait,
  Get,
  Beep,
  Power,
  Halt,
  Forward,
  Backward,
  On,
  Off,
  StartButton,
  CityCall,
  AirportCall,
  LightSensor,
  TimeGateA,
  TimeGateB,
  TimeReset,
  SoundSensor,
};

constexpr int iKeywordCount = static_cast<int>(Keyword::SoundSensor) + 1;

/// Empty until LoadKeywords.
inline std::array<QString, iKeywordCount> KeywordTable;

inline const QString& Word(Keyword keyword) {
  return KeywordTable[static_cast<size_t>(keyword)];
}

/// Reads the 25 words from the string store.
void LoadKeywords();

}  // namespace glidetrak
