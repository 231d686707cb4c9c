#pragma once

// The statements that touch the rig. They reach it only through the output image, the journey
// timer and the last input byte that the tick has left.

#include <QString>

namespace glidetrak {

// Each gets the whole line; false takes the stop path.
bool ExecuteForward(const QString& sText);
bool ExecuteBackward(const QString& sText);
bool ExecutePower(const QString& sText);
bool ExecuteHalt(const QString& sText);
bool ExecuteTimeReset(const QString& sText);

/// PB, a digit 0 to 7 and = at the head of a LET's text.
bool IsPortBitLet(const QString& sText);

/// Sets the output bit by ON or OFF; false after message 510 for anything else.
bool ExecutePortBitLet(const QString& sText);

/// PA, a digit 0 to 7 and = at the head of an IF's text.
bool IsPortBitIf(const QString& sText);

/// Tests the input bit; false after message 503 for anything but ON or OFF.
bool ExecutePortBitIf(const QString& sText);

/// The sensor whose name stands anywhere in an IF's text, "" if none does.
QString FindSensor(const QString& sText);

/// Tests the sensor's bit. False after message 503 when no = is left beside the name, or neither
/// ON nor OFF. ON is looked for first and anywhere, so that junk beside either word passes.
bool TestSensorCondition(const QString& sText, const QString& sSensorName);

/// Sets bIfCondition to whether the bit is as wanted; one that is not leaves the IF's body.
void TestInputBit(int iBit, bool bWantOn);

/// The raw bit, 0 to 7, of the last input byte.
bool InputBitSet(int iBit);

}  // namespace glidetrak
