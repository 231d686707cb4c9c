// A parallel library whose operations are exported by the names that the standard call convention
// makes of them, and that answers each call with its arguments.

extern "C" {

__declspec(dllexport) int __stdcall LPTAvailable() {
  return 5;
}

__declspec(dllexport) int __stdcall LPTAddress(int lPort) {
  return 0x378 + lPort;
}

__declspec(dllexport) int __stdcall WriteAdapter(int lAddress, int lValue) {
  return lAddress * 256 + lValue;
}
}
