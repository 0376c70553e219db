#pragma once
// What every fuzz target shares: a started application state (made once, copied per input),
// a platform that answers Yes and stays silent, and a scratch folder on a memory file system.

#include <cstddef>
#include <cstdint>
#include <string>

#include "state/app_state.h"
#include "state/silent_platform.h"

namespace zentrel::fuzz {

// The state as start-up leaves it; the same object is reset and returned for every input.
AppState& Started_State();
// A scratch file path unique to this process.
std::string Scratch_Path(const std::string& name);
// Puts bytes into the page source editor and the document cache, as an edit would.
void Put_Page(AppState& s, const std::string& bytes);
// Aborts with a message when a property does not hold.
void Require(bool condition, const char* property);

// Reads the fuzz input from the front: a byte, or a length-prefixed piece.
class Input {
 public:
  Input(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  uint8_t Byte();
  std::string Piece(size_t maxLength);
  std::string Rest();

 private:
  const uint8_t* data_;
  size_t size_;
};

}  // namespace zentrel::fuzz
