// Hostile input on the gas side: numbers at and past the ends of the
// doubles in gas texts, mixtures nested far deeper than any real one, and
// mixtures that share components through many paths. Each must give the
// designed answer, without undefined behaviour, deep recursion or
// exponential time.
#include <chrono>
#include <vector>

#include "kvt_test.h"

namespace {

double Seconds(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

// Equal numbers read the same however they are written; an amount below the
// smallest double is zero (read without complaint), one past the largest,
// alone or summed with what the mixture holds, is a number that cannot be
// read.
TEST(HostileGasText, HugeAndTinyExponents) {
  const struct { const char *text, *written; int32_t code; } cases[] = {  // written nullptr: fails
      {"N2:11e99999999999999999999", nullptr, 11},
      {"N2:1e99999999999999999999999999999999999999", nullptr, 11},
      {"N2:0.000000000000001e99999999999999999999", nullptr, 11},
      {"N2:1e-99999999999999999999", "", 0},
      {"N2:0.01e-99999999999999999999", "", 0},
      {"N2:100000000000000000000000e-99999999999999999999", "", 0},
      {"N2:1e-99999999999999999999;O2:2", "O2:1.;", 0},
      {"N2:0.01e-99999999999999999999;O2:2", "O2:1.;", 0},
      {"N2:1e308;O2:1e308", nullptr, 11},
      {"N2:1e308;O2:1", "N2:1.;O2:1.e-308;", 0},
      {"H2:1e308kg", nullptr, 11},
      {"N2:1e308;{O2:1}:1e308", nullptr, 11},
      {"N2:1e2;O2:100", "N2:0.5;O2:0.5;", 0},
      {"N2:10000000000e-8;O2:0.0001e6", "N2:0.5;O2:0.5;", 0},
  };
  for (const auto& c : cases) {
    EXPECT_STREQ(kvtgGSGS(c.text), c.written) << c.text;  // two nulls are equal here
    EXPECT_EQ(kvtGETLASTERROR(), c.code) << c.text;
  }
}

// Ids of a chain of mixtures, each holding the next by one volume part, the
// last holding N2. Made top down, so that each addition is cheap.
std::vector<int32_t> Chain(int32_t depth) {
  std::vector<int32_t> ids{kvtgNEWID()};
  for (int32_t k = 1; k < depth; ++k) {
    ids.push_back(kvtgNEWID());
    EXPECT_EQ(kvtgADDGASV(ids[k - 1], ids[k], 1), 1);
  }
  EXPECT_EQ(kvtgADDGASV(ids.back(), 0, 1), 1);
  return ids;
}

// Every walk through nested mixtures works at any depth: text, fractions,
// the cycle test of an addition and the release of a whole chain.
TEST(HostileGasNesting, DeepChainNeverExhaustsTheStack) {
  const int32_t before = kvtgGASESCOUNT();
  const std::vector<int32_t> ids = Chain(400000);
  const int32_t top = ids.front();
  EXPECT_STREQ(kvtgGSID(top), "N2:1.;");
  EXPECT_EQ(kvtgVFIDID(top, 0), 1.0);
  EXPECT_EQ(kvtgMFIDID(top, 0), -1.0);  // each level was added while empty: mass 0 / 0
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtgVFIDID(top, ids.back()), 1.0);
  EXPECT_EQ(kvtgADDGASV(ids.back(), top, 1), -1);  // a cycle through 400000 levels
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  const int32_t outer = kvtgNEWID();
  EXPECT_EQ(kvtgADDGASV(outer, top, 1), 1);
  // Inner ids first, so that the last deletion releases the whole chain.
  for (size_t k = ids.size(); k-- > 0;) kvtgDELETEGASID(ids[k]);
  EXPECT_EQ(kvtgDELETEGASID(outer), before);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// Mixture k holds mixtures k-1 and k-2: 2^depth paths, depth distinct
// components. Fractions and text cost time in the distinct components and
// give the numbers of the definition to the bit.
TEST(HostileGasNesting, SharedComponentsCostLinearTime) {
  constexpr int32_t kDepth = 70;
  std::vector<int32_t> ids{0, 1};  // N2, O2
  std::vector<double> volume{1, 0}, mass{1, 0};  // shares of N2
  for (int32_t k = 2; k < kDepth; ++k) {
    ids.push_back(kvtgNEWID());
    kvtgADDGASV(ids[k], ids[k - 1], 1);
    kvtgADDGASV(ids[k], ids[k - 2], 1);
    const double m1 = kvtgMMID(ids[k - 1]), m2 = kvtgMMID(ids[k - 2]);
    volume.push_back((volume[k - 1] + volume[k - 2]) / 2);
    mass.push_back((mass[k - 1] * m1 + mass[k - 2] * m2) / (m1 + m2));
  }
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(kvtgVFIDID(ids.back(), 0), volume.back());
  EXPECT_EQ(kvtgMFIDID(ids.back(), 0), mass.back());
  EXPECT_NE(kvtgGSID(ids.back()), nullptr);
  EXPECT_EQ(kvtgADDGASV(ids[2], ids.back(), 1), -1);  // a cycle
  EXPECT_LT(Seconds(start), 1.0);
  for (size_t k = ids.size(); k-- > 2;) kvtgDELETEGASID(ids[k]);
}

}  // namespace
