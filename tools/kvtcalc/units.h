// Units on the command line: a number may carry a unit (3MPa, 30bar, 300C,
// 2800kJ/kg, 6.5kJ/kgK); a bare number is SI. Results print in SI, or in the
// engineering set (bar, degrees C, kJ/kg, kJ/(kg K)).
#pragma once

#include <string>

namespace kvtcalc {

// Reads text as a number in the SI unit `si` ("Pa", "K", "J/kg", ...). A unit
// after the number must measure the same quantity; it is converted to SI.
// On failure returns false with the reason in `error`.
bool ReadQuantity(const std::string& text, const std::string& si, double& value,
                  std::string& error);

enum class UnitSystem { SI, Engineering };

// How a value in SI unit `si` is shown: the unit's label and the conversion.
struct Display {
  std::string unit;
  double scale = 1, offset = 0;  // shown = value / scale - offset
  double Show(double si) const { return si / scale - offset; }
};
Display DisplayOf(const std::string& si, UnitSystem system);

}  // namespace kvtcalc
