// kvt_bitcheck: a fingerprint of every water export's results, to prove that
// a change to the library (a faster term loop, say) leaves every bit alone.
// Each export of the catalogue with numeric arguments is called on a fixed
// pseudo-random set of states spanning all regions, with hostile values mixed
// in (NaN, infinities, zero, negatives, huge), under several settings; the
// bits of every result, output and error code go into one hash per export.
//
//   g++ -std=c++17 -O2 -Iinclude bench/oracle/kvt_bitcheck.cpp -Lbuild/... -lkvtcore
//   ./kvt_bitcheck > before.txt   (old library)   ... > after.txt; diff before.txt after.txt
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "kvtcore.h"

namespace {

uint64_t rng = 0x243F6A8885A308D3ull;
double Uniform() {  // xorshift64*, in [0, 1)
  rng ^= rng >> 12; rng ^= rng << 25; rng ^= rng >> 27;
  return double((rng * 2685821657736338717ull) >> 11) * 0x1.0p-53;
}
double LogUniform(double lo, double hi) { return lo * std::pow(hi / lo, Uniform()); }

constexpr double kInf = std::numeric_limits<double>::infinity();
const double kHostile[] = {std::nan(""), kInf, -kInf, 0.0, -0.0, -1.0, 1e300, -1e300, 1e-300,
                           611.212677444343, 273.15999999999, 2273.15, 1073.15, 623.15,
                           647.096, 22064000.0, 100000000.0, 10000000.0, 4000000.0, 322.0};

// A state of the formulation and the values of its usual arguments.
struct State {
  double p, T, h, s, rho, x, p2;
};

State NewState() {
  State st;
  st.p = LogUniform(500.0, 1.2e8);
  st.T = Uniform() < 0.3 ? 600.0 + 120.0 * Uniform() : 260.0 + 2100.0 * Uniform();
  if (Uniform() < 0.25) st.p = 1.6e7 + 2.4e7 * Uniform();  // near-critical and region 3
  st.h = kvtHPT(st.p, st.T);
  st.s = kvtSPT(st.p, st.T);
  st.rho = 1.0 / kvtVPT(st.p, st.T);
  if (kvtGETLASTERROR() != 0 || Uniform() < 0.1) {  // wet and odd states too
    st.h = -2e5 + 4.6e6 * Uniform();
    st.s = -500.0 + 12500.0 * Uniform();
    st.rho = LogUniform(0.005, 1200.0);
  }
  st.x = -0.1 + 1.2 * Uniform();
  st.p2 = LogUniform(500.0, 1.2e8);
  return st;
}

// The value of an argument by its unit; sometimes hostile, sometimes free.
double Arg(const char* unit, const State& st, int position) {
  const double u = Uniform();
  if (u < 0.06) return kHostile[static_cast<int>(Uniform() * (sizeof kHostile / sizeof(double)))];
  const bool tweak = u < 0.12;
  const double f = tweak ? 1.0 + (Uniform() - 0.5) * 1e-3 : 1.0;
  const std::string un = unit;
  if (un == "Pa") return (position == 0 ? st.p : st.p2) * f;
  if (un == "K") return st.T * f;
  if (un == "J/kg") return st.h * f;
  if (un == "J/(kg K)") return st.s * f;
  if (un == "kg/m3") return st.rho * f;
  if (un == "m3/kg") return f / st.rho;
  if (un == "-") return st.x;
  return (Uniform() < 0.5 ? -1 : 1) * LogUniform(1e-6, 1e7);
}

struct Hash {
  uint64_t h = 0xcbf29ce484222325ull;
  void Add(uint64_t v) {
    for (int i = 0; i < 8; ++i) { h ^= (v >> (8 * i)) & 0xff; h *= 0x100000001b3ull; }
  }
  // Every NaN counts as one value: which NaN an operation passes on (its sign
  // and payload) follows the operand order the compiler picks, which IEEE
  // leaves open and which changes with the optimisation level alone.
  void Add(double d) {
    uint64_t v = 0x7ff8000000000000ull;
    if (d == d) std::memcpy(&v, &d, 8);
    Add(v);
  }
};

// The settings each export is run under: toleranceMode, checkRangeMode,
// maxIteration (3 makes most solves run out of passes).
struct Setting { int32_t mode, check, maxIt; };
const Setting kSettings[] = {{1, 1, 0}, {0, 1, 0}, {1, 0, 0}, {0, 0, 0}, {1, 1, 3}};
constexpr int kCallsPerSetting = 600;

template <class Call>
void Run(const char* name, const char* core, int nargs, const char* const* units, Call call) {
  if (std::strncmp(core, "Engine::", 8) == 0) return;  // settings
  const int32_t defaultMax = kvtGETMAXITERATION();
  const char* dump = std::getenv("KVT_BITCHECK_DUMP");  // an export's name: print its calls
  const bool print = dump && std::strcmp(dump, name) == 0;
  Hash hash;
  for (const Setting& set : kSettings) {
    for (int i = 0; i < kCallsPerSetting; ++i) {
      kvtSETTOLERANCEMODE(1);
      kvtSETCHECKRANGEMODE(1);
      kvtSETMAXITERATION(defaultMax);
      const State st = NewState();
      double a[5] = {0, 0, 0, 0, 0};
      for (int k = 0; k < nargs; ++k) a[k] = Arg(units[k], st, k);
      kvtSETTOLERANCEMODE(set.mode);
      kvtSETCHECKRANGEMODE(set.check);
      kvtSETMAXITERATION(set.maxIt ? set.maxIt : defaultMax);
      double out[14];
      for (double& o : out) o = -7.0;
      hash.Add(call(a, out));
      hash.Add(static_cast<uint64_t>(kvtGETLASTERROR()));
      for (double o : out) hash.Add(o);
      if (print) {
        std::printf("%d %d %d |", set.mode, set.check, set.maxIt);
        for (int k = 0; k < nargs; ++k) std::printf(" %.17g", a[k]);
        std::printf(" | %a %d | %a %a\n", call(a, out), kvtGETLASTERROR(), out[0], out[1]);
      }
    }
  }
  kvtSETTOLERANCEMODE(1);
  kvtSETCHECKRANGEMODE(1);
  kvtSETMAXITERATION(defaultMax);
  std::printf("%-26s %016llx\n", name, static_cast<unsigned long long>(hash.h));
}

#define O14(o) &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8], &o[9], &o[10], \
               &o[11], &o[12], &o[13]
// Each shape names the call on the argument array a (outputs in o) and the
// units of its arguments.
#define BIT_RUN(f, n, call, ...)                                                    \
  {                                                                               \
    const char* u[] = {__VA_ARGS__};                                              \
    Run(#f, core, n, u, [](double* a, double* o) { (void)o; return double(call); }); \
  }
#define BIT_D1(f, a1, u1) BIT_RUN(f, 1, f(a[0]), u1)
#define BIT_D2(f, a1, u1, a2, u2) BIT_RUN(f, 2, f(a[0], a[1]), u1, u2)
#define BIT_D3(f, a1, u1, a2, u2, a3, u3) BIT_RUN(f, 3, f(a[0], a[1], a[2]), u1, u2, u3)
#define BIT_D4(f, a1, u1, a2, u2, a3, u3, a4, u4) \
  BIT_RUN(f, 4, f(a[0], a[1], a[2], a[3]), u1, u2, u3, u4)
#define BIT_D5(f, a1, u1, a2, u2, a3, u3, a4, u4, a5, u5) \
  BIT_RUN(f, 5, f(a[0], a[1], a[2], a[3], a[4]), u1, u2, u3, u4, u5)
#define BIT_I2(f, a1, u1, a2, u2) BIT_RUN(f, 2, f(a[0], a[1]), u1, u2)
#define BIT_P2(f, a1, u1, a2, u2, ...) BIT_RUN(f, 2, f(a[0], a[1], &o[0], &o[1]), u1, u2)
#define BIT_M1(f, a1, u1) BIT_RUN(f, 1, f(a[0], O14(o)), u1)
#define BIT_M2(f, a1, u1, a2, u2) BIT_RUN(f, 2, f(a[0], a[1], O14(o)), u1, u2)
#define BIT_SKIP(...)
#define BIT_D0 BIT_SKIP
#define BIT_D12 BIT_SKIP
#define BIT_I0 BIT_SKIP
#define BIT_I1 BIT_SKIP
#define BIT_C0 BIT_SKIP
#define BIT_W0 BIT_SKIP
#define BIT_H1 BIT_SKIP
#define BIT_GI0 BIT_SKIP
#define BIT_GI1 BIT_SKIP
#define BIT_GI2 BIT_SKIP
#define BIT_GS0 BIT_SKIP
#define BIT_GS1 BIT_SKIP
#define BIT_GS2 BIT_SKIP
#define BIT_FII BIT_SKIP
#define BIT_FSS BIT_SKIP
#define BIT_AII BIT_SKIP
#define BIT_IS1 BIT_SKIP
#define BIT_CI1 BIT_SKIP
#define BIT_CS1 BIT_SKIP
#define BIT_CALL(m, a) m a
#define BIT_UNPACK(...) __VA_ARGS__
#define BIT_ROW(ordinal, name, shape, rule, corename, args, result) \
  { const char* core = #corename; (void)core; BIT_CALL(BIT_##shape, (name, BIT_UNPACK args)) }

}  // namespace

int main() {
  KVT_CATALOGUE(BIT_ROW)
  return 0;
}
