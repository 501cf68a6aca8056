// The gas registry: the table gases and ready mixtures made at start, the id
// and name maps, callers' gases and their deletion.
#include "gas/gas_engine.h"

#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

#include "frame/engine.h"
#include "frame/raise.h"

#if defined(__SANITIZE_ADDRESS__)
#define KVT_LSAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KVT_LSAN 1
#endif
#endif
#ifdef KVT_LSAN
#include <sanitizer/lsan_interface.h>
#endif

namespace kvt {

namespace {

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

size_t NoCaseHash::operator()(const std::string& s) const {
  uint32_t h = 0;
  for (char c : s) h = 33 * h + static_cast<uint32_t>(static_cast<int32_t>(Upper(c)));
  return h;
}

bool NoCaseEqual::operator()(const std::string& x, const std::string& y) const {
  if (x.size() != y.size()) return false;
  for (size_t i = 0; i < x.size(); ++i)
    if (Upper(x[i]) != Upper(y[i])) return false;
  return true;
}

GasEngine::GasEngine(Engine* engine) : engine(engine), specCache(engine), lastCallerId(14) {
  for (int32_t i = 0; i < kTableGases; ++i)
    Register(i, new GasRecord(engine, kGasTable[i], kGasTable[i].name));
  // AirMix as id 13 and N2AirMix as 14, each from its rows of the mixture
  // table in order.
  int32_t id = 13;
  GasRecord* mixture = nullptr;
  for (const MixtureRow& row : kMixtureTable) {
    if (!mixture || std::strcmp(mixture->name.get(), row.mixture) != 0) {
      if (mixture) Register(id++, mixture);
      mixture = new GasRecord(engine, row.mixture);
    }
    mixture->AddByVolume(*GetByName(row.component), row.volumeFraction);
  }
  Register(id, mixture);
}

GasEngine::~GasEngine() {
  for (auto& entry : idMap) entry.second->Release();
  idMap.clear();
  nameMap.clear();
  engine = nullptr;
  specCache.Clear();
}

void GasEngine::Register(int32_t id, GasRecord* record) {
  idMap[id] = record;
  if (record->name) nameMap[record->name.get()] = record;
}

// Fresh ids from 15 up to the largest 32-bit integer, then round again,
// passing over those still in use.
int32_t GasEngine::NextId() {
  do {
    lastCallerId = lastCallerId < 15 || lastCallerId == std::numeric_limits<int32_t>::max()
                       ? 15
                       : lastCallerId + 1;
  } while (idMap.count(lastCallerId));
  return lastCallerId;
}

GasRecord* GasEngine::GetById(int32_t id) const {
  auto found = idMap.find(id);
  if (found == idMap.end()) raise(1);
  return found->second;
}

GasRecord* GasEngine::GetByName(const char* text) const {
  auto found = nameMap.find(text ? text : "");
  if (found == nameMap.end()) raise(1);
  return found->second;
}

int32_t GasEngine::IdOfName(const char* text) const {
  const GasRecord* record = GetByName(text);
  for (const auto& entry : idMap)
    if (entry.second == record) return entry.first;
  raise(1);
}

int32_t GasEngine::NewGas() {
  const int32_t id = NextId();
  Register(id, new GasRecord(engine));
  return id;
}

int32_t GasEngine::NewNamedGas(const char* text) {
  if (!text) text = "";
  if (nameMap.count(text)) raise(1);
  GasRecord* record = new GasRecord(engine, text);
  // One reference more than the registry needs, and it is never given back:
  // a gas made this way stays allocated after its deletion, to the end of
  // the process. The leak checker is told that this is meant.
  record->AddRef();
#ifdef KVT_LSAN
  __lsan_ignore_object(record);
#endif
  const int32_t id = NextId();
  Register(id, record);
  return id;
}

int32_t GasEngine::NewGasFromSpec(const char* text) {
  GasRecord* record = GetBySpec(text);
  // Refuses a plain name and a text registered before.
  if (!record->name || nameMap.count(record->name.get())) raise(1);
  record->AddRef();
  const int32_t id = NextId();
  Register(id, record);
  return id;
}

int32_t GasEngine::DeleteGas(int32_t id) {
  // AirMix (13) is kept; N2AirMix (14) is not.
  if (std::llabs(static_cast<long long>(id)) <= 13) raise(1);
  GasRecord* record = GetById(id);
  if (record->name) {
    auto named = nameMap.find(record->name.get());
    if (named != nameMap.end() && named->second == record) nameMap.erase(named);
  }
  idMap.erase(id);
  record->Release();
  return GasesCount();
}

// Everything but the table gases goes, both ready mixtures included, and
// the cache with it.
int32_t GasEngine::DeleteGases() {
  for (auto it = idMap.begin(); it != idMap.end();) {
    if (it->first >= 13 || it->first < 0) {
      GasRecord* record = it->second;
      if (record->name) {
        auto named = nameMap.find(record->name.get());
        if (named != nameMap.end() && named->second == record) nameMap.erase(named);
      }
      it = idMap.erase(it);
      record->Release();
    } else {
      ++it;
    }
  }
  specCache.Clear();
  return GasesCount();
}

int32_t GasEngine::SETCALCDISSMODE(int32_t) { raise(8); }
int32_t GasEngine::GETCALCDISSMODE() { return engine->calcDissMode; }

}  // namespace kvt
