#pragma once
// Run-time errors of the fixed tables and 16-bit counts. They end the command that was
// running, never the program: the window shows them in a message box, the CLI prints them.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace zentrel {

class RunTimeError : public std::runtime_error {
 public:
  static constexpr int kInvalidProcedureCall = 5;
  static constexpr int kOverflow = 6;
  static constexpr int kOutOfMemory = 7;
  static constexpr int kSubscriptOutOfRange = 9;

  RunTimeError(int code, const std::string& text);

  int Code() const { return code_; }
  // The traditional short text ("Overflow", "Subscript out of range").
  const std::string& Text() const { return text_; }
  // "Run-time error '9': Subscript out of range", as shown to the user.
  std::string Message() const { return what(); }

 private:
  int code_;
  std::string text_;
};

[[noreturn]] void RaiseInvalidProcedureCall();  // "Invalid procedure call or argument"
[[noreturn]] void RaiseOverflow();
[[noreturn]] void RaiseSubscriptOutOfRange();

// Narrowing that a 16-bit or 32-bit count of the system would overflow raises Overflow.
int16_t ToInt16(int64_t value);
int32_t ToInt32(int64_t value);

// Raises Subscript out of range unless lo <= index <= hi.
void CheckIndex(int64_t index, int64_t lo, int64_t hi);

// Bounds-checked element of a fixed table indexed from 0.
template <class Table>
auto& At(Table& table, int64_t index) {
  CheckIndex(index, 0, static_cast<int64_t>(table.size()) - 1);
  return table[static_cast<size_t>(index)];
}

}  // namespace zentrel
