// The DLL as a Windows host sees it: every row of the catalogue is found by
// its name and by its ordinal at the same address, no other ordinal or name
// is exported, and the error descriptions come from the string table, the
// wide ones as UTF-16 and the 8-bit ones in the code page the process uses.
//
//   test_exports.exe path\to\kvtcore6.dll
#include <windows.h>

#include <cstring>
#include <set>
#include <string>

#include "check.h"
#include "kvtcore.h"
#include "shell/error_texts.h"
#include "shell/resource_ids.h"

namespace {

struct Row {
  int ordinal;
  const char* name;
};

#define KVT_ROW(ord, name, shape, rule, core, args, result) {ord, #name},
const Row kRows[] = {KVT_CATALOGUE(KVT_ROW)};

// The function of a row, by name, with the row's own C type.
template <class F> F Export(HMODULE dll, const char* name) {
  return reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(dll, name)));
}

void ByNameAndOrdinal(HMODULE dll) {
  std::set<int> ordinals;
  for (const Row& row : kRows) {
    FARPROC byName = GetProcAddress(dll, row.name);
    FARPROC byOrdinal = GetProcAddress(dll, MAKEINTRESOURCEA(row.ordinal));
    if (!CHECK(byName != nullptr && byName == byOrdinal))
      std::printf("  %s @%d\n", row.name, row.ordinal);
    ordinals.insert(row.ordinal);
  }
  CHECK(ordinals.size() == sizeof kRows / sizeof kRows[0]);
  int strays = 0;
  for (int ordinal = 1; ordinal < 4096; ++ordinal) {
    if (ordinals.count(ordinal)) continue;
    if (GetProcAddress(dll, MAKEINTRESOURCEA(ordinal)) != nullptr) {
      std::printf("  ordinal %d resolves but is in no row\n", ordinal);
      ++strays;
    }
  }
  CHECK(strays == 0);
}

// The export directory of the loaded image: exactly the catalogue's names,
// undecorated, each at its row's ordinal.
void ExportDirectory(HMODULE dll) {
  const auto* base = reinterpret_cast<const BYTE*>(dll);
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& dir = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
  const auto* exports = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + dir.VirtualAddress);
  const auto* names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
  const auto* indices = reinterpret_cast<const WORD*>(base + exports->AddressOfNameOrdinals);
  const auto* functions = reinterpret_cast<const DWORD*>(base + exports->AddressOfFunctions);

  CHECK(exports->NumberOfNames == sizeof kRows / sizeof kRows[0]);
  int wrong = 0;
  for (DWORD i = 0; i < exports->NumberOfNames; ++i) {
    const char* name = reinterpret_cast<const char*>(base + names[i]);
    const int ordinal = static_cast<int>(exports->Base + indices[i]);
    bool known = false;
    for (const Row& row : kRows) known = known || (std::strcmp(row.name, name) == 0 && row.ordinal == ordinal);
    if (!known || std::strchr(name, '@') != nullptr || name[0] == '_') {
      std::printf("  exported %s @%d is not a catalogue row\n", name, ordinal);
      ++wrong;
    }
  }
  CHECK(wrong == 0);
  int unnamed = 0;
  for (DWORD i = 0; i < exports->NumberOfFunctions; ++i) {
    if (functions[i] == 0) continue;
    bool named = false;
    for (DWORD k = 0; k < exports->NumberOfNames; ++k) named = named || indices[k] == i;
    if (!named) ++unnamed;
  }
  CHECK(unnamed == 0);
}

std::string Narrow(const wchar_t* text, UINT codePage) {
  int n = WideCharToMultiByte(codePage, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string s(static_cast<size_t>(n), '\0');
  WideCharToMultiByte(codePage, 0, text, -1, &s[0], n, nullptr, nullptr);
  s.resize(std::strlen(s.c_str()));
  return s;
}

void Descriptions(HMODULE dll) {
  auto set = Export<decltype(&kvtSETLASTERROR)>(dll, "kvtSETLASTERROR");
  auto get = Export<decltype(&kvtGETLASTERROR)>(dll, "kvtGETLASTERROR");
  auto narrow = Export<decltype(&kvtGETLASTERRORDESCRIPTION)>(dll, "kvtGETLASTERRORDESCRIPTION");
  auto wide = Export<decltype(&kvtGETLASTERRORDESCRIPTIONW)>(dll, "kvtGETLASTERRORDESCRIPTIONW");
  if (!CHECK(set && get && narrow && wide)) return;
  const UINT codePage = GetACP();
  std::printf("ANSI code page %u\n", codePage);
  for (int32_t code = 0; code <= 11; ++code) {
    set(code);
    const char16_t* expected = kvt::ErrorTextW(code);
    const char16_t* w = wide();
    if (!CHECK(w != nullptr && std::u16string(w) == expected)) std::printf("  code %d (W)\n", code);
    const char* a = narrow();
    const std::string bytes = Narrow(reinterpret_cast<const wchar_t*>(expected), codePage);
    if (!CHECK(a != nullptr && bytes == a)) std::printf("  code %d (A)\n", code);
    CHECK(get() == code);  // neither description function touches the code
  }
  // One text written out here too, so a table that lost its letters fails.
  set(3);
  CHECK(std::u16string(wide()) == u"3. Превышен лимит количества итераций.");
  if (codePage == 1251) CHECK(std::strcmp(narrow(), "3. \xcf\xf0\xe5\xe2\xfb\xf8\xe5\xed \xeb\xe8\xec\xe8\xf2 \xea\xee\xeb\xe8\xf7\xe5\xf1\xf2\xe2\xe0 \xe8\xf2\xe5\xf0\xe0\xf6\xe8\xe9.") == 0);
  set(0);
}

std::wstring Resource(HMODULE dll, UINT id) {
  const wchar_t* text = nullptr;
  int n = LoadStringW(dll, id, reinterpret_cast<LPWSTR>(&text), 0);
  return n > 0 ? std::wstring(text, static_cast<size_t>(n)) : std::wstring();
}

void HelpAndAboutTexts(HMODULE dll) {
  CHECK(Resource(dll, IDS_TITLE) == L"Korvane 6.0");
  CHECK(Resource(dll, IDS_ABOUT1) == L"Korvane (тм)");
  CHECK(Resource(dll, IDS_ABOUT2) ==
        L"Korvane это программа для расчета свойств воды/водяного пара, газов и газовых смесей.");
  const std::wstring missing = Resource(dll, IDS_NOHELPFILE);
  CHECK(missing.rfind(L"Программа Korvane не обнаружила файл справки (с именем \"kvtcore6.chm\").", 0) == 0);
  CHECK(missing.find(L"Попробуйте переустановить программу Korvane.") != std::wstring::npos);
  CHECK(LoadIconW(dll, MAKEINTRESOURCEW(IDI_KVTCORE)) != nullptr);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::printf("usage: test_exports path\\to\\kvtcore6.dll\n");
    return 2;
  }
  HMODULE dll = LoadLibraryA(argv[1]);
  if (!CHECK(dll != nullptr)) return check::Summary();
  ByNameAndOrdinal(dll);
  ExportDirectory(dll);
  Descriptions(dll);
  HelpAndAboutTexts(dll);
  return check::Summary();
}
