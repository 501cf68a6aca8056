// Cost of single property calls. Run: build/release/bench/kvt_bench
// (instruction counts: valgrind --tool=callgrind build/release/bench/kvt_bench
//  --benchmark_filter=H1PT --benchmark_min_time=0.01).
#include <benchmark/benchmark.h>

#include <string>

#include "kvtcore.h"

namespace {

void Property(benchmark::State& state, double (*f)(double, double), double a, double b) {
  for (auto _ : state) benchmark::DoNotOptimize(f(a, b));
}

BENCHMARK_CAPTURE(Property, H1PT, kvtH1PT, 3e6, 300.0);
BENCHMARK_CAPTURE(Property, W1PT, kvtW1PT, 3e6, 300.0);
BENCHMARK_CAPTURE(Property, H2PT, kvtH2PT, 3500.0, 700.0);
BENCHMARK_CAPTURE(Property, W2PT, kvtW2PT, 3500.0, 700.0);

void Many1(benchmark::State& state) {
  double o[14];
  for (auto _ : state)
    benchmark::DoNotOptimize(kvtVUSHCVWDERPT1PT(3e6, 300, &o[0], &o[1], &o[2], &o[3], &o[4],
                                                &o[5], &o[6], &o[7], &o[8], &o[9], &o[10],
                                                &o[11], &o[12], &o[13]));
}
BENCHMARK(Many1);

}  // namespace

namespace {

// Inversions by p,h, p,s and h,s in each region, with the backward equations
// alone (mode 0) and refined on the forward equations (mode 1).
struct Inverse {
  const char* name;
  double (*f)(double, double);
  double a, b;
};

void InverseCall(benchmark::State& state, Inverse inv, int mode) {
  kvtSETTOLERANCEMODE(mode);
  for (auto _ : state) benchmark::DoNotOptimize(inv.f(inv.a, inv.b));
  kvtSETTOLERANCEMODE(1);
  if (kvtGETLASTERROR() != 0) state.SkipWithError("the call failed");
}

int RegisterInverses() {
  // One state per region: (p, T) = (3 MPa, 500 K), (1 MPa, 600 K),
  // (25 MPa, 650 K), (0.5 MPa, 1500 K); h and s from the forward equations.
  const struct { const char* region; double p, T; } states[] = {
      {"r1", 3e6, 500}, {"r2", 1e6, 600}, {"r3", 25e6, 650}, {"r5", 5e5, 1500}};
  for (const auto& st : states) {
    const double h = kvtHPT(st.p, st.T), s = kvtSPT(st.p, st.T);
    const Inverse calls[] = {{"TPH", kvtTPH, st.p, h}, {"TPS", kvtTPS, st.p, s},
                             {"HPS", kvtHPS, st.p, s}, {"PHS", kvtPHS, h, s},
                             {"THS", kvtTHS, h, s}};
    for (const Inverse& inv : calls)
      for (int mode : {0, 1})
        benchmark::RegisterBenchmark(
            (std::string(inv.name) + "/" + st.region + "/mode" + std::to_string(mode)).c_str(),
            InverseCall, inv, mode);
  }
  return 0;
}

const int registered = RegisterInverses();

}  // namespace
