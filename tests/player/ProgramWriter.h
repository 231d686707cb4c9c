#pragma once

// Control Programs made of random statements. None hangs in an expression: a + never stands where
// an operand is awaited.

#include <QString>

#include "player/Dice.h"

namespace glidetrak {

/// bPowerBits lets the program set the output bits of the motor's power one by one, which the
/// station's power does not hear of.
QString WriteProgram(Dice& dice, bool bPowerBits);

}  // namespace glidetrak
