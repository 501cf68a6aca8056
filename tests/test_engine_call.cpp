// kvtEngineCall: every row of the catalogue on an engine of its own against
// its export on the global engine, result bits, code, outputs and text; a
// setter changes its engine only; gases made on one engine exist there only.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <map>
#include <string>

#include "batch/batch.h"
#include "kvtcore.h"

namespace {

using Fn = void (*)();
#define KVT_FN_ROW(ord, name, shape, rule, core, args, result) reinterpret_cast<Fn>(&name),
const Fn kExports[] = {KVT_CATALOGUE(KVT_FN_ROW)};

// What a call gives: the number, the outputs, the text.
struct Got {
  double result = 0;
  double out[14] = {};
  std::string text;
  bool hasText = false;
};

void Keep(Got& g, const char* t) {
  g.hasText = t != nullptr;
  g.result = t ? 0.0 : -1.0;
  if (t) g.text = t;
}
void Keep(Got& g, const char16_t* t) {
  g.hasText = t != nullptr;
  g.result = t ? 0.0 : -1.0;
  for (; t && *t; ++t) g.text += std::to_string(*t) + " ";
}

// The export of row r, called with numbers n and texts s as its shape takes them.
Got CallExport(const kvtFunctionInfo* fn, Fn f, const double* n, const char* const* s) {
  using D = double;
  using I = int32_t;
  using S = const char*;
  const std::string shape = fn->shape;
  Got g;
  D* o = g.out;
  if (shape == "D0") g.result = reinterpret_cast<D (*)()>(f)();
  else if (shape == "D1") g.result = reinterpret_cast<D (*)(D)>(f)(n[0]);
  else if (shape == "D2") g.result = reinterpret_cast<D (*)(D, D)>(f)(n[0], n[1]);
  else if (shape == "D3") g.result = reinterpret_cast<D (*)(D, D, D)>(f)(n[0], n[1], n[2]);
  else if (shape == "D4") g.result = reinterpret_cast<D (*)(D, D, D, D)>(f)(n[0], n[1], n[2], n[3]);
  else if (shape == "D5")
    g.result = reinterpret_cast<D (*)(D, D, D, D, D)>(f)(n[0], n[1], n[2], n[3], n[4]);
  else if (shape == "D12")
    g.result = reinterpret_cast<D (*)(D, D, D, D, D, D, D, D, D, D, D, D)>(f)(
        n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8], n[9], n[10], n[11]);
  else if (shape == "I0") g.result = reinterpret_cast<I (*)()>(f)();
  else if (shape == "I1") g.result = reinterpret_cast<I (*)(I)>(f)(I(n[0]));
  else if (shape == "I2") g.result = reinterpret_cast<I (*)(D, D)>(f)(n[0], n[1]);
  else if (shape == "H1") g.result = reinterpret_cast<D (*)(I)>(f)(I(n[0]));
  else if (shape == "P2") g.result = reinterpret_cast<D (*)(D, D, D*, D*)>(f)(n[0], n[1], o, o + 1);
  else if (shape == "M1" || shape == "M2") {
    using M1 = D (*)(D, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*);
    using M2 = D (*)(D, D, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*, D*);
    g.result = shape == "M1" ? reinterpret_cast<M1>(f)(n[0], o, o + 1, o + 2, o + 3, o + 4, o + 5,
                                                       o + 6, o + 7, o + 8, o + 9, o + 10, o + 11,
                                                       o + 12, o + 13)
                             : reinterpret_cast<M2>(f)(n[0], n[1], o, o + 1, o + 2, o + 3, o + 4,
                                                       o + 5, o + 6, o + 7, o + 8, o + 9, o + 10,
                                                       o + 11, o + 12, o + 13);
  } else if (shape == "GI0") g.result = reinterpret_cast<D (*)(I)>(f)(I(n[0]));
  else if (shape == "GI1") g.result = reinterpret_cast<D (*)(I, D)>(f)(I(n[0]), n[1]);
  else if (shape == "GI2") g.result = reinterpret_cast<D (*)(I, D, D)>(f)(I(n[0]), n[1], n[2]);
  else if (shape == "GS0") g.result = reinterpret_cast<D (*)(S)>(f)(s[0]);
  else if (shape == "GS1") g.result = reinterpret_cast<D (*)(S, D)>(f)(s[0], n[0]);
  else if (shape == "GS2") g.result = reinterpret_cast<D (*)(S, D, D)>(f)(s[0], n[0], n[1]);
  else if (shape == "FII") g.result = reinterpret_cast<D (*)(I, I)>(f)(I(n[0]), I(n[1]));
  else if (shape == "FSS") g.result = reinterpret_cast<D (*)(S, S)>(f)(s[0], s[1]);
  else if (shape == "AII") g.result = reinterpret_cast<I (*)(I, I, D)>(f)(I(n[0]), I(n[1]), n[2]);
  else if (shape == "IS1") g.result = reinterpret_cast<I (*)(S)>(f)(s[0]);
  else if (shape == "C0") Keep(g, reinterpret_cast<S (*)()>(f)());
  else if (shape == "W0") Keep(g, reinterpret_cast<const char16_t* (*)()>(f)());
  else if (shape == "CI1") Keep(g, reinterpret_cast<S (*)(I)>(f)(I(n[0])));
  else if (shape == "CS1") Keep(g, reinterpret_cast<S (*)(S)>(f)(s[0]));
  else ADD_FAILURE() << "no call for shape " << shape;
  return g;
}

// Two points for each argument name: mostly inside the ranges, then mostly
// outside or odd. Integer arguments hold integers here.
const std::map<std::string, std::pair<double, double>> kPoints = {
    {"p", {3e6, 1e9}},  {"T", {640, 100}},      {"x", {0.5, 1.5}},  {"h", {2.7e6, -5e5}},
    {"s", {6500, -10}}, {"rho", {400, 0}},      {"p2", {5e5, 1e3}}, {"efficiency", {0.85, 1}},
    {"v", {0.5, 100}},  {"u", {2.4e6, 1e6}},    {"id", {6, 99}},    {"mixture", {13, 0}},
    {"component", {2, 77}}, {"mode", {0, 3}},   {"code", {4, 12}},  {"window", {0, 1}},
    {"maxIteration", {7, -1}}, {"tolerance", {1e-9, NAN}}, {"mass", {2, -1}}, {"parts", {3, 0}},
    {"p1", {3e6, 1e9}}, {"T1", {640, 100}},     {"x1", {0.5, 1.5}}, {"rhoStart", {400, 0}},
    {"cp", {2000, 0}},  {"cv", {1500, -1}},     {"w", {500, 0}}};
const char* const kTexts[2][2] = {{"N2:0.79;O2:0.21", "AirMix"}, {"N2;;", "{N2;O2}:2;CO2:5g"}};

bool SameBits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// The four settings of the global engine, and of e by the same getters.
const char* const kGetters[4] = {"GETTOLERANCE", "GETTOLERANCEMODE", "GETCHECKRANGEMODE",
                                 "GETMAXITERATION"};
std::string GlobalSettings() {
  return std::to_string(kvtGETTOLERANCE()) + " " + std::to_string(kvtGETTOLERANCEMODE()) + " " +
         std::to_string(kvtGETCHECKRANGEMODE()) + " " + std::to_string(kvtGETMAXITERATION());
}
std::string SettingsOf(kvtEngine* e) {
  std::string s;
  for (const char* getter : kGetters) {
    double v = 0;
    kvtEngineCall(e, kvtFunctionFind(getter), nullptr, nullptr, &v, nullptr, nullptr);
    s += (s.empty() ? "" : " ") + (getter == kGetters[0] ? std::to_string(v)
                                                          : std::to_string(int32_t(v)));
  }
  return s;
}

void Defaults() {
  kvtSETTOLERANCE(2e-12);
  kvtSETTOLERANCEMODE(1);
  kvtSETCHECKRANGEMODE(1);
  kvtSETMAXITERATION(100);
}

TEST(EngineCall, EveryRowGivesWhatItsExportGives) {
  const kvtFunctionInfo* setLastError = kvtFunctionFind("SETLASTERROR");
  int texts = 0, failures = 0, successes = 0;
  for (int32_t r = 0; r < kvtFunctionCount(); ++r) {
    const kvtFunctionInfo* fn = kvtFunctionAt(r);
    const std::string shape = fn->shape;
    const int nt = shape == "FSS" ? 2 : fn->gas == 2 || shape == "IS1" || shape == "CS1" ? 1 : 0;
    for (int k = 0; k < 2; ++k) {
      double n[12] = {};
      for (int i = nt; i < fn->inputs; ++i) {
        const auto found = kPoints.find(fn->inputNames[i]);
        const auto pt = found == kPoints.end() ? std::make_pair(0.5, 3.0) : found->second;
        n[i - nt] = k ? pt.second : pt.first;
      }
      // A fresh engine with the global gases; both start from error 3, for
      // the rows that read the last error without clearing it.
      Defaults();
      kvtEngine* e = kvtEngineNew();
      e->gas.CopyFrom(kvt::engine().gas);
      const double three = 3;
      kvtEngineCall(e, setLastError, &three, nullptr, nullptr, nullptr, nullptr);
      const std::string before = GlobalSettings();
      kvtSETLASTERROR(3);

      Got mine;
      const char* text = "left";
      const int32_t code = kvtEngineCall(e, fn, n, kTexts[k], &mine.result, mine.out, &text);
      EXPECT_EQ(kvtGETLASTERROR(), 3) << fn->name;
      EXPECT_EQ(GlobalSettings(), before) << fn->name;
      kvtSETLASTERROR(3);

      const Got want = CallExport(fn, kExports[r], n, kTexts[k]);
      EXPECT_EQ(code, kvtGETLASTERROR()) << fn->name << " point " << k;
      EXPECT_EQ(code, kvtEngineLastError(e)) << fn->name;
      EXPECT_TRUE(SameBits(mine.result, want.result))
          << fn->name << " point " << k << ": " << mine.result << " vs " << want.result;
      for (int j = 0; j < 14; ++j) EXPECT_TRUE(SameBits(mine.out[j], want.out[j])) << fn->name;
      if (shape == "C0" || shape == "W0" || shape == "CI1" || shape == "CS1") {
        Got got;
        if (shape == "W0") Keep(got, reinterpret_cast<const char16_t*>(text));
        else Keep(got, text);
        EXPECT_EQ(got.hasText, want.hasText) << fn->name;
        EXPECT_EQ(got.text, want.text) << fn->name << " point " << k;
        texts += want.hasText;
      } else {
        EXPECT_EQ(text, nullptr) << fn->name;
      }
      // A setter leaves its engine as the export leaves the global one.
      EXPECT_EQ(SettingsOf(e), GlobalSettings()) << fn->name;
      code ? ++failures : ++successes;
      kvtEngineFree(e);
    }
  }
  Defaults();
  EXPECT_GT(texts, 6);
  EXPECT_GT(failures, 200);
  EXPECT_GT(successes, 250);
}

// Integer arguments that are no 32-bit integer, and calls that lack what the
// row needs.
TEST(EngineCall, BadArgumentsFailWithoutACall) {
  kvtEngine* e = kvtEngineNew();
  struct Case {
    const char* row;
    double number;
    int32_t code;
  } cases[] = {{"SETTOLERANCEMODE", 0.5, 1}, {"SETMAXITERATION", 3e9, 1}, {"gCPIDT", NAN, 1},
               {"gGSID", INFINITY, 1},       {"SETMAXITERATION", -2147483648.0, 0}};
  for (const Case& c : cases) {
    double result = 7;
    const double numbers[2] = {c.number, 0};
    EXPECT_EQ(kvtEngineCall(e, kvtFunctionFind(c.row), numbers, nullptr, &result, nullptr, nullptr),
              c.code) << c.row << " " << c.number;
    EXPECT_EQ(result, c.code ? -1.0 : c.number) << c.row;
  }
  EXPECT_EQ(kvtEngineGet(e, "toleranceMode"), 1);
  const kvtFunctionInfo* hpt = kvtFunctionFind("HPT");
  const kvtFunctionInfo copy = *hpt;
  const double pt[2] = {1e5, 300};
  EXPECT_EQ(kvtEngineCall(nullptr, hpt, pt, nullptr, nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(kvtEngineCall(e, nullptr, pt, nullptr, nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(kvtEngineCall(e, &copy, pt, nullptr, nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(kvtEngineCall(e, hpt, nullptr, nullptr, nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(kvtEngineCall(e, kvtFunctionFind("gNEWIDGS"), nullptr, nullptr, nullptr, nullptr,
                          nullptr), -1);
  EXPECT_EQ(kvtEngineCall(e, hpt, pt, nullptr, nullptr, nullptr, nullptr), 0);
  kvtEngineFree(e);
}

// A gas built on engine a by id is a's alone.
TEST(EngineCall, GasesBelongToTheirEngine) {
  kvtEngine* a = kvtEngineNew();
  kvtEngine* b = kvtEngineNew();
  const auto call = [](kvtEngine* e, const char* row, std::initializer_list<double> n) {
    double r = -7;
    kvtEngineCall(e, kvtFunctionFind(row), n.begin(), nullptr, &r, nullptr, nullptr);
    return r;
  };
  const double id = call(a, "gNEWID", {});
  const int32_t n2 = kvtgIDNAME("N2"), o2 = kvtgIDNAME("O2");
  ASSERT_GT(id, 0);
  EXPECT_EQ(call(a, "gADDGASV", {id, double(n2), 79}), 1);
  EXPECT_EQ(call(a, "gADDGASV", {id, double(o2), 21}), 2);
  const double T = 500;
  const double* args[2] = {&id, &T};
  double cp = 0;
  int32_t code = -1;
  EXPECT_EQ(kvtEval(a, "gCPIDT", 1, args, nullptr, &cp, &code, 1), 0);
  EXPECT_EQ(cp, kvtgCPGST("N2:79;O2:21", T));
  EXPECT_EQ(kvtEval(b, "gCPIDT", 1, args, nullptr, &cp, &code, 1), 1);
  EXPECT_NE(code, 0);
  EXPECT_EQ(kvtgCPIDT(int32_t(id), T), -1);
  EXPECT_NE(kvtGETLASTERROR(), 0);
  const char* spec = nullptr;
  EXPECT_EQ(kvtEngineCall(a, kvtFunctionFind("gGSID"), &id, nullptr, nullptr, nullptr, &spec), 0);
  ASSERT_NE(spec, nullptr);
  EXPECT_NE(std::strstr(spec, "O2"), nullptr) << spec;
  EXPECT_NE(kvtEngineCall(b, kvtFunctionFind("gGSID"), &id, nullptr, nullptr, nullptr, &spec), 0);
  EXPECT_EQ(spec, nullptr);
  kvtEngineFree(a);
  kvtEngineFree(b);
}

}  // namespace
