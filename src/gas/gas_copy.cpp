// A copy of a gas registry for another engine: how an engine of the array
// interface gets the gases of the engine it is cloned from. Records are
// copied number for number, never rebuilt, since a mixture's coefficients are
// the result of its history of additions.
#include <unordered_map>

#include "gas/gas_engine.h"

namespace kvt {

namespace {

class RecordCopier {
 public:
  explicit RecordCopier(Engine* engine) : engine(engine) {}

  // The copy of a record, made once; a mixture's components first. Each
  // copy starts with no reference: whoever holds it takes one.
  GasRecord* Copy(const GasRecord* from) {
    auto found = copies.find(from);
    if (found != copies.end()) return found->second;
    GasRecord* to = new GasRecord(engine, from->name.get());
    to->referenceCount = 0;
    copies.emplace(from, to);
    CopyNumbers(*from, *to);
    for (const auto& [component, amount] : from->components) {
      GasRecord* c = Copy(component);
      to->components.emplace(c, amount);
      c->AddRef();
    }
    return to;
  }

  GasRecord* Held(const GasRecord* from) {
    GasRecord* to = Copy(from);
    to->AddRef();
    return to;
  }

 private:
  // Every number of a record but its name, references, engine and components.
  static void CopyNumbers(const GasRecord& from, GasRecord& to) {
    to.molarMass = from.molarMass;
    for (int i = 0; i < 7; ++i) to.a[i] = from.a[i];
    for (int i = 0; i < 6; ++i) to.b[i] = from.b[i];
    to.enthalpyReferenceT = from.enthalpyReferenceT;
    to.entropyReferenceT = from.entropyReferenceT;
    to.entropyReferenceP = from.entropyReferenceP;
    to.referenceEnthalpy = from.referenceEnthalpy;
    to.referenceEntropy = from.referenceEntropy;
    to.gasConstant = from.gasConstant;
    to.enthalpyOffset = from.enthalpyOffset;
    to.entropyOffset = from.entropyOffset;
    to.mixingEntropy = from.mixingEntropy;
    to.tFromS0 = from.tFromS0;
    to.tFromS1 = from.tFromS1;
    to.tFromS2 = from.tFromS2;
    to.totalMoles = from.totalMoles;
    to.totalMass = from.totalMass;
  }

  Engine* engine;
  std::unordered_map<const GasRecord*, GasRecord*> copies;
};

}  // namespace

void GasEngine::CopyFrom(const GasEngine& from) {
  if (&from == this) return;
  for (auto& entry : idMap) entry.second->Release();
  idMap.clear();
  nameMap.clear();
  specCache.Clear();
  RecordCopier copier(engine);
  for (const auto& [id, record] : from.idMap) idMap.emplace(id, copier.Held(record));
  for (const auto& [name, record] : from.nameMap) nameMap.emplace(name, copier.Copy(record));
  for (const auto& [text, entry] : from.specCache.entries)
    specCache.entries.emplace(text, GasSpecCacheEntry{copier.Held(entry.record)});
  lastCallerId = from.lastCallerId;
}

}  // namespace kvt
