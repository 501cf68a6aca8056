// The descriptions of the last-error functions. On Windows they are read
// from the module's string table, so the 8-bit text is in the host's code
// page (LoadStringA converts); elsewhere they come from the UTF-16 table and
// the 8-bit form is UTF-8.
#include "shell/error_texts.h"

#ifdef _WIN32
#include <windows.h>

#include "frame/engine.h"
#include "shell/resource_ids.h"
#endif

namespace kvt {

#ifdef _WIN32

static_assert(sizeof(wchar_t) == sizeof(char16_t), "UTF-16 wide characters");

void LoadErrorText(int32_t code, char* buffer, size_t size) {
  buffer[0] = 0;
  if (code < 0 || code > 11) return;
  LoadStringA(static_cast<HINSTANCE>(instanceHandle), IDS_ERROR0 + code, buffer,
              static_cast<int>(size));
}

void LoadErrorText(int32_t code, char16_t* buffer, size_t size) {
  buffer[0] = 0;
  if (code < 0 || code > 11) return;
  LoadStringW(static_cast<HINSTANCE>(instanceHandle), IDS_ERROR0 + code,
              reinterpret_cast<wchar_t*>(buffer), static_cast<int>(size));
}

#else

void LoadErrorText(int32_t code, char* buffer, size_t size) { CopyErrorText(code, buffer, size); }

void LoadErrorText(int32_t code, char16_t* buffer, size_t size) {
  CopyErrorText(code, buffer, size);
}

#endif

}  // namespace kvt
