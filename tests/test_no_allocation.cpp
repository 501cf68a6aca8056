// A water call allocates nothing: every water export of the catalogue, called
// at a compressed-liquid and a steam state in both tolerance modes, runs
// without a single operator new. The global operator new of this test program
// counts while a call is under watch.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>

#include "kvtcore.h"

namespace {
bool watching = false;
int allocations = 0;
}  // namespace

void* operator new(std::size_t size) {
  if (watching) ++allocations;
  if (void* p = std::malloc(size ? size : 1)) return p;
  throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace {

// An argument by its unit, at the state (p, T).
double ArgFor(const std::string& unit, double p, double T) {
  if (unit == "Pa") return p;
  if (unit == "K") return T;
  if (unit == "J/kg") return kvtHPT(p, T);
  if (unit == "J/(kg K)") return kvtSPT(p, T);
  if (unit == "kg/m3") return 1.0 / kvtVPT(p, T);
  return 0.5;  // dryness, efficiency
}

#define NA_O14 &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8], &o[9], &o[10], \
               &o[11], &o[12], &o[13]
#define NA_D1(f, a, ua) f(A(ua, 0))
#define NA_D2(f, a, ua, b, ub) f(A(ua, 0), A(ub, 1))
#define NA_D3(f, a, ua, b, ub, c, uc) f(A(ua, 0), A(ub, 1), A(uc, 2))
#define NA_D4(f, a, ua, b, ub, c, uc, d, ud) f(A(ua, 0), A(ub, 1), A(uc, 2), A(ud, 3))
#define NA_D5(f, a, ua, b, ub, c, uc, d, ud, e, ue) \
  f(A(ua, 0), A(ub, 1), A(uc, 2), A(ud, 3), A(ue, 4))
#define NA_I2(f, a, ua, b, ub) f(A(ua, 0), A(ub, 1))
#define NA_P2(f, a, ua, b, ub, ...) f(A(ua, 0), A(ub, 1), &o[0], &o[1])
#define NA_M1(f, a, ua) f(A(ua, 0), NA_O14)
#define NA_M2(f, a, ua, b, ub) f(A(ua, 0), A(ub, 1), NA_O14)
#define NA_CALL(m, a) m a
#define NA_UNPACK(...) __VA_ARGS__
#define NA_WATER(shape, name, core, args)                                             \
  if (std::string(#core).rfind("Engine::", 0) != 0) { /* settings are not water */   \
    allocations = 0;                                                                  \
    ++calls;                                                                          \
    watching = true;                                                                  \
    NA_CALL(NA_##shape, (name, NA_UNPACK args));                                      \
    watching = false;                                                                 \
    EXPECT_EQ(allocations, 0) << #name << " at p = " << p << ", T = " << T            \
                              << ", mode " << mode;                                   \
  }
#define NA_SKIP(...)
#define NA_ROW(ordinal, name, shape, rule, core, args, result) \
  NA_ROW_##shape(shape, name, core, args)
#define NA_ROW_D1 NA_WATER
#define NA_ROW_D2 NA_WATER
#define NA_ROW_D3 NA_WATER
#define NA_ROW_D4 NA_WATER
#define NA_ROW_D5 NA_WATER
#define NA_ROW_I2 NA_WATER
#define NA_ROW_P2 NA_WATER
#define NA_ROW_M1 NA_WATER
#define NA_ROW_M2 NA_WATER
#define NA_ROW_D0 NA_SKIP
#define NA_ROW_D12 NA_SKIP
#define NA_ROW_I0 NA_SKIP
#define NA_ROW_I1 NA_SKIP
#define NA_ROW_C0 NA_SKIP
#define NA_ROW_W0 NA_SKIP
#define NA_ROW_H1 NA_SKIP
#define NA_ROW_GI0 NA_SKIP
#define NA_ROW_GI1 NA_SKIP
#define NA_ROW_GI2 NA_SKIP
#define NA_ROW_GS0 NA_SKIP
#define NA_ROW_GS1 NA_SKIP
#define NA_ROW_GS2 NA_SKIP
#define NA_ROW_FII NA_SKIP
#define NA_ROW_FSS NA_SKIP
#define NA_ROW_AII NA_SKIP
#define NA_ROW_IS1 NA_SKIP
#define NA_ROW_CI1 NA_SKIP
#define NA_ROW_CS1 NA_SKIP

TEST(NoAllocation, EveryWaterCallRunsWithoutOperatorNew) {
  const struct { double p, T; } states[] = {{3e6, 400.0}, {1e5, 500.0}, {25e6, 650.0}};
  int calls = 0;
  for (const auto& st : states) {
    for (int32_t mode : {1, 0}) {
      const double p = st.p, T = st.T;
      const auto A = [&](const char* unit, int) { return ArgFor(unit, p, T); };
      double o[14];
      kvtSETTOLERANCEMODE(mode);
      KVT_CATALOGUE(NA_ROW)
      kvtSETTOLERANCEMODE(1);
    }
  }
  EXPECT_EQ(calls, 6 * 278);  // every water export of the catalogue, 6 times
}

}  // namespace
