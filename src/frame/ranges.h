// Input validity ranges. A rule is a type whose Fails(engine, inputs...)
// answers whether the inputs of its family lie outside the range; the guarded
// call asks it only while checkRangeMode is nonzero. Every comparison is
// written so that a NaN is not caught and runs on to the finiteness test.
// Arguments a rule does not name (output slots and the like) are ignored.
#pragma once

namespace kvt {
class Engine;

namespace rules {

// No comparison in any mode.
struct None {
  template <class... X>
  static bool Fails(Engine&, X&&...) { return false; }
};

// Frame markers for the settings functions: Getter clears the error code and
// reads with no guarded region; Plain leaves the error code as it stands.
struct Getter {};
struct Plain {};

}  // namespace rules
}  // namespace kvt
