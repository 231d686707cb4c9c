#include "platform/ReportLayout.h"

#include <vector>

#include "platform/windows/HidPath.h"

// Behind the system's own declarations, and as those of C, which it leaves to whoever includes it.
extern "C" {
#include <hidsdi.h>
}

namespace glidetrak {

namespace {

/// Whether the first of iCount such things in the input reports stands in one that bears a number.
/// The system fills no part of a list that does not take all of them.
template <class Capabilities>
bool IsFirstNumbered(NTSTATUS(WINAPI* pAsk)(HIDP_REPORT_TYPE, Capabilities*, PUSHORT,
                                            PHIDP_PREPARSED_DATA),
                     USHORT iCount, PHIDP_PREPARSED_DATA pPreparsed) {
  if (iCount == 0) return false;
  std::vector<Capabilities> aList(iCount);
  return pAsk(HidP_Input, aList.data(), &iCount, pPreparsed) == HIDP_STATUS_SUCCESS &&
         aList[0].ReportID != 0;
}

/// A device numbers all of its reports or none.
bool IsNumbered(PHIDP_PREPARSED_DATA pPreparsed, const HIDP_CAPS& capabilities) {
  return IsFirstNumbered(HidP_GetValueCaps, capabilities.NumberInputValueCaps, pPreparsed) ||
         IsFirstNumbered(HidP_GetButtonCaps, capabilities.NumberInputButtonCaps, pPreparsed);
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
  const HANDLE device = OpenHidPath(path, 0);
  if (device == INVALID_HANDLE_VALUE) return {};
  const std::optional<ReportLayout> layout = LayoutOf(device);
  CloseHandle(device);
  return layout;
}

}  // namespace glidetrak
