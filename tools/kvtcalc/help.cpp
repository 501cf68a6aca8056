#include "kvtcalc/help.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "kvtcore_batch.h"

namespace kvtcalc {
namespace {

using EnginePtr = std::unique_ptr<kvtEngine, void (*)(kvtEngine*)>;

// Values to try for an argument, by name and then by unit: first the usual
// ones, from which the example is the first combination that succeeds, then
// the edges, values outside every range and NaN, for the probe of codes.
std::vector<double> Candidates(const std::string& name, const std::string& unit) {
  if (name == "p2") return {1e5, 1e4, 2e6, 611.2, 1e8, 2e8, NAN};
  if (name == "efficiency") return {0.85, 1, 0, -1, 2, NAN};
  if (unit == "Pa") return {1e6, 3e6, 2.5e7, 1e5, 5e7, 611.212677444343, 2.2064e7, 1e8, 100, 2e8, NAN};
  if (unit == "K") return {500, 300, 650, 400, 800, 1500, 273.16, 623.15, 647.096, 1073.15, 2273.15, 200, 3000, NAN};
  if (unit == "J/kg") return {3e6, 5e5, 2e6, 2.6e6, 1.9e6, 4e6, 1e5, 6e6, -1e4, 1e8, NAN};
  if (unit == "J/(kg K)") return {7000, 1500, 4000, 5000, 6000, 9000, 100, 12000, -10, NAN};
  if (unit == "-") return {0.5, 0.9, 1, 0, -0.1, 1.2, NAN};
  if (unit == "kg/m3") return {500, 1000, 100, 50, 322, 1, 2000, NAN};
  if (name == "id" || name == "mixture" || name == "component") return {0, 13, 6, 99};
  return {1e-3, 1, 1000, 1e6, 0, -1, NAN};
}

const char* const kGasTexts[] = {"N2:0.79;O2:0.21", "N2:1 kg", "Xe"};

// The points of a probe: all combinations of the candidates, thinned evenly
// to at most `limit`.
std::vector<std::vector<double>> Combinations(const std::vector<std::vector<double>>& c,
                                              size_t limit, size_t& n) {
  size_t all = 1;
  for (const auto& v : c) all *= v.size();
  const size_t step = all > limit ? all / limit + 1 : 1;
  n = (all + step - 1) / step;
  std::vector<std::vector<double>> columns(c.size(), std::vector<double>(n));
  for (size_t k = 0; k < n; ++k) {
    size_t index = k * step;
    for (size_t i = c.size(); i-- > 0;) {
      columns[i][k] = c[i][index % c[i].size()];
      index /= c[i].size();
    }
  }
  return columns;
}

struct Probe {
  bool evaluable = false;
  std::set<int> codes;
  std::vector<double> example;  // the arguments of the first success
  std::string gas;
  std::vector<double> values;   // its outputs
};

Probe Run(const kvtFunctionInfo* fn) {
  Probe probe;
  std::vector<std::vector<double>> candidates;
  for (int i = fn->gas == 2 ? 1 : 0; i < fn->inputs; ++i)
    candidates.push_back(Candidates(fn->inputNames[i], fn->inputUnits[i]));
  size_t n = 0;
  const auto columns = Combinations(candidates, 3000, n);
  std::vector<const double*> args;
  for (const auto& c : columns) args.push_back(c.data());
  std::vector<std::vector<double>> outs(fn->outputs, std::vector<double>(n));
  std::vector<double*> outPointers;
  for (auto& o : outs) outPointers.push_back(o.data());
  std::vector<int32_t> codes(n);
  // Default settings, then a cap of two passes, which shows which functions
  // iterate (code 3).
  for (int pass = 0; pass < 2; ++pass) {
    const int gases = fn->gas == 2 ? 3 : 1;
    for (int g = 0; g < gases; ++g) {
      EnginePtr engine(kvtEngineNew(), kvtEngineFree);
      if (pass == 1) kvtEngineSet(engine.get(), "maxIteration", 2);
      const char* gas = fn->gas == 2 ? kGasTexts[g] : nullptr;
      if (kvtEvalRow(engine.get(), fn, gas, n, args.data(), nullptr, outPointers.data(),
                     codes.data(), 1) < 0)
        return probe;
      probe.evaluable = true;
      for (size_t k = 0; k < n; ++k) {
        if (codes[k] != 0) {
          probe.codes.insert(codes[k]);
        } else if (pass == 0 && probe.example.empty()) {
          for (const auto& c : columns) probe.example.push_back(c[k]);
          for (const auto& o : outs) probe.values.push_back(o[k]);
          probe.gas = gas ? gas : "";
        }
      }
    }
  }
  return probe;
}

// The codes of the rows the probe cannot run, from what they are.
std::set<int> CodesOf(const kvtFunctionInfo* fn) {
  if (std::strcmp(fn->rule, "Getter") == 0 || std::strcmp(fn->rule, "Plain") == 0) return {};
  if (std::strstr(fn->result, "reserved")) return {8};
  std::set<int> codes = {1};
  if (fn->gas == 2 || std::strcmp(fn->shape, "FSS") == 0 || std::strcmp(fn->shape, "IS1") == 0 ||
      std::strcmp(fn->shape, "CS1") == 0)
    codes.insert(11);
  return codes;
}

std::string Number(double v, int digits = 10) {
  char text[40];
  std::snprintf(text, sizeof text, "%.*g", digits, v);
  return text;
}

// An argument in the shortest form that reads back as the same double.
std::string Argument(double v) {
  if (v == static_cast<double>(static_cast<long long>(v)) && std::fabs(v) < 1e15) return Number(v, 15);
  for (int digits = 1; digits < 17; ++digits)
    if (std::strtod(Number(v, digits).c_str(), nullptr) == v) return Number(v, digits);
  return Number(v, 17);
}

}  // namespace

int Help(const std::string& name) {
  const kvtFunctionInfo* fn = kvtFunctionFind(name.c_str());
  if (!fn) {
    std::fprintf(stderr, "kvtcalc: no export named %s (try kvtcalc --list)\n", name.c_str());
    return 2;
  }
  std::printf("%s  (ordinal %d)\n", fn->name, fn->ordinal);
  std::printf("result:    %s\n", fn->result);
  std::string args;
  for (int i = 0; i < fn->inputs; ++i) {
    const std::string unit = fn->inputUnits[i];
    args += std::string(i ? ", " : "") + fn->inputNames[i] + (unit.empty() ? "" : " [" + unit + "]");
  }
  std::printf("arguments: %s\n", args.empty() ? "none" : args.c_str());
  if (fn->outputs > 1) {
    std::string outs;
    for (int j = 0; j < fn->outputs; ++j)
      outs += std::string(j ? ", " : "") + fn->outputNames[j] + " [" + fn->outputUnits[j] + "]";
    std::printf("outputs:   %s\n", outs.c_str());
  }
  const char* range = kvtRangeText(fn->rule);
  std::printf("range:     %s (rule %s)\n", range ? range : "?", fn->rule);
  const Probe probe = Run(fn);
  const std::set<int> codes = probe.evaluable ? probe.codes : CodesOf(fn);
  std::printf("codes:     %s\n", codes.empty() ? "none: the call cannot fail" : "");
  for (int code : codes) std::printf("  %2d  %s\n", code, kvtErrorMessage(code));
  if (probe.evaluable && !probe.example.empty()) {
    std::string line = std::string("kvtcalc ") + (fn->name + 3);
    for (size_t i = 0, c = 0; i < static_cast<size_t>(fn->inputs); ++i)
      line += " " + (fn->gas == 2 && i == 0 ? "\"" + probe.gas + "\"" : Argument(probe.example[c++]));
    std::printf("example:   %s\n", line.c_str());
    for (size_t j = 0; j < probe.values.size(); ++j) {
      const std::string label = fn->outputs == 1 ? "" : std::string(fn->outputNames[j]) + " ";
      std::printf("           %s%s\n", label.c_str(), Number(probe.values[j]).c_str());
    }
  }
  return 0;
}

}  // namespace kvtcalc
