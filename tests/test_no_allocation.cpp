// A water call allocates nothing: every water export of the catalogue, called
// at a compressed-liquid, a steam and a supercritical state in both tolerance
// modes, runs without a single operator new. The global operator new of this
// test program counts while a call is under watch.
#include <cstdlib>
#include <new>

#include "kvt_test.h"
#include "kvtcore_batch.h"

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

using namespace kvt_test;

// An argument by its unit, at the state (p, T).
double ArgFor(const std::string& unit, double p, double T) {
  if (unit == "Pa") return p;
  if (unit == "K") return T;
  if (unit == "J/kg") return kvtHPT(p, T);
  if (unit == "J/(kg K)") return kvtSPT(p, T);
  if (unit == "kg/m3") return 1.0 / kvtVPT(p, T);
  return 0.5;  // dryness, efficiency
}

// A water row called with a[] by its shape; false for a row of another kind.
bool Invoke(const Row& row, const double* a, double* o) {
  const auto is = [&](const char* s) { return std::strcmp(row.shape, s) == 0; };
  const auto f = row.fn;
#define O14 o, o + 1, o + 2, o + 3, o + 4, o + 5, o + 6, o + 7, o + 8, o + 9, o + 10, o + 11, o + 12, o + 13
  if (std::strncmp(row.core, "Engine::", 8) == 0) return false;  // settings are not water
  if (is("D1")) reinterpret_cast<Fn1>(f)(a[0]);
  else if (is("D2")) reinterpret_cast<Fn>(f)(a[0], a[1]);
  else if (is("D3")) reinterpret_cast<double (*)(double, double, double)>(f)(a[0], a[1], a[2]);
  else if (is("D4")) reinterpret_cast<double (*)(double, double, double, double)>(f)(a[0], a[1], a[2], a[3]);
  else if (is("D5"))
    reinterpret_cast<double (*)(double, double, double, double, double)>(f)(a[0], a[1], a[2], a[3], a[4]);
  else if (is("I2")) reinterpret_cast<int32_t (*)(double, double)>(f)(a[0], a[1]);
  else if (is("P2")) reinterpret_cast<Pair>(f)(a[0], a[1], o, o + 1);
  else if (is("M1")) reinterpret_cast<double (*)(double, KVT_OUT14)>(f)(a[0], O14);
  else if (is("M2")) reinterpret_cast<Many>(f)(a[0], a[1], O14);
  else return false;
#undef O14
  return true;
}

TEST(NoAllocation, EveryWaterCallRunsWithoutOperatorNew) {
  const struct { double p, T; } states[] = {{3e6, 400.0}, {1e5, 500.0}, {25e6, 650.0}};
  int calls = 0;
  for (const auto& st : states) {
    for (int32_t mode : {1, 0}) {
      kvtSETTOLERANCEMODE(mode);
      for (const Row& row : kRows) {
        const kvtFunctionInfo* info = kvtFunctionFind(row.name);
        double a[5] = {}, o[14];
        for (int i = 0; i < info->inputs && i < 5; ++i) a[i] = ArgFor(info->inputUnits[i], st.p, st.T);
        allocations = 0;
        watching = true;
        const bool water = Invoke(row, a, o);
        watching = false;
        calls += water;
        EXPECT_EQ(allocations, 0) << row.name << " at p = " << st.p << ", T = " << st.T << ", mode " << mode;
      }
      kvtSETTOLERANCEMODE(1);
    }
  }
  EXPECT_EQ(calls, 6 * 278);  // every water export of the catalogue, 6 times
}

}  // namespace
