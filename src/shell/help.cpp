// Help and about: the two calls with a user interface. They run in the
// guarded frame like every export and return 1; a missing help file is told
// to the user in a message box and is not an error.
#include "frame/engine.h"

#ifdef _WIN32
#include <windows.h>
#include <shlwapi.h>

#include <string>

#include "shell/resource_ids.h"

namespace kvt {

namespace {

// The viewer's entry by ordinal 14 takes an 8-bit path, so the search works
// in the host's code page throughout.
const char kHelpFile[] = "kvtcore6.chm";
const char kInstallKey[] = "SOFTWARE\\Brendal\\Korvane\\6.0";
const char kViewerClass[] = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";

using Path = char[MAX_PATH];

HINSTANCE Module() { return static_cast<HINSTANCE>(instanceHandle); }

// A handle that is no window gives way to the active window (or none).
HWND OwnerWindow(int32_t window) {
  HWND w = reinterpret_cast<HWND>(static_cast<intptr_t>(window));
  return IsWindow(w) ? w : GetActiveWindow();
}

bool FileExists(const char* path) {
  WIN32_FIND_DATAA found;
  HANDLE h = FindFirstFileA(path, &found);
  if (h == INVALID_HANDLE_VALUE) return false;
  FindClose(h);
  return true;
}

// Joins a folder with the help file's name; true if the file is there.
bool TryFolder(const char* folder, Path& path) {
  lstrcpynA(path, folder, MAX_PATH);
  return PathAppendA(path, kHelpFile) && FileExists(path);
}

// The folder of a module's file: its file name without the last component.
bool TryModuleFolder(HMODULE module, Path& path) {
  Path folder;
  DWORD n = GetModuleFileNameA(module, folder, MAX_PATH);
  if (n == 0 || n >= MAX_PATH) return false;
  PathRemoveFileSpecA(folder);
  return TryFolder(folder, path);
}

// The default value of a key when it is a string of at most 261 characters.
bool ReadDefault(HKEY key, char (&value)[MAX_PATH + 1]) {
  DWORD type = 0, bytes = sizeof value - 1;
  if (RegQueryValueExA(key, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(value), &bytes) !=
          ERROR_SUCCESS ||
      type != REG_SZ)
    return false;
  value[bytes] = 0;
  return true;
}

// The installation key: under the local machine first, then the current user.
HKEY OpenInstallKey() {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kInstallKey, 0, KEY_READ, &key) == ERROR_SUCCESS)
    return key;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, kInstallKey, 0, KEY_READ, &key) == ERROR_SUCCESS)
    return key;
  return nullptr;
}

// The folder in the default value of the installation key or of its subkey.
bool TryRegistry(const char* subkey, Path& path) {
  HKEY key = OpenInstallKey();
  if (key == nullptr) return false;
  HKEY from = key;
  bool found = false;
  if (subkey == nullptr || RegOpenKeyExA(key, subkey, 0, KEY_READ, &from) == ERROR_SUCCESS) {
    char folder[MAX_PATH + 1];
    found = ReadDefault(from, folder) && TryFolder(folder, path);
    if (from != key) RegCloseKey(from);
  }
  RegCloseKey(key);
  return found;
}

// The five places, in order: beside the host program, beside this library,
// the installation folder from the registry, its Install subkey, and the
// bare name (the working folder). False if none holds the file.
bool FindHelpFile(Path& path) {
  if (TryModuleFolder(nullptr, path)) return true;
  if (TryModuleFolder(Module(), path)) return true;
  if (TryRegistry(nullptr, path)) return true;
  if (TryRegistry("Install", path)) return true;
  lstrcpynA(path, kHelpFile, MAX_PATH);
  return FileExists(path);
}

// The help viewer, loaded at first use and kept; a failed load is not tried
// again while the library stays loaded.
using HelpViewer = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);
HMODULE viewerModule = nullptr;
HelpViewer viewerEntry = nullptr;
bool viewerFailed = false;

HMODULE LoadRegisteredViewer() {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CLASSES_ROOT, kViewerClass, 0, KEY_READ, &key) != ERROR_SUCCESS)
    return nullptr;
  char path[MAX_PATH + 1];
  HMODULE module = ReadDefault(key, path) ? LoadLibraryA(path) : nullptr;
  RegCloseKey(key);
  return module;
}

HelpViewer Viewer() {
  if (viewerEntry != nullptr || viewerFailed) return viewerEntry;
  viewerModule = LoadRegisteredViewer();
  if (viewerModule == nullptr) viewerModule = LoadLibraryA("hhctrl.ocx");
  if (viewerModule != nullptr)
    viewerEntry = reinterpret_cast<HelpViewer>(
        reinterpret_cast<void*>(GetProcAddress(viewerModule, MAKEINTRESOURCEA(14))));
  if (viewerEntry == nullptr) viewerFailed = true;
  return viewerEntry;
}

// A string of the table.
std::wstring ResourceString(UINT id) {
  const wchar_t* text = nullptr;
  int n = LoadStringW(Module(), id, reinterpret_cast<LPWSTR>(&text), 0);
  return n > 0 ? std::wstring(text, static_cast<size_t>(n)) : std::wstring();
}

INT_PTR CALLBACK AboutProc(HWND dialog, UINT message, WPARAM wparam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG: {
      SetWindowTextW(dialog, ResourceString(IDS_TITLE).c_str());
      SetDlgItemTextW(dialog, IDC_ABOUT_LINE1, ResourceString(IDS_ABOUT1).c_str());
      SetDlgItemTextW(dialog, IDC_ABOUT_LINE2, ResourceString(IDS_ABOUT2).c_str());
      const int big = GetSystemMetrics(SM_CXICON), small = GetSystemMetrics(SM_CXSMICON);
      HANDLE large = LoadImageW(Module(), MAKEINTRESOURCEW(IDI_KVTCORE), IMAGE_ICON, big, big,
                                LR_SHARED);
      HANDLE little = LoadImageW(Module(), MAKEINTRESOURCEW(IDI_KVTCORE), IMAGE_ICON, small,
                                 small, LR_SHARED);
      SendMessageW(dialog, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large));
      SendMessageW(dialog, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(little));
      return TRUE;
    }
    case WM_COMMAND:
      if (LOWORD(wparam) == IDOK || LOWORD(wparam) == IDCANCEL) {
        EndDialog(dialog, LOWORD(wparam));
        return TRUE;
      }
      break;
  }
  return FALSE;
}

}  // namespace

double Engine::SHOWKVTHELP(int32_t window) {
  HWND owner = OwnerWindow(window);
  Path path;
  if (FindHelpFile(path)) {
    if (HelpViewer viewer = Viewer()) viewer(owner, path, 0, 0);
  } else {
    MessageBoxW(owner, ResourceString(IDS_NOHELPFILE).c_str(), ResourceString(IDS_TITLE).c_str(),
                MB_OK | MB_ICONEXCLAMATION);
  }
  return 1.0;
}

double Engine::SHOWABOUT(int32_t window) {
  DialogBoxParamW(Module(), MAKEINTRESOURCEW(IDD_ABOUT), OwnerWindow(window), AboutProc, 0);
  return 1.0;
}

}  // namespace kvt

#else

namespace kvt {

// Without Windows there is no viewer and no dialog: only the result.
double Engine::SHOWKVTHELP(int32_t) { return 1.0; }
double Engine::SHOWABOUT(int32_t) { return 1.0; }

}  // namespace kvt

#endif
