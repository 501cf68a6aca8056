// The ice-curve calculator: sublimation and melting pressures of ice Ih.
#pragma once

namespace kvt {

class Engine;

class IceCalculator {
 public:
  explicit IceCalculator(Engine* engine) : engine(engine) {}
  ~IceCalculator() { engine = nullptr; }
  IceCalculator(const IceCalculator&) = delete;
  IceCalculator& operator=(const IceCalculator&) = delete;

  Engine* engine;
};

}  // namespace kvt
