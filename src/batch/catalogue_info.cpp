// The catalogue as data: one kvtFunctionInfo per row of KVT_CATALOGUE, built
// at the first request from the row's own text (its name, shape, rule, the
// argument list with units, the result), and the English meanings of the
// error codes.
#include <cctype>
#include <cstring>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "batch/batch.h"
#include "kvtcore.h"

namespace kvt::batch {

namespace {

// The units of the fourteen outputs, in the order of KVT_OUT14.
const char* const kOut14Units[14] = {
    "m3/kg",     "J/kg",     "J/(kg K)",  "J/kg",       "J/(kg K)", "m/s",      "m3/(kg Pa)",
    "J/(kg Pa)", "J/(kg K Pa)", "J/(kg Pa)", "m3/(kg K)", "J/(kg K)", "J/(kg K2)", "J/(kg K)"};

struct RowText {
  int32_t ordinal;
  const char* name;
  const char* shape;
  const char* rule;
  const char* args;    // "(p, \"Pa\", T, \"K\")"
  const char* result;  // "enthalpy [J/kg]"
};

#define KVT_STRINGS_(...) #__VA_ARGS__
#define KVT_STRINGS(x) KVT_STRINGS_(x)
#define KVT_ROW_TEXT(ord, name, shape, rule, core, args, result) \
  {ord, #name, #shape, #rule, #args, result},
const RowText kRows[] = {KVT_CATALOGUE(KVT_ROW_TEXT)};
const char* const kOut14Text = KVT_STRINGS(KVT_OUT14);

// Blanks and the quotes of a unit off both ends.
std::string Trim(std::string s) {
  const size_t a = s.find_first_not_of(" \"");
  if (a == std::string::npos) return std::string();
  return s.substr(a, s.find_last_not_of(" \"") + 1 - a);
}

// The items of a list "(a, b, ...)" or "a, b, ...".
std::vector<std::string> Split(std::string text) {
  if (!text.empty() && text.front() == '(') text = text.substr(1, text.size() - 2);
  std::vector<std::string> items;
  size_t start = 0;
  for (size_t comma; (comma = text.find(',', start)) != std::string::npos; start = comma + 1)
    items.push_back(Trim(text.substr(start, comma - start)));
  items.push_back(Trim(text.substr(start)));
  if (items.size() == 1 && items[0].empty()) items.clear();
  return items;
}

bool Is(const char* shape, std::initializer_list<const char*> any) {
  for (const char* s : any)
    if (std::strcmp(shape, s) == 0) return true;
  return false;
}

std::string Upper(const char* s) {
  std::string u(s);
  for (char& c : u) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return u;
}

// Every row with the texts its pointers reach; made once, never changed.
class Table {
 public:
  Table() {
    const size_t n = sizeof kRows / sizeof kRows[0];
    std::vector<std::string> out14;
    for (const std::string& p : Split(kOut14Text)) out14.push_back(Trim(p.substr(p.find('*') + 1)));
    rows.resize(n);
    texts.resize(n);
    for (size_t i = 0; i < n; ++i) {
      const RowText& r = kRows[i];
      Texts& t = texts[i];
      const std::vector<std::string> args = Split(r.args);
      for (size_t a = 0; a + 1 < args.size(); a += 2) {
        t.names.push_back(args[a]);
        t.units.push_back(args[a + 1]);
      }
      const bool pair = Is(r.shape, {"P2"}), many = Is(r.shape, {"M1", "M2"});
      const size_t inputs = pair ? 2 : t.names.size();
      if (pair) {
        t.outNames.assign(t.names.begin() + 2, t.names.end());
        t.outUnits.assign(t.units.begin() + 2, t.units.end());
      } else if (many) {
        t.outNames = out14;
        t.outUnits.assign(kOut14Units, kOut14Units + 14);
      } else {
        const char* open = std::strchr(r.result, '[');
        const char* close = open ? std::strchr(open, ']') : nullptr;
        t.outNames = {"value"};
        t.outUnits = {close ? std::string(open + 1, close) : std::string()};
      }
      t.Point(inputs);
      const bool text = Is(r.shape, {"GS0", "GS1", "GS2", "FSS", "IS1", "CS1"});
      const bool single = !pair && !many;
      rows[i] = kvtFunctionInfo{r.ordinal,
                                r.name,
                                r.shape,
                                r.rule,
                                r.result,
                                std::strncmp(r.name, "kvtg", 4) == 0 ? (text ? 2 : 1) : 0,
                                single && LoopAt(static_cast<int32_t>(i)) ? 1 : 0,
                                static_cast<int32_t>(inputs),
                                static_cast<int32_t>(t.outNames.size()),
                                t.inNamePtrs.data(),
                                t.inUnitPtrs.data(),
                                t.outNamePtrs.data(),
                                t.outUnitPtrs.data()};
      byName.emplace(Upper(r.name), static_cast<int32_t>(i));
    }
  }

  std::vector<kvtFunctionInfo> rows;
  std::unordered_map<std::string, int32_t> byName;  // upper case, with the prefix

 private:
  struct Texts {
    std::vector<std::string> names, units, outNames, outUnits;
    std::vector<const char*> inNamePtrs, inUnitPtrs, outNamePtrs, outUnitPtrs;
    void Point(size_t inputs) {
      for (size_t a = 0; a < inputs; ++a) {
        inNamePtrs.push_back(names[a].c_str());
        inUnitPtrs.push_back(units[a].c_str());
      }
      for (size_t a = 0; a < outNames.size(); ++a) {
        outNamePtrs.push_back(outNames[a].c_str());
        outUnitPtrs.push_back(outUnits[a].c_str());
      }
      // Never empty, so that data() is a valid pointer for a row of no inputs.
      inNamePtrs.push_back(nullptr);
      inUnitPtrs.push_back(nullptr);
    }
  };
  std::vector<Texts> texts;
};

const Table& TheTable() {
  static const Table table;
  return table;
}

}  // namespace

int32_t IndexOf(const kvtFunctionInfo* fn) {
  const std::vector<kvtFunctionInfo>& rows = TheTable().rows;
  const std::less<const kvtFunctionInfo*> before;
  if (!fn || before(fn, rows.data()) || !before(fn, rows.data() + rows.size())) return -1;
  const size_t i = static_cast<size_t>(fn - rows.data());
  return &rows[i] == fn ? static_cast<int32_t>(i) : -1;
}

}  // namespace kvt::batch

using namespace kvt::batch;

extern "C" {

int32_t kvtFunctionCount(void) { return static_cast<int32_t>(TheTable().rows.size()); }

const kvtFunctionInfo* kvtFunctionAt(int32_t i) {
  const std::vector<kvtFunctionInfo>& rows = TheTable().rows;
  return i >= 0 && static_cast<size_t>(i) < rows.size() ? &rows[i] : nullptr;
}

const kvtFunctionInfo* kvtFunctionFind(const char* name) {
  if (!name) return nullptr;
  const Table& table = TheTable();
  std::string key = Upper(name);
  if (key.compare(0, 3, "KVT") != 0) key = "KVT" + key;
  const auto found = table.byName.find(key);
  return found == table.byName.end() ? nullptr : &table.rows[found->second];
}

const char* kvtErrorMessage(int32_t code) {
  switch (code) {
    case 0: return "no error";
    case 1: return "bad arguments or a floating-point failure";
    case 2: return "arguments outside the range of the function";
    case 3: return "iteration limit reached";
    case 4: return "unknown water state area";
    case 8: return "function not implemented";
    case 11: return "syntax error in a gas text";
    default: return "unknown error";
  }
}

}  // extern "C"
