// The texts of the error codes, one table for both encodings.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kvt {

// Text of an error code in UTF-16, or an empty text for a code without one.
const char16_t* ErrorTextW(int32_t code);

// Copies the text of code into a buffer of `size` units, zero-terminated; a
// text that does not fit is cut at a whole character.
void CopyErrorText(int32_t code, char* buffer, size_t size);
void CopyErrorText(int32_t code, char16_t* buffer, size_t size);

// The description that the last-error functions return. On Windows it comes
// from the module's string table (LoadStringA gives the host's 8-bit code
// page); elsewhere from the table above, the 8-bit form in UTF-8. A code
// without a text leaves the buffer empty.
void LoadErrorText(int32_t code, char* buffer, size_t size);
void LoadErrorText(int32_t code, char16_t* buffer, size_t size);

}  // namespace kvt
