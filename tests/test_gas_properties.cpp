// Ideal-gas properties, inversions, mixing, and the gas frame as a host sees
// it through the kvtg exports.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "frame/engine.h"
#include "gas/gas_engine.h"
#include "kvtcore.h"

namespace {

using kvt::GasRecord;

// Relative agreement to the given number of significant digits.
void ExpectDigits(double actual, double expected, int digits, const char* what = "") {
  EXPECT_NEAR(actual, expected, std::fabs(expected) * 0.5 * std::pow(10.0, 1 - digits)) << what;
}

class Gas : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
    kvtSETLASTERROR(0);
  }
  GasRecord& Table(int32_t id) { return *kvt::engine().gas.GetById(id); }
};

TEST_F(Gas, NitrogenReferenceValues) {
  const GasRecord& n2 = Table(0);
  EXPECT_DOUBLE_EQ(n2.gasConstant, 296.80474344420884);
  ExpectDigits(kvtgGCID(0), 296.80474344420884, 16);
  ExpectDigits(kvtgHIDT(0, 298.15), 309494.7418021375, 15);
  ExpectDigits(kvtgSIDPT(0, 101325, 298.15), 6835.9427988034295, 15);
  ExpectDigits(n2.tFromS0, 16530.7475, 9);
  ExpectDigits(n2.tFromS1, -4.78266267, 9);
  ExpectDigits(n2.tFromS2, 0.000352296870, 9);
  ExpectDigits(kvtgCPIDT(0, 1000), 1167.164924042184, 15);
  ExpectDigits(kvtgHIDT(0, 300), 311418.2034916282, 15);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

TEST_F(Gas, ArgonIsMonatomic) {
  for (double T : {200.0, 300.0, 1234.5, 2500.0}) ExpectDigits(kvtgCPIDT(10, T), 520.333308300791, 15);
  // h is linear in T: the first Newton step lands, the second confirms.
  kvtSETMAXITERATION(3);
  ExpectDigits(kvtgTIDH(10, kvtgHIDT(10, 700)), 700, 14);
  kvtSETMAXITERATION(2);
  EXPECT_EQ(kvtgTIDH(10, kvtgHIDT(10, 700)), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
}

TEST_F(Gas, AirRowAndAirMixtureAgree) {
  const int32_t air = 6, airMix = 13;
  for (int32_t id : {air, airMix}) {
    ExpectDigits(kvtgCPIDT(id, 300), 1004.85191712676, 14, "cp");
    ExpectDigits(kvtgHIDT(id, 300), 300469.083198418, 14, "h");
    ExpectDigits(kvtgSIDPT(id, 100000, 300), 6870.88365638800, 14, "s");
  }
  const GasRecord& mix = Table(airMix);
  ExpectDigits(mix.molarMass, 0.02896431986, 13);
  ExpectDigits(mix.mixingEntropy, 0.56847906, 8);
  EXPECT_EQ(Table(air).mixingEntropy, 0.0);
  EXPECT_TRUE(Table(air).components.empty());
}

TEST_F(Gas, EveryTableGasMeetsItsReferenceState) {
  for (int32_t id = 0; id < kvt::kTableGases; ++id) {
    const kvt::GasRow& row = kvt::kGasTable[id];
    SCOPED_TRACE(row.name);
    ExpectDigits(kvtgHIDT(id, 298.15), row.referenceEnthalpy / row.molarMass, 14);
    ExpectDigits(kvtgSIDPT(id, 101325, 298.15), row.referenceEntropy / row.molarMass, 14);
    ExpectDigits(kvtgMMID(id), row.molarMass, 16);
    EXPECT_EQ(kvtgIDNAME(row.name), id);
  }
}

TEST_F(Gas, DerivedPropertiesFollowFromCpAndH) {
  for (int32_t id : {0, 3, 4, 12, 14}) {
    const double R = kvtgGCID(id), T = 812.5;
    EXPECT_DOUBLE_EQ(kvtgCVIDT(id, T), kvtgCPIDT(id, T) - R);
    EXPECT_DOUBLE_EQ(kvtgUIDT(id, T), kvtgHIDT(id, T) - R * T);
    EXPECT_EQ(kvtgSIDPT(id, 100000, T), kvtgSIDT(id, T));  // exactly
    EXPECT_EQ(kvtgVIDPT(id, 100000, T), kvtgVIDT(id, T));
    EXPECT_DOUBLE_EQ(kvtgVIDPT(id, 2e5, T), R / 2e5 * T);
    // cp is the slope of h.
    ExpectDigits((kvtgHIDT(id, T + 0.01) - kvtgHIDT(id, T - 0.01)) / 0.02, kvtgCPIDT(id, T), 8);
  }
}

TEST_F(Gas, InversionsReturnTheirInputs) {
  const char* mixture = "N2:0.7;CO2:0.1;H2O:0.15;O2:0.05";
  for (int32_t id = 0; id <= 14; ++id) {
    for (double T : {250.0, 500.0, 1200.0, 2400.0}) {
      for (double p : {5e4, 101325.0, 3e6}) {
        SCOPED_TRACE(testing::Message() << "id " << id << " T " << T << " p " << p);
        const double s = kvtgSIDPT(id, p, T);
        ExpectDigits(kvtgTIDPS(id, p, s), T, 11);
        ExpectDigits(kvtgPIDTS(id, T, s), p, 11);
      }
      ExpectDigits(kvtgTIDH(id, kvtgHIDT(id, T)), T, 11);
      ExpectDigits(kvtgTIDS(id, kvtgSIDT(id, T)), T, 11);
    }
  }
  ExpectDigits(kvtgTGSH(mixture, kvtgHGST(mixture, 900)), 900, 11);
  ExpectDigits(kvtgTGSS(mixture, kvtgSGST(mixture, 900)), 900, 11);
  ExpectDigits(kvtgTGSPS(mixture, 2e6, kvtgSGSPT(mixture, 2e6, 900)), 900, 11);
  ExpectDigits(kvtgPGSTS(mixture, 900, kvtgSGSPT(mixture, 2e6, 900)), 2e6, 11);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

TEST_F(Gas, NewtonSearchCountsItsPassesAgainstTheCap) {
  // N2 from 1000 K down to 500 K meets its test in the fifth pass; the
  // cap test after the loop is i >= cap, so a cap of 5 already fails.
  const double h500 = kvtgHIDT(0, 500);
  kvtSETMAXITERATION(6);
  ExpectDigits(kvtgTIDH(0, h500), 500, 12);
  kvtSETMAXITERATION(5);
  EXPECT_EQ(kvtgTIDH(0, h500), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  kvtSETMAXITERATION(1);
  EXPECT_EQ(kvtgTIDS(0, kvtgSIDT(0, 700)), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  kvtSETMAXITERATION(100);
  // A target of 0 makes the stop band 0, which nothing is below.
  EXPECT_EQ(kvtgTIDH(0, 0.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
}

TEST_F(Gas, TemperatureSpanIsTestedBeforeTheGas) {
  EXPECT_EQ(kvtgCPIDT(0, 199.99), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_GT(kvtgCPIDT(0, 200), 0);
  EXPECT_GT(kvtgCPIDT(0, 2500), 0);
  EXPECT_EQ(kvtgSGSPT("N2", 1e5, 2500.01), -1.0);  // T is the last of (gas, p, T)
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_GT(kvtgSGSPT("N2", 1e9, 300), 0);  // p is never tested
  EXPECT_EQ(kvtgCPIDT(999, 100), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtgCPGST("Xe", 100), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  // The inverses and p(T, s) have no range test.
  EXPECT_GT(kvtgPIDTS(0, 100, kvtgSIDT(0, 300)), 0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  kvtSETCHECKRANGEMODE(0);
  EXPECT_GT(kvtgCPIDT(0, 199.99), 0);
  EXPECT_EQ(kvtgCPIDT(999, 100), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgHIDT(0, -5), -1.0);  // log of a negative t
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST_F(Gas, NaNTemperaturePassesTheSpanAndFailsAsNonFinite) {
  EXPECT_EQ(kvtgCPIDT(0, std::numeric_limits<double>::quiet_NaN()), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST_F(Gas, ByIdAndByTextComputeTheSame) {
  EXPECT_EQ(kvtgCPGST("n2", 640), kvtgCPIDT(0, 640));
  EXPECT_EQ(kvtgHGST("AirMix", 640), kvtgHIDT(13, 640));
  EXPECT_EQ(kvtgUGST(" Ar ", 640), kvtgUIDT(10, 640));
  EXPECT_EQ(kvtgGCGS("H2O"), kvtgGCID(4));
  EXPECT_EQ(kvtgVGSPT("CO2", 3e5, 640), kvtgVIDPT(3, 3e5, 640));
  ExpectDigits(kvtgMMGS("N2:1;O2:1"), 0.0300061, 15);
}

TEST_F(Gas, DissociationIsNotComputed) {
  for (int32_t mode : {1, 0}) {
    EXPECT_EQ(kvtgSETCALCDISSMODE(mode), -1);
    EXPECT_EQ(kvtGETLASTERROR(), 8);
    EXPECT_EQ(kvtgGETCALCDISSMODE(), 0);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
}

TEST_F(Gas, GasDataIsAPlaceholderWithoutError) {
  kvtSETLASTERROR(5);
  EXPECT_EQ(kvtgGETGASDATA(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// ---- Mixing, on a gas engine of the test's own so that the library's table
// gases stay as they are. ----

class Mixing : public Gas {
 protected:
  kvt::GasEngine gas{&kvt::engine()};
  GasRecord& Get(int32_t id) { return *gas.GetById(id); }
  GasRecord& Fresh() { return *gas.GetById(gas.NewGas()); }
};

TEST_F(Mixing, EqualVolumesOfNitrogenAndOxygen) {
  GasRecord& mix = Fresh();
  EXPECT_EQ(mix.AddByVolume(Get(0), 1), 1);
  EXPECT_EQ(mix.AddByVolume(Get(1), 1), 2);
  ExpectDigits(mix.molarMass, 0.0300061, 15);
  ExpectDigits(mix.mixingEntropy, std::log(2.0), 15);
  ExpectDigits(mix.VolumeFractionOf(Get(1)), 0.5, 15);
  // A kilogram of each: mole shares by 1 / molarMass.
  GasRecord& byMass = Fresh();
  byMass.AddByMass(Get(0), 1);
  EXPECT_EQ(byMass.AddByMass(Get(1), 1), 2);
  const double n0 = 1 / 0.0280134, n1 = 1 / 0.0319988;
  ExpectDigits(byMass.VolumeFractionOf(Get(0)), n0 / (n0 + n1), 14);
  ExpectDigits(byMass.MassFractionOf(Get(0)), 0.5, 15);
  ExpectDigits(byMass.molarMass, 2 / (n0 + n1), 14);
}

TEST_F(Mixing, OneComponentMixtureIsThatComponent) {
  GasRecord& mix = Fresh();
  mix.AddByVolume(Get(3), 2.5);
  EXPECT_EQ(mix.mixingEntropy, 0.0);
  EXPECT_EQ(mix.molarMass, Get(3).molarMass);
  EXPECT_DOUBLE_EQ(mix.Cp(700), Get(3).Cp(700));
  EXPECT_DOUBLE_EQ(mix.S(2e5, 700), Get(3).S(2e5, 700));
}

TEST_F(Mixing, EveryAdditionCountsAsANewGas) {
  GasRecord& twice = *gas.GetBySpec("N2:1;N2:1");
  EXPECT_EQ(twice.components.size(), 1u);
  ExpectDigits(twice.mixingEntropy, std::log(2.0), 15);
  ExpectDigits(twice.Cp(900), Get(0).Cp(900), 15);
}

TEST_F(Mixing, ZeroNegativeAndCyclicAmounts) {
  GasRecord& mix = Fresh();
  const uint32_t held = Get(0).referenceCount;
  EXPECT_EQ(mix.AddByVolume(Get(0), 0), 0);  // nothing at all
  EXPECT_EQ(Get(0).referenceCount, held);
  EXPECT_THROW(mix.AddByVolume(Get(0), -1), int32_t);
  EXPECT_TRUE(mix.components.empty());
  mix.AddByVolume(Get(0), 1);
  EXPECT_THROW(mix.AddByVolume(mix, 1), int32_t);  // itself
  GasRecord& outer = Fresh();
  outer.AddByVolume(mix, 1);
  EXPECT_THROW(mix.AddByVolume(outer, 1), int32_t);  // a cycle through nesting
  EXPECT_THROW(Get(0).AddByVolume(outer, 1), int32_t);  // a mixture into its own component
  EXPECT_EQ(mix.components.size(), 1u);
}

TEST_F(Mixing, FractionsLookThroughNesting) {
  GasRecord& mix = *gas.GetBySpec("{N2:3;O2:1}:1;H2:1");
  ExpectDigits(mix.VolumeFractionOf(*gas.SpecLookup("N2:3;O2:1")), 0.5, 15);
  ExpectDigits(mix.VolumeFractionOf(Get(1)), 0.125, 15);
  ExpectDigits(mix.VolumeFractionOf(Get(0)), 0.375, 15);
  EXPECT_EQ(mix.VolumeFractionOf(mix), 1.0);
  EXPECT_TRUE(mix.ContainsGas(Get(1)));
  EXPECT_FALSE(mix.ContainsGas(Get(3)));
}

TEST_F(Mixing, AddingToATableGasChangesItFromThenOn) {
  GasRecord& before = *gas.GetBySpec("N2:1;O2:1");
  const double cpBefore = before.Cp(500);
  EXPECT_EQ(Get(0).AddByVolume(Get(10), 1), 1);
  EXPECT_EQ(Get(0).VolumeFractionOf(Get(10)), 0.5);  // n / (1 + n)
  EXPECT_EQ(Get(0).VolumeFractionOf(Get(0)), 1.0);
  ExpectDigits(Get(0).molarMass, (0.0280134 + 0.039948) / 2, 15);
  EXPECT_EQ(before.Cp(500), cpBefore);  // blended numbers were copied
  EXPECT_NE(gas.GetBySpec("N2:1;O2:2")->molarMass, (2 * 0.0319988 + 0.0280134) / 3);
}

TEST_F(Mixing, ExportFractions) {
  ExpectDigits(kvtgVFGSGS("AirMix", "Ar"), 0.0094, 14);
  EXPECT_EQ(kvtgVFGSGS("AirMix", "Air"), 0.0);
  EXPECT_EQ(kvtgVFGSGS("N2", "N2"), 1.0);
  EXPECT_EQ(kvtgVFGSGS("N2", "O2"), 0.0);
  EXPECT_EQ(kvtgVFIDID(13, 10), kvtgVFGSGS("AirMix", "Ar"));
  ExpectDigits(kvtgMFGSGS("N2:1kg;O2:3kg", "O2"), 0.75, 15);
  EXPECT_EQ(kvtgMFIDID(13, 999), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgVFGSGS("N2:1", "N2:"), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 11);
  // An empty gas has 0/0 shares, which the frame reports as non-finite.
  const int32_t empty = kvtgNEWID();
  EXPECT_EQ(kvtgVFIDID(empty, 0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_STREQ(kvtgGSID(empty), "");
  EXPECT_EQ(kvtgCPIDT(empty, 300), 0.0);  // R is 0
  EXPECT_EQ(kvtgTIDH(empty, 1e5), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  kvtgDELETEGASID(empty);
}

}  // namespace
