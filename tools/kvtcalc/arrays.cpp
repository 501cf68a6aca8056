#include "kvtcalc/arrays.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>

#include "kvtcore_batch.h"

namespace kvtcalc {
namespace {

// The points of a run: one column of values per argument that the array
// interface takes, and for a text-gas row the gas text of each point.
struct Points {
  std::vector<std::vector<double>> columns;
  std::vector<std::string> gases;
  size_t size = 0;
};

struct Results {
  std::vector<std::vector<double>> outputs;
  std::vector<int32_t> codes;
};

using EnginePtr = std::unique_ptr<kvtEngine, void (*)(kvtEngine*)>;

// Runs the row over the points on every core, one call for each run of
// points with the same gas text. False if the row cannot be evaluated over
// arrays (texts, settings, the gas registry).
bool Evaluate(const kvtFunctionInfo* fn, const Points& points, Results& r) {
  EnginePtr engine(kvtEngineNew(), kvtEngineFree);
  r.outputs.assign(fn->outputs, std::vector<double>(points.size));
  r.codes.assign(points.size, 0);
  size_t first = 0;
  do {
    size_t last = points.size;
    const char* gas = nullptr;
    if (fn->gas == 2) {
      gas = first < points.size ? points.gases[first].c_str() : "";
      for (last = first + 1; last < points.size && points.gases[last] == gas;) ++last;
      last = std::min(last, points.size);
    }
    std::vector<const double*> args;
    for (const auto& c : points.columns) args.push_back(c.data() + first);
    std::vector<double*> outs;
    for (auto& o : r.outputs) outs.push_back(o.data() + first);
    if (kvtEvalRow(engine.get(), fn, gas, last - first, args.data(), nullptr, outs.data(),
                   r.codes.data() + first, 0) < 0)
      return false;
    first = last;
  } while (first < points.size);
  return true;
}

std::string Column(const char* name, const std::string& si, UnitSystem units) {
  const std::string unit = DisplayOf(si, units).unit;
  return unit.empty() ? name : std::string(name) + " [" + unit + "]";
}

std::string Number(double v, const std::string& si, const ArrayOptions& o) {
  char text[40];
  std::snprintf(text, sizeof text, o.format, DisplayOf(si, o.units).Show(v));
  return text;
}

std::string ResultColumns(const kvtFunctionInfo* fn, UnitSystem units) {
  std::string r;
  for (int j = 0; j < fn->outputs; ++j) {
    const char* name = fn->outputs == 1 ? fn->name + 3 : fn->outputNames[j];
    r += "," + Column(name, fn->outputUnits[j], units);
  }
  return r + ",code";
}

std::string ResultCells(const kvtFunctionInfo* fn, const Results& r, size_t k,
                        const ArrayOptions& o) {
  std::string line;
  for (int j = 0; j < fn->outputs; ++j)
    line += "," + (r.codes[k] == 0 ? Number(r.outputs[j][k], fn->outputUnits[j], o) : "");
  return line + "," + std::to_string(r.codes[k]);
}

const kvtFunctionInfo* Lookup(const std::string& name) {
  const kvtFunctionInfo* fn = kvtFunctionFind(name.c_str());
  if (!fn) std::fprintf(stderr, "kvtcalc: no export named %s (try kvtcalc --list)\n", name.c_str());
  return fn;
}

int NotEvaluable(const kvtFunctionInfo* fn) {
  std::fprintf(stderr, "kvtcalc: %s cannot be evaluated over arrays (a text, a setting or "
                       "the gas registry)\n", fn->name);
  return 2;
}

bool IsGasText(const kvtFunctionInfo* fn, int i) { return fn->gas == 2 && i == 0; }

// One sweep or fixed value of a table: ARG=START:STOP:COUNT or ARG=VALUE.
struct Axis {
  std::vector<double> values;
  bool sweep = false;
};

bool ReadAxis(const std::string& text, const std::string& si, Axis& axis, std::string& error) {
  std::vector<std::string> parts;
  size_t from = 0, colon;
  while ((colon = text.find(':', from)) != std::string::npos) {
    parts.push_back(text.substr(from, colon - from));
    from = colon + 1;
  }
  parts.push_back(text.substr(from));
  if (parts.size() == 1) {
    axis.values.resize(1);
    return ReadQuantity(parts[0], si, axis.values[0], error);
  }
  double start, stop;
  char* end = nullptr;
  const long count = parts.size() == 3 ? std::strtol(parts[2].c_str(), &end, 10) : 0;
  if (parts.size() != 3 || *end != 0 || count < 1 || count > 10000000) {
    error = "'" + text + "' is not START:STOP:COUNT";
    return false;
  }
  if (!ReadQuantity(parts[0], si, start, error) || !ReadQuantity(parts[1], si, stop, error))
    return false;
  axis.sweep = true;
  for (long i = 0; i < count; ++i)
    axis.values.push_back(count == 1 ? start : start + (stop - start) * i / (count - 1));
  return true;
}

// A CSV line split into fields; a field may be quoted ("N2:0,79;O2:0,21").
std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == '"') {
      if (quoted && i + 1 < line.size() && line[i + 1] == '"') fields.back() += c, ++i;
      else quoted = !quoted;
    } else if (c == ',' && !quoted) {
      fields.emplace_back();
    } else if (c != '\r') {
      fields.back() += c;
    }
  }
  for (auto& f : fields) {
    while (!f.empty() && f.front() == ' ') f.erase(0, 1);
    while (!f.empty() && f.back() == ' ') f.pop_back();
  }
  return fields;
}

}  // namespace

int Table(const std::string& name, const std::vector<std::string>& specs, const ArrayOptions& o) {
  const kvtFunctionInfo* fn = Lookup(name);
  if (!fn) return 2;
  std::vector<Axis> axes(fn->inputs);
  std::vector<bool> given(fn->inputs, false);
  std::string gas;
  int sweeps = 0;
  for (const std::string& spec : specs) {
    const size_t eq = spec.find('=');
    int i = 0;
    while (i < fn->inputs && (eq == std::string::npos || spec.compare(0, eq, fn->inputNames[i]) != 0)) ++i;
    if (i == fn->inputs) {
      std::fprintf(stderr, "kvtcalc: '%s' names no argument of %s\n", spec.c_str(), fn->name);
      return 2;
    }
    std::string error;
    given[i] = true;
    if (IsGasText(fn, i)) {
      gas = spec.substr(eq + 1);
      continue;
    }
    if (!ReadAxis(spec.substr(eq + 1), fn->inputUnits[i], axes[i], error)) {
      std::fprintf(stderr, "kvtcalc: %s\n", error.c_str());
      return 2;
    }
    sweeps += axes[i].sweep;
  }
  for (int i = 0; i < fn->inputs; ++i) {
    if (!given[i]) {
      std::fprintf(stderr, "kvtcalc: table %s needs %s=...\n", fn->name, fn->inputNames[i]);
      return 2;
    }
  }
  if (sweeps > 2) {
    std::fprintf(stderr, "kvtcalc: a table sweeps one or two arguments\n");
    return 2;
  }
  // The first sweep runs slowest, as in reading order.
  Points points;
  points.size = 1;
  for (int i = 0; i < fn->inputs; ++i)
    if (!IsGasText(fn, i)) points.size *= axes[i].values.size();
  size_t inner = points.size;
  for (int i = 0; i < fn->inputs; ++i) {
    if (IsGasText(fn, i)) continue;
    const std::vector<double>& v = axes[i].values;
    inner /= v.size();
    std::vector<double> column(points.size);
    for (size_t k = 0; k < points.size; ++k) column[k] = v[(k / inner) % v.size()];
    points.columns.push_back(std::move(column));
  }
  points.gases.assign(points.size, gas);
  Results r;
  if (!Evaluate(fn, points, r)) return NotEvaluable(fn);
  std::string header;
  for (int i = 0; i < fn->inputs; ++i)
    header += (i ? "," : "") + Column(fn->inputNames[i], fn->inputUnits[i], o.units);
  std::printf("%s%s\n", header.c_str(), ResultColumns(fn, o.units).c_str());
  for (size_t k = 0; k < points.size; ++k) {
    std::string line;
    for (int i = 0, c = 0; i < fn->inputs; ++i) {
      if (i) line += ",";
      line += IsGasText(fn, i) ? "\"" + gas + "\"" : Number(points.columns[c++][k], fn->inputUnits[i], o);
    }
    std::printf("%s%s\n", line.c_str(), ResultCells(fn, r, k, o).c_str());
  }
  return 0;
}

int Batch(const std::string& name, const std::string& file, const ArrayOptions& o) {
  const kvtFunctionInfo* fn = Lookup(name);
  if (!fn) return 2;
  std::ifstream opened;
  if (!file.empty() && file != "-") {
    opened.open(file);
    if (!opened) {
      std::fprintf(stderr, "kvtcalc: cannot read %s\n", file.c_str());
      return 2;
    }
  }
  std::istream& in = file.empty() || file == "-" ? std::cin : opened;
  // Every line is kept as it came, to be written back with its results. A line
  // that cannot be read keeps its place and gets code 1 (bad arguments).
  std::vector<std::string> lines;
  std::vector<bool> bad;
  std::string header, line;
  Points points;
  points.columns.assign(fn->gas == 2 ? fn->inputs - 1 : fn->inputs, {});
  size_t number = 0;
  int badCount = 0;
  while (std::getline(in, line)) {
    ++number;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty()) continue;
    const std::vector<std::string> fields = Fields(line);
    std::vector<double> values;
    std::string error;
    if (static_cast<int>(fields.size()) != fn->inputs) {
      error = "has " + std::to_string(fields.size()) + " fields, " + fn->name + " takes " +
              std::to_string(fn->inputs);
    }
    for (int i = 0; error.empty() && i < fn->inputs; ++i) {
      if (IsGasText(fn, i)) continue;
      double v;
      if (ReadQuantity(fields[i], fn->inputUnits[i], v, error)) values.push_back(v);
    }
    if (!error.empty() && number == 1 && lines.empty()) {  // a header row
      header = line;
      continue;
    }
    if (!error.empty()) {
      if (++badCount <= 20) std::fprintf(stderr, "kvtcalc: line %zu %s\n", number, error.c_str());
      values.assign(points.columns.size(), NAN);
    }
    for (size_t i = 0; i < values.size(); ++i) points.columns[i].push_back(values[i]);
    if (fn->gas == 2) points.gases.push_back(error.empty() ? fields[0] : "");
    lines.push_back(line);
    bad.push_back(!error.empty());
    ++points.size;
  }
  Results r;
  if (!Evaluate(fn, points, r)) return NotEvaluable(fn);
  if (header.empty()) {
    for (int i = 0; i < fn->inputs; ++i)
      header += (i ? "," : "") + Column(fn->inputNames[i], fn->inputUnits[i], UnitSystem::SI);
  }
  std::string out = header + ResultColumns(fn, o.units) + "\n";
  for (size_t k = 0; k < lines.size(); ++k) {
    if (bad[k]) r.codes[k] = 1;
    out += lines[k];
    out += ResultCells(fn, r, k, o);
    out += '\n';
    if (out.size() > (1 << 20)) {
      std::fwrite(out.data(), 1, out.size(), stdout);
      out.clear();
    }
  }
  std::fwrite(out.data(), 1, out.size(), stdout);
  return 0;
}

}  // namespace kvtcalc
