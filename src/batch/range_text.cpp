// kvtRangeText: the valid range of each range rule, in words and numbers.
// The texts are the Text() of the rules in frame/ranges.h, written from the
// very constants the checks compare with, so they cannot drift apart.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "frame/ranges.h"
#include "kvtcore_batch.h"

namespace kvt {

std::string BoundText(double value) {
  // Whole numbers in full (100000000, not 1e+08); others in the shortest
  // form that reads back as the same double.
  char text[40];
  if (value == static_cast<double>(static_cast<long long>(value)) && std::fabs(value) < 1e15) {
    std::snprintf(text, sizeof text, "%.0f", value);
    return text;
  }
  for (int digits = 1; digits <= 17; ++digits) {
    std::snprintf(text, sizeof text, "%.*g", digits, value);
    if (std::strtod(text, nullptr) == value) break;
  }
  return text;
}

namespace {

struct RangeText {
  const char* rule;
  std::string text;
};

const RangeText* Texts() {
  static const RangeText texts[] = {
      {"PT", rules::PT::Text()},     {"PTX", rules::PTX::Text()},
      {"T", rules::T::Text()},       {"P", rules::P::Text()},
      {"TX", rules::TX::Text()},     {"XST", rules::XST::Text()},
      {"PH", rules::PH::Text()},     {"PS", rules::PS::Text()},
      {"EXP", rules::EXP::Text()},   {"EXPX", rules::EXPX::Text()},
      {"MS", rules::MS::Text()},     {"GT", rules::GT::Text()},
      {"None", rules::None::Text()}, {"Getter", rules::Getter::Text()},
      {"Plain", rules::Plain::Text()}, {nullptr, {}}};
  return texts;
}

}  // namespace
}  // namespace kvt

extern "C" const char* kvtRangeText(const char* rule) {
  if (!rule) return nullptr;
  try {
    for (const kvt::RangeText* t = kvt::Texts(); t->rule; ++t)
      if (std::strcmp(t->rule, rule) == 0) return t->text.c_str();
  } catch (...) {  // memory ran out while the texts were first made
  }
  return nullptr;
}
