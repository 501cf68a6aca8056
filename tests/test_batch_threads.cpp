// Concurrency of the array interface, through kvtcore_batch.h alone: threads
// each on an engine of their own, and one engine split among workers, give
// exactly the serial results. Built also under ThreadSanitizer (preset tsan).
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <iterator>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "kvtcore_batch.h"

namespace {

// n points of one row: its arguments, and what came out.
struct Result {
  std::vector<std::vector<double>> args;
  std::vector<std::vector<double>> outs;
  std::vector<int32_t> codes;
  int64_t failed = 0;
  int32_t lastError = 0;

  bool operator==(const Result& o) const {
    for (size_t j = 0; j < outs.size(); ++j)
      if (std::memcmp(outs[j].data(), o.outs[j].data(), outs[j].size() * sizeof(double)) != 0)
        return false;
    return codes == o.codes && failed == o.failed && lastError == o.lastError;
  }
};

// A row, the spans of its arguments (a few points outside them), and a gas
// text for the rows that take one.
struct Case {
  const char* name;
  std::vector<std::pair<double, double>> spans;
  const char* gas;
};

const Case kCases[] = {
    {"TPH", {{1e3, 1.1e8}, {-1e5, 4.5e6}}, nullptr},
    {"HPT", {{1e3, 1.1e8}, {250, 2300}}, nullptr},
    {"VPS", {{1e3, 1.1e8}, {-100, 1.2e4}}, nullptr},
    {"TEXPANSIONPTPEFF", {{1e6, 2e7}, {500, 900}, {100, 1e6}, {0.7, 1}}, nullptr},
    {"gHIDT", {{0, 16}, {150, 2600}}, nullptr},
    {"gSGSPT", {{1e4, 1e7}, {150, 2600}}, "{N2:3;O2}:2;CO2:1kg"},
    {"VUSHCVWDERPTPT", {{1e3, 1.1e8}, {250, 2300}}, nullptr},
    {"PTHS", {{-1e5, 4.5e6}, {-100, 1.2e4}}, nullptr},
};

Result Evaluate(kvtEngine* e, const Case& c, size_t n, uint32_t seed, int32_t threads) {
  const kvtFunctionInfo* fn = kvtFunctionFind(c.name);
  Result r;
  std::mt19937 random(seed);
  std::vector<const double*> args;
  for (size_t i = 0; i < c.spans.size(); ++i) {
    std::uniform_real_distribution<double> u(c.spans[i].first, c.spans[i].second);
    std::vector<double> a(n);
    for (double& x : a) x = u(random);
    if (fn->gas == 1 && i == 0)
      for (double& x : a) x = std::floor(x);  // ids, 15 the engine's own gas
    r.args.push_back(std::move(a));
    args.push_back(r.args.back().data());
  }
  r.outs.assign(fn->outputs, std::vector<double>(n));
  std::vector<double*> outs;
  for (auto& o : r.outs) outs.push_back(o.data());
  r.codes.resize(n);
  r.failed = kvtEvalRow(e, fn, c.gas, n, args.data(), nullptr, outs.data(), r.codes.data(), threads);
  r.lastError = kvtEngineLastError(e);
  return r;
}

// An engine with settings of its own and a caller's gas (id 15).
kvtEngine* MakeEngine(int variant) {
  kvtEngine* e = kvtEngineNew();
  kvtEngineSet(e, "toleranceMode", variant % 2);
  kvtEngineSet(e, "tolerance", variant % 3 == 0 ? 2e-12 : 1e-8);
  kvtEngineSet(e, "checkRangeMode", variant % 4 == 3 ? 0 : 1);
  kvtEngineNewGas(e, variant % 2 ? "N2:0.7;Ar:0.3" : "CO2:1;H2O:2");
  return e;
}

constexpr size_t kPoints = 3000;

// Every case, on one engine, with threads 1 and then 2, 3 and every core.
TEST(BatchThreads, SplittingChangesNothing) {
  kvtEngine* e = MakeEngine(1);
  for (const Case& c : kCases) {
    const Result serial = Evaluate(e, c, kPoints, 7, 1);
    EXPECT_GT(serial.failed, 0) << c.name;
    EXPECT_LT(serial.failed, int64_t(kPoints)) << c.name;
    for (int32_t threads : {2, 3, 0})
      EXPECT_TRUE(Evaluate(e, c, kPoints, 7, threads) == serial) << c.name << " " << threads;
  }
  kvtEngineFree(e);
}

// Four threads at once, each on its own engine with its own settings and gas,
// two of them splitting their points again; each matches the same work done
// alone beforehand.
TEST(BatchThreads, EnginesOnThreadsOfTheirOwn) {
  const int k = 4;
  std::vector<std::vector<Result>> serial(k), parallel(k);
  for (int t = 0; t < k; ++t) {
    kvtEngine* e = MakeEngine(t);
    for (const Case& c : kCases) serial[t].push_back(Evaluate(e, c, kPoints / 3, 11, 1));
    kvtEngineFree(e);
  }
  std::vector<std::thread> threads;
  for (int t = 0; t < k; ++t)
    threads.emplace_back([t, &parallel] {
      kvtEngine* e = MakeEngine(t);
      for (const Case& c : kCases)
        parallel[t].push_back(Evaluate(e, c, kPoints / 3, 11, t % 2 + 1));
      kvtEngineFree(e);
    });
  for (auto& t : threads) t.join();
  for (int t = 0; t < k; ++t)
    for (size_t i = 0; i < std::size(kCases); ++i)
      EXPECT_TRUE(parallel[t][i] == serial[t][i]) << kCases[i].name << " thread " << t;
  // The same points under other settings give other numbers.
  EXPECT_FALSE(serial[0][0] == serial[1][0]);
}

}  // namespace
