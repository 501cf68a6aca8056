// The water calculator: every water and steam core, as members, with the two
// power tables they use as scratch and a back reference through which they
// read the engine's settings at the moment of use.
#pragma once

#include <cmath>
#include <cstdint>

#include "frame/raise.h"
#include "regions/gibbs.h"
#include "regions/power_table.h"

namespace kvt {

class Engine;

// Stop tests of the iterative solves, inclusive and strict. A NaN counts as
// inside the band: the solve ends at once and the NaN reaches the finiteness
// test of the guarded call (error 1) instead of running out of passes.
inline bool WithinBand(double x, double band) { return !(x > band || -x > band); }
inline bool BelowBand(double x, double band) { return !(x >= band || -x >= band); }

// Stop band of a two-variable solve for a target x: relative, with a floor
// for targets near zero.
inline double RelativeBand(double x, double tolerance) {
  return std::fabs(x) <= 1.0 ? 10000.0 * tolerance : std::fabs(x * tolerance);
}

class WaterCalculator {
 public:
  explicit WaterCalculator(Engine* engine);
  ~WaterCalculator();
  WaterCalculator(const WaterCalculator&) = delete;
  WaterCalculator& operator=(const WaterCalculator&) = delete;

  // ---- Region 1 by p, T ----
  double V1PT(double p, double T);
  double U1PT(double p, double T);
  double S1PT(double p, double T);
  double H1PT(double p, double T);
  double CP1PT(double p, double T);
  double CV1PT(double p, double T);
  double W1PT(double p, double T);
  double JOULETHOMPSON1PT(double p, double T);
  double VUSHCVWDERPT1PT(double p, double T, Out14& out);
  // H1PT and S1PT at TLOW and at 623.15 K, the bounds that the range rules
  // and area tests by p,h and p,s evaluate on every call: the same bits,
  // with the powers of the fixed tau read from tables formed at load.
  double H1PTLOW(double p);
  double S1PTLOW(double p);
  double H1PTR3LOW(double p);
  double S1PTR3LOW(double p);

  // ---- Region 2 by p, T ----
  double V2PT(double p, double T);
  double U2PT(double p, double T);
  double S2PT(double p, double T);
  double H2PT(double p, double T);
  double CP2PT(double p, double T);
  double CV2PT(double p, double T);
  double W2PT(double p, double T);
  double JOULETHOMPSON2PT(double p, double T);
  double VUSHCVWDERPT2PT(double p, double T, Out14& out);
  // H2PT and S2PT at TMID, likewise.
  double H2PTMID(double p);
  double S2PTMID(double p);

  // ---- Region 5 by p, T ----
  double V5PT(double p, double T);
  double U5PT(double p, double T);
  double S5PT(double p, double T);
  double H5PT(double p, double T);
  double CP5PT(double p, double T);
  double CV5PT(double p, double T);
  double W5PT(double p, double T);
  double JOULETHOMPSON5PT(double p, double T);
  double VUSHCVWDERPT5PT(double p, double T, Out14& out);

  // ---- Region 3 by density, T and by p, T ----
  double P3RT(double rho, double T);
  double U3RT(double rho, double T);
  double S3RT(double rho, double T);
  double H3RT(double rho, double T);
  double CP3RT(double rho, double T);
  double CV3RT(double rho, double T);
  double W3RT(double rho, double T);
  double JOULETHOMPSON3RT(double rho, double T);
  double VUSHCVWDERPT3RT(double rho, double T, Out14& out);
  // The density fit: which of its seven areas a state falls in, and the
  // estimated specific volume there.
  int32_t V3ESTAREA(double p, double T);
  double V3EST(double p, double T);
  double R3PTR0(double p, double T, double rho0);
  double R3PT(double p, double T);
  double V3PT(double p, double T);
  double U3PT(double p, double T);
  double S3PT(double p, double T);
  double H3PT(double p, double T);
  double CP3PT(double p, double T);
  double CV3PT(double p, double T);
  double W3PT(double p, double T);
  double JOULETHOMPSON3PT(double p, double T);
  double VUSHCVWDERPT3PT(double p, double T, Out14& out);

  // ---- Saturation line ----
  double PST(double T) const;
  double TSP(double p) const;
  double DPDTST(double T) const;
  double ROUGHRSWT(double T);
  double ROUGHRSST(double T);
  double ROUGHHSWS(double s);
  double ROUGHHSSS(double s);
  double TSATHS(double h, double s);

  // ---- Saturated phases and wet steam ----
  // Saturated water (SWT) and saturated steam (SST) by T.
  double VSWT(double T); double USWT(double T); double SSWT(double T); double HSWT(double T);
  double CPSWT(double T); double CVSWT(double T); double CVDPSWT(double T); double WSWT(double T);
  double JOULETHOMPSONSWT(double T); double THERMCONDSWT(double T); double DYNVISSWT(double T);
  double PRANDTLESWT(double T); double KINVISSWT(double T); double KSWT(double T);
  double VUSHCVWDERPTSWT(double T, Out14& out);
  double VSST(double T); double USST(double T); double SSST(double T); double HSST(double T);
  double CPSST(double T); double CVSST(double T); double CVDPSST(double T); double WSST(double T);
  double JOULETHOMPSONSST(double T); double THERMCONDSST(double T); double DYNVISSST(double T);
  double PRANDTLESST(double T); double KINVISSST(double T); double KSST(double T);
  double VUSHCVWDERPTSST(double T, Out14& out);
  double RST(double T);  // heat of vaporisation
  // Wet steam by T and dryness x.
  double VSTX(double T, double x); double USTX(double T, double x);
  double SSTX(double T, double x); double HSTX(double T, double x);
  double CPSTX(double T, double x); double CVSTX(double T, double x);
  double WSTX(double T, double x); double JOULETHOMPSONSTX(double T, double x);
  double THERMCONDSTX(double T, double x); double DYNVISSTX(double T, double x);
  double PRANDTLESTX(double T, double x); double KINVISSTX(double T, double x);
  double KSTX(double T, double x);
  // Dryness from T and the value y of a property.
  double XSTV(double T, double y); double XSTU(double T, double y);
  double XSTS(double T, double y); double XSTH(double T, double y);
  double XSTCP(double T, double y); double XSTCV(double T, double y);
  double XSTW(double T, double y); double XSTJOULETHOMPSON(double T, double y);
  double XSTTHERMCOND(double T, double y); double XSTDYNVIS(double T, double y);
  double XSTPRANDTLE(double T, double y); double XSTKINVIS(double T, double y);
  double XSTK(double T, double y);
  // T and x of a wet state from h and s.
  double TXSHS(double h, double s, double& T, double& x);
  double TSHS(double h, double s);

  // ---- Boundary curves ----
  double P23T(double T);
  double T23P(double p);
  double HB13S(double s);
  double TB23HS(double h, double s);
  double PB23HS(double h, double s);

  // ---- State areas ----
  // Area codes: 1 compressed liquid, 2 steam, 3 near-critical and
  // supercritical, 4 wet (saturated), 5 high-temperature steam.
  int32_t WATERSTATEAREA(double p, double T);
  int32_t WATERSTATEAREA2(double p, double T);
  // Phase codes: 1 liquid, 2 vapour, 3 supercritical.
  int32_t PHASESTATEPT(double p, double T);
  int32_t WATERSTATEAREAPH(double p, double h);
  int32_t WATERSTATEAREAPS(double p, double s);
  int32_t WATERSTATEAREAHS(double h, double s);

  // ---- Composites by p, T and p, T, x ----
  double VPT(double p, double T);
  double UPT(double p, double T);
  double SPT(double p, double T);
  double HPT(double p, double T);
  double CPPT(double p, double T);
  double CVPT(double p, double T);
  double WPT(double p, double T);
  double JOULETHOMPSONPT(double p, double T);
  double VUSHCVWDERPTPT(double p, double T, Out14& out);
  double THERMCONDPT(double p, double T);
  double DYNVISPT(double p, double T);
  double KINVISPT(double p, double T);
  double PRANDTLEPT(double p, double T);
  double KPT(double p, double T);
  double VPTX(double p, double T, double x);
  double UPTX(double p, double T, double x);
  double SPTX(double p, double T, double x);
  double HPTX(double p, double T, double x);
  double CPPTX(double p, double T, double x);
  double CVPTX(double p, double T, double x);
  double WPTX(double p, double T, double x);
  double JOULETHOMPSONPTX(double p, double T, double x);
  double THERMCONDPTX(double p, double T, double x);
  double DYNVISPTX(double p, double T, double x);
  double PRANDTLEPTX(double p, double T, double x);
  double KINVISPTX(double p, double T, double x);
  double KPTX(double p, double T, double x);

  // ---- Region 1, 2 and 5 inversions ----
  // Region 1: backward equations, then Newton refinement on the basic
  // equation unless toleranceMode is 0.
  double T1PHBACK(double p, double h);
  double T1PSBACK(double p, double s);
  double P1HSBACK(double h, double s);
  double T1PH(double p, double h);
  double T1PS(double p, double s);
  double P1HS(double h, double s);
  double T1HS(double h, double s);
  double PT1HS(double h, double s, double& p, double& T);
  double PT1RH(double density, double h, double& p, double& T);

  // Region 2: the sub-region backward equations, each usable by itself, and
  // the boundaries between the sub-regions.
  double T2APH(double p, double h);
  double T2BPH(double p, double h);
  double T2CPH(double p, double h);
  double T2APS(double p, double s);
  double T2BPS(double p, double s);
  double T2CPS(double p, double s);
  double P2AHSBACK(double h, double s);
  double P2BHSBACK(double h, double s);
  double P2CHSBACK(double h, double s);
  double P2B2CH(double h);
  double H2B2CP(double p);
  double H2ABS(double s);
  double T2PH(double p, double h);
  double T2PS(double p, double s);
  double P2HS(double h, double s);
  double T2HS(double h, double s);
  double PT2HS(double h, double s, double& p, double& T);
  double PT2RH(double density, double h, double& p, double& T);

  // Newton refinement in two variables behind PT1HS, PT1RH, PT2HS, PT2RH:
  // moves (p, T) in place from the start given, returns 1.0 or raises 3.
  double NEWTON1HS(double h, double s, double& p, double& T);
  double NEWTON1RH(double density, double h, double& p, double& T);
  double NEWTON2HS(double h, double s, double& p, double& T);
  double NEWTON2RH(double density, double h, double& p, double& T);
  // Region 5 has no backward equations: straight-line starts and Newton.
  double T5PH(double p, double h);
  double T5PS(double p, double s);
  double PT5HS(double h, double s, double& p, double& T);
  double P5HS(double h, double s);
  double T5HS(double h, double s);
  double PT5RH(double rho, double h, double& p, double& T);

  // ---- Region 3 inversions ----
  // The 3a / 3b split by p, h: enthalpy on the boundary line at pressure p.
  double H3AB(double p) const;
  // Backward equations of the two subregions, and the same with the
  // subregion chosen: by h against H3AB(p), or by s against the split entropy.
  double T3APHBACK(double p, double h);
  double T3BPHBACK(double p, double h);
  double V3APHBACK(double p, double h);
  double V3BPHBACK(double p, double h);
  double T3APSBACK(double p, double s);
  double T3BPSBACK(double p, double s);
  double V3APSBACK(double p, double s);
  double V3BPSBACK(double p, double s);
  double P3AHSBACK(double h, double s);
  double P3BHSBACK(double h, double s);
  double T3PHBACK(double p, double h);
  double V3PHBACK(double p, double h);
  double T3PSBACK(double p, double s);
  double V3PSBACK(double p, double s);
  double P3HSBACK(double h, double s);
  // Density and T in one call, refined unless toleranceMode is 0; result 1.
  double R3PHSOLVE(double p, double h, double& rho, double& T);
  double R3PSSOLVE(double p, double s, double& rho, double& T);
  // Newton in (density, T) for given h, s, from the caller's start values.
  void R3HSSOLVE(double h, double s, double& rho, double& T);
  double T3PH(double p, double h);
  double V3PH(double p, double h);
  double T3PS(double p, double s);
  double V3PS(double p, double s);
  double P3HS(double h, double s);
  double T3HS(double h, double s);
  double V3HS(double h, double s);
  double RT3HS(double h, double s, double& rho, double& T);
  double PT3HS(double h, double s, double& p, double& T);
  double T3RH(double rho, double h);

  // ---- Composites by p, h; p, s; h, s ----
  double TPH(double p, double h);
  double VPH(double p, double h);
  double UPH(double p, double h);
  double SPH(double p, double h);
  double CPPH(double p, double h);
  double CVPH(double p, double h);
  double WPH(double p, double h);
  double JOULETHOMPSONPH(double p, double h);
  double THERMCONDPH(double p, double h);
  double DYNVISPH(double p, double h);
  double KINVISPH(double p, double h);
  double PRANDTLEPH(double p, double h);
  double KPH(double p, double h);
  double XPH(double p, double h);
  double TPS(double p, double s);
  double VPS(double p, double s);
  double UPS(double p, double s);
  double HPS(double p, double s);
  double CPPS(double p, double s);
  double CVPS(double p, double s);
  double WPS(double p, double s);
  double JOULETHOMPSONPS(double p, double s);
  double THERMCONDPS(double p, double s);
  double DYNVISPS(double p, double s);
  double KINVISPS(double p, double s);
  double PRANDTLEPS(double p, double s);
  double KPS(double p, double s);
  double XPS(double p, double s);
  double PHS(double h, double s);
  double THS(double h, double s);
  double PTHS(double h, double s, double& p, double& T);
  double VHS(double h, double s);
  double UHS(double h, double s);
  double CPHS(double h, double s);
  double CVHS(double h, double s);
  double WHS(double h, double s);
  double JOULETHOMPSONHS(double h, double s);
  double THERMCONDHS(double h, double s);
  double DYNVISHS(double h, double s);
  double KINVISHS(double h, double s);
  double PRANDTLEHS(double h, double s);
  double KHS(double h, double s);
  double XHS(double h, double s);

  // ---- Expansion and metastable steam ----
  // The outlet enthalpy of an expansion from (p1, T1) or (p1, T1, x1) to p2
  // with an isentropic efficiency, and the outlet property by (p2, h2).
  double ExpansionH2(double p1, double T1, double p2, double eff);
  double ExpansionH2X(double p1, double T1, double x1, double p2, double eff);
  double HOUTLET(double p2, double h2);
  template <double (WaterCalculator::*Outlet)(double, double)>
  double EXPANSIONPTPEFF(double p1, double T1, double p2, double eff) {
    return (this->*Outlet)(p2, ExpansionH2(p1, T1, p2, eff));
  }
  template <double (WaterCalculator::*Outlet)(double, double)>
  double EXPANSIONPTXPEFF(double p1, double T1, double x1, double p2, double eff) {
    return (this->*Outlet)(p2, ExpansionH2X(p1, T1, x1, p2, eff));
  }
  // Metastable (subcooled) vapour by p, T.
  double VMSPT(double p, double T);
  double UMSPT(double p, double T);
  double SMSPT(double p, double T);
  double HMSPT(double p, double T);
  double CPMSPT(double p, double T);
  double CVMSPT(double p, double T);
  double WMSPT(double p, double T);
  double JOULETHOMPSONMSPT(double p, double T);
  double THERMCONDMSPT(double p, double T);
  double DYNVISMSPT(double p, double T);
  double PRANDTLEMSPT(double p, double T);
  double KINVISMSPT(double p, double T);
  double KMSPT(double p, double T);

  // ---- Transport ----
  double THERMCONDRT(double rho, double T);
  double DYNVISRT(double rho, double T);
  double SURFTENT(double T);

  PowerTable powerA;
  PowerTable powerB;
  Engine* engine;

  // A resolved state: its area, and p and T, or density and T (region 3),
  // or T and x (wet).
  struct WaterState {
    int32_t area;
    double p, T, rho, x;
  };
  enum class Prop { V, U, S, H, CP, CV, W, JT, THERMCOND, DYNVIS, KINVIS, PRANDTLE, K };
  WaterState StatePH(double p, double h);
  WaterState StatePS(double p, double s);
  WaterState StateHS(double h, double s);
  double OfState(Prop prop, const WaterState& st, bool byHS);
  double RegionValue(Prop prop, const WaterState& st);
  double Region3ByPS(double (WaterCalculator::*byPT)(double, double), Prop prop, double p,
                     double s);
  double OutletEnthalpy(double h1, double s1, double p2, double eff);
  using PTCore = double (WaterCalculator::*)(double, double);
  using RTCore = double (WaterCalculator::*)(double, double);
  using TXCore = double (WaterCalculator::*)(double, double);
  using TCore = double (WaterCalculator::*)(double);
  double V3RT(double rho, double T);

 private:
  // The core of the area that WATERSTATEAREA2 gives for (p, T).
  double ByAreaPT(PTCore r1, PTCore r2, PTCore r3, PTCore r5, double p, double T);
  // A property of one saturated phase: regions 1 and 2 up to 623.15 K, above
  // it region 3 at the density solved from the rough saturation density.
  double Saturated(bool steam, PTCore r12, RTCore r3, double T);
  double SaturatedMany(bool steam, double T, Out14& out);
  double TwoPhaseCV(bool steam, double T);
  double SaturatedThermCond(bool steam, double T);
  double SaturatedDynVis(bool steam, double T);
  // The dryness-weighted mean and its inverse over the two saturated phases.
  double Mix(TCore water, TCore steam, double T, double x);
  double Dryness(TCore water, TCore steam, double T, double y);
  // Derivatives of v along the isentrope on the water and steam side.
  void IsentropeSlopes(double T, double& A, double& B);
  void BisectWet(double h, double s, double low, double high, double& T, double& x);
  // By WATERSTATEAREA: the region's core, or the wet one in area 4.
  double ByAreaPTX(PTCore r1, PTCore r2, PTCore r3, PTCore r5, TXCore wet, double p, double T,
                   double x);
  double WetOrPT(PTCore pt, TXCore wet, double p, double T, double x);
  // The area of (p, y) with y an enthalpy or an entropy: the region 1, 2 and
  // 3 functions of that quantity and the saturated ones.
  // y1Low and y2Mid are y1 at 623.15 K and y2 at TMID.
  int32_t AreaPY(double p, double y, PTCore y1, PTCore y2, RTCore y3, TCore water, TCore steam,
                 TCore y1Low, TCore y2Mid, bool entropy);
  // Region 1 and 2 passes (regions/region1_sums.h, region2_sums.h): FillA
  // fills powerA for a fixed p, Pass refills powerB and sums; Sums and
  // Residual do both.
  template <int SA>
  void Region1FillA(double p);
  template <int SA, int SB>
  Gibbs Region1Pass(double tau);
  template <int SA, int SB>
  Gibbs Region1Sums(double p, double tau);
  template <int SA>
  void Region2FillA(double p);
  template <int SA, int SB>
  Gibbs Region2ResidualPass(double tau);
  template <int SA, int SB>
  Gibbs Region2Residual(double p, double tau);
  template <int S>
  void Region2Ideal(PowerTable& table, double tau, Gibbs& g);
  // Region 5 inversions: the crude start of (p, T) from (h, s), and the two
  // Newton solves in (p, T) on the residuals of h, s and of v, h.
  void START5HS(double h, double s, double& p, double& T);
  void NEWTON5HS(double h, double s, double& p, double& T);
  void NEWTON5RH(double rho, double h, double& p, double& T);
  template <int SA>
  void Region5Pi(double pi);
  template <int SA, int SB, int32_t countB>
  Gibbs Region5Pass(double tau, Gibbs start);
  template <int SA, int SB, int S>
  Gibbs MetastableSums(double pi, double tau);
  template <int SA, int SB, int32_t countB>
  Gibbs Region5Sums(double pi, double tau, Gibbs start);
  Gibbs Region2Full(double p, double tau);

  // Backward equation of the sub-region the state lies in.
  double T2PHBACK(double p, double h);
  double T2PSBACK(double p, double s);
  double P2HSBACK(double h, double s);
  // Start of the (h, s) group: p from backward p(h,s), then T and density
  // from the backward equations by p,h and p,s at that p.
  void RT3HSBACK(double h, double s, double& p, double& rho, double& T);
};

}  // namespace kvt

// Defined inline there, with the declarations above in sight.
#include "region3/saturation_line.h"
