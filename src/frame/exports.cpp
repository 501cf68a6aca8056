// Every exported function, produced from the catalogue in kvtcore.h. An export
// has no logic: it hands its arguments to the guarded call of its shape,
// which runs the range rule and the core.
#include "kvtcore.h"

#include "frame/guarded_call.h"

using namespace kvt;

#define KVT_O14 double* o0, double* o1, double* o2, double* o3, double* o4, double* o5, \
    double* o6, double* o7, double* o8, double* o9, double* o10, double* o11, double* o12, \
    double* o13
#define KVT_A14 {o0, o1, o2, o3, o4, o5, o6, o7, o8, o9, o10, o11, o12, o13}

#define KVT_DEF_D0(n, R, C) double KVT_CALL n() { return Guarded<double, R, &C>(); }
#define KVT_DEF_D1(n, R, C) double KVT_CALL n(double a) { return Guarded<double, R, &C>(a); }
#define KVT_DEF_D2(n, R, C) \
  double KVT_CALL n(double a, double b) { return Guarded<double, R, &C>(a, b); }
#define KVT_DEF_D3(n, R, C) \
  double KVT_CALL n(double a, double b, double c) { return Guarded<double, R, &C>(a, b, c); }
#define KVT_DEF_D4(n, R, C)                                  \
  double KVT_CALL n(double a, double b, double c, double d) { \
    return Guarded<double, R, &C>(a, b, c, d);               \
  }
#define KVT_DEF_D5(n, R, C)                                            \
  double KVT_CALL n(double a, double b, double c, double d, double e) { \
    return Guarded<double, R, &C>(a, b, c, d, e);                      \
  }
#define KVT_DEF_I2(n, R, C) \
  int32_t KVT_CALL n(double a, double b) { return Guarded<int32_t, R, &C>(a, b); }
#define KVT_DEF_P2(n, R, C)                                        \
  double KVT_CALL n(double a, double b, double* o1, double* o2) {  \
    return GuardedPair<R, &C, double, double>(a, b, o1, o2);       \
  }
#define KVT_DEF_M1(n, R, C) \
  double KVT_CALL n(double a, KVT_O14) { return GuardedMany<R, &C, double>(a, KVT_A14); }
#define KVT_DEF_M2(n, R, C)                                     \
  double KVT_CALL n(double a, double b, KVT_O14) {              \
    return GuardedMany<R, &C, double, double>(a, b, KVT_A14);   \
  }
#define KVT_DEF_I0(n, R, C) int32_t KVT_CALL n() { return Guarded<int32_t, R, &C>(); }
#define KVT_DEF_I1(n, R, C) int32_t KVT_CALL n(int32_t a) { return Guarded<int32_t, R, &C>(a); }
#define KVT_DEF_C0(n, R, C) const char* KVT_CALL n() { return Guarded<const char*, R, &C>(); }
#define KVT_DEF_W0(n, R, C) \
  const char16_t* KVT_CALL n() { return Guarded<const char16_t*, R, &C>(); }
#define KVT_DEF_H1(n, R, C) double KVT_CALL n(int32_t a) { return Guarded<double, R, &C>(a); }


// Gas rows name an operation of the gas record; the shape wraps it in the
// gas engine's lookup by id or by text.
#define KVT_DEF_GI0(n, R, C) \
  double KVT_CALL n(int32_t g) { return Guarded<double, R, &GasEngine::ById<&C>>(g); }
#define KVT_DEF_GI1(n, R, C)                                           \
  double KVT_CALL n(int32_t g, double a) {                             \
    return Guarded<double, R, &GasEngine::ById<&C, double>>(g, a);     \
  }
#define KVT_DEF_GI2(n, R, C)                                                   \
  double KVT_CALL n(int32_t g, double a, double b) {                           \
    return Guarded<double, R, &GasEngine::ById<&C, double, double>>(g, a, b);  \
  }
#define KVT_DEF_GS0(n, R, C) \
  double KVT_CALL n(const char* g) { return Guarded<double, R, &GasEngine::BySpec<&C>>(g); }
#define KVT_DEF_GS1(n, R, C)                                           \
  double KVT_CALL n(const char* g, double a) {                         \
    return Guarded<double, R, &GasEngine::BySpec<&C, double>>(g, a);   \
  }
#define KVT_DEF_GS2(n, R, C)                                                    \
  double KVT_CALL n(const char* g, double a, double b) {                        \
    return Guarded<double, R, &GasEngine::BySpec<&C, double, double>>(g, a, b); \
  }
#define KVT_DEF_FII(n, R, C)                                        \
  double KVT_CALL n(int32_t g1, int32_t g2) {                       \
    return Guarded<double, R, &GasEngine::PairById<&C>>(g1, g2);    \
  }
#define KVT_DEF_FSS(n, R, C)                                        \
  double KVT_CALL n(const char* g1, const char* g2) {               \
    return Guarded<double, R, &GasEngine::PairBySpec<&C>>(g1, g2);  \
  }
#define KVT_DEF_AII(n, R, C)                                           \
  int32_t KVT_CALL n(int32_t g1, int32_t g2, double a) {               \
    return Guarded<int32_t, R, &GasEngine::AddById<&C>>(g1, g2, a);    \
  }
#define KVT_DEF_IS1(n, R, C) \
  int32_t KVT_CALL n(const char* a) { return Guarded<int32_t, R, &C>(a); }
#define KVT_DEF_CI1(n, R, C) \
  const char* KVT_CALL n(int32_t a) { return Guarded<const char*, R, &C>(a); }
#define KVT_DEF_CS1(n, R, C) \
  const char* KVT_CALL n(const char* a) { return Guarded<const char*, R, &C>(a); }
#define KVT_DEF_D12(n, R, C)                                                                 \
  double KVT_CALL n(double a, double b, double c, double d, double e, double f, double g,    \
                    double h, double i, double j, double k, double l) {                      \
    return Guarded<double, R, &C>(a, b, c, d, e, f, g, h, i, j, k, l);                       \
  }

#define KVT_DEFINE(ord, name, shape, rule, core, args, result) \
  KVT_DEF_##shape(name, rules::rule, core)

extern "C" {
KVT_CATALOGUE(KVT_DEFINE)
}
