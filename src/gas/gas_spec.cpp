// Gas-spec text: the reader that turns "N2:0.79;O2:0.21" into a record, the
// cache that spares a second parse, and the writer that turns a record back
// into text.
//
//   spec   := items with ";" between, any number of ";" in front, one at the end
//   item   := target | target ":" amount
//   target := gas name | "{" spec "}"
//   amount := number | number unit     (no blank between them)
//   unit   := V | % (volume)  M | KG | G (mass)          case is ignored
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <system_error>

#include "frame/raise.h"
#include "gas/gas_engine.h"

namespace kvt {

namespace {

constexpr const char* kWhite = " \t\n\v\f\r";
// What a number may be made of; the blank is here so that a blank before
// the number falls away.
constexpr const char* kNumberChars = "01234567890., eE-+";
std::string Trim(const std::string& s) {
  const size_t first = s.find_first_not_of(kWhite);
  if (first == std::string::npos) return std::string();
  return s.substr(first, s.find_last_not_of(kWhite) - first + 1);
}

std::string UpperCase(std::string s) {
  for (char& c : s)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return s;
}

// Whether a decimal text out of range lies below the smallest double (it
// then reads as zero) rather than above the largest. The decimal exponent of
// the first significant digit is counted with the written exponent held to
// a bound far beyond any double's, so that no length of digits overflows it.
bool Underflows(const char* first, const char* last) {
  constexpr long long kBound = 1000000000;  // |exponent| beyond any double's
  long long place = 0;  // decimal exponent of the first significant digit
  bool seen = false, point = false;
  const char* p = first;
  if (p < last && (*p == '-' || *p == '+')) ++p;
  for (; p < last && ((*p >= '0' && *p <= '9') || *p == '.'); ++p) {
    if (*p == '.') {
      point = true;
    } else if (!seen && *p != '0') {
      seen = true;
      if (point) --place;
    } else if (seen && !point) {
      place = std::min(place + 1, kBound);
    } else if (!seen && point) {
      place = std::max(place - 1, -kBound);
    }
  }
  long long exponent = 0;
  if (p < last && (*p == 'e' || *p == 'E')) {
    ++p;
    const bool negative = p < last && *p == '-';
    if (p < last && (*p == '-' || *p == '+')) ++p;
    for (; p < last && *p >= '0' && *p <= '9'; ++p)
      exponent = std::min(exponent * 10 + (*p - '0'), kBound);
    if (negative) exponent = -exponent;
  }
  return !seen || place + exponent < 0;
}

// Blanks in front, then the longest number, which must end the text.
double ReadNumber(const std::string& text) {
  const char* first = text.c_str();
  const char* last = first + text.size();
  while (first < last && std::strchr(kWhite, *first)) ++first;
  const char* number = first;
  if (first < last && *first == '+') {
    ++first;
    if (first < last && (*first == '+' || *first == '-')) raise(11);
  }
  double value = 0;
  const auto r = std::from_chars(first, last, value, std::chars_format::general);
  if (r.ec == std::errc::result_out_of_range) {
    if (!Underflows(number, r.ptr)) raise(11);
    value = *number == '-' ? -0.0 : 0.0;
  } else if (r.ec != std::errc()) {
    raise(11);
  }
  if (r.ptr != last || !std::isfinite(value)) raise(11);
  return value;
}

// The next item of a spec from pos on; false at the end, with pos -1.
// The length of an item is counted from the old pos, not from the item's
// start: after a doubled ";" inside a spec the piece is too long by the extra
// separators and holds a ";" of its own, on which the reader then fails.
// At the beginning or the end of a text the excess falls off the end.
bool NextItem(const std::string& spec, long long& pos, std::string& piece) {
  const long long length = static_cast<long long>(spec.size());
  if (pos < 0 || pos >= length) {
    pos = -1;
    return false;
  }
  long long k = 0;
  while (pos + k < length && spec[pos + k] == ';') ++k;
  if (pos + k >= length) {
    pos = -1;
    return false;
  }
  long long e = pos + k;
  int depth = 0;
  for (; e < length; ++e) {
    const char c = spec[e];
    if (c == ';' && depth == 0) break;
    if (c == '{') ++depth;
    else if (c == '}') --depth;  // a "}" too many stays at -1
  }
  if (e == length && depth != 0) {
    pos = -1;
    return false;
  }
  piece = spec.substr(pos + k, e - pos);
  pos = pos + k + (e - pos) + 1;
  return true;
}

// 15 significant digits; fixed form for decimal exponents -1 to 14, else
// mantissa, "e", sign and three exponent digits. Trailing zeros go, the
// decimal mark stays: 0.7803, 1., 9.4e-003, 3.e-004.
std::string FormatFraction(double x) {
  char text[400];
  std::snprintf(text, sizeof text, "%.14e", x);
  const char* mark = std::strchr(text, 'e');
  if (!mark) return text;
  const int d = std::atoi(mark + 1);
  std::string mantissa;
  if (d >= -1 && d <= 14) {
    std::snprintf(text, sizeof text, "%#.*f", 14 - d, x);
    mantissa = text;
  } else {
    mantissa.assign(text, static_cast<size_t>(mark - text));
  }
  const size_t last = mantissa.find_last_not_of('0');
  mantissa.erase(last + 1);
  if (d >= -1 && d <= 14) return mantissa;
  std::snprintf(text, sizeof text, "e%c%03d", d < 0 ? '-' : '+', d < 0 ? -d : d);
  return mantissa + text;
}

}  // namespace

// ---- Cache ----

GasRecord* GasSpecCache::Find(const std::string& text) const {
  auto found = entries.find(text);
  return found == entries.end() ? nullptr : found->second.record;
}

void GasSpecCache::Insert(GasRecord* record) {
  entries.emplace(record->name.get(), GasSpecCacheEntry{record});
}

void GasSpecCache::Clear() {
  NoCaseMap<GasSpecCacheEntry> gone;
  gone.swap(entries);
  for (auto& entry : gone) entry.second.record->Release();
}

// A purged record that a gas or the registry still holds lives on by its
// reference.
void GasSpecCache::Purge(const GasRecord& keep) {
  for (auto it = entries.begin(); it != entries.end();) {
    GasRecord* record = it->second.record;
    if (keep.ContainsGas(*record)) {
      ++it;
    } else {
      it = entries.erase(it);
      record->Release();
    }
  }
}

// ---- Reader ----

// Braces nest, each level a recursion of the reader; a text nested deeper
// than any real mixture is refused as a syntax error before it can exhaust
// the host's stack.
constexpr int32_t kMaxSpecNesting = 200;

GasRecord* GasEngine::SpecLookup(const char* text) {
  const std::string spec = Trim(text ? text : "");
  if (GasRecord* cached = specCache.Find(spec)) return cached;
  auto named = nameMap.find(spec);
  if (named != nameMap.end()) return named->second;  // a plain name is no cache entry
  if (specNesting >= kMaxSpecNesting) raise(11);
  struct Level {
    int32_t& depth;
    ~Level() { --depth; }
  } level{++specNesting};
  GasRecord* record = new GasRecord(engine, spec.c_str());
  try {
    long long pos = 0;
    std::string piece;
    if (!NextItem(spec, pos, piece)) raise(11);
    do {
      ReadItem(*record, piece);
    } while (NextItem(spec, pos, piece));
  } catch (int32_t) {
    record->Release();
    throw;
  } catch (...) {
    record->Release();
    raise(1);
  }
  specCache.Insert(record);
  return record;
}

GasRecord* GasEngine::GetBySpec(const char* text) {
  GasRecord* record = SpecLookup(text);
  // The cache grows to 1025 entries, then keeps only what this gas is made of.
  if (specCache.entries.size() >= 1025) specCache.Purge(*record);
  return record;
}

void GasEngine::ReadItem(GasRecord& mixture, const std::string& piece) {
  const std::string item = Trim(piece);
  double n = 0, m = 0;
  bool byMass = false;
  std::string target = item;
  // A ":" inside braces does not start an amount.
  const size_t colon = item.rfind(':');
  const size_t brace = item.rfind('}');
  const bool amount =
      colon != std::string::npos && (brace == std::string::npos || brace <= colon);
  if (!amount) {
    n = 1;
  } else {
    const std::string rest = item.substr(colon + 1);
    if (rest.empty()) raise(11);
    size_t split = rest.find_first_not_of(kNumberChars);
    if (split == std::string::npos) split = rest.size();
    std::string number = rest.substr(0, split);
    for (char& c : number)
      if (c == ',') c = '.';
    if (number.empty()) raise(11);
    const double value = ReadNumber(number);
    const std::string unit = UpperCase(Trim(rest.substr(split)));
    if (unit.empty() || unit == "V") {
      n = value;
    } else if (unit == "M" || unit == "KG") {
      m = value;
      byMass = true;
    } else if (unit == "G") {
      m = value * 0.001;
      byMass = true;
    } else if (unit == "%") {
      n = value * 0.01;
    } else {
      raise(11);
    }
    target = item.substr(0, colon);
  }
  target = Trim(target);
  GasRecord* gas;
  if (!target.empty() && target.front() == '{' && target.back() == '}')
    gas = SpecLookup(target.substr(1, target.size() - 2).c_str());
  else
    gas = GetByName(target.c_str());
  if (byMass) n = m / gas->molarMass;
  else m = gas->molarMass * n;
  // An amount past the largest double, alone or added to what the mixture
  // holds, would blend to nonsense in silence: it is refused like a number
  // that cannot be read.
  if (std::isinf(n) || std::isinf(m) || std::isinf(mixture.totalMoles + n) ||
      std::isinf(mixture.totalMass + m))
    raise(11);
  mixture.AddComponent(*gas, n, m);
}

// ---- Writer ----

// Always in the thirteen table gases, so nesting is flattened and Air and
// N2Air stay gases of their own. An empty record, whose fractions are not
// numbers, writes as an empty text.
const char* GasEngine::GasText(const GasRecord& record) {
  std::string text;
  for (int32_t i = 0; i < kTableGases; ++i) {
    const GasRecord* gas = GetById(i);
    if (gas == &record) {
      text = gas->name.get();
      break;
    }
    const double x = record.VolumeFractionOf(*gas);
    if (x != 0 && std::isfinite(x)) text += std::string(gas->name.get()) + ":" + FormatFraction(x) + ";";
    if (text.size() >= kGasTextSize) raise(1);  // too long already: stop writing
  }
  if (text.size() >= kGasTextSize) raise(1);
  std::memcpy(gasText, text.c_str(), text.size() + 1);
  return gasText;
}

}  // namespace kvt
