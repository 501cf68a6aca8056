// Help and about under wine: the five places of the help-file search in
// their order, the viewer loaded from its registry entry, from hhctrl.ocx by
// name, or not at all (and then never tried again), the message box when no
// file is found, the about box, and the owner window. The boxes are modal,
// so a watcher thread finds each one, checks it and posts it a close.
//
//   test_help.exe path\to\kvtcore6.dll path\to\fake_viewer.dll [--show-about|--show-missing-help]
#include <windows.h>

#include <atomic>
#include <cstring>
#include <string>
#include <thread>

#include "check.h"
#include "kvtcore.h"
#include "shell/resource_ids.h"

namespace {

const char kInstallKey[] = "SOFTWARE\\Brendal\\Korvane\\6.0";
const char kViewerClass[] = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";

HMODULE dll;
decltype(&kvtSHOWKVTHELP) showHelp;
decltype(&kvtSHOWABOUT) showAbout;
decltype(&kvtGETLASTERROR) lastError;
decltype(&kvtSETLASTERROR) setLastError;

std::string Folder(const std::string& path) { return path.substr(0, path.find_last_of('\\')); }

std::string ModuleFile(HMODULE module) {
  char path[MAX_PATH];
  GetModuleFileNameA(module, path, MAX_PATH);
  return path;
}

void WriteFile(const std::string& path) {
  HANDLE h = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  CloseHandle(h);
}

void SetDefault(HKEY root, const std::string& key, const std::string& value) {
  RegSetKeyValueA(root, key.c_str(), nullptr, REG_SZ, value.c_str(),
                  static_cast<DWORD>(value.size() + 1));
}

std::string GetDefault(HKEY root, const char* key) {
  char value[MAX_PATH + 1] = {};
  DWORD bytes = MAX_PATH;
  RegGetValueA(root, key, nullptr, RRF_RT_REG_SZ, nullptr, value, &bytes);
  return value;
}

std::wstring Resource(UINT id) {
  const wchar_t* text = nullptr;
  int n = LoadStringW(dll, id, reinterpret_cast<LPWSTR>(&text), 0);
  return n > 0 ? std::wstring(text, static_cast<size_t>(n)) : std::wstring();
}

std::wstring ItemText(HWND box, int id) {
  wchar_t text[512] = {};
  GetDlgItemTextW(box, id, text, 512);
  return text;
}

// Runs a call that may open boxes titled "Korvane 6.0"; each box is handed
// to inspect and then closed. Returns the number of boxes seen.
template <class Call, class Inspect> int WithBoxes(Call call, Inspect inspect) {
  std::atomic<bool> done{false};
  int seen = 0;
  std::thread watcher([&] {
    HWND last = nullptr;
    for (int i = 0; i < 3000 && !done; ++i) {
      HWND box = FindWindowW(L"#32770", L"Korvane 6.0");
      DWORD pid = 0;
      if (box != nullptr && box != last && GetWindowThreadProcessId(box, &pid) &&
          pid == GetCurrentProcessId() && IsWindowVisible(box)) {
        ++seen;
        last = box;
        inspect(box);
        PostMessageW(box, WM_CLOSE, 0, 0);
      }
      Sleep(10);
    }
  });
  double result = call();
  done = true;
  watcher.join();
  CHECK(result == 1.0);
  CHECK(lastError() == 0);
  return seen;
}

struct Viewer {
  std::string path;
  HWND owner = nullptr;
  int calls = 0;
};

Viewer ViewerState(const char* module) {
  Viewer v;
  HMODULE m = GetModuleHandleA(module);
  if (m == nullptr) return v;
  using Query = int(WINAPI*)(char*, int, HWND*);
  auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(GetProcAddress(m, "FakeViewerCalls")));
  if (!CHECK(query != nullptr)) return v;  // another viewer than the stand-in
  char path[MAX_PATH] = {};
  v.calls = query(path, MAX_PATH, &v.owner);
  v.path = path;
  return v;
}

// One help call that must reach the viewer with the expected path and owner.
void HelpOpens(const std::string& expected, int32_t window, HWND owner, const char* module) {
  const int before = ViewerState(module).calls;
  setLastError(5);
  int boxes = WithBoxes([&] { return showHelp(window); }, [](HWND) {});
  Viewer v = ViewerState(module);
  CHECK(boxes == 0);
  if (!CHECK(v.calls == before + 1 && v.path == expected))
    std::printf("  expected %s, viewer got %s (%d calls)\n", expected.c_str(), v.path.c_str(), v.calls);
  CHECK(v.owner == owner);
}

struct Places {
  std::string root, exe, lib, reg, install, work;
};

// Removes what a run leaves behind (the library copy only once unloaded).
void CleanUp(const Places& at) {
  for (const std::string& d : {at.lib, at.reg, at.install, at.work})
    DeleteFileA((d + "\\kvtcore6.chm").c_str());
  DeleteFileA((at.lib + "\\kvtcore6.dll").c_str());
  for (const std::string& d : {at.lib, at.reg, at.install, at.work, at.root})
    RemoveDirectoryA(d.c_str());
}

void SearchOrder(const Places& at, HWND window) {
  // Nowhere: one message box with text 114 under title 100, no viewer.
  std::wstring text, title;
  int boxes = WithBoxes([] { return showHelp(0); }, [&](HWND box) {
    text = ItemText(box, 0xFFFF);
    wchar_t t[64] = {};
    GetWindowTextW(box, t, 64);
    title = t;
  });
  CHECK(boxes == 1);
  CHECK(text == Resource(IDS_NOHELPFILE));
  CHECK(title == L"Korvane 6.0");
  CHECK(GetModuleHandleA("fake_viewer.dll") == nullptr);

  // Then each place in turn, from the last to the first: each new file wins.
  const HWND active = GetActiveWindow();
  WriteFile(at.work + "\\kvtcore6.chm");
  HelpOpens("kvtcore6.chm", 0, active, "fake_viewer.dll");

  std::string key = std::string(kInstallKey);
  SetDefault(HKEY_CURRENT_USER, key + "\\Install", at.install);
  WriteFile(at.install + "\\kvtcore6.chm");
  HelpOpens(at.install + "\\kvtcore6.chm", 0, active, "fake_viewer.dll");

  const DWORD number = 7;  // a default value that is not a string is passed over
  RegSetKeyValueA(HKEY_CURRENT_USER, kInstallKey, nullptr, REG_DWORD, &number, sizeof number);
  HelpOpens(at.install + "\\kvtcore6.chm", 0, active, "fake_viewer.dll");

  SetDefault(HKEY_CURRENT_USER, key, at.reg);
  HelpOpens(at.install + "\\kvtcore6.chm", 0, active, "fake_viewer.dll");  // no file there yet
  WriteFile(at.reg + "\\kvtcore6.chm");
  HelpOpens(at.reg + "\\kvtcore6.chm", 0, active, "fake_viewer.dll");

  WriteFile(at.lib + "\\kvtcore6.chm");
  HelpOpens(at.lib + "\\kvtcore6.chm", 12345, active, "fake_viewer.dll");  // no window: the active one

  WriteFile(at.exe + "\\kvtcore6.chm");
  HelpOpens(at.exe + "\\kvtcore6.chm",
            static_cast<int32_t>(reinterpret_cast<intptr_t>(window)), window, "fake_viewer.dll");
  DeleteFileA((at.exe + "\\kvtcore6.chm").c_str());
}

void AboutBox(HWND window) {
  HICON big = nullptr, small = nullptr;
  HWND owner = nullptr;
  std::wstring line1, line2;
  int boxes = WithBoxes(
      [&] { return showAbout(static_cast<int32_t>(reinterpret_cast<intptr_t>(window))); },
      [&](HWND box) {
        line1 = ItemText(box, IDC_ABOUT_LINE1);
        line2 = ItemText(box, IDC_ABOUT_LINE2);
        big = reinterpret_cast<HICON>(SendMessageW(box, WM_GETICON, ICON_BIG, 0));
        small = reinterpret_cast<HICON>(SendMessageW(box, WM_GETICON, ICON_SMALL, 0));
        owner = GetWindow(box, GW_OWNER);
      });
  CHECK(boxes == 1);
  CHECK(line1 == Resource(IDS_ABOUT1));
  CHECK(line2 == Resource(IDS_ABOUT2));
  CHECK(big != nullptr && small != nullptr);
  CHECK(owner == window);
  // A handle that is no window: the box still opens and closes.
  CHECK(WithBoxes([] { return showAbout(12345); }, [](HWND) {}) == 1);
}

// A child run of this program with one viewer situation; returns its exit
// code. loadOrder is wine's load order for hhctrl.ocx in that run ("native":
// the stand-in in this program's folder, "": none at all).
DWORD Child(const char* mode, const char* dllPath, const char* viewer, const char* loadOrder) {
  std::string command = "\"" + ModuleFile(nullptr) + "\" \"" + dllPath + "\" \"" + viewer + "\" " + mode;
  const char kOverrides[] = "Software\\Wine\\DllOverrides";
  RegSetKeyValueA(HKEY_CURRENT_USER, kOverrides, "hhctrl.ocx", REG_SZ, loadOrder,
                  static_cast<DWORD>(std::strlen(loadOrder) + 1));
  STARTUPINFOA si = {};
  si.cb = sizeof si;
  PROCESS_INFORMATION pi = {};
  DWORD code = 99;
  if (CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &si, &pi)) {
    WaitForSingleObject(pi.hProcess, 60000);
    GetExitCodeProcess(pi.hProcess, &code);
    CloseHandle(pi.hProcess);
    CloseHandle(pi.hThread);
  }
  RegDeleteKeyValueA(HKEY_CURRENT_USER, kOverrides, "hhctrl.ocx");
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::printf("usage: test_help path\\to\\kvtcore6.dll path\\to\\fake_viewer.dll\n");
    return 2;
  }
  const std::string mode = argc > 3 ? argv[3] : "";
  char temp[MAX_PATH];
  GetTempPathA(MAX_PATH, temp);
  Places at;
  at.exe = Folder(ModuleFile(nullptr));
  const std::string root = std::string(temp) + "kvt_help_" + std::to_string(GetCurrentProcessId());
  at.root = root;
  at.lib = root + "\\lib";
  at.reg = root + "\\reg";
  at.install = root + "\\install";
  at.work = root + "\\work";
  CleanUp(at);
  for (const std::string& d : {root, at.lib, at.reg, at.install, at.work}) CreateDirectoryA(d.c_str(), nullptr);
  // The library in a folder of its own, apart from this program.
  CopyFileA(argv[1], (at.lib + "\\kvtcore6.dll").c_str(), FALSE);
  SetCurrentDirectoryA(at.work.c_str());
  dll = LoadLibraryA((at.lib + "\\kvtcore6.dll").c_str());
  if (!CHECK(dll != nullptr)) return check::Summary();
  showHelp = reinterpret_cast<decltype(showHelp)>(reinterpret_cast<void*>(GetProcAddress(dll, "kvtSHOWKVTHELP")));
  showAbout = reinterpret_cast<decltype(showAbout)>(reinterpret_cast<void*>(GetProcAddress(dll, "kvtSHOWABOUT")));
  lastError = reinterpret_cast<decltype(lastError)>(reinterpret_cast<void*>(GetProcAddress(dll, "kvtGETLASTERROR")));
  setLastError = reinterpret_cast<decltype(setLastError)>(reinterpret_cast<void*>(GetProcAddress(dll, "kvtSETLASTERROR")));
  if (!CHECK(showHelp && showAbout && lastError && setLastError)) return check::Summary();
  WriteFile(at.work + "\\kvtcore6.chm");

  if (mode == "--show-about" || mode == "--show-missing-help") {
    // For screenshots: the box stays until something else closes it.
    DeleteFileA((at.work + "\\kvtcore6.chm").c_str());
    return mode == "--show-about" ? showAbout(0) == 1.0 ? 0 : 1 : showHelp(0) == 1.0 ? 0 : 1;
  }
  if (mode == "--fallback") {
    // The registry names no loadable viewer: hhctrl.ocx by its plain name.
    HelpOpens("kvtcore6.chm", 0, GetActiveWindow(), "hhctrl.ocx");
    FreeLibrary(dll);
    CleanUp(at);
    return check::Summary();
  }
  if (mode == "--none") {
    // No viewer at all: nothing happens, and no later call tries again even
    // once a viewer is registered.
    CHECK(WithBoxes([] { return showHelp(0); }, [](HWND) {}) == 0);
    SetDefault(HKEY_CLASSES_ROOT, kViewerClass, argv[2]);
    CHECK(WithBoxes([] { return showHelp(0); }, [](HWND) {}) == 0);
    CHECK(GetModuleHandleA("fake_viewer.dll") == nullptr);
    FreeLibrary(dll);
    CleanUp(at);
    return check::Summary();
  }
  DeleteFileA((at.work + "\\kvtcore6.chm").c_str());

  HKEY machine = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kInstallKey, 0, KEY_READ, &machine) == ERROR_SUCCESS) {
    RegCloseKey(machine);
    std::printf("the installation key exists under the local machine; remove it to run this test\n");
    CHECK(false);
    return check::Summary();
  }
  RegDeleteTreeA(HKEY_CURRENT_USER, "SOFTWARE\\Brendal");
  const std::string viewerBefore = GetDefault(HKEY_CLASSES_ROOT, kViewerClass);
  SetDefault(HKEY_CLASSES_ROOT, kViewerClass, argv[2]);

  HWND window = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100,
                                nullptr, nullptr, nullptr, nullptr);
  SearchOrder(at, window);
  AboutBox(window);

  // The two viewer situations that need a fresh library: in child runs,
  // which find the help file in their working folder.
  RegDeleteTreeA(HKEY_CURRENT_USER, "SOFTWARE\\Brendal");
  SetDefault(HKEY_CLASSES_ROOT, kViewerClass, root + "\\no_such_viewer.dll");
  const std::string standIn = at.exe + "\\hhctrl.ocx";
  CopyFileA(argv[2], standIn.c_str(), FALSE);
  CHECK(Child("--fallback", argv[1], argv[2], "native") == 0);
  DeleteFileA(standIn.c_str());
  CHECK(Child("--none", argv[1], argv[2], "") == 0);

  SetDefault(HKEY_CLASSES_ROOT, kViewerClass, viewerBefore);
  DestroyWindow(window);
  FreeLibrary(dll);
  CleanUp(at);
  return check::Summary();
}
