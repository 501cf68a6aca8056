// Fuzz target over the array interface (kvtcore_batch.h): engines with
// drawn settings and gases, any row of the catalogue over a few points with
// drawn arguments and strides, on one thread or two. After each call: the
// count of failed points is what the codes say, every code is 0 to 11, a
// point that succeeded has every output finite, one that failed has every
// output NaN.
#include "fuzz_common.h"
#include "kvtcore_batch.h"

using namespace kvtfuzz;

namespace {

void Set(kvtEngine* e, Bytes& in) {
  static const char* const names[] = {"tolerance", "toleranceMode", "checkRangeMode",
                                      "maxIteration", "noSuchSetting"};
  const char* name = names[in.Byte() % 5];
  double value = Double(in);
  // The cap stays small: a NaN that runs a solve to the cap is by design.
  if (std::strcmp(name, "maxIteration") == 0 && !(value <= 1000)) value = 1000;
  kvtEngineSet(e, name, value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static kvtEngine* const base = kvtEngineNew();
  Bytes in(data, size);
  kvtEngine* e = kvtEngineClone(base);
  if (!e) Fail("clone failed", "kvtEngineClone");
  Session session;
  Outputs unused;
  std::vector<int32_t> ids = {0, 6, 13, 14, 99};
  for (int steps = 0; steps < 8 && !in.Empty(); ++steps) {
    const uint8_t op = in.Byte();
    if (op < 32) {
      Set(e, in);
      continue;
    }
    if (op < 56) {
      const int32_t id = kvtEngineNewGas(e, Draw<const char*>(in, session, unused));
      if (id != -1) ids.push_back(id);
      if (op & 1) kvtEngineDeleteGas(e, ids[in.Byte() % ids.size()]);
      continue;
    }
    const kvtFunctionInfo* fn = kvtFunctionAt(in.Word() % kvtFunctionCount());
    if (!fn) Fail("row missing", "kvtFunctionAt");
    const size_t n = in.Byte() % 9;
    const int numeric = fn->inputs - (fn->gas == 2 ? 1 : 0);
    std::vector<std::vector<double>> values(5, std::vector<double>(n + 1));
    std::vector<size_t> strides(5);
    const double* args[5] = {};
    for (int i = 0; i < numeric && i < 5; ++i) {
      for (double& v : values[i])
        v = (i == 0 && fn->gas == 1) ? ids[in.Byte() % ids.size()] : Double(in);
      strides[i] = in.Byte() % 2;
      args[i] = values[i].data();
    }
    std::string gas;
    if (fn->gas == 2) {
      gas = GasText(in, session.names);
      if (std::strstr(fn->name, "FGSGS")) gas += "|" + GasText(in, session.names);
    }
    std::vector<std::vector<double>> outs(fn->outputs, std::vector<double>(n, Outputs::Sentinel()));
    std::vector<double*> outPtrs;
    for (auto& o : outs) outPtrs.push_back(o.data());
    std::vector<int32_t> codes(n, -7);
    const int32_t threads = in.Byte() % 3 == 0 ? 2 : 1;
    const int64_t failed = kvtEvalRow(e, fn, fn->gas == 2 ? gas.c_str() : nullptr, n, args,
                                      strides.data(), outPtrs.data(), codes.data(), threads);
    if (failed == -1) continue;  // a row the interface does not take
    int64_t count = 0;
    for (size_t k = 0; k < n; ++k) {
      if (codes[k] < 0 || codes[k] > 11) Fail("code out of 0..11", fn->name);
      count += codes[k] != 0;
      for (const auto& o : outs) {
        if (Outputs::IsSentinel(o[k])) Fail("output not written", fn->name);
        if (codes[k] == 0 && !std::isfinite(o[k])) Fail("non-finite output of a success", fn->name);
        if (codes[k] != 0 && !std::isnan(o[k])) Fail("failed point not NaN", fn->name);
      }
    }
    if (count != failed) Fail("failed count and codes disagree", fn->name);
  }
  kvtEngineFree(e);
  return 0;
}
