// A stand-in for cfgmgr32.dll: which devices are present, told by the test program. What a device
// hangs on is told of none.

#include "hid_windows/HidSystem.h"

namespace {

constexpr DWORD iSuccess = 0x00;
constexpr DWORD iFailure = 0x13;
constexpr DWORD iSmallBuffer = 0x1A;

glidetrak::HidSystem* pSystem = nullptr;

}  // namespace

extern "C" {

__declspec(dllexport) void WINAPI SetHidSystem(glidetrak::HidSystem* pGiven) {
  pSystem = pGiven;
}

__declspec(dllexport) DWORD WINAPI
    CM_Get_Device_Interface_List_SizeW(PULONG pLength, LPGUID, wchar_t*, ULONG) {
  if (pSystem == nullptr) return iFailure;
  *pLength = pSystem->Paths(nullptr, 0);
  return iSuccess;
}

__declspec(dllexport) DWORD WINAPI
    CM_Get_Device_Interface_ListW(LPGUID, wchar_t*, wchar_t* pPaths, ULONG iLength, ULONG) {
  if (pSystem == nullptr) return iFailure;
  return pSystem->Paths(pPaths, iLength) > iLength ? iSmallBuffer : iSuccess;
}

__declspec(dllexport) DWORD WINAPI CM_Locate_DevNodeW(DWORD*, wchar_t*, ULONG) {
  return iFailure;
}

__declspec(dllexport) DWORD WINAPI CM_Get_Parent(DWORD*, DWORD, ULONG) {
  return iFailure;
}

__declspec(dllexport) DWORD WINAPI
    CM_Get_DevNode_PropertyW(DWORD, const void*, ULONG*, PBYTE, PULONG, ULONG) {
  return iFailure;
}

__declspec(dllexport) DWORD WINAPI
    CM_Get_Device_Interface_PropertyW(LPCWSTR, const void*, ULONG*, PBYTE, PULONG, ULONG) {
  return iFailure;
}

}  // extern "C"
