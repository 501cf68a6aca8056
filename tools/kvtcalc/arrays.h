// Many points at once, through the array interface on every core:
//   kvtcalc table NAME ARG=START:STOP:COUNT [ARG=START:STOP:COUNT] [ARG=VALUE ...]
//   kvtcalc batch NAME [FILE]
// Both write CSV: a header row of names and units, then one row per point
// with its arguments, its result(s) and the error code (0 on success; a failed
// point has empty results).
#pragma once

#include <string>
#include <vector>

#include "kvtcalc/units.h"

namespace kvtcalc {

struct ArrayOptions {
  UnitSystem units = UnitSystem::SI;
  const char* format = "%.10g";
};

int Table(const std::string& name, const std::vector<std::string>& specs, const ArrayOptions& o);
int Batch(const std::string& name, const std::string& file, const ArrayOptions& o);

}  // namespace kvtcalc
