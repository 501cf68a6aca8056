// The gas engine: owner of every gas record and of the registry through which
// callers reach a gas, by id or by gas-spec text.
//
// Ids 0 to 12 are the table gases in table order, 13 AirMix, 14 N2AirMix.
// A caller's gas gets an id from a counter that starts above 14 and stays
// within a signed 32-bit integer; callers only hand back what they got.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>

#include "gas/gas_record.h"

namespace kvt {

class Engine;

// Text keys compare without regard to case: "n2" and "N2" are one name.
struct NoCaseHash {
  size_t operator()(const std::string& s) const;
};
struct NoCaseEqual {
  bool operator()(const std::string& x, const std::string& y) const;
};
template <class V>
using NoCaseMap = std::unordered_map<std::string, V, NoCaseHash, NoCaseEqual>;

// A parsed text and the one reference the cache owns on its record.
struct GasSpecCacheEntry {
  GasRecord* record;
};

// Texts parsed once and found again. The key is the record's name, which is
// the trimmed text.
struct GasSpecCache {
  explicit GasSpecCache(Engine* engine) : engine(engine) {}
  ~GasSpecCache() { Clear(); }
  GasRecord* Find(const std::string& text) const;
  void Insert(GasRecord* record);  // takes over the record's reference
  void Clear();                    // releases every entry
  // Keeps only the entries that keep is made of (at any depth), or is.
  void Purge(const GasRecord& keep);

  Engine* engine;
  NoCaseMap<GasSpecCacheEntry> entries;
};

class GasEngine {
 public:
  explicit GasEngine(Engine* engine);
  ~GasEngine();
  GasEngine(const GasEngine&) = delete;
  GasEngine& operator=(const GasEngine&) = delete;

  // ---- Registry ----
  GasRecord* GetById(int32_t id) const;
  GasRecord* GetByName(const char* text) const;
  GasRecord* GetBySpec(const char* text);
  GasRecord* SpecLookup(const char* text);
  int32_t IdOfName(const char* text) const;
  int32_t NewGas();
  int32_t NewNamedGas(const char* text);
  int32_t NewGasFromSpec(const char* text);
  int32_t DeleteGas(int32_t id);
  int32_t DeleteGases();
  int32_t GasesCount() const { return static_cast<int32_t>(idMap.size()); }
  const char* GasText(const GasRecord& record);

  // Makes this registry a copy of another engine's: the same ids, names,
  // cached texts and next id, on records of this engine with the same
  // numbers. Mixtures are copied with their components, deleted gases that a
  // mixture still holds included.
  void CopyFrom(const GasEngine& from);

  // ---- Cores of the exports ----
  // A property of the gas of an id or of a text: look the gas up, then run
  // one operation of its record. The range rule has already seen T.
  template <auto Op, class... A>
  double ById(int32_t id, A... a) {
    return std::invoke(Op, *GetById(id), a...);
  }
  template <auto Op, class... A>
  double BySpec(const char* gs, A... a) {
    return std::invoke(Op, *GetBySpec(gs), a...);
  }
  // The share of the second gas in the first. By id the second is looked up
  // first; by text the first, and without purging the cache, which could
  // free the record just found.
  template <auto Op>
  double PairById(int32_t mixture, int32_t part) {
    const GasRecord* p = GetById(part);
    return std::invoke(Op, *GetById(mixture), *p);
  }
  template <auto Op>
  double PairBySpec(const char* mixture, const char* part) {
    const GasRecord* m = SpecLookup(mixture);
    return std::invoke(Op, *m, *SpecLookup(part));
  }
  template <auto Op>
  int32_t AddById(int32_t mixture, int32_t component, double amount) {
    GasRecord* m = GetById(mixture);
    return std::invoke(Op, *m, *GetById(component), amount);
  }
  const char* GSID(int32_t id) { return GasText(*GetById(id)); }
  const char* GSGS(const char* gs) { return GasText(*GetBySpec(gs)); }
  // A placeholder of the interface: reads nothing, fails without a code.
  double GETGASDATA(double, double, double, double, double, double, double, double, double,
                    double, double, double) {
    return -1.0;
  }
  // No dissociation is computed: the mode can be read, never set.
  int32_t SETCALCDISSMODE(int32_t mode);
  int32_t GETCALCDISSMODE();

  Engine* engine;
  std::unordered_map<int32_t, GasRecord*> idMap;  // one reference per entry
  NoCaseMap<GasRecord*> nameMap;                  // no references of its own
  GasSpecCache specCache;
  // The text that kvtgGSID and kvtgGSGS return, valid to the next such call.
  static constexpr size_t kGasTextSize = 4667;
  char gasText[kGasTextSize] = {};

 private:
  void Register(int32_t id, GasRecord* record);  // takes over one reference
  int32_t NextId();
  void ReadItem(GasRecord& mixture, const std::string& piece);

  int32_t lastCallerId;
  int32_t specNesting = 0;  // braces being read, see SpecLookup
};

}  // namespace kvt
