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

  // Sublimation pressure over ice Ih and melting pressure of ice Ih, Pa, by
  // T in K (the 1993 IAPWS release). Pure functions of T.
  double PSUBT(double T);
  double PMELTIT(double T);

  Engine* engine;
};

}  // namespace kvt
