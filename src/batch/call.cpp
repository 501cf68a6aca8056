// kvtEngineCall: any catalogue row, once, on an engine of the caller. One
// entry per row, made from the catalogue: it runs the same guarded call, with
// the same template arguments, as the row's export in frame/exports.cpp, only
// on the engine it is given, so results, codes and texts are the export's.
#include <cstring>

#include "batch/batch.h"
#include "frame/guarded_call.h"
#include "kvtcore.h"

namespace kvt::batch {

namespace {

// One call as an entry sees it: the numbers and texts in, where the result
// goes. An integer argument comes as a double.
struct Call {
  const double* n;
  const char* const* s;
  double& result;
  double* outputs;      // may be null
  const char*& text;
};

// An integer argument that is no 32-bit integer: the call fails with code 1
// before it reaches the guarded call.
struct NotAnInteger {};

int32_t Int(double x) {
  if (!(x >= -2147483648.0 && x <= 2147483647.0) || static_cast<int32_t>(x) != x)
    throw NotAnInteger{};
  return static_cast<int32_t>(x);
}

double* Out(double* outputs, int i) { return outputs ? outputs + i : nullptr; }

using Entry = void (*)(Engine& e, const Call& c);

// Numbers: D and I rows (the int32 result as a double).
template <class R, auto C> void D0(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, C>(e);
}
template <class R, auto C> void D1(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, C>(e, c.n[0]);
}
template <class R, auto C> void D2(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, C>(e, c.n[0], c.n[1]);
}
template <class R, auto C> void D3(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, C>(e, c.n[0], c.n[1], c.n[2]);
}
template <class R, auto C> void D4(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, C>(e, c.n[0], c.n[1], c.n[2], c.n[3]);
}
template <class R, auto C> void D5(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, C>(e, c.n[0], c.n[1], c.n[2], c.n[3], c.n[4]);
}
template <class R, auto C> void D12(Engine& e, const Call& c) {
  const double* n = c.n;
  c.result = GuardedOn<double, R, C>(e, n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8],
                                     n[9], n[10], n[11]);
}
template <class R, auto C> void I0(Engine& e, const Call& c) {
  c.result = GuardedOn<int32_t, R, C>(e);
}
template <class R, auto C> void I1(Engine& e, const Call& c) {
  const int32_t a = Int(c.n[0]);
  c.result = GuardedOn<int32_t, R, C>(e, a);
}
template <class R, auto C> void I2(Engine& e, const Call& c) {
  c.result = GuardedOn<int32_t, R, C>(e, c.n[0], c.n[1]);
}
template <class R, auto C> void H1(Engine& e, const Call& c) {
  const int32_t a = Int(c.n[0]);
  c.result = GuardedOn<double, R, C>(e, a);
}
template <class R, auto C> void P2(Engine& e, const Call& c) {
  c.result = GuardedPairOn<R, C, double, double>(e, c.n[0], c.n[1], Out(c.outputs, 0),
                                                 Out(c.outputs, 1));
}
template <class R, auto C, int N> void Many(Engine& e, const Call& c) {
  double* const o[14] = {Out(c.outputs, 0), Out(c.outputs, 1), Out(c.outputs, 2),
                         Out(c.outputs, 3), Out(c.outputs, 4), Out(c.outputs, 5),
                         Out(c.outputs, 6), Out(c.outputs, 7), Out(c.outputs, 8),
                         Out(c.outputs, 9), Out(c.outputs, 10), Out(c.outputs, 11),
                         Out(c.outputs, 12), Out(c.outputs, 13)};
  if constexpr (N == 1) c.result = GuardedManyOn<R, C, double>(e, c.n[0], o);
  else c.result = GuardedManyOn<R, C, double, double>(e, c.n[0], c.n[1], o);
}

// Gases by id and by text, wrapped in the gas engine's lookup as the exports
// wrap them.
template <class R, auto C> void GI0(Engine& e, const Call& c) {
  const int32_t g = Int(c.n[0]);
  c.result = GuardedOn<double, R, &GasEngine::ById<C>>(e, g);
}
template <class R, auto C> void GI1(Engine& e, const Call& c) {
  const int32_t g = Int(c.n[0]);
  c.result = GuardedOn<double, R, &GasEngine::ById<C, double>>(e, g, c.n[1]);
}
template <class R, auto C> void GI2(Engine& e, const Call& c) {
  const int32_t g = Int(c.n[0]);
  c.result = GuardedOn<double, R, &GasEngine::ById<C, double, double>>(e, g, c.n[1], c.n[2]);
}
template <class R, auto C> void GS0(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, &GasEngine::BySpec<C>>(e, c.s[0]);
}
template <class R, auto C> void GS1(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, &GasEngine::BySpec<C, double>>(e, c.s[0], c.n[0]);
}
template <class R, auto C> void GS2(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, &GasEngine::BySpec<C, double, double>>(e, c.s[0], c.n[0], c.n[1]);
}
template <class R, auto C> void FII(Engine& e, const Call& c) {
  const int32_t g1 = Int(c.n[0]), g2 = Int(c.n[1]);
  c.result = GuardedOn<double, R, &GasEngine::PairById<C>>(e, g1, g2);
}
template <class R, auto C> void FSS(Engine& e, const Call& c) {
  c.result = GuardedOn<double, R, &GasEngine::PairBySpec<C>>(e, c.s[0], c.s[1]);
}
template <class R, auto C> void AII(Engine& e, const Call& c) {
  const int32_t g1 = Int(c.n[0]), g2 = Int(c.n[1]);
  c.result = GuardedOn<int32_t, R, &GasEngine::AddById<C>>(e, g1, g2, c.n[2]);
}
template <class R, auto C> void IS1(Engine& e, const Call& c) {
  c.result = GuardedOn<int32_t, R, C>(e, c.s[0]);
}

// Text results: the text, and 0 as the result, or -1 for no text.
inline void PutText(const Call& c, const char* text) {
  c.text = text;
  c.result = text ? 0.0 : -1.0;
}
template <class R, auto C> void C0(Engine& e, const Call& c) {
  PutText(c, GuardedOn<const char*, R, C>(e));
}
template <class R, auto C> void W0(Engine& e, const Call& c) {
  PutText(c, reinterpret_cast<const char*>(GuardedOn<const char16_t*, R, C>(e)));
}
template <class R, auto C> void CI1(Engine& e, const Call& c) {
  const int32_t a = Int(c.n[0]);
  PutText(c, GuardedOn<const char*, R, C>(e, a));
}
template <class R, auto C> void CS1(Engine& e, const Call& c) {
  PutText(c, GuardedOn<const char*, R, C>(e, c.s[0]));
}

#define KVT_ENTRY_M1(R, C) &Many<R, &C, 1>
#define KVT_ENTRY_M2(R, C) &Many<R, &C, 2>
#define KVT_ENTRY_(shape, R, C) &shape<R, &C>
#define KVT_ENTRY_ROW(ord, name, shape, rule, core, args, result) \
  KVT_ENTRY_##shape(rules::rule, core),
#define KVT_ENTRY_D0(R, C) KVT_ENTRY_(D0, R, C)
#define KVT_ENTRY_D1(R, C) KVT_ENTRY_(D1, R, C)
#define KVT_ENTRY_D2(R, C) KVT_ENTRY_(D2, R, C)
#define KVT_ENTRY_D3(R, C) KVT_ENTRY_(D3, R, C)
#define KVT_ENTRY_D4(R, C) KVT_ENTRY_(D4, R, C)
#define KVT_ENTRY_D5(R, C) KVT_ENTRY_(D5, R, C)
#define KVT_ENTRY_D12(R, C) KVT_ENTRY_(D12, R, C)
#define KVT_ENTRY_I0(R, C) KVT_ENTRY_(I0, R, C)
#define KVT_ENTRY_I1(R, C) KVT_ENTRY_(I1, R, C)
#define KVT_ENTRY_I2(R, C) KVT_ENTRY_(I2, R, C)
#define KVT_ENTRY_H1(R, C) KVT_ENTRY_(H1, R, C)
#define KVT_ENTRY_P2(R, C) KVT_ENTRY_(P2, R, C)
#define KVT_ENTRY_GI0(R, C) KVT_ENTRY_(GI0, R, C)
#define KVT_ENTRY_GI1(R, C) KVT_ENTRY_(GI1, R, C)
#define KVT_ENTRY_GI2(R, C) KVT_ENTRY_(GI2, R, C)
#define KVT_ENTRY_GS0(R, C) KVT_ENTRY_(GS0, R, C)
#define KVT_ENTRY_GS1(R, C) KVT_ENTRY_(GS1, R, C)
#define KVT_ENTRY_GS2(R, C) KVT_ENTRY_(GS2, R, C)
#define KVT_ENTRY_FII(R, C) KVT_ENTRY_(FII, R, C)
#define KVT_ENTRY_FSS(R, C) KVT_ENTRY_(FSS, R, C)
#define KVT_ENTRY_AII(R, C) KVT_ENTRY_(AII, R, C)
#define KVT_ENTRY_IS1(R, C) KVT_ENTRY_(IS1, R, C)
#define KVT_ENTRY_C0(R, C) KVT_ENTRY_(C0, R, C)
#define KVT_ENTRY_W0(R, C) KVT_ENTRY_(W0, R, C)
#define KVT_ENTRY_CI1(R, C) KVT_ENTRY_(CI1, R, C)
#define KVT_ENTRY_CS1(R, C) KVT_ENTRY_(CS1, R, C)

const Entry kEntries[] = {KVT_CATALOGUE(KVT_ENTRY_ROW)};

// How many texts a row takes: its leading gas texts, or the one text of a
// registry or text row.
int32_t TextsOf(const char* shape) {
  if (std::strcmp(shape, "FSS") == 0) return 2;
  for (const char* s : {"GS0", "GS1", "GS2", "IS1", "CS1"})
    if (std::strcmp(shape, s) == 0) return 1;
  return 0;
}

}  // namespace

}  // namespace kvt::batch

using namespace kvt::batch;

extern "C" {

int32_t kvtEngineCall(kvtEngine* e, const kvtFunctionInfo* fn, const double* numbers,
                      const char* const* texts, double* result, double* outputs,
                      const char** text) {
  const int32_t row = IndexOf(fn);
  if (!e || row < 0 || row >= static_cast<int32_t>(sizeof kEntries / sizeof kEntries[0]))
    return -1;
  const int32_t nTexts = TextsOf(fn->shape);
  const int32_t nNumbers = fn->inputs - nTexts;
  if ((nNumbers > 0 && !numbers) || (nTexts > 0 && !texts)) return -1;
  double scratchResult = 0;
  const char* scratchText = nullptr;
  const Call call{numbers, texts, result ? *result : scratchResult, outputs,
                  text ? *text : scratchText};
  call.text = nullptr;
  try {
    kEntries[row](*e, call);
  } catch (NotAnInteger) {
    e->lastError = 1;
    call.result = -1.0;
  }
  return e->lastError;
}

}  // extern "C"
