// A stand-in for the help viewer: its entry at ordinal 14 records the owner
// window and the path it was asked to open, and FakeViewerCalls lets the
// test read them back. Loaded by the library through the viewer's registry
// entry, or as hhctrl.ocx from the program's folder.
#include <windows.h>

namespace {
char lastPath[MAX_PATH];
HWND lastOwner;
int calls;
}  // namespace

extern "C" {

HWND WINAPI FakeHtmlHelp(HWND owner, LPCSTR path, UINT command, DWORD_PTR data) {
  if (command == 0 && data == 0) {
    lstrcpynA(lastPath, path, MAX_PATH);
    lastOwner = owner;
    ++calls;
  }
  return nullptr;
}

int WINAPI FakeViewerCalls(char* path, int size, HWND* owner) {
  lstrcpynA(path, lastPath, size);
  *owner = lastOwner;
  return calls;
}
}
