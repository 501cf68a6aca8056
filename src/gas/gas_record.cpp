// Gas records: set-up, reference counting, the ideal-gas property functions
// and their inversions.
#include "gas/gas_record.h"

#include <cmath>
#include <cstring>
#include <unordered_set>
#include <vector>

#include "frame/engine.h"
#include "frame/raise.h"

namespace kvt {

namespace {

constexpr double kReduce = 0.001;  // t = T x 0.001
constexpr double k1_2 = 1.0 / 2, k1_3 = 1.0 / 3, k1_4 = 1.0 / 4, k1_5 = 1.0 / 5,
                 k1_6 = 1.0 / 6, k1_7 = 1.0 / 7;
const double kLnP0 = std::log(kP0);

std::unique_ptr<char[]> CopyName(const char* name) {
  if (!name) return nullptr;
  const size_t n = std::strlen(name) + 1;
  std::unique_ptr<char[]> copy(new char[n]);
  std::memcpy(copy.get(), name, n);
  return copy;
}

// The powers t^1..t^7, built by multiplication.
struct Powers {
  explicit Powers(double T) {
    t[1] = T * kReduce;
    t[2] = t[1] * t[1];
    t[3] = t[2] * t[1];
    t[4] = t[2] * t[2];
    t[5] = t[4] * t[1];
    t[6] = t[4] * t[2];
    t[7] = t[4] * t[3];
  }
  double t[8];
};

}  // namespace

// A record without a row: every number 0, no valid properties until a
// component is added.
GasRecord::GasRecord(Engine* engine, const char* name)
    : name(CopyName(name)),
      referenceCount(1),
      engine(engine),
      molarMass(0),
      a{},
      b{},
      enthalpyReferenceT(0),
      entropyReferenceT(0),
      entropyReferenceP(0),
      referenceEnthalpy(0),
      referenceEntropy(0),
      gasConstant(0),
      enthalpyOffset(0),
      entropyOffset(0),
      mixingEntropy(0),
      tFromS0(0),
      tFromS1(0),
      tFromS2(0),
      totalMoles(0),
      totalMass(0) {}

GasRecord::GasRecord(Engine* engine) : GasRecord(engine, static_cast<const char*>(nullptr)) {}

GasRecord::GasRecord(Engine* engine, const GasRow& row, const char* name)
    : GasRecord(engine, name) {
  SetUp(row);
}

GasRecord::GasRecord(Engine* engine, const GasRow& row) : GasRecord(engine, row, nullptr) {}

GasRecord::~GasRecord() = default;

void GasRecord::SetUp(const GasRow& row) {
  molarMass = row.molarMass;
  std::memcpy(a, row.a, sizeof a);
  std::memcpy(b, row.b, sizeof b);
  enthalpyReferenceT = row.enthalpyReferenceT;
  entropyReferenceT = row.entropyReferenceT;
  entropyReferenceP = row.entropyReferenceP;
  referenceEnthalpy = row.referenceEnthalpy;
  referenceEntropy = row.referenceEntropy;
  totalMoles = 1;
  totalMass = molarMass;
  gasConstant = kRu / molarMass;
  enthalpyOffset = 0;
  entropyOffset = 0;
  mixingEntropy = 0;
  // The integration constants make h and s meet the reference values.
  enthalpyOffset = referenceEnthalpy * kInvRu - H(enthalpyReferenceT) / gasConstant;
  entropyOffset =
      referenceEntropy * kInvRu - S(entropyReferenceP, entropyReferenceT) / gasConstant;
  FitEntropyQuadratic();
}

// A mixture releases its components when it goes, and they theirs: walked
// with a list rather than by recursion, so that no nesting depth can exhaust
// the host's stack.
void GasRecord::Release() {
  if (--referenceCount != 0) return;
  if (components.empty()) {
    delete this;
    return;
  }
  std::vector<GasRecord*> dying{this};
  while (!dying.empty()) {
    GasRecord* record = dying.back();
    dying.pop_back();
    for (auto& entry : record->components)
      if (--entry.first->referenceCount == 0) dying.push_back(entry.first);
    record->components.clear();
    delete record;
  }
}

// A parabola T(s) through the entropies at 300, 1500 and 2500 K: only the
// start of the Newton search of T(s).
void GasRecord::FitEntropyQuadratic() {
  const double s1 = S0(300), s2 = S0(1500), s3 = S0(2500);
  const double d = 1 / (s2 - s1);
  const double e = 1200 * d;
  const double f = s3 - s1;
  const double g = (s2 * s2 - s1 * s1) * d;
  tFromS2 = (2200 - e * f) / (s3 * s3 - s1 * s1 - g * f);
  tFromS1 = e - g * tFromS2;
  tFromS0 = 300 - tFromS1 * s1 - tFromS2 * s1 * s1;
}

// ---- Properties ----

double GasRecord::Cp(double T) const {
  const Powers p(T);
  const double* t = p.t;
  return gasConstant * (a[0] + a[1] * t[1] + a[2] * t[2] + a[3] * t[3] + a[4] * t[4] +
                        a[5] * t[5] + a[6] * t[6] + b[0] / t[1] + b[1] / t[2] + b[2] / t[3] +
                        b[3] / t[4] + b[4] / t[5] + b[5] / t[6]);
}

// The analytic integral of cp over T in the reduced variable; b1 gives the
// logarithm.
double GasRecord::Enthalpy(double T) const {
  const Powers p(T);
  const double* t = p.t;
  const double I = a[0] * t[1] + a[1] * t[2] * k1_2 + a[2] * t[3] * k1_3 + a[3] * t[4] * k1_4 +
                   a[4] * t[5] * k1_5 + a[5] * t[6] * k1_6 + a[6] * t[7] * k1_7 +
                   b[0] * std::log(t[1]) - b[1] / t[1] - b[2] * k1_2 / t[2] -
                   b[3] * k1_3 / t[3] - b[4] * k1_4 / t[4] - b[5] * k1_5 / t[5];
  return gasConstant * (1000 * I + enthalpyOffset);
}

// The analytic integral of cp / T; a0 gives the logarithm. The mixing term
// lies here, so every entropy and both T(s) inversions carry it.
double GasRecord::Entropy0(double T) const {
  const Powers p(T);
  const double* t = p.t;
  const double J = a[0] * std::log(t[1]) + a[1] * t[1] + a[2] * t[2] * k1_2 +
                   a[3] * t[3] * k1_3 + a[4] * t[4] * k1_4 + a[5] * t[5] * k1_5 +
                   a[6] * t[6] * k1_6 - b[0] / t[1] - b[1] * k1_2 / t[2] - b[2] * k1_3 / t[3] -
                   b[3] * k1_4 / t[4] - b[4] * k1_5 / t[5] - b[5] * k1_6 / t[6];
  return gasConstant * (J + mixingEntropy + entropyOffset);
}

double GasRecord::H(double T) const { return Enthalpy(T); }
double GasRecord::S0(double T) const { return Entropy0(T); }
double GasRecord::S(double p, double T) const {
  return S0(T) + (kLnP0 - std::log(p)) * gasConstant;
}
double GasRecord::Cv(double T) const { return Cp(T) - gasConstant; }
double GasRecord::U(double T) const { return H(T) - gasConstant * T; }
double GasRecord::V(double p, double T) const { return gasConstant / p * T; }
double GasRecord::V0(double T) const { return V(kP0, T); }

// Newton search on h or on s0. The stop band is relative to the target, the
// step is taken also in the pass that ends the search, and the cap test
// after the loop (i >= m) is stricter than the loop's own (i > m).
template <bool BySEntropy>
double GasRecord::Newton(double y, double T) const {
  const double limit = std::fabs(y * engine->tolerance);
  const int32_t m = engine->maxIteration;
  int64_t i = 0;  // wider than the cap, so that it cannot overflow at any cap
  for (;;) {
    ++i;
    const double c = Cp(T);
    const double d = (BySEntropy ? S0(T) : H(T)) - y;
    if (BySEntropy) T = T - d / c * T;
    else T = T - d / c;
    if (i > m) break;
    if (!(std::fabs(d) >= limit)) break;
  }
  if (i >= m) raise(3);
  return T;
}

// Always from 1000 K, whatever the gas and whatever h.
double GasRecord::TFromH(double h) const { return Newton<false>(h, 1000); }

double GasRecord::TFromS(double s) const {
  return Newton<true>(s, (s * tFromS2 + tFromS1) * s + tFromS0);
}

double GasRecord::TFromPS(double p, double s) const {
  return TFromS((std::log(p) - kLnP0) * gasConstant + s);
}

double GasRecord::PFromTS(double T, double s) const {
  return std::exp(kLnP0 + (S0(T) - s) / gasConstant);
}

// ---- Mixing ----

void GasRecord::AddComponent(GasRecord& c, double n, double m) {
  if (n < 0) raise(1);
  if (n == 0) return;
  // Also covers adding a gas to itself and cycles through nested mixtures.
  if (c.ContainsGas(*this)) raise(1);
  auto found = components.find(&c);
  if (found != components.end()) {
    found->second.moles += n;
    found->second.mass += m;
  } else {
    components.emplace(&c, GasComponentAmount{n, m});
    c.AddRef();
  }
  // w: mole share of what the record held so far; u: that of the newcomer.
  const double w = totalMoles / (n + totalMoles);
  const double u = 1 - w;
  auto blend = [u, w](double cx, double& x) { x = u * cx + w * x; };
  for (int i = 0; i < 7; ++i) blend(c.a[i], a[i]);
  for (int i = 0; i < 6; ++i) blend(c.b[i], b[i]);
  blend(c.molarMass, molarMass);
  blend(c.referenceEnthalpy, referenceEnthalpy);
  blend(c.referenceEntropy, referenceEntropy);
  blend(c.entropyReferenceP, entropyReferenceP);
  blend(c.enthalpyReferenceT, enthalpyReferenceT);
  blend(c.entropyReferenceT, entropyReferenceT);
  gasConstant = kRu / molarMass;
  // The offsets are reduced by Ru, so their mole average is right as it is.
  blend(c.enthalpyOffset, enthalpyOffset);
  blend(c.entropyOffset, entropyOffset);
  // Each addition counts as the arrival of a new, different gas.
  if (w != 0)
    mixingEntropy = u * (c.mixingEntropy - std::log(u)) + w * (mixingEntropy - std::log(w));
  else
    mixingEntropy = u * (c.mixingEntropy - std::log(u));
  FitEntropyQuadratic();
  totalMoles += n;
  totalMass += m;
}

int32_t GasRecord::AddByVolume(GasRecord& c, double v) {
  AddComponent(c, v, v * c.molarMass);
  return static_cast<int32_t>(components.size());
}

int32_t GasRecord::AddByMass(GasRecord& c, double m) {
  AddComponent(c, m / c.molarMass, m);
  return static_cast<int32_t>(components.size());
}

// Every walk over nested mixtures below uses a list of its own instead of
// recursion (no depth can exhaust the stack) and visits each distinct record
// once (a mixture that holds another through many paths costs no more than
// its distinct components).
bool GasRecord::ContainsGas(const GasRecord& other) const {
  if (&other == this) return true;
  if (components.empty()) return false;
  if (components.count(const_cast<GasRecord*>(&other))) return true;
  std::vector<const GasRecord*> todo{this};
  std::unordered_set<const GasRecord*> seen{this};
  while (!todo.empty()) {
    const GasRecord* record = todo.back();
    todo.pop_back();
    for (const auto& entry : record->components) {
      if (entry.first == &other) return true;
      if (seen.insert(entry.first).second) todo.push_back(entry.first);
    }
  }
  return false;
}

// The share of other in this record: 1 in itself, else the sum over the
// direct components, in their order, of a component's share times its
// amount, divided by the total. Each record's share is computed once and
// remembered, with the same operations in the same order as the plain
// recursive definition, so the numbers are the same to the bit.
double GasRecord::FractionOf(const GasRecord& other, double GasComponentAmount::*amount,
                             double GasRecord::*total) const {
  if (&other == this) return 1;
  std::unordered_map<const GasRecord*, double> known{{&other, 1.0}};
  struct Frame {
    const GasRecord* record;
    std::unordered_map<GasRecord*, GasComponentAmount>::const_iterator next;
    double sum;
  };
  std::vector<Frame> stack{{this, components.begin(), 0.0}};
  for (;;) {
    Frame& top = stack.back();
    if (top.next != top.record->components.end()) {
      const GasRecord* c = top.next->first;
      auto found = known.find(c);
      if (found == known.end()) {
        stack.push_back({c, c->components.begin(), 0.0});
      } else {
        top.sum += found->second * (top.next->second.*amount);
        ++top.next;
      }
      continue;
    }
    const double share = top.sum / (top.record->*total);
    known.emplace(top.record, share);
    stack.pop_back();
    if (stack.empty()) return share;
  }
}

double GasRecord::VolumeFractionOf(const GasRecord& other) const {
  return FractionOf(other, &GasComponentAmount::moles, &GasRecord::totalMoles);
}

double GasRecord::MassFractionOf(const GasRecord& other) const {
  return FractionOf(other, &GasComponentAmount::mass, &GasRecord::totalMass);
}

}  // namespace kvt
