// kvtcalc: calls any export of the library from the command line.
//
//   kvtcalc H1PT 3e6 300        enthalpy of water at 3 MPa and 300 K
//   kvtcalc --list              every export with its arguments and units
//   kvtcalc --exact H1PT 3e6 300   all 17 digits, to compare two builds
//
// The export is named with or without its "kvt" prefix, in any case. The
// lookup, the argument count and the output names all come from the
// catalogue in kvtcore.h, so the calculator grows with it.
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "kvtcore.h"

namespace {

const char* const kManyNames[14] = {"v",       "u",       "s",       "h",      "cv",
                                    "w",       "dv/dp_T", "du/dp_T", "ds/dp_T", "dh/dp_T",
                                    "dv/dT_p", "du/dT_p", "ds/dT_p", "cp"};

struct Output {
  std::vector<std::string> labels;
  std::vector<double> values;
};

struct Row {
  int ordinal;
  const char* name;
  std::string doc;
  int inputs;  // number of arguments the caller types
  // Calls the export with the typed arguments; returns false on a parse error.
  bool (*call)(const std::vector<std::string>& args, std::string& text, Output& out,
               bool& failed);
};

std::string Upper(std::string s) {
  for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return s;
}

bool ParseDouble(const std::string& s, double& v) {
  char* end = nullptr;
  errno = 0;
  v = std::strtod(s.c_str(), &end);
  return !s.empty() && end && *end == 0;
}

bool ParseInt(const std::string& s, int32_t& v) {
  char* end = nullptr;
  long x = std::strtol(s.c_str(), &end, 10);
  v = static_cast<int32_t>(x);
  return !s.empty() && end && *end == 0;
}

template <class P> constexpr bool IsInput() { return !std::is_same_v<P, double*>; }

template <class... P> constexpr int CountInputs() { return (0 + ... + (IsInput<P>() ? 1 : 0)); }

template <class P>
bool Convert(const std::vector<std::string>& args, size_t& next, std::vector<double>& slots,
             size_t& slot, P& value) {
  if constexpr (std::is_same_v<P, double*>) {
    value = &slots[slot++];
    return true;
  } else if constexpr (std::is_same_v<P, double>) {
    return ParseDouble(args[next++], value);
  } else if constexpr (std::is_same_v<P, int32_t>) {
    return ParseInt(args[next++], value);
  } else {
    value = args[next++].c_str();
    return true;
  }
}

std::string Utf8(const char16_t* s) {
  std::string r;
  for (; s && *s; ++s) {
    char32_t c = *s;
    if (c >= 0xD800 && c < 0xDC00 && s[1] >= 0xDC00 && s[1] < 0xE000) {
      c = 0x10000 + ((c - 0xD800) << 10) + (s[1] - 0xDC00);
      ++s;
    }
    if (c < 0x80) {
      r += static_cast<char>(c);
    } else if (c < 0x800) {
      r += static_cast<char>(0xC0 | (c >> 6));
      r += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      r += static_cast<char>(0xE0 | (c >> 12));
      r += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      r += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      r += static_cast<char>(0xF0 | (c >> 18));
      r += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      r += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      r += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return r;
}

// A row's description from its catalogue entry: the stringised argument list
// ("(p, \"Pa\", T, \"K\")") and the result, as "p [Pa], T [K]: enthalpy [J/kg]".
// The argument names and units, in order.
std::vector<std::string> ArgumentList(const char* args) {
  std::vector<std::string> items;
  std::string item, all(args);
  all = all.substr(1, all.size() - 2);  // the list's own parentheses
  for (const char* c = all.c_str(); *c; ++c) {
    if (*c == '"') continue;
    if (*c == ',') {
      items.push_back(item);
      item.clear();
    } else if (*c != ' ' || !item.empty()) {
      item += *c;
    }
  }
  if (!item.empty() || !items.empty()) items.push_back(item);
  return items;
}

std::string Labelled(const std::vector<std::string>& items, size_t first, size_t last) {
  std::string r;
  for (size_t i = first; i + 1 < last && i + 1 < items.size(); i += 2) {
    if (!r.empty()) r += ", ";
    r += items[i];
    if (!items[i + 1].empty()) r += " [" + items[i + 1] + "]";
  }
  return r;
}

std::string Describe(const char* args, const char* result, int inputs) {
  const std::vector<std::string> items = ArgumentList(args);
  const size_t in = 2 * static_cast<size_t>(inputs);
  std::string r = Labelled(items, 0, in) + ": ";
  if (items.size() > in) return r + Labelled(items, in, items.size());  // the pair's outputs
  return r + result;
}

// The output labels of a row: its two named outputs, or the fourteen.
std::vector<std::string> Labels(const char* args, size_t n) {
  if (n == 14) return std::vector<std::string>(kManyNames, kManyNames + 14);
  const std::vector<std::string> items = ArgumentList(args);
  std::vector<std::string> labels;
  for (size_t i = items.size() - 2 * n; i + 1 < items.size(); i += 2)
    labels.push_back(items[i] + " [" + items[i + 1] + "]");
  return labels;
}

template <class R, class... P>
bool CallWith(R (KVT_CALL* f)(P...), const char* doc, const std::vector<std::string>& args,
              std::string& text, Output& out, bool& failed) {
  constexpr size_t outputs = (0 + ... + (std::is_same_v<P, double*> ? 1 : 0));
  std::vector<double> slots(outputs > 0 ? outputs : 1, 0.0);
  std::tuple<std::decay_t<P>...> values;
  size_t next = 0, slot = 0;
  bool ok = std::apply(
      [&](auto&... v) { return (true && ... && Convert(args, next, slots, slot, v)); }, values);
  if (!ok) return false;
  R r = std::apply(f, values);
  if constexpr (std::is_pointer_v<R>) {
    failed = r == nullptr;
    if constexpr (std::is_same_v<R, const char16_t*>) text = Utf8(r);
    else text = r ? r : "";
  } else {
    failed = r == static_cast<R>(-1) && kvtGETLASTERROR() != 0;
    if (outputs == 0) {
      out.labels.push_back("");
      out.values.push_back(static_cast<double>(r));
    } else {
      out.labels = Labels(doc, outputs);
      out.values = slots;
    }
  }
  return true;
}

template <class R, class... P> constexpr int InputsOf(R (KVT_CALL*)(P...)) {
  return CountInputs<P...>();
}

#define KVT_ROW(ord, name, shape, rule, core, args, result)                                \
  {ord, #name, Describe(#args, result, InputsOf(&name)), InputsOf(&name),                  \
   [](const std::vector<std::string>& a, std::string& t, Output& o, bool& f) {             \
     return CallWith(&name, #args, a, t, o, f);                                            \
   }},

const std::vector<Row> kRows = {KVT_CATALOGUE(KVT_ROW)};

const Row* Find(const std::string& wanted) {
  const std::string w = Upper(wanted);
  for (const Row& row : kRows) {
    const std::string name = Upper(row.name);
    if (name == w || name == "KVT" + w) return &row;
  }
  return nullptr;
}

int Usage() {
  std::fprintf(stderr,
               "usage: kvtcalc NAME [ARG ...]   call an export (name with or without kvt)\n"
               "       kvtcalc --list           list every export with its arguments\n"
               "       kvtcalc --exact NAME ... print numbers with all 17 digits\n");
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  const char* format = "%#.10g";
  if (argc >= 2 && std::strcmp(argv[1], "--exact") == 0) {
    format = "%.17g";
    --argc;
    ++argv;
  }
  if (argc < 2) return Usage();
  const std::string first = argv[1];
  if (first == "--list" || first == "-l") {
    for (const Row& row : kRows) std::printf("%-34s %3d  %s\n", row.name, row.ordinal, row.doc.c_str());
    return 0;
  }
  if (first == "--help" || first == "-h") {
    Usage();
    return 0;
  }
  const Row* row = Find(first);
  if (!row) {
    std::fprintf(stderr, "kvtcalc: no export named %s (try kvtcalc --list)\n", argv[1]);
    return 2;
  }
  std::vector<std::string> args(argv + 2, argv + argc);
  if (static_cast<int>(args.size()) != row->inputs) {
    std::fprintf(stderr, "kvtcalc: %s takes %d argument(s): %s\n", row->name, row->inputs,
                 row->doc.c_str());
    return 2;
  }
  std::string text;
  Output out;
  bool failed = false;
  if (!row->call(args, text, out, failed)) {
    std::fprintf(stderr, "kvtcalc: arguments of %s must be numbers: %s\n", row->name, row->doc.c_str());
    return 2;
  }
  if (failed) {
    const int code = kvtGETLASTERROR();
    std::fprintf(stderr, "kvtcalc: %s failed with error %d: %s\n", row->name, code,
                 kvtGETLASTERRORDESCRIPTION());
    return 1;
  }
  if (out.values.empty()) {
    std::printf("%s\n", text.c_str());
  } else if (out.values.size() == 1) {
    std::printf(format, out.values[0]);
    std::printf("\n");
  } else {
    for (size_t i = 0; i < out.values.size(); ++i) {
      std::printf("%-10s ", out.labels[i].c_str());
      std::printf(format, out.values[i]);
      std::printf("\n");
    }
  }
  return 0;
}
