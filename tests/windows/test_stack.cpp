// Every export keeps the caller's stack as its declared calling convention
// promises. On x86 a __stdcall function pops its own arguments: were one
// compiled as __cdecl, or with another argument list than its row, each call
// would move the stack pointer. Each row is called through a pointer of its
// row's own type, many times in a loop, and the stack pointer before and
// after the loop must be the same, and sentinel locals untouched.
//
//   test_stack.exe path\to\kvtcore6.dll
#include <windows.h>

#include <cstdint>
#include <cstring>

#include "check.h"
#include "kvtcore.h"

namespace {

// Arguments of each C type: ordinary numbers, a gas text, output cells.
double cells[14];
template <class A> A Arg();
template <> double Arg<double>() { return 400.0; }
template <> int32_t Arg<int32_t>() { return 1; }
template <> const char* Arg<const char*>() { return "N2"; }
template <> double* Arg<double*>() { return &cells[0]; }

inline uintptr_t StackPointer() {
  uintptr_t sp;
#if defined(__i386__)
  asm volatile("movl %%esp, %0" : "=r"(sp)::"memory");
#else
  asm volatile("movq %%rsp, %0" : "=r"(sp)::"memory");
#endif
  return sp;
}

template <class R, class... A>
bool KeepsStack(R(KVT_CALL* f)(A...)) {
  volatile uint32_t below = 0x5a5a5a5a;
  const uintptr_t before = StackPointer();
  for (int i = 0; i < 64; ++i) f(Arg<A>()...);
  const uintptr_t after = StackPointer();
  volatile uint32_t above = 0xa5a5a5a5;
  return before == after && below == 0x5a5a5a5a && above == 0xa5a5a5a5;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::printf("usage: test_stack path\\to\\kvtcore6.dll\n");
    return 2;
  }
  HMODULE dll = LoadLibraryA(argv[1]);
  if (!CHECK(dll != nullptr)) return check::Summary();
  int rows = 0;
  // Not the help and about boxes: they wait for a user.
#define KVT_CALL_ROW(ord, name, shape, rule, core, args, result)                                   \
  if (std::strcmp(#shape, "H1") != 0) {                                                            \
    auto f = reinterpret_cast<decltype(&name)>(reinterpret_cast<void*>(GetProcAddress(dll, #name))); \
    ++rows;                                                                                        \
    if (!CHECK(f != nullptr && KeepsStack(f))) std::printf("  %s\n", #name);                     \
  }
  KVT_CATALOGUE(KVT_CALL_ROW)
  std::printf("%d rows called\n", rows);
  return check::Summary();
}
