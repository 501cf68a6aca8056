// One loop per catalogue row, made from the catalogue: every point runs the
// same guarded call, with the same template arguments, as the row's export,
// only on the engine it is given.
#include <cmath>
#include <limits>
#include <type_traits>

#include "batch/batch.h"
#include "frame/guarded_call.h"
#include "kvtcore.h"

namespace kvt::batch {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// A one-number result: NaN and its code where the call failed.
inline void Put(const Job& j, size_t k, double r, int32_t code, Tally& t) {
  if (code != 0) {
    r = kNaN;
    ++t.failed;
  }
  j.outs[0][k] = r;
  if (j.codes) j.codes[k] = code;
  if (k + 1 == j.n) t.lastCode = code;
}

// Rows whose result is one number.
template <auto Point>
void Each(Engine& e, const Job& j, size_t begin, size_t end, Tally& t) {
  for (size_t k = begin; k < end; ++k) {
    const double r = Point(e, j, k);
    Put(j, k, r, e.lastError, t);
  }
}

// The points of each shape, as the exports in frame/exports.cpp call them.
template <class R, auto C> double D1(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, C>(e, j.At(0, k));
}
template <class R, auto C> double D2(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, C>(e, j.At(0, k), j.At(1, k));
}
template <class R, auto C> double D3(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, C>(e, j.At(0, k), j.At(1, k), j.At(2, k));
}
template <class R, auto C> double D4(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, C>(e, j.At(0, k), j.At(1, k), j.At(2, k), j.At(3, k));
}
template <class R, auto C> double D5(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, C>(e, j.At(0, k), j.At(1, k), j.At(2, k), j.At(3, k), j.At(4, k));
}
template <class R, auto C> double I2(Engine& e, const Job& j, size_t k) {
  return GuardedOn<int32_t, R, C>(e, j.At(0, k), j.At(1, k));
}
template <class R, auto C> double GI0(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, &GasEngine::ById<C>>(e, j.IdAt(0, k));
}
template <class R, auto C> double GI1(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, &GasEngine::ById<C, double>>(e, j.IdAt(0, k), j.At(1, k));
}
template <class R, auto C> double GI2(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, &GasEngine::ById<C, double, double>>(e, j.IdAt(0, k), j.At(1, k),
                                                                    j.At(2, k));
}
template <class R, auto C> double GS0(Engine& e, const Job& j, size_t) {
  return GuardedOn<double, R, &GasEngine::BySpec<C>>(e, j.text[0]);
}
template <class R, auto C> double GS1(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, &GasEngine::BySpec<C, double>>(e, j.text[0], j.At(0, k));
}
template <class R, auto C> double GS2(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, &GasEngine::BySpec<C, double, double>>(e, j.text[0], j.At(0, k),
                                                                     j.At(1, k));
}
template <class R, auto C> double FII(Engine& e, const Job& j, size_t k) {
  return GuardedOn<double, R, &GasEngine::PairById<C>>(e, j.IdAt(0, k), j.IdAt(1, k));
}
template <class R, auto C> double FSS(Engine& e, const Job& j, size_t) {
  return GuardedOn<double, R, &GasEngine::PairBySpec<C>>(e, j.text[0], j.text[1]);
}

// Rows that write several numbers: the point fails when the call fails or
// any output is not finite, and then every output is NaN.
inline void PutAll(const Job& j, size_t k, int outputs, const double* o, bool ok, int32_t code,
                   Tally& t) {
  for (int i = 0; ok && i < outputs; ++i) ok = IsFinite(o[i]);
  if (!ok) {
    if (code == 0) code = 1;
    ++t.failed;
  }
  for (int i = 0; i < outputs; ++i) j.outs[i][k] = ok ? o[i] : kNaN;
  if (j.codes) j.codes[k] = code;
  if (k + 1 == j.n) t.lastCode = code;
}

template <class R, auto C>
void Pair(Engine& e, const Job& j, size_t begin, size_t end, Tally& t) {
  for (size_t k = begin; k < end; ++k) {
    double o[2] = {kNaN, kNaN};
    const double r = GuardedPairOn<R, C, double, double>(e, j.At(0, k), j.At(1, k), &o[0], &o[1]);
    PutAll(j, k, 2, o, e.lastError == 0 && r != -1.0, e.lastError, t);
  }
}

template <class R, auto C, int N>
void Many(Engine& e, const Job& j, size_t begin, size_t end, Tally& t) {
  for (size_t k = begin; k < end; ++k) {
    double o[14];
    double* const p[14] = {&o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6],
                           &o[7], &o[8], &o[9], &o[10], &o[11], &o[12], &o[13]};
    double r;
    if constexpr (N == 1) r = GuardedManyOn<R, C, double>(e, j.At(0, k), p);
    else r = GuardedManyOn<R, C, double, double>(e, j.At(0, k), j.At(1, k), p);
    PutAll(j, k, 14, o, e.lastError == 0 && r != -1.0, e.lastError, t);
  }
}

// Settings, the last error and anything else whose core is the engine's own
// are no calculation: they have no loop.
template <class Rule, auto Core>
constexpr bool Calculation() {
  using Owner = typename MemberOf<decltype(Core)>::type;
  return !std::is_same_v<Owner, Engine> && !std::is_same_v<Rule, rules::Getter> &&
         !std::is_same_v<Rule, rules::Plain>;
}
template <class Rule, auto Core>
constexpr Loop Only(Loop loop) {
  return Calculation<Rule, Core>() ? loop : nullptr;
}

#define KVT_LOOP_ONE(P, R, C) Only<R, &C>(&Each<&P<R, &C>>)
#define KVT_LOOP_D1(R, C) KVT_LOOP_ONE(D1, R, C)
#define KVT_LOOP_D2(R, C) KVT_LOOP_ONE(D2, R, C)
#define KVT_LOOP_D3(R, C) KVT_LOOP_ONE(D3, R, C)
#define KVT_LOOP_D4(R, C) KVT_LOOP_ONE(D4, R, C)
#define KVT_LOOP_D5(R, C) KVT_LOOP_ONE(D5, R, C)
#define KVT_LOOP_I2(R, C) KVT_LOOP_ONE(I2, R, C)
#define KVT_LOOP_GI0(R, C) KVT_LOOP_ONE(GI0, R, C)
#define KVT_LOOP_GI1(R, C) KVT_LOOP_ONE(GI1, R, C)
#define KVT_LOOP_GI2(R, C) KVT_LOOP_ONE(GI2, R, C)
#define KVT_LOOP_GS0(R, C) KVT_LOOP_ONE(GS0, R, C)
#define KVT_LOOP_GS1(R, C) KVT_LOOP_ONE(GS1, R, C)
#define KVT_LOOP_GS2(R, C) KVT_LOOP_ONE(GS2, R, C)
#define KVT_LOOP_FII(R, C) KVT_LOOP_ONE(FII, R, C)
#define KVT_LOOP_FSS(R, C) KVT_LOOP_ONE(FSS, R, C)
#define KVT_LOOP_P2(R, C) Only<R, &C>(&Pair<R, &C>)
#define KVT_LOOP_M1(R, C) Only<R, &C>(&Many<R, &C, 1>)
#define KVT_LOOP_M2(R, C) Only<R, &C>(&Many<R, &C, 2>)
#define KVT_LOOP_NONE(R, C) nullptr
#define KVT_LOOP_D0 KVT_LOOP_NONE
#define KVT_LOOP_D12 KVT_LOOP_NONE
#define KVT_LOOP_I0 KVT_LOOP_NONE
#define KVT_LOOP_I1 KVT_LOOP_NONE
#define KVT_LOOP_C0 KVT_LOOP_NONE
#define KVT_LOOP_W0 KVT_LOOP_NONE
#define KVT_LOOP_H1 KVT_LOOP_NONE
#define KVT_LOOP_AII KVT_LOOP_NONE
#define KVT_LOOP_IS1 KVT_LOOP_NONE
#define KVT_LOOP_CI1 KVT_LOOP_NONE
#define KVT_LOOP_CS1 KVT_LOOP_NONE

#define KVT_LOOP_ROW(ord, name, shape, rule, core, args, result) \
  KVT_LOOP_##shape(rules::rule, core),

const Loop kLoops[] = {KVT_CATALOGUE(KVT_LOOP_ROW)};

}  // namespace

Loop LoopAt(int32_t i) { return i >= 0 && i < RowCount() ? kLoops[i] : nullptr; }

int32_t RowCount() { return static_cast<int32_t>(sizeof kLoops / sizeof kLoops[0]); }

}  // namespace kvt::batch
