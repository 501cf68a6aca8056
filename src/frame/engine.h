// The one engine object: settings, the last error, the error-text buffers and
// the three calculators. Every export works on it; there is no handle.
#pragma once

#include <cstdint>

#include "gas/gas_engine.h"
#include "regions/water_calculator.h"
#include "transport/ice_calculator.h"

namespace kvt {

// The plain members, with their defaults.
struct EngineBase {
  EngineBase();
  // Takes the settings of another engine; the last error and the text
  // buffers stay this engine's own.
  void CopySettingsFrom(const EngineBase& from);

  int32_t lastError;
  int32_t maxIteration;
  double tolerance;
  int32_t checkRangeMode;
  int32_t toleranceMode;
  int32_t calcDissMode;
  char errorText[256];
  char16_t errorTextW[256];
};

class Engine : public EngineBase {
 public:
  Engine();
  ~Engine() = default;
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  WaterCalculator water;
  IceCalculator ice;
  GasEngine gas;

  // Settings. The setters store whatever they get; a mode is on when nonzero.
  double SETTOLERANCE(double value) { return tolerance = value; }
  double GETTOLERANCE() { return tolerance; }
  int32_t SETTOLERANCEMODE(int32_t value) { return toleranceMode = value; }
  int32_t GETTOLERANCEMODE() { return toleranceMode; }
  int32_t SETCHECKRANGEMODE(int32_t value) { return checkRangeMode = value; }
  int32_t GETCHECKRANGEMODE() { return checkRangeMode; }
  int32_t SETMAXITERATION(int32_t value) { return maxIteration = value; }
  int32_t GETMAXITERATION() { return maxIteration; }
  double GETKVTVERSION() { return 6.0001; }
  double GETABSOLUTEGASCONSTANT() { return 8.31451; }

  // The settings that the interface reserves: they store and read nothing.
  double RESERVED0();
  double RESERVED1(double ignored);

  // Last error. Codes 1 to 11 are kept; anything else clears the register.
  int32_t SETLASTERROR(int32_t code);
  int32_t GETLASTERROR() { return lastError; }
  const char* GETLASTERRORDESCRIPTION();
  const char16_t* GETLASTERRORDESCRIPTIONW();

  // Help and about (shell/help.cpp): the only calls with a user interface.
  // Both return 1; on systems other than Windows they do nothing else.
  double SHOWKVTHELP(int32_t window);
  double SHOWABOUT(int32_t window);
};

// The engine of the loaded library, constructed at load after the constant
// bounds (which are constant-initialised and so exist before any code runs).
extern Engine theEngine;
inline Engine& engine() { return theEngine; }

// The module handle, stored by the library's entry point on Windows
// (shell/dll_main.cpp); the string table is read through it. Null elsewhere.
extern void* instanceHandle;

}  // namespace kvt
