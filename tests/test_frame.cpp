// The call frame as a host sees it: failure values and codes for every call
// shape, settings, the last error and its descriptions, the power tables.
#include <string>

#include "frame/engine.h"
#include "frame/guarded_call.h"
#include "kvt_test.h"
#include "shell/error_texts.h"

namespace {

// Test cores with the frame's shapes, to drive it from outside a real family.
struct Probe {
  static inline int32_t code = 0;
  double Raise(double, double) { kvt::raise(code); }
  double Throw(double, double) { throw std::bad_alloc(); }
  double Echo(double a, double) { return a; }
  double Pair(double a, double b, double& o1, double& o2) {
    o1 = a;
    o2 = b;
    if (code) kvt::raise(code);
    return 1.0;
  }
  double Many(double a, double, kvt::Out14& o) {
    for (int i = 0; i < 14; ++i) o[i] = a + i;
    if (code) kvt::raise(code);
    return 1.0;
  }
};

}  // namespace

namespace kvt {
Probe probe;
template <> Probe& OwnerOf<Probe>(Engine&) { return probe; }
}  // namespace kvt

namespace {

using namespace kvt_test;
using kvt::rules::None;
using Frame = Defaults;

TEST_F(Frame, FinitenessTestLooksAtTheExponentBits) {
  for (double x : {0.0, -1e308, std::numeric_limits<double>::denorm_min()}) EXPECT_TRUE(kvt::IsFinite(x));
  for (double x : {kInf, -kInf, kNaN}) EXPECT_FALSE(kvt::IsFinite(x));
}

// A raised code becomes the last error; 0 and codes above 11 leave it at 0.
// Anything else thrown is code 1, and so is a non-finite input or result.
TEST_F(Frame, FailuresBecomeTheLastError) {
  for (auto [raised, stored] : {std::pair{1, 1}, {3, 3}, {5, 5}, {11, 11}, {0, 0}, {12, 0}, {-4, 0}, {1000, 0}}) {
    Probe::code = raised;
    EXPECT_EQ((kvt::Guarded<double, None, &Probe::Raise>(1.0, 2.0)), -1.0) << raised;
    EXPECT_EQ(kvtGETLASTERROR(), stored) << raised;
  }
  Probe::code = 0;
  EXPECT_CODE((kvt::Guarded<double, None, &Probe::Throw>(1.0, 2.0)), 1);
  EXPECT_CODE((kvt::Guarded<int32_t, None, &Probe::Throw>(1.0, 2.0)), 1);
  for (double bad : {kNaN, kInf, -kInf}) {
    EXPECT_CODE((kvt::Guarded<double, None, &Probe::Echo>(bad, 0.0)), 1);
    EXPECT_CODE(kvtH1PT(bad, 300), 1);
    EXPECT_CODE(kvtH2PT(1e5, bad), 1);
  }
  EXPECT_CODE(kvtSETDELTATS(1.0), 8);
  EXPECT_CODE(kvtH1PT(3e6, 300), 0);  // a successful call clears the code
}

TEST_F(Frame, PairShapeWritesWhatItReachedAndSurvivesNullPointers) {
  double a = 0, b = 0;
  EXPECT_EQ((kvt::GuardedPair<None, &Probe::Pair, double, double>(3.0, 4.0, &a, &b)), 1.0);
  EXPECT_EQ(a, 3.0);
  EXPECT_EQ(b, 4.0);
  Probe::code = 3;
  EXPECT_CODE((kvt::GuardedPair<None, &Probe::Pair, double, double>(5.0, 6.0, &a, &b)), 3);
  EXPECT_EQ(a, 5.0);  // the last iterate stays with the caller
  Probe::code = 0;
  EXPECT_EQ((kvt::GuardedPair<None, &Probe::Pair, double, double>(5.0, 6.0, nullptr, nullptr)), 1.0);
}

TEST_F(Frame, ManyShapeWritesOnlyOnSuccess) {
  double o[14];
  double* p[14];
  for (int i = 0; i < 14; ++i) p[i] = &o[i];
  EXPECT_EQ((kvt::GuardedMany<None, &Probe::Many, double, double>(10.0, 0.0, p)), 1.0);
  EXPECT_EQ(o[13], 23.0);
  Probe::code = 3;
  EXPECT_CODE((kvt::GuardedMany<None, &Probe::Many, double, double>(20.0, 0.0, p)), 3);
  EXPECT_EQ(o[13], 23.0);
  Probe::code = 0;
  double* const none[14] = {};
  EXPECT_EQ((kvt::GuardedMany<None, &Probe::Many, double, double>(1.0, 0.0, none)), 1.0);
}

// Setters store whatever they get; NaN is stored and reported as error 1,
// and then the getter fails its finiteness test too.
TEST_F(Frame, Settings) {
  // Evaluated in order: the defaults, then each setter and its getter.
  const double reals[][2] = {{kvtGETTOLERANCE(), 2e-12}, {kvtGETKVTVERSION(), 6.0001},
                             {kvtGETABSOLUTEGASCONSTANT(), 8.31451}, {kvtSETTOLERANCE(0.0), 0.0},
                             {kvtGETTOLERANCE(), 0.0}, {kvtSETTOLERANCE(-1e-3), -1e-3}};
  const int32_t ints[][2] = {
      {kvtGETTOLERANCEMODE(), 1}, {kvtGETCHECKRANGEMODE(), 1}, {kvtGETMAXITERATION(), 100},
      {kvt::engine().calcDissMode, 0}, {kvtSETTOLERANCEMODE(7), 7}, {kvtGETTOLERANCEMODE(), 7},
      {kvtSETCHECKRANGEMODE(-2), -2}, {kvtGETCHECKRANGEMODE(), -2}, {kvtSETMAXITERATION(0), 0},
      {kvtGETMAXITERATION(), 0}, {kvtSETMAXITERATION(-5), -5}};
  for (const auto& r : reals) EXPECT_EQ(r[0], r[1]) << "real " << &r - reals;
  for (const auto& r : ints) EXPECT_EQ(r[0], r[1]) << "int " << &r - ints;
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  EXPECT_CODE(kvtSETTOLERANCE(kNaN), 1);
  EXPECT_TRUE(std::isnan(kvt::engine().tolerance));
  EXPECT_CODE(kvtGETTOLERANCE(), 1);
  EXPECT_EQ(kvtSETTOLERANCE(kInf), -1.0);
  EXPECT_EQ(kvt::engine().tolerance, kInf);
}

// Simple getters clear the code; the last-error functions leave it.
TEST_F(Frame, WhoClearsTheCode) {
  using Call = void (*)();
  for (Call get : {+[] { kvtGETTOLERANCE(); }, +[] { kvtGETKVTVERSION(); }, +[] { kvtGETMAXITERATION(); }}) {
    kvtSETDELTATS(0);
    get();
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
  kvtSETDELTATS(0);
  EXPECT_EQ(kvtGETLASTERROR(), 8);
  kvtGETLASTERRORDESCRIPTION();
  kvtGETLASTERRORDESCRIPTIONW();
  EXPECT_EQ(kvtGETLASTERROR(), 8);
  // Only the codes 1 to 11 are kept.
  for (auto [in, out] : {std::pair{11, 11}, {1, 1}, {5, 5}, {12, 0}, {0, 0}, {-1, 0}}) {
    EXPECT_EQ(kvtSETLASTERROR(in), out);
    EXPECT_EQ(kvtGETLASTERROR(), out);
  }
}

TEST_F(Frame, ReservedSettingsAlwaysFailWithEight) {
  for (auto set : {kvtSETDELTATS, kvtSETDELTAPRESSURE, kvtSETINITWATERDENSITY, kvtSETINITSTEAMDENSITY})
    EXPECT_CODE(set(123.0), 8);
  for (auto get : {kvtGETDELTATS, kvtGETDELTAPRESSURE, kvtGETINITWATERDENSITY, kvtGETINITSTEAMDENSITY})
    EXPECT_CODE(get(), 8);
  const double h = kvtH1PT(3e6, 300);
  kvtSETDELTATS(50.0);
  EXPECT_EQ(kvtH1PT(3e6, 300), h);
}

// Expected texts, byte for byte, in UTF-8 and (the same literal) in UTF-16.
#define TEXT(s) {s, u"" s}
const struct { const char* utf8; const char16_t* utf16; } kTexts[] = {
    TEXT("0. Ошибки не произошло."),
    TEXT("1. Неправильные параметры - ошибка при вычислениях с плавающей точкой."),
    TEXT("2. Аргументы функции вне области ее определения."),
    TEXT("3. Превышен лимит количества итераций."),
    TEXT("4. Неизвестная область состояния воды."),
    TEXT(""), TEXT(""), TEXT(""),
    TEXT("8. Функция в используемой версии Korvane не реализована."),
    TEXT("9. Недостаточно памяти."),
    TEXT(""),
    TEXT("11. Синтаксическая ошибка."),
};
#undef TEXT

TEST_F(Frame, Descriptions) {
  for (int32_t code = 0; code < 12; ++code) {
    kvtSETLASTERROR(code);
    EXPECT_STREQ(kvtGETLASTERRORDESCRIPTION(), kTexts[code].utf8) << code;
    const char16_t* w = kvtGETLASTERRORDESCRIPTIONW();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(std::u16string(w), kTexts[code].utf16) << code;
  }
  // The buffer is the engine's own and stays the same.
  EXPECT_EQ(kvtGETLASTERRORDESCRIPTIONW(), kvtGETLASTERRORDESCRIPTIONW());
  // Texts that do not fit are cut at a whole character: code 1 is 71
  // characters, 130 bytes in UTF-8 (Cyrillic takes two bytes).
  char small[8], odd[6], one[1];
  kvt::CopyErrorText(1, small, sizeof small);
  EXPECT_STREQ(small, "1. Не");  // 3 + 2 + 2 bytes, the next would split
  kvt::CopyErrorText(1, odd, sizeof odd);
  EXPECT_STREQ(odd, "1. Н");
  char16_t wide[4];
  kvt::CopyErrorText(1, wide, 4);
  EXPECT_EQ(std::u16string(wide), u"1. ");
  kvt::CopyErrorText(1, one, 1);
  EXPECT_EQ(one[0], 0);
}

TEST_F(Frame, PowerTableBehaviour) {
  kvt::PowerTable t(nullptr);
  t.Fill(2.0, 3);
  EXPECT_EQ(t.Power(3), 8.0);
  EXPECT_EQ(t.Power(-2), 0.25);
  t.Fill(3.0, 2);
  EXPECT_EQ(t.values[3], 8.0);  // above the last count: left from before
  t.Fill(5.0, 0);
  EXPECT_EQ(t.Power(2), 9.0);  // a count of 0 writes nothing
  t.Fill(0.0, 5);
  EXPECT_EQ(t.Power(0), 1.0);
  EXPECT_EQ(t.Power(-1), kInf);
  t.Fill(kNaN, 3);
  EXPECT_EQ(t.Power(0), 1.0);
  EXPECT_TRUE(std::isnan(t.Power(1)));
}

// Help and about outside Windows: no viewer and no dialog, only the guarded
// frame's result. A host that calls them on any system gets 1 and no error.
TEST_F(Frame, HelpAndAboutReturnOneAndClearTheErrorCode) {
  for (auto* show : {&kvtSHOWKVTHELP, &kvtSHOWABOUT})
    for (int32_t window : {0, 12345, -1}) {
      kvtSETLASTERROR(5);
      EXPECT_CODE(show(window), 0);
      EXPECT_EQ(show(window), 1.0);
    }
}

}  // namespace
