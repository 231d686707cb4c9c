// A stand-in for hid.dll: the operations that are called of it, answered by the test program.

#include "hid_windows/HidSystem.h"

extern "C" {
#include <hidsdi.h>
}

using glidetrak::HidQuestion;
using glidetrak::HidSystem;
using glidetrak::HidTold;

namespace {

HidSystem* pSystem = nullptr;

const HidTold* Ask(HANDLE device, HidQuestion question) {
  return pSystem == nullptr ? nullptr : pSystem->Ask(device, question);
}

const HidTold& ToldBy(PHIDP_PREPARSED_DATA pPreparsed) {
  return *reinterpret_cast<const HidTold*>(pPreparsed);
}

/// Nobody's device has a text; what matters is that it was asked for one.
BOOLEAN AskText(HANDLE device) {
  Ask(device, HidQuestion::Text);
  return FALSE;
}

/// The system fills no part of a list that does not take all.
template <class Capability>
NTSTATUS FillList(Capability* pList, USHORT* pLength, USHORT iCount, UCHAR iReport) {
  if (*pLength < iCount) return HIDP_STATUS_BUFFER_TOO_SMALL;
  for (USHORT i = 0; i < iCount; ++i) pList[i].ReportID = iReport;
  *pLength = iCount;
  return HIDP_STATUS_SUCCESS;
}

}  // namespace

extern "C" {

__declspec(dllexport) void WINAPI SetHidSystem(HidSystem* pGiven) {
  pSystem = pGiven;
}

__declspec(dllexport) void WINAPI HidD_GetHidGuid(LPGUID pGuid) {
  *pGuid = {0x4D1E55B2, 0xF16F, 0x11CF, {0x88, 0xCB, 0x00, 0x11, 0x11, 0x00, 0x00, 0x30}};
}

__declspec(dllexport) BOOLEAN WINAPI
    HidD_GetAttributes(HANDLE device, PHIDD_ATTRIBUTES pAttributes) {
  const HidTold* pTold = Ask(device, HidQuestion::Attributes);
  if (pTold == nullptr) return FALSE;
  pAttributes->VendorID = pTold->iVendor;
  pAttributes->ProductID = pTold->iProduct;
  pAttributes->VersionNumber = pTold->iVersion;
  return TRUE;
}

__declspec(dllexport) BOOLEAN WINAPI HidD_GetSerialNumberString(HANDLE device, PVOID, ULONG) {
  return AskText(device);
}

__declspec(dllexport) BOOLEAN WINAPI HidD_GetManufacturerString(HANDLE device, PVOID, ULONG) {
  return AskText(device);
}

__declspec(dllexport) BOOLEAN WINAPI HidD_GetProductString(HANDLE device, PVOID, ULONG) {
  return AskText(device);
}

__declspec(dllexport) BOOLEAN WINAPI HidD_GetIndexedString(HANDLE device, ULONG, PVOID, ULONG) {
  return AskText(device);
}

__declspec(dllexport) BOOLEAN WINAPI HidD_SetFeature(HANDLE, PVOID, ULONG) {
  return FALSE;
}

__declspec(dllexport) BOOLEAN WINAPI HidD_GetFeature(HANDLE, PVOID, ULONG) {
  return FALSE;
}

__declspec(dllexport) BOOLEAN WINAPI HidD_GetInputReport(HANDLE, PVOID, ULONG) {
  return FALSE;
}

/// A read is to bring one report, however many wait.
__declspec(dllexport) BOOLEAN WINAPI HidD_SetNumInputBuffers(HANDLE device, ULONG) {
  if (Ask(device, HidQuestion::InputBuffers) == nullptr) return FALSE;
  DWORD iMode = PIPE_READMODE_MESSAGE;
  SetNamedPipeHandleState(device, &iMode, nullptr, nullptr);
  return TRUE;
}

__declspec(dllexport) BOOLEAN WINAPI
    HidD_GetPreparsedData(HANDLE device, PHIDP_PREPARSED_DATA* ppPreparsed) {
  const HidTold* pTold = Ask(device, HidQuestion::Capabilities);
  if (pTold == nullptr || !pTold->bTells) return FALSE;
  *ppPreparsed = reinterpret_cast<PHIDP_PREPARSED_DATA>(const_cast<HidTold*>(pTold));
  return TRUE;
}

__declspec(dllexport) BOOLEAN WINAPI HidD_FreePreparsedData(PHIDP_PREPARSED_DATA) {
  return TRUE;
}

__declspec(dllexport) NTSTATUS WINAPI
    HidP_GetCaps(PHIDP_PREPARSED_DATA pPreparsed, PHIDP_CAPS pCapabilities) {
  const HidTold& told = ToldBy(pPreparsed);
  *pCapabilities = {};
  pCapabilities->InputReportByteLength = told.iInput;
  pCapabilities->OutputReportByteLength = told.iOutput;
  pCapabilities->NumberInputValueCaps = told.iValues;
  pCapabilities->NumberInputButtonCaps = told.iButtons;
  return HIDP_STATUS_SUCCESS;
}

__declspec(dllexport) NTSTATUS WINAPI
    HidP_GetValueCaps(HIDP_REPORT_TYPE, PHIDP_VALUE_CAPS pList, PUSHORT pLength,
                      PHIDP_PREPARSED_DATA pPreparsed) {
  const HidTold& told = ToldBy(pPreparsed);
  return FillList(pList, pLength, told.iValues, told.iReport);
}

__declspec(dllexport) NTSTATUS WINAPI
    HidP_GetButtonCaps(HIDP_REPORT_TYPE, PHIDP_BUTTON_CAPS pList, PUSHORT pLength,
                       PHIDP_PREPARSED_DATA pPreparsed) {
  const HidTold& told = ToldBy(pPreparsed);
  return FillList(pList, pLength, told.iButtons, told.iReport);
}

}  // extern "C"
