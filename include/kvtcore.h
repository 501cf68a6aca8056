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
 * Gases, by id (int32_t) or by gas-spec text (const char*, e.g. "N2:0.79;O2:0.21"):
 *   GI0  double f(int32_t id)            GS0  double f(const char* gs)
 *   GI1  double f(int32_t id, double)    GS1  double f(const char* gs, double)
 *   GI2  double f(int32_t id, double, double)
 *   GS2  double f(const char* gs, double, double)
 *   FII  double f(int32_t, int32_t)      FSS  double f(const char*, const char*)
 *   AII  int32_t f(int32_t mixture, int32_t component, double amount)
 *   IS1  int32_t f(const char*)
 *   CI1  const char* f(int32_t)          CS1  const char* f(const char*)
 *   D12  double f(12 doubles)
 * The 14 outputs are, in order: v, u, s, h, cv, w, (dv/dp)T, (du/dp)T,
 * (ds/dp)T, (dh/dp)T, (dv/dT)p, (du/dT)p, (ds/dT)p, (dh/dT)p = cp.
 */
#define KVT_OUT14 double* v, double* u, double* s, double* h, double* cv, double* w, \
    double* dvdpT, double* dudpT, double* dsdpT, double* dhdpT, double* dvdTp, double* dudTp, \
    double* dsdTp, double* cp
#define KVT_SHAPE_D0() double, (void)
#define KVT_SHAPE_D1(a, ua) double, (double a)
#define KVT_SHAPE_D2(a, ua, b, ub) double, (double a, double b)
#define KVT_SHAPE_D3(a, ua, b, ub, c, uc) double, (double a, double b, double c)
#define KVT_SHAPE_D4(a, ua, b, ub, c, uc, d, ud) double, (double a, double b, double c, double d)
#define KVT_SHAPE_D5(a, ua, b, ub, c, uc, d, ud, e, ue) \
    double, (double a, double b, double c, double d, double e)
#define KVT_SHAPE_I2(a, ua, b, ub) int32_t, (double a, double b)
#define KVT_SHAPE_P2(a, ua, b, ub, c, uc, d, ud) double, (double a, double b, double* c, double* d)
#define KVT_SHAPE_M1(a, ua) double, (double a, KVT_OUT14)
#define KVT_SHAPE_M2(a, ua, b, ub) double, (double a, double b, KVT_OUT14)
#define KVT_SHAPE_I0() int32_t, (void)
#define KVT_SHAPE_I1(a, ua) int32_t, (int32_t a)
#define KVT_SHAPE_C0() const char*, (void)
#define KVT_SHAPE_W0() const char16_t*, (void)
#define KVT_SHAPE_H1(a, ua) double, (int32_t a)
#define KVT_SHAPE_GI0(a, ua) double, (int32_t a)
#define KVT_SHAPE_GI1(a, ua, b, ub) double, (int32_t a, double b)
#define KVT_SHAPE_GI2(a, ua, b, ub, c, uc) double, (int32_t a, double b, double c)
#define KVT_SHAPE_GS0(a, ua) double, (const char* a)
#define KVT_SHAPE_GS1(a, ua, b, ub) double, (const char* a, double b)
#define KVT_SHAPE_GS2(a, ua, b, ub, c, uc) double, (const char* a, double b, double c)
#define KVT_SHAPE_FII(a, ua, b, ub) double, (int32_t a, int32_t b)
#define KVT_SHAPE_FSS(a, ua, b, ub) double, (const char* a, const char* b)
#define KVT_SHAPE_AII(a, ua, b, ub, c, uc) int32_t, (int32_t a, int32_t b, double c)
#define KVT_SHAPE_IS1(a, ua) int32_t, (const char* a)
#define KVT_SHAPE_CI1(a, ua) const char*, (int32_t a)
#define KVT_SHAPE_CS1(a, ua) const char*, (const char* a)
#define KVT_SHAPE_D12(a, ua, b, ub, c, uc, d, ud, e, ue, f, uf, g, ug, h, uh, i, ui, j, uj, \
                      k, uk, l, ul) \
    double, (double a, double b, double c, double d, double e, double f, double g, double h, \
             double i, double j, double k, double l)

/*
 * Range rules (checked while kvtSETCHECKRANGEMODE is nonzero; a failed check
 * gives error 2): None, or the rule of the family as named. The rules Getter
 * and Plain mark the settings functions whose frame differs: Getter clears
 * the error code and reads; Plain leaves the error code alone. GT is the gas
 * temperature span, 200 to 2500 K, tested before the gas is looked up.
 *
 * For the gas rows the core is the operation of the gas record; the shape
 * looks the gas up by id or by text first. A gas id is one of 0 N2, 1 O2,
 * 2 CO, 3 CO2, 4 H2O, 5 SO2, 6 Air, 7 N2Air, 8 NO, 9 NO2, 10 Ar, 11 Ne, 12 H2,
 * 13 AirMix, 14 N2AirMix, or one that kvtgNEWID.. returned.
 */
/* X(ordinal, name, shape, rule, core, (argument, "unit", ...), "result [unit]")
   The arguments are named in the order of the call, each with its SI unit
   ("-" for a pure number, "" for an id, a text or a mode); a pair row (P2)
   names its two outputs after its two inputs. */
#define KVT_CATALOGUE(X) \
  /* ---- Composites by p, T ---- */ \
  X(2, kvtVUSHCVWDERPTPT, M2, PT, WaterCalculator::VUSHCVWDERPTPT, (p, "Pa", T, "K"), "the 14 outputs") \
  X(3, kvtVPT, D2, PT, WaterCalculator::VPT, (p, "Pa", T, "K"), "specific volume [m3/kg]") \
  X(4, kvtUPT, D2, PT, WaterCalculator::UPT, (p, "Pa", T, "K"), "internal energy [J/kg]") \
  X(5, kvtSPT, D2, PT, WaterCalculator::SPT, (p, "Pa", T, "K"), "entropy [J/(kg K)]") \
  X(6, kvtHPT, D2, PT, WaterCalculator::HPT, (p, "Pa", T, "K"), "enthalpy [J/kg]") \
  X(7, kvtCPPT, D2, PT, WaterCalculator::CPPT, (p, "Pa", T, "K"), "cp [J/(kg K)]") \
  X(8, kvtCVPT, D2, PT, WaterCalculator::CVPT, (p, "Pa", T, "K"), "cv [J/(kg K)]") \
  X(9, kvtWPT, D2, PT, WaterCalculator::WPT, (p, "Pa", T, "K"), "speed of sound [m/s]") \
  X(10, kvtJOULETHOMPSONPT, D2, PT, WaterCalculator::JOULETHOMPSONPT, (p, "Pa", T, "K"), "Joule-Thomson coefficient [K/Pa]") \
  X(11, kvtTHERMCONDPT, D2, PT, WaterCalculator::THERMCONDPT, (p, "Pa", T, "K"), "thermal conductivity [W/(m K)]") \
  X(12, kvtDYNVISPT, D2, PT, WaterCalculator::DYNVISPT, (p, "Pa", T, "K"), "dynamic viscosity [Pa s]") \
  X(13, kvtPRANDTLEPT, D2, PT, WaterCalculator::PRANDTLEPT, (p, "Pa", T, "K"), "Prandtl number [-]") \
  X(14, kvtKINVISPT, D2, PT, WaterCalculator::KINVISPT, (p, "Pa", T, "K"), "kinematic viscosity [m2/s]") \
  X(15, kvtKPT, D2, PT, WaterCalculator::KPT, (p, "Pa", T, "K"), "isentropic exponent [-]") \
  /* ---- Composites by p, T, x ---- */ \
  X(16, kvtVPTX, D3, PTX, WaterCalculator::VPTX, (p, "Pa", T, "K", x, "-"), "specific volume [m3/kg]") \
  X(17, kvtUPTX, D3, PTX, WaterCalculator::UPTX, (p, "Pa", T, "K", x, "-"), "internal energy [J/kg]") \
  X(18, kvtSPTX, D3, PTX, WaterCalculator::SPTX, (p, "Pa", T, "K", x, "-"), "entropy [J/(kg K)]") \
  X(19, kvtHPTX, D3, PTX, WaterCalculator::HPTX, (p, "Pa", T, "K", x, "-"), "enthalpy [J/kg]") \
  X(20, kvtCPPTX, D3, PTX, WaterCalculator::CPPTX, (p, "Pa", T, "K", x, "-"), "cp [J/(kg K)]") \
  X(21, kvtCVPTX, D3, PTX, WaterCalculator::CVPTX, (p, "Pa", T, "K", x, "-"), "cv [J/(kg K)]") \
  X(22, kvtWPTX, D3, PTX, WaterCalculator::WPTX, (p, "Pa", T, "K", x, "-"), "speed of sound [m/s]") \
  X(23, kvtJOULETHOMPSONPTX, D3, PTX, WaterCalculator::JOULETHOMPSONPTX, (p, "Pa", T, "K", x, "-"), "Joule-Thomson coefficient [K/Pa]") \
  X(24, kvtTHERMCONDPTX, D3, PTX, WaterCalculator::THERMCONDPTX, (p, "Pa", T, "K", x, "-"), "thermal conductivity [W/(m K)]") \
  X(25, kvtDYNVISPTX, D3, PTX, WaterCalculator::DYNVISPTX, (p, "Pa", T, "K", x, "-"), "dynamic viscosity [Pa s]") \
  X(26, kvtPRANDTLEPTX, D3, PTX, WaterCalculator::PRANDTLEPTX, (p, "Pa", T, "K", x, "-"), "Prandtl number [-]") \
  X(27, kvtKINVISPTX, D3, PTX, WaterCalculator::KINVISPTX, (p, "Pa", T, "K", x, "-"), "kinematic viscosity [m2/s]") \
  X(28, kvtKPTX, D3, PTX, WaterCalculator::KPTX, (p, "Pa", T, "K", x, "-"), "isentropic exponent [-]") \
  /* ---- Composites by p, h ---- */ \
  X(29, kvtTPH, D2, PH, WaterCalculator::TPH, (p, "Pa", h, "J/kg"), "temperature [K]") \
  X(31, kvtUPH, D2, PH, WaterCalculator::UPH, (p, "Pa", h, "J/kg"), "internal energy [J/kg]") \
  X(32, kvtVPH, D2, PH, WaterCalculator::VPH, (p, "Pa", h, "J/kg"), "specific volume [m3/kg]") \
  X(33, kvtSPH, D2, PH, WaterCalculator::SPH, (p, "Pa", h, "J/kg"), "entropy [J/(kg K)]") \
  X(34, kvtCPPH, D2, PH, WaterCalculator::CPPH, (p, "Pa", h, "J/kg"), "cp [J/(kg K)]") \
  X(35, kvtCVPH, D2, PH, WaterCalculator::CVPH, (p, "Pa", h, "J/kg"), "cv [J/(kg K)]") \
  X(36, kvtWPH, D2, PH, WaterCalculator::WPH, (p, "Pa", h, "J/kg"), "speed of sound [m/s]") \
  X(37, kvtJOULETHOMPSONPH, D2, PH, WaterCalculator::JOULETHOMPSONPH, (p, "Pa", h, "J/kg"), "Joule-Thomson coefficient [K/Pa]") \
  X(38, kvtDYNVISPH, D2, PH, WaterCalculator::DYNVISPH, (p, "Pa", h, "J/kg"), "dynamic viscosity [Pa s]") \
  X(39, kvtKINVISPH, D2, PH, WaterCalculator::KINVISPH, (p, "Pa", h, "J/kg"), "kinematic viscosity [m2/s]") \
  X(40, kvtPRANDTLEPH, D2, PH, WaterCalculator::PRANDTLEPH, (p, "Pa", h, "J/kg"), "Prandtl number [-]") \
  X(41, kvtKPH, D2, PH, WaterCalculator::KPH, (p, "Pa", h, "J/kg"), "isentropic exponent [-]") \
  X(42, kvtTHERMCONDPH, D2, PH, WaterCalculator::THERMCONDPH, (p, "Pa", h, "J/kg"), "thermal conductivity [W/(m K)]") \
  X(301, kvtXPH, D2, None, WaterCalculator::XPH, (p, "Pa", h, "J/kg"), "dryness x [-]") \
  /* ---- Composites by p, s ---- */ \
  X(30, kvtTPS, D2, PS, WaterCalculator::TPS, (p, "Pa", s, "J/(kg K)"), "temperature [K]") \
  X(43, kvtUPS, D2, PS, WaterCalculator::UPS, (p, "Pa", s, "J/(kg K)"), "internal energy [J/kg]") \
  X(44, kvtVPS, D2, PS, WaterCalculator::VPS, (p, "Pa", s, "J/(kg K)"), "specific volume [m3/kg]") \
  X(45, kvtHPS, D2, PS, WaterCalculator::HPS, (p, "Pa", s, "J/(kg K)"), "enthalpy [J/kg]") \
  X(46, kvtCPPS, D2, PS, WaterCalculator::CPPS, (p, "Pa", s, "J/(kg K)"), "cp [J/(kg K)]") \
  X(47, kvtCVPS, D2, PS, WaterCalculator::CVPS, (p, "Pa", s, "J/(kg K)"), "cv [J/(kg K)]") \
  X(48, kvtWPS, D2, PS, WaterCalculator::WPS, (p, "Pa", s, "J/(kg K)"), "speed of sound [m/s]") \
  X(49, kvtJOULETHOMPSONPS, D2, PS, WaterCalculator::JOULETHOMPSONPS, (p, "Pa", s, "J/(kg K)"), "Joule-Thomson coefficient [K/Pa]") \
  X(50, kvtDYNVISPS, D2, PS, WaterCalculator::DYNVISPS, (p, "Pa", s, "J/(kg K)"), "dynamic viscosity [Pa s]") \
  X(51, kvtKINVISPS, D2, PS, WaterCalculator::KINVISPS, (p, "Pa", s, "J/(kg K)"), "kinematic viscosity [m2/s]") \
  X(52, kvtPRANDTLEPS, D2, PS, WaterCalculator::PRANDTLEPS, (p, "Pa", s, "J/(kg K)"), "Prandtl number [-]") \
  X(53, kvtKPS, D2, PS, WaterCalculator::KPS, (p, "Pa", s, "J/(kg K)"), "isentropic exponent [-]") \
  X(54, kvtTHERMCONDPS, D2, PS, WaterCalculator::THERMCONDPS, (p, "Pa", s, "J/(kg K)"), "thermal conductivity [W/(m K)]") \
  X(302, kvtXPS, D2, None, WaterCalculator::XPS, (p, "Pa", s, "J/(kg K)"), "dryness x [-]") \
  /* ---- Composites by h, s ---- */ \
  X(262, kvtPHS, D2, None, WaterCalculator::PHS, (h, "J/kg", s, "J/(kg K)"), "pressure [Pa]") \
  X(263, kvtTHS, D2, None, WaterCalculator::THS, (h, "J/kg", s, "J/(kg K)"), "temperature [K]") \
  X(282, kvtVHS, D2, None, WaterCalculator::VHS, (h, "J/kg", s, "J/(kg K)"), "specific volume [m3/kg]") \
  X(283, kvtUHS, D2, None, WaterCalculator::UHS, (h, "J/kg", s, "J/(kg K)"), "internal energy [J/kg]") \
  X(284, kvtCPHS, D2, None, WaterCalculator::CPHS, (h, "J/kg", s, "J/(kg K)"), "cp [J/(kg K)]") \
  X(285, kvtCVHS, D2, None, WaterCalculator::CVHS, (h, "J/kg", s, "J/(kg K)"), "cv [J/(kg K)]") \
  X(286, kvtWHS, D2, None, WaterCalculator::WHS, (h, "J/kg", s, "J/(kg K)"), "speed of sound [m/s]") \
  X(287, kvtJOULETHOMPSONHS, D2, None, WaterCalculator::JOULETHOMPSONHS, (h, "J/kg", s, "J/(kg K)"), "Joule-Thomson coefficient [K/Pa]") \
  X(288, kvtTHERMCONDHS, D2, None, WaterCalculator::THERMCONDHS, (h, "J/kg", s, "J/(kg K)"), "thermal conductivity [W/(m K)]") \
  X(289, kvtDYNVISHS, D2, None, WaterCalculator::DYNVISHS, (h, "J/kg", s, "J/(kg K)"), "dynamic viscosity [Pa s]") \
  X(290, kvtPRANDTLEHS, D2, None, WaterCalculator::PRANDTLEHS, (h, "J/kg", s, "J/(kg K)"), "Prandtl number [-]") \
  X(291, kvtKINVISHS, D2, None, WaterCalculator::KINVISHS, (h, "J/kg", s, "J/(kg K)"), "kinematic viscosity [m2/s]") \
  X(292, kvtKHS, D2, None, WaterCalculator::KHS, (h, "J/kg", s, "J/(kg K)"), "isentropic exponent [-]") \
  X(300, kvtXHS, D2, None, WaterCalculator::XHS, (h, "J/kg", s, "J/(kg K)"), "dryness x [-]") \
  X(277, kvtPTHS, P2, None, WaterCalculator::PTHS, (h, "J/kg", s, "J/(kg K)", p, "Pa", T, "K"), "1, with the two outputs written") \
  /* ---- Expansion ---- */ \
  X(55, kvtTEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::TPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet temperature [K]") \
  X(56, kvtVEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::VPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet specific volume [m3/kg]") \
  X(57, kvtUEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::UPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet internal energy [J/kg]") \
  X(58, kvtHEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::HOUTLET>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet enthalpy [J/kg]") \
  X(59, kvtSEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::SPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet entropy [J/(kg K)]") \
  X(60, kvtCPEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::CPPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet cp [J/(kg K)]") \
  X(61, kvtCVEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::CVPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet cv [J/(kg K)]") \
  X(62, kvtWEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::WPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet speed of sound [m/s]") \
  X(63, kvtTHERMCONDEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::THERMCONDPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet thermal conductivity [W/(m K)]") \
  X(64, kvtKINVISEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::KINVISPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet kinematic viscosity [m2/s]") \
  X(65, kvtDYNVISEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::DYNVISPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet dynamic viscosity [Pa s]") \
  X(66, kvtPRANDTLEEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::PRANDTLEPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet Prandtl number [-]") \
  X(67, kvtKEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::KPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet isentropic exponent [-]") \
  X(68, kvtJOULETHOMPSONEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::JOULETHOMPSONPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet Joule-Thomson coefficient [K/Pa]") \
  X(84, kvtXEXPANSIONPTPEFF, D4, EXP, WaterCalculator::EXPANSIONPTPEFF<&WaterCalculator::XPH>, (p1, "Pa", T1, "K", p2, "Pa", efficiency, "-"), "outlet dryness x [-]") \
  X(69, kvtTEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::TPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet temperature [K]") \
  X(70, kvtVEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::VPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet specific volume [m3/kg]") \
  X(71, kvtUEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::UPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet internal energy [J/kg]") \
  X(72, kvtHEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::HOUTLET>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet enthalpy [J/kg]") \
  X(73, kvtSEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::SPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet entropy [J/(kg K)]") \
  X(74, kvtCPEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::CPPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet cp [J/(kg K)]") \
  X(75, kvtCVEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::CVPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet cv [J/(kg K)]") \
  X(76, kvtWEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::WPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet speed of sound [m/s]") \
  X(77, kvtTHERMCONDEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::THERMCONDPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet thermal conductivity [W/(m K)]") \
  X(78, kvtKINVISEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::KINVISPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet kinematic viscosity [m2/s]") \
  X(79, kvtDYNVISEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::DYNVISPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet dynamic viscosity [Pa s]") \
  X(80, kvtPRANDTLEEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::PRANDTLEPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet Prandtl number [-]") \
  X(81, kvtKEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::KPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet isentropic exponent [-]") \
  X(82, kvtJOULETHOMPSONEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::JOULETHOMPSONPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet Joule-Thomson coefficient [K/Pa]") \
  X(83, kvtXEXPANSIONPTXPEFF, D5, EXPX, WaterCalculator::EXPANSIONPTXPEFF<&WaterCalculator::XPH>, (p1, "Pa", T1, "K", x1, "-", p2, "Pa", efficiency, "-"), "outlet dryness x [-]") \
  /* ---- Metastable steam ---- */ \
  X(85, kvtVMSPT, D2, MS, WaterCalculator::VMSPT, (p, "Pa", T, "K"), "specific volume [m3/kg] of metastable steam") \
  X(86, kvtUMSPT, D2, MS, WaterCalculator::UMSPT, (p, "Pa", T, "K"), "internal energy [J/kg] of metastable steam") \
  X(87, kvtSMSPT, D2, MS, WaterCalculator::SMSPT, (p, "Pa", T, "K"), "entropy [J/(kg K)] of metastable steam") \
  X(88, kvtHMSPT, D2, MS, WaterCalculator::HMSPT, (p, "Pa", T, "K"), "enthalpy [J/kg] of metastable steam") \
  X(89, kvtCPMSPT, D2, MS, WaterCalculator::CPMSPT, (p, "Pa", T, "K"), "cp [J/(kg K)] of metastable steam") \
  X(90, kvtCVMSPT, D2, MS, WaterCalculator::CVMSPT, (p, "Pa", T, "K"), "cv [J/(kg K)] of metastable steam") \
  X(91, kvtWMSPT, D2, MS, WaterCalculator::WMSPT, (p, "Pa", T, "K"), "speed of sound [m/s] of metastable steam") \
  X(92, kvtTHERMCONDMSPT, D2, MS, WaterCalculator::THERMCONDMSPT, (p, "Pa", T, "K"), "thermal conductivity [W/(m K)] of metastable steam") \
  X(93, kvtDYNVISMSPT, D2, MS, WaterCalculator::DYNVISMSPT, (p, "Pa", T, "K"), "dynamic viscosity [Pa s] of metastable steam") \
  X(94, kvtPRANDTLEMSPT, D2, MS, WaterCalculator::PRANDTLEMSPT, (p, "Pa", T, "K"), "Prandtl number [-] of metastable steam") \
  X(95, kvtKINVISMSPT, D2, MS, WaterCalculator::KINVISMSPT, (p, "Pa", T, "K"), "kinematic viscosity [m2/s] of metastable steam") \
  X(96, kvtKMSPT, D2, MS, WaterCalculator::KMSPT, (p, "Pa", T, "K"), "isentropic exponent [-] of metastable steam") \
  X(97, kvtJOULETHOMPSONMSPT, D2, MS, WaterCalculator::JOULETHOMPSONMSPT, (p, "Pa", T, "K"), "Joule-Thomson coefficient [K/Pa] of metastable steam") \
  /* ---- Saturated steam, saturated water, wet steam, dryness ---- */ \
  X(172, kvtVSST, D1, T, WaterCalculator::VSST, (T, "K"), "specific volume [m3/kg] of saturated steam") \
  X(173, kvtVSWT, D1, T, WaterCalculator::VSWT, (T, "K"), "specific volume [m3/kg] of saturated water") \
  X(174, kvtUSST, D1, T, WaterCalculator::USST, (T, "K"), "internal energy [J/kg] of saturated steam") \
  X(175, kvtUSWT, D1, T, WaterCalculator::USWT, (T, "K"), "internal energy [J/kg] of saturated water") \
  X(176, kvtSSST, D1, T, WaterCalculator::SSST, (T, "K"), "entropy [J/(kg K)] of saturated steam") \
  X(177, kvtSSWT, D1, T, WaterCalculator::SSWT, (T, "K"), "entropy [J/(kg K)] of saturated water") \
  X(178, kvtHSST, D1, T, WaterCalculator::HSST, (T, "K"), "enthalpy [J/kg] of saturated steam") \
  X(179, kvtHSWT, D1, T, WaterCalculator::HSWT, (T, "K"), "enthalpy [J/kg] of saturated water") \
  X(180, kvtCPSST, D1, T, WaterCalculator::CPSST, (T, "K"), "cp [J/(kg K)] of saturated steam") \
  X(181, kvtCPSWT, D1, T, WaterCalculator::CPSWT, (T, "K"), "cp [J/(kg K)] of saturated water") \
  X(182, kvtCVSST, D1, T, WaterCalculator::CVSST, (T, "K"), "cv [J/(kg K)] of saturated steam") \
  X(183, kvtCVSWT, D1, T, WaterCalculator::CVSWT, (T, "K"), "cv [J/(kg K)] of saturated water") \
  X(184, kvtCVDPSST, D1, T, WaterCalculator::CVDPSST, (T, "K"), "two-phase cv [J/(kg K)] of saturated steam") \
  X(185, kvtCVDPSWT, D1, T, WaterCalculator::CVDPSWT, (T, "K"), "two-phase cv [J/(kg K)] of saturated water") \
  X(186, kvtWSST, D1, T, WaterCalculator::WSST, (T, "K"), "speed of sound [m/s] of saturated steam") \
  X(187, kvtWSWT, D1, T, WaterCalculator::WSWT, (T, "K"), "speed of sound [m/s] of saturated water") \
  X(188, kvtJOULETHOMPSONSST, D1, T, WaterCalculator::JOULETHOMPSONSST, (T, "K"), "Joule-Thomson coefficient [K/Pa] of saturated steam") \
  X(189, kvtJOULETHOMPSONSWT, D1, T, WaterCalculator::JOULETHOMPSONSWT, (T, "K"), "Joule-Thomson coefficient [K/Pa] of saturated water") \
  X(190, kvtTHERMCONDSST, D1, T, WaterCalculator::THERMCONDSST, (T, "K"), "thermal conductivity [W/(m K)] of saturated steam") \
  X(191, kvtTHERMCONDSWT, D1, T, WaterCalculator::THERMCONDSWT, (T, "K"), "thermal conductivity [W/(m K)] of saturated water") \
  X(192, kvtDYNVISSST, D1, T, WaterCalculator::DYNVISSST, (T, "K"), "dynamic viscosity [Pa s] of saturated steam") \
  X(193, kvtDYNVISSWT, D1, T, WaterCalculator::DYNVISSWT, (T, "K"), "dynamic viscosity [Pa s] of saturated water") \
  X(194, kvtPRANDTLESST, D1, T, WaterCalculator::PRANDTLESST, (T, "K"), "Prandtl number [-] of saturated steam") \
  X(195, kvtPRANDTLESWT, D1, T, WaterCalculator::PRANDTLESWT, (T, "K"), "Prandtl number [-] of saturated water") \
  X(196, kvtKINVISSST, D1, T, WaterCalculator::KINVISSST, (T, "K"), "kinematic viscosity [m2/s] of saturated steam") \
  X(197, kvtKINVISSWT, D1, T, WaterCalculator::KINVISSWT, (T, "K"), "kinematic viscosity [m2/s] of saturated water") \
  X(198, kvtKSST, D1, T, WaterCalculator::KSST, (T, "K"), "isentropic exponent [-] of saturated steam") \
  X(199, kvtKSWT, D1, T, WaterCalculator::KSWT, (T, "K"), "isentropic exponent [-] of saturated water") \
  X(200, kvtRST, D1, T, WaterCalculator::RST, (T, "K"), "heat of vaporisation [J/kg]") \
  X(201, kvtVUSHCVWDERPTSWT, M1, T, WaterCalculator::VUSHCVWDERPTSWT, (T, "K"), "the 14 outputs of saturated water") \
  X(202, kvtVUSHCVWDERPTSST, M1, T, WaterCalculator::VUSHCVWDERPTSST, (T, "K"), "the 14 outputs of saturated steam") \
  X(203, kvtVSTX, D2, TX, WaterCalculator::VSTX, (T, "K", x, "-"), "specific volume [m3/kg] of wet steam") \
  X(204, kvtUSTX, D2, TX, WaterCalculator::USTX, (T, "K", x, "-"), "internal energy [J/kg] of wet steam") \
  X(205, kvtSSTX, D2, TX, WaterCalculator::SSTX, (T, "K", x, "-"), "entropy [J/(kg K)] of wet steam") \
  X(206, kvtHSTX, D2, TX, WaterCalculator::HSTX, (T, "K", x, "-"), "enthalpy [J/kg] of wet steam") \
  X(207, kvtCPSTX, D2, TX, WaterCalculator::CPSTX, (T, "K", x, "-"), "cp [J/(kg K)] of wet steam") \
  X(208, kvtCVSTX, D2, TX, WaterCalculator::CVSTX, (T, "K", x, "-"), "cv [J/(kg K)] of wet steam") \
  X(209, kvtWSTX, D2, TX, WaterCalculator::WSTX, (T, "K", x, "-"), "speed of sound [m/s] of wet steam") \
  X(210, kvtJOULETHOMPSONSTX, D2, TX, WaterCalculator::JOULETHOMPSONSTX, (T, "K", x, "-"), "Joule-Thomson coefficient [K/Pa] of wet steam") \
  X(211, kvtTHERMCONDSTX, D2, TX, WaterCalculator::THERMCONDSTX, (T, "K", x, "-"), "thermal conductivity [W/(m K)] of wet steam") \
  X(212, kvtDYNVISSTX, D2, TX, WaterCalculator::DYNVISSTX, (T, "K", x, "-"), "dynamic viscosity [Pa s] of wet steam") \
  X(213, kvtPRANDTLESTX, D2, TX, WaterCalculator::PRANDTLESTX, (T, "K", x, "-"), "Prandtl number [-] of wet steam") \
  X(214, kvtKINVISSTX, D2, TX, WaterCalculator::KINVISSTX, (T, "K", x, "-"), "kinematic viscosity [m2/s] of wet steam") \
  X(215, kvtKSTX, D2, TX, WaterCalculator::KSTX, (T, "K", x, "-"), "isentropic exponent [-] of wet steam") \
  X(216, kvtXSTV, D2, XST, WaterCalculator::XSTV, (T, "K", v, "m3/kg"), "dryness x [-]") \
  X(217, kvtXSTU, D2, XST, WaterCalculator::XSTU, (T, "K", u, "J/kg"), "dryness x [-]") \
  X(218, kvtXSTS, D2, XST, WaterCalculator::XSTS, (T, "K", s, "J/(kg K)"), "dryness x [-]") \
  X(219, kvtXSTH, D2, XST, WaterCalculator::XSTH, (T, "K", h, "J/kg"), "dryness x [-]") \
  X(220, kvtXSTCP, D2, XST, WaterCalculator::XSTCP, (T, "K", cp, "J/(kg K)"), "dryness x [-]") \
  X(221, kvtXSTCV, D2, XST, WaterCalculator::XSTCV, (T, "K", cv, "J/(kg K)"), "dryness x [-]") \
  X(222, kvtXSTW, D2, XST, WaterCalculator::XSTW, (T, "K", w, "m/s"), "dryness x [-]") \
  X(223, kvtXSTJOULETHOMPSON, D2, XST, WaterCalculator::XSTJOULETHOMPSON, (T, "K", muJT, "K/Pa"), "dryness x [-]") \
  X(224, kvtXSTTHERMCOND, D2, XST, WaterCalculator::XSTTHERMCOND, (T, "K", lambda, "W/(m K)"), "dryness x [-]") \
  X(225, kvtXSTDYNVIS, D2, XST, WaterCalculator::XSTDYNVIS, (T, "K", eta, "Pa s"), "dryness x [-]") \
  X(226, kvtXSTKINVIS, D2, XST, WaterCalculator::XSTKINVIS, (T, "K", nu, "m2/s"), "dryness x [-]") \
  X(227, kvtXSTPRANDTLE, D2, XST, WaterCalculator::XSTPRANDTLE, (T, "K", Pr, "-"), "dryness x [-]") \
  X(228, kvtXSTK, D2, XST, WaterCalculator::XSTK, (T, "K", k, "-"), "dryness x [-]") \
  /* ---- State areas and boundary curves ---- */ \
  X(251, kvtROUGHRSST, D1, T, WaterCalculator::ROUGHRSST, (T, "K"), "rough saturated steam density [kg/m3]") \
  X(252, kvtROUGHRSWT, D1, T, WaterCalculator::ROUGHRSWT, (T, "K"), "rough saturated water density [kg/m3]") \
  X(265, kvtROUGHHSSS, D1, None, WaterCalculator::ROUGHHSSS, (s, "J/(kg K)"), "rough saturated steam enthalpy [J/kg]") \
  X(266, kvtROUGHHSWS, D1, None, WaterCalculator::ROUGHHSWS, (s, "J/(kg K)"), "rough saturated water enthalpy [J/kg]") \
  X(167, kvtWATERSTATEAREAPH, I2, None, WaterCalculator::WATERSTATEAREAPH, (p, "Pa", h, "J/kg"), "area 1..5") \
  X(168, kvtWATERSTATEAREAPS, I2, None, WaterCalculator::WATERSTATEAREAPS, (p, "Pa", s, "J/(kg K)"), "area 1..5") \
  X(264, kvtWATERSTATEAREAHS, I2, None, WaterCalculator::WATERSTATEAREAHS, (h, "J/kg", s, "J/(kg K)"), "area 1..5") \
  X(271, kvtTSHS, D2, None, WaterCalculator::TSHS, (h, "J/kg", s, "J/(kg K)"), "temperature of a wet state [K]") \
  X(297, kvtTXSHS, P2, None, WaterCalculator::TXSHS, (h, "J/kg", s, "J/(kg K)", T, "K", x, "-"), "1, with the two outputs written") \
  X(100, kvtWATERSTATEAREA, I2, PT, WaterCalculator::WATERSTATEAREA, (p, "Pa", T, "K"), "area 1..5 (4 wet within the tolerance band)") \
  X(101, kvtWATERSTATEAREA2, I2, PT, WaterCalculator::WATERSTATEAREA2, (p, "Pa", T, "K"), "area 1, 2, 3 or 5") \
  X(253, kvtPHASESTATEPT, I2, None, WaterCalculator::PHASESTATEPT, (p, "Pa", T, "K"), "phase 1 liquid, 2 vapour, 3 supercritical") \
  /* ---- Saturation line, transport and auxiliary curves ---- */ \
  X(169, kvtPST, D1, T, WaterCalculator::PST, (T, "K"), "saturation pressure [Pa]") \
  X(170, kvtDPDTST, D1, T, WaterCalculator::DPDTST, (T, "K"), "slope of the saturation line dp/dT [Pa/K]") \
  X(171, kvtTSP, D1, P, WaterCalculator::TSP, (p, "Pa"), "saturation temperature [K]") \
  X(98, kvtP23T, D1, None, WaterCalculator::P23T, (T, "K"), "pressure on the region 2/3 boundary [Pa]") \
  X(99, kvtT23P, D1, None, WaterCalculator::T23P, (p, "Pa"), "temperature on the region 2/3 boundary [K]") \
  X(268, kvtTB23HS, D2, None, WaterCalculator::TB23HS, (h, "J/kg", s, "J/(kg K)"), "temperature near the region 2/3 boundary [K]") \
  X(269, kvtPB23HS, D2, None, WaterCalculator::PB23HS, (h, "J/kg", s, "J/(kg K)"), "pressure near the region 2/3 boundary [Pa]") \
  X(270, kvtHB13S, D1, None, WaterCalculator::HB13S, (s, "J/(kg K)"), "enthalpy on the region 1/3 boundary [J/kg]") \
  /* ---- Saturation line, transport and auxiliary curves ---- */ \
  X(1, kvtSURFTENT, D1, T, WaterCalculator::SURFTENT, (T, "K"), "surface tension [N/m]") \
  X(102, kvtTHERMCONDRT, D2, None, WaterCalculator::THERMCONDRT, (rho, "kg/m3", T, "K"), "thermal conductivity [W/(m K)]") \
  X(103, kvtDYNVISRT, D2, None, WaterCalculator::DYNVISRT, (rho, "kg/m3", T, "K"), "dynamic viscosity [Pa s]") \
  X(304, kvtPSUBT, D1, None, IceCalculator::PSUBT, (T, "K"), "sublimation pressure of ice Ih [Pa]") \
  X(305, kvtPMELTIT, D1, None, IceCalculator::PMELTIT, (T, "K"), "melting pressure of ice Ih [Pa]") \
  /* Region 1 equation by p, T, without a region test */ \
  X(104, kvtV1PT, D2, None, WaterCalculator::V1PT, (p, "Pa", T, "K"), "specific volume [m3/kg]") \
  X(105, kvtU1PT, D2, None, WaterCalculator::U1PT, (p, "Pa", T, "K"), "internal energy [J/kg]") \
  X(106, kvtS1PT, D2, None, WaterCalculator::S1PT, (p, "Pa", T, "K"), "entropy [J/(kg K)]") \
  X(107, kvtH1PT, D2, None, WaterCalculator::H1PT, (p, "Pa", T, "K"), "enthalpy [J/kg]") \
  X(108, kvtCP1PT, D2, None, WaterCalculator::CP1PT, (p, "Pa", T, "K"), "cp [J/(kg K)]") \
  X(109, kvtCV1PT, D2, None, WaterCalculator::CV1PT, (p, "Pa", T, "K"), "cv [J/(kg K)]") \
  X(110, kvtW1PT, D2, None, WaterCalculator::W1PT, (p, "Pa", T, "K"), "speed of sound [m/s]") \
  X(111, kvtJOULETHOMPSON1PT, D2, None, WaterCalculator::JOULETHOMPSON1PT, (p, "Pa", T, "K"), "Joule-Thomson coefficient [K/Pa]") \
  X(112, kvtVUSHCVWDERPT1PT, M2, None, WaterCalculator::VUSHCVWDERPT1PT, (p, "Pa", T, "K"), "the 14 outputs") \
  /* Region 2 equation by p, T, without a region test */ \
  X(113, kvtV2PT, D2, None, WaterCalculator::V2PT, (p, "Pa", T, "K"), "specific volume [m3/kg]") \
  X(114, kvtU2PT, D2, None, WaterCalculator::U2PT, (p, "Pa", T, "K"), "internal energy [J/kg]") \
  X(115, kvtS2PT, D2, None, WaterCalculator::S2PT, (p, "Pa", T, "K"), "entropy [J/(kg K)]") \
  X(116, kvtH2PT, D2, None, WaterCalculator::H2PT, (p, "Pa", T, "K"), "enthalpy [J/kg]") \
  X(117, kvtCP2PT, D2, None, WaterCalculator::CP2PT, (p, "Pa", T, "K"), "cp [J/(kg K)]") \
  X(118, kvtCV2PT, D2, None, WaterCalculator::CV2PT, (p, "Pa", T, "K"), "cv [J/(kg K)]") \
  X(119, kvtW2PT, D2, None, WaterCalculator::W2PT, (p, "Pa", T, "K"), "speed of sound [m/s]") \
  X(120, kvtJOULETHOMPSON2PT, D2, None, WaterCalculator::JOULETHOMPSON2PT, (p, "Pa", T, "K"), "Joule-Thomson coefficient [K/Pa]") \
  X(121, kvtVUSHCVWDERPT2PT, M2, None, WaterCalculator::VUSHCVWDERPT2PT, (p, "Pa", T, "K"), "the 14 outputs") \
  /* ---- Region 1 inversions ---- */ \
  X(151, kvtT1PH, D2, None, WaterCalculator::T1PH, (p, "Pa", h, "J/kg"), "temperature in region 1 [K]") \
  X(152, kvtT1PS, D2, None, WaterCalculator::T1PS, (p, "Pa", s, "J/(kg K)"), "temperature in region 1 [K]") \
  X(254, kvtP1HS, D2, None, WaterCalculator::P1HS, (h, "J/kg", s, "J/(kg K)"), "pressure in region 1 [Pa]") \
  X(255, kvtT1HS, D2, None, WaterCalculator::T1HS, (h, "J/kg", s, "J/(kg K)"), "temperature in region 1 [K]") \
  X(274, kvtPT1HS, P2, None, WaterCalculator::PT1HS, (h, "J/kg", s, "J/(kg K)", p, "Pa", T, "K"), "1, with the two outputs written") \
  X(294, kvtPT1RH, P2, None, WaterCalculator::PT1RH, (rho, "kg/m3", h, "J/kg", p, "Pa", T, "K"), "1, with the two outputs written") \
  /* ---- Region 2 inversions ---- */ \
  X(153, kvtT2APH, D2, None, WaterCalculator::T2APH, (p, "Pa", h, "J/kg"), "temperature by the 2a backward equation [K]") \
  X(154, kvtT2APS, D2, None, WaterCalculator::T2APS, (p, "Pa", s, "J/(kg K)"), "temperature by the 2a backward equation [K]") \
  X(155, kvtT2BPH, D2, None, WaterCalculator::T2BPH, (p, "Pa", h, "J/kg"), "temperature by the 2b backward equation [K]") \
  X(156, kvtT2BPS, D2, None, WaterCalculator::T2BPS, (p, "Pa", s, "J/(kg K)"), "temperature by the 2b backward equation [K]") \
  X(157, kvtT2CPH, D2, None, WaterCalculator::T2CPH, (p, "Pa", h, "J/kg"), "temperature by the 2c backward equation [K]") \
  X(158, kvtT2CPS, D2, None, WaterCalculator::T2CPS, (p, "Pa", s, "J/(kg K)"), "temperature by the 2c backward equation [K]") \
  X(159, kvtT2PH, D2, None, WaterCalculator::T2PH, (p, "Pa", h, "J/kg"), "temperature in region 2 [K]") \
  X(160, kvtT2PS, D2, None, WaterCalculator::T2PS, (p, "Pa", s, "J/(kg K)"), "temperature in region 2 [K]") \
  X(165, kvtP2B2CH, D1, None, WaterCalculator::P2B2CH, (h, "J/kg"), "pressure on the 2b/2c boundary [Pa]") \
  X(166, kvtH2B2CP, D1, None, WaterCalculator::H2B2CP, (p, "Pa"), "enthalpy on the 2b/2c boundary [J/kg]") \
  X(256, kvtP2HS, D2, None, WaterCalculator::P2HS, (h, "J/kg", s, "J/(kg K)"), "pressure in region 2 [Pa]") \
  X(257, kvtT2HS, D2, None, WaterCalculator::T2HS, (h, "J/kg", s, "J/(kg K)"), "temperature in region 2 [K]") \
  X(275, kvtPT2HS, P2, None, WaterCalculator::PT2HS, (h, "J/kg", s, "J/(kg K)", p, "Pa", T, "K"), "1, with the two outputs written") \
  X(295, kvtPT2RH, P2, None, WaterCalculator::PT2RH, (rho, "kg/m3", h, "J/kg", p, "Pa", T, "K"), "1, with the two outputs written") \
  /* ---- Region 3 ---- */ \
  /* Region 3 equation by density, T, and by p, T through the density solve */ \
  X(122, kvtP3RT, D2, None, WaterCalculator::P3RT, (rho, "kg/m3", T, "K"), "pressure [Pa]") \
  X(123, kvtR3PTR0, D3, None, WaterCalculator::R3PTR0, (p, "Pa", T, "K", rhoStart, "kg/m3"), "density [kg/m3]") \
  X(124, kvtR3PT, D2, None, WaterCalculator::R3PT, (p, "Pa", T, "K"), "density [kg/m3]") \
  X(125, kvtU3RT, D2, None, WaterCalculator::U3RT, (rho, "kg/m3", T, "K"), "internal energy [J/kg]") \
  X(126, kvtS3RT, D2, None, WaterCalculator::S3RT, (rho, "kg/m3", T, "K"), "entropy [J/(kg K)]") \
  X(127, kvtH3RT, D2, None, WaterCalculator::H3RT, (rho, "kg/m3", T, "K"), "enthalpy [J/kg]") \
  X(128, kvtCP3RT, D2, None, WaterCalculator::CP3RT, (rho, "kg/m3", T, "K"), "cp [J/(kg K)]") \
  X(129, kvtCV3RT, D2, None, WaterCalculator::CV3RT, (rho, "kg/m3", T, "K"), "cv [J/(kg K)]") \
  X(130, kvtW3RT, D2, None, WaterCalculator::W3RT, (rho, "kg/m3", T, "K"), "speed of sound [m/s]") \
  X(131, kvtVUSHCVWDERPT3RT, M2, None, WaterCalculator::VUSHCVWDERPT3RT, (rho, "kg/m3", T, "K"), "the 14 outputs") \
  X(132, kvtV3PT, D2, None, WaterCalculator::V3PT, (p, "Pa", T, "K"), "specific volume [m3/kg]") \
  X(133, kvtU3PT, D2, None, WaterCalculator::U3PT, (p, "Pa", T, "K"), "internal energy [J/kg]") \
  X(134, kvtS3PT, D2, None, WaterCalculator::S3PT, (p, "Pa", T, "K"), "entropy [J/(kg K)]") \
  X(135, kvtH3PT, D2, None, WaterCalculator::H3PT, (p, "Pa", T, "K"), "enthalpy [J/kg]") \
  X(136, kvtCP3PT, D2, None, WaterCalculator::CP3PT, (p, "Pa", T, "K"), "cp [J/(kg K)]") \
  X(137, kvtCV3PT, D2, None, WaterCalculator::CV3PT, (p, "Pa", T, "K"), "cv [J/(kg K)]") \
  X(138, kvtW3PT, D2, None, WaterCalculator::W3PT, (p, "Pa", T, "K"), "speed of sound [m/s]") \
  X(139, kvtJOULETHOMPSON3RT, D2, None, WaterCalculator::JOULETHOMPSON3RT, (rho, "kg/m3", T, "K"), "Joule-Thomson coefficient [K/Pa]") \
  X(140, kvtJOULETHOMPSON3PT, D2, None, WaterCalculator::JOULETHOMPSON3PT, (p, "Pa", T, "K"), "Joule-Thomson coefficient [K/Pa]") \
  X(141, kvtVUSHCVWDERPT3PT, M2, None, WaterCalculator::VUSHCVWDERPT3PT, (p, "Pa", T, "K"), "the 14 outputs") \
  /* ---- Region 3 inversions ---- */ \
  X(161, kvtT3PH, D2, None, WaterCalculator::T3PH, (p, "Pa", h, "J/kg"), "temperature [K]") \
  X(162, kvtT3PS, D2, None, WaterCalculator::T3PS, (p, "Pa", s, "J/(kg K)"), "temperature [K]") \
  X(258, kvtP3HS, D2, None, WaterCalculator::P3HS, (h, "J/kg", s, "J/(kg K)"), "pressure [Pa]") \
  X(259, kvtT3HS, D2, None, WaterCalculator::T3HS, (h, "J/kg", s, "J/(kg K)"), "temperature [K]") \
  X(267, kvtV3HS, D2, None, WaterCalculator::V3HS, (h, "J/kg", s, "J/(kg K)"), "specific volume [m3/kg]") \
  X(278, kvtV3PH, D2, None, WaterCalculator::V3PH, (p, "Pa", h, "J/kg"), "specific volume [m3/kg]") \
  X(279, kvtV3PS, D2, None, WaterCalculator::V3PS, (p, "Pa", s, "J/(kg K)"), "specific volume [m3/kg]") \
  X(280, kvtRT3HS, P2, None, WaterCalculator::RT3HS, (h, "J/kg", s, "J/(kg K)", rho, "kg/m3", T, "K"), "1, with the two outputs written") \
  X(281, kvtPT3HS, P2, None, WaterCalculator::PT3HS, (h, "J/kg", s, "J/(kg K)", p, "Pa", T, "K"), "1, with the two outputs written") \
  X(293, kvtT3RH, D2, None, WaterCalculator::T3RH, (rho, "kg/m3", h, "J/kg"), "temperature [K]") \
  /* ---- Region 5 ---- */ \
  X(142, kvtV5PT, D2, None, WaterCalculator::V5PT, (p, "Pa", T, "K"), "specific volume [m3/kg]") \
  X(143, kvtU5PT, D2, None, WaterCalculator::U5PT, (p, "Pa", T, "K"), "internal energy [J/kg]") \
  X(144, kvtS5PT, D2, None, WaterCalculator::S5PT, (p, "Pa", T, "K"), "entropy [J/(kg K)]") \
  X(145, kvtH5PT, D2, None, WaterCalculator::H5PT, (p, "Pa", T, "K"), "enthalpy [J/kg]") \
  X(146, kvtCP5PT, D2, None, WaterCalculator::CP5PT, (p, "Pa", T, "K"), "cp [J/(kg K)]") \
  X(147, kvtCV5PT, D2, None, WaterCalculator::CV5PT, (p, "Pa", T, "K"), "cv [J/(kg K)]") \
  X(148, kvtW5PT, D2, None, WaterCalculator::W5PT, (p, "Pa", T, "K"), "speed of sound [m/s]") \
  X(149, kvtJOULETHOMPSON5PT, D2, None, WaterCalculator::JOULETHOMPSON5PT, (p, "Pa", T, "K"), "Joule-Thomson coefficient [K/Pa]") \
  X(150, kvtVUSHCVWDERPT5PT, M2, None, WaterCalculator::VUSHCVWDERPT5PT, (p, "Pa", T, "K"), "the 14 outputs") \
  /* ---- Region 5 inversions ---- */ \
  X(163, kvtT5PH, D2, None, WaterCalculator::T5PH, (p, "Pa", h, "J/kg"), "temperature [K]") \
  X(164, kvtT5PS, D2, None, WaterCalculator::T5PS, (p, "Pa", s, "J/(kg K)"), "temperature [K]") \
  X(272, kvtP5HS, D2, None, WaterCalculator::P5HS, (h, "J/kg", s, "J/(kg K)"), "pressure [Pa]") \
  X(273, kvtT5HS, D2, None, WaterCalculator::T5HS, (h, "J/kg", s, "J/(kg K)"), "temperature [K]") \
  X(276, kvtPT5HS, P2, None, WaterCalculator::PT5HS, (h, "J/kg", s, "J/(kg K)", p, "Pa", T, "K"), "1, with the two outputs written") \
  X(296, kvtPT5RH, P2, None, WaterCalculator::PT5RH, (rho, "kg/m3", h, "J/kg", p, "Pa", T, "K"), "1, with the two outputs written") \
  /* ---- Help and about ---- */ \
  X(260, kvtSHOWKVTHELP, H1, None, Engine::SHOWKVTHELP, (window, ""), "1") \
  X(261, kvtSHOWABOUT, H1, None, Engine::SHOWABOUT, (window, ""), "1") \
  /* ---- Gases ---- */ \
  X(306, kvtgSETCALCDISSMODE, I1, None, GasEngine::SETCALCDISSMODE, (mode, ""), "reserved, always error 8") \
  X(307, kvtgGETCALCDISSMODE, I0, None, GasEngine::GETCALCDISSMODE, (), "dissociation mode, always 0 (none computed)") \
  X(400, kvtgCPIDT, GI1, GT, GasRecord::Cp, (id, "", T, "K"), "cp [J/(kg K)]") \
  X(401, kvtgCPGST, GS1, GT, GasRecord::Cp, (gs, "", T, "K"), "cp [J/(kg K)]") \
  X(402, kvtgHIDT, GI1, GT, GasRecord::H, (id, "", T, "K"), "enthalpy [J/kg]") \
  X(403, kvtgHGST, GS1, GT, GasRecord::H, (gs, "", T, "K"), "enthalpy [J/kg]") \
  X(404, kvtgSIDT, GI1, GT, GasRecord::S0, (id, "", T, "K"), "entropy at 100000 Pa [J/(kg K)]") \
  X(405, kvtgSGST, GS1, GT, GasRecord::S0, (gs, "", T, "K"), "entropy at 100000 Pa [J/(kg K)]") \
  X(406, kvtgSIDPT, GI2, GT, GasRecord::S, (id, "", p, "Pa", T, "K"), "entropy [J/(kg K)]") \
  X(407, kvtgSGSPT, GS2, GT, GasRecord::S, (gs, "", p, "Pa", T, "K"), "entropy [J/(kg K)]") \
  X(408, kvtgCVIDT, GI1, GT, GasRecord::Cv, (id, "", T, "K"), "cv [J/(kg K)]") \
  X(409, kvtgCVGST, GS1, GT, GasRecord::Cv, (gs, "", T, "K"), "cv [J/(kg K)]") \
  X(410, kvtgUIDT, GI1, GT, GasRecord::U, (id, "", T, "K"), "internal energy [J/kg]") \
  X(411, kvtgUGST, GS1, GT, GasRecord::U, (gs, "", T, "K"), "internal energy [J/kg]") \
  X(412, kvtgMMID, GI0, None, GasRecord::MolarMass, (id, ""), "molar mass [kg/mol]") \
  X(413, kvtgMMGS, GS0, None, GasRecord::MolarMass, (gs, ""), "molar mass [kg/mol]") \
  X(414, kvtgGCID, GI0, None, GasRecord::GasConstant, (id, ""), "gas constant [J/(kg K)]") \
  X(415, kvtgGCGS, GS0, None, GasRecord::GasConstant, (gs, ""), "gas constant [J/(kg K)]") \
  X(416, kvtgVIDT, GI1, GT, GasRecord::V0, (id, "", T, "K"), "specific volume at 100000 Pa [m3/kg]") \
  X(417, kvtgVGST, GS1, GT, GasRecord::V0, (gs, "", T, "K"), "specific volume at 100000 Pa [m3/kg]") \
  X(418, kvtgVIDPT, GI2, GT, GasRecord::V, (id, "", p, "Pa", T, "K"), "specific volume [m3/kg]") \
  X(419, kvtgVGSPT, GS2, GT, GasRecord::V, (gs, "", p, "Pa", T, "K"), "specific volume [m3/kg]") \
  X(420, kvtgTIDH, GI1, None, GasRecord::TFromH, (id, "", h, "J/kg"), "temperature [K]") \
  X(421, kvtgTGSH, GS1, None, GasRecord::TFromH, (gs, "", h, "J/kg"), "temperature [K]") \
  X(422, kvtgTIDS, GI1, None, GasRecord::TFromS, (id, "", s, "J/(kg K)"), "temperature at 100000 Pa [K]") \
  X(423, kvtgTGSS, GS1, None, GasRecord::TFromS, (gs, "", s, "J/(kg K)"), "temperature at 100000 Pa [K]") \
  X(424, kvtgTIDPS, GI2, None, GasRecord::TFromPS, (id, "", p, "Pa", s, "J/(kg K)"), "temperature [K]") \
  X(425, kvtgTGSPS, GS2, None, GasRecord::TFromPS, (gs, "", p, "Pa", s, "J/(kg K)"), "temperature [K]") \
  X(426, kvtgPIDTS, GI2, None, GasRecord::PFromTS, (id, "", T, "K", s, "J/(kg K)"), "pressure [Pa]") \
  X(427, kvtgPGSTS, GS2, None, GasRecord::PFromTS, (gs, "", T, "K", s, "J/(kg K)"), "pressure [Pa]") \
  X(430, kvtgVFGSGS, FSS, None, GasRecord::VolumeFractionOf, (mixture, "", component, ""), "volume fraction of the second in the first") \
  X(431, kvtgMFGSGS, FSS, None, GasRecord::MassFractionOf, (mixture, "", component, ""), "mass fraction of the second in the first") \
  X(432, kvtgVFIDID, FII, None, GasRecord::VolumeFractionOf, (mixture, "", component, ""), "volume fraction of the second in the first") \
  X(433, kvtgMFIDID, FII, None, GasRecord::MassFractionOf, (mixture, "", component, ""), "mass fraction of the second in the first") \
  X(434, kvtgIDNAME, IS1, None, GasEngine::IdOfName, (name, ""), "gas id") \
  X(435, kvtgNEWID, I0, None, GasEngine::NewGas, (), "id of a new empty gas") \
  X(436, kvtgNEWIDNAME, IS1, None, GasEngine::NewNamedGas, (name, ""), "id of a new empty gas of that name") \
  X(437, kvtgNEWIDGS, IS1, None, GasEngine::NewGasFromSpec, (gs, ""), "id of the gas registered for the text") \
  X(438, kvtgDELETEGASID, I1, None, GasEngine::DeleteGas, (id, ""), "number of gases left") \
  X(439, kvtgDELETEGASES, I0, None, GasEngine::DeleteGases, (), "number of gases left, 13") \
  X(440, kvtgGASESCOUNT, I0, None, GasEngine::GasesCount, (), "number of registered gases") \
  X(441, kvtgADDGASM, AII, None, GasRecord::AddByMass, (mixture, "", component, "", mass, "kg"), "number of components") \
  X(442, kvtgADDGASV, AII, None, GasRecord::AddByVolume, (mixture, "", component, "", parts, "-"), "number of components") \
  X(443, kvtgGSID, CI1, None, GasEngine::GSID, (id, ""), "gas spec text") \
  X(444, kvtgGSGS, CS1, None, GasEngine::GSGS, (gs, ""), "canonical gas spec text") \
  X(445, kvtgGETGASDATA, D12, None, GasEngine::GETGASDATA, (a1, "", a2, "", a3, "", a4, "", a5, "", a6, "", a7, "", a8, "", a9, "", a10, "", a11, "", a12, ""), "reserved, always -1 with no error") \
  /* Settings, last error and constants */ \
  X(229, kvtSETTOLERANCE, D1, None, Engine::SETTOLERANCE, (tolerance, "-"), "the value stored") \
  X(230, kvtGETTOLERANCE, D0, Getter, Engine::GETTOLERANCE, (), "relative tolerance") \
  X(231, kvtSETTOLERANCEMODE, I1, None, Engine::SETTOLERANCEMODE, (mode, ""), "the value stored; mode 0: backward equations only, else refined") \
  X(232, kvtGETTOLERANCEMODE, I0, Getter, Engine::GETTOLERANCEMODE, (), "tolerance mode") \
  X(233, kvtSETCHECKRANGEMODE, I1, None, Engine::SETCHECKRANGEMODE, (mode, ""), "the value stored; mode 0: no input range checks, else checked") \
  X(234, kvtGETCHECKRANGEMODE, I0, Getter, Engine::GETCHECKRANGEMODE, (), "check-range mode") \
  X(235, kvtSETLASTERROR, I1, Plain, Engine::SETLASTERROR, (code, ""), "the code stored") \
  X(236, kvtGETLASTERROR, I0, Plain, Engine::GETLASTERROR, (), "code of the last failure") \
  X(237, kvtGETLASTERRORDESCRIPTION, C0, Plain, Engine::GETLASTERRORDESCRIPTION, (), "text of the last error (UTF-8)") \
  X(240, kvtSETDELTATS, D1, None, Engine::RESERVED1, (ignored, ""), "reserved, always error 8") \
  X(241, kvtGETDELTATS, D0, None, Engine::RESERVED0, (), "reserved, always error 8") \
  X(242, kvtSETMAXITERATION, I1, None, Engine::SETMAXITERATION, (maxIteration, ""), "the value stored") \
  X(243, kvtGETMAXITERATION, I0, Getter, Engine::GETMAXITERATION, (), "iteration cap") \
  X(244, kvtSETDELTAPRESSURE, D1, None, Engine::RESERVED1, (ignored, ""), "reserved, always error 8") \
  X(245, kvtGETDELTAPRESSURE, D0, None, Engine::RESERVED0, (), "reserved, always error 8") \
  X(246, kvtSETINITWATERDENSITY, D1, None, Engine::RESERVED1, (ignored, ""), "reserved, always error 8") \
  X(247, kvtGETINITWATERDENSITY, D0, None, Engine::RESERVED0, (), "reserved, always error 8") \
  X(248, kvtSETINITSTEAMDENSITY, D1, None, Engine::RESERVED1, (ignored, ""), "reserved, always error 8") \
  X(249, kvtGETINITSTEAMDENSITY, D0, None, Engine::RESERVED0, (), "reserved, always error 8") \
  X(250, kvtGETKVTVERSION, D0, Getter, Engine::GETKVTVERSION, (), "library version, 6.0001") \
  X(299, kvtGETLASTERRORDESCRIPTIONW, W0, Plain, Engine::GETLASTERRORDESCRIPTIONW, (), "text of the last error (UTF-16)") \
  X(303, kvtGETABSOLUTEGASCONSTANT, D0, Getter, Engine::GETABSOLUTEGASCONSTANT, (), "molar gas constant [J/(mol K)]")

#ifdef __cplusplus
extern "C" {
#endif

#define KVT_DECLARE_(name, ret, params) KVT_API ret KVT_CALL name params;
#define KVT_DECLARE_I(name, ...) KVT_DECLARE_(name, __VA_ARGS__)
#define KVT_DECLARE(ord, name, shape, rule, core, args, result) \
  KVT_DECLARE_I(name, KVT_SHAPE_##shape args)
KVT_CATALOGUE(KVT_DECLARE)

#ifdef __cplusplus
}
#endif

#endif /* KVTCORE_H */
