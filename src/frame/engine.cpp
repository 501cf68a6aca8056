#include "frame/engine.h"

#include "shell/error_texts.h"

namespace kvt {

EngineBase::EngineBase()
    : lastError(0),
      maxIteration(100),
      tolerance(2e-12),
      checkRangeMode(1),
      toleranceMode(1),
      calcDissMode(0),
      errorText{},
      errorTextW{} {}

void EngineBase::CopySettingsFrom(const EngineBase& from) {
  maxIteration = from.maxIteration;
  tolerance = from.tolerance;
  checkRangeMode = from.checkRangeMode;
  toleranceMode = from.toleranceMode;
  calcDissMode = from.calcDissMode;
}

// Members are built in order, each with a back reference to the engine.
Engine::Engine() : water(this), ice(this), gas(this) {}

double Engine::RESERVED0() { raise(8); }
double Engine::RESERVED1(double) { raise(8); }

int32_t Engine::SETLASTERROR(int32_t code) {
  lastError = code > 0 && code < 12 ? code : 0;
  return lastError;
}

const char* Engine::GETLASTERRORDESCRIPTION() {
  errorText[0] = 0;
  LoadErrorText(lastError, errorText, sizeof errorText);
  return errorText;
}

const char16_t* Engine::GETLASTERRORDESCRIPTIONW() {
  errorTextW[0] = 0;
  LoadErrorText(lastError, errorTextW, sizeof errorTextW / sizeof errorTextW[0]);
  return errorTextW;
}

Engine theEngine;
void* instanceHandle = nullptr;

}  // namespace kvt
