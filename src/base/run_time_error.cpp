#include "base/run_time_error.h"

#include <limits>

namespace zentrel {

RunTimeError::RunTimeError(int code, const std::string& text)
    : std::runtime_error("Run-time error '" + std::to_string(code) + "': " + text),
      code_(code),
      text_(text) {}

void RaiseInvalidProcedureCall() {
  throw RunTimeError(RunTimeError::kInvalidProcedureCall, "Invalid procedure call or argument");
}

void RaiseOverflow() {
  throw RunTimeError(RunTimeError::kOverflow, "Overflow");
}

void RaiseSubscriptOutOfRange() {
  throw RunTimeError(RunTimeError::kSubscriptOutOfRange, "Subscript out of range");
}

int16_t ToInt16(int64_t value) {
  if (value < std::numeric_limits<int16_t>::min() || value > std::numeric_limits<int16_t>::max()) {
    RaiseOverflow();
  }
  return static_cast<int16_t>(value);
}

int32_t ToInt32(int64_t value) {
  if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max()) {
    RaiseOverflow();
  }
  return static_cast<int32_t>(value);
}

void CheckIndex(int64_t index, int64_t lo, int64_t hi) {
  if (index < lo || index > hi) {
    RaiseSubscriptOutOfRange();
  }
}

}  // namespace zentrel
