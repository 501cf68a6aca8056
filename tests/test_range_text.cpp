// kvtRangeText: every rule of the catalogue has a text, and the numbers of the
// texts are the bounds the checks apply: a call on each bound passes and one a
// step beyond it fails with code 2.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "kvtcore.h"
#include "kvtcore_batch.h"

namespace {

std::vector<double> NumbersIn(const std::string& text) {
  std::vector<double> numbers;
  for (const char* c = text.c_str(); *c; ++c) {
    if (std::isdigit(static_cast<unsigned char>(*c)) == 0) continue;
    char* end = nullptr;
    numbers.push_back(std::strtod(c, &end));
    c = end - 1;
  }
  return numbers;
}

#define KVT_RULE_NAME(ord, name, shape, rule, core, args, result) #rule,

TEST(RangeText, EveryRuleOfTheCatalogueHasOne) {
  for (const char* rule : {KVT_CATALOGUE(KVT_RULE_NAME)}) EXPECT_NE(kvtRangeText(rule), nullptr) << rule;
  EXPECT_EQ(kvtRangeText("Nonsense"), nullptr);
  EXPECT_EQ(kvtRangeText(nullptr), nullptr);
}

struct Bounds {
  const char* rule;
  double (*call)(double);  // one argument varied, the others in range
  int low, high;           // indexes of its bounds among the text's numbers
};

const Bounds kBounds[] = {
    {"PT", [](double T) { return kvtVPT(1e6, T); }, 0, 1},
    {"PT", [](double p) { return kvtVPT(p, 500); }, 2, 3},
    {"T", [](double T) { return kvtPST(T); }, 0, 1},
    {"P", [](double p) { return kvtTSP(p); }, 0, 1},
    {"TX", [](double x) { return kvtHSTX(400, x); }, 2, 3},
    {"GT", [](double T) { return kvtgCPIDT(0, T); }, 0, 1},
};

TEST(RangeText, NumbersAreTheBoundsTheChecksApply) {
  for (const Bounds& b : kBounds) {
    const std::vector<double> n = NumbersIn(kvtRangeText(b.rule));
    ASSERT_GT(n.size(), static_cast<size_t>(b.high)) << b.rule;
    for (double edge : {n[b.low], n[b.high]}) {
      b.call(edge);
      EXPECT_EQ(kvtGETLASTERROR(), 0) << b.rule << " at " << edge;
    }
    b.call(std::nextafter(n[b.low], -INFINITY));
    EXPECT_EQ(kvtGETLASTERROR(), 2) << b.rule << " below " << n[b.low];
    b.call(std::nextafter(n[b.high], INFINITY));
    EXPECT_EQ(kvtGETLASTERROR(), 2) << b.rule << " above " << n[b.high];
  }
}

}  // namespace
