#include "kvtcalc/units.h"

#include <cmath>
#include <cstdlib>

namespace kvtcalc {
namespace {

// A unit that may follow a number: its spelling, the SI unit of its quantity,
// and value_SI = value * factor + offset.
struct Unit {
  const char* text;
  const char* si;
  double factor, offset;
};

const Unit kUnits[] = {
    {"Pa", "Pa", 1, 0},          {"kPa", "Pa", 1e3, 0},         {"MPa", "Pa", 1e6, 0},
    {"GPa", "Pa", 1e9, 0},       {"bar", "Pa", 1e5, 0},         {"mbar", "Pa", 1e2, 0},
    {"atm", "Pa", 101325, 0},    {"K", "K", 1, 0},              {"C", "K", 1, 273.15},
    {"degC", "K", 1, 273.15},    {"\xC2\xB0" "C", "K", 1, 273.15},
    {"J/kg", "J/kg", 1, 0},      {"kJ/kg", "J/kg", 1e3, 0},     {"MJ/kg", "J/kg", 1e6, 0},
    {"J/kgK", "J/(kg K)", 1, 0}, {"J/(kg K)", "J/(kg K)", 1, 0}, {"J/(kgK)", "J/(kg K)", 1, 0},
    {"kJ/kgK", "J/(kg K)", 1e3, 0}, {"kJ/(kg K)", "J/(kg K)", 1e3, 0},
    {"kJ/(kgK)", "J/(kg K)", 1e3, 0}, {"kg/m3", "kg/m3", 1, 0}, {"g/cm3", "kg/m3", 1e3, 0},
    {"m3/kg", "m3/kg", 1, 0},    {"dm3/kg", "m3/kg", 1e-3, 0},  {"%", "-", 0.01, 0},
};

}  // namespace

bool ReadQuantity(const std::string& text, const std::string& si, double& value,
                  std::string& error) {
  const char* begin = text.c_str();
  char* end = nullptr;
  value = std::strtod(begin, &end);
  if (end == begin) {
    error = "'" + text + "' is not a number";
    return false;
  }
  std::string unit(end);
  while (!unit.empty() && unit.front() == ' ') unit.erase(0, 1);
  if (unit.empty()) return true;  // a bare number is SI
  for (const Unit& u : kUnits) {
    if (unit != u.text) continue;
    if (si != u.si) {
      error = "'" + text + "': " + unit + " is not a unit of " + (si.empty() ? "this argument" : si);
      return false;
    }
    value = value * u.factor + u.offset;
    return true;
  }
  error = "'" + text + "': unknown unit " + unit;
  return false;
}

Display DisplayOf(const std::string& si, UnitSystem system) {
  if (system == UnitSystem::Engineering) {
    if (si == "Pa") return {"bar", 1e5, 0};
    if (si == "K") return {"\xC2\xB0" "C", 1, 273.15};
    if (si == "J/kg") return {"kJ/kg", 1e3, 0};
    if (si == "J/(kg K)") return {"kJ/(kg K)", 1e3, 0};
  }
  return {si, 1, 0};
}

}  // namespace kvtcalc
