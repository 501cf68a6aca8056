// kvtcorex.dll as a Windows host sees it: loaded beside kvtcore6.dll, its
// kvtEval gives, on one thread and on two, the numbers and codes of
// kvtcore6.dll's exports.
//
//   test_companion.exe path\to\kvtcorex.dll path\to\kvtcore6.dll
#include <windows.h>

#include <cstring>
#include <vector>

#include "check.h"
#include "kvtcore_batch.h"

namespace {

template <class F> F Export(HMODULE dll, const char* name) {
  return reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(dll, name)));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  HMODULE batch = LoadLibraryA(argv[1]), core = LoadLibraryA(argv[2]);
  if (!CHECK(batch && core)) return check::Summary();
  auto engineNew = Export<kvtEngine* (*)()>(batch, "kvtEngineNew");
  auto engineFree = Export<void (*)(kvtEngine*)>(batch, "kvtEngineFree");
  auto eval = Export<decltype(&kvtEval)>(batch, "kvtEval");
  auto hpt = Export<double(__stdcall*)(double, double)>(core, "kvtHPT");
  auto lastError = Export<int32_t(__stdcall*)()>(core, "kvtGETLASTERROR");
  if (!CHECK(engineNew && engineFree && eval && hpt && lastError)) return check::Summary();

  const size_t n = 4000;
  std::vector<double> p(n), T(n), h(n);
  std::vector<int32_t> codes(n);
  for (size_t k = 0; k < n; ++k) {
    p[k] = 1e4 + 1e5 * double(k % 997);   // up to 1e8 Pa, a few beyond
    T[k] = 250 + 0.6 * double(k);         // 250 to 2650 K, some out of range
  }
  const double* args[2] = {p.data(), T.data()};
  kvtEngine* e = engineNew();
  for (int32_t threads : {1, 2}) {
    const int64_t failed = eval(e, "HPT", n, args, nullptr, h.data(), codes.data(), threads);
    int64_t expected = 0, wrong = 0;
    for (size_t k = 0; k < n; ++k) {
      const double want = hpt(p[k], T[k]);
      const int32_t code = lastError();
      expected += code != 0;
      const bool same = code ? h[k] != h[k] : std::memcmp(&h[k], &want, sizeof want) == 0;
      wrong += !same || codes[k] != code;
    }
    CHECK(wrong == 0);
    CHECK(failed == expected && expected > 0 && expected < int64_t(n));
  }
  engineFree(e);
  return check::Summary();
}
