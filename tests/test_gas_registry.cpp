// The gas registry and the gas-spec text: what a text means or which code it
// gives, the canonical text, the life of callers' gases, the cache, and a
// mass of random texts that must never crash nor leak.
#include <random>
#include <vector>

#include "frame/engine.h"
#include "gas/gas_engine.h"
#include "kvt_test.h"

namespace {

using kvt::GasEngine;
using kvt::GasRecord;
using kvt_test::CodeOf;

class Spec : public testing::Test {
 protected:
  void TearDown() override { kvtSETLASTERROR(0); }
  GasEngine gas{&kvt::engine()};
  // Volume fractions of the thirteen table gases.
  std::vector<double> Composition(const GasRecord& r) {
    std::vector<double> x;
    for (int32_t i = 0; i < kvt::kTableGases; ++i) x.push_back(r.VolumeFractionOf(*gas.GetById(i)));
    return x;
  }
  void ExpectComposition(const GasRecord& r, const std::vector<double>& x, const std::string& what) {
    const std::vector<double> got = Composition(r);
    for (size_t i = 0; i < x.size(); ++i) EXPECT_NEAR(got[i], x[i], 1e-14) << what << " gas " << i;
  }
  void ExpectTableGasesHeldOnlyByTheIdMap() {
    for (int32_t id = 0; id < kvt::kTableGases; ++id) EXPECT_EQ(gas.GetById(id)->referenceCount, 1u) << id;
  }
};

TEST_F(Spec, NamesAreFoundWithoutAParse) {
  const struct { const char* text; int32_t id; } names[] = {
      {"N2", 0}, {"  o2  ", 1}, {"AirMix", 13}, {"\tn2airmix\n", 14}, {"air", 6}};
  for (auto n : names) EXPECT_EQ(gas.GetBySpec(n.text), gas.GetById(n.id)) << n.text;
  EXPECT_TRUE(gas.specCache.entries.empty());
}

// Fractions by table gas: N2, O2, CO, CO2, H2O, SO2, Air, N2Air, NO, NO2, Ar, Ne, H2.
TEST_F(Spec, AcceptedTextsAndTheirMeaning) {
  const double mN2 = 0.0280134, mO2 = 0.0319988, n = (1 / mN2) / (1 / mN2 + 0.5 / mO2);
  const struct { const char* text; std::vector<double> x; } cases[] = {
      {"N2:0.79;O2:0.21", {0.79, 0.21}},    {"N2:79%;O2:21%", {0.79, 0.21}},
      {"N2;O2", {0.5, 0.5}},                {"N2:0,79;O2:0,21;", {0.79, 0.21}},
      {"N2: 1kg;O2:500g", {n, 1 - n}},      {"N2:1m;O2:0.5KG", {n, 1 - n}},
      {"{N2:3;O2:1}:2;H2O:1", {0.5, 1.0 / 6, 0, 0, 1.0 / 3}}, {"{N2:3;O2:1}", {0.75, 0.25}},
      {";;N2:1", {1}},  // a leading ";;" falls off the end
      {"N2:1;O2:3;;", {0.25, 0.75}},
      {"N2:1;{O2:1", {1}},  // an open brace drops the rest
      {" co2 : +2.5E-1v ; h2o:.75V", {0, 0, 0, 0.25, 0.75}},
      {"Ar:1;{N2:1;{O2:1;Ne:1}:2}:2", {2.0 / 9, 2.0 / 9, 0, 0, 0, 0, 0, 0, 0, 0, 1.0 / 3, 2.0 / 9}},
  };
  for (const auto& c : cases) {
    const GasRecord* r = nullptr;
    ASSERT_EQ(CodeOf([&] { r = gas.GetBySpec(c.text); }), 0) << c.text;
    std::vector<double> x = c.x;
    x.resize(kvt::kTableGases);
    ExpectComposition(*r, x, c.text);
    const std::string text = c.text;
    EXPECT_EQ(r->name.get(), text.substr(text.find_first_not_of(' '))) << "the trimmed text names the record";
  }
  EXPECT_EQ(gas.GetBySpec("{N2:3;O2:1}")->components.size(), 1u);
  EXPECT_EQ(gas.GetBySpec("n2;o2"), gas.GetBySpec("N2;O2"));  // a cache hit, whatever the case
}

TEST_F(Spec, RefusedTextsAndTheirCodes) {
  const struct { const char* text; int32_t code; } cases[] = {
      {"N2:", 11},     {"N2:1x", 11},     {"N2:1 kg", 11},  {"Xe:1", 1},       {"N2:-1", 1},
      {"{N2", 11},     {"N2:1;;O2:1;Ar:1", 11},             {"", 11},          {"  \t ", 11},
      {";;;", 11},     {"N2:kg", 11},     {"N2:5e", 11},    {"N2:1 000", 11},  {"N2:1e999", 11},
      {"N2;;O2;Ar", 1}, {"N2:1;{}", 11},  {"N2:1;O2:%", 11}, {"}N2", 11},      {"N2:1;Xe", 1},
      {"{N2:1}:-2", 1}, {"N2:+-1", 11},   {"N2:1;N2:1x", 11},
      {";;N2:1;O2:3", 11},  // the doubled separator's excess reaches the next item
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CodeOf([&] { gas.GetBySpec(c.text); }), c.code) << c.text;
    EXPECT_CODE(kvtgMMGS(c.text), c.code);  // the same through an export
  }
  EXPECT_CODE(kvtgCPGST(nullptr, 300), 11);
  EXPECT_EQ(gas.specCache.Find("N2:1;{}"), nullptr);  // nothing refused stays in the cache
  // Deep nesting is read up to a depth no real mixture needs, then refused
  // as a syntax error instead of running the reader out of stack; the reader
  // is usable afterwards.
  const auto nested = [](int depth) { return std::string(depth, '{') + "N2:1;O2:1" + std::string(depth, '}'); };
  for (auto [depth, code] : {std::pair{150, 0}, {100000, 11}, {3, 0}})
    EXPECT_EQ(CodeOf([&] { gas.GetBySpec(nested(depth).c_str()); }), code) << depth;
}

TEST_F(Spec, CanonicalTextByteForByte) {
  const struct { const char *text, *canonical; } cases[] = {
      {"o2:3;n2:1", "N2:0.25;O2:0.75;"},      {"N2:1", "N2:1.;"},
      {"O2:19;N2:1", "N2:5.e-002;O2:0.95;"},  {"N2:1e-20;O2:1", "N2:1.e-020;O2:1.;"},
      {"{O2:1;Air:1}:2;N2Air:2", "O2:0.25;Air:0.25;N2Air:0.5;"}, {" h2o ", "H2O"}};
  for (const auto& c : cases) EXPECT_STREQ(kvtgGSGS(c.text), c.canonical);
  EXPECT_STREQ(kvtgGSID(0), "N2");
  EXPECT_STREQ(kvtgGSID(6), "Air");
  EXPECT_STREQ(kvtgGSID(13), "N2:0.7803;O2:0.2099;CO2:3.e-004;Ar:9.4e-003;H2:1.e-004;");
  EXPECT_EQ(kvtgGSID(999), nullptr);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgGSGS("N2:"), nullptr);
  EXPECT_EQ(kvtGETLASTERROR(), 11);
  // Written text reads back to the same composition.
  for (const char* text : {"AirMix", "N2AirMix", "{N2:3;O2:1}:2;H2O:1", "CO2:1g;H2:3kg;SO2:17%",
                           "Ar:1;{N2:1;{O2:1;Ne:1}:2}:2;NO:1e-9;NO2:3"}) {
    const GasRecord& r = *gas.GetBySpec(text);
    const std::string written = gas.GasText(r);
    const GasRecord& back = *gas.GetBySpec(written.c_str());
    ExpectComposition(back, Composition(r), text);
    EXPECT_REL(back.Cp(800), r.Cp(800), 1e-10);
  }
}

// ---- Registry ----

TEST_F(Spec, FreshRegistryNamesAndBuiltInIds) {
  EXPECT_EQ(gas.GasesCount(), 15);
  for (auto [name, id] : {std::pair{"Air", 6}, {"air", 6}, {"AirMix", 13}}) EXPECT_EQ(gas.IdOfName(name), id);
  EXPECT_EQ(kvtgIDNAME("aIrMiX"), 13);
  EXPECT_CODE(kvtgIDNAME("Methane"), 1);
  for (const char* name : {"N2", "n2"}) EXPECT_EQ(CodeOf([&] { gas.NewNamedGas(name); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.IdOfName("Methane"); }), 1);
  for (int32_t id : {0, 6, 12, 13, -13, -1}) EXPECT_EQ(CodeOf([&] { gas.DeleteGas(id); }), 1) << id;
  EXPECT_EQ(gas.DeleteGas(14), 14);  // N2AirMix can go this way, AirMix cannot
  EXPECT_EQ(CodeOf([&] { gas.DeleteGas(14); }), 1);
  EXPECT_EQ(CodeOf([&] { gas.GetBySpec("N2AirMix"); }), 1);
  EXPECT_CODE(kvtgDELETEGASID(13), 1);
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
  ExpectTableGasesHeldOnlyByTheIdMap();
}

// A named gas keeps an extra reference that is never given back: with the
// registry and the cache let go, it still holds the record.
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
  gas.DeleteGases();
  EXPECT_EQ(fuel->referenceCount, 1u);
  EXPECT_EQ(fuel->VolumeFractionOf(*gas.GetById(2)), 1.0);
  EXPECT_NE(gas.GetById(gas.NewNamedGas("Fuel")), fuel);  // a new record of the name
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

// Through the exports: cycles, unknown ids and negative amounts are refused
// (zero is the unchanged count); ids and counts come back; a deleted id is
// gone while its text still reaches the cached gas.
TEST_F(Spec, RegistryThroughTheExports) {
  const int32_t inner = kvtgNEWID(), outer = kvtgNEWID(), count = kvtgGASESCOUNT();
  EXPECT_EQ(kvtgADDGASV(inner, 0, 1), 1);
  EXPECT_EQ(kvtgADDGASM(outer, inner, 0.5), 1);
  for (auto [part, amount] : {std::pair{outer, 1.0}, {inner, 1.0}, {999, 1.0}, {1, -1.0}})
    EXPECT_CODE(kvtgADDGASV(inner, part, amount), 1);
  EXPECT_EQ(kvtgADDGASV(inner, 1, 0), 1);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  EXPECT_EQ(kvtgDELETEGASID(inner), count - 1);
  EXPECT_GT(kvtgCPIDT(outer, 500), 0);  // the mixture holds its part
  EXPECT_EQ(kvtgDELETEGASID(outer), count - 2);

  const int32_t id = kvtgNEWIDGS(" CO:1;H2:1 ");
  EXPECT_GT(id, 14);
  EXPECT_EQ(kvtgIDNAME("co:1;h2:1"), id);
  EXPECT_CODE(kvtgNEWIDGS("CO:1;H2:1"), 1);
  EXPECT_CODE(kvtgNEWIDGS("CO:1;H2:"), 11);
  EXPECT_EQ(kvtgGASESCOUNT(), count - 1);
  EXPECT_STREQ(kvtgGSID(id), "CO:0.5;H2:0.5;");
  EXPECT_EQ(kvtgHIDT(id, 600), kvtgHGST("CO:1;H2:1", 600));
  EXPECT_EQ(kvtgNEWIDNAME("Air"), -1);
  EXPECT_EQ(kvtgDELETEGASID(id), count - 2);
  EXPECT_CODE(kvtgCPIDT(id, 600), 1);
  EXPECT_CODE(kvtgCPGST("CO:1;H2:1", 600), 0);
}

// The 1025th entry empties the cache but for it and its group, cached
// before; a registered text lives on by the id map's reference.
TEST_F(Spec, CachePurgeKeepsTheCurrentGasUsable) {
  const int32_t kept = gas.NewGasFromSpec("CO2:1;H2O:2");
  gas.GetBySpec("N2:3;O2:1");
  for (int i = 0; gas.specCache.entries.size() < 1024; ++i)
    gas.GetBySpec(("N2:" + std::to_string(i + 1) + ";Ar:1").c_str());
  ASSERT_EQ(gas.specCache.entries.size(), 1024u);
  const GasRecord* current = gas.GetBySpec("{N2:3;O2:1}:1;Ar:1");
  EXPECT_EQ(gas.specCache.entries.size(), 2u);
  EXPECT_NE(gas.specCache.Find("N2:3;O2:1"), nullptr);
  EXPECT_EQ(gas.specCache.Find("{N2:3;O2:1}:1;Ar:1"), current);
  EXPECT_TRUE(std::isfinite(current->Cp(500)));
  EXPECT_EQ(current->VolumeFractionOf(*gas.GetById(1)), 0.125);
  EXPECT_EQ(gas.GetBySpec("CO2:1;H2O:2"), gas.GetById(kept));
  EXPECT_NEAR(gas.GetById(kept)->VolumeFractionOf(*gas.GetById(4)), 2.0 / 3, 1e-15);
}

// ---- Random texts ----

class TextMaker {
 public:
  explicit TextMaker(uint32_t seed) : rng(seed) {}
  std::string Spec(int depth) {
    std::string s = Chance(10) ? ";;" : "";
    const int items = 1 + Pick(4);
    for (int i = 0; i < items; ++i) s += (i ? (Chance(8) ? ";;" : ";") : "") + Item(depth);
    if (Chance(5)) s += ";";
    if (Chance(4)) Corrupt(s);
    return s;
  }

 private:
  template <size_t N> const char* Any(const char* const (&list)[N]) { return list[Pick(N)]; }
  std::string Item(int depth) {
    static const char* const names[] = {"N2", "o2", "CO", "co2", "H2O", "SO2", "Air", "n2air", "NO",
                                        "NO2", "Ar", "ne", "H2", "AirMix", "N2AirMix", "Xe", "N 2", ""};
    static const char* const numbers[] = {"1", "0.79", "0,21", "79", "2.5e-1", "+3", "-1", "0", ".5",
                                          "5.", "1e999", "1e-400", "5e", "1 000", "", " 2", "7E2"};
    static const char* const units[] = {"", "", "", "V", "%", "m", "KG", "g", "x", " kg", "%%", "v "};
    const std::string target = depth < 3 && Chance(5) ? "{" + Spec(depth + 1) + "}" : Any(names);
    const std::string item = Space() + target + Space();
    return Chance(4) ? item : item + ":" + Any(numbers) + Any(units);
  }
  std::string Space() { return Chance(6) ? (Pick(2) ? "\t" : " ") : ""; }
  void Corrupt(std::string& s) {
    static const char junk[] = ":;{}%,. eE-+kgmvx\t9";
    if (s.empty() || Chance(2)) s.insert(s.begin() + Pick(static_cast<int>(s.size()) + 1), junk[Pick(sizeof junk - 1)]);
    else s.erase(s.begin() + Pick(static_cast<int>(s.size())));
  }
  int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng); }
  bool Chance(int oneIn) { return Pick(oneIn) == 0; }
  std::mt19937 rng;
};

// Each text is read or refused with code 1 or 11, the same way through the
// exports of the library's own engine; what is read writes back to the same
// composition; and no reference is lost on the way.
TEST_F(Spec, RandomTextsNeverCrashAndKeepNothingBehind) {
  TextMaker maker(20240611);
  int accepted = 0, refused = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string text = maker.Spec(0);
    SCOPED_TRACE(text);
    const GasRecord* r = nullptr;
    const int32_t code = CodeOf([&] { r = gas.GetBySpec(text.c_str()); });
    ASSERT_TRUE(code == 0 || code == 1 || code == 11) << code;
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
    const auto a = Composition(*r), b = Composition(*back);
    for (size_t k = 0; k < a.size(); ++k) ASSERT_NEAR(a[k], b[k], 1e-13) << written;
  }
  EXPECT_GT(accepted, 300);
  EXPECT_GT(refused, 300);
  gas.DeleteGases();
  ExpectTableGasesHeldOnlyByTheIdMap();
}

}  // namespace
