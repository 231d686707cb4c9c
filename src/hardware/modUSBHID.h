#pragma once

// The numbers of the HID exchange.

#include <QtGlobal>

namespace glidetrak {

constexpr qint32 lReadTimeOut = 1000;  ///< milliseconds that a read waits for its report

constexpr qint16 iAnyVersion = -1;

constexpr qint16 iDefaultVendorID = 3326;
constexpr qint16 iDefaultProductID = 67;

}  // namespace glidetrak
