// The calculator's view of the catalogue: every export as a row that can be
// called with the arguments typed on the command line. The lookup, the
// argument count, names and units and the output names all come from the
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

#include "kvtcalc/calls.h"
#include "kvtcore.h"

namespace kvtcalc {
namespace {

const char* const kManyNames[14] = {"v",       "u",       "s",       "h",      "cv",
                                    "w",       "dv/dp_T", "du/dp_T", "ds/dp_T", "dh/dp_T",
                                    "dv/dT_p", "du/dT_p", "ds/dT_p", "cp"};

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

std::vector<Argument> Inputs(const char* args, int inputs) {
  const std::vector<std::string> items = ArgumentList(args);
  std::vector<Argument> r;
  for (size_t i = 0; i + 1 < items.size() && r.size() < static_cast<size_t>(inputs); i += 2)
    r.push_back({items[i], items[i + 1]});
  return r;
}

#define KVT_ROW(ord, name, shape, rule, core, args, result)                                \
  {ord, #name, #rule, Describe(#args, result, InputsOf(&name)), InputsOf(&name),          \
   Inputs(#args, InputsOf(&name)), result,                                                \
   [](const std::vector<std::string>& a, std::string& t, Output& o, bool& f) {             \
     return CallWith(&name, #args, a, t, o, f);                                            \
   }},

}  // namespace

std::string Upper(std::string s) {
  for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return s;
}

const std::vector<Row>& Rows() {
  static const std::vector<Row> rows = {KVT_CATALOGUE(KVT_ROW)};
  return rows;
}

const Row* Find(const std::string& wanted) {
  const std::string w = Upper(wanted);
  for (const Row& row : Rows()) {
    const std::string name = Upper(row.name);
    if (name == w || name == "KVT" + w) return &row;
  }
  return nullptr;
}

}  // namespace kvtcalc
