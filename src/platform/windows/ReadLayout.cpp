#include "platform/ReportLayout.h"

#include "platform/windows/Api.h"

// Behind the system's own declarations, and as those of C, which it leaves to whoever includes it.
extern "C" {
#include <hidsdi.h>
}

namespace glidetrak {

namespace {

/// Whether the first input report of the device bears a number.
bool IsNumbered(PHIDP_PREPARSED_DATA pPreparsed, const HIDP_CAPS& capabilities) {
  USHORT iCount = 1;
  if (capabilities.NumberInputValueCaps > 0) {
    HIDP_VALUE_CAPS value{};
    return HidP_GetValueCaps(HidP_Input, &value, &iCount, pPreparsed) !=
               HIDP_STATUS_INVALID_PREPARSED_DATA &&
           value.ReportID != 0;
  }
  HIDP_BUTTON_CAPS button{};
  return capabilities.NumberInputButtonCaps > 0 &&
         HidP_GetButtonCaps(HidP_Input, &button, &iCount, pPreparsed) !=
             HIDP_STATUS_INVALID_PREPARSED_DATA &&
         button.ReportID != 0;
}

std::optional<ReportLayout> LayoutOf(HANDLE device) {
  PHIDP_PREPARSED_DATA pPreparsed = nullptr;
  if (!HidD_GetPreparsedData(device, &pPreparsed)) return {};
  HIDP_CAPS capabilities{};
  const bool bKnown = HidP_GetCaps(pPreparsed, &capabilities) == HIDP_STATUS_SUCCESS;
  const bool bNumbered = bKnown && IsNumbered(pPreparsed, capabilities);
  HidD_FreePreparsedData(pPreparsed);
  if (!bKnown) return {};
  return ReportLayout{{capabilities.InputReportByteLength, capabilities.OutputReportByteLength},
                      bNumbered};
}

}  // namespace

/// Opened without any right to the device's reports, so that nobody who holds it is in the way.
std::optional<ReportLayout> ReadLayout(const QByteArray& path) {
  const HANDLE device = CreateFileA(path.constData(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
  if (device == INVALID_HANDLE_VALUE) return {};
  const std::optional<ReportLayout> layout = LayoutOf(device);
  CloseHandle(device);
  return layout;
}

}  // namespace glidetrak
