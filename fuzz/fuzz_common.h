// What the fuzz targets share: a reader of the fuzzer's bytes that draws
// arguments biased to special and boundary values, a generic call of any
// export of the catalogue, and the contract every call must keep.
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include "kvtcore.h"

namespace kvtfuzz {

[[noreturn]] inline void Fail(const char* what, const char* name) {
  std::fprintf(stderr, "contract broken by %s: %s (code %d)\n", name, what,
               static_cast<int>(kvtGETLASTERROR()));
  std::abort();
}

// The fuzzer's bytes, read front to back; past the end every draw is 0.
class Bytes {
 public:
  Bytes(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  bool Empty() const { return pos_ >= size_; }
  uint8_t Byte() { return pos_ < size_ ? data_[pos_++] : 0; }
  uint16_t Word() { return static_cast<uint16_t>(Byte() | Byte() << 8); }
  template <class T>
  T Raw() {
    T value{};
    uint8_t bytes[sizeof(T)] = {};
    for (auto& b : bytes) b = Byte();
    std::memcpy(&value, bytes, sizeof(T));
    return value;
  }

 private:
  const uint8_t* data_;
  size_t size_;
  size_t pos_ = 0;
};

// Values at the edges of the ranges and of the regions, and of the doubles.
inline const std::vector<double>& SpecialDoubles() {
  static const std::vector<double> values = {
      0.0, -0.0, 1.0, -1.0, 0.5, 2.0, 10.0, 100.0,
      std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::quiet_NaN(),
      INFINITY, -INFINITY, DBL_MAX, -DBL_MAX, DBL_MIN, -DBL_MIN,
      std::numeric_limits<double>::denorm_min(), 1e-300, 1e300, 1e-12, 2e-12,
      273.15, 273.15999999999, 273.16, 300.0, 373.15, 500.0, 623.15, 647.096, 800.0,
      863.15, 1073.15, 1080.0, 1273.15, 2273.15, 200.0, 2500.0, 199.99, 1000.0,
      611.212677444343, 611.2, 1e5, 101325.0, 1e6, 3e6, 4e6, 1e7, 16.5292e6, 22.064e6, 25e6,
      5e7, 1e8, 1e9, 4e9, 1e3, 1e4, 2e5, 2.6e6, 2.0870e6, 2.5e6, 3.5e6, 1.67e6,
      3000.0, 4412.02148223476, 5000.0, 5850.0, 6000.0, 7000.0, 9000.0, 12000.0,
      322.0, 0.001, 0.1, 0.9, 0.99, 1.01, 1.1, 1.0 - 1e-16};
  return values;
}

inline double Double(Bytes& in) {
  const uint8_t kind = in.Byte();
  const auto& special = SpecialDoubles();
  const double base = special[in.Byte() % special.size()];
  switch (kind % 8) {
    case 0:
      return in.Raw<double>();
    case 1:  // one or a few steps off a special value
      return std::nextafter(base, (kind & 8) ? INFINITY : -INFINITY);
    case 2:  // a special value scaled by a little
      return base * (1.0 + (static_cast<int16_t>(in.Word())) * 1e-6);
    case 3:  // a special value scaled by much
      return base * std::ldexp(1.0, static_cast<int8_t>(in.Byte()) / 4);
    default:
      return base;
  }
}

inline int32_t Int(Bytes& in, const std::vector<int32_t>& ids) {
  static const int32_t special[] = {0,  1,  2,  3,  6,  7,  12, 13, 14, 15, -1, -2, -13, -14,
                                    11, 12, 100, 1000, INT32_MIN, INT32_MAX, INT32_MAX - 1};
  const uint8_t kind = in.Byte();
  if (kind % 4 == 0 && !ids.empty()) return ids[in.Byte() % ids.size()];
  if (kind % 4 == 1) return in.Raw<int32_t>();
  return special[in.Byte() % (sizeof special / sizeof special[0])];
}

// A gas text made of names, amounts, units and separators, or raw bytes.
inline std::string GasText(Bytes& in, const std::vector<std::string>& names) {
  static const char* const tokens[] = {
      "N2", "O2", "CO", "CO2", "H2O", "SO2", "Air", "N2Air", "NO", "NO2", "Ar", "Ne", "H2",
      "AirMix", "N2AirMix", "n2", " o2 ", "Xe", ":", ";", ";;", "{", "}", ":1", ":0", ":-1",
      ":0.5", ":0,5", ":1e308", ":1e-320", ":1e999", ":-0", ":nan", ":inf", ":1%", ":1g",
      ":1kg", ":1m", ":1v", ":1 kg", ":5e", ":+-1", ":0x10", ":1e-99999999999999999999",
      ":11e99999999999999999999", ":0.01e-99999999999999999999", " ", "\t", "%", "g", "1",
      "0", ".", ",", "e", "E", "-", "+", "9", "00000000000000000000", "\xff", "\x80"};
  const size_t count = in.Byte() % 24;
  std::string text;
  for (size_t i = 0; i < count && !in.Empty(); ++i) {
    const uint8_t kind = in.Byte();
    if (kind < 200) text += tokens[kind % (sizeof tokens / sizeof tokens[0])];
    else if (kind < 230 && !names.empty()) text += names[in.Byte() % names.size()];
    else text += static_cast<char>(in.Byte());
  }
  return text;
}

// The state of one fuzz input: the gases it made and the texts it drew,
// which must outlive the call that reads them.
struct Session {
  std::vector<int32_t> ids;
  std::vector<std::string> names;
  std::deque<std::string> texts;  // stay put while later ones are added
  int namedGases = 0;
};

// Output slots of the pair and 14-output shapes, set before each call to a
// NaN whose payload no computation makes, so that an unwritten one shows.
struct Outputs {
  static constexpr uint64_t kBits = 0x7ff4dead0000beefULL;
  static double Sentinel() {
    double d;
    std::memcpy(&d, &kBits, sizeof d);
    return d;
  }
  static bool IsSentinel(double d) { return std::memcmp(&d, &kBits, sizeof d) == 0; }
  void Reset() {
    for (double& d : slot) d = Sentinel();
    used = 0;
  }
  double slot[14];
  int used = 0;
};

// Draws one argument of the type the export takes.
template <class A>
A Draw(Bytes& in, Session& s, Outputs& out);
template <>
inline double Draw<double>(Bytes& in, Session&, Outputs&) { return Double(in); }
template <>
inline int32_t Draw<int32_t>(Bytes& in, Session& s, Outputs&) { return Int(in, s.ids); }
template <>
inline const char* Draw<const char*>(Bytes& in, Session& s, Outputs&) {
  s.texts.push_back(GasText(in, s.names));
  return s.texts.back().c_str();
}
template <>
inline double* Draw<double*>(Bytes&, Session&, Outputs& out) { return &out.slot[out.used++]; }

// The contract after a call: a finite result and code 0, or exactly -1 (a
// null text) and a code from 1 to 11; on success every output written.
inline void CheckCode(bool failed, const char* name) {
  const int32_t code = kvtGETLASTERROR();
  if (code < 0 || code > 11) Fail("code out of 0..11", name);
  if (failed != (code != 0)) Fail("failure value and code disagree", name);
}
inline void Check(double r, const Outputs& out, const char* name) {
  const int32_t code = kvtGETLASTERROR();
  if (code == 0 && !std::isfinite(r)) Fail("non-finite result", name);
  if (code != 0) {
    if (r != -1.0) Fail("failure not -1", name);
    CheckCode(true, name);
    return;
  }
  if (out.used > 0) {
    if (r != 1.0) Fail("output shape did not return 1", name);
    for (int i = 0; i < out.used; ++i)
      if (Outputs::IsSentinel(out.slot[i])) Fail("output not written", name);
  }
}
inline void Check(int32_t r, const Outputs&, const char* name) {
  if (kvtGETLASTERROR() != 0 && r != -1) Fail("failure not -1", name);
  CheckCode(kvtGETLASTERROR() != 0, name);
}
template <class C>
void Check(const C* r, const Outputs&, const char* name) {
  CheckCode(r == nullptr, name);
  if (r && std::char_traits<C>::length(r) >= 4667) Fail("text too long", name);
}

// One row of the catalogue: its name, whether its frame is the plain one
// of the last-error functions (no contract on the code), and a generic call.
struct Row {
  const char* name;
  const char* shape;
  bool plain;
  void (*call)(Bytes&, Session&, Outputs&, const char*, bool);
};

template <class F>
struct Call;
template <class R, class... A>
struct Call<R (*)(A...)> {
  template <R (*F)(A...)>
  static void Run(Bytes& in, Session& s, Outputs& out, const char* name, bool plain) {
    out.Reset();
    std::tuple<A...> args{Draw<A>(in, s, out)...};  // drawn left to right
    const R r = std::apply(F, args);
    if (!plain) Check(r, out, name);
  }
};

#define KVT_FUZZ_ROW(ord, name, shape, rule, core, args, result) \
  {#name, #shape, std::strcmp(#rule, "Plain") == 0,             \
   &Call<decltype(&name)>::template Run<&name>},
inline const std::vector<Row>& Rows() {
  static const std::vector<Row> rows = {KVT_CATALOGUE(KVT_FUZZ_ROW)};
  return rows;
}
#undef KVT_FUZZ_ROW

}  // namespace kvtfuzz
