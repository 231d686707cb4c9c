#pragma once

// The names that head a statement or stand in the command picker, in alphabetical order.

#include <QString>
#include <array>

#include "language/Keywords.h"

namespace glidetrak {

/// One name as data. A name that goes on with an argument is shown with one trailing blank.
struct CommandNameRow {
  Keyword keyword;
  bool bTakesArgument;
  bool bIsSensor;
};

inline constexpr std::array CommandNameRows{
    CommandNameRow{Keyword::AirportCall, false, true},
    CommandNameRow{Keyword::Backward, false, false},
    CommandNameRow{Keyword::Beep, false, false},
    CommandNameRow{Keyword::Break, false, false},
    CommandNameRow{Keyword::CityCall, false, true},
    CommandNameRow{Keyword::EndIf, false, false},
    CommandNameRow{Keyword::Forward, false, false},
    CommandNameRow{Keyword::Get, true, false},
    CommandNameRow{Keyword::Goto, true, false},
    CommandNameRow{Keyword::Halt, false, false},
    CommandNameRow{Keyword::If, true, false},
    CommandNameRow{Keyword::Label, true, false},
    CommandNameRow{Keyword::Let, true, false},
    CommandNameRow{Keyword::LightSensor, false, true},
    CommandNameRow{Keyword::Power, true, false},
    CommandNameRow{Keyword::Print, true, false},
    CommandNameRow{Keyword::SoundSensor, false, true},
    CommandNameRow{Keyword::StartButton, false, true},
    CommandNameRow{Keyword::TimeGateA, false, true},
    CommandNameRow{Keyword::TimeGateB, false, true},
    CommandNameRow{Keyword::TimeReset, false, false},
    CommandNameRow{Keyword::Wait, true, false},
};

constexpr int iCommandNameCount = static_cast<int>(CommandNameRows.size());
static_assert(iCommandNameCount == 22);

struct CommandName {
  QString sName;           ///< the word, with its trailing blank where an argument follows
  bool bIsSensor = false;  ///< no statement begins with it
};

/// One entry a row, and a last one that stays empty. The command catalogue fills it at start-up,
/// from KeywordTable.
inline std::array<CommandName, iCommandNameCount + 1> CommandNameTable;

}  // namespace glidetrak
