// The call frame as a host sees it: failure values and codes for every call
// shape, settings, the last error and its descriptions, the power tables.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "frame/engine.h"
#include "frame/guarded_call.h"
#include "shell/error_texts.h"
#include "kvtcore.h"

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

// Restores the default settings after each test.
class Frame : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
    kvtSETLASTERROR(0);
  }
};

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

using kvt::Guarded;
using kvt::GuardedMany;
using kvt::GuardedPair;
using kvt::rules::None;

TEST_F(Frame, FinitenessTestLooksAtTheExponentBits) {
  EXPECT_TRUE(kvt::IsFinite(0.0));
  EXPECT_TRUE(kvt::IsFinite(-1e308));
  EXPECT_TRUE(kvt::IsFinite(std::numeric_limits<double>::denorm_min()));
  EXPECT_FALSE(kvt::IsFinite(kInf));
  EXPECT_FALSE(kvt::IsFinite(-kInf));
  EXPECT_FALSE(kvt::IsFinite(kNaN));
}

TEST_F(Frame, RaisedCodesBecomeTheLastError) {
  // code raised -> stored code; 0 and codes above 11 leave the register at 0.
  const struct { int32_t raised, stored; } cases[] = {
      {1, 1}, {3, 3}, {5, 5}, {11, 11}, {0, 0}, {12, 0}, {-4, 0}, {1000, 0}};
  for (auto c : cases) {
    Probe::code = c.raised;
    EXPECT_EQ((Guarded<double, None, &Probe::Raise>(1.0, 2.0)), -1.0) << c.raised;
    EXPECT_EQ(kvtGETLASTERROR(), c.stored) << c.raised;
  }
  Probe::code = 0;
}

TEST_F(Frame, AnyOtherFailureIsCodeOne) {
  EXPECT_EQ((Guarded<double, None, &Probe::Throw>(1.0, 2.0)), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ((Guarded<int32_t, None, &Probe::Throw>(1.0, 2.0)), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST_F(Frame, NonFiniteResultsAndInputsGiveErrorOne) {
  for (double bad : {kNaN, kInf, -kInf}) {
    EXPECT_EQ((Guarded<double, None, &Probe::Echo>(bad, 0.0)), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 1);
    EXPECT_EQ(kvtH1PT(bad, 300), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 1);
    EXPECT_EQ(kvtH2PT(1e5, bad), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 1);
  }
}

TEST_F(Frame, ASuccessfulCallClearsTheCode) {
  EXPECT_EQ(kvtSETDELTATS(1.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 8);
  EXPECT_GT(kvtH1PT(3e6, 300), 0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

TEST_F(Frame, PairShapeWritesWhatItReachedAndSurvivesNullPointers) {
  double a = 0, b = 0;
  Probe::code = 0;
  EXPECT_EQ((GuardedPair<None, &Probe::Pair, double, double>(3.0, 4.0, &a, &b)), 1.0);
  EXPECT_EQ(a, 3.0);
  EXPECT_EQ(b, 4.0);
  Probe::code = 3;
  EXPECT_EQ((GuardedPair<None, &Probe::Pair, double, double>(5.0, 6.0, &a, &b)), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  EXPECT_EQ(a, 5.0);  // the last iterate stays with the caller
  Probe::code = 0;
  EXPECT_EQ((GuardedPair<None, &Probe::Pair, double, double>(5.0, 6.0, nullptr, nullptr)), 1.0);
}

TEST_F(Frame, ManyShapeWritesOnlyOnSuccess) {
  double o[14];
  double* const p[14] = {&o[0], &o[1], &o[2],  &o[3],  &o[4],  &o[5],  &o[6],
                         &o[7], &o[8], &o[9], &o[10], &o[11], &o[12], &o[13]};
  Probe::code = 0;
  EXPECT_EQ((GuardedMany<None, &Probe::Many, double, double>(10.0, 0.0, p)), 1.0);
  EXPECT_EQ(o[13], 23.0);
  Probe::code = 3;
  EXPECT_EQ((GuardedMany<None, &Probe::Many, double, double>(20.0, 0.0, p)), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  EXPECT_EQ(o[13], 23.0);
  Probe::code = 0;
  double* const none[14] = {};
  EXPECT_EQ((GuardedMany<None, &Probe::Many, double, double>(1.0, 0.0, none)), 1.0);
}

TEST_F(Frame, SettersStoreWhateverTheyGet) {
  EXPECT_EQ(kvtSETTOLERANCE(0.0), 0.0);
  EXPECT_EQ(kvtGETTOLERANCE(), 0.0);
  EXPECT_EQ(kvtSETTOLERANCE(-1e-3), -1e-3);
  EXPECT_EQ(kvtSETTOLERANCEMODE(7), 7);
  EXPECT_EQ(kvtGETTOLERANCEMODE(), 7);
  EXPECT_EQ(kvtSETCHECKRANGEMODE(-2), -2);
  EXPECT_EQ(kvtGETCHECKRANGEMODE(), -2);
  EXPECT_EQ(kvtSETMAXITERATION(0), 0);
  EXPECT_EQ(kvtGETMAXITERATION(), 0);
  EXPECT_EQ(kvtSETMAXITERATION(-5), -5);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

TEST_F(Frame, NaNToleranceIsStoredAndReportedAsErrorOne) {
  EXPECT_EQ(kvtSETTOLERANCE(kNaN), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_TRUE(std::isnan(kvt::engine().tolerance));
  // The getter now fails the finiteness test too.
  EXPECT_EQ(kvtGETTOLERANCE(), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtSETTOLERANCE(kInf), -1.0);
  EXPECT_EQ(kvt::engine().tolerance, kInf);
}

TEST_F(Frame, DefaultsAndConstants) {
  EXPECT_EQ(kvtGETTOLERANCE(), 2e-12);
  EXPECT_EQ(kvtGETTOLERANCEMODE(), 1);
  EXPECT_EQ(kvtGETCHECKRANGEMODE(), 1);
  EXPECT_EQ(kvtGETMAXITERATION(), 100);
  EXPECT_EQ(kvtGETKVTVERSION(), 6.0001);
  EXPECT_EQ(kvtGETABSOLUTEGASCONSTANT(), 8.31451);
  EXPECT_EQ(kvt::engine().calcDissMode, 0);
}

TEST_F(Frame, SimpleGettersClearTheCodeTheLastErrorFunctionsDoNot) {
  const auto fail = [] { kvtSETDELTATS(0); };
  fail();
  kvtGETTOLERANCE();
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  fail();
  kvtGETKVTVERSION();
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  fail();
  kvtGETMAXITERATION();
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  fail();
  EXPECT_EQ(kvtGETLASTERROR(), 8);
  EXPECT_EQ(kvtGETLASTERROR(), 8);
  kvtGETLASTERRORDESCRIPTION();
  kvtGETLASTERRORDESCRIPTIONW();
  EXPECT_EQ(kvtGETLASTERROR(), 8);
}

TEST_F(Frame, SetLastErrorKeepsOnlyTheCodesOneToEleven) {
  const struct { int32_t in, out; } cases[] = {{11, 11}, {1, 1}, {5, 5}, {12, 0}, {0, 0}, {-1, 0}};
  for (auto c : cases) {
    EXPECT_EQ(kvtSETLASTERROR(c.in), c.out);
    EXPECT_EQ(kvtGETLASTERROR(), c.out);
  }
}

TEST_F(Frame, ReservedSettingsAlwaysFailWithEight) {
  double (*const setters[])(double) = {kvtSETDELTATS, kvtSETDELTAPRESSURE,
                                        kvtSETINITWATERDENSITY, kvtSETINITSTEAMDENSITY};
  double (*const getters[])() = {kvtGETDELTATS, kvtGETDELTAPRESSURE, kvtGETINITWATERDENSITY,
                                 kvtGETINITSTEAMDENSITY};
  for (auto set : setters) {
    EXPECT_EQ(set(123.0), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 8);
  }
  for (auto get : getters) {
    EXPECT_EQ(get(), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 8);
  }
  const double h = kvtH1PT(3e6, 300);
  kvtSETDELTATS(50.0);
  EXPECT_EQ(kvtH1PT(3e6, 300), h);
}

// Expected texts, byte for byte, in UTF-8.
const struct { int32_t code; const char* text; } kTexts[] = {
    {0, "0. Ошибки не произошло."},
    {1, "1. Неправильные параметры - ошибка при вычислениях с плавающей точкой."},
    {2, "2. Аргументы функции вне области ее определения."},
    {3, "3. Превышен лимит количества итераций."},
    {4, "4. Неизвестная область состояния воды."},
    {5, ""},
    {6, ""},
    {7, ""},
    {8, "8. Функция в используемой версии Korvane не реализована."},
    {9, "9. Недостаточно памяти."},
    {10, ""},
    {11, "11. Синтаксическая ошибка."},
};

TEST_F(Frame, DescriptionsInUtf8) {
  for (auto t : kTexts) {
    kvtSETLASTERROR(t.code);
    EXPECT_STREQ(kvtGETLASTERRORDESCRIPTION(), t.text) << t.code;
  }
}

TEST_F(Frame, DescriptionsInUtf16) {
  const std::u16string expected[] = {
      u"0. Ошибки не произошло.",
      u"1. Неправильные параметры - ошибка при вычислениях с плавающей точкой.",
      u"2. Аргументы функции вне области ее определения.",
      u"3. Превышен лимит количества итераций.",
      u"4. Неизвестная область состояния воды.",
      u"", u"", u"",
      u"8. Функция в используемой версии Korvane не реализована.",
      u"9. Недостаточно памяти.",
      u"",
      u"11. Синтаксическая ошибка."};
  for (int32_t code = 0; code < 12; ++code) {
    kvtSETLASTERROR(code);
    const char16_t* w = kvtGETLASTERRORDESCRIPTIONW();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(std::u16string(w), expected[code]) << code;
  }
  // The buffer is the engine's own and stays the same.
  EXPECT_EQ(kvtGETLASTERRORDESCRIPTIONW(), kvtGETLASTERRORDESCRIPTIONW());
}

TEST_F(Frame, TextsThatDoNotFitAreCutAtAWholeCharacter) {
  // Code 1 is 71 characters, 130 bytes in UTF-8 (Cyrillic takes two bytes).
  char small[8];
  kvt::CopyErrorText(1, small, sizeof small);
  EXPECT_STREQ(small, "1. Не");  // 3 + 2 + 2 bytes, the next would split
  char odd[6];
  kvt::CopyErrorText(1, odd, sizeof odd);
  EXPECT_STREQ(odd, "1. Н");
  char16_t wide[4];
  kvt::CopyErrorText(1, wide, 4);
  EXPECT_EQ(std::u16string(wide), u"1. ");
  char one[1];
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

}  // namespace
