// Engines as values and evaluation over arrays: every evaluable row of the
// catalogue through kvtEval against its export, bit for bit and code for
// code; broadcasting; bad calls; engines with their own settings and gases;
// the pair and fourteen-output rows; the catalogue as data.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "batch/batch.h"
#include "kvtcore.h"

namespace {

using Fn = void (*)();
struct Export {
  const char* name;
  const char* shape;
  Fn fn;
};
#define KVT_EXPORT_ROW(ord, name, shape, rule, core, args, result) \
  {#name, #shape, reinterpret_cast<Fn>(&name)},
const Export kExports[] = {KVT_CATALOGUE(KVT_EXPORT_ROW)};

// A gas id as the export takes it; a double that is no integer stands for an
// id that no gas has.
int32_t Id(double x) { return x == std::trunc(x) && std::fabs(x) < 1e9 ? int32_t(x) : 999999999; }

// The export of a one-number row, called with numbers a and texts g.
double Call(const Export& x, const double* a, const char* g0, const char* g1) {
  const std::string s = x.shape;
  const Fn f = x.fn;
  using D = double;
  if (s == "D1") return reinterpret_cast<D (*)(D)>(f)(a[0]);
  if (s == "D2") return reinterpret_cast<D (*)(D, D)>(f)(a[0], a[1]);
  if (s == "D3") return reinterpret_cast<D (*)(D, D, D)>(f)(a[0], a[1], a[2]);
  if (s == "D4") return reinterpret_cast<D (*)(D, D, D, D)>(f)(a[0], a[1], a[2], a[3]);
  if (s == "D5") return reinterpret_cast<D (*)(D, D, D, D, D)>(f)(a[0], a[1], a[2], a[3], a[4]);
  if (s == "I2") return reinterpret_cast<int32_t (*)(D, D)>(f)(a[0], a[1]);
  if (s == "GI0") return reinterpret_cast<D (*)(int32_t)>(f)(Id(a[0]));
  if (s == "GI1") return reinterpret_cast<D (*)(int32_t, D)>(f)(Id(a[0]), a[1]);
  if (s == "GI2") return reinterpret_cast<D (*)(int32_t, D, D)>(f)(Id(a[0]), a[1], a[2]);
  if (s == "FII") return reinterpret_cast<D (*)(int32_t, int32_t)>(f)(Id(a[0]), Id(a[1]));
  if (s == "GS0") return reinterpret_cast<D (*)(const char*)>(f)(g0);
  if (s == "GS1") return reinterpret_cast<D (*)(const char*, D)>(f)(g0, a[0]);
  if (s == "GS2") return reinterpret_cast<D (*)(const char*, D, D)>(f)(g0, a[0], a[1]);
  if (s == "FSS") return reinterpret_cast<D (*)(const char*, const char*)>(f)(g0, g1);
  ADD_FAILURE() << "no call for shape " << s;
  return 0;
}

// Values for each argument name: inside and outside the ranges.
const std::map<std::string, std::vector<double>> kValues = {
    {"p", {1e5, 3e6, 2.5e7, 1e9, 611.0, 5e4, 1.6e7}},
    {"T", {300, 450, 640, 1200, 2000, 100, 700}},
    {"x", {0.5, 1, 0, 1.5}},
    {"h", {1.2e5, 2.7e6, 3.4e6, 2e6, -5e5, 1.8e6}},
    {"s", {400, 6500, 7200, 4500, -10, 5200}},
    {"rho", {990, 400, 30, 0}},
    {"p2", {1e4, 5e5, 1e3}},
    {"efficiency", {0.85, 1}},
    {"id", {0, 13, 6, 14, 2.5, 99, 12}},
    {"v", {0.5, 0.001, 100}},
    {"u", {1e6, 2.4e6}},
    {"cp", {2000, 4000}},
    {"w", {500, 1400}},
};

const std::vector<double>& ValuesOf(std::string name) {
  static const std::map<std::string, std::string> alias = {
      {"p1", "p"}, {"T1", "T"}, {"x1", "x"}, {"rhoStart", "rho"}, {"mixture", "id"},
      {"component", "id"}, {"cv", "cp"}};
  static const std::vector<double> other = {1e-5, 0.5, 3};
  if (alias.count(name)) name = alias.at(name);
  return kValues.count(name) ? kValues.at(name) : other;
}

// The four settings, on the global engine and on an engine of the interface.
struct Settings {
  double tolerance;
  int32_t toleranceMode, checkRangeMode, maxIteration;
  void ApplyGlobal() const {
    kvtSETTOLERANCE(tolerance);
    kvtSETTOLERANCEMODE(toleranceMode);
    kvtSETCHECKRANGEMODE(checkRangeMode);
    kvtSETMAXITERATION(maxIteration);
  }
  void Apply(kvtEngine* e) const {
    kvtEngineSet(e, "tolerance", tolerance);
    kvtEngineSet(e, "toleranceMode", toleranceMode);
    kvtEngineSet(e, "checkRangeMode", checkRangeMode);
    kvtEngineSet(e, "maxIteration", maxIteration);
  }
};
const Settings kDefaults = {2e-12, 1, 1, 100};

bool SameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// Gas texts, good and bad, for the rows by one text and by two.
const char* const kOneText[4] = {"N2:0.79;O2:0.21", "AirMix", "{N2;O2}:2;CO2:5g", "N2:1 kg"};
const char* const kTwoTexts[4] = {"AirMix|N2", "N2:1;O2:3|O2", "{N2;O2}|AirMix", "Air|N2;;"};

class Batch : public testing::Test {
 protected:
  // An engine with the gases of the global one, whatever earlier tests left
  // there, so that ids and texts mean the same on both.
  void SetUp() override {
    e = kvtEngineNew();
    e->gas.CopyFrom(kvt::engine().gas);
    kDefaults.ApplyGlobal();
  }
  void TearDown() override {
    kvtEngineFree(e);
    kDefaults.ApplyGlobal();
    kvtSETLASTERROR(0);
  }

  // Every evaluable row at m points against its export, under the settings.
  void CompareEveryRow(const Settings& settings) {
    settings.ApplyGlobal();
    settings.Apply(e);
    const size_t m = 7;
    int rows = 0, successes = 0, failures = 0;
    for (int32_t r = 0; r < kvtFunctionCount(); ++r) {
      const kvtFunctionInfo* fn = kvtFunctionAt(r);
      if (!fn->evaluable) continue;
      ++rows;
      const Export& x = kExports[r];
      ASSERT_STREQ(x.name, fn->name);
      const int nt = fn->gas != 2 ? 0 : std::strcmp(fn->shape, "FSS") == 0 ? 2 : 1;
      const int nargs = fn->inputs - nt;
      std::vector<std::vector<double>> a(nargs, std::vector<double>(m));
      std::vector<const double*> args(nargs);
      for (int i = 0; i < nargs; ++i) {
        const std::vector<double>& v = ValuesOf(fn->inputNames[nt + i]);
        for (size_t k = 0; k < m; ++k) a[i][k] = v[(k * (2 * i + 1) + i) % v.size()];
        args[i] = a[i].data();
      }
      for (int t = 0; t < (nt ? 4 : 1); ++t) {
        std::vector<double> out(m, 7.0);
        std::vector<int32_t> codes(m, -7);
        const std::string text = nt == 1 ? kOneText[t] : nt == 2 ? kTwoTexts[t] : "";
        const int64_t failed =
            nt ? kvtEvalGas(e, fn->name + 3, text.c_str(), m, args.data(), nullptr, out.data(),
                            codes.data(), 1)
               : kvtEval(e, fn->name + 3, m, args.data(), nullptr, out.data(), codes.data(), 1);
        int64_t expectFailed = 0;
        const size_t bar = text.find('|');
        const std::string g0 = text.substr(0, bar);
        const std::string g1 = bar == std::string::npos ? "" : text.substr(bar + 1);
        for (size_t k = 0; k < m; ++k) {
          double p[5];
          for (int i = 0; i < nargs; ++i) p[i] = a[i][k];
          const double want = Call(x, p, g0.c_str(), g1.c_str());
          const int32_t code = kvtGETLASTERROR();
          expectFailed += code != 0;
          code ? ++failures : ++successes;
          EXPECT_EQ(codes[k], code) << fn->name << " " << text << " point " << k;
          EXPECT_TRUE(code ? std::isnan(out[k]) : SameBits(out[k], want))
              << fn->name << " " << text << " point " << k << ": " << out[k] << " vs " << want;
        }
        EXPECT_EQ(failed, expectFailed) << fn->name;
        EXPECT_EQ(kvtEngineLastError(e), codes[m - 1]) << fn->name;
      }
    }
    EXPECT_GT(rows, 250);
    EXPECT_GT(successes, 800);
    EXPECT_GT(failures, 300);
  }

  kvtEngine* e = nullptr;
};

TEST_F(Batch, EveryRowGivesWhatItsExportGives) { CompareEveryRow(kDefaults); }

TEST_F(Batch, EveryRowUnderOtherSettings) { CompareEveryRow({1e-9, 0, 0, 3}); }

// Stride 0 repeats one value; a stride of 2 skips every other.
TEST_F(Batch, BroadcastsAndStrides) {
  const double p = 3e6, T[6] = {300, 0, 500, 0, 700, 0};
  const double* args[2] = {&p, T};
  const size_t strides[2] = {0, 2};
  double h[3];
  ASSERT_EQ(kvtEval(e, "kvtHPT", 3, args, strides, h, nullptr, 1), 0);
  for (int k = 0; k < 3; ++k) EXPECT_TRUE(SameBits(h[k], kvtHPT(p, T[2 * k])));
  // A gas id broadcast, by a name in any case.
  const double id = 6, Tg[2] = {300, 1000};
  const double* gargs[2] = {&id, Tg};
  const size_t gstrides[2] = {0, 1};
  ASSERT_EQ(kvtEval(e, "KVTGCPIDT", 2, gargs, gstrides, h, nullptr, 1), 0);
  for (int k = 0; k < 2; ++k) EXPECT_TRUE(SameBits(h[k], kvtgCPIDT(6, Tg[k])));
}

// A bad call returns -1 and writes nothing.
TEST_F(Batch, BadCallsWriteNothing) {
  const double p[2] = {1e5, 1e6}, T[2] = {300, 400};
  const double* args[2] = {p, T};
  const double* halfNull[2] = {p, nullptr};
  double out[2] = {7, 7};
  int32_t codes[2] = {7, 7};
  const kvtFunctionInfo* pair = kvtFunctionFind("PTHS");
  double* outs[2] = {out, nullptr};
  const struct {
    const char* what;
    int64_t r;
  } calls[] = {
      {"unknown name", kvtEval(e, "HPTT", 2, args, nullptr, out, codes, 1)},
      {"null name", kvtEval(e, nullptr, 2, args, nullptr, out, codes, 1)},
      {"null engine", kvtEval(nullptr, "HPT", 2, args, nullptr, out, codes, 1)},
      {"null args", kvtEval(e, "HPT", 2, nullptr, nullptr, out, codes, 1)},
      {"a null argument", kvtEval(e, "HPT", 2, halfNull, nullptr, out, codes, 1)},
      {"null out", kvtEval(e, "HPT", 2, args, nullptr, nullptr, codes, 1)},
      {"threads below 0", kvtEval(e, "HPT", 2, args, nullptr, out, codes, -1)},
      {"a setter", kvtEval(e, "SETTOLERANCE", 2, args, nullptr, out, codes, 1)},
      {"a getter", kvtEval(e, "GETTOLERANCE", 2, args, nullptr, out, codes, 1)},
      {"a pair row", kvtEval(e, "PTHS", 2, args, nullptr, out, codes, 1)},
      {"14 outputs", kvtEval(e, "VUSHCVWDERPTPT", 2, args, nullptr, out, codes, 1)},
      {"registry", kvtEval(e, "gNEWIDGS", 2, args, nullptr, out, codes, 1)},
      {"a text row by kvtEval", kvtEval(e, "gCPGST", 2, args, nullptr, out, codes, 1)},
      {"a number row by text", kvtEvalGas(e, "HPT", "N2", 2, args, nullptr, out, codes, 1)},
      {"null text", kvtEvalGas(e, "gCPGST", nullptr, 2, args, nullptr, out, codes, 1)},
      {"one text of a pair", kvtEvalGas(e, "gVFGSGS", "AirMix", 2, args, nullptr, out, codes, 1)},
      {"null row", kvtEvalRow(e, nullptr, nullptr, 2, args, nullptr, outs, codes, 1)},
      {"a copied row", [&] {
         const kvtFunctionInfo copy = *kvtFunctionFind("HPT");
         return kvtEvalRow(e, &copy, nullptr, 2, args, nullptr, outs, codes, 1);
       }()},
      {"a null output", kvtEvalRow(e, pair, nullptr, 2, args, nullptr, outs, codes, 1)},
  };
  for (const auto& c : calls) EXPECT_EQ(c.r, -1) << c.what;
  EXPECT_EQ(out[0], 7);
  EXPECT_EQ(codes[1], 7);
  EXPECT_EQ(kvtEval(e, "HPT", 0, args, nullptr, out, codes, 1), 0);
}

// Two engines, each with its own settings, last error and gases.
TEST_F(Batch, EnginesKeepTheirOwnSettingsAndGases) {
  kvtEngine* fast = kvtEngineNew();
  const Settings backward = {2e-12, 0, 0, 100};
  backward.Apply(fast);
  EXPECT_EQ(kvtEngineGet(fast, "toleranceMode"), 0);
  EXPECT_EQ(kvtEngineGet(e, "toleranceMode"), 1);
  const double p[3] = {3e6, 1e6, 1e9}, h[3] = {1e6, 3e6, 2e6};
  const double* args[2] = {p, h};
  double exact[3], rough[3];
  int32_t ce[3], cr[3];
  kvtEval(e, "TPH", 3, args, nullptr, exact, ce, 1);
  kvtEval(fast, "TPH", 3, args, nullptr, rough, cr, 1);
  for (int k = 0; k < 3; ++k) {
    kDefaults.ApplyGlobal();
    EXPECT_TRUE(SameBits(exact[k], kvtTPH(p[k], h[k])) || ce[k]) << k;
    backward.ApplyGlobal();
    EXPECT_TRUE(SameBits(rough[k], kvtTPH(p[k], h[k])) || cr[k]) << k;
  }
  EXPECT_NE(exact[0], rough[0]);
  EXPECT_EQ(ce[2], 2);  // 1e9 Pa is out of range, checked on e only
  EXPECT_NE(cr[2], 2);

  // A gas of one engine is unknown to another, and its clone has it.
  const int32_t id = kvtEngineNewGas(fast, "N2:3;CO2:1");
  ASSERT_GT(id, 14);
  EXPECT_EQ(kvtEngineNewGas(fast, "N2:3;CO2:1"), -1);
  EXPECT_EQ(kvtEngineLastError(fast), 1);
  kvtEngine* copy = kvtEngineClone(fast);
  const double ids[2] = {double(id), 0}, T[2] = {500, 500};
  const double* gargs[2] = {ids, T};
  double a[2], b[2], c[2];
  int32_t codes[2];
  EXPECT_EQ(kvtEval(fast, "gHIDT", 2, gargs, nullptr, a, nullptr, 1), 0);
  EXPECT_EQ(kvtEval(copy, "gHIDT", 2, gargs, nullptr, b, nullptr, 1), 0);
  kvtEngine* other = kvtEngineNew();
  EXPECT_EQ(kvtEval(other, "gHIDT", 2, gargs, nullptr, c, codes, 1), 1);
  kvtEngineFree(other);
  EXPECT_TRUE(SameBits(a[0], b[0]) && SameBits(a[1], c[1]));
  EXPECT_EQ(codes[0], 1);
  EXPECT_EQ(kvtEngineGet(copy, "toleranceMode"), 0);
  EXPECT_EQ(kvtEngineDeleteGas(copy, id), 15);
  EXPECT_EQ(kvtEval(fast, "gHIDT", 1, gargs, nullptr, a, nullptr, 1), 0);

  // Settings by name.
  EXPECT_EQ(kvtEngineSet(fast, "maxIteration", 2.5), 1);
  EXPECT_EQ(kvtEngineSet(fast, "speed", 1), 1);
  EXPECT_EQ(kvtEngineSet(nullptr, "tolerance", 1), 1);
  EXPECT_EQ(kvtEngineSet(fast, "tolerance", NAN), 0);
  EXPECT_EQ(kvtEngineLastError(fast), 1);
  EXPECT_TRUE(std::isnan(kvtEngineGet(fast, "tolerance")));
  EXPECT_TRUE(std::isnan(kvtEngineGet(fast, "Tolerance")));
  EXPECT_EQ(kvtEngineLastError(nullptr), -1);
  EXPECT_EQ(kvtEngineClone(nullptr), nullptr);
  kvtEngineFree(copy);
  kvtEngineFree(fast);
  kvtEngineFree(nullptr);
}

// The pair and fourteen-output rows through kvtEvalRow, each output bit for
// bit; a failed point has every output NaN.
TEST_F(Batch, PairAndFourteenOutputs) {
  const double h[3] = {3e6, 2.5e6, 9e9}, s[3] = {6.5e3, 6e3, 1};
  const double* hs[2] = {h, s};
  double o[14][3];
  double* outs[14];
  for (int i = 0; i < 14; ++i) outs[i] = o[i];
  int32_t codes[3];
  for (const char* name : {"PTHS", "PT2HS", "TXSHS", "RT3HS"}) {
    const kvtFunctionInfo* fn = kvtFunctionFind(name);
    ASSERT_EQ(fn->outputs, 2);
    kvtEvalRow(e, fn, nullptr, 3, hs, nullptr, outs, codes, 1);
    auto f = reinterpret_cast<double (*)(double, double, double*, double*)>(kExports[fn - kvtFunctionAt(0)].fn);
    for (int k = 0; k < 3; ++k) {
      double a = 0, b = 0;
      const double r = f(h[k], s[k], &a, &b);
      const bool ok = kvtGETLASTERROR() == 0 && r == 1.0 && std::isfinite(a) && std::isfinite(b);
      EXPECT_EQ(codes[k] == 0, ok) << name << k;
      if (ok) EXPECT_TRUE(SameBits(o[0][k], a) && SameBits(o[1][k], b)) << name << k;
      else EXPECT_TRUE(std::isnan(o[0][k]) && std::isnan(o[1][k])) << name << k;
    }
  }
  const double p[3] = {1e5, 3e6, 1e5}, T[3] = {400, 500, 50};
  const double* pt[2] = {p, T};
  const kvtFunctionInfo* many = kvtFunctionFind("kvtVUSHCVWDERPTPT");
  ASSERT_EQ(many->outputs, 14);
  EXPECT_STREQ(many->outputNames[13], "cp");
  EXPECT_EQ(kvtEvalRow(e, many, nullptr, 3, pt, nullptr, outs, codes, 1), 1);
  for (int k = 0; k < 2; ++k) {
    double w[14];
    kvtVUSHCVWDERPTPT(p[k], T[k], &w[0], &w[1], &w[2], &w[3], &w[4], &w[5], &w[6], &w[7],
                      &w[8], &w[9], &w[10], &w[11], &w[12], &w[13]);
    for (int i = 0; i < 14; ++i) EXPECT_TRUE(SameBits(o[i][k], w[i])) << i;
  }
  EXPECT_EQ(codes[2], 2);
  for (int i = 0; i < 14; ++i) EXPECT_TRUE(std::isnan(o[i][2]));
}

// The catalogue as data: every row, found by name in any form.
TEST_F(Batch, FunctionsFromTheCatalogue) {
  ASSERT_EQ(kvtFunctionCount(), int32_t(sizeof kExports / sizeof kExports[0]));
  EXPECT_EQ(kvtFunctionAt(-1), nullptr);
  EXPECT_EQ(kvtFunctionAt(kvtFunctionCount()), nullptr);
  for (int32_t i = 0; i < kvtFunctionCount(); ++i) {
    const kvtFunctionInfo* fn = kvtFunctionAt(i);
    EXPECT_EQ(kvtFunctionFind(fn->name), fn);
    std::string lower = fn->name + 3;
    for (char& c : lower) c = char(std::tolower(c));
    EXPECT_EQ(kvtFunctionFind(lower.c_str()), fn);
  }
  const kvtFunctionInfo* gas = kvtFunctionFind("gSGSPT");
  EXPECT_EQ(gas->ordinal, 407);
  EXPECT_EQ(gas->gas, 2);
  EXPECT_EQ(gas->inputs, 3);
  EXPECT_STREQ(gas->inputUnits[1], "Pa");
  EXPECT_STREQ(gas->outputUnits[0], "J/(kg K)");
  EXPECT_EQ(kvtFunctionFind("kvtkvtHPT"), nullptr);
  EXPECT_EQ(kvtFunctionFind(nullptr), nullptr);
  for (int32_t code : {0, 1, 2, 3, 4, 8, 11}) EXPECT_STRNE(kvtErrorMessage(code), "unknown error");
  for (int32_t code : {-1, 5, 9, 12}) EXPECT_STREQ(kvtErrorMessage(code), "unknown error");
}

}  // namespace
