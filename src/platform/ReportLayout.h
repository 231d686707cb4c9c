#pragma once

// What a HID device tells of its reports. Each system has a way of its own to ask.

#include <QByteArray>
#include <optional>

#include "platform/Hid.h"

namespace glidetrak {

struct ReportLayout {
  HidReportLengths lengths;  ///< of the longest input and output report, the id byte counted
  bool bNumbered = false;    ///< reports carry an id on the wire
};

/// The layout of the device of that path, as Hid::Devices gives it. Nothing when it cannot be read,
/// as while a plug makes contact and loses it again.
std::optional<ReportLayout> ReadLayout(const QByteArray& path);

}  // namespace glidetrak
