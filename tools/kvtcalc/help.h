// kvtcalc help NAME: a function's arguments with units, its valid range in
// numbers, the error codes it gives, and an example the library computes.
#pragma once

#include <string>

namespace kvtcalc {

int Help(const std::string& name);

}  // namespace kvtcalc
