// A gas record: a pure gas or a mixture, one class for both. A mixture's
// coefficients are the mole-weighted blend of its components', so every
// property function runs on either without knowing which it has.
//
// Records are reference counted. The gas engine's id map and spec cache each
// own one reference per entry, and a mixture owns one on each component; the
// record frees itself when the last one goes.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "gas/gas_tables.h"

namespace kvt {

class Engine;

// Molar gas constant, J/(mol K), and its reciprocal as stored (the double
// nearest to 1/8.31451): the reference enthalpy and entropy are reduced by it.
constexpr double kRu = 8.31451;
constexpr double kInvRu = 0.12027166964739955;
// Reference pressure of the formulas; the tables state their entropies at
// 101325 Pa instead, and the entropy offset absorbs the difference.
constexpr double kP0 = 100000.0;

// The amount of one component: moles (or volume parts, the same for ideal
// gases) and mass. Repeated additions of a component accumulate here.
struct GasComponentAmount {
  double moles;  // mol
  double mass;   // kg
};

class GasRecord {
 public:
  // The four ways to make a record; every one starts with no components and
  // one reference, owned by whoever made it.
  GasRecord(Engine* engine, const GasRow& row, const char* name);
  GasRecord(Engine* engine, const GasRow& row);
  GasRecord(Engine* engine, const char* name);
  explicit GasRecord(Engine* engine);
  GasRecord(const GasRecord&) = delete;
  GasRecord& operator=(const GasRecord&) = delete;

  void AddRef() { ++referenceCount; }
  void Release();

  // ---- Ideal-gas properties, per kg ----
  double Cp(double T) const;          // J/(kg K)
  double H(double T) const;           // J/kg
  double S0(double T) const;          // J/(kg K), at 100000 Pa
  double S(double p, double T) const;
  double Cv(double T) const;
  double U(double T) const;
  double V(double p, double T) const;  // m3/kg
  double V0(double T) const;           // at 100000 Pa
  double TFromH(double h) const;       // K
  double TFromS(double s) const;       // K, at 100000 Pa
  double TFromPS(double p, double s) const;
  double PFromTS(double T, double s) const;  // Pa
  double MolarMass() const { return molarMass; }
  double GasConstant() const { return gasConstant; }

  // ---- Mixing ----
  void AddComponent(GasRecord& c, double n, double m);
  int32_t AddByVolume(GasRecord& c, double v);
  int32_t AddByMass(GasRecord& c, double m);
  bool ContainsGas(const GasRecord& other) const;
  double VolumeFractionOf(const GasRecord& other) const;
  double MassFractionOf(const GasRecord& other) const;

  std::unique_ptr<char[]> name;  // null for a gas made without a name
  uint32_t referenceCount;
  Engine* engine;
  double molarMass;  // kg/mol
  double a[7];       // a0..a6
  double b[6];       // b1..b6
  double enthalpyReferenceT;
  double entropyReferenceT;
  double entropyReferenceP;
  double referenceEnthalpy;  // J/mol
  double referenceEntropy;   // J/(mol K)
  double gasConstant;        // J/(kg K)
  double enthalpyOffset;     // K
  double entropyOffset;
  double mixingEntropy;  // sum of -x ln x over the mixing steps
  double tFromS0, tFromS1, tFromS2;
  std::unordered_map<GasRecord*, GasComponentAmount> components;
  double totalMoles;
  double totalMass;

 private:
  ~GasRecord();
  void SetUp(const GasRow& row);
  void FitEntropyQuadratic();
  double Enthalpy(double t) const;  // R (1000 I(t) + offset)
  double Entropy0(double t) const;  // R (J(t) + mixing + offset)
  template <bool BySEntropy>
  double Newton(double y, double T) const;
  double FractionOf(const GasRecord& other, double GasComponentAmount::*amount,
                    double GasRecord::*total) const;
};

}  // namespace kvt
