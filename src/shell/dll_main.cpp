// The library's entry point on Windows. It only remembers the module handle,
// through which the string table and the dialog resources are found; the
// engine is built by the static initialisers, and nothing is released here.
#ifdef _WIN32
#include <windows.h>

#include "frame/engine.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD, LPVOID) {
  if (kvt::instanceHandle == nullptr) kvt::instanceHandle = module;
  return TRUE;
}
#endif
