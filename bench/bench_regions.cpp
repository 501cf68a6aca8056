// Cost of single property calls. Run: build/release/bench/kvt_bench
// (instruction counts: valgrind --tool=callgrind build/release/bench/kvt_bench
//  --benchmark_filter=H1PT --benchmark_min_time=0.01).
#include <benchmark/benchmark.h>

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
