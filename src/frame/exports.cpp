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

#define KVT_DEFINE(ord, name, shape, rule, core, doc) KVT_DEF_##shape(name, rules::rule, core)

extern "C" {
KVT_CATALOGUE(KVT_DEFINE)
}
