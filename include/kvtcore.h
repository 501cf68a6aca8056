/*
 * kvtcore: properties of water and steam (IAPWS-IF97 and its supplementary
 * releases), of ideal gases and of gas mixtures, one number per call.
 *
 * Every function takes plain numbers in SI base units (Pa, K, kg/m3, m3/kg,
 * J/kg, J/(kg K), W/(m K), Pa s, m/s, K/Pa) and returns one number. On failure
 * it returns -1 (or a null pointer for text) and keeps an error code that
 * kvtGETLASTERROR() reports until the next call; kvtGETLASTERRORDESCRIPTION()
 * gives its text. -1 is not reserved: test the code.
 *
 * Codes: 0 no error; 1 bad arguments or a floating-point failure; 2 arguments
 * outside the range of the function; 3 iteration limit reached; 4 unknown
 * water state area; 8 not implemented; 11 syntax error in a gas text.
 *
 * The library is not thread-safe: calls must take turns.
 *
 * The catalogue below is the whole interface: one row per function, with its
 * ordinal, name, call shape, input range rule, internal core and arguments.
 * The declarations, the library's definitions, the Windows module-definition
 * file and the calculator kvtcalc are all produced from it.
 */
#ifndef KVTCORE_H
#define KVTCORE_H

#include <stdint.h>
#ifndef __cplusplus
#include <uchar.h>
#endif

#if defined(_WIN32)
#  if defined(KVT_BUILDING)
     /* The module-definition file, generated from the catalogue, exports
        every row by its undecorated name and its ordinal. */
#    define KVT_API
#  else
#    define KVT_API __declspec(dllimport)
#  endif
#  define KVT_CALL __stdcall
#else
#  if defined(KVT_BUILDING)
#    define KVT_API __attribute__((visibility("default")))
#  else
#    define KVT_API
#  endif
#  define KVT_CALL
#endif

/*
 * Call shapes: the C signature of each kind of row.
 *   Dn   double f(n doubles)                     a property or a setting
 *   I2   int32_t f(double, double)               a state area code
 *   P2   double f(double, double, double*, double*)   two outputs, returns 1
 *   M1   double f(double, 14 x double*)          the 14 outputs by T
 *   M2   double f(double, double, 14 x double*)  the 14 outputs by two values
 *   I0   int32_t f(void)      I1  int32_t f(int32_t)
 *   C0   const char* f(void)  W0  const char16_t* f(void)   UTF-8 / UTF-16
 *   H1   double f(int32_t window)
 * The 14 outputs are, in order: v, u, s, h, cv, w, (dv/dp)T, (du/dp)T,
 * (ds/dp)T, (dh/dp)T, (dv/dT)p, (du/dT)p, (ds/dT)p, (dh/dT)p = cp.
 */
#define KVT_PTR14 double*, double*, double*, double*, double*, double*, double*, \
    double*, double*, double*, double*, double*, double*, double*
#define KVT_SHAPE_D0 double, (void)
#define KVT_SHAPE_D1 double, (double)
#define KVT_SHAPE_D2 double, (double, double)
#define KVT_SHAPE_D3 double, (double, double, double)
#define KVT_SHAPE_D4 double, (double, double, double, double)
#define KVT_SHAPE_D5 double, (double, double, double, double, double)
#define KVT_SHAPE_I2 int32_t, (double, double)
#define KVT_SHAPE_P2 double, (double, double, double*, double*)
#define KVT_SHAPE_M1 double, (double, KVT_PTR14)
#define KVT_SHAPE_M2 double, (double, double, KVT_PTR14)
#define KVT_SHAPE_I0 int32_t, (void)
#define KVT_SHAPE_I1 int32_t, (int32_t)
#define KVT_SHAPE_C0 const char*, (void)
#define KVT_SHAPE_W0 const char16_t*, (void)
#define KVT_SHAPE_H1 double, (int32_t)

/*
 * Range rules (checked while kvtSETCHECKRANGEMODE is nonzero; a failed check
 * gives error 2): None, or the rule of the family as named. The rules Getter
 * and Plain mark the settings functions whose frame differs: Getter clears
 * the error code and reads; Plain leaves the error code alone.
 */
/* X(ordinal, name, shape, rule, core, "arguments [units]: result [unit]") */
#define KVT_CATALOGUE(X) \
  /* ---- Composites by p, T ---- */ \
  /* ---- Composites by p, T, x ---- */ \
  /* ---- Composites by p, h ---- */ \
  /* ---- Composites by p, s ---- */ \
  /* ---- Composites by h, s ---- */ \
  /* ---- Expansion ---- */ \
  /* ---- Metastable steam ---- */ \
  /* ---- Saturated steam, saturated water, wet steam, dryness ---- */ \
  /* ---- State areas and boundary curves ---- */ \
  /* ---- Saturation line, transport and auxiliary curves ---- */ \
  /* Region 1 equation by p, T, without a region test */ \
  X(104, kvtV1PT, D2, None, WaterCalculator::V1PT, "p [Pa], T [K]: specific volume [m3/kg]") \
  X(105, kvtU1PT, D2, None, WaterCalculator::U1PT, "p [Pa], T [K]: internal energy [J/kg]") \
  X(106, kvtS1PT, D2, None, WaterCalculator::S1PT, "p [Pa], T [K]: entropy [J/(kg K)]") \
  X(107, kvtH1PT, D2, None, WaterCalculator::H1PT, "p [Pa], T [K]: enthalpy [J/kg]") \
  X(108, kvtCP1PT, D2, None, WaterCalculator::CP1PT, "p [Pa], T [K]: cp [J/(kg K)]") \
  X(109, kvtCV1PT, D2, None, WaterCalculator::CV1PT, "p [Pa], T [K]: cv [J/(kg K)]") \
  X(110, kvtW1PT, D2, None, WaterCalculator::W1PT, "p [Pa], T [K]: speed of sound [m/s]") \
  X(111, kvtJOULETHOMPSON1PT, D2, None, WaterCalculator::JOULETHOMPSON1PT, "p [Pa], T [K]: Joule-Thomson coefficient [K/Pa]") \
  X(112, kvtVUSHCVWDERPT1PT, M2, None, WaterCalculator::VUSHCVWDERPT1PT, "p [Pa], T [K]: the 14 outputs") \
  /* Region 2 equation by p, T, without a region test */ \
  X(113, kvtV2PT, D2, None, WaterCalculator::V2PT, "p [Pa], T [K]: specific volume [m3/kg]") \
  X(114, kvtU2PT, D2, None, WaterCalculator::U2PT, "p [Pa], T [K]: internal energy [J/kg]") \
  X(115, kvtS2PT, D2, None, WaterCalculator::S2PT, "p [Pa], T [K]: entropy [J/(kg K)]") \
  X(116, kvtH2PT, D2, None, WaterCalculator::H2PT, "p [Pa], T [K]: enthalpy [J/kg]") \
  X(117, kvtCP2PT, D2, None, WaterCalculator::CP2PT, "p [Pa], T [K]: cp [J/(kg K)]") \
  X(118, kvtCV2PT, D2, None, WaterCalculator::CV2PT, "p [Pa], T [K]: cv [J/(kg K)]") \
  X(119, kvtW2PT, D2, None, WaterCalculator::W2PT, "p [Pa], T [K]: speed of sound [m/s]") \
  X(120, kvtJOULETHOMPSON2PT, D2, None, WaterCalculator::JOULETHOMPSON2PT, "p [Pa], T [K]: Joule-Thomson coefficient [K/Pa]") \
  X(121, kvtVUSHCVWDERPT2PT, M2, None, WaterCalculator::VUSHCVWDERPT2PT, "p [Pa], T [K]: the 14 outputs") \
  /* ---- Region 1 inversions ---- */ \
  /* ---- Region 2 inversions ---- */ \
  /* ---- Region 3 ---- */ \
  /* ---- Region 3 inversions ---- */ \
  /* ---- Region 5 ---- */ \
  /* ---- Region 5 inversions ---- */ \
  /* ---- Help and about ---- */ \
  X(260, kvtSHOWKVTHELP, H1, None, Engine::SHOWKVTHELP, "owner window handle (0: the active window): 1") \
  X(261, kvtSHOWABOUT, H1, None, Engine::SHOWABOUT, "owner window handle (0: the active window): 1") \
  /* ---- Gases ---- */ \
  /* Settings, last error and constants */ \
  X(229, kvtSETTOLERANCE, D1, None, Engine::SETTOLERANCE, "relative tolerance: the value stored") \
  X(230, kvtGETTOLERANCE, D0, Getter, Engine::GETTOLERANCE, ": relative tolerance") \
  X(231, kvtSETTOLERANCEMODE, I1, None, Engine::SETTOLERANCEMODE, "mode (0 backward equations only, else refined): the value stored") \
  X(232, kvtGETTOLERANCEMODE, I0, Getter, Engine::GETTOLERANCEMODE, ": tolerance mode") \
  X(233, kvtSETCHECKRANGEMODE, I1, None, Engine::SETCHECKRANGEMODE, "mode (0 no input range checks, else checked): the value stored") \
  X(234, kvtGETCHECKRANGEMODE, I0, Getter, Engine::GETCHECKRANGEMODE, ": check-range mode") \
  X(235, kvtSETLASTERROR, I1, Plain, Engine::SETLASTERROR, "code 1..11 (anything else clears): the code stored") \
  X(236, kvtGETLASTERROR, I0, Plain, Engine::GETLASTERROR, ": code of the last failure") \
  X(237, kvtGETLASTERRORDESCRIPTION, C0, Plain, Engine::GETLASTERRORDESCRIPTION, ": text of the last error (UTF-8)") \
  X(240, kvtSETDELTATS, D1, None, Engine::RESERVED1, "ignored: reserved, always error 8") \
  X(241, kvtGETDELTATS, D0, None, Engine::RESERVED0, ": reserved, always error 8") \
  X(242, kvtSETMAXITERATION, I1, None, Engine::SETMAXITERATION, "iteration cap: the value stored") \
  X(243, kvtGETMAXITERATION, I0, Getter, Engine::GETMAXITERATION, ": iteration cap") \
  X(244, kvtSETDELTAPRESSURE, D1, None, Engine::RESERVED1, "ignored: reserved, always error 8") \
  X(245, kvtGETDELTAPRESSURE, D0, None, Engine::RESERVED0, ": reserved, always error 8") \
  X(246, kvtSETINITWATERDENSITY, D1, None, Engine::RESERVED1, "ignored: reserved, always error 8") \
  X(247, kvtGETINITWATERDENSITY, D0, None, Engine::RESERVED0, ": reserved, always error 8") \
  X(248, kvtSETINITSTEAMDENSITY, D1, None, Engine::RESERVED1, "ignored: reserved, always error 8") \
  X(249, kvtGETINITSTEAMDENSITY, D0, None, Engine::RESERVED0, ": reserved, always error 8") \
  X(250, kvtGETKVTVERSION, D0, Getter, Engine::GETKVTVERSION, ": library version, 6.0001") \
  X(299, kvtGETLASTERRORDESCRIPTIONW, W0, Plain, Engine::GETLASTERRORDESCRIPTIONW, ": text of the last error (UTF-16)") \
  X(303, kvtGETABSOLUTEGASCONSTANT, D0, Getter, Engine::GETABSOLUTEGASCONSTANT, ": molar gas constant [J/(mol K)]")

#ifdef __cplusplus
extern "C" {
#endif

#define KVT_DECLARE_(name, ret, params) KVT_API ret KVT_CALL name params;
#define KVT_DECLARE_I(name, ...) KVT_DECLARE_(name, __VA_ARGS__)
#define KVT_DECLARE(ord, name, shape, rule, core, doc) KVT_DECLARE_I(name, KVT_SHAPE_##shape)
KVT_CATALOGUE(KVT_DECLARE)

#ifdef __cplusplus
}
#endif

#endif /* KVTCORE_H */
