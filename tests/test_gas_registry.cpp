// The gas registry and the gas-spec text: what a text means or which code it
// gives, the canonical text, the life of callers' gases, the cache, and a
// mass of random texts that must never crash nor leak.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "frame/engine.h"
#include "gas/gas_engine.h"
#include "kvtcore.h"

namespace {

using kvt::GasEngine;
using kvt::GasRecord;

// The code a core raises, 0 if none.
template <class F>
int32_t CodeOf(F&& f) {
  try {
    f();
  } catch (int32_t code) {
    return code;
  }
  return 0;
}

// Volume fractions of the thirteen table gases.
std::vector<double> Composition(GasEngine& gas, const GasRecord& r) {
  std::vector<double> x;
  for (int32_t i = 0; i < kvt::kTableGases; ++i) x.push_back(r.VolumeFractionOf(*gas.GetById(i)));
  return x;
}

void ExpectSameComposition(const std::vector<double>& a, const std::vector<double>& b,
                           const std::string& what) {
  ASSERT_EQ(a.size(), b.size());
  for (size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(a[i], b[i], 1e-14) << what << " gas " << i;
}

class Spec : public testing::Test {
 protected:
  void TearDown() override { kvtSETLASTERROR(0); }
  GasEngine gas{&kvt::engine()};
  std::vector<double> Expected(std::initializer_list<std::pair<int, double>> parts) {
    std::vector<double> x(kvt::kTableGases, 0.0);
    for (auto& p : parts) x[p.first] = p.second;
    return x;
  }
};

TEST_F(Spec, NamesAreFoundWithoutAParse) {
  const struct { const char* text; int32_t id; } names[] = {
      {"N2", 0}, {"  o2  ", 1}, {"AirMix", 13}, {"\tn2airmix\n", 14}, {"air", 6}};
  for (auto n : names) {
    EXPECT_EQ(gas.GetBySpec(n.text), gas.GetById(n.id)) << n.text;
  }
  EXPECT_TRUE(gas.specCache.entries.empty());
}

TEST_F(Spec, AcceptedTextsAndTheirMeaning) {
  const double mN2 = 0.0280134, mO2 = 0.0319988;
  const double byMassN2 = (1 / mN2) / (1 / mN2 + 0.5 / mO2);
  const struct { const char* text; std::vector<double> x; } cases[] = {
      {"N2:0.79;O2:0.21", Expected({{0, 0.79}, {1, 0.21}})},
      {"N2:79%;O2:21%", Expected({{0, 0.79}, {1, 0.21}})},
      {"N2;O2", Expected({{0, 0.5}, {1, 0.5}})},
      {"N2:0,79;O2:0,21;", Expected({{0, 0.79}, {1, 0.21}})},
      {"N2: 1kg;O2:500g", Expected({{0, byMassN2}, {1, 1 - byMassN2}})},
      {"N2:1m;O2:0.5KG", Expected({{0, byMassN2}, {1, 1 - byMassN2}})},
      {"{N2:3;O2:1}:2;H2O:1", Expected({{0, 0.5}, {1, 1.0 / 6}, {4, 1.0 / 3}})},
      {"{N2:3;O2:1}", Expected({{0, 0.75}, {1, 0.25}})},
      {";;N2:1", Expected({{0, 1}})},  // a leading ";;" falls off the end
      {"N2:1;O2:3;;", Expected({{0, 0.25}, {1, 0.75}})},
      {"N2:1;{O2:1", Expected({{0, 1}})},  // an open brace drops the rest
      {" co2 : +2.5E-1v ; h2o:.75V", Expected({{3, 0.25}, {4, 0.75}})},
      {"Ar:1;{N2:1;{O2:1;Ne:1}:2}:2", Expected({{10, 1.0 / 3}, {0, 2.0 / 9}, {1, 2.0 / 9}, {11, 2.0 / 9}})},
  };
  for (const auto& c : cases) {
    int32_t code = -1;
    const GasRecord* r = nullptr;
    code = CodeOf([&] { r = gas.GetBySpec(c.text); });
    ASSERT_EQ(code, 0) << c.text;
    ExpectSameComposition(Composition(gas, *r), c.x, c.text);
    EXPECT_STREQ(r->name.get(), std::string(c.text).substr(std::string(c.text).find_first_not_of(' ')).c_str())
        << "the trimmed text names the record";
  }
  EXPECT_EQ(gas.GetBySpec("{N2:3;O2:1}")->components.size(), 1u);
  // A second reading is a cache hit, whatever the case.
  EXPECT_EQ(gas.GetBySpec("n2;o2"), gas.GetBySpec("N2;O2"));
}

TEST_F(Spec, RefusedTextsAndTheirCodes) {
  const struct { const char* text; int32_t code; } cases[] = {
      {"N2:", 11},      {"N2:1x", 11},      {"N2:1 kg", 11},   {"Xe:1", 1},
      {"N2:-1", 1},     {"{N2", 11},        {"N2:1;;O2:1;Ar:1", 11},
      {"", 11},         {"  \t ", 11},      {";;;", 11},       {"N2:kg", 11},
      {"N2:5e", 11},    {"N2:1 000", 11},   {"N2:1e999", 11},  {"N2;;O2;Ar", 1},
      {"N2:1;{}", 11},  {"N2:1;O2:%", 11},  {"}N2", 11},       {"N2:1;Xe", 1},
      {"{N2:1}:-2", 1}, {"N2:+-1", 11},     {"N2:1;N2:1x", 11},
      {";;N2:1;O2:3", 11},  // the doubled separator's excess reaches the next item
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CodeOf([&] { gas.GetBySpec(c.text); }), c.code) << c.text;
    // The same through an export.
    EXPECT_EQ(kvtgMMGS(c.text), -1.0) << c.text;
    EXPECT_EQ(kvtGETLASTERROR(), c.code) << c.text;
  }
  EXPECT_EQ(kvtgCPGST(nullptr, 300), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 11);
  // Nothing refused stays in the cache; a group parsed before the failure does.
  EXPECT_EQ(gas.specCache.Find("N2:1;{}"), nullptr);
}

// Deep nesting is read up to a depth no real mixture needs, then refused as
// a syntax error instead of running the reader out of stack.
TEST_F(Spec, NestingDepthIsBounded) {
  const auto nested = [](int depth) {
    return std::string(depth, '{') + "N2:1;O2:1" + std::string(depth, '}');
  };
  EXPECT_EQ(CodeOf([&] { gas.GetBySpec(nested(150).c_str()); }), 0);
  EXPECT_EQ(CodeOf([&] { gas.GetBySpec(nested(100000).c_str()); }), 11);
  // The reader is usable afterwards at any depth below the bound.
  EXPECT_EQ(CodeOf([&] { gas.GetBySpec(nested(3).c_str()); }), 0);
}

TEST_F(Spec, CanonicalTextByteForByte) {
  EXPECT_STREQ(kvtgGSID(0), "N2");
  EXPECT_STREQ(kvtgGSID(6), "Air");
  EXPECT_STREQ(kvtgGSID(13), "N2:0.7803;O2:0.2099;CO2:3.e-004;Ar:9.4e-003;H2:1.e-004;");
  EXPECT_STREQ(kvtgGSGS("o2:3;n2:1"), "N2:0.25;O2:0.75;");
  EXPECT_STREQ(kvtgGSGS("N2:1"), "N2:1.;");
  EXPECT_STREQ(kvtgGSGS("O2:19;N2:1"), "N2:5.e-002;O2:0.95;");
  EXPECT_STREQ(kvtgGSGS("N2:1e-20;O2:1"), "N2:1.e-020;O2:1.;");
  EXPECT_STREQ(kvtgGSGS("{O2:1;Air:1}:2;N2Air:2"), "O2:0.25;Air:0.25;N2Air:0.5;");
  EXPECT_STREQ(kvtgGSGS(" h2o "), "H2O");
  EXPECT_EQ(kvtgGSID(999), nullptr);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgGSGS("N2:"), nullptr);
  EXPECT_EQ(kvtGETLASTERROR(), 11);
}

TEST_F(Spec, WrittenTextReadsBackToTheSameComposition) {
  for (const char* text : {"AirMix", "N2AirMix", "{N2:3;O2:1}:2;H2O:1", "CO2:1g;H2:3kg;SO2:17%",
                           "Ar:1;{N2:1;{O2:1;Ne:1}:2}:2;NO:1e-9;NO2:3"}) {
    const GasRecord& r = *gas.GetBySpec(text);
    const std::string written = gas.GasText(r);
    const GasRecord& back = *gas.GetBySpec(written.c_str());
    ExpectSameComposition(Composition(gas, back), Composition(gas, r), text);
    EXPECT_NEAR(back.Cp(800), r.Cp(800), 1e-10 * r.Cp(800)) << text;
  }
}

// ---- Registry ----

TEST_F(Spec, FreshRegistryAndNames) {
  EXPECT_EQ(gas.GasesCount(), 15);
  EXPECT_EQ(gas.IdOfName("Air"), 6);
  EXPECT_EQ(gas.IdOfName("air"), 6);
  EXPECT_EQ(gas.IdOfName("AirMix"), 13);
  EXPECT_EQ(CodeOf([&] { gas.IdOfName("Methane"); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.NewNamedGas("N2"); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.NewNamedGas("n2"); }), 1);
  EXPECT_EQ(kvtgIDNAME("aIrMiX"), 13);
  EXPECT_EQ(kvtgIDNAME("Methane"), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST_F(Spec, BuiltInIdsAreRefused) {
  for (int32_t id : {0, 6, 12, 13, -13, -1}) EXPECT_EQ(CodeOf([&] { gas.DeleteGas(id); }), 1) << id;
  EXPECT_EQ(gas.DeleteGas(14), 14);  // N2AirMix can go this way, AirMix cannot
  EXPECT_EQ(CodeOf([&] { gas.DeleteGas(14); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.GetBySpec("N2AirMix"); }), 1);
  EXPECT_EQ(kvtgDELETEGASID(13), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST_F(Spec, CallersGasesComeAndGo) {
  const int32_t a = gas.NewGas(), b = gas.NewGas();
  EXPECT_GT(a, 14);
  EXPECT_NE(a, b);
  EXPECT_EQ(gas.GasesCount(), 17);
  EXPECT_EQ(gas.GetById(a)->AddByVolume(*gas.GetById(0), 2), 1);
  EXPECT_EQ(gas.DeleteGas(a), 16);
  EXPECT_EQ(CodeOf([&] { gas.GetById(a); }), 1);

  const int32_t s = gas.NewGasFromSpec("N2:1;O2:1");
  EXPECT_EQ(gas.GasesCount(), 17);
  EXPECT_EQ(CodeOf([&] { gas.NewGasFromSpec("N2:1;O2:1"); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.NewGasFromSpec("AirMix"); }), 1);
  EXPECT_EQ(gas.IdOfName("n2:1;o2:1"), s);
  EXPECT_EQ(gas.GetBySpec("N2:1;O2:1"), gas.GetById(s));
  EXPECT_EQ(gas.GetById(s)->referenceCount, 2u);  // the id map and the cache

  EXPECT_EQ(gas.DeleteGases(), 13);
  EXPECT_EQ(gas.GasesCount(), 13);
  EXPECT_TRUE(gas.specCache.entries.empty());
  EXPECT_EQ(CodeOf([&] { gas.IdOfName("AirMix"); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.GetBySpec("AirMix:1;N2:1"); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.GetById(b); }), 1);
  for (int32_t id = 0; id < kvt::kTableGases; ++id)
    EXPECT_EQ(gas.GetById(id)->referenceCount, 1u) << "only the id map holds table gas " << id;
}

TEST_F(Spec, NamedGasKeepsItsExtraReference) {
  const int32_t id = gas.NewNamedGas("Fuel");
  GasRecord* fuel = gas.GetById(id);
  EXPECT_EQ(fuel->referenceCount, 2u);
  EXPECT_EQ(gas.IdOfName("FUEL"), id);
  EXPECT_EQ(gas.GetBySpec("fuel"), fuel);
  fuel->AddByVolume(*gas.GetById(2), 1);
  EXPECT_EQ(gas.GetBySpec("Fuel:1;N2:1")->VolumeFractionOf(*gas.GetById(2)), 0.5);
  EXPECT_EQ(gas.DeleteGas(id), 15);
  EXPECT_EQ(CodeOf([&] { gas.IdOfName("Fuel"); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.GetById(id); }), 1);
  // With the registry and the cache let go, the one reference that was
  // never given back still holds the record.
  gas.DeleteGases();
  EXPECT_EQ(fuel->referenceCount, 1u);
  EXPECT_EQ(fuel->VolumeFractionOf(*gas.GetById(2)), 1.0);
  const int32_t again = gas.NewNamedGas("Fuel");  // a new record of the name
  EXPECT_NE(gas.GetById(again), fuel);
}

TEST_F(Spec, ComponentDeletedWhileAMixtureHoldsIt) {
  const int32_t part = gas.NewGas(), mix = gas.NewGas();
  gas.GetById(part)->AddByVolume(*gas.GetById(2), 1);
  gas.GetById(part)->AddByVolume(*gas.GetById(12), 1);
  gas.GetById(mix)->AddByVolume(*gas.GetById(part), 1);
  gas.GetById(mix)->AddByVolume(*gas.GetById(0), 2);
  const double cp = gas.GetById(mix)->Cp(1000);
  gas.DeleteGas(part);
  EXPECT_EQ(CodeOf([&] { gas.GetById(part); }), 1);
  EXPECT_EQ(gas.GetById(mix)->Cp(1000), cp);
  EXPECT_STREQ(gas.GasText(*gas.GetById(mix)), "N2:0.666666666666667;CO:0.166666666666667;H2:0.166666666666667;");
}

TEST_F(Spec, CyclesAreRefusedThroughTheExports) {
  const int32_t inner = kvtgNEWID(), outer = kvtgNEWID();
  EXPECT_EQ(kvtgADDGASV(inner, 0, 1), 1);
  EXPECT_EQ(kvtgADDGASM(outer, inner, 0.5), 1);
  EXPECT_EQ(kvtgADDGASV(inner, outer, 1), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgADDGASV(inner, inner, 1), -1);
  EXPECT_EQ(kvtgADDGASV(inner, 999, 1), -1);
  EXPECT_EQ(kvtgADDGASV(inner, 1, -1), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgADDGASV(inner, 1, 0), 1);  // zero: the unchanged count
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  const int32_t count = kvtgGASESCOUNT();
  EXPECT_EQ(kvtgDELETEGASID(inner), count - 1);
  EXPECT_GT(kvtgCPIDT(outer, 500), 0);  // the mixture holds its part
  EXPECT_EQ(kvtgDELETEGASID(outer), count - 2);
}

TEST_F(Spec, RegistryExportsReturnIdsAndCounts) {
  const int32_t count = kvtgGASESCOUNT();
  const int32_t id = kvtgNEWIDGS(" CO:1;H2:1 ");
  EXPECT_GT(id, 14);
  EXPECT_EQ(kvtgIDNAME("co:1;h2:1"), id);
  EXPECT_EQ(kvtgNEWIDGS("CO:1;H2:1"), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgNEWIDGS("CO:1;H2:"), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 11);
  EXPECT_EQ(kvtgGASESCOUNT(), count + 1);
  EXPECT_STREQ(kvtgGSID(id), "CO:0.5;H2:0.5;");
  EXPECT_EQ(kvtgHIDT(id, 600), kvtgHGST("CO:1;H2:1", 600));
  EXPECT_EQ(kvtgNEWIDNAME("Air"), -1);
  EXPECT_EQ(kvtgDELETEGASID(id), count);
  EXPECT_EQ(kvtgCPIDT(id, 600), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_GT(kvtgCPGST("CO:1;H2:1", 600), 0);  // the text still reaches the cached gas
}

TEST_F(Spec, CachePurgeKeepsTheCurrentGasUsable) {
  const int32_t kept = gas.NewGasFromSpec("CO2:1;H2O:2");
  gas.GetBySpec("N2:3;O2:1");
  for (int i = 0; gas.specCache.entries.size() < 1024; ++i)
    gas.GetBySpec(("N2:" + std::to_string(i + 1) + ";Ar:1").c_str());
  ASSERT_EQ(gas.specCache.entries.size(), 1024u);
  // The 1025th entry; it and its group, cached before, are all that stay.
  const GasRecord* current = gas.GetBySpec("{N2:3;O2:1}:1;Ar:1");
  EXPECT_EQ(gas.specCache.entries.size(), 2u);
  EXPECT_NE(gas.specCache.Find("N2:3;O2:1"), nullptr);
  EXPECT_EQ(gas.specCache.Find("{N2:3;O2:1}:1;Ar:1"), current);
  EXPECT_TRUE(std::isfinite(current->Cp(500)));
  EXPECT_EQ(current->VolumeFractionOf(*gas.GetById(1)), 0.125);
  // A registered text lives on by the id map's reference.
  EXPECT_EQ(gas.GetBySpec("CO2:1;H2O:2"), gas.GetById(kept));
  EXPECT_NEAR(gas.GetById(kept)->VolumeFractionOf(*gas.GetById(4)), 2.0 / 3, 1e-15);
}

// ---- Random texts ----

class TextMaker {
 public:
  explicit TextMaker(uint32_t seed) : rng(seed) {}
  std::string Spec(int depth) {
    std::string s;
    if (Chance(10)) s += ";;";
    const int items = 1 + Pick(4);
    for (int i = 0; i < items; ++i) {
      if (i) s += Chance(8) ? ";;" : ";";
      s += Item(depth);
    }
    if (Chance(5)) s += ";";
    if (Chance(4)) Corrupt(s);
    return s;
  }

 private:
  std::string Item(int depth) {
    static const char* names[] = {"N2", "o2", "CO", "co2", "H2O", "SO2", "Air", "n2air", "NO",
                                  "NO2", "Ar", "ne", "H2", "AirMix", "N2AirMix", "Xe", "N 2", ""};
    std::string target;
    if (depth < 3 && Chance(5)) target = "{" + Spec(depth + 1) + "}";
    else target = names[Pick(sizeof names / sizeof *names)];
    if (Chance(4)) return Space() + target + Space();
    return Space() + target + Space() + ":" + Amount();
  }
  std::string Amount() {
    static const char* numbers[] = {"1", "0.79", "0,21", "79", "2.5e-1", "+3", "-1", "0", ".5",
                                    "5.", "1e999", "1e-400", "5e", "1 000", "", " 2", "7E2"};
    static const char* units[] = {"", "", "", "V", "%", "m", "KG", "g", "x", " kg", "%%", "v "};
    return std::string(numbers[Pick(sizeof numbers / sizeof *numbers)]) +
           units[Pick(sizeof units / sizeof *units)];
  }
  std::string Space() { return Chance(6) ? " \t"[Pick(2)] == ' ' ? " " : "\t" : ""; }
  void Corrupt(std::string& s) {
    static const char junk[] = ":;{}%,. eE-+kgmvx\t9";
    if (s.empty() || Chance(2)) s.insert(s.begin() + Pick(static_cast<int>(s.size()) + 1), junk[Pick(sizeof junk - 1)]);
    else s.erase(s.begin() + Pick(static_cast<int>(s.size())));
  }
  int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng); }
  bool Chance(int oneIn) { return Pick(oneIn) == 0; }
  std::mt19937 rng;
};

TEST_F(Spec, RandomTextsNeverCrashAndKeepNothingBehind) {
  TextMaker maker(20240611);
  int accepted = 0, refused = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string text = maker.Spec(0);
    SCOPED_TRACE(text);
    const GasRecord* r = nullptr;
    const int32_t code = CodeOf([&] { r = gas.GetBySpec(text.c_str()); });
    ASSERT_TRUE(code == 0 || code == 1 || code == 11) << code;
    // Through the exports of the library's own engine the same way.
    const double cp = kvtgCPGST(text.c_str(), 500);
    ASSERT_EQ(kvtGETLASTERROR(), code == 0 && !std::isfinite(r->Cp(500)) ? 1 : code);
    if (code != 0) {
      ++refused;
      EXPECT_EQ(cp, -1.0);
      continue;
    }
    ++accepted;
    const std::string written = gas.GasText(*r);
    if (written.empty()) continue;  // nothing of any amount in it
    const GasRecord* back = nullptr;
    ASSERT_EQ(CodeOf([&] { back = gas.GetBySpec(written.c_str()); }), 0) << written;
    const auto a = Composition(gas, *r), b = Composition(gas, *back);
    for (size_t k = 0; k < a.size(); ++k) ASSERT_NEAR(a[k], b[k], 1e-13) << written;
  }
  EXPECT_GT(accepted, 300);
  EXPECT_GT(refused, 300);
  // Once the registry lets go of everything but the table, only the id map
  // holds a table gas: no reference was lost on the way.
  gas.DeleteGases();
  for (int32_t id = 0; id < kvt::kTableGases; ++id) EXPECT_EQ(gas.GetById(id)->referenceCount, 1u) << id;
}

}  // namespace
