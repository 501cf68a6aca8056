// The catalogue as the calculator sees it: each export a row that can be
// called with arguments typed as text.
#pragma once

#include <string>
#include <vector>

namespace kvtcalc {

struct Output {
  std::vector<std::string> labels;
  std::vector<double> values;
};

struct Argument {
  std::string name;
  std::string unit;  // SI unit, "-" for a pure number, "" for ids, texts, modes
};

struct Row {
  int ordinal;
  const char* name;    // kvtHPT
  const char* rule;    // range rule: PT, None, ...
  std::string doc;     // "p [Pa], T [K]: enthalpy [J/kg]"
  int inputs;          // number of arguments the caller types
  std::vector<Argument> arguments;  // those inputs
  std::string result;  // "enthalpy [J/kg]"
  // Calls the export with the typed arguments; returns false on a parse error.
  bool (*call)(const std::vector<std::string>& args, std::string& text, Output& out,
               bool& failed);
};

const std::vector<Row>& Rows();
// A row by name, with or without the kvt prefix, in any case.
const Row* Find(const std::string& name);
std::string Upper(std::string s);

}  // namespace kvtcalc
