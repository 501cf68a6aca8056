// The guarded call: the one road from an export to a core and back. It clears
// the last error, applies the family's range rule, runs the core, tests the
// result for finiteness, and turns every failure into -1 (or null) plus a
// code. Nothing leaves it as an exception.
#pragma once

#include <cstdint>
#include <cstring>
#include <utility>
#include <type_traits>

#include "frame/engine.h"
#include "frame/ranges.h"

// The frame is a few instructions around a call; written into each export (and
// each loop of the array interface) it costs no call of its own and reads the
// engine at a fixed address.
#define KVT_FRAME_INLINE inline __attribute__((always_inline))

namespace kvt {

// Passes unless the exponent bits are all ones: fails for both infinities and
// every NaN, whatever the floating-point environment.
// With SSE2 the top sixteen bits (sign, exponent, four bits of the fraction)
// come straight out of the register, one instruction instead of a move and a
// shift; the test on the exponent is the same.
inline bool IsFinite(double x) {
#if defined(__SSE2__)
  uint32_t top;
  asm("pextrw $3, %1, %0" : "=r"(top) : "x"(x));
  return (top & 0x7ff0) != 0x7ff0;
#else
  uint64_t bits;
  std::memcpy(&bits, &x, sizeof bits);
  return ((bits >> 52) & 0x7ff) != 0x7ff;
#endif
}

// A raised integer code: kept if no code is stored yet and it is one of the
// codes the register accepts (1 to 11); 0 and larger numbers leave it at 0.
inline void StoreRaised(Engine& e, int32_t code) {
  if (e.lastError == 0 && code != 0) e.SETLASTERROR(code);
}

// The object a core is a member of.
template <class C> C& OwnerOf(Engine& e);
template <> inline Engine& OwnerOf<Engine>(Engine& e) { return e; }
template <> inline WaterCalculator& OwnerOf<WaterCalculator>(Engine& e) { return e.water; }
template <> inline IceCalculator& OwnerOf<IceCalculator>(Engine& e) { return e.ice; }
template <> inline GasEngine& OwnerOf<GasEngine>(Engine& e) { return e.gas; }

template <class M> struct MemberOf;
template <class C, class R, class... P> struct MemberOf<R (C::*)(P...)> { using type = C; };
template <class C, class R, class... P> struct MemberOf<R (C::*)(P...) const> { using type = C; };

// Called through the member pointer itself, a constant here, so that the
// compiler sees a plain call to the core and can write a small core in place.
template <auto Core, class... A>
inline decltype(auto) RunCore(Engine& e, A&&... a) {
  using Owner = typename MemberOf<decltype(Core)>::type;
  return (OwnerOf<Owner>(e).*Core)(std::forward<A>(a)...);
}

template <class R> inline R FailureResult() {
  if constexpr (std::is_pointer_v<R>) return nullptr;
  else return static_cast<R>(-1);
}

// Scalar, integer, setter, text and pair shapes: the core takes the export's
// arguments, with the pair's pointers as references. GuardedOn runs on the
// engine it is given (an engine of the array interface); Guarded, the road of
// the exports, on the global engine.
template <class R, class Rule, auto Core, class... A>
KVT_FRAME_INLINE R GuardedOn(Engine& e, A... a) {
  if constexpr (std::is_same_v<Rule, rules::Plain>) {
    // The last-error functions: no clearing, but still nothing escapes.
    try {
      return RunCore<Core>(e, a...);
    } catch (int32_t code) {
      StoreRaised(e, code);
    } catch (...) {
      if (e.lastError == 0) e.lastError = 1;
    }
    return FailureResult<R>();
  } else if constexpr (std::is_same_v<Rule, rules::Getter>) {
    // The simple getters: clear, read, test.
    e.lastError = 0;
    R r = RunCore<Core>(e);
    if (!IsFinite(static_cast<double>(r))) {
      e.lastError = 1;
      return FailureResult<R>();
    }
    return r;
  } else {
    e.lastError = 0;
    try {
      if (e.checkRangeMode != 0 && Rule::Fails(e, a...)) {
        e.lastError = 2;
        return FailureResult<R>();
      }
      R r = RunCore<Core>(e, a...);
      if constexpr (!std::is_pointer_v<R>) {
        if (!IsFinite(static_cast<double>(r))) {
          e.lastError = 1;
          return FailureResult<R>();
        }
      }
      return r;
    } catch (int32_t code) {
      StoreRaised(e, code);
    } catch (...) {
      if (e.lastError == 0) e.lastError = 1;
    }
    return FailureResult<R>();
  }
}

template <class R, class Rule, auto Core, class... A>
KVT_FRAME_INLINE R Guarded(A... a) {
  return GuardedOn<R, Rule, Core, A...>(engine(), a...);
}

// Output pointers are the caller's; a null one gets a scratch slot instead of
// a crash.
inline double& OutSlot(double* p, double& scratch) { return p ? *p : scratch; }

template <class Rule, auto Core, class... A>
double GuardedPairOn(Engine& e, A... a, double* o1, double* o2) {
  double s1 = 0, s2 = 0;
  return GuardedOn<double, Rule, Core, A..., double&, double&>(e, a..., OutSlot(o1, s1),
                                                               OutSlot(o2, s2));
}
template <class Rule, auto Core, class... A>
double GuardedPair(A... a, double* o1, double* o2) {
  return GuardedPairOn<Rule, Core, A...>(engine(), a..., o1, o2);
}

// Many-output shape: the core fills fourteen doubles, which reach the
// caller's pointers after a successful call.
template <class Rule, auto Core, class... A>
double GuardedManyOn(Engine& e, A... a, double* const (&o)[14]) {
  Out14 r = {};
  double result = GuardedOn<double, Rule, Core, A..., Out14&>(e, a..., r);
  if (e.lastError == 0 && result != -1.0) {
    for (int i = 0; i < 14; ++i)
      if (o[i]) *o[i] = r[i];
  }
  return result;
}
template <class Rule, auto Core, class... A>
double GuardedMany(A... a, double* const (&o)[14]) {
  return GuardedManyOn<Rule, Core, A...>(engine(), a..., o);
}

}  // namespace kvt
