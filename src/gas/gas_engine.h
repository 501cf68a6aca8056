// The gas engine: owner of every gas record and of the gas registry.
#pragma once

namespace kvt {

class Engine;

class GasEngine {
 public:
  explicit GasEngine(Engine* engine) : engine(engine) {}
  ~GasEngine() { engine = nullptr; }
  GasEngine(const GasEngine&) = delete;
  GasEngine& operator=(const GasEngine&) = delete;

  Engine* engine;
};

}  // namespace kvt
