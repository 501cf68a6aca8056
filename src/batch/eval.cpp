// Evaluation over arrays: checks a call, finds its row once, and runs the
// row's loop over the points, on the calling thread or split among workers
// that each have an engine of their own with the caller's settings and gases.
#include <algorithm>
#include <atomic>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "batch/batch.h"

namespace kvt::batch {

namespace {

// Fewer points than this per worker do not pay for a thread.
constexpr size_t kPointsPerWorker = 256;
constexpr size_t kMaxWorkers = 256;

int32_t WorkersFor(size_t n, int32_t threads) {
  size_t k = threads > 0 ? static_cast<size_t>(threads) : std::thread::hardware_concurrency();
  k = std::min({std::max<size_t>(k, 1), kMaxWorkers, (n + kPointsPerWorker - 1) / kPointsPerWorker});
  return static_cast<int32_t>(std::max<size_t>(k, 1));
}

// An id in none of the engine's maps: the stand-in for a gas id that is no
// 32-bit integer.
int32_t UnusedId(const GasEngine& gas) {
  int32_t id = -2147483647 - 1;
  while (gas.idMap.count(id)) ++id;
  return id;
}

// Points in blocks taken in turn, so a worker that meets slow points (long
// iterations) does not hold the others up. Which worker takes which block
// changes nothing the caller sees: every point depends only on its
// arguments, the settings and the gases.
int64_t Split(kvtEngine& e, Loop loop, const Job& job, int32_t workers, bool gases) {
  std::vector<std::unique_ptr<Engine>> engines;
  try {
    for (int32_t w = 1; w < workers; ++w) {
      auto engine = std::make_unique<Engine>();
      engine->CopySettingsFrom(e);
      if (gases) engine->gas.CopyFrom(e.gas);
      engines.push_back(std::move(engine));
    }
  } catch (...) {
    // Short of memory: fewer workers.
  }
  const size_t block = std::clamp<size_t>(job.n / (8 * (engines.size() + 1)), 64, 8192);
  std::atomic<size_t> next{0};
  auto work = [&](Engine& engine, Tally& tally) {
    for (size_t begin; (begin = next.fetch_add(block)) < job.n;)
      loop(engine, job, begin, std::min(job.n, begin + block), tally);
  };
  std::vector<Tally> tallies(engines.size() + 1);
  std::vector<std::thread> threads;
  try {
    for (size_t w = 0; w < engines.size(); ++w)
      threads.emplace_back(work, std::ref(*engines[w]), std::ref(tallies[w + 1]));
  } catch (...) {
    // No more threads to be had: those started and this one share the work.
  }
  work(e, tallies[0]);
  for (std::thread& t : threads) t.join();
  int64_t failed = 0;
  for (const Tally& t : tallies) failed += t.failed;
  // The engine's last error is that of the last point, as after a loop of
  // exports; the worker that evaluated it holds it.
  e.lastError = 0;
  for (const Tally& t : tallies)
    if (t.lastCode != 0) e.lastError = t.lastCode;
  return failed;
}

// A checked call: -1 for anything the header calls a bad call.
int64_t Evaluate(kvtEngine* e, int32_t row, const char* gas, size_t n, const double* const* args,
                 const size_t* strides, double* const* outs, int32_t* codes, int32_t threads) {
  const kvtFunctionInfo* fn = kvtFunctionAt(row);
  const Loop loop = LoopAt(row);
  if (!e || !fn || !loop || !outs || threads < 0) return -1;
  const int32_t texts = fn->gas != 2 ? 0 : std::strcmp(fn->shape, "FSS") == 0 ? 2 : 1;
  const int32_t numbers = fn->inputs - texts;
  Job job{};
  std::string mixture;
  job.n = n;
  job.outs = outs;
  job.codes = codes;
  if (numbers > 0 && !args) return -1;
  for (int32_t i = 0; i < numbers; ++i) {
    if (!args[i]) return -1;
    job.arg[i] = args[i];
    job.stride[i] = strides ? strides[i] : 1;
  }
  for (int32_t j = 0; j < fn->outputs; ++j)
    if (!outs[j]) return -1;
  if (texts > 0) {
    // Two texts come as one, "mixture|component".
    if (!gas) return -1;
    if (texts == 1) {
      job.text[0] = gas;
    } else {
      const char* bar = std::strchr(gas, '|');
      if (!bar) return -1;
      mixture.assign(gas, bar);
      job.text[0] = mixture.c_str();
      job.text[1] = bar + 1;
    }
  }
  if (n == 0) return 0;
  try {
    job.noGas = UnusedId(e->gas);
    // A text is read once per call, on the caller's engine: the workers find
    // it in the copies of its cache, and the engine keeps it as a loop of
    // exports would.
    if (texts == 1) e->gas.GetBySpec(job.text[0]);
  } catch (...) {
    // A text that does not read fails at every point, as in the export.
  }
  // The rows by a pair of gases cost a lookup each, and sum over the
  // components in the order of the engine's own records: they stay on it.
  const bool pairOfGases = std::strcmp(fn->shape, "FII") == 0 || texts == 2;
  const int32_t workers = pairOfGases ? 1 : WorkersFor(n, threads);
  if (workers == 1) {
    Tally tally;
    loop(*e, job, 0, n, tally);
    return tally.failed;
  }
  return Split(*e, loop, job, workers, fn->gas != 0);
}

int32_t RowOf(const char* name) {
  return IndexOf(kvtFunctionFind(name));
}

}  // namespace

}  // namespace kvt::batch

using namespace kvt::batch;

extern "C" {

int64_t kvtEval(kvtEngine* e, const char* name, size_t n, const double* const* args,
                const size_t* strides, double* out, int32_t* codes, int32_t threads) {
  const int32_t row = RowOf(name);
  const kvtFunctionInfo* fn = kvtFunctionAt(row);
  if (!fn || !fn->evaluable || fn->gas == 2 || !out) return -1;
  return Evaluate(e, row, nullptr, n, args, strides, &out, codes, threads);
}

int64_t kvtEvalGas(kvtEngine* e, const char* name, const char* gas, size_t n,
                   const double* const* args, const size_t* strides, double* out, int32_t* codes,
                   int32_t threads) {
  const int32_t row = RowOf(name);
  const kvtFunctionInfo* fn = kvtFunctionAt(row);
  if (!fn || !fn->evaluable || fn->gas != 2 || !out) return -1;
  return Evaluate(e, row, gas, n, args, strides, &out, codes, threads);
}

int64_t kvtEvalRow(kvtEngine* e, const kvtFunctionInfo* fn, const char* gas, size_t n,
                   const double* const* args, const size_t* strides, double* const* outs,
                   int32_t* codes, int32_t threads) {
  return Evaluate(e, IndexOf(fn), gas, n, args, strides, outs, codes, threads);
}

}  // extern "C"
