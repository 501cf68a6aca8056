// kvtcalc: calls any export of the library from the command line.
//
//   kvtcalc H1PT 3e6 300             enthalpy of water at 3 MPa and 300 K
//   kvtcalc HPT 30bar 300C           units on input; a bare number is SI
//   kvtcalc --units eng HPT 30bar 300C   results in bar, C, kJ/kg, kJ/(kg K)
//   kvtcalc --list [TEXT]            the exports (whose name or text has TEXT)
//   kvtcalc help NAME                arguments, range, error codes, example
//   kvtcalc table HPT p=1e5:1e7:5 T=300:900:13   a CSV table
//   kvtcalc batch HPT points.csv     CSV rows in, rows with results out
//   kvtcalc --exact H1PT 3e6 300     all 17 digits, to compare two builds
//
// The export is named with or without its "kvt" prefix, in any case.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "kvtcalc/arrays.h"
#include "kvtcalc/calls.h"
#include "kvtcalc/help.h"
#include "kvtcalc/units.h"
#include "kvtcore.h"
#include "kvtcore_batch.h"

using namespace kvtcalc;

namespace {

int Usage(FILE* to) {
  std::fprintf(to,
               "usage: kvtcalc [OPTIONS] NAME [ARG ...]   call an export (name with or without kvt)\n"
               "       kvtcalc --list [TEXT]      the exports whose name or description has TEXT\n"
               "       kvtcalc help NAME          arguments, valid range, error codes, example\n"
               "       kvtcalc table NAME ARG=START:STOP:COUNT [ARG=START:STOP:COUNT] [ARG=VALUE ...]\n"
               "       kvtcalc batch NAME [FILE]  CSV rows of arguments (FILE or standard input)\n"
               "       kvtcalc --version\n"
               "options: --exact        print all 17 digits\n"
               "         --units si|eng results in SI (default) or in bar, C, kJ/kg, kJ/(kg K)\n"
               "A number may carry a unit: 3MPa 30bar 1atm 300C 573.15K 2800kJ/kg 6.5kJ/kgK 50%%\n");
  return to == stdout ? 0 : 2;
}

bool Contains(const std::string& text, const std::string& part) {
  return Upper(text).find(Upper(part)) != std::string::npos;
}

int List(const char* filter) {
  for (const Row& row : Rows()) {
    if (filter && !Contains(row.name, filter) && !Contains(row.doc, filter)) continue;
    std::printf("%-34s %3d  %s\n", row.name, row.ordinal, row.doc.c_str());
  }
  return 0;
}

// The result unit of a one-number row: "enthalpy [J/kg]" gives J/kg.
std::string UnitOf(const std::string& label) {
  const size_t open = label.rfind('['), close = label.rfind(']');
  return open != std::string::npos && close > open ? label.substr(open + 1, close - open - 1) : "";
}

// Says why a call failed: the code in English, the range of the rule where
// the code is 2, and the library's own text.
void Explain(const Row& row) {
  const int code = kvtGETLASTERROR();
  const std::string own = kvtGETLASTERRORDESCRIPTION();
  std::fprintf(stderr, "kvtcalc: %s failed with code %d: %s\n", row.name, code, kvtErrorMessage(code));
  if (code == 2 && std::strcmp(row.rule, "None") != 0) {
    const char* range = kvtRangeText(row.rule);
    std::fprintf(stderr, "  the arguments lie outside rule %s: %s\n", row.rule, range ? range : "?");
  }
  std::fprintf(stderr, "  library text: error %d: %s\n", code, own.c_str());
}

int Call(const Row& row, std::vector<std::string> args, const char* format, UnitSystem units) {
  if (static_cast<int>(args.size()) != row.inputs) {
    std::fprintf(stderr, "kvtcalc: %s takes %d argument(s): %s\n", row.name, row.inputs,
                 row.doc.c_str());
    return 2;
  }
  for (size_t i = 0; i < args.size(); ++i) {  // units to SI
    const std::string& unit = row.arguments[i].unit;
    if (unit.empty()) continue;
    double v;
    std::string error;
    if (!ReadQuantity(args[i], unit, v, error)) {
      std::fprintf(stderr, "kvtcalc: %s: %s\n", row.arguments[i].name.c_str(), error.c_str());
      return 2;
    }
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", v);
    args[i] = text;
  }
  std::string text;
  Output out;
  bool failed = false;
  if (!row.call(args, text, out, failed)) {
    std::fprintf(stderr, "kvtcalc: arguments of %s must be numbers: %s\n", row.name, row.doc.c_str());
    return 2;
  }
  if (failed) {
    Explain(row);
    return 1;
  }
  if (out.values.empty()) {
    std::printf("%s\n", text.c_str());
  } else if (out.values.size() == 1) {
    std::printf(format, DisplayOf(UnitOf(row.result), units).Show(out.values[0]));
    std::printf("\n");
  } else {
    for (size_t i = 0; i < out.values.size(); ++i) {
      const Display d = DisplayOf(UnitOf(out.labels[i]), units);
      std::string label = out.labels[i];
      if (units != UnitSystem::SI && label.find('[') != std::string::npos)
        label = label.substr(0, label.find('[')) + "[" + d.unit + "]";
      std::printf("%-10s ", label.c_str());
      std::printf(format, d.Show(out.values[i]));
      std::printf("\n");
    }
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> a(argv + 1, argv + argc);
  const char* format = "%#.10g";
  ArrayOptions arrays;
  UnitSystem units = UnitSystem::SI;
  while (!a.empty() && (a[0] == "--exact" || a[0] == "--units")) {
    if (a[0] == "--exact") {
      format = arrays.format = "%.17g";
      a.erase(a.begin());
      continue;
    }
    if (a.size() < 2 || (a[1] != "si" && a[1] != "eng")) return Usage(stderr);
    units = arrays.units = a[1] == "eng" ? UnitSystem::Engineering : UnitSystem::SI;
    a.erase(a.begin(), a.begin() + 2);
  }
  if (a.empty()) return Usage(stderr);
  const std::string first = a[0];
  if (first == "--version" || first == "-V") {
    std::printf("kvtcalc %s (library version %.4f)\n", KVT_PROJECT_VERSION, kvtGETKVTVERSION());
    return 0;
  }
  if (first == "--list" || first == "-l") return List(a.size() > 1 ? a[1].c_str() : nullptr);
  if (first == "--help" || first == "-h") return Usage(stdout);
  if (first == "help") return a.size() == 2 ? Help(a[1]) : Usage(stderr);
  if (first == "table")
    return a.size() >= 2 ? Table(a[1], std::vector<std::string>(a.begin() + 2, a.end()), arrays)
                         : Usage(stderr);
  if (first == "batch")
    return a.size() == 2 || a.size() == 3 ? Batch(a[1], a.size() == 3 ? a[2] : "", arrays)
                                          : Usage(stderr);
  const Row* row = Find(first);
  if (!row) {
    std::fprintf(stderr, "kvtcalc: no export named %s (try kvtcalc --list)\n", first.c_str());
    return 2;
  }
  return Call(*row, std::vector<std::string>(a.begin() + 1, a.end()), format, units);
}
