// Region 3 by pressure and temperature: the equation gives p from density, so
// density is found by a closed-form estimate of specific volume, refined by a
// Newton iteration on the forward pressure.
#include <cmath>

#include "frame/engine.h"
#include "regions/constants.h"
#include "region3/region3_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {

constexpr double RHOC = 322.0;
constexpr double TC = 647.096;
constexpr double PC = 22064000.0;
// The split line through the near-critical fits, p = PC + K (T - TC); it
// reaches 24 MPa at T1 and 40 MPa at T2.
constexpr double K = 268248.402312516;
constexpr double T1 = 654.313191168;
constexpr double T2 = 713.959399168;
constexpr double P24 = 24.0 * 1000000.0;
constexpr double P40 = 40.0 * 1000000.0;

// The fits of areas 1 to 6 are written in roots of a scaled distance Q from
// the critical point; a negative Q gives negative roots.
struct Roots {
  double a, b, c;
};

Roots SignedRoots(double Q) {
  const double sg = Q < 0 ? -1.0 : 1.0;
  const double r2 = std::sqrt(std::fabs(Q));
  const double r4 = std::sqrt(r2);
  const double r8 = std::sqrt(r4);
  return {sg * r2, sg * r4, sg * r8};
}

// Area 7, above 40 MPa: a plain polynomial in reduced p and T.
double HighPressureFit(double p, double T) {
  const double x = p / 1000000.0 * 0.009708737864077669 - 1.0;
  const double y = T * 0.0016666666666666668 - 1.0;
  const double x2 = x * x, x4 = x2 * x2;
  const double y2 = y * y, y3 = y2 * y, y4 = y2 * y2, y6 = y4 * y2;
  const double w = y2 * x2;
  return x * ((((((((((((-183657231751508992.0 * w + 11950283625768800.0) * w -
                        281900719117892.0) * w + 2783392577409.6) * w - 9156698413.1259) *
                      x4 * x4 + 11416042249924.4 * y6 * y6) * y6 * x2 + 197.974246206705) *
                    x4 - 320317.604761443 * y6) * y4 * x2 + 654.223452156635 * y6) * x2 * x -
                  0.000168658389645091) * x2 +
                 ((30.7310678953686 * y4 - 0.687909934564732) * y3 - 0.00503420527214133) * y) *
                    x + 0.474944869074855 * y4 * y) * x -
               0.00960082399513164 * y2 - 0.000185955960512067) +
         ((-0.0254795720214314 * y3 + 0.010336719420718) * y2 + 0.00130245527248376) * y +
         0.00125537070183712;
}

// Areas 1 to 6, around the critical point, as departures from 1 / 322.
double NearCriticalFit(int32_t area, double p, double T) {
  const double dp = (p - 22064000.0) / 1000000.0;
  const double dT = T - 647.096;
  const double dp2 = dp * dp, dp4 = dp2 * dp2, dp5 = dp4 * dp;
  const double dT2 = dT * dT, dT3 = dT2 * dT, dT4 = dT2 * dT2;
  double Q = 0, e = 0;
  switch (area) {
    case 1: {
      Q = (0.05 * dp + 3.727888) * dp - (1 - 0.05 * dT) * dT;
      const auto [a, b, c] = SignedRoots(Q);
      e = dT * ((((((-2.51644090693395e-12 * a * dT - 3.83218936572771e-9) * c * a * dT -
                    0.000161628813019544) * c + 0.000617493752916276) * c -
                  0.000797144480049465) * c + 0.000348351238844209) * dT +
                ((((-0.00490643103428227 * c + 0.0263271308078056) * c - 0.0564778221803544) *
                      c + 0.0608359392259313) * c - 0.0332156380721166) * c +
                0.0074887444872508) +
          ((((-4.55907876060086e-5 * a + 0.00153431224177324) * b - 0.0106812857513379) * c +
            0.0172887471616688) * c - 0.00876842774061156) * a -
          0.000118427102787648 * c;
      break;
    }
    case 2: {
      Q = (0.02 * dp + 3.727888) * dp - (1 - 0.02 * dT) * dT;
      const auto [a, b, c] = SignedRoots(Q);
      (void)a;
      e = ((((((((((((-2.39512088942747e-10 * dT2 + 4.54845318075243e-8) * dp4 -
                     1.36017045350123e-6) * dT2 * dp2 + 0.00634557820845727) * dT -
                   0.0291792573898258 * dp + 0.0134876477124427) * b -
                  9.38937201479048e-7 * dT2 * dp4 * dp - 0.00762583183784896 * dT) * b +
                 (3.75831122504734e-5 * dT2 + 0.000125685384163741 * dp) * dp2) * b +
                0.00195041855369227) * c - 0.0278468126229603 * dT * dp) * c +
              0.013939165722125 * dT) * c + 0.0427529172119353 * dT2 +
             0.299546836134716 * dp2 - 0.0760561375637742 * dp - 0.00194570794816001) * c -
            0.119057019174713 * dT2) * c +
           (((3.95174104863528e-8 * dT2 * dp - 0.000141140213612559) * dT +
             0.122945704230431) * dT + 5.94938907295817e-5 * dp4) * dT -
           0.585398228522495 * dp2 + 0.0178357790645547 * dp) * c +
          (0.00135336193587336 * dp - 0.0487687959756292) * dT2 + 0.413013399556249 * dp2;
      break;
    }
    case 3: {
      Q = (0.2 * dp - 3.727888) * dp + (0.02 * dT + 1) * dT;
      const auto [a, b, c] = SignedRoots(Q);
      (void)a;
      e = ((((((((((-6.60478916724586e-7 * dT - 1.1941903809545e-6 * dp) * dp2 +
                   (-4.19492118766324e-12 * dT + 5.80172883857322e-10) * dT4) * b -
                  1.63238458626065e-7 * dT3 + 0.0122241653100711) * dT -
                 0.0113782324304171) * b - 0.00223745526548978 * dp2) * b -
               0.0769927079971342 * dT - 0.0247039860992736 * dp) * c +
              0.0753543651141502 * dT) * b +
             (-0.00212663865441498 * dp - 0.335234582911578) * dp2 +
             (0.0165284534427183 * dT - 0.0294106550573793) * dp -
             0.0152017319222412 * dT2 + 0.00218460997189951) * c +
            (1.04163340234817e-7 * dT4 + 1.22116000890535) * dp2 -
            5.26750160303121e-5 * dT3 * dp) * c +
           (5.09486478795057e-7 * dT - 1.74690467895005e-5) * dT4 +
           0.0305426466180436 * dT2 - 1.4370899198291 * dp2) * c +
          ((0.000424198281757227 * dp2 + 0.487932009131791) * dp +
           0.000105510662596481 * dT3 - 0.00470815410341398) * dp +
          1.14144924756274e-5 * dT4 + 0.000219075237766159 * dT3 - 0.0151226672652382 * dT2;
      break;
    }
    case 4: {
      Q = (0.5 * dp - 3.727888) * dp + (0.01 * dT + 1) * dT;
      const auto [a, b, c] = SignedRoots(Q);
      (void)a;
      e = (((((-0.0185997001981635 * c + 0.118639803204261) * c - 0.303433314767063) * c +
             0.389907326497054) * c - 0.252680942664202) * c +
           ((2.56374705633001e-11 * dT2 - 3.92289014485859e-7) * c + 5.71985898251817e-7) *
               dT2 + 0.0664933791260178) * dT +
          (((((0.0785791469799311 * c - 0.496046407723234) * c + 1.25833184484538) * c -
             1.60832918484839) * c + 1.04023037508896) * c - 0.274711031859796) * dp +
          ((-7.92816174523651e-5 * c + 0.000713823865906627) * c + 0.000643907516287541) * b;
      break;
    }
    case 5: {
      Q = (0.02 * dp + 3.727888) * dp + (0.005 * dT - 1) * dT;
      const auto [a, b, c] = SignedRoots(Q);
      (void)a;
      e = ((((((((((-1.55995837253683e-16 * dT * dp5 + 2.87671539256386e-6) * dT * dp +
                   1.02650393925122e-8 * dp4 - 9.58920650759504e-5 * dp2 -
                   0.00607043036830454) * b +
                  ((1.2453606765958e-13 * dT3 + 2.52719052207758e-12 * dp4) * dT +
                   1.3349192675752e-13 * dp5 * dp + 0.000303625591962761) * dT -
                  0.00550701260682904 * dp) * b +
                 (((-3.56918730340587e-10 * dp2 + 1.91456960283807e-7) * dT +
                   4.88412051812406e-8 * dp2 - 4.3128288517517e-6 * dp) * dT +
                  2.25545818343096e-5 * dp2 + 0.0007664258159241 * dp +
                  0.0127931680641201) * dp + 0.0396910783770869) * b +
                ((7.59164825488741e-8 * dp2 + 2.60485012629641e-5) * dT -
                 1.69209023050985e-10 * dp5 - 0.000370031971083042 * dp -
                 0.00313609300142694) * dT - 0.00721941889977446) * c +
               (2.00848495263495e-8 * dT - 5.38255397523665e-7) * dp4) * c +
              (3.91792707971363e-14 * dT3 - 8.13610292866497e-10 * dT -
               1.94260348835721e-7) * dT3 - 5.19162117274822e-8 * dp5) * c +
             (-8.1713295796082e-14 * dT * dp2 * dp - 1.20527379090314e-11 * dT2 +
              3.2272667481884e-7) * dT3 - 2.89296115834392e-8 * dT * dp4) * c -
            4.18986486825425e-12 * dT2 * dp5 + 0.00356911241995526 * dp) * c +
           0.00018715253091771 * dT2) * c +
          (-8.77499173794533e-21 * dT2 * dT2 * dp5 - 0.000335916193888413) * dT2 +
          0.0301448430808593 * dT - 0.112702460700323 * dp;
      break;
    }
    default: {
      Q = (0.1 * dp - 3.727888) * dp + (0.002 * dT + 1) * dT;
      const auto [a, b, c] = SignedRoots(Q);
      (void)c;
      const double ab = a * b;
      e = ((((-2.59174703895765e-16 * Q * dp2 + 5.25013249033141e-10) * a * dT -
             5.87768799763869e-8 * ab + 2.52360667718127e-7) * dT +
            (2.62763491213355e-6 * ab - 3.57933830043717e-5) * b + 3.7978195570912e-5) * dT +
           ((((1.84266268449228e-11 * b * dp2 * dp - 6.35909964040088e-5) * a +
              0.000439053317238974) * b - 0.000245865969502991) * b -
            0.000407113420864393) * b + 3.29890852403526e-5) * dT +
          ((0.000785448130272979 * b - 1.15529419916092e-7 * dp2 - 0.00214747822942469) * a +
           0.00321621088787326) * ab;
      break;
    }
  }
  return e + VCRIT;
}

}  // namespace

// First match wins; bounds belong to the area named first. A state exactly
// on the saturation line counts as steam (area 4).
int32_t WaterCalculator::V3ESTAREA(double p, double T) {
  const double pl = PC + K * (T - TC);
  if (p >= P40) return 7;
  if (p >= P24) {
    if (T < T1) return 5;
    if (T > T2) return 6;
    return p <= pl ? 6 : 5;
  }
  if (p > PC) {
    if (T <= TC) return 1;
    if (T >= T1) return 3;
    return p <= pl ? 3 : 2;
  }
  if (T > TC) return 4;
  return PST(T) < p ? 1 : 4;
}

double WaterCalculator::V3EST(double p, double T) {
  const int32_t area = V3ESTAREA(p, T);
  return area == 7 ? HighPressureFit(p, T) : NearCriticalFit(area, p, T);
}

// Newton on density at fixed T. The stop band is on the pressure residual;
// the pass limit is tested before it, so reaching the limit is a failure even
// when the last residual was good enough.
double WaterCalculator::R3PTR0(double p, double T, double rho0) {
  using namespace region3;
  const double tau = TC / T;
  const double threshold = p * engine->tolerance;
  int64_t pass = 0;  // wider than any cap: cannot overflow
  double rho = rho0;
  for (;;) {
    const double delta = rho / RHOC;
    ++pass;
    powerA.Fill<10>(delta);
    powerB.Fill<26>(tau);
    // phi_d and delta phi_dd from the same term values.
    double D1 = N1 / delta, D2 = -N1 / delta;
    ForEachIndex<39>([&](auto k) {
      constexpr int32_t i = I[k];
      const double t = N[k] * powerA.Power<i - 1>() * powerB.Power<J[k]>();
      D1 += i * t;
      D2 += (i - 1) * i * t;
    });
    const double f = RGAS * D1 * delta * rho * T - p;
    rho = rho - f / ((2 * D1 + D2) * RGAS * delta * T);
    if (pass >= engine->maxIteration) raise(3);
    if (std::fabs(f) <= threshold) return rho;
  }
}

double WaterCalculator::R3PT(double p, double T) {
  const double rho = 1.0 / V3EST(p, T);
  if (engine->toleranceMode == 0) return rho;
  return R3PTR0(p, T, rho);
}

double WaterCalculator::V3PT(double p, double T) { return 1.0 / R3PT(p, T); }
double WaterCalculator::U3PT(double p, double T) { return U3RT(R3PT(p, T), T); }
double WaterCalculator::S3PT(double p, double T) { return S3RT(R3PT(p, T), T); }
double WaterCalculator::H3PT(double p, double T) { return H3RT(R3PT(p, T), T); }
double WaterCalculator::CP3PT(double p, double T) { return CP3RT(R3PT(p, T), T); }
double WaterCalculator::CV3PT(double p, double T) { return CV3RT(R3PT(p, T), T); }
double WaterCalculator::W3PT(double p, double T) { return W3RT(R3PT(p, T), T); }
double WaterCalculator::JOULETHOMPSON3PT(double p, double T) {
  return JOULETHOMPSON3RT(R3PT(p, T), T);
}
double WaterCalculator::VUSHCVWDERPT3PT(double p, double T, Out14& out) {
  return VUSHCVWDERPT3RT(R3PT(p, T), T, out);
}

}  // namespace kvt
