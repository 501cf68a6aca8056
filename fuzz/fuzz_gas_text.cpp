// Fuzz target over the gas-text reader and writer. The input is a gas text;
// it is read and written back (kvtgGSGS), and what is written must read
// again to the same composition.
#include <map>

#include "fuzz_common.h"

using namespace kvtfuzz;

namespace {

// "N2:0.7803;O2:0.2099;" or a lone name, as the writer gives it.
std::map<std::string, double> Composition(const std::string& text) {
  std::map<std::string, double> parts;
  if (text.find(':') == std::string::npos) {
    parts[text] = 1.0;
    return parts;
  }
  size_t pos = 0;
  while (pos < text.size()) {
    const size_t colon = text.find(':', pos), end = text.find(';', pos);
    if (colon == std::string::npos || end == std::string::npos || colon > end)
      Fail("writer's text malformed", "kvtgGSGS");
    parts[text.substr(pos, colon - pos)] = std::strtod(text.c_str() + colon + 1, nullptr);
    pos = end + 1;
  }
  return parts;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), strnlen(reinterpret_cast<const char*>(data), size));
  const char* written = kvtgGSGS(text.c_str());
  Check(written, Outputs(), "kvtgGSGS");
  Check(kvtgMMGS(text.c_str()), Outputs(), "kvtgMMGS");
  if (!written || !*written) return 0;
  const std::string first = written;
  const char* again = kvtgGSGS(first.c_str());
  if (!again) Fail("written text does not read back", first.c_str());
  const std::string second = again;
  const auto a = Composition(first), b = Composition(second);
  // Amounts near the smallest doubles give fractions with few significant
  // bits, whose sum is not 1; the text states them as they are, and read
  // back they are shares of that sum. Only a text whose fractions sum to 1
  // must read back to itself.
  double sum = 0;
  for (const auto& part : a) sum += part.second;
  if (!(std::fabs(sum - 1) <= 1e-12)) return 0;
  for (const auto& [name, x] : a) {
    const auto found = b.find(name);
    const double y = found == b.end() ? 0.0 : found->second;
    if (!(std::fabs(x - y) <= 1e-12)) Fail("round trip changed the composition", first.c_str());
  }
  for (const auto& [name, y] : b)
    if (!a.count(name) && !(std::fabs(y) <= 1e-12)) Fail("round trip added a gas", first.c_str());
  return 0;
}
