// Points per second over arrays: kvtEval on one thread and on every core,
// against a loop over the export, for h(p,T), T(p,h) and a gas property.
// Run: build/release/bench/kvt_bench --benchmark_filter=Array
// (items_per_second is points per second; the times are wall-clock).
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "kvtcore.h"
#include "kvtcore_batch.h"

namespace {

constexpr size_t kPoints = 1000000;

struct Points {
  const char* name;
  double (*scalar)(double, double);  // the export, for the loop
  double lo0, hi0, lo1, hi1;         // spans of the two arguments
  bool ids;                          // the first argument a gas id
};

// Steam and water by p,T across regions 1 and 2; by p,h across 1, 2 and the
// wet area; the enthalpy of the thirteen table gases.
const Points kHPT = {"HPT", kvtHPT, 1e5, 1e7, 300, 800, false};
const Points kTPH = {"TPH", kvtTPH, 1e5, 1e7, 1e5, 3.5e6, false};
const Points kGas = {"gHIDT", nullptr, 0, 13, 300, 2000, true};

std::vector<double> Spread(double lo, double hi, bool ids, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> u(lo, hi);
  std::vector<double> v(kPoints);
  for (double& x : v) x = ids ? std::floor(u(random)) : u(random);
  return v;
}

// threads: 1 or 0 (every core); -1 runs the loop over the export instead.
void Array(benchmark::State& state, Points pts) {
  const int32_t threads = static_cast<int32_t>(state.range(0));
  const std::vector<double> a = Spread(pts.lo0, pts.hi0, pts.ids, 1);
  const std::vector<double> b = Spread(pts.lo1, pts.hi1, false, 2);
  std::vector<double> out(kPoints);
  const double* args[2] = {a.data(), b.data()};
  kvtEngine* e = kvtEngineNew();
  for (auto _ : state) {
    if (threads >= 0) {
      benchmark::DoNotOptimize(kvtEval(e, pts.name, kPoints, args, nullptr, out.data(), nullptr, threads));
    } else if (pts.ids) {
      for (size_t k = 0; k < kPoints; ++k) out[k] = kvtgHIDT(static_cast<int32_t>(a[k]), b[k]);
    } else {
      for (size_t k = 0; k < kPoints; ++k) out[k] = pts.scalar(a[k], b[k]);
    }
    benchmark::ClobberMemory();
  }
  kvtEngineFree(e);
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * kPoints));
  state.SetLabel(threads < 0 ? "export loop" : threads == 1 ? "kvtEval, 1 thread" : "kvtEval, every core");
}

#define KVT_ARRAY_BENCH(points)                                                          \
  BENCHMARK_CAPTURE(Array, points, points)->ArgName("threads")->Arg(-1)->Arg(1)->Arg(0) \
      ->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(1.0)
KVT_ARRAY_BENCH(kHPT);
KVT_ARRAY_BENCH(kTPH);
KVT_ARRAY_BENCH(kGas);

}  // namespace
