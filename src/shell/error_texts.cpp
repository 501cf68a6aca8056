#include "shell/error_texts.h"

namespace kvt {

namespace {

// The resource script's string table is generated from this array at build
// time (cmake/error_strings.cmake), so the texts exist once.
// Codes 5, 6, 7 and 10 are reserved: the register accepts them, nothing
// raises them, and they have no text.
const char16_t* const kTexts[12] = {
    u"0. Ошибки не произошло.",
    u"1. Неправильные параметры - ошибка при вычислениях с плавающей точкой.",
    u"2. Аргументы функции вне области ее определения.",
    u"3. Превышен лимит количества итераций.",
    u"4. Неизвестная область состояния воды.",
    u"",
    u"",
    u"",
    u"8. Функция в используемой версии Korvane не реализована.",
    u"9. Недостаточно памяти.",
    u"",
    u"11. Синтаксическая ошибка.",
};

// One code point from UTF-16 at s[i]; advances i.
char32_t NextCodePoint(const char16_t* s, size_t& i) {
  char32_t c = s[i++];
  if (c >= 0xD800 && c < 0xDC00 && s[i] >= 0xDC00 && s[i] < 0xE000)
    c = 0x10000 + ((c - 0xD800) << 10) + (s[i++] - 0xDC00);
  return c;
}

size_t EncodeUtf8(char32_t c, char* out) {
  if (c < 0x80) { out[0] = static_cast<char>(c); return 1; }
  if (c < 0x800) {
    out[0] = static_cast<char>(0xC0 | (c >> 6));
    out[1] = static_cast<char>(0x80 | (c & 0x3F));
    return 2;
  }
  if (c < 0x10000) {
    out[0] = static_cast<char>(0xE0 | (c >> 12));
    out[1] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out[2] = static_cast<char>(0x80 | (c & 0x3F));
    return 3;
  }
  out[0] = static_cast<char>(0xF0 | (c >> 18));
  out[1] = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
  out[2] = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
  out[3] = static_cast<char>(0x80 | (c & 0x3F));
  return 4;
}

}  // namespace

const char16_t* ErrorTextW(int32_t code) {
  return code >= 0 && code < 12 ? kTexts[code] : u"";
}

void CopyErrorText(int32_t code, char* buffer, size_t size) {
  const char16_t* s = ErrorTextW(code);
  size_t used = 0;
  for (size_t i = 0; s[i] != 0;) {
    char unit[4];
    size_t n = EncodeUtf8(NextCodePoint(s, i), unit);
    if (used + n + 1 > size) break;
    for (size_t k = 0; k < n; ++k) buffer[used++] = unit[k];
  }
  buffer[used] = 0;
}

void CopyErrorText(int32_t code, char16_t* buffer, size_t size) {
  const char16_t* s = ErrorTextW(code);
  size_t used = 0;
  for (size_t i = 0; s[i] != 0;) {
    size_t start = i;
    NextCodePoint(s, i);
    if (used + (i - start) + 1 > size) break;
    while (start < i) buffer[used++] = s[start++];
  }
  buffer[used] = 0;
}

}  // namespace kvt
