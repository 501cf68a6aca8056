// kvt_workloads: the cost of one kvtcore call, over fixed sets of about 1000
// varied states per workload (grids inside each region, visited in a fixed
// shuffled order so that branch prediction and caches see realistic traffic).
//
// Run it through bench/workloads.sh, which builds the library at -O2 and
// prints the table of docs/speed.md.
//
//   kvt_workloads --count          under valgrind --tool=callgrind: one counted
//                                  pass per workload, each ended by a named dump
//   kvt_workloads --time [--ir F]  ns/call medians; F holds "name total" lines
//                                  of the counted passes, which become Ir/call
//   kvt_workloads --dump DIR       writes the state sets (with kvtcore's values)
//   options: --reps N (timing repetitions, default 15), --filter TEXT
//
// Instructions per call = (callgrind total of one pass over N states minus
// that of the same pass over an empty function) / N. Only exports are called.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "kvtcore.h"

#if defined(__has_include)
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define KVT_BENCH_CALLGRIND 1
#endif
#endif
#ifndef KVT_BENCH_CALLGRIND
#define CALLGRIND_ZERO_STATS
#define CALLGRIND_DUMP_STATS_AT(x) ((void)(x))
#endif

namespace {

using F1 = double (*)(double);
using F2 = double (*)(double, double);

// ---- State sets ----------------------------------------------------------

// A set of states: inputs a (and b), with kvtcore's values kept beside them
// for the dump and for round-trip checks of the inversions.
struct StateSet {
  std::vector<double> a, b;
  std::vector<double> ref;    // expected result of the inversions on this set
  std::vector<double> extra;  // dumped only: the pressure of the (density, T) set
};

// Deterministic shuffle (xorshift64*), identical on every platform.
void Shuffle(std::vector<size_t>& idx) {
  uint64_t x = 0x9E3779B97F4A7C15ull;
  for (size_t i = idx.size(); i > 1; --i) {
    x ^= x >> 12; x ^= x << 25; x ^= x >> 27;
    const uint64_t r = x * 2685821657736338717ull;
    std::swap(idx[i - 1], idx[r % i]);
  }
}

StateSet Permuted(const StateSet& s) {
  std::vector<size_t> idx(s.a.size());
  for (size_t i = 0; i < idx.size(); ++i) idx[i] = i;
  Shuffle(idx);
  StateSet o;
  for (size_t i : idx) {
    o.a.push_back(s.a[i]);
    o.b.push_back(s.b.empty() ? 0.0 : s.b[i]);
    if (!s.ref.empty()) o.ref.push_back(s.ref[i]);
  }
  return o;
}

// IAPWS-IF97 saturation pressure (eq. 30) and B23 boundary, here only to
// place the grids; they do not depend on the library under test.
double Psat(double T) {
  static const double n[11] = {0, 0.11670521452767e4, -0.72421316703206e6,
                               -0.17073846940092e2, 0.12020824702470e5, -0.32325550322333e7,
                               0.14915108613530e2, -0.48232657361591e4, 0.40511340542057e6,
                               -0.23855557567849, 0.65017534844798e3};
  const double th = T + n[9] / (T - n[10]);
  const double A = th * th + n[1] * th + n[2], B = n[3] * th * th + n[4] * th + n[5],
               C = n[6] * th * th + n[7] * th + n[8];
  const double y = 2 * C / (-B + std::sqrt(B * B - 4 * A * C));
  return y * y * y * y * 1e6;
}
double PB23(double T) {
  return (0.34805185628969e3 - 0.11671859879975e1 * T + 0.10192970039326e-2 * T * T) * 1e6;
}

constexpr int kSide = 32;  // 32 x 32 = 1024 states per grid

// nT temperatures, and at each np pressures between lo(T) and hi(T),
// logarithmic or linear.
template <class Lo, class Hi>
StateSet GridPT(double T0, double T1, Lo lo, Hi hi, bool logp) {
  StateSet s;
  for (int i = 0; i < kSide; ++i) {
    const double T = T0 + (T1 - T0) * (i + 0.5) / kSide;
    const double p0 = lo(T), p1 = hi(T);
    for (int j = 0; j < kSide; ++j) {
      const double f = (j + 0.5) / kSide;
      const double p = logp ? p0 * std::pow(p1 / p0, f) : p0 + (p1 - p0) * f;
      s.a.push_back(p);
      s.b.push_back(T);
    }
  }
  return Permuted(s);
}

StateSet Every(const StateSet& s, size_t step, size_t offset) {
  StateSet o;
  for (size_t i = offset; i < s.a.size(); i += step) {
    o.a.push_back(s.a[i]);
    o.b.push_back(s.b[i]);
  }
  return o;
}

StateSet Join(std::initializer_list<StateSet> parts) {
  StateSet o;
  for (const StateSet& s : parts) {
    o.a.insert(o.a.end(), s.a.begin(), s.a.end());
    o.b.insert(o.b.end(), s.b.begin(), s.b.end());
  }
  return Permuted(o);
}

// (p, T) -> (p, y(p, T)) with T kept as the expected inversion result; or
// (h, s) with p or T as the expected result.
StateSet ToPY(const StateSet& pt, F2 y) {
  StateSet o;
  for (size_t i = 0; i < pt.a.size(); ++i) {
    o.a.push_back(pt.a[i]);
    o.b.push_back(y(pt.a[i], pt.b[i]));
    o.ref.push_back(pt.b[i]);
  }
  return o;
}
StateSet ToHS(const StateSet& pt, F2 h, F2 s, bool wantT) {
  StateSet o;
  for (size_t i = 0; i < pt.a.size(); ++i) {
    o.a.push_back(h(pt.a[i], pt.b[i]));
    o.b.push_back(s(pt.a[i], pt.b[i]));
    o.ref.push_back(wantT ? pt.b[i] : pt.a[i]);
  }
  return o;
}

std::map<std::string, StateSet> MakeSets() {
  std::map<std::string, StateSet> m;
  // Region 1: 275-623.15 K, from 1.02 psat(T) to 100 MPa.
  m["r1"] = GridPT(275.0, 623.15, [](double T) { return 1.02 * Psat(T); },
                   [](double) { return 100e6; }, true);
  // Region 2: 275-1073.15 K, from the triple-point pressure to 0.98 of the
  // saturation / B23 pressure (100 MPa above 863.15 K).
  m["r2"] = GridPT(
      275.0, 1073.15, [](double) { return 611.657; },
      [](double T) {
        return T <= 623.15 ? 0.98 * Psat(T) : T <= 863.15 ? 0.98 * PB23(T) : 100e6;
      },
      true);
  // Region 3: 630-700 K, 25 (or 1.01 p_B23) to 40 MPa.
  m["r3"] = GridPT(630.0, 700.0, [](double T) { return std::max(25e6, 1.01 * PB23(T)); },
                   [](double) { return 40e6; }, false);
  // Region 5: 1100-2200 K, 0.1-50 MPa; and 0.1-10 MPa for the whole-range
  // entry, whose range rule stops region 5 at 10 MPa.
  m["r5"] = GridPT(1100.0, 2200.0, [](double) { return 1e5; }, [](double) { return 50e6; }, true);
  m["r5lo"] =
      GridPT(1100.0, 2200.0, [](double) { return 1e5; }, [](double) { return 10e6; }, true);
  m["mix1235"] = Join({Every(m["r1"], 4, 0), Every(m["r2"], 4, 1), Every(m["r3"], 4, 2),
                       Every(m["r5lo"], 4, 3)});
  m["mix123"] = Join({Every(m["r1"], 3, 0), Every(m["r2"], 3, 1), Every(m["r3"], 3, 2)});
  // Inversions: kvtcore's forward values of the same grids.
  m["r1ph"] = ToPY(m["r1"], kvtH1PT);
  m["r2ph"] = ToPY(m["r2"], kvtH2PT);
  m["r3ph"] = ToPY(m["r3"], kvtH3PT);
  m["r1ps"] = ToPY(m["r1"], kvtS1PT);
  m["r2ps"] = ToPY(m["r2"], kvtS2PT);
  m["r3ps"] = ToPY(m["r3"], kvtS3PT);
  m["r1hs_p"] = ToHS(m["r1"], kvtH1PT, kvtS1PT, false);
  m["r1hs_T"] = ToHS(m["r1"], kvtH1PT, kvtS1PT, true);
  m["r2hs_p"] = ToHS(m["r2"], kvtH2PT, kvtS2PT, false);
  m["r2hs_T"] = ToHS(m["r2"], kvtH2PT, kvtS2PT, true);
  // Saturation line: T 273.16-647 K linear; p 611.66 Pa-22 MPa logarithmic.
  {
    StateSet t, p;
    for (int i = 0; i < kSide * kSide; ++i) {
      const double f = (i + 0.5) / (kSide * kSide);
      t.a.push_back(273.16 + (647.0 - 273.16) * f);
      p.a.push_back(611.66 * std::pow(22.0e6 / 611.66, f));
    }
    m["satT"] = Permuted(t);
    m["satp"] = Permuted(p);
  }
  // Transport by density and T: the densities of the region 1 and 2 grids.
  {
    StateSet rt;
    const StateSet mix = Join({Every(m["r1"], 2, 0), Every(m["r2"], 2, 1)});
    for (size_t i = 0; i < mix.a.size(); ++i) {
      rt.a.push_back(1.0 / kvtVPT(mix.a[i], mix.b[i]));
      rt.b.push_back(mix.b[i]);
      rt.extra.push_back(mix.a[i]);
    }
    m["rhoT"] = rt;
  }
  return m;
}

// ---- Workloads -----------------------------------------------------------

struct Workload {
  std::string name;     // unique, used as the callgrind dump name
  std::string set;      // state set
  std::string function; // export called
  F1 f1;
  F2 f2;
  int toleranceMode;    // 1 refined (default), 0 backward equations only
  int checkRange;       // 1 range rule applied (default), 0 off
};

std::vector<Workload> MakeWorkloads() {
  std::vector<Workload> w;
  auto add2 = [&](const char* name, const char* set, const char* fn, F2 f, int tm = 1,
                  int cr = 1) { w.push_back({name, set, fn, nullptr, f, tm, cr}); };
  auto add1 = [&](const char* name, const char* set, const char* fn, F1 f, int tm = 1,
                  int cr = 1) { w.push_back({name, set, fn, f, nullptr, tm, cr}); };
#define KVT_FN(f) #f, f
  // 1. h(p,T) by region, through the region export and the whole-range one.
  add2("h_r1_region", "r1", KVT_FN(kvtH1PT));
  add2("h_r1_whole", "r1", KVT_FN(kvtHPT));
  add2("h_r1_whole_norange", "r1", KVT_FN(kvtHPT), 1, 0);
  add2("h_r2_region", "r2", KVT_FN(kvtH2PT));
  add2("h_r2_whole", "r2", KVT_FN(kvtHPT));
  add2("h_r3_region", "r3", KVT_FN(kvtH3PT));
  add2("h_r3_region_mode0", "r3", KVT_FN(kvtH3PT), 0);
  add2("h_r3_whole", "r3", KVT_FN(kvtHPT));
  add2("h_r5_region", "r5", KVT_FN(kvtH5PT));
  add2("h_r5lo_whole", "r5lo", KVT_FN(kvtHPT));
  // 2. Whole range, all regions mixed.
  add2("h_mix1235_whole", "mix1235", KVT_FN(kvtHPT));
  add2("h_mix1235_whole_mode0", "mix1235", KVT_FN(kvtHPT), 0);
  add2("h_mix1235_whole_norange", "mix1235", KVT_FN(kvtHPT), 1, 0);
  add2("h_mix123_whole", "mix123", KVT_FN(kvtHPT));
  // 3. T(p,h), T(p,s): region exports and whole-range ones, both modes.
  const struct { const char* r; F2 tph, tps; } inv[] = {
      {"r1", kvtT1PH, kvtT1PS}, {"r2", kvtT2PH, kvtT2PS}, {"r3", kvtT3PH, kvtT3PS}};
  const auto fn = [](const std::string& r, const char* tail) {
    return "kvtT" + r.substr(1) + tail;
  };
  for (const auto& v : inv) {
    const std::string r = v.r;
    for (int mode : {1, 0}) {
      const std::string m = mode ? "" : "_mode0";
      w.push_back({"Tph_" + r + "_region" + m, r + "ph", fn(r, "PH"), nullptr, v.tph, mode, 1});
      w.push_back({"Tph_" + r + "_whole" + m, r + "ph", "kvtTPH", nullptr, kvtTPH, mode, 1});
      w.push_back({"Tps_" + r + "_region" + m, r + "ps", fn(r, "PS"), nullptr, v.tps, mode, 1});
      w.push_back({"Tps_" + r + "_whole" + m, r + "ps", "kvtTPS", nullptr, kvtTPS, mode, 1});
    }
    w.push_back({"Tph_" + r + "_whole_norange", r + "ph", "kvtTPH", nullptr, kvtTPH, 1, 0});
    w.push_back({"Tps_" + r + "_whole_norange", r + "ps", "kvtTPS", nullptr, kvtTPS, 1, 0});
  }
  // 4. p(h,s), T(h,s) in regions 1 and 2.
  for (int mode : {1, 0}) {
    const std::string m = mode ? "" : "_mode0";
    w.push_back({"phs_r1_region" + m, "r1hs_p", "kvtP1HS", nullptr, kvtP1HS, mode, 1});
    w.push_back({"phs_r1_whole" + m, "r1hs_p", "kvtPHS", nullptr, kvtPHS, mode, 1});
    w.push_back({"Ths_r1_region" + m, "r1hs_T", "kvtT1HS", nullptr, kvtT1HS, mode, 1});
    w.push_back({"Ths_r1_whole" + m, "r1hs_T", "kvtTHS", nullptr, kvtTHS, mode, 1});
    w.push_back({"phs_r2_region" + m, "r2hs_p", "kvtP2HS", nullptr, kvtP2HS, mode, 1});
    w.push_back({"phs_r2_whole" + m, "r2hs_p", "kvtPHS", nullptr, kvtPHS, mode, 1});
    w.push_back({"Ths_r2_region" + m, "r2hs_T", "kvtT2HS", nullptr, kvtT2HS, mode, 1});
    w.push_back({"Ths_r2_whole" + m, "r2hs_T", "kvtTHS", nullptr, kvtTHS, mode, 1});
  }
  // 5. Saturation line.
  add1("psat_T", "satT", KVT_FN(kvtPST));
  add1("psat_T_norange", "satT", KVT_FN(kvtPST), 1, 0);
  add1("Tsat_p", "satp", KVT_FN(kvtTSP));
  add1("Tsat_p_norange", "satp", KVT_FN(kvtTSP), 1, 0);
  // 6. Transport.
  add2("mu_pT_r1", "r1", KVT_FN(kvtDYNVISPT));
  add2("mu_pT_r2", "r2", KVT_FN(kvtDYNVISPT));
  add2("lambda_pT_r1", "r1", KVT_FN(kvtTHERMCONDPT));
  add2("lambda_pT_r2", "r2", KVT_FN(kvtTHERMCONDPT));
  add2("mu_rhoT", "rhoT", KVT_FN(kvtDYNVISRT));
  add2("lambda_rhoT", "rhoT", KVT_FN(kvtTHERMCONDRT));
  // 7. cp and w, region exports and whole-range ones.
  add2("cp_r1_region", "r1", KVT_FN(kvtCP1PT));
  add2("cp_r1_whole", "r1", KVT_FN(kvtCPPT));
  add2("w_r1_region", "r1", KVT_FN(kvtW1PT));
  add2("w_r1_whole", "r1", KVT_FN(kvtWPT));
  add2("cp_r2_region", "r2", KVT_FN(kvtCP2PT));
  add2("cp_r2_whole", "r2", KVT_FN(kvtCPPT));
  add2("w_r2_region", "r2", KVT_FN(kvtW2PT));
  add2("w_r2_whole", "r2", KVT_FN(kvtWPT));
  // 8. The frame is read off pairs above: *_whole against *_whole_norange
  // (the range rule) and h_r1_whole against h_r1_region (area test + rule).
#undef KVT_FN
  return w;
}

// ---- Measurement ---------------------------------------------------------

__attribute__((noinline)) double Empty2(double a, double b) {
  asm volatile("" ::: "memory");
  return a - b;
}
__attribute__((noinline)) double Empty1(double a) {
  asm volatile("" ::: "memory");
  return a;
}

__attribute__((noinline)) double Pass2(F2 f, const double* a, const double* b, size_t n) {
  double acc = 0;
  for (size_t i = 0; i < n; ++i) acc += f(a[i], b[i]);
  return acc;
}
__attribute__((noinline)) double Pass1(F1 f, const double* a, size_t n) {
  double acc = 0;
  for (size_t i = 0; i < n; ++i) acc += f(a[i]);
  return acc;
}

double Pass(const Workload& w, const StateSet& s) {
  return w.f1 ? Pass1(w.f1, s.a.data(), s.a.size())
              : Pass2(w.f2, s.a.data(), s.b.data(), s.a.size());
}

void Apply(const Workload& w) {
  kvtSETTOLERANCEMODE(w.toleranceMode);
  kvtSETCHECKRANGEMODE(w.checkRange);
}
void Restore() {
  kvtSETTOLERANCEMODE(1);
  kvtSETCHECKRANGEMODE(1);
}

volatile double sink;

// Calls that fail (error code set) and, for inversions, the largest relative
// deviation from the state the inputs were made from.
struct Check {
  int errors = 0;
  double maxDev = 0;
};
Check Validate(const Workload& w, const StateSet& s) {
  Check c;
  Apply(w);
  for (size_t i = 0; i < s.a.size(); ++i) {
    const double r = w.f1 ? w.f1(s.a[i]) : w.f2(s.a[i], s.b[i]);
    if (kvtGETLASTERROR() != 0 || !std::isfinite(r)) {
      ++c.errors;
      continue;
    }
    if (!s.ref.empty()) c.maxDev = std::max(c.maxDev, std::fabs(r / s.ref[i] - 1));
  }
  Restore();
  return c;
}

double NowNs() {
  return std::chrono::duration<double, std::nano>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

// Median and minimum ns per call over reps timed runs of k passes each, with
// k chosen so that one run lasts at least 2 ms.
struct Timing {
  double median, min;
};
template <class P>
Timing TimeIt(P pass, size_t n, int reps) {
  int k = 1;
  for (;;) {
    const double t0 = NowNs();
    for (int i = 0; i < k; ++i) sink = pass();
    if (NowNs() - t0 >= 2e6 || k >= (1 << 20)) break;
    k *= 2;
  }
  std::vector<double> t;
  for (int r = 0; r < reps; ++r) {
    const double t0 = NowNs();
    for (int i = 0; i < k; ++i) sink = pass();
    t.push_back((NowNs() - t0) / (double(k) * n));
  }
  std::sort(t.begin(), t.end());
  return {t[t.size() / 2], t[0]};
}

std::map<std::string, double> ReadIr(const char* path) {
  std::map<std::string, double> m;
  FILE* f = std::fopen(path, "r");
  if (!f) return m;
  char name[256];
  double v;
  while (std::fscanf(f, "%255s %lf", name, &v) == 2) m[name] = v;
  std::fclose(f);
  return m;
}

void Dump(const std::map<std::string, StateSet>& sets, const std::string& dir) {
  for (const auto& [name, s] : sets) {
    FILE* f = std::fopen((dir + "/" + name + ".txt").c_str(), "w");
    if (!f) {
      std::perror(dir.c_str());
      std::exit(1);
    }
    for (size_t i = 0; i < s.a.size(); ++i) {
      std::fprintf(f, "%.17g %.17g", s.a[i], s.b.empty() ? 0.0 : s.b[i]);
      if (!s.ref.empty()) std::fprintf(f, " %.17g", s.ref[i]);
      if (!s.extra.empty()) std::fprintf(f, " %.17g", s.extra[i]);
      std::fprintf(f, "\n");
    }
    std::fclose(f);
  }
}

}  // namespace

int main(int argc, char** argv) {
  bool count = false, time = false;
  const char* irFile = nullptr;
  const char* dumpDir = nullptr;
  const char* filter = nullptr;
  int reps = 15;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--count") count = true;
    else if (a == "--time") time = true;
    else if (a == "--ir" && i + 1 < argc) irFile = argv[++i];
    else if (a == "--dump" && i + 1 < argc) dumpDir = argv[++i];
    else if (a == "--filter" && i + 1 < argc) filter = argv[++i];
    else if (a == "--reps" && i + 1 < argc) reps = std::atoi(argv[++i]);
    else {
      std::fprintf(stderr, "usage: %s [--count] [--time [--ir FILE]] [--dump DIR] "
                           "[--filter TEXT] [--reps N]\n", argv[0]);
      return 2;
    }
  }
  if (!count && !time && !dumpDir) time = true;

  const std::map<std::string, StateSet> sets = MakeSets();
  if (dumpDir) Dump(sets, dumpDir);
  std::vector<Workload> all = MakeWorkloads();
  std::vector<Workload> work;
  for (const Workload& w : all)
    if (!filter || w.name.find(filter) != std::string::npos) work.push_back(w);

  const size_t n = sets.at("r1").a.size();
  if (count) {
    // The empty passes first: their totals are the baselines.
    const StateSet& s = sets.at("r1");
    sink = Pass2(Empty2, s.a.data(), s.b.data(), n);
    CALLGRIND_ZERO_STATS;
    sink = Pass2(Empty2, s.a.data(), s.b.data(), n);
    CALLGRIND_DUMP_STATS_AT("baseline2");
    CALLGRIND_ZERO_STATS;
    sink = Pass1(Empty1, s.a.data(), n);
    CALLGRIND_DUMP_STATS_AT("baseline1");
    for (const Workload& w : work) {
      const StateSet& st = sets.at(w.set);
      Apply(w);
      sink = Pass(w, st);  // warm: lazy binding, first-touch of tables
      CALLGRIND_ZERO_STATS;
      sink = Pass(w, st);
      CALLGRIND_DUMP_STATS_AT(w.name.c_str());
      Restore();
    }
    std::printf("counted %zu workloads over %zu states each\n", work.size(), n);
  }
  if (time) {
    const std::map<std::string, double> ir = irFile ? ReadIr(irFile) : std::map<std::string, double>{};
    const auto base = [&](const char* k) { return ir.count(k) ? ir.at(k) : 0.0; };
    const StateSet& s0 = sets.at("r1");
    const Timing e2 = TimeIt([&] { return Pass2(Empty2, s0.a.data(), s0.b.data(), n); }, n, reps);
    std::printf("kvtcore %.4f; %zu states per workload; ns: median of %d runs (min in brackets); "
                "empty-call loop %.2f ns (not subtracted)\n",
                kvtGETKVTVERSION(), n, reps, e2.median);
    std::printf("%-28s %-16s %-5s %-6s %10s %18s %6s %9s\n", "workload", "function", "mode",
                "range", "Ir/call", "ns/call", "errors", "max dev");
    for (const Workload& w : work) {
      const StateSet& st = sets.at(w.set);
      const Check c = Validate(w, st);
      Apply(w);
      sink = Pass(w, st);
      const Timing t = TimeIt([&] { return Pass(w, st); }, st.a.size(), reps);
      Restore();
      char irText[32] = "-";
      if (ir.count(w.name)) {
        const double b = base(w.f1 ? "baseline1" : "baseline2");
        std::snprintf(irText, sizeof irText, "%.0f", (ir.at(w.name) - b) / st.a.size());
      }
      char devText[32] = "-";
      if (!st.ref.empty()) std::snprintf(devText, sizeof devText, "%.1e", c.maxDev);
      char nsText[40];
      std::snprintf(nsText, sizeof nsText, "%.1f (%.1f)", t.median, t.min);
      std::printf("%-28s %-16s %-5d %-6d %10s %18s %6d %9s\n", w.name.c_str(), w.function.c_str(),
                  w.toleranceMode, w.checkRange, irText, nsText, c.errors, devText);
      std::fflush(stdout);
    }
  }
  return 0;
}
