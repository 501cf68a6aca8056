// Engines as values: made, cloned and freed by the caller, each with its own
// settings, last error, scratch tables and gases.
#include <cmath>
#include <cstring>
#include <limits>
#include <new>

#include "batch/batch.h"
#include "frame/guarded_call.h"

using kvt::Engine;
using kvt::GasEngine;
using kvt::GuardedOn;
namespace rules = kvt::rules;

namespace {

// The settings that kvtEngineSet and kvtEngineGet know. An integer setting
// takes only a value that is a 32-bit integer.
enum class Setting { kNone, kTolerance, kToleranceMode, kCheckRangeMode, kMaxIteration };

Setting SettingOf(const char* name) {
  if (!name) return Setting::kNone;
  if (std::strcmp(name, "tolerance") == 0) return Setting::kTolerance;
  if (std::strcmp(name, "toleranceMode") == 0) return Setting::kToleranceMode;
  if (std::strcmp(name, "checkRangeMode") == 0) return Setting::kCheckRangeMode;
  if (std::strcmp(name, "maxIteration") == 0) return Setting::kMaxIteration;
  return Setting::kNone;
}

bool IsInt32(double x) {
  return x >= -2147483648.0 && x <= 2147483647.0 && static_cast<double>(static_cast<int32_t>(x)) == x;
}

}  // namespace

extern "C" {

kvtEngine* kvtEngineNew(void) { return new (std::nothrow) kvtEngine(); }

kvtEngine* kvtEngineClone(const kvtEngine* e) {
  if (!e) return nullptr;
  kvtEngine* clone = new (std::nothrow) kvtEngine();
  if (!clone) return nullptr;
  try {
    clone->CopySettingsFrom(*e);
    clone->gas.CopyFrom(e->gas);
  } catch (...) {
    delete clone;
    return nullptr;
  }
  return clone;
}

void kvtEngineFree(kvtEngine* e) { delete e; }

// Through the guarded call of the export's setter, so that the last error
// comes out as the export leaves it (a NaN tolerance is stored, and gives 1).
int32_t kvtEngineSet(kvtEngine* e, const char* setting, double value) {
  if (!e) return 1;
  const Setting s = SettingOf(setting);
  if (s == Setting::kNone || (s != Setting::kTolerance && !IsInt32(value))) return 1;
  const int32_t i = s == Setting::kTolerance ? 0 : static_cast<int32_t>(value);
  switch (s) {
    case Setting::kTolerance: GuardedOn<double, rules::None, &Engine::SETTOLERANCE>(*e, value); break;
    case Setting::kToleranceMode: GuardedOn<int32_t, rules::None, &Engine::SETTOLERANCEMODE>(*e, i); break;
    case Setting::kCheckRangeMode: GuardedOn<int32_t, rules::None, &Engine::SETCHECKRANGEMODE>(*e, i); break;
    case Setting::kMaxIteration: GuardedOn<int32_t, rules::None, &Engine::SETMAXITERATION>(*e, i); break;
    case Setting::kNone: break;
  }
  return 0;
}

double kvtEngineGet(const kvtEngine* e, const char* setting) {
  if (!e) return std::numeric_limits<double>::quiet_NaN();
  switch (SettingOf(setting)) {
    case Setting::kTolerance: return e->tolerance;
    case Setting::kToleranceMode: return e->toleranceMode;
    case Setting::kCheckRangeMode: return e->checkRangeMode;
    case Setting::kMaxIteration: return e->maxIteration;
    case Setting::kNone: break;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

int32_t kvtEngineLastError(const kvtEngine* e) { return e ? e->lastError : -1; }

int32_t kvtEngineNewGas(kvtEngine* e, const char* gasSpec) {
  if (!e) return -1;
  return GuardedOn<int32_t, rules::None, &GasEngine::NewGasFromSpec>(*e, gasSpec);
}

int32_t kvtEngineDeleteGas(kvtEngine* e, int32_t id) {
  if (!e) return -1;
  return GuardedOn<int32_t, rules::None, &GasEngine::DeleteGas>(*e, id);
}

}  // extern "C"
